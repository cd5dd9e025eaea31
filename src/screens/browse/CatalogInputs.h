#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QString>

#include <optional>

#include "catalog/CatalogScope.h"
#include "catalog/PackageCatalogState.h"

namespace quillmere {

/// What the main window tells a screen of the catalog, anew whenever any of it changes.
struct CatalogInputs {
  PackageCatalogState state;
  /// Of the fetch that is under way: all its documents together. The second is absent where the
  /// size is not known.
  qint64 receivedBytes = 0;
  std::optional<qint64> expectedBytes;
  bool hasCachedFormulae = false;
  bool hasCachedCasks = false;
  std::optional<QDateTime> lastRefreshDate;
  /// Why the last fetch failed, a sentence, and what it was to fetch, where the cache is shown
  /// instead; empty otherwise.
  QString fetchFailure;
  CatalogScope failedScope = CatalogScope::all;

  bool operator==(const CatalogInputs&) const = default;

  [[nodiscard]] bool hasCachedCatalog() const { return hasCachedFormulae && hasCachedCasks; }
};

}  // namespace quillmere

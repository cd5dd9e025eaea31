#pragma once

#include <QtCore/QString>

#include <variant>

#include "catalog/PackageCatalog.h"

namespace quillmere {

/// Nothing has been asked for yet.
struct CatalogIdle {
  bool operator==(const CatalogIdle&) const = default;
};

struct CatalogLoading {
  /// What is being done, for the user.
  QString message;

  bool operator==(const CatalogLoading&) const = default;
};

struct CatalogLoaded {
  /// Never null.
  PackageCatalogSnapshot catalog;

  friend bool operator==(const CatalogLoaded& left, const CatalogLoaded& right) {
    return left.catalog == right.catalog || *left.catalog == *right.catalog;
  }
};

struct CatalogFailed {
  /// Why, for the user.
  QString message;

  bool operator==(const CatalogFailed&) const = default;
};

/// What there is of the catalog to show.
using PackageCatalogState = std::variant<CatalogIdle, CatalogLoading, CatalogLoaded, CatalogFailed>;

}  // namespace quillmere

#pragma once

#include <QtCore/QString>
#include <QtCore/QUrl>

#include <expected>
#include <optional>

#include "app/CatalogScope.h"
#include "catalog/PackageCatalog.h"

namespace quillmere {

/// Where the catalog's documents lie in the cache.
struct CachedCatalogFiles {
  QUrl formulae;
  QUrl casks;
};

/// The documents of the scope as they lie in the cache, or why one of them cannot be read. Blocks
/// on the disk; any thread.
[[nodiscard]] std::expected<CatalogDocuments, QString> readCachedDocuments(
    const CachedCatalogFiles& files, CatalogScope scope);

/// The catalog of those documents, or a sentence that says why there is none. Slow; any thread.
[[nodiscard]] std::expected<PackageCatalogSnapshot, QString> readCachedCatalog(
    const CachedCatalogFiles& files, CatalogScope scope);

}  // namespace quillmere

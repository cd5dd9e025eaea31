#pragma once

#include <QtCore/QString>
#include <QtCore/QUrl>

#include <expected>
#include <vector>

#include "catalog/CatalogScope.h"
#include "catalog/HomebrewCask.h"
#include "catalog/HomebrewFormula.h"
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
[[nodiscard]] std::expected<PackageCatalogPtr, QString> readCachedCatalog(
    const CachedCatalogFiles& files, CatalogScope scope);

/// The records of the documents that lie in the cache, each name and token once; none of a document
/// that does not. The error is a sentence for the user.
struct CatalogRecords {
  std::vector<HomebrewFormula> formulae;
  std::vector<HomebrewCask> casks;
};

[[nodiscard]] std::expected<CatalogRecords, QString> readCachedRecords(
    const CachedCatalogFiles& files);

}  // namespace quillmere

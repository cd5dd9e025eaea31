#include "app/CachedCatalog.h"

#include <utility>

#include "platform/FileUrl.h"
#include "platform/RegularFile.h"

namespace quillmere {
namespace {

std::expected<QByteArray, QString> readDocument(const QUrl& file) {
  auto document = readRegularFile(filePath(file));
  if (!document) {
    return std::unexpected(QStringLiteral("%1: %2").arg(file.fileName(), document.error()));
  }
  return document;
}

}  // namespace

std::expected<CatalogDocuments, QString> readCachedDocuments(const CachedCatalogFiles& files,
                                                             CatalogScope scope) {
  CatalogDocuments documents;
  if (hasFormulae(scope)) {
    auto document = readDocument(files.formulae);
    if (!document) {
      return std::unexpected(std::move(document).error());
    }
    documents.formulae = *std::move(document);
  }
  if (hasCasks(scope)) {
    auto document = readDocument(files.casks);
    if (!document) {
      return std::unexpected(std::move(document).error());
    }
    documents.casks = *std::move(document);
  }
  return documents;
}

std::expected<PackageCatalogSnapshot, QString> readCachedCatalog(const CachedCatalogFiles& files,
                                                                 CatalogScope scope) {
  const auto documents = readCachedDocuments(files, scope);
  if (!documents) {
    return std::unexpected(documents.error());
  }
  auto catalog = decodeCatalog(*documents);
  if (!catalog) {
    return std::unexpected(catalog.error().description());
  }
  return *std::move(catalog);
}

}  // namespace quillmere

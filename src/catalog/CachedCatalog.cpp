#include "catalog/CachedCatalog.h"

#include <QtCore/QFile>

#include <future>
#include <utility>

#include "catalog/CatalogDecoding.h"
#include "catalog/MetadataFetchOptions.h"
#include "platform/FileUrl.h"
#include "platform/RegularFile.h"

namespace quillmere {
namespace {

std::expected<QByteArray, QString> readDocument(const QUrl& file) {
  auto document = readRegularFile(filePath(file), MetadataFetchOptions().maximumBytes);
  if (!document) {
    return std::unexpected(QStringLiteral("%1: %2").arg(file.fileName(), document.error()));
  }
  return document;
}

template <typename Records>
std::expected<Records, QString> recordsIn(
    const QUrl& file, std::expected<Records, CatalogDecodingError> (*decode)(const QByteArray&)) {
  if (!QFile::exists(filePath(file))) {
    return Records();
  }
  const auto document = readDocument(file);
  if (!document) {
    return std::unexpected(document.error());
  }
  auto records = decode(*document);
  if (!records) {
    return std::unexpected(records.error().description());
  }
  return withoutDuplicates(*std::move(records));
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

std::expected<PackageCatalogPtr, QString> readCachedCatalog(const CachedCatalogFiles& files,
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

std::expected<CatalogRecords, QString> readCachedRecords(const CachedCatalogFiles& files) {
  auto readingCasks =
      std::async(std::launch::async, [&files] { return recordsIn(files.casks, &decodeCasks); });
  auto formulae = recordsIn(files.formulae, &decodeFormulae);
  auto casks = readingCasks.get();
  if (!formulae) {
    return std::unexpected(std::move(formulae).error());
  }
  if (!casks) {
    return std::unexpected(std::move(casks).error());
  }
  return CatalogRecords{.formulae = *std::move(formulae), .casks = *std::move(casks)};
}

}  // namespace quillmere

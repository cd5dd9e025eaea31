#pragma once

#include "catalog/CatalogDecoding.h"
#include "catalog/HomebrewPackageSummary.h"
#include "platform/RegularFile.h"
#include "require.h"

namespace quillmere {

/// As they come out of a file or a download, with room behind them or without.
inline QByteArray bytesOf(const unsigned char* data, std::size_t size) {
  QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  if (size % 2 == 0) {
    bytes.reserve(bytes.size() + parserPadding);
  }
  return bytes;
}

/// Whatever a server sends, reading it gives records whose texts are whole characters, or one
/// sentence on one line that says why not.
template <typename Records>
void check(const std::expected<Records, CatalogDecodingError>& decoded) {
  if (!decoded) {
    const QString sentence = decoded.error().description();
    require(sentence.endsWith(u'.') && !sentence.contains(u'\n') && sentence.size() < 400);
    return;
  }
  require(withoutDuplicates(*decoded).size() <= decoded->size());
  const auto summaries = packageSummaries(*decoded);
  require(summaries.size() == decoded->size());
  for (const HomebrewPackageSummary& summary : summaries) {
    require(summary.name.toString().toUtf8() == QByteArrayView(summary.name.view()));
    require(!summary.homepage || summary.homepage->url().isValid());
  }
}

}  // namespace quillmere

#include "catalog/HomebrewFormulaMetadataClient.h"

#include <utility>

namespace quillmere {

QUrl HomebrewFormulaMetadataClient::defaultApiURL() {
  return urlLiteral(QStringLiteral("https://formulae.brew.sh/api/formula.json"));
}

QCoro::Task<MetadataFetchResult> HomebrewFormulaMetadataClient::fetch(
    MetadataFetchOptions options) const {
  return downloadMetadata(session, apiURL, std::move(options));
}

}  // namespace quillmere

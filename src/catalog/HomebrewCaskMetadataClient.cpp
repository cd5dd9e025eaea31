#include "catalog/HomebrewCaskMetadataClient.h"

#include <utility>

namespace quillmere {

QUrl HomebrewCaskMetadataClient::defaultApiURL() {
  return urlLiteral(QStringLiteral("https://formulae.brew.sh/api/cask.json"));
}

QCoro::Task<MetadataFetchResult> HomebrewCaskMetadataClient::fetch(
    MetadataFetchOptions options) const {
  return downloadMetadata(session, apiURL, std::move(options));
}

}  // namespace quillmere

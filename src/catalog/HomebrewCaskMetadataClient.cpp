#include "catalog/HomebrewCaskMetadataClient.h"

#include <utility>

namespace quillmere {

QUrl HomebrewCaskMetadataClient::defaultApiURL() {
  return urlFromFixedText(QStringLiteral("https://formulae.brew.sh/api/cask.json"));
}

QCoro::Task<MetadataFetchResult> HomebrewCaskMetadataClient::fetch(
    MetadataFetchOptions options) const {
  return downloadMetadata(session, apiURL, std::move(options));
}

}  // namespace quillmere

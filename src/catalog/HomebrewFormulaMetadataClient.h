#pragma once

#include "catalog/MetadataDownload.h"

namespace quillmere {

/// Downloads the public catalog's document of formulae. A plain value without a state of its own;
/// the caller decodes what it gets.
struct HomebrewFormulaMetadataClient {
  [[nodiscard]] static QUrl defaultApiURL();

  QUrl apiURL = defaultApiURL();
  /// Borrowed; lives on the UI thread.
  QNetworkAccessManager* session = nullptr;

  /// As `downloadMetadata` says. UI thread; this value may go while the fetch is under way.
  [[nodiscard]] QCoro::Task<MetadataFetchResult> fetch(MetadataFetchOptions options = {}) const;
};

}  // namespace quillmere

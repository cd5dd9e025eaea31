#pragma once

#include <QtCore/QString>

#include <optional>
#include <variant>

namespace quillmere {

/// An answer that is no catalog document; both clients use it.
struct HomebrewFormulaMetadataError {
  /// The status of an HTTP response outside 200 to 299; absent when the response was not an HTTP
  /// response.
  std::optional<int> statusCode;

  [[nodiscard]] static HomebrewFormulaMetadataError httpStatus(int code) { return {code}; }

  [[nodiscard]] static HomebrewFormulaMetadataError invalidResponse() { return {}; }

  bool operator==(const HomebrewFormulaMetadataError&) const = default;

  /// The sentence for the user.
  [[nodiscard]] QString description() const;
};

/// No whole answer arrived.
struct MetadataTransportError {
  /// The platform's own words, or ours for what it lets pass.
  QString message;
  bool operator==(const MetadataTransportError&) const = default;
};

/// Nobody wants the answer any more: the fetch was asked to stop, or its session is gone.
struct MetadataFetchCancelled {
  bool operator==(const MetadataFetchCancelled&) const = default;
};

using MetadataFetchError =
    std::variant<HomebrewFormulaMetadataError, MetadataTransportError, MetadataFetchCancelled>;

/// The sentence for the user.
[[nodiscard]] QString description(const MetadataFetchError& error);

}  // namespace quillmere

#pragma once

#include <optional>
#include <vector>

#include "platform/SharedText.h"
#include "platform/UrlText.h"

namespace quillmere {

/// One element of the cask document, as far as it is of use here. Made by `decodeCasks`; texts
/// stay the UTF-8 that the document is written in, see `SharedText`.
struct HomebrewCask {
  SharedText token;
  /// For display; the document's key is "name".
  std::vector<SharedText> names;
  std::optional<SharedText> description;
  std::optional<SharedText> version;
  std::optional<UrlText> homepage;
  std::optional<SharedText> tap;
  /// The artifacts' labels, such as "app" and "zap".
  std::vector<SharedText> artifacts;

  bool operator==(const HomebrewCask&) const = default;

  friend std::size_t qHash(const HomebrewCask& cask, std::size_t seed = 0) noexcept {
    return qHash(cask.token, seed);
  }
};

}  // namespace quillmere

#pragma once

#include <optional>
#include <vector>

#include "platform/SharedText.h"
#include "platform/UrlText.h"

namespace quillmere {

/// One element of the formula document, as far as it is of use here. Made by `decodeFormulae`;
/// texts stay the UTF-8 that the document is written in, see `SharedText`.
struct HomebrewFormula {
  struct Versions {
    /// Absent for a formula that is only built from its source's newest state.
    std::optional<SharedText> stable;
    std::optional<SharedText> head;

    bool operator==(const Versions&) const = default;
  };

  SharedText name;
  std::optional<SharedText> description;
  Versions versions;
  std::optional<UrlText> homepage;
  std::optional<SharedText> license;
  std::optional<SharedText> tap;
  std::vector<SharedText> dependencies;

  bool operator==(const HomebrewFormula&) const = default;

  friend std::size_t qHash(const HomebrewFormula& formula, std::size_t seed = 0) noexcept {
    return qHash(formula.name, seed);
  }
};

}  // namespace quillmere

#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "catalog/HomebrewPackageSummary.h"

namespace quillmere {

/// Which formulae of a list depend on which name, so that the question costs a look instead of a
/// walk through every dependency of every formula. Its keys are views of the packages' texts: the
/// packages, or copies of them, outlive it. Immutable once made; any thread.
class ReverseDependencies {
 public:
  ReverseDependencies() = default;
  explicit ReverseDependencies(std::span<const HomebrewPackageSummary> packages);

  /// The positions, ascending, of the formulae that list `name` among their dependencies, written
  /// exactly so.
  [[nodiscard]] std::span<const std::uint32_t> dependantsOf(std::string_view name) const;

 private:
  std::unordered_map<std::string_view, std::vector<std::uint32_t>> dependants_;
};

}  // namespace quillmere

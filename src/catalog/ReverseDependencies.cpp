#include "catalog/ReverseDependencies.h"

namespace quillmere {

ReverseDependencies::ReverseDependencies(std::span<const HomebrewPackageSummary> packages) {
  for (std::uint32_t position = 0; position < packages.size(); ++position) {
    const HomebrewPackageSummary& package = packages[position];
    if (package.kind != HomebrewPackageSummary::Kind::formula) {
      continue;
    }
    for (const SharedText& dependency : package.detailItems) {
      std::vector<std::uint32_t>& dependants = dependants_[dependency.view()];
      // A list may name the same formula twice.
      if (dependants.empty() || dependants.back() != position) {
        dependants.push_back(position);
      }
    }
  }
}

std::span<const std::uint32_t> ReverseDependencies::dependantsOf(std::string_view name) const {
  const auto found = dependants_.find(name);
  return found == dependants_.end() ? std::span<const std::uint32_t>() : found->second;
}

}  // namespace quillmere

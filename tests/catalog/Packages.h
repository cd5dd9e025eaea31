#pragma once

#include <initializer_list>
#include <string_view>
#include <vector>

#include "catalog/HomebrewPackageSummary.h"

namespace quillmere::test {

using Kind = HomebrewPackageSummary::Kind;

inline HomebrewPackageSummary package(Kind kind, std::string_view name) {
  SharedTextBuilder texts;
  return {.id = texts.add(kind == Kind::formula ? "formula:" : "cask:", name),
          .kind = kind,
          .name = texts.add(name)};
}

inline HomebrewPackageSummary formula(std::string_view name,
                                      std::initializer_list<std::string_view> dependencies = {}) {
  HomebrewPackageSummary summary = package(Kind::formula, name);
  for (const std::string_view dependency : dependencies) {
    summary.detailItems.emplace_back(dependency);
  }
  return summary;
}

inline HomebrewPackageSummary cask(std::string_view name) {
  return package(Kind::cask, name);
}

/// Formulae called "formula-0" and so on, then casks.
inline std::vector<HomebrewPackageSummary> manyPackages(int formulae, int casks) {
  std::vector<HomebrewPackageSummary> packages;
  for (int i = 0; i < formulae; ++i) {
    packages.push_back(formula("formula-" + std::to_string(i)));
  }
  for (int i = 0; i < casks; ++i) {
    packages.push_back(cask("cask-" + std::to_string(i)));
  }
  return packages;
}

}  // namespace quillmere::test

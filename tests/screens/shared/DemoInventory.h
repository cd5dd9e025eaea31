#pragma once

#include <initializer_list>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "guidance/InstalledPackagesState.h"
#include "screens/shared/LocalInventoryInputs.h"

namespace quillmere::test {

/// An installed package of which only its versions are of interest.
inline InstalledPackageSummary installed(const std::string& id,
                                         std::initializer_list<const char*> versions,
                                         const char* latest = nullptr) {
  InstalledPackageSummary package;
  const bool isFormula = id.starts_with("formula:");
  package.kind =
      isFormula ? HomebrewPackageSummary::Kind::formula : HomebrewPackageSummary::Kind::cask;
  package.id = SharedText(id);
  package.name = SharedText(id.substr(id.find(':') + 1));
  for (const char* const version : versions) {
    package.installedVersions.emplace_back(std::string_view(version));
    package.installedVersion = package.installedVersions.back();
  }
  if (latest != nullptr) {
    package.latestKnownVersion = SharedText(std::string_view(latest));
  }
  return package;
}

inline LocalInventoryInputs inputsOf(decltype(InstalledPackagesState::value) state) {
  LocalInventoryInputs inputs;
  inputs.state.value = std::move(state);
  return inputs;
}

inline LocalInventoryInputs loaded(std::vector<InstalledPackageSummary> packages) {
  return inputsOf(InstalledPackagesState::Loaded{
      std::make_shared<const std::vector<InstalledPackageSummary>>(std::move(packages))});
}

}  // namespace quillmere::test

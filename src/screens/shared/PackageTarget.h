#pragma once

#include <expected>

#include "catalog/HomebrewPackageSummary.h"
#include "commands/BrewCommandBuilder.h"

namespace quillmere {

/// What a command about a package acts on: the formula's name or the cask's token, both of which
/// stand in the package's `id`. The name that is shown will not do: that of a cask is its
/// product's. Refuses what cannot be the name of a package.
[[nodiscard]] std::expected<BrewCommandTarget, BrewCommandBuilderError> packageTarget(
    HomebrewPackageSummary::Kind kind, const SharedText& id);

}  // namespace quillmere

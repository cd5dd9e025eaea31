#pragma once

#include <QtCore/QString>

#include <vector>

#include "guidance/InstalledPackageSummary.h"
#include "guidance/PackageVersionState.h"

namespace quillmere {

/// An installed package and how its version stands. Its identity is that of the package. A value.
struct PackageUpdateSummary {
  InstalledPackageSummary package;
  PackageVersionState versionState;

  bool operator==(const PackageUpdateSummary&) const = default;
};

/// One entry for each package, up to date or not, ordered by name. Pure; any thread.
[[nodiscard]] std::vector<PackageUpdateSummary> packageUpdateSummaries(
    const std::vector<InstalledPackageSummary>& inventory);

/// The entry as assistive technology reads it out. Pure; any thread.
[[nodiscard]] QString accessibleLabel(const PackageUpdateSummary& update);

}  // namespace quillmere

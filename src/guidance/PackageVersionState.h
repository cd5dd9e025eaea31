#pragma once

#include <array>
#include <optional>

#include "catalog/HomebrewPackageSummary.h"
#include "platform/RawValues.h"
#include "platform/SharedText.h"

namespace quillmere {

/// How the installed version of a package stands to the one that the catalog knows.
struct PackageVersionState {
  /// When in doubt the user shall look: what cannot be compared never counts as up to date.
  enum class Status { upToDate, outdated, newerThanCatalog, unknown, notComparable };

  HomebrewPackageSummary::Kind kind = HomebrewPackageSummary::Kind::formula;
  SharedText name;
  std::optional<SharedText> currentVersion;
  std::optional<SharedText> latestKnownVersion;
  Status status = Status::unknown;

  bool operator==(const PackageVersionState&) const = default;
};

/// What the screens say.
template <>
inline constexpr auto rawValues<PackageVersionState::Status> =
    std::to_array<RawValue<PackageVersionState::Status>>({
        {PackageVersionState::Status::upToDate, QLatin1StringView("Up to date")},
        {PackageVersionState::Status::outdated, QLatin1StringView("Update available")},
        {PackageVersionState::Status::newerThanCatalog,
         QLatin1StringView("Newer than latest-known")},
        {PackageVersionState::Status::unknown, QLatin1StringView("Unknown")},
        {PackageVersionState::Status::notComparable, QLatin1StringView("Not comparable")},
    });

/// Compares two versions as names, whole and in one go, in the user's name ordering: nothing is
/// known here of revisions, of pre-releases or of the scheme of a version. Blanks around them do
/// not count. Versions without a digit ("latest", "HEAD", "n/a") are words that say nothing of an
/// order. Pure; any thread.
[[nodiscard]] PackageVersionState::Status packageVersionStatus(
    const std::optional<SharedText>& current, const std::optional<SharedText>& latest);

/// Whether `current` is a later build of the very version `latest`: "2.0_1" of "2.0". Homebrew
/// counts its own rebuilds so, and the catalog's version does not show them. Pure; any thread.
[[nodiscard]] bool isRebuild(const std::optional<SharedText>& current,
                             const std::optional<SharedText>& latest);

}  // namespace quillmere

#include <gtest/gtest.h>

#include "GuidanceTexts.h"
#include "guidance/PackageUpdateSummary.h"
#include "support/Printers.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using test::package;
using test::text;
using Kind = HomebrewPackageSummary::Kind;
using Status = PackageVersionState::Status;

TEST(PackageUpdateSummaries, HoldEveryPackageWithItsStatusInTheOrderOfNames) {
  InstalledPackageSummary cask = package("Zoom", {"6.1"}, "latest");
  cask.kind = Kind::cask;
  const std::vector<InstalledPackageSummary> inventory = {
      cask, package("pkg10", {"1.0", "1.9"}, "1.10"), package("pkg2", {"2.0"}, "2.0"),
      package("abc"), package("ABC", {"3"}, "2")};
  const auto updates = packageUpdateSummaries(inventory);
  ASSERT_EQ(updates.size(), inventory.size());
  const std::vector<PackageUpdateSummary> expected = {
      {.package = inventory[3],
       .versionState = {.kind = Kind::formula, .name = text("abc"), .status = Status::unknown}},
      {.package = inventory[4],
       .versionState = {.kind = Kind::formula,
                        .name = text("ABC"),
                        .currentVersion = text("3"),
                        .latestKnownVersion = text("2"),
                        .status = Status::newerThanCatalog}},
      {.package = inventory[2],
       .versionState = {.kind = Kind::formula,
                        .name = text("pkg2"),
                        .currentVersion = text("2.0"),
                        .latestKnownVersion = text("2.0"),
                        .status = Status::upToDate}},
      {.package = inventory[1],
       .versionState = {.kind = Kind::formula,
                        .name = text("pkg10"),
                        .currentVersion = text("1.9"),
                        .latestKnownVersion = text("1.10"),
                        .status = Status::outdated}},
      {.package = inventory[0],
       .versionState = {.kind = Kind::cask,
                        .name = text("Zoom"),
                        .currentVersion = text("6.1"),
                        .latestKnownVersion = text("latest"),
                        .status = Status::notComparable}}};
  EXPECT_EQ(updates, expected);
}

TEST(PackageUpdateSummaries, CompareTheVersionThatIsCurrentAndNoOther) {
  InstalledPackageSummary kept = package("wget", {"1.0", "2.0"}, "2.0");
  kept.installedVersion = text("1.0");
  EXPECT_EQ(packageUpdateSummaries({kept})[0].versionState.status, Status::outdated);
}

TEST(PackageUpdateSummaries, AreNoneOfNothing) {
  EXPECT_TRUE(packageUpdateSummaries({}).empty());
}

TEST(PackageUpdateSpokenLabel, SaysEverythingInOneLine) {
  InstalledPackageSummary wget = package("wget", {"1.24.5"}, "1.25.0");
  wget.tap = text("homebrew/core");
  EXPECT_EQ(accessibleLabel(packageUpdateSummaries({wget})[0]),
            u"wget, Formula, Update available, installed 1.24.5, latest known 1.25.0, "
            "tap homebrew/core"_s);
}

TEST(PackageUpdateSpokenLabel, SaysWhatIsUnknown) {
  InstalledPackageSummary cask = package("Mozilla Firefox");
  cask.kind = Kind::cask;
  EXPECT_EQ(accessibleLabel(packageUpdateSummaries({cask})[0]),
            u"Mozilla Firefox, Cask, Unknown, installed unknown, latest known unknown, "
            "tap unknown"_s);
}

}  // namespace
}  // namespace quillmere

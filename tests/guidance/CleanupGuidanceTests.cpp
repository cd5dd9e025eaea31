#include <gtest/gtest.h>

#include "GuidanceTexts.h"
#include "guidance/CleanupGuidance.h"
#include "support/Printers.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using test::namesOf;
using test::package;
using test::text;
using test::texts;
using Kind = HomebrewPackageSummary::Kind;

TEST(CleanupGuidance, ListsAllVersionsButTheLast) {
  const auto packages = oldVersionPackages({package("wget", {"1.0", "1.1", "1.2"})});
  ASSERT_EQ(packages.size(), 1U);
  EXPECT_EQ(packages[0],
            (CleanupGuidanceSummary::OldVersionPackage{.id = text("formula:wget"),
                                                       .name = text("wget"),
                                                       .kind = Kind::formula,
                                                       .currentVersion = text("1.2"),
                                                       .oldVersions = texts({"1.0", "1.1"})}));
}

TEST(CleanupGuidance, ListsNoPackageWithFewerThanTwoVersions) {
  EXPECT_EQ(namesOf(oldVersionPackages(
                {package("none"), package("one", {"1.0"}), package("two", {"1.0", "1.1"})})),
            QStringList{u"two"_s});
}

TEST(CleanupGuidance, RestsOnTheOrderOfTheScanAndOnItsCurrentVersion) {
  InstalledPackageSummary cask = package("Zoom", {"3", "1", "2"});
  cask.kind = Kind::cask;
  cask.installedVersion = text("3");
  const auto packages = oldVersionPackages({cask});
  EXPECT_EQ(packages.at(0).oldVersions, texts({"3", "1"}));
  EXPECT_EQ(packages.at(0).currentVersion, text("3"));
  EXPECT_EQ(packages.at(0).kind, Kind::cask);
}

TEST(CleanupGuidance, OrdersPackagesByNameAndKeepsTheOrderOfEqualNames) {
  EXPECT_EQ(namesOf(oldVersionPackages({package("pkg10", {"1", "2"}), package("wget", {"1", "2"}),
                                        package("WGET", {"1", "2"}), package("pkg2", {"1", "2"})})),
            (QStringList{u"pkg2"_s, u"pkg10"_s, u"wget"_s, u"WGET"_s}));
}

TEST(CleanupGuidance, CountsOldVersionsOfAllPackages) {
  EXPECT_EQ(oldVersionCount({}), 0);
  EXPECT_EQ(oldVersionCount(oldVersionPackages(
                {package("a", {"1", "2", "3"}), package("b", {"1"}), package("c", {"1", "2"})})),
            3);
}

TEST(CleanupGuidance, KnowsNothingOfACacheWithoutAPrefix) {
  EXPECT_EQ(cleanupCacheState(std::nullopt), CleanupGuidanceSummary::CacheState());
  const auto guidance = cleanupGuidance({package("wget", {"1.0", "1.1"})}, std::nullopt);
  EXPECT_EQ(guidance.cacheState.value.index(), 3U);
  EXPECT_EQ(namesOf(guidance.oldVersionPackages), QStringList{u"wget"_s});
}

TEST(CleanupGuidance, IsEqualOnlyInEveryField) {
  const auto guidance = cleanupGuidance({package("wget", {"1.0", "1.1"})}, std::nullopt);
  auto other = guidance;
  EXPECT_EQ(other, guidance);
  other.oldVersionPackages.clear();
  EXPECT_NE(other, guidance);
  other = guidance;
  other.cacheState = {CleanupGuidanceSummary::CacheState::Missing{u"/x"_s}};
  EXPECT_NE(other, guidance);
}

}  // namespace
}  // namespace quillmere

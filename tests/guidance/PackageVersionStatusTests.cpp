#include <gtest/gtest.h>

#include "GuidanceTexts.h"
#include "guidance/PackageVersionState.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using Status = PackageVersionState::Status;

/// A null pointer stands for a version that is missing.
Status status(const char* current, const char* latest) {
  const auto optional = [](const char* version) {
    return version != nullptr ? std::optional(test::text(version)) : std::nullopt;
  };
  return packageVersionStatus(optional(current), optional(latest));
}

TEST(PackageVersionStatus, HasAWordForTheScreen) {
  ASSERT_EQ(rawValues<Status>.size(), 5U);
  EXPECT_EQ(rawValue(Status::upToDate), "Up to date"_L1);
  EXPECT_EQ(rawValue(Status::outdated), "Update available"_L1);
  EXPECT_EQ(rawValue(Status::newerThanCatalog), "Newer than latest-known"_L1);
  EXPECT_EQ(rawValue(Status::unknown), "Unknown"_L1);
  EXPECT_EQ(rawValue(Status::notComparable), "Not comparable"_L1);
}

TEST(PackageVersionStatus, ComparesNumbersByValue) {
  EXPECT_EQ(status("1.2.3", "1.2.10"), Status::outdated);
  EXPECT_EQ(status("1.2.10", "1.2.9"), Status::newerThanCatalog);
  EXPECT_EQ(status("1.10", "1.9"), Status::newerThanCatalog);
  EXPECT_EQ(status("2026-01-09", "2026-01-10"), Status::outdated);
  EXPECT_EQ(status("r475", "r1113"), Status::outdated);
  EXPECT_EQ(status("1.2.3", "1.2.3"), Status::upToDate);
}

TEST(PackageVersionStatus, TakesARevisionForALongerName) {
  EXPECT_EQ(status("2.0_1", "2.0"), Status::newerThanCatalog);
  EXPECT_EQ(status("2.0", "2.0_1"), Status::outdated);
  EXPECT_EQ(status("2.0_10", "2.0_9"), Status::newerThanCatalog);
}

TEST(PackageVersionStatus, ComparesVersionsOfDifferentShapeAsNames) {
  EXPECT_EQ(status("2.10,7", "2.9,12"), Status::newerThanCatalog);
  EXPECT_EQ(status("1.0", "v1"), Status::outdated);
  EXPECT_EQ(status("HEAD-abc123", "1.0"), Status::newerThanCatalog);
  EXPECT_EQ(status("1.0B2", "1.0b2"), Status::upToDate);
}

TEST(PackageVersionStatus, DoesNotCountBlanksAroundAVersion) {
  EXPECT_EQ(status(" 2.0 ", "2.0"), Status::upToDate);
  EXPECT_EQ(status("2.0", "\t\r\n2.0\v\f"), Status::upToDate);
  EXPECT_EQ(status("\u00a02.0\u3000", "\u20282.0\u2029\u0085"), Status::upToDate);
}

TEST(PackageVersionStatus, IsUnknownWhereAVersionIsMissingOrBlank) {
  for (const char* blank : {static_cast<const char*>(nullptr), "", " ", "\n\t", "\u00a0\u3000"}) {
    EXPECT_EQ(status(blank, "1.0"), Status::unknown);
    EXPECT_EQ(status("1.0", blank), Status::unknown);
    EXPECT_EQ(status(blank, blank), Status::unknown);
  }
}

TEST(PackageVersionStatus, IsUnknownRatherThanNotComparable) {
  EXPECT_EQ(status(nullptr, "latest"), Status::unknown);
  EXPECT_EQ(status(" ", "latest"), Status::unknown);
  EXPECT_EQ(status("latest", nullptr), Status::unknown);
  EXPECT_EQ(status("latest", " "), Status::unknown);
}

TEST(PackageVersionStatus, CannotCompareWordsThatStandForAVersion) {
  for (const char* word :
       {"latest", "head", "unknown", "n/a", "HEAD", "Latest", "N/A", " UnKnown "}) {
    EXPECT_EQ(status(word, "1.0"), Status::notComparable) << word;
    EXPECT_EQ(status("1.0", word), Status::notComparable) << word;
    EXPECT_EQ(status(word, word), Status::notComparable) << word;
  }
}

TEST(PackageVersionStatus, CannotCompareWhatHoldsNoDigit) {
  EXPECT_EQ(status("stable", "1.0"), Status::notComparable);
  EXPECT_EQ(status("1.0", "snowfall"), Status::notComparable);
  EXPECT_EQ(status("\u00bd\u2460\u4e00", "1.0"), Status::notComparable);
}

TEST(PackageVersionStatus, KnowsTheDigitsOfEveryScript) {
  EXPECT_NE(status("\u0663.\u0660", "1.0"), Status::notComparable);
  EXPECT_NE(status("v\U0001D7D8", "1.0"), Status::notComparable);
  EXPECT_EQ(status("v\U0001F37A", "1.0"), Status::notComparable);
}

TEST(PackageVersionStatus, KnowsARebuildOfTheSameVersion) {
  const auto isRebuildOf = [](std::string_view current, std::string_view latest) {
    return isRebuild(SharedText(current), SharedText(latest));
  };
  EXPECT_TRUE(isRebuildOf("2.0_1", "2.0"));
  EXPECT_TRUE(isRebuildOf("2.0_12", "2.0"));
  EXPECT_FALSE(isRebuildOf("2.0", "2.0"));
  EXPECT_FALSE(isRebuildOf("2.0_", "2.0"));
  EXPECT_FALSE(isRebuildOf("2.0_1", "2.0_1"));
  EXPECT_FALSE(isRebuildOf("2.0_beta", "2.0"));
  EXPECT_FALSE(isRebuildOf("2.0.1", "2.0"));
  EXPECT_FALSE(isRebuildOf("2.1_1", "2.0"));
  EXPECT_FALSE(isRebuild(std::nullopt, SharedText(std::string_view("2.0"))));
  EXPECT_FALSE(isRebuild(SharedText(std::string_view("2.0_1")), std::nullopt));
}

}  // namespace
}  // namespace quillmere

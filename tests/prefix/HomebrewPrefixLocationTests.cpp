#include <gtest/gtest.h>

#include "prefix/HomebrewPrefixLocation.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using Kind = HomebrewPrefixLocation::Kind;

struct Row {
  Kind kind;
  const char* rawValueText;
  const char* label;
  const char* relativePath;
};

void PrintTo(const Row& row, std::ostream* out) {
  *out << row.rawValueText;
}

constexpr auto table = std::to_array<Row>({
    {Kind::brewExecutable, "brewExecutable", "brew executable", "bin/brew"},
    {Kind::cellar, "cellar", "Formula Cellar", "Cellar"},
    {Kind::caskroom, "caskroom", "Caskroom", "Caskroom"},
    {Kind::linkedFormulae, "linkedFormulae", "Linked formulae", "var/homebrew/linked"},
    {Kind::homebrewLibrary, "homebrewLibrary", "Homebrew Library", "Library/Homebrew"},
    {Kind::taps, "taps", "Tap metadata", "Library/Taps"},
    {Kind::cache, "cache", "Cache", "var/homebrew/cache"},
});

class HomebrewPrefixLocationTable : public testing::TestWithParam<Row> {};

TEST_P(HomebrewPrefixLocationTable, HoldsTheLocationInItsPlace) {
  const Row& row = GetParam();
  const HomebrewPrefixLocationInfo& info = homebrewPrefixLocations[std::size_t(row.kind)];
  EXPECT_EQ(info.kind, row.kind);
  EXPECT_EQ(info.label, QLatin1StringView(row.label));
  EXPECT_EQ(info.relativePath, QLatin1StringView(row.relativePath));
  EXPECT_EQ(rawValue(row.kind), QLatin1StringView(row.rawValueText));
  EXPECT_EQ(fromRawValue<Kind>(QString::fromLatin1(row.rawValueText)), row.kind);
}

INSTANTIATE_TEST_SUITE_P(SevenLocations, HomebrewPrefixLocationTable, testing::ValuesIn(table),
                         [](const testing::TestParamInfo<Row>& row) {
                           return std::string(row.param.rawValueText);
                         });

TEST(HomebrewPrefixLocation, HasSevenKinds) {
  EXPECT_EQ(homebrewPrefixLocations.size(), table.size());
}

HomebrewPrefixLocation locationOf(Kind kind) {
  HomebrewPrefixLocation location;
  location.kind = kind;
  return location;
}

TEST(HomebrewPrefixReadResult, FindsTheFirstLocationOfAKind) {
  HomebrewPrefixReadResult result;
  result.locations = {locationOf(Kind::taps), locationOf(Kind::cellar), locationOf(Kind::cellar)};
  EXPECT_EQ(result.location(Kind::cellar), &result.locations[1]);
}

TEST(HomebrewPrefixReadResult, FindsNoLocationOfAKindThatItDoesNotHold) {
  HomebrewPrefixReadResult result;
  EXPECT_EQ(result.location(Kind::cache), nullptr);
  result.locations = {locationOf(Kind::taps)};
  EXPECT_EQ(result.location(Kind::cache), nullptr);
}

TEST(HomebrewPrefixReadResult, IsEqualOnlyWhenEveryFieldIs) {
  HomebrewPrefixReadResult result{.prefixURL = QUrl(u"file:///opt/homebrew"_s),
                                  .scannedAt = QDateTime::fromSecsSinceEpoch(1, Qt::UTC),
                                  .locations = {locationOf(Kind::taps)}};
  HomebrewPrefixReadResult other = result;
  EXPECT_EQ(result, other);
  other.prefixURL = QUrl(u"file:///usr/local"_s);
  EXPECT_NE(result, other);
  other = result;
  other.scannedAt = other.scannedAt.addMSecs(1);
  EXPECT_NE(result, other);
  other = result;
  other.locations.front().childNames += u"homebrew"_s;
  EXPECT_NE(result, other);
}

}  // namespace
}  // namespace quillmere

#include <QtCore/QSet>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "CatalogPrinters.h"
#include "catalog/CatalogDecoding.h"
#include "catalog/HomebrewPackageSummary.h"

namespace quillmere {
namespace {

using Kind = HomebrewPackageSummary::Kind;
using testing::ElementsAre;

TEST(HomebrewPackageSummary, TakesItsFieldsFromAFormula) {
  const auto summaries = packageSummaries(decodeFormulae(R"([{
    "name": "wget", "desc": "Internet file retriever",
    "versions": {"stable": "1.25.0", "head": "HEAD"}, "homepage": "https://www.gnu.org/",
    "license": "GPL-3.0-or-later", "tap": "homebrew/core", "dependencies": ["libidn2"]}])")
                                              .value());
  ASSERT_EQ(summaries.size(), 1U);
  const HomebrewPackageSummary& wget = summaries.front();
  EXPECT_EQ(wget.id, "formula:wget");
  EXPECT_EQ(wget.kind, Kind::formula);
  EXPECT_EQ(wget.name, "wget");
  EXPECT_EQ(viewOf(wget.description), "Internet file retriever");
  EXPECT_EQ(viewOf(wget.version), "1.25.0");
  EXPECT_EQ(viewOf(wget.alternateVersion), "HEAD");
  EXPECT_EQ(viewOf(wget.homepage), "https://www.gnu.org/");
  EXPECT_EQ(viewOf(wget.license), "GPL-3.0-or-later");
  EXPECT_EQ(viewOf(wget.tap), "homebrew/core");
  EXPECT_THAT(wget.detailItems, ElementsAre("libidn2"));
}

TEST(HomebrewPackageSummary, TakesItsFieldsFromACask) {
  const auto summaries = packageSummaries(decodeCasks(R"([{
    "token": "firefox", "name": ["Mozilla Firefox", "Firefox"], "desc": "Web browser",
    "version": "145.0", "homepage": "https://www.mozilla.org/", "license": "MPL-2.0",
    "tap": "homebrew/cask", "artifacts": [{"app": []}, {}]}])")
                                              .value());
  ASSERT_EQ(summaries.size(), 1U);
  const HomebrewPackageSummary& firefox = summaries.front();
  EXPECT_EQ(firefox.id, "cask:firefox");
  EXPECT_EQ(firefox.kind, Kind::cask);
  EXPECT_EQ(firefox.name, "Mozilla Firefox");
  EXPECT_EQ(viewOf(firefox.description), "Web browser");
  EXPECT_EQ(viewOf(firefox.version), "145.0");
  EXPECT_EQ(firefox.alternateVersion, std::nullopt);
  EXPECT_EQ(viewOf(firefox.homepage), "https://www.mozilla.org/");
  EXPECT_EQ(firefox.license, std::nullopt);
  EXPECT_EQ(viewOf(firefox.tap), "homebrew/cask");
  EXPECT_THAT(firefox.detailItems, ElementsAre("app", "artifact"));
}

TEST(HomebrewPackageSummary, ShowsTheTokenOfACaskWithoutNames) {
  const auto summaries =
      packageSummaries(decodeCasks(R"([{"token": "a"}, {"token": "b", "name": []},
        {"token": "c", "name": 5}, {"token": "d", "name": "D"}, {"token": "e", "name": [""]}])")
                           .value());
  std::vector<SharedText> names;
  for (const HomebrewPackageSummary& summary : summaries) {
    names.push_back(summary.name);
  }
  EXPECT_THAT(names, ElementsAre("a", "b", "c", "D", ""));
  EXPECT_EQ(summaries[0].id, "cask:a");
}

TEST(HomebrewPackageSummary, HasNoVersionWhereStableIsMissing) {
  const auto summaries =
      packageSummaries(decodeFormulae(R"([{"name": "a", "versions": {"head": "HEAD"}}])").value());
  EXPECT_EQ(summaries.front().version, std::nullopt);
  EXPECT_EQ(viewOf(summaries.front().alternateVersion), "HEAD");
}

TEST(HomebrewPackageSummary, TellsAFormulaFromACaskOfTheSameName) {
  const auto formula =
      packageSummaries(decodeFormulae(R"([{"name": "docker", "versions": {}}])").value()).front();
  const auto cask = packageSummaries(decodeCasks(R"([{"token": "docker"}])").value()).front();
  EXPECT_EQ(formula.name, cask.name);
  EXPECT_FALSE(formula.id == cask.id);
  const QSet<HomebrewPackageSummary> set = {formula, cask, formula};
  EXPECT_EQ(set.size(), 2);
}

TEST(HomebrewPackageSummary, KeepsItsNameOrTokenInItsId) {
  SharedTextBuilder texts;
  const SharedText formula = packageId(Kind::formula, "formula:odd", texts);
  EXPECT_EQ(formula, "formula:formula:odd");
  EXPECT_EQ(nameInPackageId(Kind::formula, formula), "formula:odd");
  EXPECT_EQ(nameInPackageId(Kind::cask, packageId(Kind::cask, "firefox", texts)), "firefox");
}

TEST(HomebrewPackageSummary, NamesItsKind) {
  EXPECT_EQ(displayLabel(Kind::formula), QLatin1StringView("Formula"));
  EXPECT_EQ(displayLabel(Kind::cask), QLatin1StringView("Cask"));
}

}  // namespace
}  // namespace quillmere

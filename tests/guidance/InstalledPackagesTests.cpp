#include <QtCore/QSet>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "GuidanceTexts.h"
#include "guidance/InstalledPackagesState.h"
#include "support/Printers.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using test::namesOf;
using test::package;
using test::text;
using test::texts;
using Kind = HomebrewPackageSummary::Kind;
using Reason = InstalledFormula::InstallReason;

InstalledFormula wget() {
  return {.name = u"wget"_s,
          .installedVersions = {u"1.24.5"_s, u"1.25.0_1"_s},
          .currentVersion = u"1.25.0_1"_s,
          .installReason = Reason::direct,
          .catalogFormula = HomebrewFormula{
              .name = text("wget"),
              .description = text("Internet file retriever"),
              .versions = {.stable = text("1.25.1"), .head = text("HEAD")},
              .homepage = UrlText::fromText(text("https://www.gnu.org/software/wget/")),
              .license = text("GPL-3.0-or-later"),
              .tap = text("homebrew/core"),
              .dependencies = texts({"libidn2", "openssl@3"})}};
}

InstalledCask firefox() {
  return {.token = u"firefox"_s,
          .installedVersions = {u"153.0"_s},
          .currentVersion = u"153.0"_s,
          .catalogCask =
              HomebrewCask{.token = text("firefox"),
                           .names = texts({"Mozilla Firefox", "Firefox"}),
                           .description = text("Web browser"),
                           .version = text("154.0"),
                           .homepage = UrlText::fromText(text("https://www.mozilla.org/firefox/")),
                           .tap = text("homebrew/cask"),
                           .artifacts = texts({"app", "zap"})}};
}

InstalledPackageSummary summaryOf(const InstalledFormula& formula) {
  return installedPackageSummaries({formula}, {}).front();
}

InstalledPackageSummary summaryOf(const InstalledCask& cask) {
  return installedPackageSummaries({}, {cask}).front();
}

TEST(InstalledPackageSummary, JoinsAFormulaWithItsRecord) {
  EXPECT_EQ(summaryOf(wget()),
            (InstalledPackageSummary{
                .id = text("formula:wget"),
                .kind = Kind::formula,
                .name = text("wget"),
                .description = text("Internet file retriever"),
                .installedVersions = texts({"1.24.5", "1.25.0_1"}),
                .installedVersion = text("1.25.0_1"),
                .latestKnownVersion = text("1.25.1"),
                .alternateVersion = text("HEAD"),
                .homepage = UrlText::fromText(text("https://www.gnu.org/software/wget/")),
                .license = text("GPL-3.0-or-later"),
                .tap = text("homebrew/core"),
                .detailItems = texts({"libidn2", "openssl@3"}),
                .detail = text("Installed on request")}));
}

TEST(InstalledPackageSummary, KnowsOfAFormulaWithoutRecordWhatIsOnTheDisk) {
  InstalledFormula formula = wget();
  formula.catalogFormula.reset();
  formula.installReason = Reason::dependency;
  EXPECT_EQ(summaryOf(formula),
            (InstalledPackageSummary{.id = text("formula:wget"),
                                     .kind = Kind::formula,
                                     .name = text("wget"),
                                     .installedVersions = texts({"1.24.5", "1.25.0_1"}),
                                     .installedVersion = text("1.25.0_1"),
                                     .detail = text("Installed as dependency")}));
}

TEST(InstalledPackageSummary, SaysHowAFormulaCameToBeInstalled) {
  InstalledFormula formula = wget();
  EXPECT_EQ(summaryOf(formula).detail, text("Installed on request"));
  formula.installReason = Reason::dependency;
  EXPECT_EQ(summaryOf(formula).detail, text("Installed as dependency"));
  formula.installReason = Reason::unknown;
  EXPECT_EQ(summaryOf(formula).detail, text("Install reason unknown"));
}

TEST(InstalledPackageSummary, JoinsACaskWithItsRecord) {
  EXPECT_EQ(summaryOf(firefox()),
            (InstalledPackageSummary{
                .id = text("cask:firefox"),
                .kind = Kind::cask,
                .name = text("Mozilla Firefox"),
                .description = text("Web browser"),
                .installedVersions = texts({"153.0"}),
                .installedVersion = text("153.0"),
                .latestKnownVersion = text("154.0"),
                .alternateVersion = std::nullopt,
                .homepage = UrlText::fromText(text("https://www.mozilla.org/firefox/")),
                .license = std::nullopt,
                .tap = text("homebrew/cask"),
                .detailItems = texts({"app", "zap"}),
                .detail = text("Cask token: firefox")}));
}

TEST(InstalledPackageSummary, NamesACaskByItsTokenWhereNothingElseIsKnown) {
  InstalledCask cask = firefox();
  cask.catalogCask->names.clear();
  EXPECT_EQ(summaryOf(cask).name, text("firefox"));
  EXPECT_EQ(summaryOf(cask).latestKnownVersion, text("154.0"));
  cask.catalogCask.reset();
  EXPECT_EQ(summaryOf(cask), (InstalledPackageSummary{.id = text("cask:firefox"),
                                                      .kind = Kind::cask,
                                                      .name = text("firefox"),
                                                      .installedVersions = texts({"153.0"}),
                                                      .installedVersion = text("153.0"),
                                                      .detail = text("Cask token: firefox")}));
}

TEST(InstalledPackageSummary, HasTheIdOfTheCatalogRow) {
  const HomebrewFormula formula = *wget().catalogFormula;
  const HomebrewCask cask = *firefox().catalogCask;
  EXPECT_EQ(summaryOf(wget()).id, packageSummaries(std::vector{formula})[0].id);
  EXPECT_EQ(summaryOf(firefox()).id, packageSummaries(std::vector{cask})[0].id);
}

TEST(InstalledPackageSummary, KeepsVersionsInTheOrderOfTheScan) {
  InstalledFormula formula = wget();
  formula.installedVersions = {u"2"_s, u"10"_s, u"1"_s};
  formula.currentVersion.reset();
  EXPECT_EQ(summaryOf(formula).installedVersions, texts({"2", "10", "1"}));
  EXPECT_EQ(summaryOf(formula).installedVersion, std::nullopt);
}

TEST(InstalledPackageSummary, CanBeKeptInASet) {
  const auto formula = summaryOf(wget());
  EXPECT_EQ(QSet<InstalledPackageSummary>({formula, summaryOf(firefox()), formula}).size(), 2);
}

TEST(InstalledPackageSummary, ComesBeforeAnotherByItsNameAlone) {
  EXPECT_TRUE(comesBefore(package("pkg2"), package("pkg10")));
  EXPECT_FALSE(comesBefore(package("pkg10"), package("pkg2")));
  EXPECT_TRUE(comesBefore(package("apple"), package("Banana")));
  EXPECT_FALSE(comesBefore(package("wget", {"1"}), package("WGET", {"2"})));
  EXPECT_FALSE(comesBefore(package("WGET", {"2"}), package("wget", {"1"})));
}

TEST(InstalledPackageSummaries, AreOrderedByNameWithNumbersByValue) {
  std::vector<InstalledFormula> formulae;
  for (const QString& name : {u"pkg10"_s, u"Zsh"_s, u"pkg2"_s, u"\u00e9t\u00e9"_s, u"abc"_s}) {
    formulae.push_back({.name = name});
  }
  EXPECT_EQ(namesOf(installedPackageSummaries(formulae, {firefox()})),
            (QStringList{u"abc"_s, u"\u00e9t\u00e9"_s, u"Mozilla Firefox"_s, u"pkg2"_s, u"pkg10"_s,
                         u"Zsh"_s}));
}

TEST(InstalledPackageSummaries, KeepAFormulaBeforeACaskOfTheSameName) {
  const InstalledFormula docker{.name = u"docker"_s};
  const InstalledFormula upper{.name = u"DOCKER"_s};
  const InstalledCask cask{.token = u"docker"_s};
  const auto summaries = installedPackageSummaries({docker, upper, {.name = u"a"_s}}, {cask});
  ASSERT_EQ(summaries.size(), 4U);
  EXPECT_EQ(summaries[1].id, text("formula:docker"));
  EXPECT_EQ(summaries[2].id, text("formula:DOCKER"));
  EXPECT_EQ(summaries[3].id, text("cask:docker"));
}

TEST(InstalledPackageSummaries, AreNoneOfNothing) {
  EXPECT_TRUE(installedPackageSummaries({}, {}).empty());
}

using State = InstalledPackagesState;

State loaded(const std::vector<InstalledPackageSummary>& packages) {
  return {State::Loaded{std::make_shared<const std::vector<InstalledPackageSummary>>(packages)}};
}

TEST(InstalledPackagesState, IsIdleAtFirst) {
  EXPECT_EQ(State(), State{State::Idle()});
}

TEST(InstalledPackagesState, DiffersInEveryAlternative) {
  const std::vector<State> states = {{State::Idle()},
                                     {State::AccessNeeded()},
                                     {State::Loading()},
                                     loaded({}),
                                     {State::Failed{u"No."_s}}};
  for (std::size_t i = 0; i < states.size(); ++i) {
    EXPECT_EQ(states[i].value.index(), i);
    for (std::size_t j = 0; j < states.size(); ++j) {
      EXPECT_EQ(states[i] == states[j], i == j);
    }
  }
  EXPECT_NE(State{State::Failed{u"No."_s}}, State{State::Failed{u"Never."_s}});
}

TEST(InstalledPackagesState, ComparesLoadedListsByWhatIsInThem) {
  EXPECT_EQ(loaded({package("wget", {"1"})}), loaded({package("wget", {"1"})}));
  EXPECT_NE(loaded({package("wget", {"1"})}), loaded({package("wget", {"2"})}));
  EXPECT_NE(loaded({package("wget")}), loaded({}));
}

TEST(InstalledPackagesState, HasPackagesOnlyWhenLoaded) {
  const State state = loaded({package("wget")});
  ASSERT_NE(state.packages(), nullptr);
  EXPECT_EQ(namesOf(*state.packages()), QStringList{u"wget"_s});
  EXPECT_EQ(State{State::Loading()}.packages(), nullptr);
}

}  // namespace
}  // namespace quillmere

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <utility>

#include "platform/DateTexts.h"
#include "screens/installed/InstalledPackagesViewModel.h"
#include "support/Printers.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Filter = PackageCatalogFilter;
using Kind = HomebrewPackageSummary::Kind;
using State = InstalledPackagesState;
using ViewModel = InstalledPackagesViewModel;

const QDateTime now = QDateTime::fromString(u"2026-11-20T12:00:00Z"_s, Qt::ISODate);

SharedText shared(const QString& text) {
  return SharedText(QStringView(text));
}

InstalledPackageSummary package(const QString& name, Kind kind, const QString& description) {
  InstalledPackageSummary summary;
  summary.id = shared((kind == Kind::formula ? u"formula:"_s : u"cask:"_s) + name);
  summary.kind = kind;
  summary.name = shared(name);
  summary.description = shared(description);
  summary.installedVersion = shared(u"1.24.5"_s);
  summary.latestKnownVersion = shared(u"1.25.0"_s);
  summary.tap = shared(u"homebrew/core"_s);
  summary.license = shared(u"GPL-3.0"_s);
  summary.homepage = UrlText::fromText(shared(u"https://example.org"_s));
  summary.detailItems = {shared(u"a-dependency"_s)};
  summary.detail = shared(u"Installed on request"_s);
  return summary;
}

const std::vector<InstalledPackageSummary> someFormulae{
    package(u"wget"_s, Kind::formula, u"Internet file retriever"_s),
    package(u"IMAGEMAGICK"_s, Kind::formula, u"Naïve image tool"_s)};

class InstalledPackagesViewModelTest : public testing::Test {
 protected:
  InstalledPackagesViewModelTest() {
    QObject::connect(&model_, &ViewModel::announced, &model_,
                     [this](const QString& text) { announced_.push_back(text); });
  }

  void give(decltype(State::value) value) {
    inputs_.state.value = std::move(value);
    model_.setInputs(inputs_);
  }

  void load(std::vector<InstalledPackageSummary> packages) {
    give(State::Loaded{
        std::make_shared<const std::vector<InstalledPackageSummary>>(std::move(packages))});
  }

  void selectPrefix() { inputs_.selectedPrefixPath = u"/opt/homebrew"_s; }

  [[nodiscard]] std::vector<QString> names() {
    std::vector<QString> result;
    for (int row = 0; row < model_.packages()->rowCount(); ++row) {
      result.push_back(model_.packages()->package(row).name.toString());
    }
    return result;
  }

  void expectMessage(ViewModel::State state, const QString& symbolName, const QString& title,
                     const QString& text) const {
    EXPECT_EQ(model_.state(), state);
    EXPECT_EQ(model_.symbolName(), symbolName);
    EXPECT_EQ(model_.title(), title);
    EXPECT_EQ(model_.text(), text);
  }

  LocalInventoryInputs inputs_;
  ViewModel model_{[] { return now; }};
  std::vector<QString> announced_;
};

// --- States, in the order in which they are told apart ---

TEST_F(InstalledPackagesViewModelTest, AsksForAccessWhateverElseIsKnownWhileNoPrefixIsSelected) {
  for (const auto& value : std::initializer_list<decltype(State::value)>{
           State::Idle{}, State::AccessNeeded{}, State::Loading{}, State::Failed{u"No."_s}}) {
    give(value);
    expectMessage(ViewModel::NeedsAccess, u"shippingbox"_s, u"Local Access Needed"_s,
                  u"Installed packages require access to your selected Homebrew prefix. Quillmere "
                  "scans local package metadata without writing to Homebrew files."_s);
  }
}

TEST_F(InstalledPackagesViewModelTest, AsksForAccessToAPrefixThatCannotBeReadAnyMore) {
  selectPrefix();
  give(State::AccessNeeded{});
  EXPECT_EQ(model_.state(), ViewModel::NeedsAccess);
}

TEST_F(InstalledPackagesViewModelTest, OffersAScanOfTheSelectedPrefix) {
  selectPrefix();
  give(State::Idle{});
  expectMessage(ViewModel::NotScanned, u"shippingbox"_s, u"Scan Installed Packages"_s,
                u"Selected prefix: /opt/homebrew. Scan local formula and cask directories in "
                "read-only mode."_s);
}

TEST(ScanInvitation, AsksForAPrefixWhereNoneIsSelected) {
  EXPECT_EQ(scanInvitation(std::nullopt),
            u"Select a Homebrew prefix before scanning installed packages."_s);
}

TEST_F(InstalledPackagesViewModelTest, SaysThatItScansAndHowFarItHasCome) {
  selectPrefix();
  give(State::Loading{});
  expectMessage(ViewModel::Scanning, u"shippingbox"_s, u"Scanning selected Homebrew prefix..."_s,
                QString());
  EXPECT_EQ(model_.progressText(), QString());
  EXPECT_LT(model_.progressFraction(), 0);
  inputs_.scannedPackages = 30;
  inputs_.totalPackages = 120;
  model_.setInputs(inputs_);
  EXPECT_EQ(model_.progressText(), u"30 of 120 packages scanned"_s);
  EXPECT_DOUBLE_EQ(model_.progressFraction(), 0.25);
}

TEST_F(InstalledPackagesViewModelTest, SaysWhyAScanFailed) {
  selectPrefix();
  give(State::Failed{u"Local inventory could not be scanned: No."_s});
  expectMessage(ViewModel::ScanFailed, u"externaldrive.badge.exclamationmark"_s,
                u"Could Not Scan Installed Packages"_s,
                u"Local inventory could not be scanned: No."_s);
}

TEST_F(InstalledPackagesViewModelTest, ShowsNoRowsOfTheScanBeforeAFailure) {
  selectPrefix();
  load(someFormulae);
  give(State::Failed{u"No."_s});
  EXPECT_EQ(model_.state(), ViewModel::ScanFailed);
  EXPECT_THAT(names(), IsEmpty());
}

TEST_F(InstalledPackagesViewModelTest, SaysThatAPrefixHoldsNothing) {
  selectPrefix();
  load({});
  expectMessage(ViewModel::NothingInstalled, u"shippingbox"_s, u"No Installed Packages Found"_s,
                u"Quillmere did not find readable formulae or casks in the selected prefix. "
                "Catalog browsing is still available."_s);
}

TEST_F(InstalledPackagesViewModelTest, SaysThatNothingMatches) {
  selectPrefix();
  load(someFormulae);
  model_.search()->setSearchText(u"nothing is called so"_s);
  expectMessage(ViewModel::NoMatch, u"magnifyingglass"_s, u"No Installed Packages Match"_s,
                u"Try a different search term or package type filter."_s);
  model_.search()->clear();
  EXPECT_EQ(model_.state(), ViewModel::Listed);
  EXPECT_EQ(model_.search()->searchText(), QString());
}

TEST_F(InstalledPackagesViewModelTest, TellsThatNoCaskMatchesFromThatNothingIsInstalled) {
  selectPrefix();
  load(someFormulae);
  model_.search()->setPackageFilter(Filter::casks);
  EXPECT_EQ(model_.state(), ViewModel::NoMatch);
}

TEST_F(InstalledPackagesViewModelTest, ListsInTheOrderOfTheScan) {
  selectPrefix();
  load(someFormulae);
  expectMessage(ViewModel::Listed, u"shippingbox"_s, QString(), QString());
  EXPECT_THAT(names(), ElementsAre(u"wget"_s, u"IMAGEMAGICK"_s));
  EXPECT_EQ(model_.summary(), u"Showing 2 of 2 packages"_s);
}

TEST_F(InstalledPackagesViewModelTest, FiltersAgainWhatAnotherScanFinds) {
  selectPrefix();
  load(someFormulae);
  model_.search()->setSearchText(u" wget "_s);
  EXPECT_THAT(names(), ElementsAre(u"wget"_s));
  EXPECT_EQ(model_.summary(), u"Showing 1 of 2 packages"_s);
  load({package(u"wget2"_s, Kind::formula, u"Successor"_s)});
  EXPECT_THAT(names(), ElementsAre(u"wget2"_s));
}

// --- Search ---

struct SearchCase {
  QString query;
  bool found;
};

class SearchedText : public testing::TestWithParam<SearchCase> {};

TEST_P(SearchedText, IsLookedForInWhatIsKnownOfAPackage) {
  const std::vector<InstalledPackageSummary> packages{
      package(u"wget"_s, Kind::formula, u"Naïve file retriever"_s)};
  EXPECT_EQ(!matchingPackages(packages, GetParam().query, Filter::all, QLocale(u"en_US"_s)).empty(),
            GetParam().found)
      << GetParam().query.toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    Queries, SearchedText,
    testing::Values(SearchCase{QString(), true}, SearchCase{u"WGET"_s, true},
                    SearchCase{u"formula"_s, true}, SearchCase{u"cask"_s, false},
                    SearchCase{u"naive FILE"_s, true}, SearchCase{u"1.24.5"_s, true},
                    SearchCase{u"1.25.0"_s, true}, SearchCase{u"1.24.5 1.25.0"_s, true},
                    SearchCase{u"homebrew/core"_s, true}, SearchCase{u"gpl"_s, true},
                    SearchCase{u"on request"_s, true}, SearchCase{u"https"_s, false},
                    SearchCase{u"a-dependency"_s, false}, SearchCase{u"wgett"_s, false}));

TEST(MatchingPackages, LeavesOutWhatIsNotKnown) {
  InstalledPackageSummary bare;
  bare.name = shared(u"own"_s);
  bare.detail = shared(u"Install reason unknown"_s);
  EXPECT_THAT(matchingPackages({bare}, u"own Formula Install"_s, Filter::all, QLocale::c()),
              ElementsAre(0));
}

TEST(MatchingPackages, KnowTheLettersOfTheLanguage) {
  const QLocale turkish(QLocale::Turkish, QLocale::Turkey);
  EXPECT_THAT(matchingPackages(someFormulae, u"ımagemagıck"_s, Filter::all, turkish),
              ElementsAre(1));
  EXPECT_THAT(matchingPackages(someFormulae, u"ımagemagıck"_s, Filter::all, QLocale(u"en_US"_s)),
              IsEmpty());
}

TEST(MatchingPackages, PassTheTypeAsWell) {
  std::vector<InstalledPackageSummary> packages = someFormulae;
  packages.push_back(package(u"wget-app"_s, Kind::cask, u"Window for it"_s));
  const QLocale locale(u"en_US"_s);
  EXPECT_THAT(matchingPackages(packages, u"wget"_s, Filter::all, locale), ElementsAre(0, 2));
  EXPECT_THAT(matchingPackages(packages, u"wget"_s, Filter::formulae, locale), ElementsAre(0));
  EXPECT_THAT(matchingPackages(packages, QString(), Filter::casks, locale), ElementsAre(2));
}

// --- Freshness, wishes, announcements ---

TEST_F(InstalledPackagesViewModelTest, CallsAScanOfMoreThanADayAgoStale) {
  inputs_.lastScanDate = now.addDays(-1).addSecs(60);
  model_.setInputs(inputs_);
  EXPECT_EQ(model_.freshnessText(), u"Inventory fresh: %1."_s.arg(dateText(*inputs_.lastScanDate)));
  inputs_.lastScanDate = now.addDays(-1).addSecs(-60);
  model_.setInputs(inputs_);
  EXPECT_EQ(model_.freshnessText(),
            u"Inventory stale: %1. Scan local inventory for current guidance."_s.arg(
                dateText(*inputs_.lastScanDate)));
}

TEST_F(InstalledPackagesViewModelTest, SpeaksTheCountsAndTheFreshnessOfTheList) {
  selectPrefix();
  inputs_.lastScanDate = now.addSecs(-60);
  load(someFormulae);
  EXPECT_EQ(model_.accessibleSummary(),
            u"Showing 2 of 2 packages - Inventory fresh "_s + dateText(*inputs_.lastScanDate));
}

TEST_F(InstalledPackagesViewModelTest, OpensThePackageOfARowAndNothingBesideTheRows) {
  selectPrefix();
  load(someFormulae);
  std::vector<QString> opened;
  QObject::connect(
      &model_, &ViewModel::packageChosen, &model_,
      [&](const InstalledPackageSummary& chosen) { opened.push_back(chosen.id.toString()); });
  for (const int row : {-1, 0, 2}) {
    model_.open(row);
  }
  EXPECT_THAT(opened, ElementsAre(u"formula:wget"_s));
}

TEST_F(InstalledPackagesViewModelTest, AnnouncesEachChangeOnce) {
  selectPrefix();
  give(State::Loading{});
  inputs_.scannedPackages = 1;
  inputs_.totalPackages = 2;
  model_.setInputs(inputs_);
  load(someFormulae);
  model_.search()->setSearchText(u"nothing is called so"_s);
  give(State::Failed{u"No."_s});
  load({});
  EXPECT_THAT(
      announced_,
      ElementsAre(u"Scanning selected Homebrew prefix..."_s, u"Showing 2 of 2 packages"_s,
                  u"No Installed Packages Match"_s, u"Could Not Scan Installed Packages. No."_s,
                  u"No Installed Packages Found"_s));
}

TEST_F(InstalledPackagesViewModelTest, NamesThePrefixThatCannotBeReadAndWhy) {
  LocalInventoryInputs inputs;
  inputs.state.value = InstalledPackagesState::AccessNeeded{};
  model_.setInputs(inputs);
  EXPECT_EQ(model_.accessProblemText(), QString());
  inputs.selectedPrefixPath = u"/opt/homebrew"_s;
  inputs.accessProblem = u"There is no such folder at the moment."_s;
  model_.setInputs(inputs);
  EXPECT_EQ(model_.title(), u"Local Access Needed"_s);
  EXPECT_EQ(model_.accessProblemText(),
            u"Selected prefix: /opt/homebrew. There is no such folder at the moment."_s);
  inputs.state.value = InstalledPackagesState::Idle{};
  model_.setInputs(inputs);
  EXPECT_EQ(model_.accessProblemText(), QString());
}

TEST_F(InstalledPackagesViewModelTest, NeedsAPrefixBeforeAScan) {
  model_.setInputs({});
  EXPECT_TRUE(model_.needsPrefix());
  LocalInventoryInputs inputs;
  inputs.selectedPrefixPath = u"/opt/homebrew"_s;
  model_.setInputs(inputs);
  EXPECT_FALSE(model_.needsPrefix());
}

}  // namespace
}  // namespace quillmere

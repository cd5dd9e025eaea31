#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <utility>

#include "platform/DateTexts.h"
#include "screens/browse/FormulaCatalogViewModel.h"
#include "support/BackgroundThreadBlocker.h"
#include "support/GeneratedCatalog.h"
#include "support/Printers.h"

// What the Browse screen says in each of its states.

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

using testing::ElementsAre;
using ViewModel = FormulaCatalogViewModel;

const QDateTime now = QDateTime::fromString(u"2026-11-20T12:00:00Z"_s, Qt::ISODate);

PackageCatalogPtr catalogOf(int formulae, int casks) {
  return decodeCatalog({.formulae = generatedFormulaDocument(formulae),
                        .casks = generatedCaskDocument(casks)})
      .value();
}

PackageCatalogPtr smallCatalog() {
  return decodeCatalog({.formulae = R"([{"name": "curl", "desc": "Café finder", "versions": {}},
                              {"name": "wget", "versions": {}}])",
                        .casks = R"([{"token": "firefox", "name": ["Firefox"]}])"})
      .value();
}

class FormulaCatalogStateTest : public testing::Test {
 protected:
  FormulaCatalogStateTest() {
    QObject::connect(&model_, &ViewModel::announced, &model_,
                     [this](const QString& text) { announced_.push_back(text); });
  }

  void load(PackageCatalogPtr catalog) {
    inputs_.state.value = PackageCatalogState::Loaded{std::move(catalog)};
    model_.setInputs(inputs_);
  }

  void fail() {
    inputs_.state.value = PackageCatalogState::Failed{u"The line is dead."_s};
    model_.setInputs(inputs_);
  }

  void fetch(qint64 received, std::optional<qint64> expected) {
    inputs_.state.value = PackageCatalogState::Loading{u"Fetching Homebrew cask metadata..."_s};
    inputs_.receivedBytes = received;
    inputs_.expectedBytes = expected;
    model_.setInputs(inputs_);
  }

  void search(const QString& text) {
    model_.search()->setSearchText(text);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !model_.isFiltering(); }));
  }

  void narrow(PackageCatalogFilter filter) {
    model_.search()->setPackageFilter(filter);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !model_.isFiltering(); }));
  }

  void expectMessage(ViewModel::State state, const QString& symbolName, const QString& title,
                     const QString& text) const {
    EXPECT_EQ(model_.state(), state);
    EXPECT_EQ(model_.symbolName(), symbolName);
    EXPECT_EQ(model_.title(), title);
    EXPECT_EQ(model_.text(), text);
  }

  CatalogInputs inputs_;
  ViewModel model_{[] { return now; }};
  std::vector<QString> announced_;
};

TEST_F(FormulaCatalogStateTest, AsksForACatalogWhereNoneIsLoaded) {
  expectMessage(ViewModel::NotLoaded, u"magnifyingglass"_s, u"No Packages Found"_s,
                u"Fetch formulae or casks to populate Browse."_s);
}

TEST_F(FormulaCatalogStateTest, AsksForACatalogWhereTheOneThatIsLoadedIsEmpty) {
  load(catalogOf(0, 0));
  expectMessage(ViewModel::NotLoaded, u"magnifyingglass"_s, u"No Packages Found"_s,
                u"Fetch formulae or casks to populate Browse."_s);
}

TEST_F(FormulaCatalogStateTest, SaysWhatIsFetched) {
  fetch(0, {});
  expectMessage(ViewModel::Loading, u"magnifyingglass"_s, u"Fetching Homebrew cask metadata..."_s,
                QString());
}

TEST_F(FormulaCatalogStateTest, SaysWhyACatalogCouldNotBeLoaded) {
  fail();
  expectMessage(ViewModel::Failed, u"wifi.exclamationmark"_s, u"Could Not Load Catalog"_s,
                u"The line is dead."_s);
}

TEST_F(FormulaCatalogStateTest, ShowsNoRowsOfTheCatalogBeforeAFailure) {
  load(smallCatalog());
  fetch(1, 2);
  EXPECT_EQ(model_.packages()->rowCount(), 0);
  fail();
  EXPECT_EQ(model_.state(), ViewModel::Failed);
  EXPECT_EQ(model_.packages()->rowCount(), 0);
  load(smallCatalog());
  EXPECT_EQ(model_.state(), ViewModel::Listed);
  EXPECT_EQ(model_.packages()->rowCount(), 3);
}

TEST_F(FormulaCatalogStateTest, SaysThatItSearches) {
  load(smallCatalog());
  const test::BackgroundThreadBlocker held;
  model_.search()->setSearchText(u"wget"_s);
  ASSERT_TRUE(QTest::qWaitFor([this] { return model_.state() == ViewModel::Filtering; }));
  EXPECT_EQ(model_.packages()->rowCount(), 0);
  expectMessage(ViewModel::Filtering, u"magnifyingglass"_s, u"Searching packages..."_s, QString());
  EXPECT_EQ(model_.longSummary(), u"Showing first 0 matches from 3 packages"_s);
}

TEST_F(FormulaCatalogStateTest, KeepsTheListUntilTheWaitIsFelt) {
  load(smallCatalog());
  std::vector<ViewModel::State> states;
  QObject::connect(&model_, &ViewModel::stateChanged, &model_,
                   [&] { states.push_back(model_.state()); });
  const QString before = model_.longSummary();
  {
    const test::BackgroundThreadBlocker held;
    model_.search()->setSearchText(u"wget"_s);
    EXPECT_TRUE(model_.isFiltering());
    EXPECT_EQ(model_.state(), ViewModel::Listed);
    EXPECT_EQ(model_.packages()->rowCount(), 3);
    EXPECT_EQ(model_.longSummary(), before);
    EXPECT_THAT(states, testing::IsEmpty());
  }
  ASSERT_TRUE(QTest::qWaitFor([this] { return !model_.isFiltering(); }));
  EXPECT_EQ(model_.state(), ViewModel::Listed);
  EXPECT_NE(model_.longSummary(), before);
}

TEST_F(FormulaCatalogStateTest, SearchesANewCatalogWithoutTheRowsOfTheOldOne) {
  load(smallCatalog());
  search(u"wget"_s);
  const test::BackgroundThreadBlocker held;
  load(smallCatalog());
  EXPECT_EQ(model_.state(), ViewModel::Filtering);
  EXPECT_EQ(model_.packages()->rowCount(), 0);
}

TEST_F(FormulaCatalogStateTest, SaysThatNothingMatchesAndBeginsAnew) {
  load(smallCatalog());
  search(u"nothing is called so"_s);
  expectMessage(ViewModel::NoMatch, u"magnifyingglass"_s, u"No Packages Found"_s,
                u"Try a different search term or package type filter."_s);
  model_.search()->clear();
  EXPECT_EQ(model_.search()->searchText(), QString());
  EXPECT_EQ(model_.state(), ViewModel::Listed);
}

// --- Progress ---

struct ProgressCase {
  qint64 received;
  std::optional<qint64> expected;
  QString text;
  double fraction;
};

class FetchProgressText : public FormulaCatalogStateTest,
                          public testing::WithParamInterface<ProgressCase> {};

TEST_P(FetchProgressText, SaysHowFarTheFetchHasCome) {
  fetch(GetParam().received, GetParam().expected);
  EXPECT_EQ(model_.progressText(), GetParam().text);
  EXPECT_DOUBLE_EQ(model_.progressFraction(), GetParam().fraction);
}

INSTANTIATE_TEST_SUITE_P(
    Fetches, FetchProgressText,
    testing::Values(ProgressCase{0, {}, QString(), -1}, ProgressCase{0, 30'000'000, QString(), 0},
                    ProgressCase{4'600'000, {}, u"4.6 MB"_s, -1},
                    ProgressCase{4'600'000, 0, u"4.6 MB"_s, -1},
                    ProgressCase{7'500'000, 30'000'000, u"7.5 MB of 30 MB (25%)"_s, 0.25},
                    ProgressCase{29'999'999, 30'000'000, u"30 MB of 30 MB (99%)"_s,
                                 29'999'999.0 / 30'000'000},
                    ProgressCase{40'000'000, 30'000'000, u"40 MB of 30 MB (100%)"_s, 1}));

TEST_F(FormulaCatalogStateTest, TellsOfNoProgressWhenNothingIsFetched) {
  inputs_.receivedBytes = 12;
  inputs_.expectedBytes = 24;
  load(smallCatalog());
  EXPECT_EQ(model_.progressText(), QString());
  EXPECT_LT(model_.progressFraction(), 0);
}

// --- Counts ---

TEST_F(FormulaCatalogStateTest, ShowsTheFirst250OfAnUnfilteredCatalog) {
  load(catalogOf(4000, 3000));
  EXPECT_EQ(model_.packages()->rowCount(), 250);
  EXPECT_EQ(model_.longSummary(), u"Showing 250 of 7000 packages"_s);
  EXPECT_EQ(model_.shortSummary(), u"Showing 250 of 7000"_s);
}

TEST_F(FormulaCatalogStateTest, DoesNotCountWhatABroadSearchMatches) {
  load(catalogOf(4000, 3000));
  search(u"a"_s);
  EXPECT_EQ(model_.packages()->rowCount(), 250);
  EXPECT_EQ(model_.longSummary(), u"Showing first 250 matches from 7000 packages"_s);
  EXPECT_EQ(model_.shortSummary(), u"Showing first 250 matches"_s);
}

TEST_F(FormulaCatalogStateTest, CountsTheMatchesOfANarrowSearch) {
  load(smallCatalog());
  search(u"wget"_s);
  EXPECT_EQ(model_.longSummary(), u"Showing 1 of 1 matches from 3 packages"_s);
  EXPECT_EQ(model_.shortSummary(), u"Showing 1 of 1 matches"_s);
}

TEST_F(FormulaCatalogStateTest, CountsAllOfOneType) {
  load(catalogOf(400, 300));
  narrow(PackageCatalogFilter::casks);
  EXPECT_EQ(model_.packages()->rowCount(), 250);
  EXPECT_EQ(model_.longSummary(), u"Showing 250 of 300 matches from 700 packages"_s);
}

TEST_F(FormulaCatalogStateTest, FindsAnAccentThatWasNotTypedAndAKindInCapitals) {
  load(smallCatalog());
  search(u"cafe"_s);
  EXPECT_EQ(model_.packages()->rowCount(), 1);
  search(u"CASK"_s);
  EXPECT_EQ(model_.packages()->index(0).data(PackageListModel::NameRole).toString(), u"Firefox"_s);
}

TEST_F(FormulaCatalogStateTest, TakesSpacesForNoSearch) {
  load(smallCatalog());
  search(u" \n\t "_s);
  EXPECT_EQ(model_.longSummary(), u"Showing 3 of 3 packages"_s);
}

// --- Freshness ---

TEST_F(FormulaCatalogStateTest, SaysHowFreshTheCatalogIsAndThatItNeedsNoPrefix) {
  EXPECT_EQ(model_.freshnessText(),
            u"Catalog unavailable. Refresh catalog metadata when ready. Browse does not require a "
            "selected Homebrew prefix."_s);
  inputs_.lastRefreshDate = now.addDays(-8);
  load(smallCatalog());
  EXPECT_EQ(model_.freshnessText(),
            u"Catalog stale: %1. Refresh catalog metadata for current guidance. Browse does not "
            "require a selected Homebrew prefix."_s.arg(dateText(now.addDays(-8))));
}

TEST_F(FormulaCatalogStateTest, SpeaksTheCountsAndTheFreshnessOfTheList) {
  inputs_.lastRefreshDate = now.addDays(-1);
  load(smallCatalog());
  EXPECT_EQ(model_.accessibleSummary(),
            u"Showing 3 of 3 packages - Catalog fresh "_s + dateText(now.addDays(-1)));
}

// --- What is cached, wanted and said ---

TEST_F(FormulaCatalogStateTest, OffersWhatIsCached) {
  inputs_.hasCachedFormulae = true;
  model_.setInputs(inputs_);
  EXPECT_TRUE(model_.hasCachedFormulae());
  EXPECT_FALSE(model_.hasCachedCasks());
  EXPECT_FALSE(model_.hasCachedCatalog());
  inputs_.hasCachedCasks = true;
  model_.setInputs(inputs_);
  EXPECT_TRUE(model_.hasCachedCasks());
  EXPECT_TRUE(model_.hasCachedCatalog());
}

TEST_F(FormulaCatalogStateTest, AsksForEachScope) {
  std::vector<std::pair<char, CatalogScope>> wanted;
  QObject::connect(&model_, &ViewModel::fetchRequested, &model_,
                   [&](CatalogScope scope) { wanted.emplace_back('f', scope); });
  QObject::connect(&model_, &ViewModel::loadCachedRequested, &model_,
                   [&](CatalogScope scope) { wanted.emplace_back('c', scope); });
  model_.fetchAll();
  model_.fetchFormulae();
  model_.fetchCasks();
  model_.loadCachedAll();
  model_.loadCachedFormulae();
  model_.loadCachedCasks();
  EXPECT_THAT(
      wanted,
      ElementsAre(std::pair('f', CatalogScope::all), std::pair('f', CatalogScope::formulae),
                  std::pair('f', CatalogScope::casks), std::pair('c', CatalogScope::all),
                  std::pair('c', CatalogScope::formulae), std::pair('c', CatalogScope::casks)));
}

TEST_F(FormulaCatalogStateTest, OpensThePackageOfARowAndNothingBesideTheRows) {
  load(smallCatalog());
  std::vector<QString> opened;
  QObject::connect(
      &model_, &ViewModel::packageChosen, &model_,
      [&](const HomebrewPackageSummary& package) { opened.push_back(package.id.toString()); });
  for (const int row : {-1, 2, 3}) {
    model_.open(row);
  }
  EXPECT_THAT(opened, ElementsAre(u"cask:firefox"_s));
}

TEST_F(FormulaCatalogStateTest, AnnouncesEachChangeOnce) {
  fetch(1, 3);
  fetch(2, 3);
  fail();
  fetch(1, 3);
  load(smallCatalog());
  search(u"wget"_s);
  search(u"curl"_s);
  search(u"nothing is called so"_s);
  EXPECT_THAT(announced_,
              ElementsAre(u"Fetching Homebrew cask metadata..."_s,
                          u"Could Not Load Catalog. The line is dead."_s,
                          u"Fetching Homebrew cask metadata..."_s, u"Showing 3 of 3 packages"_s,
                          u"Showing 1 of 1 matches from 3 packages"_s,
                          u"Showing 1 of 1 matches from 3 packages"_s, u"No Packages Found"_s));
}

TEST_F(FormulaCatalogStateTest, OffersTheTypesInOrder) {
  EXPECT_THAT(model_.search()->filterTitles(), ElementsAre(u"All"_s, u"Formulae"_s, u"Casks"_s));
  EXPECT_EQ(model_.search()->filterIndex(), 0);
  model_.search()->setFilterIndex(2);
  EXPECT_EQ(model_.search()->packageFilter(), PackageCatalogFilter::casks);
  EXPECT_EQ(model_.search()->filterIndex(), 2);
}

TEST_F(FormulaCatalogStateTest, SaysWhyTheCacheIsShownAndTriesTheSameAgain) {
  std::optional<CatalogScope> asked;
  QObject::connect(&model_, &ViewModel::fetchRequested, &model_,
                   [&asked](CatalogScope scope) { asked = scope; });
  EXPECT_EQ(model_.fetchFailureText(), QString());
  inputs_.fetchFailure = u"Homebrew returned HTTP status 503."_s;
  inputs_.failedScope = CatalogScope::casks;
  model_.setInputs(inputs_);
  const QString text =
      u"The catalog could not be fetched. Homebrew returned HTTP status 503. The cached catalog is "
      "shown."_s;
  EXPECT_EQ(model_.fetchFailureText(), text);
  model_.setInputs(inputs_);
  EXPECT_EQ(std::ranges::count(announced_, text), 1) << "said once";
  model_.tryAgain();
  EXPECT_EQ(asked, CatalogScope::casks);
}

}  // namespace
}  // namespace quillmere

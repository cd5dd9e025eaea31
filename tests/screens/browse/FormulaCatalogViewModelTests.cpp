#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "screens/browse/FormulaCatalogViewModel.h"
#include "support/BackgroundThreadBlocker.h"
#include "support/Printers.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

PackageCatalogPtr catalogOf(const QByteArray& formulae, const QByteArray& casks = "[]") {
  return decodeCatalog({.formulae = formulae, .casks = casks}).value();
}

const QByteArray someFormulae = R"([{"name": "curl", "versions": {}},
                                    {"name": "wget", "versions": {}}])";
const QByteArray someCasks = R"([{"token": "wget-app"}])";

CatalogInputs inputsOf(PackageCatalogPtr catalog) {
  CatalogInputs inputs;
  if (catalog) {
    inputs.state.value = PackageCatalogState::Loaded{std::move(catalog)};
  }
  return inputs;
}

class FormulaCatalogViewModelTest : public testing::Test {
 protected:
  void waitForResults() {
    ASSERT_TRUE(QTest::qWaitFor([this] { return !model_.isFiltering(); }));
  }

  [[nodiscard]] std::vector<std::size_t> visible() const {
    return model_.filteredResults()->visiblePackages;
  }

  void setCatalog(PackageCatalogPtr catalog) { model_.setInputs(inputsOf(std::move(catalog))); }

  FormulaCatalogViewModel model_;
};

TEST_F(FormulaCatalogViewModelTest, ShowsNothingWithoutACatalog) {
  EXPECT_EQ(model_.filteredResults(), std::nullopt);
  model_.search()->setSearchText(u"wget"_s);
  EXPECT_EQ(model_.filteredResults(), std::nullopt);
  EXPECT_FALSE(model_.isFiltering());
}

TEST_F(FormulaCatalogViewModelTest, ShowsAnUnfilteredCatalogAtOnce) {
  setCatalog(catalogOf(someFormulae, someCasks));
  EXPECT_THAT(visible(), ElementsAre(0, 1, 2));
  EXPECT_FALSE(model_.isFiltering());
}

TEST_F(FormulaCatalogViewModelTest, ShowsNothingWhileItSearches) {
  setCatalog(catalogOf(someFormulae, someCasks));
  {
    const test::BackgroundThreadBlocker held;
    model_.search()->setSearchText(u" wget "_s);
    EXPECT_TRUE(model_.isFiltering());
    EXPECT_EQ(model_.filteredResults(),
              FilteredPackageResults::provisional(
                  FilterRequest::make(u"wget", PackageCatalogFilter::all, *model_.catalog())));
  }
  waitForResults();
  EXPECT_THAT(visible(), ElementsAre(1, 2));
  EXPECT_EQ(model_.filteredResults()->exactMatchCount, 2U);
}

TEST_F(FormulaCatalogViewModelTest, NarrowsToOneType) {
  setCatalog(catalogOf(someFormulae, someCasks));
  {
    const test::BackgroundThreadBlocker held;
    model_.search()->setPackageFilter(PackageCatalogFilter::casks);
    EXPECT_TRUE(model_.isFiltering());
  }
  waitForResults();
  EXPECT_THAT(visible(), ElementsAre(2));
  model_.search()->setPackageFilter(PackageCatalogFilter::all);
  EXPECT_THAT(visible(), ElementsAre(0, 1, 2));
}

TEST_F(FormulaCatalogViewModelTest, ShowsTheAnswerToTheLastQuestionOnly) {
  setCatalog(catalogOf(someFormulae, someCasks));
  // An answer may be there before the next question, but never after it.
  QObject::connect(&model_, &FormulaCatalogViewModel::resultsChanged, &model_, [&] {
    EXPECT_EQ(model_.filteredResults()->request.searchQuery, model_.search()->searchText());
  });
  {
    const test::BackgroundThreadBlocker held;
    for (const QString& text : {u"c"_s, u"cu"_s, u"w"_s, u"wge"_s}) {
      model_.search()->setSearchText(text);
    }
  }
  waitForResults();
  QTest::qWait(20);
  EXPECT_THAT(visible(), ElementsAre(1, 2));
}

TEST_F(FormulaCatalogViewModelTest, DoesNotSearchAgainForTheSameRequest) {
  setCatalog(catalogOf(someFormulae));
  model_.search()->setSearchText(u"wget"_s);
  waitForResults();
  const QSignalSpy results(&model_, &FormulaCatalogViewModel::resultsChanged);
  model_.search()->setSearchText(u"wget  "_s);
  EXPECT_TRUE(results.isEmpty());
}

TEST_F(FormulaCatalogViewModelTest, SearchesAgainInANewCatalog) {
  setCatalog(catalogOf(someFormulae));
  model_.search()->setSearchText(u"wget"_s);
  waitForResults();
  EXPECT_THAT(visible(), ElementsAre(1));
  setCatalog(catalogOf(R"([{"name": "wget", "versions": {}},
                                  {"name": "curl", "versions": {}}])"));
  waitForResults();
  EXPECT_THAT(visible(), ElementsAre(0));
  setCatalog(nullptr);
  EXPECT_EQ(model_.filteredResults(), std::nullopt);
}

TEST_F(FormulaCatalogViewModelTest, DropsTheAnswerOfACatalogThatIsGone) {
  setCatalog(catalogOf(someFormulae));
  {
    const test::BackgroundThreadBlocker held;
    model_.search()->setSearchText(u"wget"_s);
    setCatalog(nullptr);
  }
  EXPECT_FALSE(model_.isFiltering());
  QTest::qWait(20);
  EXPECT_EQ(model_.filteredResults(), std::nullopt);
}

TEST_F(FormulaCatalogViewModelTest, MayGoInTheMiddleOfASearch) {
  auto model = std::make_unique<FormulaCatalogViewModel>();
  model->setInputs(inputsOf(catalogOf(someFormulae)));
  {
    const test::BackgroundThreadBlocker held;
    model->search()->setSearchText(u"wget"_s);
    model.reset();
  }
  QTest::qWait(20);
}

}  // namespace
}  // namespace quillmere

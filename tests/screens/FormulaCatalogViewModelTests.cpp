#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "screens/FormulaCatalogViewModel.h"
#include "support/Printers.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

PackageCatalogSnapshot catalogOf(const QByteArray& formulae, const QByteArray& casks = "[]") {
  return decodeCatalog({.formulae = formulae, .casks = casks}).value();
}

const QByteArray someFormulae = R"([{"name": "curl", "versions": {}},
                                    {"name": "wget", "versions": {}}])";
const QByteArray someCasks = R"([{"token": "wget-app"}])";

class FormulaCatalogViewModelTest : public testing::Test {
 protected:
  void waitForResults() {
    ASSERT_TRUE(QTest::qWaitFor([this] { return !model_.isFiltering(); }));
  }

  [[nodiscard]] std::vector<std::size_t> visible() const {
    return model_.filteredResults()->visiblePackages;
  }

  FormulaCatalogViewModel model_;
};

TEST_F(FormulaCatalogViewModelTest, ShowsNothingWithoutACatalog) {
  EXPECT_EQ(model_.filteredResults(), std::nullopt);
  model_.setSearchText(u"wget"_s);
  EXPECT_EQ(model_.filteredResults(), std::nullopt);
  EXPECT_FALSE(model_.isFiltering());
}

TEST_F(FormulaCatalogViewModelTest, ShowsAnUnfilteredCatalogAtOnce) {
  model_.setCatalog(catalogOf(someFormulae, someCasks));
  EXPECT_THAT(visible(), ElementsAre(0, 1, 2));
  EXPECT_FALSE(model_.isFiltering());
}

TEST_F(FormulaCatalogViewModelTest, ShowsNothingWhileItSearches) {
  model_.setCatalog(catalogOf(someFormulae, someCasks));
  model_.setSearchText(u" wget "_s);
  EXPECT_TRUE(model_.isFiltering());
  EXPECT_EQ(model_.filteredResults(), FilteredPackageResults::provisional(FilterRequest::make(
                                          u"wget", PackageCatalogFilter::all, *model_.catalog())));
  waitForResults();
  EXPECT_THAT(visible(), ElementsAre(1, 2));
  EXPECT_EQ(model_.filteredResults()->exactMatchCount, 2U);
}

TEST_F(FormulaCatalogViewModelTest, NarrowsToOneType) {
  model_.setCatalog(catalogOf(someFormulae, someCasks));
  model_.setPackageFilter(PackageCatalogFilter::casks);
  EXPECT_TRUE(model_.isFiltering());
  waitForResults();
  EXPECT_THAT(visible(), ElementsAre(2));
  model_.setPackageFilter(PackageCatalogFilter::all);
  EXPECT_THAT(visible(), ElementsAre(0, 1, 2));
}

TEST_F(FormulaCatalogViewModelTest, ShowsTheAnswerToTheLastQuestionOnly) {
  model_.setCatalog(catalogOf(someFormulae, someCasks));
  // An answer may be there before the next question, but never after it.
  QObject::connect(&model_, &FormulaCatalogViewModel::resultsChanged, &model_, [&] {
    EXPECT_EQ(model_.filteredResults()->request.searchQuery, model_.searchText());
  });
  for (const QString& text : {u"c"_s, u"cu"_s, u"w"_s, u"wge"_s}) {
    model_.setSearchText(text);
  }
  waitForResults();
  QTest::qWait(20);
  EXPECT_THAT(visible(), ElementsAre(1, 2));
}

TEST_F(FormulaCatalogViewModelTest, DoesNotSearchAgainForTheSameRequest) {
  model_.setCatalog(catalogOf(someFormulae));
  model_.setSearchText(u"wget"_s);
  waitForResults();
  const QSignalSpy results(&model_, &FormulaCatalogViewModel::resultsChanged);
  model_.setSearchText(u"wget  "_s);
  EXPECT_TRUE(results.isEmpty());
}

TEST_F(FormulaCatalogViewModelTest, SearchesAgainInANewCatalog) {
  model_.setCatalog(catalogOf(someFormulae));
  model_.setSearchText(u"wget"_s);
  waitForResults();
  EXPECT_THAT(visible(), ElementsAre(1));
  model_.setCatalog(catalogOf(R"([{"name": "wget", "versions": {}},
                                  {"name": "curl", "versions": {}}])"));
  waitForResults();
  EXPECT_THAT(visible(), ElementsAre(0));
  model_.setCatalog(nullptr);
  EXPECT_EQ(model_.filteredResults(), std::nullopt);
}

TEST_F(FormulaCatalogViewModelTest, DropsTheAnswerOfACatalogThatIsGone) {
  model_.setCatalog(catalogOf(someFormulae));
  model_.setSearchText(u"wget"_s);
  model_.setCatalog(nullptr);
  EXPECT_FALSE(model_.isFiltering());
  QTest::qWait(20);
  EXPECT_EQ(model_.filteredResults(), std::nullopt);
}

TEST_F(FormulaCatalogViewModelTest, MayGoInTheMiddleOfASearch) {
  auto model = std::make_unique<FormulaCatalogViewModel>();
  model->setCatalog(catalogOf(someFormulae));
  model->setSearchText(u"wget"_s);
  model.reset();
  QTest::qWait(20);
}

}  // namespace
}  // namespace quillmere

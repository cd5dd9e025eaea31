#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "CatalogPrinters.h"
#include "Packages.h"
#include "catalog/PackageCatalogFilter.h"
#include "catalog/PackageCatalogState.h"

namespace quillmere {
namespace {

using test::cask;
using test::formula;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

TEST(PackageCatalog, NamesTheFormulaeThatDependOnOne) {
  const PackageCatalog catalog({formula("wget", {"openssl", "zlib"}), formula("zlib"),
                                formula("curl", {"zlib"}), formula("Bison", {"zlib"})});
  EXPECT_THAT(catalog.reverseDependencyNames(catalog.packages()[1]),
              Optional(ElementsAre("Bison", "curl", "wget")));
}

TEST(PackageCatalog, KnowsThatNothingDependsOnAFormula) {
  const PackageCatalog catalog({formula("wget", {"zlib"})});
  EXPECT_THAT(catalog.reverseDependencyNames(catalog.packages()[0]), Optional(IsEmpty()));
  EXPECT_THAT(catalog.reverseDependencyNames(formula("elsewhere")), Optional(IsEmpty()));
}

TEST(PackageCatalog, FindsAFormulaByItsName) {
  const PackageCatalog catalog({formula("wget"), formula("app"), cask("app"), cask("firefox")});
  ASSERT_NE(catalog.formula("app"), nullptr);
  EXPECT_EQ(*catalog.formula("app"), formula("app"));
  EXPECT_EQ(catalog.formula("firefox"), nullptr);
  EXPECT_EQ(catalog.formula("App"), nullptr);
}

TEST(PackageCatalog, KnowsNoDependantsOfACask) {
  HomebrewPackageSummary app = cask("app");
  app.detailItems.emplace_back("zlib");
  const PackageCatalog catalog({formula("wget", {"app"}), app, formula("zlib")});
  EXPECT_EQ(catalog.reverseDependencyNames(app), std::nullopt);
  EXPECT_THAT(catalog.reverseDependencyNames(formula("zlib")), Optional(IsEmpty()));
}

TEST(PackageCatalog, DoesNotNameAFormulaThatDependsOnItself) {
  const PackageCatalog catalog({formula("self", {"self"}), formula("other", {"self"})});
  EXPECT_THAT(catalog.reverseDependencyNames(formula("self")), Optional(ElementsAre("other")));
}

TEST(PackageCatalog, TakesNamesThatDifferInCaseForDifferentPackages) {
  const PackageCatalog catalog({formula("a", {"Zlib"}), formula("b", {"zlib"})});
  EXPECT_THAT(catalog.reverseDependencyNames(formula("zlib")), Optional(ElementsAre("b")));
}

TEST(PackageCatalog, NamesADependantOnceThatListsAFormulaTwice) {
  const PackageCatalog catalog({formula("a", {"zlib", "zlib"})});
  EXPECT_THAT(catalog.reverseDependencyNames(formula("zlib")), Optional(ElementsAre("a")));
}

TEST(PackageCatalog, OfBothDocumentsHasFormulaeBeforeCasks) {
  const PackageCatalogPtr catalog =
      decodeCatalog({.formulae = R"([{"name": "wget", "versions": {}, "dependencies": ["zlib"]},
                           {"name": "zlib", "versions": {}}])",
                     .casks = R"([{"token": "firefox"}, {"token": "zlib"}])"})
          .value();
  const PackageCatalog& both = *catalog;
  std::vector<SharedText> ids;
  for (const HomebrewPackageSummary& package : both.packages()) {
    ids.push_back(package.id);
  }
  EXPECT_THAT(ids, ElementsAre("formula:wget", "formula:zlib", "cask:firefox", "cask:zlib"));
  EXPECT_THAT(both.reverseDependencyNames(both.packages()[1]), Optional(ElementsAre("wget")));
  const auto search = [&both](QStringView text) {
    return filteredPackages(both, FilterRequest::make(text, PackageCatalogFilter::all, both))
        .visiblePackages;
  };
  EXPECT_THAT(search(u"zlib"), ElementsAre(0, 1, 3));
  EXPECT_THAT(search(u"fire"), ElementsAre(2));
  EXPECT_THAT(search(u"cask"), ElementsAre(2, 3));
}

TEST(PackageCatalog, OfOneDocumentHasItsPackagesAlone) {
  const auto formulae = decodeCatalog({.formulae = R"([{"name": "wget", "versions": {}}])"});
  EXPECT_EQ(formulae.value()->packages().front().id, "formula:wget");
  const auto casks = decodeCatalog({.casks = R"([{"token": "firefox"}])"});
  EXPECT_EQ(casks.value()->packages().front().id, "cask:firefox");
  EXPECT_THAT(decodeCatalog({}).value()->packages(), IsEmpty());
}

TEST(PackageCatalog, PassesOnWhatIsWrongWithADocument) {
  using Document = CatalogDecodingError::Document;
  const auto faultyDocument = [](const QByteArray& formulae, const QByteArray& casks) {
    return decodeCatalog({.formulae = formulae, .casks = casks}).error().document;
  };
  EXPECT_EQ(faultyDocument("[{}]", "[]"), Document::formulae);
  EXPECT_EQ(faultyDocument("[]", "[{}]"), Document::casks);
  EXPECT_EQ(faultyDocument("[{}]", "<html>"), Document::formulae);
  EXPECT_EQ(decodeCatalog({.formulae = "[{}]"}).error().document, Document::formulae);
  EXPECT_EQ(decodeCatalog({.casks = "<html>"}).error().document, Document::casks);
}

TEST(PackageCatalogState, IsComparedByWhatItShows) {
  using State = PackageCatalogState;
  const auto loaded = [](std::string_view name) {
    return State{State::Loaded{std::make_shared<const PackageCatalog>(
        std::vector<HomebrewPackageSummary>{formula(name)})}};
  };
  EXPECT_EQ(State(), State{State::Idle{}});
  EXPECT_EQ(loaded("a"), loaded("a"));
  EXPECT_NE(loaded("a"), loaded("b"));
  EXPECT_NE(State{State::Loading{QStringLiteral("a")}}, State{State::Failed{QStringLiteral("a")}});
}

TEST(PackageCatalogState, HasACatalogOnlyWhenItIsLoaded) {
  using State = PackageCatalogState;
  const auto catalog = std::make_shared<const PackageCatalog>();
  EXPECT_EQ((State{State::Loaded{catalog}}).catalog(), catalog);
  EXPECT_EQ(State().catalog(), nullptr);
  EXPECT_EQ((State{State::Failed{QStringLiteral("a")}}).catalog(), nullptr);
}

}  // namespace
}  // namespace quillmere

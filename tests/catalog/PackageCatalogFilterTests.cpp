#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "CatalogPrinters.h"
#include "Packages.h"
#include "catalog/PackageCatalogFilter.h"
#include "platform/TextMatching.h"
#include "support/Printers.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

using test::cask;
using test::formula;
using test::manyPackages;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using enum PackageCatalogFilter;

FilteredPackageResults filtered(const PackageCatalog& catalog, QStringView text,
                                PackageCatalogFilter filter = all) {
  return filteredPackages(catalog, FilterRequest::make(text, filter, catalog));
}

/// Whether a search for `text` finds the package.
bool finds(const HomebrewPackageSummary& package, QStringView text) {
  return filtered(PackageCatalog({package}), text).exactMatchCount == 1;
}

TEST(PackageCatalogFilter, HasItsTitlesAsRawValues) {
  EXPECT_EQ(rawValue(all), "All"_L1);
  EXPECT_EQ(rawValue(formulae), "Formulae"_L1);
  EXPECT_EQ(rawValue(casks), "Casks"_L1);
  EXPECT_EQ(fromRawValue<PackageCatalogFilter>(u"Casks"), casks);
}

TEST(FilterRequest, IsTheQueryTheTypeAndTheEndsOfTheCatalog) {
  const PackageCatalog catalog(manyPackages(2, 1));
  const FilterRequest request = FilterRequest::make(u" \t wget\n", casks, catalog);
  EXPECT_EQ(request.searchQuery, u"wget"_s);
  EXPECT_EQ(request.packageFilter, casks);
  EXPECT_EQ(request.packageCount, 3U);
  EXPECT_EQ(viewOf(request.firstPackageID), "formula:formula-0");
  EXPECT_EQ(viewOf(request.lastPackageID), "cask:cask-0");
  EXPECT_EQ(request, FilterRequest::make(u"wget", casks, catalog));
}

TEST(FilterRequest, HasNoEndsInAnEmptyCatalog) {
  const FilterRequest request = FilterRequest::make(u"", all, PackageCatalog());
  EXPECT_EQ(request.packageCount, 0U);
  EXPECT_EQ(request.firstPackageID, std::nullopt);
  EXPECT_EQ(request.lastPackageID, std::nullopt);
}

TEST(FilterRequest, ChangesWithTheCatalog) {
  const FilterRequest request = FilterRequest::make(u"a", all, PackageCatalog(manyPackages(2, 1)));
  EXPECT_NE(request, FilterRequest::make(u"a", all, PackageCatalog(manyPackages(3, 0))));
  EXPECT_NE(request, FilterRequest::make(u"a", all, PackageCatalog(manyPackages(3, 1))));
  EXPECT_NE(request, FilterRequest::make(u"b", all, PackageCatalog(manyPackages(2, 1))));
  EXPECT_NE(request, FilterRequest::make(u"a", formulae, PackageCatalog(manyPackages(2, 1))));
}

TEST(FilteredPackages, AreTheFirst250OfAnUnfilteredCatalog) {
  const auto results = filtered(PackageCatalog(manyPackages(5'000, 2'000)), u"");
  ASSERT_THAT(results.visiblePackages, SizeIs(250));
  EXPECT_EQ(results.visiblePackages.front(), 0U);
  EXPECT_EQ(results.visiblePackages.back(), 249U);
  EXPECT_EQ(results.exactMatchCount, 7'000U);
  EXPECT_EQ(results.totalCount, 7'000U);
  EXPECT_EQ(results.longSummary(), u"Showing 250 of 7000 packages"_s);
  EXPECT_EQ(results.shortSummary(), u"Showing 250 of 7000"_s);
}

TEST(FilteredPackages, AreAllOfASmallCatalog) {
  EXPECT_THAT(filtered(PackageCatalog(manyPackages(2, 1)), u"").visiblePackages,
              ElementsAre(0, 1, 2));
  EXPECT_THAT(filtered(PackageCatalog(), u"").visiblePackages, IsEmpty());
}

TEST(FilteredPackages, StopAtTheFirstMatchBeyond250) {
  const auto results = filtered(PackageCatalog(manyPackages(5'000, 2'000)), u"f");
  EXPECT_THAT(results.visiblePackages, SizeIs(250));
  EXPECT_EQ(results.exactMatchCount, std::nullopt);
  EXPECT_EQ(results.totalCount, 7'000U);
  EXPECT_EQ(results.longSummary(), u"Showing first 250 matches from 7000 packages"_s);
  EXPECT_EQ(results.shortSummary(), u"Showing first 250 matches"_s);
}

TEST(FilteredPackages, AreCountedWhereExactly250Match) {
  const auto results = filtered(PackageCatalog(manyPackages(250, 1)), u"formula");
  EXPECT_THAT(results.visiblePackages, SizeIs(250));
  EXPECT_EQ(results.exactMatchCount, 250U);
}

TEST(FilteredPackages, AreAllShownWhereFewMatch) {
  const auto results = filtered(PackageCatalog(manyPackages(120, 300)), u"formula-11");
  EXPECT_THAT(results.visiblePackages,
              ElementsAre(11, 110, 111, 112, 113, 114, 115, 116, 117, 118, 119));
  EXPECT_EQ(results.longSummary(), u"Showing 11 of 11 matches from 420 packages"_s);
  EXPECT_EQ(results.shortSummary(), u"Showing 11 of 11 matches"_s);
}

TEST(FilteredPackages, MayBeNone) {
  const auto results = filtered(PackageCatalog(manyPackages(3, 3)), u"nothing");
  EXPECT_THAT(results.visiblePackages, IsEmpty());
  EXPECT_EQ(results.exactMatchCount, 0U);
  EXPECT_EQ(results.longSummary(), u"Showing 0 of 0 matches from 6 packages"_s);
}

TEST(FilteredPackages, OfOneTypeAreAllCounted) {
  const PackageCatalog catalog(manyPackages(300, 400));
  const auto results = filtered(catalog, u"", casks);
  ASSERT_THAT(results.visiblePackages, SizeIs(250));
  EXPECT_EQ(results.visiblePackages.front(), 300U);
  EXPECT_EQ(results.exactMatchCount, 400U);
  EXPECT_EQ(results.longSummary(), u"Showing 250 of 400 matches from 700 packages"_s);
  EXPECT_EQ(filtered(catalog, u"", formulae).exactMatchCount, 300U);
}

TEST(FilteredPackages, KeepToTheirTypeInASearch) {
  const PackageCatalog catalog({formula("wget"), cask("wget-app"), formula("wgetpaste")});
  EXPECT_THAT(filtered(catalog, u"wget").visiblePackages, ElementsAre(0, 1, 2));
  EXPECT_THAT(filtered(catalog, u"wget", formulae).visiblePackages, ElementsAre(0, 2));
  EXPECT_THAT(filtered(catalog, u"wget", casks).visiblePackages, ElementsAre(1));
}

TEST(FilteredPackages, AreNotNarrowedByAQueryOfSpaces) {
  const auto results = filtered(PackageCatalog(manyPackages(300, 0)), u" \t ");
  EXPECT_EQ(results.exactMatchCount, 300U);
  EXPECT_TRUE(results.request.isUnfiltered());
}

TEST(FilteredPackages, AreFoundByEachOfTheSearchedFields) {
  HomebrewPackageSummary package = formula("the-name", {"the-first", "the-second"});
  package.description = SharedText("the-description");
  package.version = SharedText("the-version");
  package.tap = SharedText("the-tap");
  for (const QStringView text :
       {u"the-name", u"the-description", u"the-version", u"the-tap", u"the-first", u"the-second"}) {
    EXPECT_TRUE(finds(package, text)) << text.toString().toStdString();
    EXPECT_TRUE(finds(package, text.chopped(1))) << text.toString().toStdString();
  }
}

TEST(FilteredPackages, AreNotFoundByWhatIsNotSearched) {
  HomebrewPackageSummary package = formula("wget");
  package.alternateVersion = SharedText("HEAD");
  package.license = SharedText("GPL");
  package.homepage = UrlText::fromText(SharedText("https://www.gnu.org/"));
  EXPECT_FALSE(finds(package, u"HEAD"));
  EXPECT_FALSE(finds(package, u"GPL"));
  EXPECT_FALSE(finds(package, u"gnu.org"));
  EXPECT_FALSE(finds(package, u"formula:"));
}

TEST(FilteredPackages, AreNotFoundAcrossTwoFields) {
  HomebrewPackageSummary package = formula("ab", {"cd"});
  package.description = SharedText("ef");
  EXPECT_FALSE(finds(package, u"abef"));
  EXPECT_FALSE(finds(package, u"b\nef"));
  const PackageCatalog catalog({formula("ab", {"cd"}), formula("ef")});
  EXPECT_EQ(filtered(catalog, u"cdef").exactMatchCount, 0U);
}

TEST(FilteredPackages, AreFoundByTheWordForTheirKind) {
  const PackageCatalog catalog({formula("a"), cask("b"), formula("c")});
  EXPECT_THAT(filtered(catalog, u"FORMULA").visiblePackages, ElementsAre(0, 2));
  EXPECT_THAT(filtered(catalog, u"CASK").visiblePackages, ElementsAre(1));
}

TEST(FilteredPackages, AreFoundWhateverTheCaseAndTheMarks) {
  HomebrewPackageSummary package = formula("wget");
  package.description = SharedText("D\u00e9j\u00e0 vu \u00c5ngstr\u00f6m");
  EXPECT_TRUE(finds(package, u"deja VU"));
  EXPECT_TRUE(finds(package, u"angstrom"));
  EXPECT_TRUE(finds(package, u"wg\u00e9t"));
  EXPECT_TRUE(finds(package, u"WGET"));
}

TEST(FilteredPackages, AreTheSameAsThoseOfAWalkThroughTheFields) {
  std::vector<HomebrewPackageSummary> packages;
  for (int i = 0; i < 600; ++i) {
    const std::string number = std::to_string(i);
    auto package = i % 3 == 0 ? cask("x" + number) : formula("y" + number, {"z" + number, "zlib"});
    if (i % 5 != 0) {
      package.description = SharedText("d" + std::to_string(i * 7));
    }
    if (i % 7 != 0) {
      package.version = SharedText(std::to_string(i % 11) + "." + number);
    }
    packages.push_back(std::move(package));
  }
  const auto contains = [](const SharedText& text, const std::string& query) {
    return containsSearchable(searchableForm(text.view()), query);
  };
  const auto walk = [&](const HomebrewPackageSummary& package, const std::string& query) {
    return contains(package.name, query) ||
           (package.description && contains(*package.description, query)) ||
           (package.version && contains(*package.version, query)) ||
           (package.tap && contains(*package.tap, query)) ||
           contains(SharedText(std::string_view(displayLabel(package.kind))), query) ||
           std::ranges::any_of(package.detailItems,
                               [&](const SharedText& item) { return contains(item, query); });
  };
  const PackageCatalog catalog(packages);
  for (const QStringView text : {u"1", u"7.", u"x3", u"zl", u"d42", u"5.5", u"as", u"59", u"q"}) {
    std::vector<std::size_t> expected;
    for (std::size_t i = 0; i < packages.size(); ++i) {
      if (walk(packages[i], searchableForm(text))) {
        expected.push_back(i);
      }
    }
    const auto results = filtered(catalog, text);
    const bool isCut = expected.size() > FilteredPackageResults::maximumVisible;
    EXPECT_EQ(results.exactMatchCount, isCut ? std::nullopt : std::optional(expected.size()))
        << text.toString().toStdString();
    expected.resize(std::min(expected.size(), FilteredPackageResults::maximumVisible));
    EXPECT_EQ(results.visiblePackages, expected) << text.toString().toStdString();
  }
}

TEST(FilteredPackageResults, AreProvisionallyNone) {
  const PackageCatalog catalog(manyPackages(3, 3));
  const FilterRequest request = FilterRequest::make(u"a", all, catalog);
  const auto results = FilteredPackageResults::provisional(request);
  EXPECT_EQ(results.request, request);
  EXPECT_THAT(results.visiblePackages, IsEmpty());
  EXPECT_EQ(results.exactMatchCount, std::nullopt);
  EXPECT_EQ(results.totalCount, 6U);
}

}  // namespace
}  // namespace quillmere

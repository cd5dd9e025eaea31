#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "screens/package/PackageDetailInputs.h"
#include "screens/shared/DemoInventory.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

using testing::ElementsAre;
using testing::Optional;
using Origin = PackageDetailOrigin;

const QDateTime refreshed(QDate(2026, 11, 20), QTime(12, 0), Qt::UTC);
const QDateTime scanned(QDate(2026, 11, 21), QTime(12, 0), Qt::UTC);

SharedText text(const char* from) {
  return SharedText(std::string_view(from));
}

HomebrewPackageSummary row(const char* id, const char* name,
                           std::vector<SharedText> dependencies = {}) {
  HomebrewPackageSummary package;
  package.id = text(id);
  package.kind = std::string_view(id).starts_with("cask:") ? HomebrewPackageSummary::Kind::cask
                                                           : HomebrewPackageSummary::Kind::formula;
  package.name = text(name);
  package.detailItems = std::move(dependencies);
  return package;
}

class PackageDetailInputs : public testing::Test {
 protected:
  PackageDetailInputs() {
    context.inventory.catalogLastRefreshDate = refreshed;
    context.inventory.lastScanDate = scanned;
  }

  void loadCatalog() {
    context.catalog = std::make_shared<const PackageCatalog>(
        std::vector{zlib, row("formula:curl", "curl", {text("zlib")}), row("cask:app", "App")});
  }

  void loadInventory() {
    context.inventory.state = test::loaded({test::installed("formula:zlib", {"1.2", "1.3"})}).state;
  }

  [[nodiscard]] PackageDetailViewModel::Inputs inputs(const HomebrewPackageSummary& package,
                                                      Origin origin = Origin::catalog) const {
    return packageDetailInputs(package, origin, u"Browse"_s, context);
  }

  const HomebrewPackageSummary zlib = row("formula:zlib", "zlib");
  PackageDetailContext context;
};

TEST_F(PackageDetailInputs, JoinTheCatalogWithWhatIsInstalled) {
  loadCatalog();
  loadInventory();
  for (const Origin origin : {Origin::catalog, Origin::inventory}) {
    const auto page = inputs(zlib, origin);
    EXPECT_EQ(page.package, zlib);
    ASSERT_TRUE(page.installedPackage.has_value());
    EXPECT_EQ(page.installedPackage->installedVersion, text("1.3"));
    EXPECT_THAT(page.reverseDependencyNames, Optional(ElementsAre("curl")));
    EXPECT_TRUE(page.hasInventory);
    EXPECT_TRUE(page.hasCatalog);
    EXPECT_EQ(page.catalogLastRefreshDate, refreshed);
    EXPECT_EQ(page.localInventoryLastScanDate, scanned);
    EXPECT_EQ(page.sourceScreen, u"Browse"_s);
  }
}

TEST_F(PackageDetailInputs, PreferTheLoadedCatalogToThePackageAsItWasOpened) {
  loadCatalog();
  HomebrewPackageSummary old = zlib;
  old.version = text("1.2");
  EXPECT_EQ(inputs(old).package, zlib);
  EXPECT_EQ(inputs(row("formula:mine", "mine")).package.name, "mine");
}

TEST_F(PackageDetailInputs, SayThatAPackageIsNotInstalled) {
  loadInventory();
  const auto page = inputs(row("formula:wget", "wget"));
  EXPECT_EQ(page.installedPackage, std::nullopt);
  EXPECT_TRUE(page.hasInventory);
}

TEST_F(PackageDetailInputs, DateNoInventoryThatIsNotKnown) {
  loadCatalog();
  const auto page = inputs(zlib);
  EXPECT_EQ(page.installedPackage, std::nullopt);
  EXPECT_FALSE(page.hasInventory);
  EXPECT_EQ(page.localInventoryLastScanDate, std::nullopt);
}

TEST_F(PackageDetailInputs, SayWhyNothingIsKnownToDependOnAPackage) {
  loadInventory();
  const QString fromCatalog =
      u"Reverse dependency information is not available from the current data."_s;
  const QString formula =
      u"Reverse dependency data is unavailable from the installed-only scan. Load the formula "
      "catalog to derive what depends on this package."_s;
  const QString cask =
      u"Reverse dependency lookup is only available for formula catalog metadata. Cask dependency "
      "impact is not estimated."_s;
  const HomebrewPackageSummary app = row("cask:app", "App");
  EXPECT_EQ(inputs(zlib).reverseDependencyNames, std::nullopt);
  EXPECT_EQ(inputs(zlib).reverseDependencyUnavailableText, fromCatalog);
  EXPECT_EQ(inputs(zlib, Origin::inventory).reverseDependencyUnavailableText, formula);
  EXPECT_EQ(inputs(app, Origin::inventory).reverseDependencyUnavailableText, cask);
  loadCatalog();
  EXPECT_EQ(inputs(app, Origin::inventory).reverseDependencyNames, std::nullopt);
}

TEST_F(PackageDetailInputs, DoNotAskCasksWhatDependsOnAFormula) {
  context.catalog = std::make_shared<const PackageCatalog>(std::vector{row("cask:app", "App")});
  EXPECT_EQ(inputs(zlib, Origin::inventory).reverseDependencyNames, std::nullopt);
}

TEST_F(PackageDetailInputs, WarnOfWhatIsOutOfDate) {
  loadInventory();
  EXPECT_EQ(inputs(zlib).rescanWarning, QString());
  context.inventory.isCatalogNewer = true;
  EXPECT_EQ(inputs(zlib).rescanWarning, u"A newer catalog was fetched since this scan"_s);
  context.inventory.needsRescan = true;
  EXPECT_EQ(inputs(zlib).rescanWarning, u"A command ran since this scan"_s);
}

}  // namespace
}  // namespace quillmere

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "screens/package/PackageDetailInputs.h"
#include "screens/shared/DemoInventory.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

using testing::ElementsAre;
using testing::Optional;

const QDateTime refreshed(QDate(2026, 11, 20), QTime(12, 0), Qt::UTC);
const QDateTime scanned(QDate(2026, 11, 21), QTime(12, 0), Qt::UTC);

HomebrewPackageSummary row(const char* id, const char* name,
                           std::vector<SharedText> dependencies = {}) {
  HomebrewPackageSummary package;
  package.id = SharedText(std::string_view(id));
  package.name = SharedText(std::string_view(name));
  package.detailItems = std::move(dependencies);
  return package;
}

class PackageDetailInputs : public testing::Test {
 protected:
  const HomebrewPackageSummary zlib = row("formula:zlib", "zlib");
  const PackageDetailContext nothingLoaded{.catalog = nullptr,
                                           .inventory = {},
                                           .catalogLastRefreshDate = refreshed,
                                           .localInventoryLastScanDate = scanned,
                                           .sourceScreen = u"Browse"_s};

  [[nodiscard]] PackageDetailContext bothLoaded() const {
    PackageDetailContext context = nothingLoaded;
    context.catalog = std::make_shared<const PackageCatalog>(
        std::vector{zlib, row("formula:curl", "curl", {SharedText(std::string_view("zlib"))})});
    context.inventory = test::loaded({test::installed("formula:zlib", {"1.2", "1.3"})}).state;
    return context;
  }
};

TEST_F(PackageDetailInputs, JoinACatalogPackageWithWhatIsInstalled) {
  const auto inputs = catalogPackageInputs(zlib, bothLoaded());
  EXPECT_EQ(inputs.package, zlib);
  ASSERT_TRUE(inputs.installedPackage.has_value());
  EXPECT_EQ(inputs.installedPackage->installedVersion, SharedText(std::string_view("1.3")));
  EXPECT_THAT(inputs.reverseDependencyNames, Optional(ElementsAre("curl")));
  EXPECT_TRUE(inputs.hasInventory);
  EXPECT_TRUE(inputs.hasCatalog);
  EXPECT_EQ(inputs.catalogLastRefreshDate, refreshed);
  EXPECT_EQ(inputs.localInventoryLastScanDate, std::nullopt);
  EXPECT_EQ(inputs.sourceScreen, u"Browse"_s);
}

TEST_F(PackageDetailInputs, SayThatACatalogPackageIsNotInstalled) {
  const auto inputs = catalogPackageInputs(row("formula:wget", "wget"), bothLoaded());
  EXPECT_EQ(inputs.installedPackage, std::nullopt);
  EXPECT_TRUE(inputs.hasInventory);
}

TEST_F(PackageDetailInputs, SayWhatIsNotKnownOfACatalogPackage) {
  const auto inputs = catalogPackageInputs(zlib, nothingLoaded);
  EXPECT_EQ(inputs.installedPackage, std::nullopt);
  EXPECT_FALSE(inputs.hasInventory);
  EXPECT_FALSE(inputs.hasCatalog);
  EXPECT_EQ(inputs.reverseDependencyNames, std::nullopt);
  EXPECT_EQ(inputs.reverseDependencyUnavailableText,
            u"Reverse dependency information is not available from the current data."_s);
}

TEST_F(PackageDetailInputs, ShowOfAnInstalledPackageWhatTheCatalogKnew) {
  InstalledPackageSummary package = test::installed("formula:zlib", {"1.2"}, "1.3");
  package.description = SharedText(std::string_view("Compression"));
  package.tap = SharedText(std::string_view("homebrew/core"));
  const auto inputs = installedPackageInputs(package, nothingLoaded);
  EXPECT_EQ(inputs.installedPackage, package);
  EXPECT_EQ(inputs.package.id, package.id);
  EXPECT_EQ(inputs.package.version, package.latestKnownVersion);
  EXPECT_EQ(inputs.package.description, package.description);
  EXPECT_EQ(inputs.package.tap, package.tap);
  EXPECT_TRUE(inputs.hasInventory);
  EXPECT_FALSE(inputs.hasCatalog);
  EXPECT_EQ(inputs.localInventoryLastScanDate, scanned);
}

TEST_F(PackageDetailInputs, SayWhyNothingIsKnownToDependOnAnInstalledPackage) {
  const auto formula = installedPackageInputs(test::installed("formula:zlib", {"1"}), bothLoaded());
  EXPECT_EQ(formula.reverseDependencyNames, std::nullopt);
  EXPECT_EQ(formula.reverseDependencyUnavailableText,
            u"Reverse dependency data is unavailable from the installed-only scan. Load the "
            "formula catalog to derive what depends on this package."_s);
  const auto cask = installedPackageInputs(test::installed("cask:firefox", {"1"}), bothLoaded());
  EXPECT_EQ(cask.reverseDependencyUnavailableText,
            u"Reverse dependency lookup is only available for formula catalog metadata. Cask "
            "dependency impact is not estimated."_s);
}

}  // namespace
}  // namespace quillmere

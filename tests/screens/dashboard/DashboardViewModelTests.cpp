#include <QtTest/QSignalSpy>

#include <gtest/gtest.h>

#include "persistence/LocalPersistenceStore.h"
#include "platform/DateTexts.h"
#include "screens/dashboard/DashboardViewModel.h"
#include "support/Printers.h"
#include "support/TemporarySettings.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;

class DashboardScreen : public testing::Test {
 protected:
  const QDateTime start{QDate(2026, 11, 16), QTime(20, 42), Qt::LocalTime};
  QDateTime now = start;
  test::TemporarySettings settings;
  LocalPersistenceStore store{settings.open(), settings.cacheDirectoryURL()};
  DashboardViewModel dashboard{store, AppCapabilities::all(), [this] { return now; }};
};

TEST_F(DashboardScreen, OfAFreshInstallationKnowsNothingAndWorksWithoutAPrefix) {
  EXPECT_EQ(dashboard.catalogValue(), u"Not available"_s);
  EXPECT_EQ(dashboard.catalogDetail(),
            u"Catalog metadata unavailable. Refresh catalog metadata when ready."_s);
  EXPECT_FALSE(dashboard.hasCatalogAge());
  EXPECT_EQ(dashboard.inventoryValue(), u"Catalog-only mode"_s);
  EXPECT_EQ(dashboard.inventoryDetail(),
            u"No local prefix selected. This is supported; local-only sections will ask before "
            "accessing files."_s);
  EXPECT_FALSE(dashboard.hasInventoryAge());
}

TEST_F(DashboardScreen, OfAPrefixThatWasNotScannedAsksForAScan) {
  store.setSelectedHomebrewPrefixPath(u"/opt/homebrew"_s);
  EXPECT_EQ(dashboard.inventoryValue(), u"Not available"_s);
  EXPECT_EQ(dashboard.inventoryDetail(),
            u"Local inventory unavailable. Scan local inventory when ready."_s);
}

struct Age {
  const char* name;
  int hours;
  const char* value;
  const char* tint;
  int partsLeft;
};

void PrintTo(const Age& age, std::ostream* out) {
  *out << age.name;
}

class CatalogOnDashboard : public DashboardScreen, public testing::WithParamInterface<Age> {};

TEST_P(CatalogOnDashboard, IsJudgedByItsAge) {
  now = start.addSecs(3600LL * GetParam().hours);
  store.setCatalogLastRefreshDate(start);
  EXPECT_EQ(dashboard.catalogValue(), QLatin1StringView(GetParam().value));
  EXPECT_EQ(dashboard.catalogTint(), QLatin1StringView(GetParam().tint));
  EXPECT_TRUE(dashboard.hasCatalogAge());
  EXPECT_EQ(dashboard.catalogGaugePartsLeft(), GetParam().partsLeft);
}

INSTANTIATE_TEST_SUITE_P(Ages, CatalogOnDashboard,
                         testing::Values(Age{"ToCome", -1, "Fresh", "green", 7},
                                         Age{"New", 0, "Fresh", "green", 7},
                                         Age{"OneHour", 1, "Fresh", "green", 7},
                                         Age{"OneDay", 24, "Fresh", "green", 6},
                                         Age{"SixDays", 6 * 24 + 23, "Fresh", "green", 1},
                                         Age{"SevenDays", 7 * 24, "Stale", "orange", 0},
                                         Age{"AYear", 365 * 24, "Stale", "orange", 0}),
                         [](const auto& each) { return each.param.name; });

class InventoryOnDashboard : public DashboardScreen, public testing::WithParamInterface<Age> {};

TEST_P(InventoryOnDashboard, IsJudgedByItsAge) {
  now = start.addSecs(3600LL * GetParam().hours);
  store.setSelectedHomebrewPrefixPath(u"/opt/homebrew"_s);
  store.setLocalInventoryLastScanDate(start);
  EXPECT_EQ(dashboard.inventoryValue(), QLatin1StringView(GetParam().value));
  EXPECT_EQ(dashboard.inventoryTint(), QLatin1StringView(GetParam().tint));
  EXPECT_TRUE(dashboard.hasInventoryAge());
  EXPECT_EQ(dashboard.inventoryGaugePartsLeft(), GetParam().partsLeft);
}

INSTANTIATE_TEST_SUITE_P(Ages, InventoryOnDashboard,
                         testing::Values(Age{"New", 0, "Fresh", "green", 8},
                                         Age{"ThreeHours", 3, "Fresh", "green", 7},
                                         Age{"AlmostADay", 23, "Fresh", "green", 1},
                                         Age{"OneDay", 24, "Stale", "orange", 0}),
                         [](const auto& each) { return each.param.name; });

TEST_F(DashboardScreen, SaysWhenTheDataIsFrom) {
  store.setSelectedHomebrewPrefixPath(u"/opt/homebrew"_s);
  store.setCatalogLastRefreshDate(start);
  store.setLocalInventoryLastScanDate(start.addDays(-1));
  EXPECT_EQ(dashboard.catalogDetail(), u"Catalog metadata fresh: "_s + dateText(start) + u'.');
  EXPECT_EQ(dashboard.inventoryDetail(), u"Local inventory stale: "_s +
                                             dateText(start.addDays(-1)) +
                                             u". Scan local inventory for current guidance."_s);
}

TEST_F(DashboardScreen, FollowsTheStoreAtOnce) {
  const QSignalSpy changed(&dashboard, &DashboardViewModel::changed);
  store.setCatalogLastRefreshDate(start);
  EXPECT_EQ(changed.size(), 1);
  store.setSelectedHomebrewPrefixPath(u"/opt/homebrew"_s);
  EXPECT_EQ(changed.size(), 2);
  store.setLocalInventoryLastScanDate(start);
  EXPECT_EQ(changed.size(), 3);
  store.resetPrefix();
  EXPECT_EQ(dashboard.inventoryValue(), u"Catalog-only mode"_s);
  store.clearCacheMarkers();
  EXPECT_EQ(dashboard.catalogValue(), u"Not available"_s);
}

TEST_F(DashboardScreen, TurnsStaleWhileItIsShown) {
  constexpr int milliseconds = 40;
  now = start.addDays(7).addMSecs(-milliseconds);
  store.setCatalogLastRefreshDate(start);
  EXPECT_EQ(dashboard.catalogValue(), u"Fresh"_s);
  QSignalSpy changed(&dashboard, &DashboardViewModel::changed);
  now = start.addDays(7);
  EXPECT_TRUE(changed.wait());
  EXPECT_EQ(dashboard.catalogValue(), u"Stale"_s);
}

TEST_F(DashboardScreen, AsksAgainWhenItsTimerWasEarly) {
  constexpr int milliseconds = 40;
  now = start.addDays(1).addMSecs(-milliseconds);
  store.setSelectedHomebrewPrefixPath(u"/opt/homebrew"_s);
  store.setLocalInventoryLastScanDate(start);
  QSignalSpy changed(&dashboard, &DashboardViewModel::changed);
  EXPECT_FALSE(changed.wait(3 * milliseconds));
  EXPECT_EQ(dashboard.inventoryValue(), u"Fresh"_s);
  now = start.addDays(1);
  EXPECT_TRUE(changed.wait());
  EXPECT_EQ(dashboard.inventoryValue(), u"Stale"_s);
}

TEST_F(DashboardScreen, SaysWhatThisBuildMayDo) {
  EXPECT_EQ(dashboard.commandSafetyValue(), u"Execution enabled"_s);
  const DashboardViewModel previewOnly(store, AppCapabilities());
  EXPECT_EQ(previewOnly.commandSafetyValue(), u"Preview and copy only"_s);
}

TEST_F(DashboardScreen, AsksForTheInstalledPackages) {
  const QSignalSpy wanted(&dashboard, &DashboardViewModel::viewInstalledRequested);
  dashboard.viewInstalled();
  EXPECT_EQ(wanted.size(), 1);
}

}  // namespace
}  // namespace quillmere

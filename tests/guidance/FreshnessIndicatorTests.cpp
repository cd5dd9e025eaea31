#include <ctime>
#include <gtest/gtest.h>

#include "guidance/FreshnessIndicator.h"
#include "support/Printers.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using Missing = FreshnessIndicator::Missing;
using Fresh = FreshnessIndicator::Fresh;
using Stale = FreshnessIndicator::Stale;

const QDateTime monday(QDate(2026, 11, 16), QTime(20, 42, 59));
const QLocale america(QLocale::English, QLocale::UnitedStates);
const QString refresh = u"Refresh catalog metadata"_s;
const QString scan = u"Scan local inventory"_s;

TEST(FreshnessIndicator, IsMissingWithoutADate) {
  EXPECT_EQ(catalogFreshness(std::nullopt, monday), FreshnessIndicator{Missing{refresh}});
  EXPECT_EQ(inventoryFreshness(std::nullopt, monday), FreshnessIndicator{Missing{scan}});
}

TEST(FreshnessIndicator, OfTheCatalogIsStaleAfterSevenDays) {
  const FreshnessIndicator fresh{Fresh{monday}};
  const FreshnessIndicator stale{Stale{.date = monday, .action = refresh}};
  EXPECT_EQ(catalogFreshness(monday, monday), fresh);
  EXPECT_EQ(catalogFreshness(monday, monday.addDays(6).addSecs(23 * 3600)), fresh);
  EXPECT_EQ(catalogFreshness(monday, monday.addDays(7).addMSecs(-1)), fresh);
  EXPECT_EQ(catalogFreshness(monday, monday.addDays(7)), stale);
  EXPECT_EQ(catalogFreshness(monday, monday.addDays(700)), stale);
}

TEST(FreshnessIndicator, OfTheInventoryIsStaleAfterOneDay) {
  const FreshnessIndicator fresh{Fresh{monday}};
  const FreshnessIndicator stale{Stale{.date = monday, .action = scan}};
  EXPECT_EQ(inventoryFreshness(monday, monday.addDays(1).addMSecs(-1)), fresh);
  EXPECT_EQ(inventoryFreshness(monday, monday.addDays(1)), stale);
}

TEST(FreshnessIndicator, TurnsStaleAtItsStalePoint) {
  EXPECT_EQ(catalogStaleDate(monday), monday.addDays(7));
  EXPECT_EQ(inventoryStaleDate(monday), monday.addDays(1));
}

TEST(FreshnessIndicator, OfADateToComeIsFresh) {
  EXPECT_EQ(inventoryFreshness(monday, monday.addYears(-1)), FreshnessIndicator{Fresh{monday}});
}

TEST(FreshnessIndicator, IsStaleAtOnceWhereTheCalendarEnds) {
  const auto end = QDateTime::fromMSecsSinceEpoch(std::numeric_limits<qint64>::max(), Qt::UTC);
  EXPECT_EQ(inventoryFreshness(end, end), (FreshnessIndicator{Stale{.date = end, .action = scan}}));
  EXPECT_EQ(inventoryFreshness(end, monday), FreshnessIndicator{Fresh{end}});
}

/// A place where the clock goes one hour forward on 29 March 2026 at two and back on 25 October at
/// three.
class FreshnessInCentralEurope : public testing::Test {
 protected:
  void SetUp() override {
    qputenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3");
    tzset();
  }

  void TearDown() override {
    hadZone_ ? qputenv("TZ", zone_) : qunsetenv("TZ");
    tzset();
  }

  static QDateTime at(int month, int day, int hour, int minute = 0) {
    return {QDate(2026, month, day), QTime(hour, minute)};
  }

  static bool isFresh(const FreshnessIndicator& indicator) {
    return std::holds_alternative<Fresh>(indicator.value);
  }

 private:
  bool hadZone_ = qEnvironmentVariableIsSet("TZ");
  QByteArray zone_ = qgetenv("TZ");
};

TEST_F(FreshnessInCentralEurope, EndsAtTheSameTimeOfTheClockAfterAShortDay) {
  const QDateTime date = at(3, 28, 20);
  ASSERT_EQ(date.secsTo(at(3, 29, 20)), 23 * 3600);
  EXPECT_TRUE(isFresh(inventoryFreshness(date, at(3, 29, 19, 59))));
  EXPECT_FALSE(isFresh(inventoryFreshness(date, at(3, 29, 20))));
}

TEST_F(FreshnessInCentralEurope, EndsAtTheSameTimeOfTheClockAfterALongDay) {
  const QDateTime date = at(10, 24, 20);
  ASSERT_EQ(date.secsTo(at(10, 25, 20)), 25 * 3600);
  EXPECT_TRUE(isFresh(inventoryFreshness(date, date.addSecs(24 * 3600))));
  EXPECT_TRUE(isFresh(inventoryFreshness(date, at(10, 25, 19, 59))));
  EXPECT_FALSE(isFresh(inventoryFreshness(date, at(10, 25, 20))));
}

TEST_F(FreshnessInCentralEurope, EndsInTheHourThatTheClockLeavesOut) {
  const QDateTime date = at(3, 28, 2, 30);
  EXPECT_TRUE(isFresh(inventoryFreshness(date, at(3, 29, 1, 29))));
  EXPECT_FALSE(isFresh(inventoryFreshness(date, at(3, 29, 3, 30))));
}

TEST_F(FreshnessInCentralEurope, CountsLocalDaysOfADateInAnotherZone) {
  const QDateTime date = at(10, 24, 20).toUTC();
  EXPECT_TRUE(isFresh(catalogFreshness(date, at(10, 31, 19, 59).toUTC())));
  EXPECT_FALSE(isFresh(catalogFreshness(date, at(10, 31, 20).toUTC())));
}

TEST(FreshnessTexts, OfMissingData) {
  const FreshnessIndicator indicator = catalogFreshness(std::nullopt, monday);
  EXPECT_EQ(indicator.statusWord(), "Not available"_L1);
  EXPECT_EQ(indicator.shortText(u"Catalog"_s, america), u"Catalog unavailable"_s);
  EXPECT_EQ(indicator.longText(u"Catalog metadata"_s, america),
            u"Catalog metadata unavailable. Refresh catalog metadata when ready."_s);
}

TEST(FreshnessTexts, OfFreshData) {
  const FreshnessIndicator indicator = inventoryFreshness(monday, monday);
  EXPECT_EQ(indicator.statusWord(), "Fresh"_L1);
  EXPECT_EQ(indicator.shortText(u"Inventory"_s, america),
            u"Inventory fresh Nov 16, 2026, 8:42 PM"_s);
  EXPECT_EQ(indicator.longText(u"Local inventory"_s, america),
            u"Local inventory fresh: Nov 16, 2026, 8:42 PM."_s);
}

TEST(FreshnessTexts, OfStaleData) {
  const FreshnessIndicator indicator = inventoryFreshness(monday, monday.addDays(2));
  EXPECT_EQ(indicator.statusWord(), "Stale"_L1);
  EXPECT_EQ(indicator.shortText(u"Inventory"_s, america),
            u"Inventory stale Nov 16, 2026, 8:42 PM"_s);
  EXPECT_EQ(indicator.longText(u"Local inventory"_s, america),
            u"Local inventory stale: Nov 16, 2026, 8:42 PM. Scan local inventory for current "
            "guidance."_s);
}

}  // namespace
}  // namespace quillmere

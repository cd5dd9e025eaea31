#include <QtCore/QTimeZone>

#include <gtest/gtest.h>

#include "platform/DateTexts.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;

const QDateTime evening(QDate(2026, 11, 20), QTime(20, 42, 59));
const QLocale america(QLocale::English, QLocale::UnitedStates);
const QLocale germany(QLocale::German, QLocale::Germany);
const QLocale bulgaria(QLocale::Bulgarian, QLocale::Bulgaria);

TEST(DateText, UsesTheClockOfTheRegion) {
  EXPECT_EQ(dateText(evening, america), u"Nov 20, 2026, 8:42 PM"_s);
  EXPECT_EQ(dateText(evening, germany), u"Nov 20, 2026, 20:42"_s);
  EXPECT_EQ(dateText(evening, QLocale::c()), u"Nov 20, 2026, 20:42"_s);
}

TEST(DateText, TakesNoWordOfATimeFormatForTheSignOfAClock) {
  EXPECT_EQ(dateText(evening, bulgaria), u"Nov 20, 2026, 20:42"_s);
}

TEST(DateText, StaysEnglishInEveryRegion) {
  const QDateTime spring(QDate(2026, 5, 3), QTime(0, 5));
  EXPECT_EQ(dateText(spring, germany), u"May 3, 2026, 00:05"_s);
  EXPECT_EQ(dateText(spring, america), u"May 3, 2026, 12:05 AM"_s);
}

TEST(DateText, SpeaksOfTheLocalTime) {
  EXPECT_EQ(dateText(evening.toUTC(), america), dateText(evening, america));
}

TEST(DateText, IsEmptyForNoDate) {
  EXPECT_EQ(dateText(QDateTime(), america), QString());
}

}  // namespace
}  // namespace quillmere

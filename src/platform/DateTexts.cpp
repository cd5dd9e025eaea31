#include "platform/DateTexts.h"

#include <algorithm>

namespace quillmere {
namespace {

/// Whether the region tells the hours of its afternoon from those of its morning by a word. The
/// words of a format that stand for themselves are quoted and say nothing.
bool hasTwelveHourClock(const QLocale& region) {
  const QString format = region.timeFormat(QLocale::ShortFormat);
  bool quoted = false;
  return std::ranges::any_of(format, [&quoted](QChar character) {
    if (character == u'\'') {
      quoted = !quoted;
    }
    return !quoted && character.toLower() == u'a';
  });
}

}  // namespace

QString dateText(const QDateTime& date, const QLocale& region) {
  const QLocale english(QLocale::English, QLocale::UnitedStates);
  const QString format = hasTwelveHourClock(region) ? QStringLiteral("MMM d, yyyy, h:mm AP")
                                                    : QStringLiteral("MMM d, yyyy, HH:mm");
  return english.toString(date.toLocalTime(), format);
}

QString durationText(double seconds) {
  constexpr double secondsWithTenths = 10.0;
  constexpr qint64 secondsPerMinute = 60;
  if (seconds < secondsWithTenths) {
    return QString::number(seconds, 'f', 1) + QStringLiteral(" s");
  }
  const qint64 whole = qRound64(seconds);
  if (whole < secondsPerMinute) {
    return QStringLiteral("%1 s").arg(whole);
  }
  return QStringLiteral("%1 min %2 s").arg(whole / secondsPerMinute).arg(whole % secondsPerMinute);
}

}  // namespace quillmere

#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QLocale>
#include <QtCore/QString>

namespace quillmere {

/// A date as people read it beside other text: an abbreviated date and a short time in the local
/// time zone, "Nov 20, 2026, 8:42 PM". The words are English as every text of the program; the
/// clock (12 or 24 hours) follows the desktop's region. Empty for a date that is not valid. Any
/// thread.
[[nodiscard]] QString dateText(const QDateTime& date, const QLocale& region = QLocale::system());

/// A length of time as people say it: "0.4 s", "12 s", "3 min 5 s". Pure; any thread.
[[nodiscard]] QString durationText(double seconds);

}  // namespace quillmere

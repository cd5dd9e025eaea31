#include "platform/ByteTexts.h"

#include <QtCore/QLatin1StringView>

#include <array>

namespace quillmere {
namespace {

struct Unit {
  QLatin1StringView name;
  quint64 bytes;
  /// How many parts of it are told apart: 10 for one decimal.
  quint64 parts;
};

constexpr auto units = std::to_array<Unit>({
    {QLatin1StringView("KB"), 1'000, 1},
    {QLatin1StringView("MB"), 1'000'000, 10},
    {QLatin1StringView("GB"), 1'000'000'000, 100},
    {QLatin1StringView("TB"), 1'000'000'000'000, 100},
    {QLatin1StringView("PB"), 1'000'000'000'000'000, 100},
    {QLatin1StringView("EB"), 1'000'000'000'000'000'000, 100},
});

/// How many parts of the unit the bytes are, to the nearest; a half counts as a whole.
quint64 partsOf(quint64 bytes, const Unit& unit) {
  const quint64 part = unit.bytes / unit.parts;
  return bytes / part + (bytes % part >= part - part / 2 ? 1 : 0);
}

/// The largest unit of which there is one after rounding: 999,999 bytes are a megabyte.
const Unit& unitFor(quint64 bytes) {
  const Unit* best = units.data();
  for (const Unit& unit : units) {
    // A thousand of the smaller one, as that one would be rounded.
    if (partsOf(bytes, *best) >= 1'000 * best->parts) {
      best = &unit;
    }
  }
  return *best;
}

QString decimals(quint64 count, quint64 parts) {
  QString digits = QString::number(count / parts);
  if (const quint64 rest = count % parts; rest != 0) {
    QString fraction = QString::number(parts + rest).mid(1);
    while (fraction.endsWith(u'0')) {
      fraction.chop(1);
    }
    digits += u'.' + fraction;
  }
  return digits;
}

QString magnitudeText(quint64 bytes) {
  if (bytes < units.front().bytes) {
    return QString::number(bytes) +
           (bytes == 1 ? QLatin1StringView(" byte") : QLatin1StringView(" bytes"));
  }
  const Unit& unit = unitFor(bytes);
  return decimals(partsOf(bytes, unit), unit.parts) + u' ' + unit.name;
}

}  // namespace

QString byteCountText(qint64 bytes) {
  if (bytes == 0) {
    return QStringLiteral("Zero KB");
  }
  // The smallest number has no positive counterpart.
  return bytes < 0 ? u'-' + magnitudeText(~static_cast<quint64>(bytes) + 1)
                   : magnitudeText(static_cast<quint64>(bytes));
}

}  // namespace quillmere

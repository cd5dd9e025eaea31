#include "guidance/FreshnessIndicator.h"

#include <array>

#include "platform/DateTexts.h"

namespace quillmere {
namespace {

constexpr int inventoryDays = 1;

/// In the order of the alternatives.
constexpr auto statusWords = std::to_array<QLatin1StringView>({
    QLatin1StringView("Not available"),
    QLatin1StringView("Fresh"),
    QLatin1StringView("Stale"),
});

/// When data of `date` becomes stale. Where the calendar ends, at once.
QDateTime stalePoint(const QDateTime& date, int days) {
  const QDateTime point = date.toLocalTime().addDays(days);
  return point.isValid() ? point : date;
}

FreshnessIndicator freshness(const std::optional<QDateTime>& date, const QDateTime& now, int days,
                             const QString& action) {
  if (!date) {
    return {FreshnessIndicator::Missing{action}};
  }
  if (stalePoint(*date, days) <= now) {
    return {FreshnessIndicator::Stale{.date = *date, .action = action}};
  }
  return {FreshnessIndicator::Fresh{*date}};
}

}  // namespace

QLatin1StringView FreshnessIndicator::statusWord() const {
  return statusWords[value.index()];
}

QString FreshnessIndicator::shortText(const QString& label, const QLocale& region) const {
  if (const auto* const fresh = std::get_if<Fresh>(&value)) {
    return label + QStringLiteral(" fresh ") + dateText(fresh->date, region);
  }
  if (const auto* const stale = std::get_if<Stale>(&value)) {
    return label + QStringLiteral(" stale ") + dateText(stale->date, region);
  }
  return label + QStringLiteral(" unavailable");
}

QString FreshnessIndicator::longText(const QString& label, const QLocale& region) const {
  if (const auto* const fresh = std::get_if<Fresh>(&value)) {
    return label + QStringLiteral(" fresh: ") + dateText(fresh->date, region) + u'.';
  }
  if (const auto* const stale = std::get_if<Stale>(&value)) {
    return label + QStringLiteral(" stale: ") + dateText(stale->date, region) +
           QStringLiteral(". ") + stale->action + QStringLiteral(" for current guidance.");
  }
  return label + QStringLiteral(" unavailable. ") + std::get<Missing>(value).action +
         QStringLiteral(" when ready.");
}

FreshnessIndicator catalogFreshness(const std::optional<QDateTime>& date, const QDateTime& now) {
  return freshness(date, now, catalogFreshDays, QStringLiteral("Refresh catalog metadata"));
}

FreshnessIndicator inventoryFreshness(const std::optional<QDateTime>& date, const QDateTime& now) {
  return freshness(date, now, inventoryDays, QStringLiteral("Scan local inventory"));
}

QDateTime catalogStaleDate(const QDateTime& date) {
  return stalePoint(date, catalogFreshDays);
}

QDateTime inventoryStaleDate(const QDateTime& date) {
  return stalePoint(date, inventoryDays);
}

}  // namespace quillmere

#include "screens/dashboard/DashboardViewModel.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "persistence/LocalPersistenceStore.h"

namespace quillmere {
namespace {

using namespace std::chrono_literals;

/// The time in which data is fresh, divided into equal parts.
struct FreshTime {
  QDateTime begin;
  QDateTime end;
  int parts = 1;

  /// How many parts lie before `now`, the one that runs included.
  [[nodiscard]] int partsLeft(const QDateTime& now) const {
    const qint64 length = begin.msecsTo(end);
    const qint64 left = now.msecsTo(end);
    if (left <= 0 || length <= 0) {
      return 0;
    }
    return static_cast<int>(left >= length ? parts : (left * parts + length - 1) / length);
  }

  /// When the part ends that runs at `now`; absent when all are over.
  [[nodiscard]] std::optional<QDateTime> nextChange(const QDateTime& now) const {
    const int left = partsLeft(now);
    return left == 0 ? std::nullopt
                     : std::optional(end.addMSecs(-begin.msecsTo(end) * (left - 1) / parts));
  }
};

FreshTime ofCatalog(const QDateTime& date) {
  return {date, catalogStaleDate(date), DashboardViewModel::catalogGaugeParts};
}

FreshTime ofInventory(const QDateTime& date) {
  return {date, inventoryStaleDate(date), DashboardViewModel::inventoryGaugeParts};
}

QString tint(const FreshnessIndicator& freshness) {
  if (std::holds_alternative<FreshnessIndicator::Fresh>(freshness.value)) {
    return QStringLiteral("green");
  }
  return std::holds_alternative<FreshnessIndicator::Stale>(freshness.value)
             ? QStringLiteral("orange")
             : QStringLiteral("neutral");
}

}  // namespace

DashboardViewModel::DashboardViewModel(LocalPersistenceStore& store,
                                       const AppCapabilities& appCapabilities, Clock clock,
                                       QObject* parent)
    : QObject(parent), store_(store), appCapabilities_(appCapabilities), clock_(std::move(clock)) {
  nextChange_.setSingleShot(true);
  connect(&nextChange_, &QTimer::timeout, this, &DashboardViewModel::refresh);
  for (const auto change : {&LocalPersistenceStore::catalogLastRefreshDateChanged,
                            &LocalPersistenceStore::localInventoryLastScanDateChanged,
                            &LocalPersistenceStore::prefixSelected}) {
    connect(&store_, change, this, &DashboardViewModel::refresh);
  }
  refresh();
}

QString DashboardViewModel::catalogValue() const {
  return shown_.catalog.statusWord();
}

QString DashboardViewModel::catalogDetail() const {
  return shown_.catalog.longText(QStringLiteral("Catalog metadata"));
}

QString DashboardViewModel::catalogTint() const {
  return tint(shown_.catalog);
}

QString DashboardViewModel::inventoryValue() const {
  return shown_.hasPrefix ? QString(shown_.inventory.statusWord())
                          : QStringLiteral("Catalog-only mode");
}

QString DashboardViewModel::inventoryDetail() const {
  return shown_.hasPrefix
             ? shown_.inventory.longText(QStringLiteral("Local inventory"))
             : QStringLiteral(
                   "No local prefix selected. This is supported; local-only sections will ask "
                   "before accessing files.");
}

void DashboardViewModel::setAccessProblem(const QString& text) {
  if (std::exchange(accessProblemText_, text) != text) {
    Q_EMIT changed();
  }
}

QString DashboardViewModel::inventoryTint() const {
  return shown_.hasPrefix ? tint(shown_.inventory) : QStringLiteral("blue");
}

QString DashboardViewModel::commandSafetyValue() const {
  return appCapabilities_.canExecuteCommands ? QStringLiteral("Execution enabled")
                                             : QStringLiteral("Preview and copy only");
}

void DashboardViewModel::refresh() {
  const QDateTime now = clock_();
  const auto& refreshed = store_.catalogLastRefreshDate();
  const auto& scanned = store_.localInventoryLastScanDate();
  Shown shown{.catalog = catalogFreshness(refreshed, now),
              .inventory = inventoryFreshness(scanned, now),
              .hasPrefix = store_.selectedHomebrewPrefixPath().has_value()};
  if (refreshed) {
    shown.catalogGaugePartsLeft = ofCatalog(*refreshed).partsLeft(now);
  }
  if (scanned && shown.hasPrefix) {
    shown.inventoryGaugePartsLeft = ofInventory(*scanned).partsLeft(now);
  }
  if (shown_ != shown) {
    shown_ = std::move(shown);
    Q_EMIT changed();
  }
  waitForNextChange(now);
}

/// Asks again after a minute at the latest: a timer stands still while the computer sleeps, and
/// the clock may be set.
void DashboardViewModel::waitForNextChange(const QDateTime& now) {
  const auto& refreshed = store_.catalogLastRefreshDate();
  const auto& scanned = store_.localInventoryLastScanDate();
  const auto catalog = refreshed ? ofCatalog(*refreshed).nextChange(now) : std::nullopt;
  const auto inventory = scanned ? ofInventory(*scanned).nextChange(now) : std::nullopt;
  if (!catalog && !inventory) {
    nextChange_.stop();
    return;
  }
  const QDateTime next = std::min(catalog.value_or(inventory.value_or(now)),
                                  inventory.value_or(catalog.value_or(now)));
  constexpr std::chrono::milliseconds longest = 1min;
  nextChange_.start(std::clamp(std::chrono::milliseconds(now.msecsTo(next)),
                               std::chrono::milliseconds(1), longest));
}

}  // namespace quillmere

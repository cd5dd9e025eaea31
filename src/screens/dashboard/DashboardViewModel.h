#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QTimer>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <optional>

#include "app/AppCapabilities.h"
#include "guidance/FreshnessIndicator.h"

namespace quillmere {

class LocalPersistenceStore;

/// The Dashboard: what is known, how fresh it is, and what this build may do. Follows the store and
/// the time: what becomes stale while it is shown says so. Owned by the main window's view model;
/// UI thread only.
class DashboardViewModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the main window's view model")
  Q_PROPERTY(QString catalogValue READ catalogValue NOTIFY changed)
  Q_PROPERTY(QString catalogDetail READ catalogDetail NOTIFY changed)
  Q_PROPERTY(QString catalogTint READ catalogTint NOTIFY changed)
  Q_PROPERTY(bool hasCatalogAge READ hasCatalogAge NOTIFY changed)
  Q_PROPERTY(int catalogGaugePartsLeft READ catalogGaugePartsLeft NOTIFY changed)
  Q_PROPERTY(QString inventoryValue READ inventoryValue NOTIFY changed)
  Q_PROPERTY(QString inventoryDetail READ inventoryDetail NOTIFY changed)
  Q_PROPERTY(QString inventoryTint READ inventoryTint NOTIFY changed)
  Q_PROPERTY(QString accessProblemText READ accessProblemText NOTIFY changed)
  Q_PROPERTY(bool hasInventoryAge READ hasInventoryAge NOTIFY changed)
  Q_PROPERTY(int inventoryGaugePartsLeft READ inventoryGaugePartsLeft NOTIFY changed)
  Q_PROPERTY(QString commandSafetyValue READ commandSafetyValue CONSTANT)
  Q_PROPERTY(int catalogGaugeParts MEMBER catalogGaugeParts CONSTANT)
  Q_PROPERTY(int inventoryGaugeParts MEMBER inventoryGaugeParts CONSTANT)

 public:
  using Clock = std::function<QDateTime()>;

  /// Into how many parts the picture divides the time in which data is fresh: a day each for the
  /// catalog, three hours each for the inventory.
  static constexpr int catalogGaugeParts = catalogFreshDays;
  static constexpr int inventoryGaugeParts = 8;

  DashboardViewModel(LocalPersistenceStore& store, const AppCapabilities& appCapabilities,
                     Clock clock = &QDateTime::currentDateTimeUtc, QObject* parent = nullptr);

  [[nodiscard]] QString catalogValue() const;
  [[nodiscard]] QString catalogDetail() const;
  [[nodiscard]] QString catalogTint() const;

  [[nodiscard]] bool hasCatalogAge() const { return shown_.catalogGaugePartsLeft.has_value(); }

  /// How many parts of the time in which it is fresh the catalog has before it.
  [[nodiscard]] int catalogGaugePartsLeft() const {
    return shown_.catalogGaugePartsLeft.value_or(0);
  }

  [[nodiscard]] QString inventoryValue() const;
  [[nodiscard]] QString inventoryDetail() const;
  [[nodiscard]] QString inventoryTint() const;

  /// Which prefix could not be read and why; empty otherwise.
  [[nodiscard]] const QString& accessProblemText() const { return accessProblemText_; }

  void setAccessProblem(const QString& text);

  [[nodiscard]] bool hasInventoryAge() const { return shown_.inventoryGaugePartsLeft.has_value(); }

  [[nodiscard]] int inventoryGaugePartsLeft() const {
    return shown_.inventoryGaugePartsLeft.value_or(0);
  }

  [[nodiscard]] QString commandSafetyValue() const;

  /// Another screen is wanted: what is installed.
  Q_INVOKABLE void viewInstalled() { Q_EMIT viewInstalledRequested(); }

 Q_SIGNALS:
  void changed();
  void viewInstalledRequested();

 private:
  struct Shown {
    FreshnessIndicator catalog;
    FreshnessIndicator inventory;
    bool hasPrefix = false;
    std::optional<int> catalogGaugePartsLeft;
    std::optional<int> inventoryGaugePartsLeft;

    bool operator==(const Shown&) const = default;
  };

  void refresh();
  void waitForNextChange(const QDateTime& now);

  LocalPersistenceStore& store_;
  AppCapabilities appCapabilities_;
  Clock clock_;
  Shown shown_;
  QString accessProblemText_;
  QTimer nextChange_;
};

}  // namespace quillmere

#pragma once

#include <QtQml/qqmlregistration.h>

#include "screens/shared/LocalInventoryViewModel.h"
#include "screens/shared/PreviewCallback.h"
#include "screens/updates/PackageUpdateListModel.h"

namespace quillmere {

/// The Updates screen: which installed packages look outdated. Owned by `ContentViewModel`; UI
/// thread only.
class UpdatesViewModel : public quillmere::LocalInventoryViewModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the main window's view model")
  Q_PROPERTY(QString scanTitle READ scanTitle NOTIFY changed)
  Q_PROPERTY(QString catalogFreshnessText READ catalogFreshnessText NOTIFY changed)
  Q_PROPERTY(QString sourcesText READ sourcesText NOTIFY changed)
  Q_PROPERTY(QString updatesText READ updatesText NOTIFY changed)
  Q_PROPERTY(QString reviewText READ reviewText NOTIFY changed)
  Q_PROPERTY(QString upToDateText READ upToDateText NOTIFY changed)
  Q_PROPERTY(int updateCount READ updateCount NOTIFY changed)
  Q_PROPERTY(int reviewCount READ reviewCount NOTIFY changed)
  Q_PROPERTY(int upToDateCount READ upToDateCount NOTIFY changed)
  Q_PROPERTY(QString upgradeProblem READ upgradeProblem NOTIFY changed)
  Q_PROPERTY(quillmere::PackageUpdateListModel* packages READ packages CONSTANT)

 public:
  explicit UpdatesViewModel(PreviewCallback previewCallback,
                            Clock clock = &QDateTime::currentDateTimeUtc,
                            QObject* parent = nullptr);

  /// Of a loaded inventory, what is said in place of the updates when there are none.
  [[nodiscard]] QString title() const override;
  [[nodiscard]] QString text() const override;
  [[nodiscard]] QString symbolName() const override;
  /// What the action is called that scans.
  [[nodiscard]] QString scanTitle() const;
  [[nodiscard]] QString catalogFreshnessText() const;
  /// How old what was compared is.
  [[nodiscard]] QString sourcesText() const;

  // The counts in words.
  [[nodiscard]] QString updatesText() const;
  [[nodiscard]] QString reviewText() const;
  [[nodiscard]] QString upToDateText() const;

  /// How many updates there are; zero while nothing is known.
  [[nodiscard]] int updateCount() const { return packages_.updateCount(); }

  [[nodiscard]] int reviewCount() const { return packages_.reviewCount(); }

  [[nodiscard]] int upToDateCount() const { return packages_.upToDateCount(); }

  [[nodiscard]] PackageUpdateListModel* packages() { return &packages_; }

  /// Why the last upgrade that was asked for has no preview; empty where it has one.
  [[nodiscard]] const QString& upgradeProblem() const { return upgradeProblem_; }

  /// Asks for the preview of the upgrade of the package in this row. What cannot be a package's
  /// name becomes no command but an `upgradeProblem`.
  Q_INVOKABLE void previewUpgrade(int row);
  /// Asks for the preview of `brew update`.
  Q_INVOKABLE void previewUpdate();

 Q_SIGNALS:
  /// The user wants to see the catalog.
  void browseCatalogRequested();

 private:
  void applyInputs(const LocalInventoryInputs& previous) override;
  [[nodiscard]] QString spokenResult() const override;

  PreviewCallback previewCallback_;
  PackageUpdateListModel packages_;
  QString upgradeProblem_;
};

}  // namespace quillmere

#pragma once

#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>

#include <functional>

#include "screens/LocalInventoryInputs.h"
#include "screens/PackageUpdateListModel.h"
#include "screens/PreviewRequest.h"

namespace quillmere {

/// The Updates screen: which installed packages look outdated. Owned by `ContentViewModel`; UI
/// thread only.
class UpdatesViewModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the main window's view model")
  Q_PROPERTY(State state READ state NOTIFY inputsChanged)
  Q_PROPERTY(QString stateTitle READ stateTitle NOTIFY inputsChanged)
  Q_PROPERTY(QString stateText READ stateText NOTIFY inputsChanged)
  Q_PROPERTY(QString stateSymbolName READ stateSymbolName NOTIFY inputsChanged)
  Q_PROPERTY(QString scanTitle READ scanTitle NOTIFY inputsChanged)
  Q_PROPERTY(QString catalogFreshnessText READ catalogFreshnessText NOTIFY inputsChanged)
  Q_PROPERTY(QString sourcesText READ sourcesText NOTIFY inputsChanged)
  Q_PROPERTY(QString updatesText READ updatesText NOTIFY inputsChanged)
  Q_PROPERTY(QString reviewText READ reviewText NOTIFY inputsChanged)
  Q_PROPERTY(QString upToDateText READ upToDateText NOTIFY inputsChanged)
  Q_PROPERTY(int updateCount READ updateCount NOTIFY inputsChanged)
  Q_PROPERTY(int reviewCount READ reviewCount NOTIFY inputsChanged)
  Q_PROPERTY(int upToDateCount READ upToDateCount NOTIFY inputsChanged)
  Q_PROPERTY(quillmere::PackageUpdateListModel* packages READ packages CONSTANT)

 public:
  using Clock = std::function<QDateTime()>;

  enum State { Idle, AccessNeeded, Loading, Failed, Loaded };
  Q_ENUM(State)

  explicit UpdatesViewModel(PreviewRequest previewRequest,
                            Clock clock = &QDateTime::currentDateTimeUtc,
                            QObject* parent = nullptr);

  [[nodiscard]] const LocalInventoryInputs& inputs() const { return inputs_; }

  void setInputs(const LocalInventoryInputs& inputs);

  [[nodiscard]] State state() const;
  // What is said in place of the lists; of a loaded inventory, in place of the updates when there
  // are none.
  [[nodiscard]] QString stateTitle() const;
  [[nodiscard]] QString stateText() const;
  [[nodiscard]] QString stateSymbolName() const;
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

  /// Asks for the preview of the upgrade of the package in this row. Does nothing when its
  /// identifier is none that could stand in a command.
  Q_INVOKABLE void previewUpgrade(int row);
  Q_INVOKABLE void previewUpdate();

 Q_SIGNALS:
  void inputsChanged();
  /// A scan has ended; `outcome` says how, for assistive technology.
  void scanEnded(const QString& outcome);
  // What the user wants of the main window.
  void scanWanted();
  void cancelScanWanted();
  void selectPrefixWanted();
  void browseCatalogWanted();

 private:
  PreviewRequest previewRequest_;
  Clock clock_;
  LocalInventoryInputs inputs_;
  PackageUpdateListModel packages_;
};

}  // namespace quillmere

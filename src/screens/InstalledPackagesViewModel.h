#pragma once

#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>

#include <functional>

#include "screens/LocalInventoryInputs.h"

namespace quillmere {

/// The Installed screen: the local inventory, searched and filtered. UI thread only.
class InstalledPackagesViewModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the main window's view model")

 public:
  using Clock = std::function<QDateTime()>;

  explicit InstalledPackagesViewModel(Clock clock = &QDateTime::currentDateTimeUtc,
                                      QObject* parent = nullptr);

  [[nodiscard]] const LocalInventoryInputs& inputs() const { return inputs_; }

  void setInputs(const LocalInventoryInputs& inputs);

 Q_SIGNALS:
  void inputsChanged();
  // What the user wants of the main window.
  void scanWanted();
  void cancelScanWanted();
  void selectPrefixWanted();
  void browseCatalogWanted();
  void packageChosen(const quillmere::InstalledPackageSummary& package);

 private:
  Clock clock_;
  LocalInventoryInputs inputs_;
};

}  // namespace quillmere

#pragma once

#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>

#include <functional>

#include "screens/LocalInventoryInputs.h"
#include "screens/PreviewRequest.h"

namespace quillmere {

/// The Updates screen: which installed packages look outdated. UI thread only.
class UpdatesViewModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the main window's view model")

 public:
  using Clock = std::function<QDateTime()>;

  explicit UpdatesViewModel(PreviewRequest previewRequest,
                            Clock clock = &QDateTime::currentDateTimeUtc,
                            QObject* parent = nullptr);

  [[nodiscard]] const LocalInventoryInputs& inputs() const { return inputs_; }

  void setInputs(const LocalInventoryInputs& inputs);

  /// How many updates there are; zero while nothing is known.
  [[nodiscard]] int updateCount() const { return 0; }

 Q_SIGNALS:
  void inputsChanged();
  // What the user wants of the main window.
  void scanWanted();
  void cancelScanWanted();
  void selectPrefixWanted();
  void browseCatalogWanted();

 private:
  PreviewRequest previewRequest_;
  Clock clock_;
  LocalInventoryInputs inputs_;
};

}  // namespace quillmere

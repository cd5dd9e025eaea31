#pragma once

#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>

#include <functional>

#include "screens/LocalInventoryInputs.h"
#include "screens/PreviewRequest.h"

namespace quillmere {

/// The Cleanup screen: what a cleanup would be about. UI thread only.
class CleanupGuidanceViewModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the main window's view model")

 public:
  using Clock = std::function<QDateTime()>;

  explicit CleanupGuidanceViewModel(PreviewRequest previewRequest,
                                    Clock clock = &QDateTime::currentDateTimeUtc,
                                    QObject* parent = nullptr);

  [[nodiscard]] const LocalInventoryInputs& inputs() const { return inputs_; }

  void setInputs(const LocalInventoryInputs& inputs);

 Q_SIGNALS:
  void inputsChanged();
  // What the user wants of the main window.
  void scanWanted();
  void cancelScanWanted();
  void selectPrefixWanted();

 private:
  PreviewRequest previewRequest_;
  Clock clock_;
  LocalInventoryInputs inputs_;
};

}  // namespace quillmere

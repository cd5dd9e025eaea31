#pragma once

#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>

#include "screens/shared/PreviewCallback.h"

namespace quillmere {

/// The services screen's one action: to preview the listing of all services. Owned by the main
/// window's view model; UI thread only.
class ServicesGuidanceViewModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the main window")

 public:
  explicit ServicesGuidanceViewModel(PreviewCallback previewCallback, QObject* parent = nullptr);

  Q_INVOKABLE void previewServicesList();

 private:
  PreviewCallback previewCallback_;
};

}  // namespace quillmere

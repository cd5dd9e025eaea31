#pragma once

#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>

#include "screens/shared/PreviewRequest.h"

namespace quillmere {

/// The services screen's one action: to preview the listing of all services. Owned by the main
/// window's view model; UI thread only.
class ServicesGuidanceViewModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the main window")

 public:
  explicit ServicesGuidanceViewModel(PreviewRequest previewRequest, QObject* parent = nullptr);

  Q_INVOKABLE void previewServicesList();

 private:
  PreviewRequest previewRequest_;
};

}  // namespace quillmere

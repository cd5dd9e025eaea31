#include "screens/CleanupGuidanceViewModel.h"

#include <utility>

namespace quillmere {

CleanupGuidanceViewModel::CleanupGuidanceViewModel(PreviewRequest previewRequest, Clock clock,
                                                   QObject* parent)
    : QObject(parent), previewRequest_(std::move(previewRequest)), clock_(std::move(clock)) {
}

void CleanupGuidanceViewModel::setInputs(const LocalInventoryInputs& inputs) {
  inputs_ = inputs;
  Q_EMIT inputsChanged();
}

}  // namespace quillmere

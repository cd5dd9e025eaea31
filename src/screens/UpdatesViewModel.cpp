#include "screens/UpdatesViewModel.h"

#include <utility>

namespace quillmere {

UpdatesViewModel::UpdatesViewModel(PreviewRequest previewRequest, Clock clock, QObject* parent)
    : QObject(parent), previewRequest_(std::move(previewRequest)), clock_(std::move(clock)) {
}

void UpdatesViewModel::setInputs(const LocalInventoryInputs& inputs) {
  inputs_ = inputs;
  Q_EMIT inputsChanged();
}

}  // namespace quillmere

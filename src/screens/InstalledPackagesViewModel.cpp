#include "screens/InstalledPackagesViewModel.h"

#include <utility>

namespace quillmere {

InstalledPackagesViewModel::InstalledPackagesViewModel(Clock clock, QObject* parent)
    : QObject(parent), clock_(std::move(clock)) {
}

void InstalledPackagesViewModel::setInputs(const LocalInventoryInputs& inputs) {
  inputs_ = inputs;
  Q_EMIT inputsChanged();
}

}  // namespace quillmere

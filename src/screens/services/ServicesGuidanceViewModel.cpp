#include "screens/services/ServicesGuidanceViewModel.h"

#include <utility>

#include "commands/BrewCommandBuilder.h"

namespace quillmere {

ServicesGuidanceViewModel::ServicesGuidanceViewModel(PreviewCallback previewCallback,
                                                     QObject* parent)
    : QObject(parent), previewCallback_(std::move(previewCallback)) {
}

void ServicesGuidanceViewModel::previewServicesList() {
  previewCallback_(BrewCommandBuilder().servicesList(), QStringLiteral("Services"));
}

}  // namespace quillmere

#include "screens/services/ServicesGuidanceViewModel.h"

#include <utility>

#include "commands/BrewCommandBuilder.h"

namespace quillmere {

ServicesGuidanceViewModel::ServicesGuidanceViewModel(PreviewRequest previewRequest, QObject* parent)
    : QObject(parent), previewRequest_(std::move(previewRequest)) {
}

void ServicesGuidanceViewModel::previewServicesList() {
  previewRequest_(BrewCommandBuilder().servicesList(), QStringLiteral("Services"));
}

}  // namespace quillmere

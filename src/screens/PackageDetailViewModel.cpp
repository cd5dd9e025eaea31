#include "screens/PackageDetailViewModel.h"

#include <utility>

namespace quillmere {

PackageDetailViewModel::PackageDetailViewModel(Inputs inputs, PreviewRequest previewRequest,
                                               Clock clock, QObject* parent)
    : QObject(parent),
      inputs_(std::move(inputs)),
      previewRequest_(std::move(previewRequest)),
      clock_(std::move(clock)) {
}

}  // namespace quillmere

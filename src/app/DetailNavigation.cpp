#include "app/DetailNavigation.h"

#include <utility>

namespace quillmere {

DetailNavigation::~DetailNavigation() = default;

PackageDetailViewModel* DetailNavigation::current() const {
  return details_.empty() ? nullptr : details_.back().get();
}

void DetailNavigation::push(std::unique_ptr<PackageDetailViewModel> detail) {
  connect(detail.get(), &PackageDetailViewModel::backRequested, this, &DetailNavigation::back);
  details_.push_back(std::move(detail));
  Q_EMIT currentChanged();
}

void DetailNavigation::back() {
  if (details_.empty()) {
    return;
  }
  auto left = std::move(details_.back());
  details_.pop_back();
  Q_EMIT currentChanged();
  retire(std::move(left));
}

void DetailNavigation::clear() {
  if (details_.empty()) {
    return;
  }
  auto left = std::exchange(details_, {});
  Q_EMIT currentChanged();
  for (auto& detail : left) {
    retire(std::move(detail));
  }
}

/// One that goes back is still on the stack of its own signal.
void DetailNavigation::retire(std::unique_ptr<PackageDetailViewModel> detail) {
  detail.release()->deleteLater();
}

}  // namespace quillmere

#pragma once

#include <mutex>

namespace quillmere {

/// Whether a run was asked to end. The lock guards the flag and nothing else.
class ProcessCancellationState {
 public:
  void cancel() {
    const std::scoped_lock lock(lock_);
    cancelled_ = true;
  }

  [[nodiscard]] bool isCancelled() const {
    const std::scoped_lock lock(lock_);
    return cancelled_;
  }

 private:
  mutable std::mutex lock_;
  bool cancelled_ = false;
};

}  // namespace quillmere

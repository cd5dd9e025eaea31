#include "platform/SecurityScopedAccess.h"

#include <atomic>

namespace quillmere {
namespace {

std::atomic_int startedCount = 0;
std::atomic_int stoppedCount = 0;

}  // namespace

SecurityScopedAccess::SecurityScopedAccess(const QUrl& url) : started_(url.isLocalFile()) {
  if (started_) {
    ++startedCount;
  }
}

SecurityScopedAccess::~SecurityScopedAccess() {
  if (started_) {
    ++stoppedCount;
  }
}

SecurityScopedAccess::Counts SecurityScopedAccess::counts() {
  return {startedCount, stoppedCount};
}

}  // namespace quillmere

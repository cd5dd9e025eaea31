#include "platform/BackgroundThreads.h"

namespace quillmere {

QThreadPool* backgroundThreads() {
  // Never destroyed, because destroying it would wait.
  static auto* const threads = new QThreadPool;
  return threads;
}

}  // namespace quillmere

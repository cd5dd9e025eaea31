#include "platform/BackgroundThreads.h"

namespace quillmere {

QThreadPool* backgroundThreads() {
  // Never destroyed, because destroying it would wait.
  static auto* const threads = [] {
    auto* const pool = new QThreadPool;
    // Those that wait for a disk for ever must leave some for the others.
    constexpr int most = 32;
    pool->setMaxThreadCount(most);
    return pool;
  }();
  return threads;
}

}  // namespace quillmere

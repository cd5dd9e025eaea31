#pragma once

#include <QtCore/QRunnable>
#include <QtCore/QThreadPool>

#include <semaphore>

#include "platform/BackgroundThreads.h"

namespace quillmere::test {

/// Keeps all background threads busy for as long as it lives, so that a test sees what holds while
/// an answer is waited for: without it the answer may be there at once.
class BackgroundThreadBlocker {
 public:
  BackgroundThreadBlocker() : count_(backgroundThreads()->maxThreadCount()) {
    for (int thread = 0; thread < count_; ++thread) {
      // A start that the thread sanitizer can follow.
      backgroundThreads()->start(QRunnable::create([this] {
        released_.acquire();
        ended_.release();
      }));
    }
  }

  ~BackgroundThreadBlocker() {
    released_.release(count_);
    for (int thread = 0; thread < count_; ++thread) {
      ended_.acquire();
    }
  }

  Q_DISABLE_COPY_MOVE(BackgroundThreadBlocker)

 private:
  int count_;
  std::counting_semaphore<> released_{0};
  std::counting_semaphore<> ended_{0};
};

}  // namespace quillmere::test

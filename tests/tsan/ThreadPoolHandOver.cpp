#include <QtCore/QRunnable>
#include <QtCore/QThreadPool>

#include <memory>
#include <sanitizer/tsan_interface.h>

// Debian's Qt is built without the thread sanitizer, which therefore does not see the lock of the
// pool's queue: all that a task reads would look like a race with whoever wrote it before the task
// was started. The linker leads each start of a task through here, where the sanitizer is told what
// the lock orders, and nothing else.

namespace {

class HandedOver : public QRunnable {
 public:
  explicit HandedOver(QRunnable* task) : task_(task) {}

  // Reads `task_` before the sanitizer knows that it may.
  __attribute__((no_sanitize("thread"))) void run() override {
    __tsan_acquire(task_);
    const std::unique_ptr<QRunnable> owner(task_->autoDelete() ? task_ : nullptr);
    task_->run();
  }

 private:
  QRunnable* task_;
};

}  // namespace

// The linker's names for QThreadPool::start(QRunnable*, int).
extern "C" {
void __real__ZN11QThreadPool5startEP9QRunnablei(QThreadPool* pool, QRunnable* task, int priority);
void __wrap__ZN11QThreadPool5startEP9QRunnablei(QThreadPool* pool, QRunnable* task, int priority);

void __wrap__ZN11QThreadPool5startEP9QRunnablei(QThreadPool* pool, QRunnable* task, int priority) {
  auto* handedOver = new HandedOver(task);
  __tsan_release(task);
  __real__ZN11QThreadPool5startEP9QRunnablei(pool, handedOver, priority);
}
}

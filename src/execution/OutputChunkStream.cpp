#include "execution/OutputChunkStream.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>

#include <utility>

namespace quillmere {

/// Lives on the consumer's thread. Producers post to it and not to the consumer, because only the
/// consumer's own thread can tell whether the consumer still exists.
struct OutputChunkStream::Consumer : QObject {
  Consumer(QObject* owner, std::function<void()> call) : object(owner), notify(std::move(call)) {}

  QPointer<QObject> object;
  std::function<void()> notify;
  bool isCalled = false;
};

void OutputChunkStream::yield(DirectExecutionOutputChunk chunk) {
  const std::scoped_lock lock(mutex_);
  if (!finished_) {
    waiting_.push_back(std::move(chunk));
    wake();
  }
}

void OutputChunkStream::finish() {
  const std::scoped_lock lock(mutex_);
  if (!std::exchange(finished_, true)) {
    wake();
  }
}

void OutputChunkStream::consume(QObject* consumer, std::function<void()> onChunksWaiting) {
  const std::scoped_lock lock(mutex_);
  consumer_ = std::shared_ptr<Consumer>(new Consumer(consumer, std::move(onChunksWaiting)),
                                        [](Consumer* gone) { gone->deleteLater(); });
  if (finished_ || !waiting_.empty()) {
    wake();
  }
}

OutputChunkStream::Chunks OutputChunkStream::take() {
  const std::scoped_lock lock(mutex_);
  return std::exchange(waiting_, {});
}

void OutputChunkStream::wake() {
  if (!consumer_ || std::exchange(consumer_->isCalled, true)) {
    return;
  }
  // Weak: at exit Qt drops queued calls while holding the event-queue lock. If that released the
  // last reference to the stream, its consumer's `deleteLater` would try to take the same lock.
  const auto call = [weak = weak_from_this()] {
    const auto stream = weak.lock();
    if (!stream) {
      return;
    }
    std::shared_ptr<Consumer> consumer;
    {
      const std::scoped_lock lock(stream->mutex_);
      consumer = stream->consumer_;
      consumer->isCalled = false;
    }
    if (consumer->object) {
      consumer->notify();
    }
  };
  QMetaObject::invokeMethod(consumer_.get(), call, Qt::QueuedConnection);
}

}  // namespace quillmere

#include "execution/OutputChunkStream.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>

#include <utility>

namespace quillmere {

/// Lives on the consumer's thread, so that a producer can post to it without asking whether the
/// consumer is still there; only the consumer's own thread asks that.
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
  // A call that is never carried out is dropped while the application ends, under the lock of the
  // queue that the end of a stream has to post to: it must not be what a stream lives by.
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

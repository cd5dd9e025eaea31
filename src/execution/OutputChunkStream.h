#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <vector>

#include "execution/DirectExecutionOutputChunk.h"

class QObject;

namespace quillmere {

/// The ordered stream of chunks between a running execution and its one consumer. Chunks may be
/// yielded from any thread and are kept, without bound, until the consumer takes them; the order of
/// the yields is the order of the chunks.
class OutputChunkStream : public std::enable_shared_from_this<OutputChunkStream> {
 public:
  using Chunks = std::vector<DirectExecutionOutputChunk>;

  /// Adds a chunk; ignored after `finish`. Any thread.
  void yield(DirectExecutionOutputChunk chunk);
  /// Says that no chunk will follow. Any thread; later calls do nothing.
  void finish();

  /// Must be called on the thread of `consumer`. `onChunksWaiting` is called there whenever chunks
  /// wait to be taken, and once when the stream has finished; never again once `consumer` is gone.
  /// At most one call is queued at a time, so that much output cannot flood the event loop.
  void consume(QObject* consumer, std::function<void()> onChunksWaiting);

  /// All chunks that wait, in order. Any thread.
  [[nodiscard]] Chunks take();

 private:
  struct Consumer;
  void wake();

  std::mutex mutex_;
  Chunks waiting_;
  bool finished_ = false;
  std::shared_ptr<Consumer> consumer_;
};

}  // namespace quillmere

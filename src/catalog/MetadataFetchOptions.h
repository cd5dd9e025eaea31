#pragma once

#include <QtCore/QtGlobal>

#include <chrono>
#include <functional>
#include <optional>
#include <stop_token>

namespace quillmere {

/// How far a download has come, in bytes of the document itself, however they were packed for the
/// way.
struct MetadataProgress {
  qint64 receivedBytes = 0;
  /// Known only where the server said it and sends the document unpacked.
  std::optional<qint64> totalBytes;
  bool operator==(const MetadataProgress&) const = default;
};

/// A download is given up when a `window` passes in which fewer than `bytes` of the document
/// arrived: a server that sends nothing is as useless as one that sends a byte a second.
struct StallLimit {
  std::chrono::milliseconds window = std::chrono::seconds(60);
  qint64 bytes = qint64{60} * 1024;
};

/// What the caller of a fetch may want of it.
struct MetadataFetchOptions {
  /// Ends the fetch; may be asked from any thread and at any moment.
  std::stop_token stop;
  /// Called on the UI thread, at most some thirty times a second, and once more when the document
  /// is whole; never after `stop` was asked there.
  std::function<void(MetadataProgress)> onProgress;
  StallLimit stallLimit;
  /// A document that is larger is refused, before it fills the memory. The largest one today has
  /// 30 MB and grows by a tenth in a year; one with ten times as many packages is not refused.
  qint64 maximumBytes = qint64{512} * 1024 * 1024;
};

}  // namespace quillmere

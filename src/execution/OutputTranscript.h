#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "execution/DirectExecutionOutputChunk.h"
#include "execution/OutputDigest.h"

namespace quillmere {

/// Cuts pieces of text into lines, however the pieces fall.
class LineSplitter {
 public:
  using OnLine = std::function<void(QByteArrayView line)>;

  /// Calls `onLine` for every line that `text` completes, without its line feed. The view holds for
  /// the call only.
  void add(QByteArrayView text, const OnLine& onLine);

  /// What has come of a line that is not complete.
  [[nodiscard]] const QByteArray& open() const { return open_; }

  void clear() { open_.clear(); }

 private:
  QByteArray open_;
};

/// Whole lines of one stream: views into one shared text.
struct OutputLines {
  DirectExecutionOutputStream stream = DirectExecutionOutputStream::standardOutput;
  QByteArray text;
  /// Where each line begins in `text`; a line reaches to the next one's begin.
  std::vector<std::uint32_t> begins;
  /// Where the last line ends.
  std::uint32_t end = 0;

  [[nodiscard]] qsizetype count() const { return static_cast<qsizetype>(begins.size()); }

  /// One line without its line feed.
  [[nodiscard]] QByteArrayView line(qsizetype index) const;
};

/// Reads a session's chunks once, in order, and knows afterwards what the screens show of them: the
/// lines of the log as they follow each other, and digests for the summary. A line of the log
/// belongs to one stream: where another stream speaks in the middle of a line, a new one begins.
/// A value used by one thread at a time.
class OutputTranscript {
 public:
  explicit OutputTranscript(BrewCommandOperation operation);

  /// Reads further chunks and returns the lines of the log that they completed.
  [[nodiscard]] std::vector<OutputLines> add(std::span<const DirectExecutionOutputChunk> chunks);
  /// The last line of the log while it is not complete.
  [[nodiscard]] std::optional<OutputLines> unfinishedLine() const;

  /// Of all that was printed so far, both streams as they arrived.
  [[nodiscard]] OutputDigest liveDigest() const;
  /// Of standard output and then standard error, as the result has them.
  [[nodiscard]] OutputDigest resultDigest() const;

 private:
  /// The digest of one text, with the splitter that finds its lines.
  struct DigestedText {
    explicit DigestedText(BrewCommandOperation operation) : digest(operation) {}

    void add(const QByteArray& text);
    [[nodiscard]] OutputDigest whole() const;

    LineSplitter splitter;
    OutputDigest digest;
  };

  void addToLog(const DirectExecutionOutputChunk& chunk, std::vector<OutputLines>& lines);

  DigestedText live_;
  DigestedText standardOutput_;
  DigestedText standardError_;
  QByteArray openText_;
  DirectExecutionOutputStream openStream_ = DirectExecutionOutputStream::standardOutput;
};

}  // namespace quillmere

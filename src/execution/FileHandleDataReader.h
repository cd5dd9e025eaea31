#pragma once

#include <QtCore/QByteArray>

#include <functional>
#include <vector>

#include "platform/FileDescriptor.h"
#include "platform/Utf8Decoder.h"

namespace quillmere {

/// Collects what arrives at the reading end of a pipe. Used by the one thread that follows the run.
class FileHandleDataReader {
 public:
  explicit FileHandleDataReader(FileDescriptor fileHandle);
  virtual ~FileHandleDataReader() = default;

  enum class State { open, atEnd };

  /// Reads once, at most what the pipe holds, without waiting.
  State readAvailable();
  /// No more will be read: what was kept back is handed over, the handle is closed.
  void finish();

  [[nodiscard]] const FileDescriptor& fileHandle() const { return fileHandle_; }

  /// All text so far, valid UTF-8.
  [[nodiscard]] const QByteArray& text() const { return text_; }

 protected:
  /// Called for every decoded piece of text.
  virtual void received(const QByteArray& text);

 private:
  FileDescriptor fileHandle_;
  std::vector<char> buffer_;
  Utf8Decoder decoder_;
  QByteArray text_;
};

/// Hands every piece of text on as it arrives, besides collecting it.
class StreamingFileHandleDataReader : public FileHandleDataReader {
 public:
  using OnText = std::function<void(const QByteArray&)>;

  StreamingFileHandleDataReader(FileDescriptor fileHandle, OnText onText);

 protected:
  void received(const QByteArray& text) override;

 private:
  OnText onText_;
};

}  // namespace quillmere

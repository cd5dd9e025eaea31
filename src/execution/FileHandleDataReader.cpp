#include "execution/FileHandleDataReader.h"

#include <cerrno>
#include <utility>

namespace quillmere {
namespace {

// What a pipe holds by default: one read empties it.
constexpr std::size_t bufferSize = 64UZ * 1024;

}  // namespace

FileHandleDataReader::FileHandleDataReader(FileDescriptor fileHandle)
    : fileHandle_(std::move(fileHandle)), buffer_(bufferSize) {
}

FileHandleDataReader::State FileHandleDataReader::readAvailable() {
  ssize_t count = 0;
  do {
    count = ::read(fileHandle_.get(), buffer_.data(), buffer_.size());
  } while (count < 0 && errno == EINTR);
  if (count < 0) {
    return errno == EAGAIN ? State::open : State::atEnd;
  }
  if (count == 0) {
    return State::atEnd;
  }
  // A copy of just what came: a chunk lives as long as its session and must not keep a whole
  // buffer for a few bytes.
  received(decoder_.decode(QByteArray(buffer_.data(), count)));
  return State::open;
}

void FileHandleDataReader::finish() {
  received(decoder_.finish());
  fileHandle_.reset();
}

void FileHandleDataReader::received(const QByteArray& text) {
  text_ += text;
}

StreamingFileHandleDataReader::StreamingFileHandleDataReader(FileDescriptor fileHandle,
                                                             OnText onText)
    : FileHandleDataReader(std::move(fileHandle)), onText_(std::move(onText)) {
}

void StreamingFileHandleDataReader::received(const QByteArray& text) {
  FileHandleDataReader::received(text);
  if (!text.isEmpty()) {
    onText_(text);
  }
}

}  // namespace quillmere

#pragma once

#include <unistd.h>
#include <utility>

namespace quillmere {

/// Owns one open file descriptor, or none. Used by one thread at a time.
class FileDescriptor {
 public:
  FileDescriptor() = default;

  explicit FileDescriptor(int fd) : fd_(fd) {}

  FileDescriptor(FileDescriptor&& other) noexcept : fd_(std::exchange(other.fd_, -1)) {}

  FileDescriptor& operator=(FileDescriptor&& other) noexcept {
    std::swap(fd_, other.fd_);
    return *this;
  }

  FileDescriptor(const FileDescriptor&) = delete;
  FileDescriptor& operator=(const FileDescriptor&) = delete;

  ~FileDescriptor() { reset(); }

  [[nodiscard]] int get() const { return fd_; }

  [[nodiscard]] bool isOpen() const { return fd_ >= 0; }

  void reset() {
    if (const int fd = std::exchange(fd_, -1); fd >= 0) {
      ::close(fd);
    }
  }

 private:
  int fd_ = -1;
};

}  // namespace quillmere

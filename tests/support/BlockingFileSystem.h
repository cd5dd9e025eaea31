#pragma once

#include <memory>
#include <semaphore>

#include "prefix/HomebrewPrefixFileSystem.h"

namespace quillmere::test {

/// A slow disk: nothing is answered before it is let go.
class BlockingFileSystem : public HomebrewPrefixFileSystem {
 public:
  bool fileExists(const QString& path) const override {
    released.acquire();
    released.release();
    return platformFileSystem()->fileExists(path);
  }

  bool isReadableFile(const QString& path) const override {
    return platformFileSystem()->isReadableFile(path);
  }

  std::expected<QList<QUrl>, FileSystemError> contentsOfDirectory(const QUrl& url) const override {
    return platformFileSystem()->contentsOfDirectory(url);
  }

  std::expected<QByteArray, FileSystemError> readData(const QUrl& url) const override {
    return platformFileSystem()->readData(url);
  }

  /// Has a permit while the disk answers.
  mutable std::counting_semaphore<> released{0};
};

}  // namespace quillmere::test

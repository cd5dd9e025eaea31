#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QUrl>

#include <expected>
#include <memory>

namespace quillmere {

/// Why the file system refused, in the platform's words.
struct FileSystemError {
  QString message;

  bool operator==(const FileSystemError&) const = default;
};

/// All that the program ever asks of a prefix. There is no operation that writes. Implementations
/// are safe to call from any thread; every call may block on the disk.
class HomebrewPrefixFileSystem {
 public:
  virtual ~HomebrewPrefixFileSystem() = default;

  /// Whether something exists at `path`; a dangling link does not exist.
  [[nodiscard]] virtual bool fileExists(const QString& path) const = 0;
  [[nodiscard]] virtual bool isReadableFile(const QString& path) const = 0;
  /// The entries of a folder, in no particular order, those whose name begins with a full stop
  /// left out.
  [[nodiscard]] virtual std::expected<QList<QUrl>, FileSystemError> contentsOfDirectory(
      const QUrl& url) const = 0;
  /// The whole of a regular file. Anything else (a pipe, a device) is refused instead of waited
  /// for, and so is a file that is larger than any receipt.
  [[nodiscard]] virtual std::expected<QByteArray, FileSystemError> readData(
      const QUrl& url) const = 0;
};

using HomebrewPrefixFileSystemPtr = std::shared_ptr<const HomebrewPrefixFileSystem>;

/// The file system of this machine.
[[nodiscard]] HomebrewPrefixFileSystemPtr platformFileSystem();

}  // namespace quillmere

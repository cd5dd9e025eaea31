#include "prefix/HomebrewPrefixFileSystem.h"

#include <QtCore/QFile>

#include <unistd.h>
#include <utility>

#include "platform/DirectoryReader.h"
#include "platform/FileUrl.h"
#include "platform/RegularFile.h"

namespace quillmere {
namespace {

/// What is read of a prefix are receipts. The largest have some hundred kilobytes.
constexpr qint64 maximumBytes = qint64{4} * 1024 * 1024;

/// Whether the calling user may do to what is at `path` what `mode` says.
bool isAccessible(const QString& path, int mode) {
  return access(QFile::encodeName(path).constData(), mode) == 0;
}

class PlatformFileSystem final : public HomebrewPrefixFileSystem {
 public:
  bool fileExists(const QString& path) const override { return isAccessible(path, F_OK); }

  bool isReadableFile(const QString& path) const override { return isAccessible(path, R_OK); }

  std::expected<QList<QUrl>, FileSystemError> contentsOfDirectory(const QUrl& url) const override {
    const QString folder = filePath(url);
    const QString beginning = folder.endsWith(u'/') ? folder : folder + u'/';
    DirectoryReader entries(folder);
    QList<QUrl> contents;
    while (const dirent* const entry = entries.next()) {
      contents += fileUrl(beginning + QFile::decodeName(entry->d_name));
    }
    if (entries.error()) {
      return std::unexpected(FileSystemError{QString::fromStdString(entries.error().message())});
    }
    return contents;
  }

  std::expected<QByteArray, FileSystemError> readData(const QUrl& url) const override {
    auto data = readRegularFile(filePath(url), maximumBytes);
    if (!data) {
      return std::unexpected(FileSystemError{std::move(data).error()});
    }
    return *std::move(data);
  }
};

}  // namespace

HomebrewPrefixFileSystemPtr platformFileSystem() {
  // Never destroyed: a scan may outlive the end of `main`.
  static const auto& fileSystem =
      *new HomebrewPrefixFileSystemPtr(std::make_shared<const PlatformFileSystem>());
  return fileSystem;
}

}  // namespace quillmere

#include "prefix/HomebrewPrefixFileSystem.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>

#include "platform/FileUrl.h"

namespace quillmere {
namespace {

FileSystemError errorOf(const std::error_code& code) {
  return {QString::fromStdString(code.message())};
}

FileSystemError errorOf(int number) {
  return errorOf(std::error_code(number, std::generic_category()));
}

class PlatformFileSystem final : public HomebrewPrefixFileSystem {
 public:
  bool fileExists(const QString& path) const override { return QFileInfo::exists(path); }

  bool isReadableFile(const QString& path) const override { return QFileInfo(path).isReadable(); }

  std::expected<QList<QUrl>, FileSystemError> contentsOfDirectory(const QUrl& url) const override {
    const QString folder = filePath(url);
    std::error_code code;
    std::filesystem::directory_iterator entry(QFile::encodeName(folder).toStdString(), code);
    QList<QUrl> contents;
    for (; !code && entry != std::filesystem::directory_iterator(); entry.increment(code)) {
      const std::string name = entry->path().filename().string();
      if (!name.starts_with('.')) {
        contents += appendingPath(url, QFile::decodeName(name.c_str()));
      }
    }
    if (code) {
      return std::unexpected(errorOf(code));
    }
    return contents;
  }

  std::expected<QByteArray, FileSystemError> readData(const QUrl& url) const override {
    // Opening a pipe would wait for its other end, and opening some devices acts on them.
    const int descriptor = open(QFile::encodeName(filePath(url)).constData(),
                                O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (descriptor < 0) {
      return std::unexpected(errorOf(errno));
    }
    QFile file;
    if (!file.open(descriptor, QFile::ReadOnly, QFile::AutoCloseHandle)) {
      return std::unexpected(FileSystemError{file.errorString()});
    }
    struct stat status = {};
    if (fstat(descriptor, &status) != 0) {
      return std::unexpected(errorOf(errno));
    }
    if (!S_ISREG(status.st_mode)) {
      return std::unexpected(errorOf(S_ISDIR(status.st_mode) ? EISDIR : EINVAL));
    }
    QByteArray data = file.readAll();
    if (file.error() != QFile::NoError) {
      return std::unexpected(FileSystemError{file.errorString()});
    }
    return data;
  }
};

}  // namespace

HomebrewPrefixFileSystemPtr platformFileSystem() {
  static const auto fileSystem = std::make_shared<const PlatformFileSystem>();
  return fileSystem;
}

}  // namespace quillmere

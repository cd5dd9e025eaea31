#include "prefix/HomebrewPrefixFileSystem.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/FileUrl.h"
#include "platform/RegularFile.h"

namespace quillmere {
namespace {

FileSystemError errorOf(const std::error_code& code) {
  return {QString::fromStdString(code.message())};
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
    auto data = readRegularFile(filePath(url));
    if (!data) {
      return std::unexpected(FileSystemError{std::move(data).error()});
    }
    return *std::move(data);
  }
};

}  // namespace

HomebrewPrefixFileSystemPtr platformFileSystem() {
  static const auto fileSystem = std::make_shared<const PlatformFileSystem>();
  return fileSystem;
}

}  // namespace quillmere

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QMap>
#include <QtCore/QSet>
#include <QtCore/QStringList>

#include <optional>

#include "platform/FileUrl.h"
#include "prefix/HomebrewPrefixFileSystem.h"

namespace quillmere::test {

/// A prefix that exists only in memory and remembers what was asked of it. Not thread-safe: it
/// notes questions without a lock.
class InMemoryPrefixFileSystem final : public HomebrewPrefixFileSystem {
 public:
  /// Everything that was asked, in order, as the operation's name, a blank and the path.
  mutable QStringList asked;

  InMemoryPrefixFileSystem& withFolder(const QString& path) {
    for (qsizetype end = path.size(); end > 0; end = path.lastIndexOf(u'/', end - 1)) {
      entries_.insert(path.first(end), std::nullopt);
    }
    return *this;
  }

  InMemoryPrefixFileSystem& withFile(const QString& path, const QByteArray& content = {}) {
    withFolder(path.first(path.lastIndexOf(u'/')));
    entries_.insert(path, content);
    return *this;
  }

  /// Makes what is there unreadable; it still exists.
  InMemoryPrefixFileSystem& withUnreadable(const QString& path) {
    unreadable_.insert(path);
    return *this;
  }

  bool fileExists(const QString& path) const override {
    asked += QStringLiteral("fileExists ") + path;
    return entries_.contains(path);
  }

  bool isReadableFile(const QString& path) const override {
    asked += QStringLiteral("isReadableFile ") + path;
    return isReadable(path);
  }

  std::expected<QList<QUrl>, FileSystemError> contentsOfDirectory(const QUrl& url) const override {
    const QString folder = filePath(url);
    asked += QStringLiteral("contentsOfDirectory ") + folder;
    if (!isReadable(folder) || entries_[folder].has_value()) {
      return std::unexpected(FileSystemError{QStringLiteral("Not a readable folder")});
    }
    QList<QUrl> contents;
    // Backwards, so that nobody comes to rely on an order that a disk does not keep.
    for (auto entry = entries_.end(); entry != entries_.begin();) {
      --entry;
      const qsizetype slash = entry.key().lastIndexOf(u'/');
      if (entry.key().first(slash) == folder && entry.key().at(slash + 1) != u'.') {
        contents += fileUrl(entry.key());
      }
    }
    return contents;
  }

  std::expected<QByteArray, FileSystemError> readData(const QUrl& url) const override {
    const QString path = filePath(url);
    asked += QStringLiteral("readData ") + path;
    if (!isReadable(path) || !entries_[path].has_value()) {
      return std::unexpected(FileSystemError{QStringLiteral("Not a readable file")});
    }
    return *entries_[path];
  }

 private:
  [[nodiscard]] bool isReadable(const QString& path) const {
    return entries_.contains(path) && !unreadable_.contains(path);
  }

  /// Files have a content, folders have none.
  QMap<QString, std::optional<QByteArray>> entries_;
  QSet<QString> unreadable_;
};

}  // namespace quillmere::test

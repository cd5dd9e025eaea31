#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <optional>

namespace quillmere::demo {

/// Writes files under one folder and nowhere else. The first failure is kept and everything after
/// it left undone, so that whoever writes asks once, at the end. Blocks on the disk.
class FolderWriter {
 public:
  explicit FolderWriter(QString root);

  [[nodiscard]] QString pathOf(const QString& relativePath) const;

  /// Each makes the folders that it stands in.
  void folder(const QString& relativePath);
  void file(const QString& relativePath, const QByteArray& content);
  void executable(const QString& relativePath, const QByteArray& content);
  /// A file of that many bytes that takes no room on the disk.
  void sparseFile(const QString& relativePath, qint64 size);
  /// A link to another path under the same root.
  void link(const QString& relativePath, const QString& target);

  /// What went wrong first, for people to read.
  [[nodiscard]] const std::optional<QString>& error() const { return error_; }

 private:
  void fail(const QString& path, const QString& problem);

  QString root_;
  std::optional<QString> error_;
};

}  // namespace quillmere::demo

#pragma once

#include <QtCore/QString>
#include <QtCore/QTemporaryDir>
#include <QtCore/QUrl>

#include <optional>

namespace quillmere::test {

/// A Homebrew prefix for a test to look at and to run.
class TestPrefix {
 public:
  /// An empty folder of its own, gone with this object.
  TestPrefix();
  /// A folder that is there already, and stays.
  explicit TestPrefix(const QString& path);

  [[nodiscard]] QString path() const { return path_; }

  [[nodiscard]] QUrl url() const { return QUrl::fromLocalFile(path()); }

  [[nodiscard]] QString pathOf(const QString& relativePath) const;

  /// Makes a folder, its parents included.
  TestPrefix& withFolder(const QString& relativePath);
  /// Makes a file, its folder included.
  TestPrefix& withFile(const QString& relativePath, const QByteArray& content = {});
  /// Makes an executable `bin/brew` out of a script; a first line that names the interpreter
  /// belongs to it.
  TestPrefix& withBrew(const QByteArray& script);
  /// Makes all seven well-known locations, each with a few believable entries.
  TestPrefix& withAllLocations();

 private:
  std::optional<QTemporaryDir> folder_;
  QString path_;
};

}  // namespace quillmere::test

#pragma once

#include <QtCore/QString>
#include <QtCore/QTemporaryDir>
#include <QtCore/QUrl>

#include <optional>

namespace quillmere::test {

/// A Homebrew prefix for a test to look at and to run.
class DemoPrefix {
 public:
  /// An empty folder of its own, gone with this object.
  DemoPrefix();
  /// A folder that is there already, and stays.
  explicit DemoPrefix(const QString& path);

  [[nodiscard]] QString path() const { return path_; }

  [[nodiscard]] QUrl url() const { return QUrl::fromLocalFile(path()); }

  [[nodiscard]] QString pathOf(const QString& relativePath) const;

  /// Makes a folder, its parents included.
  DemoPrefix& withFolder(const QString& relativePath);
  /// Makes a file, its folder included.
  DemoPrefix& withFile(const QString& relativePath, const QByteArray& content = {});
  /// Makes an executable `bin/brew` out of a script; a first line that names the interpreter
  /// belongs to it.
  DemoPrefix& withBrew(const QByteArray& script);
  /// Makes all seven well-known locations, each with a few believable entries.
  DemoPrefix& withAllLocations();

 private:
  std::optional<QTemporaryDir> folder_;
  QString path_;
};

}  // namespace quillmere::test

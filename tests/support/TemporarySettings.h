#pragma once

#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>
#include <QtCore/QUrl>

#include <memory>

namespace quillmere::test {

/// A settings file and a cache folder of a test's own, gone with this object.
class TemporarySettings {
 public:
  /// The settings as another start of the program would open them.
  [[nodiscard]] std::unique_ptr<QSettings> open() const {
    return std::make_unique<QSettings>(file(), QSettings::IniFormat);
  }

  [[nodiscard]] QString file() const { return folder_.filePath(QStringLiteral("Quillmere.conf")); }

  [[nodiscard]] QUrl cacheDirectoryURL() const {
    return QUrl::fromLocalFile(
        folder_.filePath(QStringLiteral("Application Support/CatalogCache")));
  }

 private:
  QTemporaryDir folder_;
};

}  // namespace quillmere::test

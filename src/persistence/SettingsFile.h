#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QSettings>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <optional>

namespace quillmere {

/// The settings on the disk as every window of the program reads and writes them, also those of
/// other processes. Nobody but the user may read them. Each call blocks on the disk; any thread.
class SettingsFile {
 public:
  explicit SettingsFile(const QSettings& settings);

  [[nodiscard]] const QString& name() const { return name_; }

  /// Empty if the key is absent or not bytes; nullopt if the file cannot be read.
  [[nodiscard]] std::optional<QByteArray> readBytes(QLatin1StringView key) const;

  /// Replaces the value of one key, or removes the key if `value` is invalid. Values that others
  /// wrote under other keys stay. Returns whether it is on the disk; if not, the file is unchanged.
  bool write(QLatin1StringView key, const QVariant& value) const;

 private:
  QString name_;
  QSettings::Format format_;
};

}  // namespace quillmere

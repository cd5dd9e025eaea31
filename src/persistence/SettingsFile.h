#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QSettings>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <optional>
#include <utility>
#include <vector>

namespace quillmere {

/// The settings on the disk as every window of the program reads and writes them, also those of
/// other processes. Nobody but the user may read them. Each call blocks on the disk; any thread.
class SettingsFile {
 public:
  explicit SettingsFile(const QSettings& settings);

  [[nodiscard]] const QString& name() const { return name_; }

  /// Empty if the key is absent or not bytes; nullopt if the file cannot be read.
  [[nodiscard]] std::optional<QByteArray> readBytes(QLatin1StringView key) const;

  /// A key with its new value; an invalid value removes the key.
  using Change = std::pair<QLatin1StringView, QVariant>;

  /// Makes all changes at once: a reader, or the next start after a crash, finds all of them or
  /// none. Values that others wrote under other keys stay. Returns whether they are on the disk; if
  /// not, the file is unchanged.
  bool write(const std::vector<Change>& changes) const;

 private:
  QString name_;
  QSettings::Format format_;
};

}  // namespace quillmere

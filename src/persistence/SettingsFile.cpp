#include "persistence/SettingsFile.h"

#include <QtCore/QFileInfo>

#include "platform/AtomicFile.h"
#include "platform/PrivateFile.h"

namespace quillmere {
namespace {

/// QSettings loses the old file with the new one, without an error, if the disk fills up while it
/// writes. So check for room first.
bool hasRoomFor(const QString& fileName, const std::vector<SettingsFile::Change>& changes) {
  constexpr qint64 longestEscape = 4;
  constexpr qint64 keyAndDate = 1024;
  qint64 size = QFileInfo(fileName).size();
  for (const auto& [key, value] : changes) {
    size += longestEscape * value.toByteArray().size() + keyAndDate;
  }
  return hasFreeSpaceFor(fileName, size);
}

}  // namespace

SettingsFile::SettingsFile(const QSettings& settings)
    : name_(settings.fileName()), format_(settings.format()) {
}

std::optional<QByteArray> SettingsFile::readBytes(QLatin1StringView key) const {
  const QSettings settings(name_, format_);
  if (settings.status() == QSettings::AccessError) {
    return std::nullopt;
  }
  const QVariant value = settings.value(key);
  return value.typeId() == QMetaType::QByteArray ? value.toByteArray() : QByteArray();
}

bool SettingsFile::write(const std::vector<Change>& changes) const {
  ensurePrivateFile(name_);
  if (!hasRoomFor(name_, changes)) {
    return false;
  }
  QSettings settings(name_, format_);
  for (const auto& [key, value] : changes) {
    if (value.isValid()) {
      settings.setValue(key, value);
    } else {
      settings.remove(key);
    }
  }
  settings.sync();
  return settings.status() != QSettings::AccessError;
}

}  // namespace quillmere

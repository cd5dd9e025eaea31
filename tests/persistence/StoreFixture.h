#pragma once

#include <QCoroTask>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QPointer>

#include <gtest/gtest.h>
#include <memory>
#include <vector>

#include "persistence/LocalPersistenceStore.h"
#include "support/Printers.h"
#include "support/TemporarySettings.h"

namespace quillmere::test {

inline const QDateTime monday =
    QDateTime::fromString(QStringLiteral("2026-11-16T08:00:00.125Z"), Qt::ISODateWithMs);
inline const QDateTime friday =
    QDateTime::fromString(QStringLiteral("2026-11-20T20:42:00.250Z"), Qt::ISODateWithMs);

inline CommandHistoryRecord copyOf(const QString& command) {
  CommandHistoryRecord record;
  record.id = QUuid::createUuid();
  record.command = command;
  record.copiedAt = friday;
  record.operationType = QStringLiteral("info");
  return record;
}

/// Stores over settings and a cache of the test's own, as often as the program is started.
class StoreFixture : public testing::Test {
 protected:
  std::unique_ptr<LocalPersistenceStore> start(
      std::shared_ptr<const SecurityScopedBookmarks> bookmarks = platformBookmarks()) const {
    settle();
    auto store = std::make_unique<LocalPersistenceStore>(settings_.open(),
                                                         settings_.cacheDirectoryURL(), bookmarks);
    stores_.emplace_back(store.get());
    return store;
  }

  /// What the stores wrote is on the disk now.
  void settle() const {
    for (const QPointer<LocalPersistenceStore>& store : stores_) {
      if (store) {
        QCoro::waitFor(store->flush());
      }
    }
  }

  void given(const QString& key, const QVariant& value) const {
    const auto settings = settings_.open();
    settings->setValue(key, value);
    settings->sync();
  }

  [[nodiscard]] QVariant stored(const QString& key) const {
    settle();
    return settings_.open()->value(key);
  }

  [[nodiscard]] QString cacheFile(const QString& name) const {
    return settings_.cacheDirectoryURL().toLocalFile() + u'/' + name;
  }

  void givenCacheFile(const QString& name, const QByteArray& content) const {
    QDir().mkpath(settings_.cacheDirectoryURL().toLocalFile());
    QFile file(cacheFile(name));
    ASSERT_TRUE(file.open(QFile::WriteOnly) && file.write(content) == content.size());
  }

  [[nodiscard]] QByteArray contentOf(const QString& name) const {
    QFile file(cacheFile(name));
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("(none)");
  }

  TemporarySettings settings_;

 private:
  mutable std::vector<QPointer<LocalPersistenceStore>> stores_;
};

}  // namespace quillmere::test

#include <QCoroTask>
#include <QtCore/QFile>

#include <gtest/gtest.h>

#include "persistence/LocalPersistenceStore.h"
#include "platform/PrivateFile.h"
#include "support/ForkedProcess.h"
#include "support/FullDisk.h"
#include "support/PermissionBits.h"
#include "support/TemporarySettings.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using Store = LocalPersistenceStore;
using test::exitedCleanly;
using test::runForked;

CommandHistoryRecord copyOf(const QString& command) {
  CommandHistoryRecord record;
  record.id = QUuid::createUuid();
  record.command = command;
  record.copiedAt = QDateTime::fromMSecsSinceEpoch(1'795'207'320'125, Qt::UTC);
  record.operationType = u"info"_s;
  return record;
}

std::unique_ptr<Store> startOver(const test::TemporarySettings& settings) {
  return std::make_unique<Store>(settings.open(), settings.cacheDirectoryURL());
}

/// A store over a copy of the file: what the disk holds, whatever this process remembers of it.
std::unique_ptr<Store> startOverTheBytesOf(const test::TemporarySettings& settings) {
  const QString copy = settings.file() + QUuid::createUuid().toString(QUuid::WithoutBraces);
  EXPECT_TRUE(QFile::copy(settings.file(), copy));
  return std::make_unique<Store>(std::make_unique<QSettings>(copy, QSettings::IniFormat),
                                 settings.cacheDirectoryURL());
}

TEST(SettingsFile, KeepsTheKeysOfTwoStoresThatWriteInTurn) {
  const test::TemporarySettings settings;
  const auto first = startOver(settings);
  const auto second = startOver(settings);
  first->setHasCompletedOnboarding(true);
  second->setSelectedHomebrewPrefixPath(u"/opt/homebrew"_s);
  first->appendHistory(copyOf(u"brew update"_s));
  second->setSelectedHomebrewPrefixPath(std::nullopt);
  second->setSelectedHomebrewPrefixBookmarkData("bookmark");
  QCoro::waitFor(first->flush());
  QCoro::waitFor(second->flush());
  const auto restarted = startOverTheBytesOf(settings);
  EXPECT_TRUE(restarted->hasCompletedOnboarding());
  EXPECT_EQ(restarted->selectedHomebrewPrefixPath(), std::nullopt);
  EXPECT_EQ(restarted->selectedHomebrewPrefixBookmarkData(), "bookmark");
  EXPECT_EQ(restarted->commandHistory(), first->commandHistory());
}

TEST(SettingsFile, KeepsTheKeysOfAnotherProcessThatWasOpenAllTheTime) {
  const test::TemporarySettings settings;
  const auto store = startOver(settings);
  store->setHasCompletedOnboarding(true);
  QCoro::waitFor(store->flush());
  ASSERT_TRUE(exitedCleanly(runForked([&] {
    const auto other = startOver(settings);
    other->setSelectedHomebrewPrefixPath(u"/opt/homebrew"_s);
    other->appendHistory(copyOf(u"brew update"_s));
  })));
  store->setSelectedHomebrewPrefixBookmarkData("bookmark");
  QCoro::waitFor(store->flush());
  const auto restarted = startOverTheBytesOf(settings);
  EXPECT_TRUE(restarted->hasCompletedOnboarding());
  EXPECT_EQ(restarted->selectedHomebrewPrefixPath(), u"/opt/homebrew"_s);
  EXPECT_EQ(restarted->selectedHomebrewPrefixBookmarkData(), "bookmark");
  EXPECT_EQ(restarted->commandHistory().size(), 1);
}

TEST(SettingsFile, KeepsTheKeysOfTwoProcessesThatWriteAtTheSameTime) {
  const test::TemporarySettings settings;
  constexpr int rounds = 50;
  const pid_t paths = runForked([&] {
    const auto store = startOver(settings);
    for (int i = 0; i <= rounds; ++i) {
      store->setSelectedHomebrewPrefixPath(u"/prefix/"_s + QString::number(i));
    }
  });
  const pid_t histories = runForked([&] {
    const auto store = startOver(settings);
    for (int i = 0; i < rounds; ++i) {
      store->appendHistory(copyOf(u"brew update"_s));
    }
  });
  EXPECT_TRUE(exitedCleanly(paths));
  EXPECT_TRUE(exitedCleanly(histories));
  const auto restarted = startOverTheBytesOf(settings);
  EXPECT_EQ(restarted->selectedHomebrewPrefixPath(), u"/prefix/50"_s);
  EXPECT_EQ(restarted->commandHistory().size(), rounds);
}

TEST(SettingsFile, IsForItsOwnerAlone) {
  const test::TemporarySettings settings;
  startOver(settings)->setHasCompletedOnboarding(true);
  EXPECT_EQ(test::permissionBits(settings.file()), 0600);
  ASSERT_TRUE(QFile::setPermissions(settings.file(), ownerOnly | QFile::ReadOther));
  startOver(settings)->setHasCompletedOnboarding(false);
  EXPECT_EQ(test::permissionBits(settings.file()), 0600);
  ASSERT_TRUE(QFile::setPermissions(settings.file(), ownerOnly | QFile::ReadGroup));
  startOver(settings);
  EXPECT_EQ(test::permissionBits(settings.file()), 0600) << "of an earlier version";
}

/// Short and long values fail at different moments of a write.
TEST(SettingsFile, KeepsTheOldValuesOnAFullDisk) {
  const test::TemporarySettings settings;
  const CommandHistory history = {copyOf(u"brew update"_s)};
  const auto store = startOver(settings);
  store->setCommandHistory(history);
  store->setSelectedHomebrewPrefixPath(u"/opt/homebrew"_s);
  QCoro::waitFor(store->flush());
  const qint64 size = QFile(settings.file()).size();
  for (const qint64 room : {qint64(0), size / 2, size - 1, size, size + 50}) {
    for (const qsizetype length : {10, 5'000, 20'000, 100'000, 1'000'000}) {
      EXPECT_TRUE(test::runWithDiskLimit(room, [&] {
        const auto other = startOver(settings);
        other->appendHistory(copyOf(QString(length, u'x')));
        other->setSelectedHomebrewPrefixPath(std::nullopt);
        other->setSelectedHomebrewPrefixPath(QString(length, u'x'));
        return other->commandHistory().size() == 2;
      }));
      const auto restarted = startOverTheBytesOf(settings);
      EXPECT_EQ(restarted->commandHistory(), history) << room << ' ' << length;
      EXPECT_EQ(restarted->selectedHomebrewPrefixPath(), u"/opt/homebrew"_s);
    }
  }
}

TEST(SettingsFile, IsWrittenAgainOnceThereIsRoom) {
  const test::TemporarySettings settings;
  startOver(settings)->setHasCompletedOnboarding(true);
  EXPECT_TRUE(test::runWithDiskLimit(0, [&] {
    startOver(settings)->resetOnboarding();
    return true;
  }));
  EXPECT_TRUE(startOverTheBytesOf(settings)->hasCompletedOnboarding());
  startOver(settings)->resetOnboarding();
  EXPECT_FALSE(startOverTheBytesOf(settings)->hasCompletedOnboarding());
}

TEST(SettingsFile, KeepsTheOldDocumentOnAFullDisk) {
  const test::TemporarySettings settings;
  QCoro::waitFor(
      startOver(settings)->saveFormulaCatalog("[]", QDateTime::fromMSecsSinceEpoch(1000, Qt::UTC)));
  EXPECT_TRUE(test::runWithDiskLimit(4096, [&] {
    const QDateTime later = QDateTime::fromMSecsSinceEpoch(2000, Qt::UTC);
    const auto store = startOver(settings);
    QCoro::waitFor(store->saveFormulaCatalog(QByteArray(100'000, ' '), later));
    return store->catalogLastRefreshDate() == later;
  }));
  QFile document(startOver(settings)->formulaCacheURL().toLocalFile());
  ASSERT_TRUE(document.open(QFile::ReadOnly));
  EXPECT_EQ(document.readAll(), "[]");
}

TEST(SettingsFile, HidesNoSettingsOfTheWholeMachineBehindAReset) {
  const test::TemporarySettings settings;
  auto defaults = settings.open();
  const QSettings* borrowed = defaults.get();
  const Store store(std::move(defaults), settings.cacheDirectoryURL());
  EXPECT_FALSE(borrowed->fallbacksEnabled());
}

}  // namespace
}  // namespace quillmere

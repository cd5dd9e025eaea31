#include <QtCore/QSet>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <gtest/gtest.h>

#include "StoreFixture.h"
#include "persistence/SharedHistory.h"
#include "platform/PrivateFile.h"
#include "support/ForkedProcess.h"
#include "support/FullDisk.h"
#include "support/Rounds.h"
#include "support/UnprivilegedUser.h"

// Windows of several starts of the program, open at the same time on the same settings.

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using test::copyOf;

class SeveralWindows : public test::StoreFixture {
 protected:
  /// What the disk holds, newest first.
  [[nodiscard]] QStringList storedCommands() const {
    return commandsOf(
        decodeCommandHistory(stored(u"commandHistory"_s).toByteArray()).value_or(CommandHistory()));
  }

  static QStringList commandsOf(const CommandHistory& history) {
    QStringList commands;
    for (const CommandHistoryRecord& record : history) {
      commands += record.command;
    }
    return commands;
  }

  static bool comesToShow(const LocalPersistenceStore& store, const QStringList& commands) {
    return QTest::qWaitFor([&] { return commandsOf(store.commandHistory()) == commands; });
  }
};

TEST_F(SeveralWindows, AddToEachOthersHistory) {
  const auto first = start();
  const auto second = start();
  first->appendHistory(copyOf(u"brew info a"_s));
  settle();
  second->appendHistory(copyOf(u"brew info b"_s));
  settle();
  first->appendHistory(copyOf(u"brew info c"_s));
  const QStringList all = {u"brew info c"_s, u"brew info b"_s, u"brew info a"_s};
  EXPECT_EQ(storedCommands(), all);
  EXPECT_TRUE(comesToShow(*first, all));
  EXPECT_EQ(commandsOf(start()->commandHistory()), all);
}

TEST_F(SeveralWindows, ShowNewRecordsBeforeThoseOfOthers) {
  const auto first = start();
  const auto second = start();
  first->appendHistory(copyOf(u"brew info a"_s));
  settle();
  second->appendHistory(copyOf(u"brew info b"_s));
  second->appendHistory(copyOf(u"brew info c"_s));
  const QStringList all = {u"brew info c"_s, u"brew info b"_s, u"brew info a"_s};
  EXPECT_TRUE(comesToShow(*second, all));
  EXPECT_EQ(storedCommands(), all);
}

TEST_F(SeveralWindows, ForgetWhatOthersAddedWhereTheUserClearsTheHistory) {
  const auto first = start();
  const auto second = start();
  first->appendHistory(copyOf(u"brew info a"_s));
  settle();
  second->appendHistory(copyOf(u"brew info b"_s));
  second->clearHistory();
  EXPECT_EQ(storedCommands(), QStringList());
  QTest::qWait(1);
  EXPECT_TRUE(second->commandHistory().isEmpty());
  first->appendHistory(copyOf(u"brew info c"_s));
  EXPECT_TRUE(comesToShow(*first, {u"brew info c"_s}));
  EXPECT_EQ(storedCommands(), QStringList(u"brew info c"_s));
}

TEST_F(SeveralWindows, CatchUpWithOthers) {
  const auto first = start();
  const auto second = start();
  int changes = 0;
  QObject::connect(second.get(), &LocalPersistenceStore::commandHistoryChanged,
                   [&changes] { ++changes; });
  first->appendHistory(copyOf(u"brew info a"_s));
  settle();
  second->refreshHistory();
  EXPECT_TRUE(comesToShow(*second, {u"brew info a"_s}));
  EXPECT_EQ(changes, 1);
  second->refreshHistory();
  settle();
  QTest::qWait(1);
  EXPECT_EQ(changes, 1);
}

TEST_F(SeveralWindows, CatchUpWithAHistoryThatNobodyCanReadAsWithNone) {
  const auto store = start();
  store->appendHistory(copyOf(u"brew info a"_s));
  settle();
  given(u"commandHistory"_s, QByteArray("[{}"));
  store->appendHistory(copyOf(u"brew info b"_s));
  EXPECT_EQ(storedCommands(), QStringList(u"brew info b"_s));
}

TEST_F(SeveralWindows, AddToAHistoryWrittenByHand) {
  const auto store = start();
  for (const QByteArray& history : {QByteArray(" [ ] "), QByteArray("\n[\n]")}) {
    given(u"commandHistory"_s, history);
    store->appendHistory(copyOf(u"brew info b"_s));
    EXPECT_EQ(storedCommands(), QStringList(u"brew info b"_s));
  }
}

TEST_F(SeveralWindows, WaitNotForTheLockOfAProgramKilledWhileItMadeIt) {
  QFile lock(settings_.file() + u".history.lock"_s);
  ASSERT_TRUE(lock.open(QFile::WriteOnly));
  ASSERT_TRUE(
      lock.setFileTime(QDateTime::currentDateTime().addSecs(-10), QFile::FileModificationTime));
  lock.close();
  start()->appendHistory(copyOf(u"brew info a"_s));
  EXPECT_EQ(storedCommands(), QStringList(u"brew info a"_s));
}

/// Out of descriptors, for a moment, say: what one window cannot see is not gone for the other.
TEST(SharedHistory, WaitsWhileNobodyCanReadTheSettings) {
  EXPECT_TRUE(test::runUnprivileged([] {
    const test::TemporarySettings settings;
    const SettingsFile file(*settings.open());
    SharedHistory window(file);
    (void)SharedHistory(file).prepend(copyOf(u"brew info of another window"_s));
    QFile onDisk(settings.file());
    const bool isChanged = onDisk.open(QFile::Append) && onDisk.write(";\n") == 2;
    onDisk.close();
    const bool isUnreadable =
        isChanged && onDisk.setPermissions({}) && !file.readBytes(SharedHistory::key);
    const bool knowsNothing = !window.prepend(copyOf(u"brew info a"_s)) && !window.synchronize();
    const bool isBack = onDisk.setPermissions(ownerOnly);
    const auto all = window.prepend(copyOf(u"brew info b"_s));
    return isUnreadable && knowsNothing && isBack && all && all->size() == 3 &&
           decodeCommandHistory(file.readBytes(SharedHistory::key).value_or(QByteArray())) == all;
  }));
}

/// A user who cleans up while the program runs may remove it.
TEST(SharedHistory, MakesTheFolderOfTheSettings) {
  const QTemporaryDir folder;
  const SettingsFile file(
      QSettings(folder.filePath(u"missing/folder/Quillmere.conf"_s), QSettings::IniFormat));
  const CommandHistoryRecord record = copyOf(u"brew info a"_s);
  (void)SharedHistory(file).prepend(record);
  EXPECT_EQ(decodeCommandHistory(file.readBytes(SharedHistory::key).value_or(QByteArray())),
            CommandHistory{record});
}

TEST_F(SeveralWindows, LoseNoRecordThatTheyWriteAtTheSameTime) {
  constexpr int windows = 4;
  const int records = test::rounds(25, 1000);
  std::vector<pid_t> processes;
  for (int window = 0; window < windows; ++window) {
    processes.push_back(test::runForked([&] {
      const auto store = start();
      for (int i = 0; i < records; ++i) {
        store->appendHistory(copyOf(QString::number(window) + u':' + QString::number(i)));
      }
    }));
  }
  for (const pid_t process : processes) {
    EXPECT_TRUE(test::exitedCleanly(process));
  }
  const QStringList all = storedCommands();
  EXPECT_EQ(all.size(), windows * records);
  EXPECT_EQ(QSet<QString>(all.begin(), all.end()).size(), all.size());
  for (int window = 0; window < windows; ++window) {
    const QStringList own = all.filter(QString::number(window) + u':');
    for (int i = 0; i < own.size(); ++i) {
      EXPECT_EQ(own[i], QString::number(window) + u':' + QString::number(records - 1 - i));
    }
  }
}

/// A record that finds no room waits for the next one, a history that could not be cleared too.
TEST_F(SeveralWindows, WriteLaterWhatFoundNoRoom) {
  start()->appendHistory(copyOf(u"brew info old"_s));
  settle();
  for (const bool clears : {false, true}) {
    const auto limited = [&] {
      const auto store = start();
      clears ? store->clearHistory() : store->appendHistory(copyOf(u"brew info new"_s));
      QCoro::waitFor(store->flush());
      const bool isAsBefore = storedCommands() == QStringList(u"brew info old"_s);
      const bool hasRoom = test::restoreDiskSpace();
      store->appendHistory(copyOf(u"brew info newest"_s));
      QCoro::waitFor(store->flush());
      const QStringList all = storedCommands();
      const QStringList expected =
          clears ? QStringList(u"brew info newest"_s)
                 : QStringList{u"brew info newest"_s, u"brew info new"_s, u"brew info old"_s};
      start()->setCommandHistory({copyOf(u"brew info old"_s)});
      return isAsBefore && hasRoom && all == expected;
    };
    EXPECT_TRUE(test::runWithDiskLimit(0, limited)) << clears;
  }
}

}  // namespace
}  // namespace quillmere

#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <gtest/gtest.h>

#include "persistence/LocalPersistenceStore.h"
#include "platform/DateTexts.h"
#include "screens/history/CommandHistoryViewModel.h"
#include "support/BackgroundThreadBlocker.h"
#include "support/Printers.h"
#include "support/TemporarySettings.h"

namespace quillmere {
namespace {

using Role = CommandHistoryListModel::Role;

CommandHistoryRecord copied(const QString& command) {
  return {.id = QUuid::createUuid(),
          .command = command,
          .copiedAt = QDateTime::fromSecsSinceEpoch(1'000'000'000, Qt::UTC),
          .operationType = QStringLiteral("upgrade"),
          .packageTarget = QStringLiteral("wget"),
          .sourceScreen = QStringLiteral("Updates")};
}

CommandHistoryRecord executed(std::int32_t exitCode, bool cancelled = false) {
  CommandHistoryRecord record = copied(QStringLiteral("brew upgrade wget"));
  record.copied = false;
  record.executed = true;
  record.executionEndedAt = QDateTime::fromSecsSinceEpoch(1'100'000'000, Qt::UTC);
  record.executionExitCode = exitCode;
  record.executionCancelled = cancelled;
  return record;
}

class CommandHistoryScreen : public testing::Test {
 protected:
  [[nodiscard]] QVariant at(int row, Role role) const {
    return history.records()->index(row).data(role);
  }

  test::TemporarySettings settings;
  LocalPersistenceStore store{settings.open(), settings.cacheDirectoryURL()};
  mutable CommandHistoryViewModel history{store};
  QAbstractItemModelTester tester{history.records(),
                                  QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(CommandHistoryScreen, SaysInARowWhatCameOfTheRun) {
  CommandHistoryRecord record = executed(0);
  record.executionOutputSummary = QStringLiteral("==> Would upgrade 1 outdated package");
  store.appendHistory(record);
  record.id = QUuid::createUuid();
  record.executionOutcome = QStringLiteral("Upgraded wget 1.24 to\n1.25");
  store.appendHistory(record);
  EXPECT_EQ(at(0, Role::SentenceRole).toString(), QStringLiteral("Upgraded wget 1.24 to 1.25"));
  EXPECT_EQ(at(1, Role::SentenceRole).toString(), QString());
  EXPECT_EQ(at(0, Role::DescriptionRole).toString(),
            QStringLiteral("Executed. Upgraded wget 1.24 to 1.25"));
  EXPECT_EQ(at(1, Role::DescriptionRole).toString(), QStringLiteral("Executed"));
  EXPECT_EQ(at(1, Role::OutputRole).toString(),
            QStringLiteral("==> Would upgrade 1 outdated package"));
}

TEST_F(CommandHistoryScreen, SaysOnlyOnceThatARunWasCancelled) {
  CommandHistoryRecord record = executed(1, true);
  record.executionOutcome = QStringLiteral("Cancelled while upgrading wget");
  store.appendHistory(record);
  record.executionOutcome = QStringLiteral("Upgraded wget");
  store.appendHistory(record);
  EXPECT_EQ(at(0, Role::DescriptionRole).toString(), QStringLiteral("Cancelled. Upgraded wget"));
  EXPECT_EQ(at(1, Role::DescriptionRole).toString(),
            QStringLiteral("Cancelled while upgrading wget"));
}

TEST_F(CommandHistoryScreen, IsEmptyWithoutRecords) {
  EXPECT_EQ(history.state(), CommandHistoryViewModel::Empty);
}

TEST_F(CommandHistoryScreen, SaysThatALongHistoryIsBeingRead) {
  CommandHistory records;
  for (int i = 0; i < 2000; ++i) {
    records += copied(QStringLiteral("brew info package-%1").arg(i));
  }
  store.setCommandHistory(records);
  QCoro::waitFor(store.flush());
  std::unique_ptr<LocalPersistenceStore> later;
  std::unique_ptr<CommandHistoryViewModel> screen;
  {
    const test::BackgroundThreadBlocker blocker;
    later = std::make_unique<LocalPersistenceStore>(settings.open(), settings.cacheDirectoryURL());
    screen = std::make_unique<CommandHistoryViewModel>(*later);
    EXPECT_EQ(screen->state(), CommandHistoryViewModel::Reading);
  }
  QSignalSpy changed(screen.get(), &CommandHistoryViewModel::stateChanged);
  ASSERT_TRUE(changed.wait());
  EXPECT_EQ(screen->state(), CommandHistoryViewModel::Listed);
}

TEST_F(CommandHistoryScreen, ShowsTheNewestRecordFirstWithoutMovingTheOthers) {
  store.appendHistory(copied(QStringLiteral("brew upgrade wget")));
  const QSignalSpy replaced(history.records(), &CommandHistoryListModel::rowsReplaced);
  store.appendHistory(copied(QStringLiteral("brew cleanup")));

  EXPECT_EQ(at(0, Role::CommandRole).toString(), QStringLiteral("brew cleanup"));
  EXPECT_EQ(at(1, Role::CommandRole).toString(), QStringLiteral("brew upgrade wget"));
  EXPECT_TRUE(replaced.isEmpty());
  EXPECT_EQ(history.state(), CommandHistoryViewModel::Listed);
}

TEST_F(CommandHistoryScreen, ShowsOperationTargetAndSourceScreenOfARow) {
  store.appendHistory(copied(QStringLiteral("brew upgrade wget")));
  EXPECT_EQ(at(0, Role::DetailsRole).toString(),
            QStringLiteral("Operation upgrade  \u00b7  wget  \u00b7  Updates"));
}

TEST_F(CommandHistoryScreen, LeavesOutTargetAndSourceScreenThatAreAbsent) {
  CommandHistoryRecord record = copied(QStringLiteral("brew update"));
  record.packageTarget.reset();
  record.sourceScreen.reset();
  store.appendHistory(record);
  EXPECT_EQ(at(0, Role::DetailsRole).toString(), QStringLiteral("Operation upgrade"));
}

TEST_F(CommandHistoryScreen, MarksACancelledRunAndNoOther) {
  store.appendHistory(executed(143, true));
  store.appendHistory(executed(0));
  EXPECT_FALSE(at(0, Role::CancelledRole).toBool());
  EXPECT_TRUE(at(1, Role::CancelledRole).toBool());
}

TEST_F(CommandHistoryScreen, NamesTheOutcomeOfEachKindOfRecord) {
  store.appendHistory(executed(1));
  store.appendHistory(executed(0));
  store.appendHistory(copied(QStringLiteral("brew cleanup")));
  EXPECT_EQ(at(0, Role::OutcomeTextRole).toString(), QStringLiteral("Copied"));
  EXPECT_EQ(at(1, Role::OutcomeTextRole).toString(), QStringLiteral("Executed"));
  EXPECT_EQ(at(2, Role::OutcomeTextRole).toString(), QStringLiteral("Exit code 1"));
  EXPECT_TRUE(at(2, Role::FailedRole).toBool());
}

TEST_F(CommandHistoryScreen, SpeaksACopyWithTheTimeOfTheCopy) {
  const CommandHistoryRecord record = copied(QStringLiteral("brew upgrade wget"));
  EXPECT_EQ(accessibleLabel(record),
            QStringLiteral("Command brew upgrade wget, operation upgrade, target wget, source "
                           "Updates, copied ") +
                dateText(record.copiedAt));
}

TEST_F(CommandHistoryScreen, SpeaksARunWithTheTimeOfItsEnd) {
  const CommandHistoryRecord record = executed(0);
  EXPECT_TRUE(accessibleLabel(record).endsWith(QStringLiteral(", executed ") +
                                               dateText(*record.executionEndedAt)));
}

TEST_F(CommandHistoryScreen, SpeaksOfMissingTargetAndSource) {
  CommandHistoryRecord record = copied(QStringLiteral("brew update"));
  record.packageTarget.reset();
  record.sourceScreen.reset();
  EXPECT_TRUE(accessibleLabel(record).contains(
      QStringLiteral(", target no target, source unknown source, copied ")));
}

TEST_F(CommandHistoryScreen, AsksBeforeItClears) {
  store.appendHistory(executed(0));
  history.askClear();
  EXPECT_TRUE(history.showsClearConfirmation());
  EXPECT_EQ(store.commandHistory().size(), 1);
}

TEST_F(CommandHistoryScreen, KeepsEverythingWhenTheQuestionIsCancelled) {
  store.appendHistory(executed(0));
  history.askClear();
  history.cancelClear();
  EXPECT_FALSE(history.showsClearConfirmation());
  EXPECT_EQ(store.commandHistory().size(), 1);
}

TEST_F(CommandHistoryScreen, ShowsTheEmptyStateAtOnceAfterClearing) {
  store.appendHistory(executed(0));
  const QSignalSpy changed(&history, &CommandHistoryViewModel::stateChanged);
  history.askClear();
  history.confirmClear();
  EXPECT_EQ(history.state(), CommandHistoryViewModel::Empty);
  EXPECT_FALSE(changed.isEmpty());
  EXPECT_FALSE(history.showsClearConfirmation());
}

TEST(CommandHistoryOfYears, IsShownWhenItHasBeenRead) {
  const test::TemporarySettings settings;
  {
    LocalPersistenceStore before(settings.open(), settings.cacheDirectoryURL());
    CommandHistory history;
    for (int i = 0; i < 2000; ++i) {
      history += copied(QStringLiteral("brew info package-%1").arg(i));
    }
    before.setCommandHistory(history);
  }
  const LocalPersistenceStore store(settings.open(), settings.cacheDirectoryURL());
  CommandHistoryListModel records(store, QLocale::c());
  const QAbstractItemModelTester tester(&records,
                                        QAbstractItemModelTester::FailureReportingMode::Fatal);
  EXPECT_EQ(records.rowCount(), 0);
  EXPECT_TRUE(QTest::qWaitFor([&records] { return records.rowCount() == 2000; }));
}

}  // namespace
}  // namespace quillmere

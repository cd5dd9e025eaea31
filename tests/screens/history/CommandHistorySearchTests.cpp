#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <QtCore/QThreadPool>
#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <algorithm>
#include <gtest/gtest.h>

#include "persistence/LocalPersistenceStore.h"
#include "platform/BackgroundThreads.h"
#include "screens/history/CommandHistoryViewModel.h"
#include "support/Printers.h"
#include "support/TemporarySettings.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;

constexpr int patience = 20'000;

CommandHistoryRecord copiedUpdate() {
  return {.id = QUuid::createUuid(),
          .command = u"brew update"_s,
          .copiedAt = QDateTime::fromSecsSinceEpoch(1'000'000'000, Qt::UTC),
          .operationType = u"update"_s,
          .sourceScreen = u"Updates"_s};
}

CommandHistoryRecord executedUpgrade(std::int32_t exitCode = 0) {
  CommandHistoryRecord record = copiedUpdate();
  record.command = u"brew upgrade wget"_s;
  record.operationType = u"upgrade"_s;
  record.packageTarget = u"wget"_s;
  record.copied = false;
  record.executed = true;
  record.executionExitCode = exitCode;
  record.executionCancelled = false;
  return record;
}

CommandHistoryRecord cancelledInstall() {
  CommandHistoryRecord record = executedUpgrade(143);
  record.command = u"brew install --cask firefox"_s;
  record.operationType = u"install"_s;
  record.packageTarget = u"firefox"_s;
  record.sourceScreen = u"Browse"_s;
  record.executionCancelled = true;
  record.executionOutputSummary = u"Cr\u00e8me br\u00fbl\u00e9e"_s;
  return record;
}

/// With the letter whose small one the languages disagree about.
CommandHistoryRecord copiedInCapitals() {
  CommandHistoryRecord record = copiedUpdate();
  record.packageTarget = u"ISL"_s;
  return record;
}

TEST(SearchTextOfARecord, JoinsNineTextsInOrder) {
  EXPECT_EQ(searchText(cancelledInstall()),
            u"brew install --cask firefox install firefox Browse not copied executed 143 "
            u"cancelled Cr\u00e8me br\u00fbl\u00e9e"_s);
}

TEST(SearchTextOfARecord, KeepsThePlaceOfWhatIsAbsent) {
  CommandHistoryRecord record = copiedUpdate();
  record.sourceScreen.reset();
  EXPECT_EQ(searchText(record), u"brew update update   copied not executed   "_s);
}

class CommandHistorySearch : public testing::Test {
 protected:
  CommandHistorySearch() {
    store.appendHistory(cancelledInstall());
    store.appendHistory(executedUpgrade());
    store.appendHistory(copiedUpdate());
  }

  /// Until what another thread makes ready has arrived.
  static void waitUntilReady() {
    ASSERT_TRUE(backgroundThreads()->waitForDone(patience));
    QCoreApplication::processEvents();
  }

  [[nodiscard]] QStringList found(const QString& query) { return found(query, history); }

  /// The commands of the records that are found, in the order of the rows.
  [[nodiscard]] static QStringList found(const QString& query, CommandHistoryViewModel& searched) {
    searched.setSearchText(query);
    QStringList commands;
    for (int row = 0; row < searched.records()->rowCount(); ++row) {
      commands +=
          searched.records()->index(row).data(CommandHistoryListModel::CommandRole).toString();
    }
    return commands;
  }

  const QString update = u"brew update"_s;
  const QString upgrade = u"brew upgrade wget"_s;
  const QString install = u"brew install --cask firefox"_s;
  const QLocale turkish{QLocale::Turkish, QLocale::Turkey};
  test::TemporarySettings settings;
  LocalPersistenceStore store{settings.open(), settings.cacheDirectoryURL()};
  CommandHistoryViewModel history{store};
  QAbstractItemModelTester tester{history.records(),
                                  QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(CommandHistorySearch, ShowsEverythingForAnEmptyQuery) {
  EXPECT_EQ(found(u" \n\t "_s), (QStringList{update, upgrade, install}));
  EXPECT_EQ(history.matchesText(), QString());
}

TEST_F(CommandHistorySearch, FindsExactlyTheCopiesByNotExecuted) {
  EXPECT_EQ(found(u"not executed"_s), QStringList{update});
}

TEST_F(CommandHistorySearch, FindsExactlyTheCancelledRuns) {
  EXPECT_EQ(found(u"cancelled"_s), QStringList{install});
}

TEST_F(CommandHistorySearch, FindsAnExitCodeAndEveryOtherFieldWithItsDigit) {
  store.appendHistory(executedUpgrade(1));
  CommandHistoryRecord python = copiedUpdate();
  python.command = u"brew info python@3.11"_s;
  store.appendHistory(python);
  EXPECT_EQ(found(u"1"_s), (QStringList{python.command, upgrade, install}));
}

TEST_F(CommandHistorySearch, IgnoresCaseAndDiacriticsAndWhiteSpaceAround) {
  EXPECT_EQ(found(u"  CREME Brulee\n"_s), QStringList{install});
  EXPECT_EQ(found(u"BR\u00dbL\u00c9E"_s), QStringList{install});
}

TEST_F(CommandHistorySearch, KnowsTheLettersOfTheLanguage) {
  store.appendHistory(copiedInCapitals());
  CommandHistoryViewModel inTurkish(store, turkish);
  CommandHistoryViewModel inEnglish(store, QLocale(u"en_US"_s));
  EXPECT_EQ(found(u"\u0131sl"_s, inTurkish), QStringList{update});
  EXPECT_EQ(found(u"\u0131sl"_s, inEnglish), QStringList());
  store.appendHistory(copiedInCapitals());
  EXPECT_EQ(found(u"ISL"_s, inTurkish), (QStringList{update, update}));
  EXPECT_EQ(found(u"isl"_s, inTurkish), QStringList());
  EXPECT_EQ(found(u"isl"_s, inEnglish), (QStringList{update, update}));
}

TEST_F(CommandHistorySearch, FindsAcrossTheBorderOfTwoTexts) {
  EXPECT_EQ(found(u"wget upgrade wget updates"_s), QStringList{upgrade});
}

TEST_F(CommandHistorySearch, KeepsTheOrderOfTheRecords) {
  EXPECT_EQ(found(u"executed"_s), (QStringList{update, upgrade, install}));
  EXPECT_EQ(found(u"updates"_s), (QStringList{update, upgrade}));
}

TEST_F(CommandHistorySearch, SaysHowMuchItFound) {
  history.setSearchText(u"updates"_s);
  EXPECT_EQ(history.state(), CommandHistoryViewModel::Listed);
  EXPECT_EQ(history.matchesText(), u"2 of 3 commands"_s);
}

TEST_F(CommandHistorySearch, SaysWhenNothingMatches) {
  history.setSearchText(u"nothing like it"_s);
  EXPECT_EQ(history.state(), CommandHistoryViewModel::NoMatch);
  EXPECT_EQ(history.matchesText(), u"No History Matches"_s);
  history.clearSearch();
  EXPECT_EQ(history.searchText(), QString());
  EXPECT_EQ(history.state(), CommandHistoryViewModel::Listed);
}

TEST_F(CommandHistorySearch, ShowsANewRecordThatMatchesWithoutMovingTheOthers) {
  history.setSearchText(u"wget"_s);
  const QSignalSpy inserted(history.records(), &QAbstractItemModel::rowsInserted);
  const QSignalSpy replaced(history.records(), &CommandHistoryListModel::rowsReplaced);
  store.appendHistory(executedUpgrade());
  EXPECT_EQ(inserted.size(), 1);
  store.appendHistory(copiedUpdate());
  EXPECT_EQ(inserted.size(), 1);
  EXPECT_TRUE(replaced.isEmpty());
  EXPECT_EQ(history.matchesText(), u"2 of 5 commands"_s);
  EXPECT_EQ(found(u"wget"_s), (QStringList{upgrade, upgrade}));
}

TEST_F(CommandHistorySearch, IsEmptyAtOnceWhenTheHistoryIsCleared) {
  history.setSearchText(u"wget"_s);
  store.clearHistory();
  EXPECT_EQ(history.state(), CommandHistoryViewModel::Empty);
  store.appendHistory(copiedUpdate());
  EXPECT_EQ(history.state(), CommandHistoryViewModel::NoMatch);
  EXPECT_EQ(found(u"update"_s), QStringList{update});
}

CommandHistory manyInstalls(int count) {
  CommandHistory many(count);
  std::ranges::generate(many, [number = 0]() mutable {
    CommandHistoryRecord record = cancelledInstall();
    record.command += QString::number(number++);
    record.executionOutputSummary = u"==> Downloading caf\u00e9 "_s.repeated(23);
    return record;
  });
  return many;
}

TEST_F(CommandHistorySearch, FindsWhatCameWhileALargeHistoryWasMadeReady) {
  store.setCommandHistory(manyInstalls(1000));
  history.setSearchText(u"wget"_s);
  store.appendHistory(executedUpgrade());
  store.appendHistory(copiedUpdate());
  EXPECT_EQ(history.records()->rowCount(), 1002);
  EXPECT_TRUE(QTest::qWaitFor([this] { return history.records()->isFiltered(); }, patience));
  EXPECT_EQ(history.matchesText(), u"1 of 1002 commands"_s);
  EXPECT_EQ(found(u"wget"_s), QStringList{upgrade});
}

TEST_F(CommandHistorySearch, KnowsTheLettersOfTheLanguageInALargeHistory) {
  CommandHistory many = manyInstalls(1000);
  many.last() = copiedInCapitals();
  store.setCommandHistory(many);
  CommandHistoryViewModel inTurkish(store, turkish);
  inTurkish.setSearchText(u"\u0131sl"_s);
  store.appendHistory(copiedInCapitals());
  EXPECT_TRUE(QTest::qWaitFor([&] { return inTurkish.records()->isFiltered(); }, patience));
  EXPECT_EQ(inTurkish.matchesText(), u"2 of 1001 commands"_s);
}

TEST_F(CommandHistorySearch, SearchesTheHistoryThatTookThePlaceOfALargeOne) {
  store.setCommandHistory(manyInstalls(1000));
  history.setSearchText(u"firefox1999"_s);
  store.setCommandHistory(manyInstalls(2000));
  EXPECT_TRUE(QTest::qWaitFor([this] { return history.records()->isFiltered(); }, patience));
  EXPECT_EQ(history.matchesText(), u"1 of 2000 commands"_s);
  history.setSearchText(u"firefox1"_s);
  store.clearHistory();
  EXPECT_EQ(history.state(), CommandHistoryViewModel::Empty);
}

TEST_F(CommandHistorySearch, ForgetsAQuestionThatWasTakenBackBeforeItWasAnswered) {
  store.setCommandHistory(manyInstalls(1000));
  history.setSearchText(u"wget"_s);
  history.clearSearch();
  const QSignalSpy replaced(history.records(), &CommandHistoryListModel::rowsReplaced);
  waitUntilReady();
  EXPECT_TRUE(replaced.isEmpty());
  EXPECT_EQ(history.records()->rowCount(), 1000);
  EXPECT_EQ(history.matchesText(), QString());
}

TEST_F(CommandHistorySearch, FindsTheFirstLetterAtOnceWhenTheScreenWasEnteredBefore) {
  store.setCommandHistory(manyInstalls(1000));
  history.setSearchText(u"left from the last visit"_s);
  history.appear();
  EXPECT_EQ(history.searchText(), QString());
  waitUntilReady();
  history.setSearchText(u"f"_s);
  EXPECT_TRUE(history.records()->isFiltered());
}

TEST_F(CommandHistorySearch, MakesALargeHistoryReadyElsewhereAndThenFindsEveryLetterAtOnce) {
  store.setCommandHistory(manyInstalls(10'000));
  QElapsedTimer first;
  first.start();
  history.setSearchText(u"f"_s);
  RecordProperty("milliseconds_of_the_first_letter", static_cast<int>(first.elapsed()));
  EXPECT_FALSE(history.records()->isFiltered());
  EXPECT_EQ(history.state(), CommandHistoryViewModel::Listed);
  EXPECT_EQ(history.matchesText(), QString());
  EXPECT_TRUE(QTest::qWaitFor([this] { return history.records()->isFiltered(); }, patience));
  RecordProperty("milliseconds_until_it_is_ready", static_cast<int>(first.elapsed()));
  const QString query = u"firefox9999"_s;
  QElapsedTimer timer;
  timer.start();
  for (qsizetype letters = 1; letters <= query.size(); ++letters) {
    history.setSearchText(query.first(letters));
  }
  RecordProperty("milliseconds_per_letter", static_cast<int>(timer.elapsed() / query.size()));
  EXPECT_EQ(history.matchesText(), u"1 of 10000 commands"_s);
}

}  // namespace
}  // namespace quillmere

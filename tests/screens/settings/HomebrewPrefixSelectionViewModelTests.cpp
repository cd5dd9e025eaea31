#include <QtCore/QSemaphore>
#include <QtCore/QThread>
#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <atomic>
#include <gtest/gtest.h>

#include "persistence/LocalPersistenceStore.h"
#include "screens/settings/HomebrewPrefixSelectionViewModel.h"
#include "support/Printers.h"
#include "support/TemporarySettings.h"
#include "support/TestPrefix.h"

namespace quillmere {
namespace {

using Role = HomebrewPrefixLocationListModel::Role;

class HomebrewPrefixSelection : public testing::Test {
 protected:
  /// Waits until a look that was asked for has been shown.
  void chooseAndWait(const QUrl& folder) {
    QSignalSpy shown(&selection, &HomebrewPrefixSelectionViewModel::reportChanged);
    selection.chooseFolder(folder);
    ASSERT_TRUE(!shown.isEmpty() || shown.wait());
  }

  void recheckAndWait() {
    QSignalSpy shown(&selection, &HomebrewPrefixSelectionViewModel::reportChanged);
    selection.recheck();
    ASSERT_TRUE(!shown.isEmpty() || shown.wait());
  }

  [[nodiscard]] QStringList statusTexts() {
    QStringList texts;
    for (int row = 0; row < selection.locations()->rowCount(); ++row) {
      texts += selection.locations()->index(row).data(Role::StatusTextRole).toString();
    }
    return texts;
  }

  test::TemporarySettings settings;
  test::TestPrefix prefix;
  LocalPersistenceStore store{settings.open(), settings.cacheDirectoryURL()};
  HomebrewPrefixSelectionViewModel selection{store};
  QAbstractItemModelTester tester{selection.locations(),
                                  QAbstractItemModelTester::FailureReportingMode::Fatal};
};

const QString notAPrefix = QStringLiteral(
    "That folder does not look like a Homebrew prefix. Select `/opt/homebrew` or another folder "
    "that contains `bin/brew`.");

TEST_F(HomebrewPrefixSelection, OffersToSelectAPrefixWhileThereIsNone) {
  EXPECT_EQ(selection.chooseTitle(), QStringLiteral("Select Homebrew Prefix"));
  EXPECT_FALSE(selection.hasSelection());
}

TEST_F(HomebrewPrefixSelection, OffersToChangeThePrefixWhenThereIsOne) {
  prefix.withBrew("");
  chooseAndWait(prefix.url());
  EXPECT_EQ(selection.chooseTitle(), QStringLiteral("Change Prefix"));
}

TEST_F(HomebrewPrefixSelection, AcceptsAFolderThatHoldsNothingButBrew) {
  prefix.withBrew("");
  chooseAndWait(prefix.url());
  EXPECT_EQ(store.selectedHomebrewPrefixPath(), prefix.path());
  EXPECT_TRUE(store.selectedHomebrewPrefixBookmarkData().has_value());
  EXPECT_EQ(selection.verdict(), QStringLiteral("Looks like a Homebrew prefix"));
  EXPECT_EQ(selection.errorMessage(), QString());
  EXPECT_EQ(statusTexts().count(QStringLiteral("Missing")), 6);
}

TEST_F(HomebrewPrefixSelection, ReportsOnTheFolderThatAnotherPanelHasSelected) {
  prefix.withBrew("");
  test::TestPrefix next;
  next.withBrew("").withFolder(QStringLiteral("Cellar"));
  chooseAndWait(prefix.url());
  HomebrewPrefixSelectionViewModel other(store);
  QSignalSpy reported(&selection, &HomebrewPrefixSelectionViewModel::reportChanged);
  other.chooseFolder(next.url());
  ASSERT_TRUE(QTest::qWaitFor([&] { return selection.reportPath() == next.path(); }));
  EXPECT_EQ(statusTexts().at(1), QStringLiteral("Readable (0 items)"));
  // Nothing else comes after it.
  QTest::qWait(50);
  EXPECT_EQ(selection.reportPath(), next.path());
}

TEST_F(HomebrewPrefixSelection, CountsNoItemsInAnEmptyCellar) {
  prefix.withBrew("").withFolder(QStringLiteral("Cellar"));
  chooseAndWait(prefix.url());
  EXPECT_EQ(statusTexts().at(1), QStringLiteral("Readable (0 items)"));
}

TEST_F(HomebrewPrefixSelection, KeepsThePreviousSelectionWhenAFolderIsRefused) {
  prefix.withBrew("");
  chooseAndWait(prefix.url());
  const test::TestPrefix other;
  chooseAndWait(other.url());
  EXPECT_EQ(store.selectedHomebrewPrefixPath(), prefix.path());
  EXPECT_EQ(selection.errorMessage(), notAPrefix);
  EXPECT_EQ(selection.reportPath(), other.path());
  EXPECT_EQ(selection.verdict(),
            QStringLiteral("Does not look like a Homebrew prefix. Choose a folder containing "
                           "`bin/brew`."));
}

TEST_F(HomebrewPrefixSelection, SaysThatNothingIsSelectedWhenRecheckedWithoutSelection) {
  recheckAndWait();
  EXPECT_EQ(selection.errorMessage(), QStringLiteral("No Homebrew prefix is selected."));
  EXPECT_FALSE(selection.hasReport());
}

TEST_F(HomebrewPrefixSelection, ShowsTheSavedPrefixWhenRechecked) {
  prefix.withBrew("");
  store.selectPrefix(prefix.url());
  recheckAndWait();
  EXPECT_TRUE(selection.looksLikePrefix());
  EXPECT_EQ(selection.errorMessage(), QString());
}

TEST_F(HomebrewPrefixSelection, SaysWhenTheSavedPrefixIsNoLongerOne) {
  store.selectPrefix(prefix.url());
  recheckAndWait();
  EXPECT_EQ(selection.errorMessage(),
            QStringLiteral("The saved prefix is no longer readable as a Homebrew prefix. Reset it "
                           "or choose the folder again."));
  EXPECT_TRUE(selection.hasReport());
}

TEST_F(HomebrewPrefixSelection, ForgetsSelectionReportAndMessageOnReset) {
  prefix.withBrew("");
  chooseAndWait(prefix.url());
  selection.reset();
  EXPECT_FALSE(store.selectedHomebrewPrefixPath().has_value());
  EXPECT_FALSE(selection.hasReport());
  EXPECT_EQ(selection.errorMessage(), QString());
  EXPECT_EQ(selection.locations()->rowCount(), 0);
}

TEST_F(HomebrewPrefixSelection, FollowsASelectionThatIsResetElsewhere) {
  prefix.withBrew("");
  chooseAndWait(prefix.url());
  store.resetPrefix();
  EXPECT_FALSE(selection.hasSelection());
  EXPECT_FALSE(selection.hasReport());
}

TEST_F(HomebrewPrefixSelection, FollowsASelectionThatIsMadeElsewhere) {
  prefix.withBrew("");
  QSignalSpy shown(&selection, &HomebrewPrefixSelectionViewModel::reportChanged);
  store.selectPrefix(prefix.url());
  ASSERT_TRUE(!shown.isEmpty() || shown.wait());
  EXPECT_TRUE(selection.looksLikePrefix());
}

TEST_F(HomebrewPrefixSelection, LooksAtAFolderAwayFromTheUiThread) {
  std::atomic<QThread*> thread = nullptr;
  HomebrewPrefixSelectionViewModel watched(store, [&thread](const QUrl& folder) {
    thread = QThread::currentThread();
    return probeHomebrewPrefix(folder);
  });
  QSignalSpy shown(&watched, &HomebrewPrefixSelectionViewModel::reportChanged);
  watched.chooseFolder(prefix.url());
  ASSERT_TRUE(!shown.isEmpty() || shown.wait());
  EXPECT_NE(thread.load(), nullptr);
  EXPECT_NE(thread.load(), QThread::currentThread());
}

TEST_F(HomebrewPrefixSelection, ShowsNoAnswerToAQuestionThatWasResetMeanwhile) {
  prefix.withBrew("");
  QSemaphore mayLook;
  std::atomic_bool looked = false;
  HomebrewPrefixSelectionViewModel slow(store, [&](const QUrl& folder) {
    mayLook.acquire();
    looked = true;
    return probeHomebrewPrefix(folder);
  });
  slow.chooseFolder(prefix.url());
  slow.reset();
  mayLook.release();
  ASSERT_TRUE(QTest::qWaitFor([&looked] { return looked.load(); }));
  QTest::qWait(50);
  EXPECT_FALSE(slow.hasReport());
  EXPECT_FALSE(store.selectedHomebrewPrefixPath().has_value());
}

}  // namespace
}  // namespace quillmere

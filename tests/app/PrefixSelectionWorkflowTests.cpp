#include <QtTest/QSignalSpy>

#include <gtest/gtest.h>

#include "app/PrefixSelectionWorkflow.h"
#include "persistence/LocalPersistenceStore.h"
#include "prefix/HomebrewPrefixStartFolder.h"
#include "support/Printers.h"
#include "support/TemporarySettings.h"
#include "support/TestPrefix.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

class PrefixSelectionWorkflowTest : public testing::Test {
 protected:
  void choose(const QUrl& folder) { QCoro::waitFor(workflow_.selectPrefix(folder)); }

  test::TemporarySettings settings_;
  LocalPersistenceStore store_{settings_.open(), settings_.cacheDirectoryURL()};
  PrefixSelectionWorkflow workflow_{store_};
  test::TestPrefix prefix_;
  test::TestPrefix emptyFolder_;
};

TEST_F(PrefixSelectionWorkflowTest, AsksTheWindowForAChooserThatOpensAtTheUsualPrefix) {
  const QSignalSpy wanted(&workflow_, &PrefixSelectionWorkflow::chooserRequested);
  workflow_.requestChooser();
  EXPECT_EQ(wanted.size(), 1);
  EXPECT_EQ(workflow_.startFolder(), homebrewPrefixStartFolder(*platformFileSystem()));
}

TEST_F(PrefixSelectionWorkflowTest, SelectsAPrefix) {
  prefix_.withFile(u"bin/brew"_s);
  choose(prefix_.url());
  EXPECT_EQ(store_.selectedHomebrewPrefixPath(), prefix_.path());
  EXPECT_TRUE(store_.selectedHomebrewPrefixBookmarkData().has_value());
  EXPECT_FALSE(workflow_.isRefused());
}

TEST_F(PrefixSelectionWorkflowTest, TellsOfEveryPrefixAndOfNoOtherFolder) {
  prefix_.withFile(u"bin/brew"_s);
  const QSignalSpy selected(&workflow_, &PrefixSelectionWorkflow::prefixSelected);
  choose(emptyFolder_.url());
  EXPECT_TRUE(selected.isEmpty());
  choose(prefix_.url());
  choose(prefix_.url());
  EXPECT_EQ(selected.size(), 2);
}

TEST_F(PrefixSelectionWorkflowTest, RefusesAFolderThatIsNoPrefixAndKeepsTheSelection) {
  store_.selectPrefix(prefix_.url());
  choose(emptyFolder_.url());
  EXPECT_EQ(store_.selectedHomebrewPrefixPath(), prefix_.path());
  EXPECT_TRUE(workflow_.isRefused());
  EXPECT_EQ(workflow_.refusalTitle(), u"Select a Homebrew Prefix"_s);
  EXPECT_EQ(workflow_.refusalText(),
            u"That folder does not look like a Homebrew prefix. Select `/opt/homebrew` or another "
            "folder that contains `bin/brew`."_s);
}

TEST_F(PrefixSelectionWorkflowTest, TakesThePrefixThatTheUserWentInto) {
  prefix_.withFile(u"bin/brew"_s);
  QCoro::waitFor(
      workflow_.selectPrefix(QUrl::fromLocalFile(prefix_.pathOf(u"bin"_s)), prefix_.url()));
  EXPECT_EQ(store_.selectedHomebrewPrefixPath(), prefix_.path());
  EXPECT_FALSE(workflow_.isRefused());
  QCoro::waitFor(
      workflow_.selectPrefix(QUrl::fromLocalFile(prefix_.pathOf(u"bin"_s)), emptyFolder_.url()));
  EXPECT_TRUE(workflow_.isRefused());
}

TEST_F(PrefixSelectionWorkflowTest, SaysSoOnce) {
  choose(emptyFolder_.url());
  workflow_.acknowledgeRefusal();
  EXPECT_FALSE(workflow_.isRefused());
  choose(emptyFolder_.url());
  workflow_.requestChooser();
  EXPECT_FALSE(workflow_.isRefused());
}

TEST_F(PrefixSelectionWorkflowTest, HeedsTheFolderThatWasChosenLast) {
  prefix_.withFile(u"bin/brew"_s);
  auto first = workflow_.selectPrefix(emptyFolder_.url());
  choose(prefix_.url());
  QCoro::waitFor(first);
  EXPECT_EQ(store_.selectedHomebrewPrefixPath(), prefix_.path());
  EXPECT_FALSE(workflow_.isRefused());
}

}  // namespace
}  // namespace quillmere

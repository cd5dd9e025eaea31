#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <optional>

#include "app/InventoryWorkflows.h"
#include "persistence/LocalPersistenceStore.h"
#include "support/BlockingFileSystem.h"
#include "support/Printers.h"
#include "support/TemporarySettings.h"
#include "support/TestPrefix.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

using testing::ElementsAre;
using State = InstalledPackagesState;

const QDateTime monday =
    QDateTime::fromString(QStringLiteral("2026-11-16T08:00:00.000Z"), Qt::ISODateWithMs);

/// The workflow over a prefix with three packages, on a disk that can be held.
class InventoryWorkflowsTest : public testing::Test {
 protected:
  InventoryWorkflowsTest() {
    prefix_.withFile(u"bin/brew"_s)
        .withFile(u"Cellar/wget/1.24.5/INSTALL_RECEIPT.json"_s, R"({"installed_on_request": true})")
        .withFolder(u"Cellar/pkg10/1.0"_s)
        .withFolder(u"Cellar/pkg2/1.0"_s)
        .withFolder(u"Caskroom/Wget/2.0"_s);
    store_.selectPrefix(prefix_.url());
    disk_->released.release();
  }

  ~InventoryWorkflowsTest() override { disk_->released.release(); }

  void givenCache(const QString& name, const QByteArray& document) {
    const QString folder = settings_.cacheDirectoryURL().toLocalFile();
    QDir().mkpath(folder);
    QFile file(folder + u'/' + name);
    ASSERT_TRUE(file.open(QFile::WriteOnly) && file.write(document) == document.size());
  }

  void scan() { QCoro::waitFor(workflows_->scan()); }

  /// From now on the disk does not answer.
  void hold() { disk_->released.acquire(); }

  [[nodiscard]] QStringList shown() const {
    QStringList rows;
    if (const auto* packages = workflows_->state().packages()) {
      for (const InstalledPackageSummary& package : *packages) {
        rows += package.id.toString() + u' ' +
                (package.latestKnownVersion ? package.latestKnownVersion->toString() : u"-"_s);
      }
    }
    return rows;
  }

  [[nodiscard]] QString failure() const {
    const auto* failed = std::get_if<State::Failed>(&workflows_->state().value);
    return failed ? failed->message : u"(not failed)"_s;
  }

  test::TemporarySettings settings_;
  test::TestPrefix prefix_;
  LocalPersistenceStore store_{settings_.open(), settings_.cacheDirectoryURL()};
  std::shared_ptr<test::BlockingFileSystem> disk_ = std::make_shared<test::BlockingFileSystem>();
  std::optional<InventoryWorkflows> workflows_{std::in_place, store_, disk_};
};

TEST_F(InventoryWorkflowsTest, BeginWithNothing) {
  EXPECT_EQ(workflows_->state(), State{State::Idle{}});
  EXPECT_EQ(workflows_->scanProgress(), std::nullopt);
}

TEST_F(InventoryWorkflowsTest, ListWhatIsInstalledByName) {
  scan();
  EXPECT_THAT(shown(), ElementsAre(u"formula:pkg2 -"_s, u"formula:pkg10 -"_s, u"formula:wget -"_s,
                                   u"cask:Wget -"_s));
}

TEST_F(InventoryWorkflowsTest, JoinThePackagesWithTheCachedCatalog) {
  givenCache(u"formula.json"_s, R"([{"name": "wget", "versions": {"stable": "1.25.0"}}])");
  givenCache(u"cask.json"_s, R"([{"token": "Wget", "version": "3.0", "name": ["A Wget"]}])");
  scan();
  EXPECT_THAT(shown(), ElementsAre(u"cask:Wget 3.0"_s, u"formula:pkg2 -"_s, u"formula:pkg10 -"_s,
                                   u"formula:wget 1.25.0"_s));
}

TEST_F(InventoryWorkflowsTest, KeepTheFirstOfTwoRecordsOfOneName) {
  givenCache(u"formula.json"_s, R"([{"name": "wget", "versions": {"stable": "1"}},
                                    {"name": "wget", "versions": {"stable": "2"}}])");
  givenCache(u"cask.json"_s, R"([{"token": "Wget", "version": "3"},
                                 {"token": "Wget", "version": "4"}])");
  scan();
  EXPECT_THAT(shown(), ElementsAre(u"formula:pkg2 -"_s, u"formula:pkg10 -"_s, u"formula:wget 1"_s,
                                   u"cask:Wget 3"_s));
}

TEST_F(InventoryWorkflowsTest, RecordWhenTheScanHadFinished) {
  const QDateTime before = QDateTime::currentDateTimeUtc();
  scan();
  ASSERT_TRUE(store_.localInventoryLastScanDate().has_value());
  EXPECT_GE(*store_.localInventoryLastScanDate(), before);
  EXPECT_LE(*store_.localInventoryLastScanDate(), QDateTime::currentDateTimeUtc());
}

TEST_F(InventoryWorkflowsTest, AreOvertakenByARunUntilTheNextScan) {
  workflows_->handleRunEnded();
  EXPECT_FALSE(workflows_->needsRescan()) << "nothing is known yet";
  scan();
  EXPECT_FALSE(workflows_->needsRescan());
  const QSignalSpy changed(&*workflows_, &InventoryWorkflows::stateChanged);
  workflows_->handleRunEnded();
  EXPECT_TRUE(workflows_->needsRescan());
  EXPECT_EQ(changed.size(), 1);
  scan();
  EXPECT_FALSE(workflows_->needsRescan());
}

TEST_F(InventoryWorkflowsTest, AreOvertakenByARunThatEndsDuringTheScan) {
  hold();
  auto scanning = workflows_->scan();
  workflows_->handleRunEnded();
  disk_->released.release();
  QCoro::waitFor(std::move(scanning));
  EXPECT_TRUE(workflows_->needsRescan());
}

TEST_F(InventoryWorkflowsTest, AreStillOvertakenAfterAScanThatWasCancelled) {
  scan();
  workflows_->handleRunEnded();
  hold();
  auto scanning = workflows_->scan();
  workflows_->cancelScans();
  disk_->released.release();
  QCoro::waitFor(std::move(scanning));
  EXPECT_TRUE(workflows_->needsRescan());
}

TEST_F(InventoryWorkflowsTest, NeedASelectedPrefix) {
  store_.resetPrefix();
  scan();
  EXPECT_EQ(workflows_->state(), State{State::AccessNeeded{}});
  EXPECT_EQ(store_.localInventoryLastScanDate(), std::nullopt);
}

TEST_F(InventoryWorkflowsTest, NeedAPrefixThatIsThere) {
  store_.setLocalInventoryLastScanDate(monday);
  ASSERT_TRUE(QDir(prefix_.path()).removeRecursively());
  scan();
  EXPECT_EQ(workflows_->state(), State{State::AccessNeeded{}});
  EXPECT_EQ(store_.localInventoryLastScanDate(), monday);
}

TEST_F(InventoryWorkflowsTest, SayWhyTheInventoryCouldNotBeScanned) {
  store_.setLocalInventoryLastScanDate(monday);
  givenCache(u"formula.json"_s, "[{}]");
  scan();
  EXPECT_EQ(failure(),
            u"Local inventory could not be scanned: The formula document's record at "
            "index 0 is faulty: \"name\" is missing."_s);
  EXPECT_EQ(store_.localInventoryLastScanDate(), monday);
  givenCache(u"formula.json"_s, "[]");
  givenCache(u"cask.json"_s, "");
  scan();
  EXPECT_EQ(failure(), u"Local inventory could not be scanned: The cask document is empty."_s);
}

TEST_F(InventoryWorkflowsTest, AreLoadingWhileTheDiskAnswers) {
  hold();
  auto scanning = workflows_->scan();
  EXPECT_EQ(workflows_->state(), State{State::Loading{}});
  EXPECT_NE(workflows_->scanProgress(), std::nullopt);
  disk_->released.release();
  QCoro::waitFor(scanning);
  EXPECT_EQ(shown().size(), 4);
  EXPECT_EQ(workflows_->scanProgress(), std::nullopt);
}

TEST_F(InventoryWorkflowsTest, CountThePackages) {
  using Progress = InventoryWorkflows::Progress;
  for (int i = 0; i < 2'000; ++i) {
    prefix_.withFolder(u"Cellar/many-%1/1.0"_s.arg(i));
  }
  std::vector<Progress> heard;
  QObject::connect(&*workflows_, &InventoryWorkflows::scanProgressChanged, [&] {
    if (workflows_->scanProgress()) {
      heard.push_back(*workflows_->scanProgress());
    }
  });
  scan();
  ASSERT_GE(heard.size(), 2U);
  EXPECT_EQ(heard.front(), Progress{});
  for (std::size_t i = 1; i < heard.size(); ++i) {
    EXPECT_GE(heard[i].scannedPackages, heard[i - 1].scannedPackages);
    EXPECT_GE(heard[i].totalPackages, heard[i].scannedPackages);
  }
  EXPECT_GE(heard.back().totalPackages, 2'003);
}

TEST_F(InventoryWorkflowsTest, ForgetWhatWasFoundInAnotherPrefix) {
  scan();
  test::TestPrefix other;
  store_.selectPrefix(other.url());
  EXPECT_EQ(workflows_->state(), State{State::Idle{}});
  EXPECT_EQ(store_.localInventoryLastScanDate(), std::nullopt);
}

TEST_F(InventoryWorkflowsTest, DropAScanOfAPrefixThatIsNoLongerSelected) {
  hold();
  auto scanning = workflows_->scan();
  test::TestPrefix other;
  store_.selectPrefix(other.url());
  disk_->released.release();
  QCoro::waitFor(scanning);
  EXPECT_EQ(workflows_->state(), State{State::Idle{}});
  EXPECT_EQ(store_.localInventoryLastScanDate(), std::nullopt);
  EXPECT_EQ(workflows_->scanProgress(), std::nullopt);
}

TEST_F(InventoryWorkflowsTest, ShowWhatWasShownBeforeWhenCancelled) {
  scan();
  const State before = workflows_->state();
  const auto date = store_.localInventoryLastScanDate();
  prefix_.withFolder(u"Cellar/zlib/1.0"_s);
  hold();
  auto scanning = workflows_->scan();
  workflows_->cancelScans();
  EXPECT_EQ(workflows_->state(), before);
  EXPECT_EQ(workflows_->scanProgress(), std::nullopt);
  disk_->released.release();
  QCoro::waitFor(scanning);
  EXPECT_EQ(workflows_->state(), before);
  EXPECT_EQ(store_.localInventoryLastScanDate(), date);
}

TEST_F(InventoryWorkflowsTest, AreNotLeftLoadingByTwoScansAtOnce) {
  hold();
  auto first = workflows_->scan();
  auto second = workflows_->scan();
  disk_->released.release();
  QCoro::waitFor(first);
  QCoro::waitFor(second);
  EXPECT_EQ(shown().size(), 4);
  EXPECT_EQ(workflows_->scanProgress(), std::nullopt);
}

TEST_F(InventoryWorkflowsTest, MayGoInTheMiddleOfAScan) {
  hold();
  auto scanning = workflows_->scan();
  workflows_.reset();
  disk_->released.release();
  QCoro::waitFor(scanning);
  EXPECT_EQ(store_.localInventoryLastScanDate(), std::nullopt);
}

TEST_F(InventoryWorkflowsTest, SaysWhyAPrefixCannotBeRead) {
  ASSERT_TRUE(QDir(prefix_.path()).removeRecursively());
  scan();
  EXPECT_TRUE(std::holds_alternative<State::AccessNeeded>(workflows_->state().value));
  EXPECT_EQ(workflows_->accessProblem(), u"There is no such folder at the moment."_s);
}

TEST_F(InventoryWorkflowsTest, SaysThatNothingIsWrongWhereNoPrefixIsSelected) {
  store_.resetPrefix();
  scan();
  EXPECT_TRUE(std::holds_alternative<State::AccessNeeded>(workflows_->state().value));
  EXPECT_EQ(workflows_->accessProblem(), QString());
}

TEST_F(InventoryWorkflowsTest, OffersAScanWhenAPrefixThatWasAwayIsSelectedAgain) {
  store_.selectPrefix(QUrl::fromLocalFile(prefix_.pathOf(u"away"_s)));
  scan();
  ASSERT_TRUE(std::holds_alternative<State::AccessNeeded>(workflows_->state().value));
  store_.selectPrefix(QUrl::fromLocalFile(prefix_.pathOf(u"away"_s)));
  EXPECT_TRUE(std::holds_alternative<State::Idle>(workflows_->state().value));
  EXPECT_EQ(workflows_->accessProblem(), QString());
}

TEST_F(InventoryWorkflowsTest, KeepsWhatIsKnownWhenTheSamePrefixIsSelectedAgain) {
  scan();
  const QStringList before = shown();
  ASSERT_FALSE(before.isEmpty());
  store_.selectPrefix(prefix_.url());
  EXPECT_EQ(shown(), before);
}

TEST_F(InventoryWorkflowsTest, KnowsThatACatalogWasFetchedSinceTheScan) {
  EXPECT_FALSE(workflows_->isCatalogNewer());
  store_.setCatalogLastRefreshDate(monday);
  EXPECT_FALSE(workflows_->isCatalogNewer()) << "nothing has been compared";
  scan();
  EXPECT_FALSE(workflows_->isCatalogNewer());
  store_.setCatalogLastRefreshDate(monday.addDays(1));
  EXPECT_TRUE(workflows_->isCatalogNewer());
  scan();
  EXPECT_FALSE(workflows_->isCatalogNewer());
  store_.setCatalogLastRefreshDate(std::nullopt);
  EXPECT_FALSE(workflows_->isCatalogNewer()) << "a cleared catalog is not newer";
}

}  // namespace
}  // namespace quillmere

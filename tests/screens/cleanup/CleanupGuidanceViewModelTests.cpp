#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <atomic>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <semaphore>

#include "screens/cleanup/CleanupGuidanceViewModel.h"
#include "screens/shared/DemoInventory.h"
#include "support/Printers.h"
#include "support/TestPrefix.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

using CacheState = CleanupGuidanceSummary::CacheState;
using State = InstalledPackagesState;
using test::inputsOf;
using test::installed;
using test::loaded;

const QDateTime now(QDate(2026, 11, 20), QTime(12, 0), Qt::UTC);

void ignorePreview(const BrewCommand& /*command*/, const QString& /*sourceScreen*/) {
}

/// A screen whose cache is measured by the test.
class Cleanup : public testing::Test {
 protected:
  /// Shared with the threads that measure, which may outlive the test.
  struct Disk {
    std::atomic<int> measured = 0;
    std::counting_semaphore<> answers{0};
    CacheState state;
  };

  ~Cleanup() override { disk_->answers.release(8); }

  /// What is measured is shown at once.
  void answer(CacheState state) {
    disk_->state = std::move(state);
    disk_->answers.release();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !cleanup_.isMeasuringCache(); }));
  }

  static LocalInventoryInputs loadedFrom(const QString& prefix,
                                         std::vector<InstalledPackageSummary> packages = {}) {
    LocalInventoryInputs inputs = loaded(std::move(packages));
    inputs.selectedPrefixURL = QUrl::fromLocalFile(prefix);
    return inputs;
  }

  std::shared_ptr<Disk> disk_ = std::make_shared<Disk>();
  CleanupGuidanceViewModel cleanup_{&ignorePreview, [] { return now; },
                                    [disk = disk_](const std::optional<QUrl>& /*prefix*/) {
                                      ++disk->measured;
                                      disk->answers.acquire();
                                      return disk->state;
                                    }};
};

struct Message {
  LocalInventoryInputs inputs;
  CleanupGuidanceViewModel::Phase state;
  QString title;
  QString symbolName;
  QString text;
};

void PrintTo(const Message& message, std::ostream* out) {
  *out << message.title.toStdString();
}

LocalInventoryInputs idleWithPrefix() {
  LocalInventoryInputs inputs;
  inputs.selectedPrefixPath = u"/opt/homebrew"_s;
  return inputs;
}

class CleanupMessages : public Cleanup, public testing::WithParamInterface<Message> {};

TEST_P(CleanupMessages, SayWhereTheInventoryStands) {
  cleanup_.setInputs(GetParam().inputs);
  EXPECT_EQ(cleanup_.phase(), GetParam().state);
  EXPECT_EQ(cleanup_.title(), GetParam().title);
  EXPECT_EQ(cleanup_.symbolName(), GetParam().symbolName);
  EXPECT_EQ(cleanup_.text(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    States, CleanupMessages,
    testing::Values(
        Message{inputsOf(State::Idle{}), CleanupGuidanceViewModel::Idle,
                u"Scan For Cleanup Guidance"_s, u"sparkles"_s,
                u"Select a Homebrew prefix before deriving cleanup guidance."_s},
        Message{idleWithPrefix(), CleanupGuidanceViewModel::Idle, u"Scan For Cleanup Guidance"_s,
                u"sparkles"_s,
                u"Selected prefix: /opt/homebrew. Scan local formula and cask directories in "
                "read-only mode to estimate old versions and cache availability. "_s},
        Message{inputsOf(State::AccessNeeded{}), CleanupGuidanceViewModel::AccessNeeded,
                u"Local Access Needed"_s, u"sparkles"_s,
                u"Cleanup guidance needs read-only local inventory. Quillmere Direct can run "
                "cleanup only after showing the command and asking for stronger confirmation."_s},
        Message{inputsOf(State::Loading{}), CleanupGuidanceViewModel::Loading,
                u"Scanning installed packages before deriving cleanup guidance..."_s, u"sparkles"_s,
                u""_s},
        Message{inputsOf(State::Failed{u"Gone."_s}), CleanupGuidanceViewModel::Failed,
                u"Could Not Derive Cleanup Guidance"_s, u"externaldrive.badge.exclamationmark"_s,
                u"Gone."_s}));

TEST_F(Cleanup, CountsWithAnSUnlessItIsOne) {
  cleanup_.setInputs(loaded({installed("formula:a", {"1"})}));
  EXPECT_EQ(cleanup_.oldVersionsText(),
            u"No old formula or cask versions were detected in the latest read-only scan."_s);
  cleanup_.setInputs(loaded({installed("formula:a", {"1", "2"})}));
  EXPECT_EQ(cleanup_.oldVersionsText(), u"Detected 1 older installed version across 1 package."_s);
  cleanup_.setInputs(loaded({installed("formula:a", {"1", "2", "3"})}));
  EXPECT_EQ(cleanup_.oldVersionsText(), u"Detected 2 older installed versions across 1 package."_s);
  cleanup_.setInputs(loaded({installed("formula:a", {"1", "2"}), installed("cask:b", {"1", "2"}),
                             installed("formula:c", {"1"})}));
  EXPECT_EQ(cleanup_.oldVersionsText(),
            u"Detected 2 older installed versions across 2 packages."_s);
  EXPECT_EQ(cleanup_.oldVersionCount(), 2);
  EXPECT_EQ(cleanup_.currentVersionCount(), 3);
  EXPECT_EQ(cleanup_.oldShareText(), u"2 older"_s);
  EXPECT_EQ(cleanup_.currentShareText(), u"3 current"_s);
}

TEST_F(Cleanup, ListsWhatKeepsOldVersions) {
  const QAbstractItemModelTester tester(cleanup_.oldVersions(),
                                        QAbstractItemModelTester::FailureReportingMode::Fatal);
  auto odd = installed("cask:b", {"1", "2"});
  odd.installedVersion.reset();
  cleanup_.setInputs(loaded({odd, installed("formula:a", {"1.0", "1.1", "1.2"})}));
  using Model = OldVersionListModel;
  const auto value = [this](int row, Model::Role role) {
    return cleanup_.oldVersions()->data(cleanup_.oldVersions()->index(row), role).toString();
  };
  ASSERT_EQ(cleanup_.oldVersions()->rowCount(), 2);
  EXPECT_EQ(value(0, Model::NameRole), u"a"_s);
  EXPECT_EQ(value(0, Model::KindTextRole), u"Formula"_s);
  EXPECT_EQ(value(0, Model::VersionsTextRole), u"Current: 1.2 | Older: 1.0, 1.1"_s);
  EXPECT_EQ(value(0, Model::AccessibleLabelRole),
            u"a, Formula, current 1.2, older versions 1.0, 1.1"_s);
  EXPECT_EQ(value(1, Model::VersionsTextRole), u"Current: Unknown | Older: 1"_s);
  EXPECT_EQ(value(1, Model::AccessibleLabelRole), u"b, Cask, current unknown, older versions 1"_s);
}

struct Cache {
  CacheState state;
  QString path;
  QString size;
  QString text;
};

void PrintTo(const Cache& cache, std::ostream* out) {
  *out << "cache state " << cache.state.value.index();
}

class CleanupCaches : public Cleanup, public testing::WithParamInterface<Cache> {};

TEST_P(CleanupCaches, AreShownByWhatIsKnownOfThem) {
  cleanup_.setInputs(loadedFrom(u"/opt/homebrew"_s));
  cleanup_.appear();
  EXPECT_EQ(cleanup_.cachePath(), QString());
  EXPECT_EQ(cleanup_.cacheSizeText(), QString());
  answer(GetParam().state);
  EXPECT_EQ(cleanup_.cachePath(), GetParam().path);
  EXPECT_EQ(cleanup_.cacheSizeText(), GetParam().size);
  EXPECT_EQ(cleanup_.cacheText(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    States, CleanupCaches,
    testing::Values(
        Cache{{CacheState::Readable{.path = u"/c"_s, .estimatedBytes = 1'340'000}},
              u"/c"_s,
              u"1.3 MB"_s,
              QString()},
        Cache{{CacheState::Readable{.path = u"/c"_s, .estimatedBytes = 0}},
              u"/c"_s,
              u"Zero KB"_s,
              QString()},
        Cache{{CacheState::Readable{.path = u"/c"_s, .estimatedBytes = std::nullopt}},
              u"/c"_s,
              u"Unknown"_s,
              QString()},
        Cache{
            {CacheState::NotReadable{u"/c"_s}},
            u"/c"_s,
            QString(),
            u"The cache location exists but is not readable from the sandbox, so Quillmere cannot "
            "estimate its size."_s},
        Cache{{CacheState::Missing{u"/c"_s}},
              u"/c"_s,
              QString(),
              u"The standard Homebrew cache location was not found. There may be nothing to "
              "estimate, or this prefix may use another cache path."_s},
        Cache{{CacheState::Unknown{}},
              QString(),
              QString(),
              u"Cache location is unavailable until a readable Homebrew prefix is selected."_s}));

TEST_F(Cleanup, MeasuresTheCacheOnlyWhileItIsShown) {
  cleanup_.setInputs(loadedFrom(u"/a"_s));
  EXPECT_EQ(disk_->measured, 0);
  cleanup_.appear();
  answer({CacheState::Missing{u"/a/cache"_s}});
  EXPECT_EQ(disk_->measured, 1);
  cleanup_.disappear();
  cleanup_.setInputs(loadedFrom(u"/a"_s, {installed("formula:a", {"1"})}));
  EXPECT_EQ(disk_->measured, 1);
}

TEST_F(Cleanup, DoesNotAskTwiceAtOnce) {
  cleanup_.setInputs(loadedFrom(u"/a"_s));
  cleanup_.appear();
  cleanup_.disappear();
  cleanup_.appear();
  answer({CacheState::Missing{u"/a/cache"_s}});
  EXPECT_EQ(disk_->measured, 1);
  cleanup_.disappear();
  cleanup_.appear();
  ASSERT_TRUE(QTest::qWaitFor([this] { return disk_->measured == 2; }));
  EXPECT_EQ(cleanup_.cachePath(), u"/a/cache"_s) << "what was known stays until then";
}

TEST_F(Cleanup, IsNotOutOfDateForANewerCatalog) {
  LocalInventoryInputs inputs = loadedFrom(u"/a"_s);
  inputs.isCatalogNewer = true;
  cleanup_.setInputs(inputs);
  EXPECT_EQ(cleanup_.rescanWarning(), QString());
}

TEST_F(Cleanup, MeasuresAgainAfterEachCommandThatMayHaveCleanedUp) {
  LocalInventoryInputs inputs = loadedFrom(u"/a"_s);
  cleanup_.setInputs(inputs);
  cleanup_.appear();
  answer({CacheState::Readable{u"/a/cache"_s, 2000}});
  EXPECT_EQ(cleanup_.cacheSizeText(), u"2 KB"_s);
  for (int run = 1; run <= 2; ++run) {
    inputs.needsRescan = true;
    inputs.endedRuns = run;
    disk_->state = {CacheState::Readable{u"/a/cache"_s, 2000 - run * 1000}};
    disk_->answers.release();
    QSignalSpy changed(&cleanup_, &CleanupGuidanceViewModel::cacheChanged);
    cleanup_.setInputs(inputs);
    ASSERT_TRUE(!changed.isEmpty() || changed.wait());
    EXPECT_EQ(cleanup_.cacheSizeText(), run == 1 ? u"1 KB"_s : u"Zero KB"_s);
  }
  EXPECT_EQ(disk_->measured, 3);
}

TEST_F(Cleanup, ShowsNothingOfAnotherPrefix) {
  cleanup_.setInputs(loadedFrom(u"/a"_s));
  cleanup_.appear();
  ASSERT_TRUE(QTest::qWaitFor([this] { return disk_->measured == 1; }));
  LocalInventoryInputs other;
  other.selectedPrefixURL = QUrl::fromLocalFile(u"/b"_s);
  const QSignalSpy changed(&cleanup_, &CleanupGuidanceViewModel::cacheChanged);
  cleanup_.setInputs(other);
  disk_->state = {CacheState::Missing{u"/a/cache"_s}};
  disk_->answers.release();
  QTest::qWait(50);
  EXPECT_TRUE(cleanup_.isMeasuringCache());
  EXPECT_EQ(changed.size(), 0);
}

TEST_F(Cleanup, MayGoWhileTheDiskDoesNotAnswer) {
  auto screen = std::make_unique<CleanupGuidanceViewModel>(
      &ignorePreview, [] { return now; },
      [disk = disk_](const std::optional<QUrl>& /*prefix*/) {
        disk->answers.acquire();
        return disk->state;
      });
  screen->setInputs(loadedFrom(u"/a"_s));
  screen->appear();
  screen.reset();
  disk_->answers.release();
  QTest::qWait(20);
}

TEST_F(Cleanup, MeasuresARealFolder) {
  test::TestPrefix prefix;
  prefix.withAllLocations().withFile(u"var/homebrew/cache/downloads/a.tar.gz"_s,
                                     QByteArray(250'000, 'x'));
  CleanupGuidanceViewModel screen(&ignorePreview);
  screen.setInputs(loadedFrom(prefix.path()));
  screen.appear();
  ASSERT_TRUE(QTest::qWaitFor([&screen] { return !screen.isMeasuringCache(); }));
  EXPECT_EQ(screen.cachePath(), prefix.pathOf(u"var/homebrew/cache"_s));
  EXPECT_TRUE(screen.cacheSizeText().endsWith(u" KB"_s)) << screen.cacheSizeText().toStdString();
}

TEST(CleanupPreview, IsOfTheCleanup) {
  QStringList asked;
  CleanupGuidanceViewModel screen([&asked](const BrewCommand& command, const QString& screenName) {
    asked = {command.commandText, screenName, command.explanation};
  });
  screen.previewCleanup();
  EXPECT_EQ(asked, (QStringList{
                       u"brew cleanup"_s, u"Cleanup"_s,
                       u"Asks Homebrew to remove old downloads and outdated package versions."_s}));
}

TEST_F(Cleanup, SaysHowAScanGoes) {
  const QSignalSpy said(&cleanup_, &CleanupGuidanceViewModel::announced);
  cleanup_.setInputs(inputsOf(State::Loading{}));
  cleanup_.setInputs(loaded({installed("formula:a", {"1", "2"})}));
  cleanup_.setInputs(inputsOf(State::Loading{}));
  cleanup_.setInputs(inputsOf(State::Failed{u"Gone."_s}));
  ASSERT_EQ(said.size(), 4);
  EXPECT_EQ(said[0][0].toString(),
            u"Scanning installed packages before deriving cleanup guidance..."_s);
  EXPECT_EQ(said[1][0].toString(),
            u"Scan finished. Detected 1 older installed version across 1 package."_s);
  EXPECT_EQ(said[3][0].toString(), u"Could Not Derive Cleanup Guidance. Gone."_s);
}

}  // namespace
}  // namespace quillmere

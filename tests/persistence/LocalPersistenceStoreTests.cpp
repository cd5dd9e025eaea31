#include <QCoroTask>
#include <QtCore/QStandardPaths>

#include <functional>
#include <gtest/gtest.h>
#include <vector>

#include "StoreFixture.h"
#include "persistence/LocalPersistenceStore.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using Store = LocalPersistenceStore;
using test::copyOf;
using test::friday;
using test::monday;

class LocalPersistenceStoreTest : public test::StoreFixture {};

TEST_F(LocalPersistenceStoreTest, StartsEmptyOnAFreshInstallation) {
  const auto store = start();
  EXPECT_FALSE(store->hasCompletedOnboarding());
  EXPECT_EQ(store->selectedHomebrewPrefixPath(), std::nullopt);
  EXPECT_EQ(store->selectedHomebrewPrefixBookmarkData(), std::nullopt);
  EXPECT_EQ(store->catalogLastRefreshDate(), std::nullopt);
  EXPECT_EQ(store->localInventoryLastScanDate(), std::nullopt);
  EXPECT_TRUE(store->commandHistory().isEmpty());
  EXPECT_EQ(store->resolvedPrefixURL(), std::nullopt);
  EXPECT_FALSE(QFile::exists(settings_.file()));
  EXPECT_FALSE(QFile::exists(settings_.cacheDirectoryURL().toLocalFile()));
}

struct Row {
  QString key;
  std::function<void(Store&)> set;
  QVariant written;
  std::function<void(Store&)> reset;
  /// Absent where the reset removes the key.
  QVariant writtenAfterReset;
  void (Store::*changed)();
  std::function<bool(const Store&)> isSet;
};

const CommandHistory someHistory = {copyOf(u"brew info wget"_s), copyOf(u"brew update"_s)};

// clang-format off
const std::vector<Row> properties = {
    {u"hasCompletedOnboarding"_s,
     [](Store& s) { s.setHasCompletedOnboarding(true); }, true,
     [](Store& s) { s.setHasCompletedOnboarding(false); }, false,
     &Store::hasCompletedOnboardingChanged,
     [](const Store& s) { return s.hasCompletedOnboarding(); }},
    {u"selectedHomebrewPrefixPath"_s,
     [](Store& s) { s.setSelectedHomebrewPrefixPath(u"/opt/żółw, \"x\"%"_s); },
     u"/opt/żółw, \"x\"%"_s,
     [](Store& s) { s.setSelectedHomebrewPrefixPath(std::nullopt); }, {},
     &Store::selectedHomebrewPrefixPathChanged,
     [](const Store& s) { return s.selectedHomebrewPrefixPath() == u"/opt/żółw, \"x\"%"_s; }},
    {u"selectedHomebrewPrefixBookmarkData"_s,
     [](Store& s) { s.setSelectedHomebrewPrefixBookmarkData(QByteArray("a\0\xff\"\n", 5)); },
     QByteArray("a\0\xff\"\n", 5),
     [](Store& s) { s.setSelectedHomebrewPrefixBookmarkData(std::nullopt); }, {},
     &Store::selectedHomebrewPrefixBookmarkDataChanged,
     [](const Store& s) {
       return s.selectedHomebrewPrefixBookmarkData() == QByteArray("a\0\xff\"\n", 5);
     }},
    {u"catalogLastRefreshDate"_s,
     [](Store& s) { s.setCatalogLastRefreshDate(monday); }, monday,
     [](Store& s) { s.setCatalogLastRefreshDate(std::nullopt); }, {},
     &Store::catalogLastRefreshDateChanged,
     [](const Store& s) { return s.catalogLastRefreshDate() == monday; }},
    {u"localInventoryLastScanDate"_s,
     [](Store& s) { s.setLocalInventoryLastScanDate(friday); }, friday,
     [](Store& s) { s.setLocalInventoryLastScanDate(std::nullopt); }, {},
     &Store::localInventoryLastScanDateChanged,
     [](const Store& s) { return s.localInventoryLastScanDate() == friday; }},
    {u"commandHistory"_s,
     [](Store& s) { s.setCommandHistory(someHistory); }, encodeCommandHistory(someHistory),
     [](Store& s) { s.setCommandHistory({}); }, QByteArray("[]"),
     &Store::commandHistoryChanged,
     [](const Store& s) { return s.commandHistory() == someHistory; }},
};
// clang-format on

TEST_F(LocalPersistenceStoreTest, WritesEachPropertyUnderItsKeyAtOnce) {
  for (const Row& row : properties) {
    SCOPED_TRACE(row.key.toStdString());
    const auto store = start();
    row.set(*store);
    EXPECT_TRUE(row.isSet(*store));
    EXPECT_TRUE(row.isSet(*start()));
    EXPECT_EQ(stored(row.key).toByteArray(), row.written.toByteArray());
    EXPECT_EQ(stored(row.key).toDateTime(), row.written.toDateTime());
    row.reset(*store);
    EXPECT_FALSE(row.isSet(*store));
    EXPECT_FALSE(row.isSet(*start()));
    EXPECT_EQ(settings_.open()->contains(row.key), row.writtenAfterReset.isValid());
    EXPECT_EQ(stored(row.key).toByteArray(), row.writtenAfterReset.toByteArray());
  }
}

TEST_F(LocalPersistenceStoreTest, TellsOfEachChangeOnceAndOfNothingElse) {
  for (const Row& row : properties) {
    SCOPED_TRACE(row.key.toStdString());
    const auto store = start();
    int changes = 0;
    QObject::connect(store.get(), row.changed, store.get(), [&] { ++changes; });
    row.reset(*store);
    EXPECT_EQ(changes, 0);
    row.set(*store);
    EXPECT_EQ(changes, 1);
    row.set(*store);
    EXPECT_EQ(changes, 1);
    row.reset(*store);
    EXPECT_EQ(changes, 2);
  }
}

TEST_F(LocalPersistenceStoreTest, FinishesItsWritesInTheirOrderBeforeItIsGone) {
  constexpr int rounds = 20;
  for (int i = 1; i <= rounds; ++i) {
    start()->setSelectedHomebrewPrefixPath(u"/old"_s);
    auto store = start();
    for (int j = 0; j <= i; ++j) {
      store->setSelectedHomebrewPrefixPath(u"/prefix/"_s + QString::number(j));
    }
    store.reset();
    EXPECT_EQ(start()->selectedHomebrewPrefixPath(), u"/prefix/"_s + QString::number(i));
  }
}

TEST_F(LocalPersistenceStoreTest, ReadsAValueOfAnotherTypeAsAbsent) {
  given(u"hasCompletedOnboarding"_s, u"perhaps"_s);
  given(u"selectedHomebrewPrefixPath"_s, QStringList({u"/a"_s, u"/b"_s}));
  given(u"selectedHomebrewPrefixBookmarkData"_s, u"text"_s);
  given(u"catalogLastRefreshDate"_s, u"2026-11-16T08:00:00Z"_s);
  given(u"localInventoryLastScanDate"_s, 816'900'120);
  given(u"commandHistory"_s, QStringList({u"[]"_s, u"x"_s}));
  const auto store = start();
  for (const Row& row : properties) {
    EXPECT_FALSE(row.isSet(*store)) << row.key.toStdString();
  }
  EXPECT_EQ(store->selectedHomebrewPrefixPath(), std::nullopt);
  EXPECT_EQ(store->selectedHomebrewPrefixBookmarkData(), std::nullopt);
  EXPECT_EQ(store->catalogLastRefreshDate(), std::nullopt);
  EXPECT_EQ(store->localInventoryLastScanDate(), std::nullopt);
  EXPECT_TRUE(store->commandHistory().isEmpty());
}

TEST_F(LocalPersistenceStoreTest, ReadsAnInvalidDateAsAbsent) {
  given(u"catalogLastRefreshDate"_s, QDateTime());
  EXPECT_EQ(start()->catalogLastRefreshDate(), std::nullopt);
}

TEST_F(LocalPersistenceStoreTest, KeepsItsCatalogUnderTheDataOfTheUser) {
  const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
  EXPECT_EQ(Store::defaultCacheDirectoryURL().adjusted(QUrl::StripTrailingSlash),
            QUrl::fromLocalFile(data + u"/Quillmere/CatalogCache"_s));
}

TEST_F(LocalPersistenceStoreTest, NamesTheFilesOfItsCache) {
  const auto store = start();
  EXPECT_EQ(store->cacheDirectoryURL(), settings_.cacheDirectoryURL());
  EXPECT_EQ(store->formulaCacheURL().toLocalFile(), cacheFile(u"formula.json"_s));
  EXPECT_EQ(store->caskCacheURL().toLocalFile(), cacheFile(u"cask.json"_s));
}

// --- Resets ---

/// A store that remembers something of everything.
void fill(Store& store) {
  store.setHasCompletedOnboarding(true);
  store.selectPrefix(QUrl::fromLocalFile(u"/opt/homebrew"_s));
  QCoro::waitFor(store.saveFormulaCatalog("[]", monday));
  QCoro::waitFor(store.saveCaskCatalog("[]", monday));
  store.setLocalInventoryLastScanDate(friday);
  store.setCommandHistory(someHistory);
}

struct Reset {
  QString name;
  void (Store::*reset)();
  bool keepsOnboarding, keepsPrefix, keepsCatalog, keepsScanDate, keepsHistory;
};

TEST_F(LocalPersistenceStoreTest, ForgetsWithEachResetWhatItIsForAndNothingElse) {
  for (const Reset& row : {
           Reset{u"cache markers"_s, &Store::clearCacheMarkers, true, true, false, true, true},
           Reset{u"prefix"_s, &Store::resetPrefix, true, false, true, false, true},
           Reset{u"history"_s, &Store::clearHistory, true, true, true, true, false},
           Reset{u"onboarding"_s, &Store::resetOnboarding, false, true, true, true, true},
       }) {
    SCOPED_TRACE(row.name.toStdString());
    const auto running = start();
    fill(*running);
    (running.get()->*row.reset)();
    const auto restarted = start();
    for (const Store* store : {running.get(), restarted.get()}) {
      EXPECT_EQ(store->hasCompletedOnboarding(), row.keepsOnboarding);
      EXPECT_EQ(store->selectedHomebrewPrefixPath().has_value(), row.keepsPrefix);
      EXPECT_EQ(store->selectedHomebrewPrefixBookmarkData().has_value(), row.keepsPrefix);
      EXPECT_EQ(store->catalogLastRefreshDate().has_value(), row.keepsCatalog);
      EXPECT_EQ(store->localInventoryLastScanDate().has_value(), row.keepsScanDate);
      EXPECT_EQ(store->commandHistory(), row.keepsHistory ? someHistory : CommandHistory());
    }
    EXPECT_EQ(QFile::exists(cacheFile(u"formula.json"_s)), row.keepsCatalog);
    EXPECT_EQ(QFile::exists(cacheFile(u"cask.json"_s)), row.keepsCatalog);
  }
}

TEST_F(LocalPersistenceStoreTest, ClearsTheHistoryToAnEmptyArray) {
  const auto store = start();
  store->appendHistory(copyOf(u"brew update"_s));
  store->clearHistory();
  EXPECT_EQ(stored(u"commandHistory"_s), QByteArray("[]"));
}

// --- History ---

TEST_F(LocalPersistenceStoreTest, PutsTheNewestRecordFirst) {
  const auto store = start();
  const CommandHistoryRecord first = copyOf(u"brew info wget"_s);
  const CommandHistoryRecord second = copyOf(u"brew info wget"_s);
  int changes = 0;
  QObject::connect(store.get(), &Store::commandHistoryChanged, store.get(), [&] { ++changes; });
  store->appendHistory(first);
  store->appendHistory(second);
  store->appendHistory(first);
  EXPECT_EQ(changes, 3);
  EXPECT_EQ(store->commandHistory(), CommandHistory({first, second, first}));
  EXPECT_EQ(stored(u"commandHistory"_s), encodeCommandHistory({first, second, first}));
  EXPECT_EQ(start()->commandHistory(), CommandHistory({first, second, first}));
}

TEST_F(LocalPersistenceStoreTest, RecordsAFinishedRun) {
  const auto store = start();
  store->appendHistory(copyOf(u"brew info wget"_s));
  DirectCommandResult result;
  result.command.commandText = u"brew update"_s;
  result.command.operation = BrewCommandOperation::update;
  result.standardOutput = "Already up-to-date.\n";
  result.startedAt = monday;
  result.endedAt = friday;
  store->recordExecution(result, u"Updates"_s);
  const auto restarted = start();
  ASSERT_EQ(restarted->commandHistory().size(), 2);
  const CommandHistoryRecord& record = restarted->commandHistory().first();
  EXPECT_EQ(record.command, u"brew update"_s);
  EXPECT_EQ(record.copiedAt, friday);
  EXPECT_EQ(record.sourceScreen, u"Updates"_s);
  EXPECT_TRUE(record.executed);
  EXPECT_FALSE(record.copied);
  EXPECT_EQ(record.executionOutputSummary, u"Already up-to-date."_s);
}

TEST_F(LocalPersistenceStoreTest, ReadsAHistoryWrittenByHand) {
  given(u"commandHistory"_s, QByteArray(R"([{
      "id": "0a1b2c3d-4e5f-6789-abcd-ef0123456789", "command": "brew info żółw",
      "copiedAt": 800000000, "operationType": "info", "packageTarget": null, "note": [1] }])"));
  const auto store = start();
  ASSERT_EQ(store->commandHistory().size(), 1);
  EXPECT_EQ(store->commandHistory().first().command, u"brew info żółw"_s);
  EXPECT_TRUE(store->commandHistory().first().copied);
  EXPECT_FALSE(store->commandHistory().first().executed);
}

TEST_F(LocalPersistenceStoreTest, StartsWithAnEmptyHistoryWhereItCannotBeReadAndWritesOverIt) {
  const QByteArray unreadable =
      R"([{"id": "0A1B2C3D-4E5F-6789-ABCD-EF0123456789", "command": "x", "copiedAt": 1}])";
  given(u"commandHistory"_s, unreadable);
  const auto store = start();
  EXPECT_TRUE(store->commandHistory().isEmpty());
  EXPECT_EQ(stored(u"commandHistory"_s), unreadable);
  const CommandHistoryRecord record = copyOf(u"brew update"_s);
  store->appendHistory(record);
  EXPECT_EQ(start()->commandHistory(), CommandHistory({record}));
}

}  // namespace
}  // namespace quillmere

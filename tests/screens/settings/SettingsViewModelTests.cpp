#include <QtCore/QDir>
#include <QtTest/QSignalSpy>

#include <gtest/gtest.h>

#include "persistence/LocalPersistenceStore.h"
#include "platform/DateTexts.h"
#include "platform/FileUrl.h"
#include "screens/settings/SettingsViewModel.h"
#include "support/Printers.h"
#include "support/TemporarySettings.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;

class SettingsScreen : public testing::Test {
 protected:
  SettingsScreen() {
    store.setSelectedHomebrewPrefixPath(u"/opt/homebrew"_s);
    store.setLocalInventoryLastScanDate(scanned);
    store.setCatalogLastRefreshDate(refreshed);
    store.setHasCompletedOnboarding(true);
    store.writeCacheFile("[]", store.formulaCacheURL());
    store.appendHistory({.id = QUuid::createUuid(),
                         .command = u"brew update"_s,
                         .copiedAt = scanned,
                         .operationType = u"update"_s});
  }

  /// All that the settings can make the program forget.
  [[nodiscard]] auto stored() const {
    return std::tuple(store.selectedHomebrewPrefixPath(), store.localInventoryLastScanDate(),
                      store.catalogLastRefreshDate(), store.hasReadableCatalogCache(),
                      store.commandHistory(), store.hasCompletedOnboarding());
  }

  const QDateTime scanned = QDateTime::fromSecsSinceEpoch(1'000'000'000, Qt::UTC);
  const QDateTime refreshed = QDateTime::fromSecsSinceEpoch(1'100'000'000, Qt::UTC);
  test::TemporarySettings temporary;
  LocalPersistenceStore store{temporary.open(), temporary.cacheDirectoryURL()};
  SettingsViewModel settings{store};
};

TEST_F(SettingsScreen, ShowsWhatIsStored) {
  EXPECT_EQ(settings.lastScanText(), dateText(scanned));
  EXPECT_EQ(settings.lastRefreshText(), dateText(refreshed));
  EXPECT_EQ(settings.historyCountText(), u"1"_s);
  EXPECT_EQ(settings.onboardingCompletedText(), u"Yes"_s);
}

TEST_F(SettingsScreen, SaysNeverForADateThatIsAbsent) {
  const test::TemporarySettings fresh;
  LocalPersistenceStore freshStore(fresh.open(), fresh.cacheDirectoryURL());
  const SettingsViewModel freshSettings(freshStore);
  EXPECT_EQ(freshSettings.lastScanText(), u"Never"_s);
  EXPECT_EQ(freshSettings.lastRefreshText(), u"Never"_s);
  EXPECT_EQ(freshSettings.historyCountText(), u"0"_s);
  EXPECT_EQ(freshSettings.onboardingCompletedText(), u"No"_s);
  EXPECT_FALSE(freshSettings.canClearMetadataCache());
}

TEST_F(SettingsScreen, CountsPlainlyHoweverManyRecordsThereAre) {
  store.setCommandHistory(CommandHistory(1234));
  EXPECT_EQ(settings.historyCountText(), u"1234"_s);
}

struct Cache {
  const char* name;
  bool hasDate;
  bool hasFormulae;
  bool hasCasks;
  bool canClear;
};

class MetadataCache : public SettingsScreen, public testing::WithParamInterface<Cache> {};

TEST_P(MetadataCache, CanBeClearedWhileThereIsADateOrADocument) {
  const Cache& cache = GetParam();
  const auto document = [](bool has) {
    return has ? std::optional<QByteArray>("[]") : std::nullopt;
  };
  store.writeCacheFile(document(cache.hasFormulae), store.formulaCacheURL());
  store.writeCacheFile(document(cache.hasCasks), store.caskCacheURL());
  store.setCatalogLastRefreshDate(cache.hasDate ? std::optional(refreshed) : std::nullopt);
  settings.recheckCache();
  EXPECT_EQ(settings.canClearMetadataCache(), cache.canClear);
}

INSTANTIATE_TEST_SUITE_P(Caches, MetadataCache,
                         testing::Values(Cache{"Nothing", false, false, false, false},
                                         Cache{"Casks", false, false, true, true},
                                         Cache{"Formulae", false, true, false, true},
                                         Cache{"Both", false, true, true, true},
                                         Cache{"Date", true, false, false, true},
                                         Cache{"All", true, true, true, true}),
                         [](const auto& each) { return each.param.name; });

TEST_F(SettingsScreen, DoNotCountAFolderInTheDocumentsPlace) {
  store.clearCacheMarkers();
  QDir().mkpath(filePath(store.formulaCacheURL()));
  settings.recheckCache();
  EXPECT_FALSE(settings.canClearMetadataCache());
}

TEST_F(SettingsScreen, OfferToClearTheCacheAsSoonAsADocumentIsWritten) {
  store.clearCacheMarkers();
  EXPECT_FALSE(settings.canClearMetadataCache());
  QSignalSpy changed(&store, &LocalPersistenceStore::catalogCacheChanged);
  store.saveCaskCatalog("[]", refreshed);
  EXPECT_TRUE(changed.wait());
  EXPECT_TRUE(settings.canClearMetadataCache());
  EXPECT_EQ(settings.lastRefreshText(), dateText(refreshed));
}

TEST_F(SettingsScreen, AsksNothingAtFirst) {
  EXPECT_FALSE(settings.confirmationPending());
  EXPECT_EQ(settings.confirmationTitle(), QString());
}

struct Question {
  SettingsConfirmation confirmation;
  const char* name;
  void (SettingsViewModel::*ask)();
  const char* title;
  const char* message;
  const char* confirmTitle;
};

constexpr Question questions[] = {
    {SettingsConfirmation::resetPrefix, "ResetPrefix", &SettingsViewModel::askResetPrefix,
     "Reset Homebrew Prefix?",
     "Quillmere will forget the selected prefix path and local scan marker. It will not change "
     "Homebrew files.",
     "Reset Prefix"},
    {SettingsConfirmation::clearCacheMarkers, "ClearCacheMarkers",
     &SettingsViewModel::askClearCacheMarkers, "Clear Metadata Cache?",
     "Quillmere will remove locally cached catalog metadata and freshness markers. It will not "
     "change Homebrew files.",
     "Clear Cache"},
    {SettingsConfirmation::clearHistory, "ClearHistory", &SettingsViewModel::askClearHistory,
     "Clear Command History?", "Quillmere will remove locally stored command history records.",
     "Clear History"},
    {SettingsConfirmation::resetOnboarding, "ResetOnboarding",
     &SettingsViewModel::askResetOnboarding, "Reset Onboarding?",
     "Quillmere will show onboarding again the next time the main window is active.",
     "Reset Onboarding"},
};

class SettingsQuestion : public SettingsScreen, public testing::WithParamInterface<Question> {
 protected:
  void ask() { (settings.*GetParam().ask)(); }
};

TEST_P(SettingsQuestion, IsAskedInItsWords) {
  ask();
  EXPECT_EQ(settings.confirmation(), GetParam().confirmation);
  EXPECT_EQ(settings.confirmationTitle(), QLatin1StringView(GetParam().title));
  EXPECT_EQ(settings.confirmationMessage(), QLatin1StringView(GetParam().message));
  EXPECT_EQ(settings.confirmTitle(), QLatin1StringView(GetParam().confirmTitle));
}

TEST_P(SettingsQuestion, ChangesNothingWhenItIsAskedOrCancelled) {
  const auto before = stored();
  ask();
  EXPECT_EQ(stored(), before);
  settings.cancel();
  EXPECT_FALSE(settings.confirmationPending());
  EXPECT_EQ(stored(), before);
}

TEST_P(SettingsQuestion, IsOverAndAnsweredAloudWhenItIsConfirmed) {
  const QSignalSpy done(&settings, &SettingsViewModel::actionCompleted);
  const auto before = stored();
  ask();
  settings.confirm();
  EXPECT_FALSE(settings.confirmationPending());
  EXPECT_NE(stored(), before);
  EXPECT_EQ(done.size(), 1);
}

TEST_P(SettingsQuestion, IsAskedInOneWindowOnly) {
  const SettingsViewModel other(store);
  ask();
  EXPECT_FALSE(other.confirmationPending());
}

INSTANTIATE_TEST_SUITE_P(All, SettingsQuestion, testing::ValuesIn(questions),
                         [](const auto& each) { return each.param.name; });

TEST_F(SettingsScreen, ForgetsThePrefixAndItsScanAndNothingElse) {
  settings.askResetPrefix();
  settings.confirm();
  EXPECT_EQ(stored(), std::tuple(std::optional<QString>(), std::optional<QDateTime>(),
                                 std::optional(refreshed), true, store.commandHistory(), true));
  EXPECT_EQ(settings.lastScanText(), u"Never"_s);
  EXPECT_EQ(settings.lastRefreshText(), dateText(refreshed));
}

TEST_F(SettingsScreen, ForgetsTheCatalogAndNothingElse) {
  settings.askClearCacheMarkers();
  settings.confirm();
  EXPECT_EQ(stored(), std::tuple(std::optional(u"/opt/homebrew"_s), std::optional(scanned),
                                 std::optional<QDateTime>(), false, store.commandHistory(), true));
  EXPECT_EQ(settings.lastScanText(), dateText(scanned));
  EXPECT_EQ(settings.lastRefreshText(), u"Never"_s);
  EXPECT_FALSE(settings.canClearMetadataCache());
}

TEST_F(SettingsScreen, ForgetsTheHistoryAndNothingElse) {
  settings.askClearHistory();
  settings.confirm();
  EXPECT_EQ(stored(), std::tuple(std::optional(u"/opt/homebrew"_s), std::optional(scanned),
                                 std::optional(refreshed), true, CommandHistory(), true));
  EXPECT_EQ(settings.historyCountText(), u"0"_s);
}

TEST_F(SettingsScreen, ResetsOnboardingAndNothingElse) {
  settings.askResetOnboarding();
  settings.confirm();
  EXPECT_EQ(stored(), std::tuple(std::optional(u"/opt/homebrew"_s), std::optional(scanned),
                                 std::optional(refreshed), true, store.commandHistory(), false));
  EXPECT_EQ(settings.onboardingCompletedText(), u"No"_s);
}

TEST_F(SettingsScreen, ConfirmsNothingThatWasNotAsked) {
  const auto before = stored();
  settings.confirm();
  EXPECT_EQ(stored(), before);
}

TEST_F(SettingsScreen, ShowsAtOnceWhatTheOtherWindowForgot) {
  const SettingsViewModel other(store);
  const QSignalSpy scans(&other, &SettingsViewModel::lastScanChanged);
  const QSignalSpy caches(&other, &SettingsViewModel::cacheChanged);
  const QSignalSpy counts(&other, &SettingsViewModel::historyCountChanged);
  const QSignalSpy onboardings(&other, &SettingsViewModel::onboardingChanged);
  for (const Question& question : questions) {
    (settings.*question.ask)();
    settings.confirm();
  }
  EXPECT_EQ(scans.size(), 1);
  EXPECT_FALSE(caches.isEmpty());
  EXPECT_EQ(counts.size(), 1);
  EXPECT_EQ(onboardings.size(), 1);
  EXPECT_EQ(other.lastScanText(), u"Never"_s);
  EXPECT_FALSE(other.canClearMetadataCache());
  EXPECT_EQ(other.historyCountText(), u"0"_s);
  EXPECT_EQ(other.onboardingCompletedText(), u"No"_s);
}

}  // namespace
}  // namespace quillmere

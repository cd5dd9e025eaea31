#include <gtest/gtest.h>

#include "persistence/LocalPersistenceStore.h"
#include "screens/SettingsViewModel.h"
#include "support/Printers.h"
#include "support/TemporarySettings.h"

namespace quillmere {
namespace {

class SettingsScreen : public testing::Test {
 protected:
  SettingsScreen() {
    store.setSelectedHomebrewPrefixPath(QStringLiteral("/opt/homebrew"));
    store.setLocalInventoryLastScanDate(date);
    store.setCatalogLastRefreshDate(date);
  }

  const QDateTime date = QDateTime::fromSecsSinceEpoch(1'000'000'000, Qt::UTC);
  test::TemporarySettings temporary;
  LocalPersistenceStore store{temporary.open(), temporary.cacheDirectoryURL()};
  SettingsViewModel settings{store};
};

TEST_F(SettingsScreen, AsksNothingAtFirst) {
  EXPECT_FALSE(settings.confirmationPending());
  EXPECT_EQ(settings.confirmationTitle(), QString());
}

TEST_F(SettingsScreen, AsksBeforeThePrefixIsReset) {
  settings.askResetPrefix();
  EXPECT_EQ(settings.confirmation(), SettingsConfirmation::resetPrefix);
  EXPECT_EQ(settings.confirmationTitle(), QStringLiteral("Reset Homebrew Prefix?"));
  EXPECT_EQ(settings.confirmationMessage(),
            QStringLiteral("Quillmere will forget the selected prefix path and local scan marker. "
                           "It will not change Homebrew files."));
  EXPECT_EQ(settings.confirmTitle(), QStringLiteral("Reset Prefix"));
  EXPECT_TRUE(store.selectedHomebrewPrefixPath().has_value());
}

TEST_F(SettingsScreen, ResetsThePrefixWhenConfirmed) {
  settings.askResetPrefix();
  settings.confirm();
  EXPECT_FALSE(settings.confirmationPending());
  EXPECT_FALSE(store.selectedHomebrewPrefixPath().has_value());
  EXPECT_FALSE(store.localInventoryLastScanDate().has_value());
}

TEST_F(SettingsScreen, LeavesTheLastCatalogRefreshWhenThePrefixIsReset) {
  settings.askResetPrefix();
  settings.confirm();
  EXPECT_EQ(store.catalogLastRefreshDate(), date);
}

TEST_F(SettingsScreen, ChangesNothingWhenCancelled) {
  settings.askResetPrefix();
  settings.cancel();
  EXPECT_FALSE(settings.confirmationPending());
  EXPECT_EQ(store.selectedHomebrewPrefixPath(), QStringLiteral("/opt/homebrew"));
  EXPECT_EQ(store.localInventoryLastScanDate(), date);
}

TEST_F(SettingsScreen, ConfirmsNothingThatWasNotAsked) {
  settings.confirm();
  EXPECT_TRUE(store.selectedHomebrewPrefixPath().has_value());
}

TEST_F(SettingsScreen, AsksInOneWindowOnly) {
  const SettingsViewModel other(store);
  settings.askResetPrefix();
  EXPECT_FALSE(other.confirmationPending());
}

}  // namespace
}  // namespace quillmere

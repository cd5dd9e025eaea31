#include <gtest/gtest.h>

#include "StoreFixture.h"
#include "persistence/LocalPersistenceStore.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using Store = LocalPersistenceStore;

/// Bookmarks of a platform that follows folders: what they resolve to is up to the test.
struct ScriptedBookmarks : SecurityScopedBookmarks {
  std::optional<Resolved> resolved;
  std::optional<QByteArray> created;

  [[nodiscard]] std::optional<QByteArray> create(const QUrl& /*url*/) const override {
    return created;
  }

  [[nodiscard]] std::optional<Resolved> resolve(const QByteArray& /*bookmark*/) const override {
    return resolved;
  }
};

class SelectedPrefix : public test::StoreFixture {};

TEST_F(SelectedPrefix, FindsTheSelectedPrefixAgainAfterARestart) {
  const QUrl folder = QUrl::fromLocalFile(u"/home/anna/my brew%20?/"_s);
  start()->selectPrefix(folder);
  const auto store = start();
  EXPECT_EQ(store->selectedHomebrewPrefixPath(), u"/home/anna/my brew%20?"_s);
  EXPECT_TRUE(store->selectedHomebrewPrefixBookmarkData().has_value());
  ASSERT_TRUE(store->resolvedPrefixURL().has_value());
  EXPECT_EQ(store->resolvedPrefixURL()->adjusted(QUrl::StripTrailingSlash),
            folder.adjusted(QUrl::StripTrailingSlash));
}

TEST_F(SelectedPrefix, HasNoScanDateBeforeItIsScanned) {
  const auto store = start();
  store->selectPrefix(QUrl::fromLocalFile(u"/opt/homebrew"_s));
  store->setLocalInventoryLastScanDate(test::friday);
  store->selectPrefix(QUrl::fromLocalFile(u"/opt/homebrew/"_s));
  EXPECT_EQ(store->localInventoryLastScanDate(), test::friday);
  store->selectPrefix(QUrl::fromLocalFile(u"/usr/local"_s));
  EXPECT_EQ(store->localInventoryLastScanDate(), std::nullopt);
}

TEST_F(SelectedPrefix, TellsOfASelectionWhenAllOfItHasChanged) {
  const auto store = start();
  store->selectPrefix(QUrl::fromLocalFile(u"/old"_s));
  store->setLocalInventoryLastScanDate(test::friday);
  int selections = 0;
  const auto isWhole = [&] {
    EXPECT_EQ(store->selectedHomebrewPrefixPath(), u"/new"_s);
    EXPECT_EQ(store->resolvedPrefixURL(), QUrl::fromLocalFile(u"/new"_s));
    EXPECT_EQ(store->localInventoryLastScanDate(), std::nullopt);
  };
  QObject::connect(store.get(), &Store::prefixSelected, store.get(), [&] {
    ++selections;
    isWhole();
  });
  for (const auto change : {&Store::selectedHomebrewPrefixPathChanged,
                            &Store::selectedHomebrewPrefixBookmarkDataChanged,
                            &Store::localInventoryLastScanDateChanged}) {
    QObject::connect(store.get(), change, store.get(), isWhole);
  }
  store->selectPrefix(QUrl::fromLocalFile(u"/new"_s));
  EXPECT_EQ(selections, 1);
}

TEST_F(SelectedPrefix, TellsThatTheSameWasSelectedOnceMore) {
  const auto store = start();
  store->selectPrefix(QUrl::fromLocalFile(u"/opt/homebrew"_s));
  int selections = 0;
  QObject::connect(store.get(), &Store::prefixSelected, store.get(), [&] { ++selections; });
  store->selectPrefix(QUrl::fromLocalFile(u"/opt/homebrew"_s));
  EXPECT_EQ(selections, 1);
  store->resetPrefix();
  EXPECT_EQ(selections, 2);
  store->resetPrefix();
  EXPECT_EQ(selections, 2);
}

TEST_F(SelectedPrefix, DoesNotTellOfABookmarkThatIsRenewed) {
  const auto bookmarks = std::make_shared<ScriptedBookmarks>();
  bookmarks->resolved = {QUrl::fromLocalFile(u"/opt/homebrew"_s), true};
  bookmarks->created = "fresh";
  const auto store = start(bookmarks);
  store->setSelectedHomebrewPrefixPath(u"/opt/homebrew"_s);
  store->setSelectedHomebrewPrefixBookmarkData("stale");
  int selections = 0;
  QObject::connect(store.get(), &Store::prefixSelected, store.get(), [&] {
    ++selections;
    // As a panel does that shows the selection.
    (void)store->resolvedPrefixURL();
  });
  EXPECT_TRUE(store->resolvedPrefixURL().has_value());
  EXPECT_EQ(selections, 0);
  EXPECT_EQ(store->selectedHomebrewPrefixBookmarkData(), "fresh");
}

TEST_F(SelectedPrefix, ResolvesAPathAloneWhereThereIsNoBookmark) {
  const auto store = start(std::make_shared<ScriptedBookmarks>());
  store->selectPrefix(QUrl::fromLocalFile(u"/opt/homebrew"_s));
  EXPECT_EQ(store->selectedHomebrewPrefixBookmarkData(), std::nullopt);
  EXPECT_EQ(store->resolvedPrefixURL(), QUrl::fromLocalFile(u"/opt/homebrew"_s));
}

TEST_F(SelectedPrefix, ResolvesNothingWhereTheBookmarkLeadsNowhere) {
  const auto store = start(std::make_shared<ScriptedBookmarks>());
  store->setSelectedHomebrewPrefixPath(u"/opt/homebrew"_s);
  store->setSelectedHomebrewPrefixBookmarkData("lost");
  EXPECT_EQ(store->resolvedPrefixURL(), std::nullopt);
  EXPECT_EQ(store->selectedHomebrewPrefixPath(), u"/opt/homebrew"_s);
  EXPECT_EQ(store->selectedHomebrewPrefixBookmarkData(), "lost");
}

TEST_F(SelectedPrefix, BelievesABookmarkMoreThanThePath) {
  const auto bookmarks = std::make_shared<ScriptedBookmarks>();
  bookmarks->resolved = {QUrl::fromLocalFile(u"/new"_s), false};
  bookmarks->created = "fresh";
  const auto store = start(bookmarks);
  store->setSelectedHomebrewPrefixPath(u"/old"_s);
  store->setSelectedHomebrewPrefixBookmarkData("valid");
  EXPECT_EQ(store->resolvedPrefixURL(), QUrl::fromLocalFile(u"/new"_s));
  EXPECT_EQ(store->selectedHomebrewPrefixPath(), u"/old"_s);
  EXPECT_EQ(store->selectedHomebrewPrefixBookmarkData(), "valid");
}

TEST_F(SelectedPrefix, RenewsAStaleBookmarkAndFollowsTheFolder) {
  const auto bookmarks = std::make_shared<ScriptedBookmarks>();
  bookmarks->resolved = {QUrl::fromLocalFile(u"/new/"_s), true};
  bookmarks->created = "fresh";
  const auto store = start(bookmarks);
  store->setSelectedHomebrewPrefixPath(u"/old"_s);
  store->setSelectedHomebrewPrefixBookmarkData("stale");
  EXPECT_EQ(store->resolvedPrefixURL(), QUrl::fromLocalFile(u"/new/"_s));
  EXPECT_EQ(start()->selectedHomebrewPrefixPath(), u"/new"_s);
  EXPECT_EQ(start()->selectedHomebrewPrefixBookmarkData(), "fresh");
}

TEST_F(SelectedPrefix, KeepsAStaleBookmarkThatCannotBeRenewed) {
  const auto bookmarks = std::make_shared<ScriptedBookmarks>();
  bookmarks->resolved = {QUrl::fromLocalFile(u"/new"_s), true};
  const auto store = start(bookmarks);
  store->setSelectedHomebrewPrefixBookmarkData("stale");
  EXPECT_EQ(store->resolvedPrefixURL(), QUrl::fromLocalFile(u"/new"_s));
  EXPECT_EQ(store->selectedHomebrewPrefixPath(), u"/new"_s);
  EXPECT_EQ(store->selectedHomebrewPrefixBookmarkData(), "stale");
}

}  // namespace
}  // namespace quillmere

#include <QCoroTask>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QThread>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <vector>

#include "StoreFixture.h"
#include "persistence/LocalPersistenceStore.h"
#include "support/PermissionBits.h"
#include "support/UnprivilegedUser.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using Store = LocalPersistenceStore;
using test::friday;
using test::monday;

class CatalogCache : public test::StoreFixture {};

TEST_F(CatalogCache, SavesCatalogDocumentsAsTheyAreAndTheirDate) {
  const auto store = start();
  const QByteArray formulae("[\0\xff\r\n]", 6);
  QCoro::waitFor(store->saveFormulaCatalog(formulae, monday));
  EXPECT_EQ(contentOf(u"formula.json"_s), formulae);
  EXPECT_EQ(start()->catalogLastRefreshDate(), monday);
  QCoro::waitFor(store->saveCaskCatalog("[1]", friday));
  EXPECT_EQ(contentOf(u"cask.json"_s), "[1]");
  EXPECT_EQ(contentOf(u"formula.json"_s), formulae);
  EXPECT_EQ(start()->catalogLastRefreshDate(), friday);
}

TEST_F(CatalogCache, IsForItsOwnerAlone) {
  givenCacheFile(u"cask.json"_s, "[]");
  ASSERT_NE(test::permissionBits(cacheFile(u"cask.json"_s)), 0600);
  QCoro::waitFor(start()->saveFormulaCatalog("[]", monday));
  EXPECT_EQ(test::permissionBits(cacheFile(u"formula.json"_s)), 0600);
  EXPECT_EQ(test::permissionBits(cacheFile(u"cask.json"_s)), 0600) << "of an earlier version";
}

TEST_F(CatalogCache, SetsTheDateEvenWhereTheDocumentCannotBeWritten) {
  QFile inTheWay(QFileInfo(settings_.cacheDirectoryURL().toLocalFile()).path());
  ASSERT_TRUE(inTheWay.open(QFile::WriteOnly));
  const auto store = start();
  QCoro::waitFor(store->saveFormulaCatalog("[]", monday));
  EXPECT_EQ(store->catalogLastRefreshDate(), monday);
  EXPECT_EQ(contentOf(u"formula.json"_s), "(none)");
  QCoro::waitFor(store->saveCaskCatalog("[]", friday));
  EXPECT_EQ(store->catalogLastRefreshDate(), friday);
  store->clearCacheMarkers();
  EXPECT_EQ(store->catalogLastRefreshDate(), std::nullopt);
}

TEST_F(CatalogCache, RemovesACacheFileForWhichThereAreNoBytes) {
  const auto store = start();
  store->writeCacheFile(QByteArray("x"), store->formulaCacheURL());
  EXPECT_EQ(contentOf(u"formula.json"_s), "x");
  store->writeCacheFile(QByteArray(""), store->formulaCacheURL());
  EXPECT_EQ(contentOf(u"formula.json"_s), "");
  store->writeCacheFile(std::nullopt, store->formulaCacheURL());
  EXPECT_FALSE(QFile::exists(cacheFile(u"formula.json"_s)));
  store->writeCacheFile(std::nullopt, store->formulaCacheURL());
  EXPECT_FALSE(QFile::exists(cacheFile(u"formula.json"_s)));
}

TEST_F(CatalogCache, WritesWithoutHoldingUpTheCaller) {
  const auto store = start();
  auto saving = store->saveFormulaCatalog("[]", monday);
  EXPECT_EQ(store->catalogLastRefreshDate(), std::nullopt);
  EXPECT_FALSE(saving.isReady());
  QCoro::waitFor(saving);
  EXPECT_EQ(store->catalogLastRefreshDate(), monday);
}

TEST_F(CatalogCache, FinishesAWriteThatHasBegunBeforeTheStoreIsGone) {
  auto store = start();
  const auto saving = store->saveFormulaCatalog(QByteArray(1'000'000, ' '), monday);
  store.reset();
  EXPECT_EQ(contentOf(u"formula.json"_s).size(), 1'000'000);
}

TEST_F(CatalogCache, StaysClearedWhereItIsClearedDuringAWrite) {
  const auto store = start();
  auto saving = store->saveCaskCatalog("[]", monday);
  store->clearCacheMarkers();
  QCoro::waitFor(saving);
  EXPECT_FALSE(store->hasCachedCaskCatalog());
  EXPECT_EQ(store->catalogLastRefreshDate(), std::nullopt);
}

TEST_F(CatalogCache, StaysClearedWhereTheStoreGoesDuringTheWrite) {
  auto store = start();
  const auto saving = store->saveFormulaCatalog(QByteArray(8'000'000, ' '), monday);
  store->clearCacheMarkers();
  store.reset();
  EXPECT_FALSE(QFile::exists(cacheFile(u"formula.json"_s)));
}

TEST_F(CatalogCache, KeepsADocumentSavedAfterItWasCleared) {
  const auto store = start();
  auto before = store->saveFormulaCatalog("[1]", monday);
  store->clearCacheMarkers();
  auto after = store->saveFormulaCatalog("[2]", friday);
  // Only after both writes does the event loop hear of the first.
  while (contentOf(u"formula.json"_s) != "[2]") {
    QThread::yieldCurrentThread();
  }
  QCoro::waitFor(before);
  QCoro::waitFor(after);
  EXPECT_EQ(contentOf(u"formula.json"_s), "[2]");
  EXPECT_EQ(store->catalogLastRefreshDate(), friday);
}

TEST_F(CatalogCache, LeavesNothingBehindWhereItWasCleared) {
  auto store = start();
  QCoro::waitFor(store->saveFormulaCatalog("[]", monday));
  QCoro::waitFor(store->saveCaskCatalog("[]", monday));
  const QFileInfo file(store->formulaCacheURL().toLocalFile());
  store->clearCacheMarkers();
  EXPECT_FALSE(file.dir().exists(file.fileName()));
  store.reset();
  EXPECT_TRUE(file.dir().isEmpty());
}

TEST_F(CatalogCache, KnowsWhichDocumentsItHolds) {
  const auto store = start();
  EXPECT_FALSE(store->hasCachedFormulaCatalog());
  EXPECT_FALSE(store->hasCachedCaskCatalog());
  int changes = 0;
  QObject::connect(store.get(), &Store::catalogCacheChanged, [&changes] { ++changes; });
  QCoro::waitFor(store->saveFormulaCatalog("[]", monday));
  EXPECT_TRUE(store->hasCachedFormulaCatalog());
  EXPECT_FALSE(store->hasCachedCaskCatalog());
  QCoro::waitFor(store->saveCaskCatalog("[]", monday));
  EXPECT_TRUE(store->hasCachedCaskCatalog());
  EXPECT_EQ(changes, 2);
  store->clearCacheMarkers();
  EXPECT_FALSE(store->hasCachedFormulaCatalog());
  EXPECT_FALSE(store->hasCachedCaskCatalog());
  EXPECT_EQ(changes, 3);
}

// --- Documents that an older version kept in the settings ---

struct OldKey {
  QString key;
  QString file;
};

const std::vector<OldKey> oldKeys = {{u"cachedFormulaCatalogData"_s, u"formula.json"_s},
                                     {u"cachedCaskCatalogData"_s, u"cask.json"_s}};

TEST_F(CatalogCache, MovesOldDocumentsIntoTheCache) {
  for (const OldKey& old : oldKeys) {
    given(old.key, QByteArray("old \xff\0 document", 15));
  }
  start();
  for (const OldKey& old : oldKeys) {
    EXPECT_EQ(contentOf(old.file), QByteArray("old \xff\0 document", 15));
    EXPECT_FALSE(settings_.open()->contains(old.key));
  }
}

TEST_F(CatalogCache, PrefersADocumentThatIsInTheCacheAlready) {
  for (const OldKey& old : oldKeys) {
    given(old.key, QByteArray("old"));
    givenCacheFile(old.file, "newer");
  }
  start();
  for (const OldKey& old : oldKeys) {
    EXPECT_EQ(contentOf(old.file), "newer");
    EXPECT_FALSE(settings_.open()->contains(old.key));
  }
}

TEST_F(CatalogCache, RemovesAnOldKeyThatHoldsNoBytes) {
  for (const OldKey& old : oldKeys) {
    given(old.key, u"text"_s);
  }
  start();
  for (const OldKey& old : oldKeys) {
    EXPECT_EQ(contentOf(old.file), "(none)");
    EXPECT_FALSE(settings_.open()->contains(old.key));
  }
}

TEST_F(CatalogCache, RemovesOldKeysEvenWhereTheirDocumentsCannotBeWritten) {
  for (const OldKey& old : oldKeys) {
    given(old.key, QByteArray("old"));
    ASSERT_TRUE(QDir().mkpath(cacheFile(old.file)));
  }
  start();
  for (const OldKey& old : oldKeys) {
    EXPECT_TRUE(QFileInfo(cacheFile(old.file)).isDir());
    EXPECT_FALSE(settings_.open()->contains(old.key));
  }
}

TEST_F(CatalogCache, KnowsWhetherADocumentCanBeRead) {
  const auto store = start();
  EXPECT_FALSE(store->hasReadableCatalogCache());
  store->writeCacheFile("[]", store->caskCacheURL());
  EXPECT_TRUE(store->hasReadableCatalogCache());
  store->clearCacheMarkers();
  ASSERT_TRUE(QDir().mkpath(store->formulaCacheURL().toLocalFile()));
  EXPECT_FALSE(store->hasReadableCatalogCache());
}

TEST_F(CatalogCache, DoesNotWaitForAPipeThatIsNamedLikeACacheFile) {
  given(u"cachedFormulaCatalogData"_s, QByteArray("old"));
  ASSERT_TRUE(QDir().mkpath(settings_.cacheDirectoryURL().toLocalFile()));
  ASSERT_EQ(mkfifo(QFile::encodeName(cacheFile(u"formula.json"_s)).constData(), 0600), 0);
  start();
  EXPECT_FALSE(settings_.open()->contains(u"cachedFormulaCatalogData"_s));
}

TEST_F(CatalogCache, WritesAnOldDocumentOverAFileThatCannotBeRead) {
  EXPECT_TRUE(test::runUnprivileged([] {
    const test::TemporarySettings settings;
    settings.open()->setValue(u"cachedCaskCatalogData"_s, QByteArray("old"));
    QDir().mkpath(settings.cacheDirectoryURL().toLocalFile());
    QFile file(settings.cacheDirectoryURL().toLocalFile() + u"/cask.json"_s);
    const bool isGiven = file.open(QFile::WriteOnly) && file.write("unreadable") > 0;
    file.close();
    file.setPermissions(QFile::WriteOwner);
    const Store store(settings.open(), settings.cacheDirectoryURL());
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    return isGiven && file.open(QFile::ReadOnly) && file.readAll() == "old";
  }));
}

}  // namespace
}  // namespace quillmere

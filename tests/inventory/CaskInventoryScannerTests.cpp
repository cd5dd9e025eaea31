#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "inventory/HomebrewCaskInventoryScanner.h"
#include "platform/SecurityScopedAccess.h"
#include "support/InMemoryPrefixFileSystem.h"
#include "support/Printers.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using test::InMemoryPrefixFileSystem;
using testing::ElementsAre;
using Kind = HomebrewPrefixLocation::Kind;

const QUrl prefixURL = QUrl(u"file:///opt/homebrew"_s);

/// A Caskroom in memory.
class CaskInventoryScanner : public testing::Test {
 protected:
  void addVersion(const QString& token, const QString& version) {
    disk_->withFolder(u"/opt/homebrew/Caskroom/"_s + token + u'/' + version);
  }

  [[nodiscard]] HomebrewCaskInventoryScan scan(
      const std::vector<HomebrewCask>& catalog = {}) const {
    return HomebrewCaskInventoryScanner(prefixURL, disk_).scan(catalog);
  }

  std::shared_ptr<InMemoryPrefixFileSystem> disk_ = std::make_shared<InMemoryPrefixFileSystem>();
};

HomebrewCask record(const char* token) {
  return {.token = SharedText(std::string_view(token)), .version = SharedText(u"1.0")};
}

TEST_F(CaskInventoryScanner, OrdersVersionsAndLeavesOutTheMetadata) {
  addVersion(u"chrome"_s, u"121.0.1"_s);
  addVersion(u"chrome"_s, u"120.0"_s);
  addVersion(u"chrome"_s, u".metadata"_s);
  const auto casks = scan().casks;
  ASSERT_EQ(casks.size(), 1U);
  EXPECT_EQ(casks[0].token, u"chrome"_s);
  EXPECT_EQ(casks[0].installedVersions, (QStringList{u"120.0"_s, u"121.0.1"_s}));
  EXPECT_EQ(casks[0].currentVersion, u"121.0.1"_s);
  EXPECT_EQ(casks[0].catalogCask, std::nullopt);
}

TEST_F(CaskInventoryScanner, KnowsVersionsWithCommasColonsAndBlanks) {
  for (const QString& version : {u"2.10,b:7+x y"_s, u"2.9,a"_s, u"latest"_s}) {
    addVersion(u"tool"_s, version);
  }
  EXPECT_EQ(scan().casks.at(0).installedVersions,
            (QStringList{u"2.9,a"_s, u"2.10,b:7+x y"_s, u"latest"_s}));
}

TEST_F(CaskInventoryScanner, TakesAPlainFileForAVersion) {
  disk_->withFile(u"/opt/homebrew/Caskroom/tool/1.0"_s, "x");
  EXPECT_EQ(scan().casks.at(0).installedVersions, QStringList{u"1.0"_s});
}

TEST_F(CaskInventoryScanner, KeepsACaskWithoutVersions) {
  disk_->withFolder(u"/opt/homebrew/Caskroom/empty"_s);
  const auto casks = scan({record("empty")}).casks;
  ASSERT_EQ(casks.size(), 1U);
  EXPECT_EQ(casks[0], (InstalledCask{.token = u"empty"_s,
                                     .installedVersions = {},
                                     .currentVersion = std::nullopt,
                                     .catalogCask = record("empty")}));
}

TEST_F(CaskInventoryScanner, FindsNothingInACaskroomThatCannotBeRead) {
  addVersion(u"firefox"_s, u"154.0"_s);
  disk_->withUnreadable(u"/opt/homebrew/Caskroom"_s);
  const auto result = scan();
  EXPECT_TRUE(result.casks.empty());
  ASSERT_EQ(result.prefixReadResult.locations.size(), 7U);
  EXPECT_EQ(result.prefixReadResult.location(Kind::caskroom)->status,
            HomebrewPrefixLocation::Status::notReadable);
}

TEST_F(CaskInventoryScanner, FindsNothingWithoutACaskroom) {
  EXPECT_TRUE(scan({record("firefox")}).casks.empty());
}

TEST_F(CaskInventoryScanner, LeavesOutWhatCannotBeRead) {
  addVersion(u"firefox"_s, u"154.0"_s);
  addVersion(u"secret"_s, u"1"_s);
  disk_->withUnreadable(u"/opt/homebrew/Caskroom/secret"_s);
  const auto casks = scan().casks;
  ASSERT_EQ(casks.size(), 1U);
  EXPECT_EQ(casks[0].token, u"firefox"_s);
}

TEST_F(CaskInventoryScanner, MatchesCasksWithTheCatalogByTheirExactToken) {
  addVersion(u"firefox"_s, u"154.0"_s);
  addVersion(u"Firefox"_s, u"154.0"_s);
  const auto casks = scan({record("chrome"), record("firefox")}).casks;
  ASSERT_EQ(casks.size(), 2U);
  EXPECT_EQ(casks[0].catalogCask, std::nullopt);
  EXPECT_EQ(casks[1].catalogCask, record("firefox"));
}

TEST_F(CaskInventoryScanner, ReadsNoFileAtAll) {
  disk_->withFile(u"/opt/homebrew/Caskroom/firefox/154.0/INSTALL_RECEIPT.json"_s, "{}");
  static_cast<void>(scan());
  EXPECT_TRUE(disk_->asked.filter(u"readData"_s).isEmpty());
}

TEST_F(CaskInventoryScanner, ReportsItsProgress) {
  addVersion(u"a"_s, u"1"_s);
  addVersion(u"b"_s, u"1"_s);
  std::vector<std::pair<qsizetype, qsizetype>> reports;
  static_cast<void>(HomebrewCaskInventoryScanner(prefixURL, disk_)
                        .scan({}, [&reports](qsizetype scanned, qsizetype total) {
                          reports.emplace_back(scanned, total);
                        }));
  EXPECT_THAT(reports, ElementsAre(std::pair(0, 2), std::pair(1, 2), std::pair(2, 2)));
}

TEST_F(CaskInventoryScanner, GivesBackTheAccessThatItWasGranted) {
  const auto before = SecurityScopedAccess::counts();
  static_cast<void>(scan());
  const auto after = SecurityScopedAccess::counts();
  EXPECT_EQ(after.started - before.started, 2);
  EXPECT_EQ(after.stopped - before.stopped, 2);
}

TEST_F(CaskInventoryScanner, IsEqualOnlyInEveryField) {
  addVersion(u"firefox"_s, u"154.0"_s);
  const auto result = scan();
  auto other = result;
  EXPECT_EQ(other, result);
  other.scannedAt = other.scannedAt.addMSecs(1);
  EXPECT_NE(other, result);
  other = result;
  other.casks.clear();
  EXPECT_NE(other, result);
  other = result;
  other.prefixReadResult.locations.clear();
  EXPECT_NE(other, result);
}

TEST(CaskInventoryScannerDeathTest, StopsAtACatalogThatNamesACaskTwice) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const std::vector<HomebrewCask> catalog = {record("firefox"), record("firefox")};
  const HomebrewCaskInventoryScanner scanner(prefixURL,
                                             std::make_shared<InMemoryPrefixFileSystem>());
  EXPECT_DEATH(static_cast<void>(scanner.scan(catalog)), "Duplicate values for key: 'firefox'\n");
}

}  // namespace
}  // namespace quillmere

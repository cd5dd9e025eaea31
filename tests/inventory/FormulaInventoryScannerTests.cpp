#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "inventory/HomebrewFormulaInventoryScanner.h"
#include "platform/SecurityScopedAccess.h"
#include "support/InMemoryPrefixFileSystem.h"
#include "support/Printers.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using test::InMemoryPrefixFileSystem;
using testing::ElementsAre;
using Kind = HomebrewPrefixLocation::Kind;
using Reason = InstalledFormula::InstallReason;

const QUrl prefixURL = QUrl(u"file:///opt/homebrew"_s);
const QByteArray onRequest = R"({"installed_on_request":true})";
const QByteArray asDependency = R"({"installed_on_request":false})";

/// A Cellar in memory.
class FormulaInventoryScanner : public testing::Test {
 protected:
  void addVersion(const QString& formula, const QString& version) {
    disk_->withFolder(folderOf(formula) + u'/' + version);
  }

  void addReceipt(const QString& formula, const QString& version, const QByteArray& json) {
    disk_->withFile(folderOf(formula) + u'/' + version + u"/INSTALL_RECEIPT.json"_s, json);
  }

  static QString folderOf(const QString& formula) { return u"/opt/homebrew/Cellar/"_s + formula; }

  [[nodiscard]] HomebrewFormulaInventoryScan scan(
      const std::vector<HomebrewFormula>& catalog = {}) const {
    return HomebrewFormulaInventoryScanner(prefixURL, disk_).scan(catalog);
  }

  /// Scans a Cellar with one formula.
  [[nodiscard]] InstalledFormula onlyFormula() const {
    const auto formulae = scan().formulae;
    EXPECT_EQ(formulae.size(), 1U);
    return formulae.empty() ? InstalledFormula() : formulae[0];
  }

  std::shared_ptr<InMemoryPrefixFileSystem> disk_ = std::make_shared<InMemoryPrefixFileSystem>();
};

HomebrewFormula record(const char* name, const char* version = "1.0") {
  return {.name = SharedText(std::string_view(name)),
          .versions = {.stable = SharedText(std::string_view(version))}};
}

QStringList namesOf(const HomebrewFormulaInventoryScan& scan) {
  QStringList names;
  for (const InstalledFormula& formula : scan.formulae) {
    names += formula.name;
  }
  return names;
}

TEST_F(FormulaInventoryScanner, OrdersVersionsByTheirNumbers) {
  addVersion(u"python@3.12"_s, u"3.12.10"_s);
  addVersion(u"python@3.12"_s, u"3.12.1"_s);
  EXPECT_EQ(onlyFormula().installedVersions, (QStringList{u"3.12.1"_s, u"3.12.10"_s}));
  EXPECT_EQ(onlyFormula().currentVersion, u"3.12.10"_s);
}

TEST_F(FormulaInventoryScanner, OrdersRevisionsAndHeadsAmongVersions) {
  for (const QString& version : {u"HEAD-abc1234_1"_s, u"8.2.1_10"_s, u"HEAD"_s, u"8.2.1"_s,
                                 u"HEAD-abc1234"_s, u"8.2.1_2"_s, u"8.10"_s}) {
    addVersion(u"vim"_s, version);
  }
  EXPECT_EQ(onlyFormula().installedVersions,
            (QStringList{u"8.2.1"_s, u"8.2.1_2"_s, u"8.2.1_10"_s, u"8.10"_s, u"HEAD"_s,
                         u"HEAD-abc1234"_s, u"HEAD-abc1234_1"_s}));
  EXPECT_EQ(onlyFormula().currentVersion, u"HEAD-abc1234_1"_s);
}

TEST_F(FormulaInventoryScanner, TakesLeftOversAndPlainFilesForVersions) {
  addVersion(u"wget"_s, u"1.25.0"_s);
  addVersion(u"wget"_s, u"1.25.0.reinstall"_s);
  disk_->withFile(folderOf(u"wget"_s) + u"/notes.txt"_s, "x");
  disk_->withFile(folderOf(u"wget"_s) + u"/.DS_Store"_s, "x");
  EXPECT_EQ(onlyFormula().installedVersions,
            (QStringList{u"1.25.0"_s, u"1.25.0.reinstall"_s, u"notes.txt"_s}));
}

TEST_F(FormulaInventoryScanner, KnowsWhatWasAskedForAndWhatWasNeeded) {
  addReceipt(u"wget"_s, u"1.25.0"_s, onRequest);
  addReceipt(u"openssl@3"_s, u"3.5.0"_s, asDependency);
  addReceipt(u"old"_s, u"1"_s, "{}");
  addReceipt(u"open"_s, u"1"_s, R"({"installed_on_request":null})");
  const auto formulae = scan().formulae;
  ASSERT_EQ(formulae.size(), 4U);
  EXPECT_EQ(formulae[0].installReason, Reason::unknown);
  EXPECT_EQ(formulae[1].installReason, Reason::unknown);
  EXPECT_EQ(formulae[2].installReason, Reason::dependency);
  EXPECT_EQ(formulae[3].installReason, Reason::direct);
}

TEST_F(FormulaInventoryScanner, AsksAnOlderReceiptWhereTheNewestIsMissing) {
  addVersion(u"wget"_s, u"1.10"_s);
  addReceipt(u"wget"_s, u"1.9"_s, asDependency);
  EXPECT_EQ(onlyFormula().installReason, Reason::dependency);
}

TEST_F(FormulaInventoryScanner, AsksAnOlderReceiptWhereNewerOnesCannotBeDecodedOrRead) {
  addReceipt(u"wget"_s, u"1.11"_s, onRequest);
  disk_->withUnreadable(folderOf(u"wget"_s) + u"/1.11/INSTALL_RECEIPT.json"_s);
  addReceipt(u"wget"_s, u"1.10"_s, R"({"installed_on_request":"true"})");
  addReceipt(u"wget"_s, u"1.9"_s, "{");
  addReceipt(u"wget"_s, u"1.8"_s, "");
  addReceipt(u"wget"_s, u"1.7"_s, asDependency);
  addReceipt(u"wget"_s, u"1.6"_s, onRequest);
  EXPECT_EQ(onlyFormula().installReason, Reason::dependency);
}

TEST_F(FormulaInventoryScanner, TakesAReceiptThatDoesNotSayForAnAnswer) {
  addReceipt(u"wget"_s, u"1.10"_s, R"({"time":null})");
  addReceipt(u"wget"_s, u"1.9"_s, onRequest);
  EXPECT_EQ(onlyFormula().installReason, Reason::unknown);
}

TEST_F(FormulaInventoryScanner, DoesNotKnowTheReasonWithoutAnyReceipt) {
  addVersion(u"wget"_s, u"1.9"_s);
  addVersion(u"wget"_s, u"1.10"_s);
  EXPECT_EQ(onlyFormula().installReason, Reason::unknown);
}

TEST_F(FormulaInventoryScanner, KeepsAFormulaWithoutVersions) {
  disk_->withFolder(folderOf(u"empty"_s));
  const auto formulae = scan({record("empty")}).formulae;
  ASSERT_EQ(formulae.size(), 1U);
  EXPECT_EQ(formulae[0], (InstalledFormula{.name = u"empty"_s,
                                           .installedVersions = {},
                                           .currentVersion = std::nullopt,
                                           .installReason = Reason::unknown,
                                           .catalogFormula = record("empty")}));
}

TEST_F(FormulaInventoryScanner, FindsNoVersionsInAPlainFileAmongTheFormulae) {
  disk_->withFile(folderOf(u"README"_s), "x");
  EXPECT_EQ(onlyFormula(), InstalledFormula{.name = u"README"_s});
}

TEST_F(FormulaInventoryScanner, LeavesOutWhatCannotBeRead) {
  addReceipt(u"wget"_s, u"1.25.0"_s, onRequest);
  addReceipt(u"secret"_s, u"1.0"_s, onRequest);
  disk_->withUnreadable(folderOf(u"secret"_s));
  EXPECT_EQ(namesOf(scan()), QStringList{u"wget"_s});
}

TEST_F(FormulaInventoryScanner, MatchesFormulaeWithTheCatalogByTheirExactName) {
  addVersion(u"wget"_s, u"1.24.5"_s);
  addVersion(u"Wget"_s, u"1"_s);
  addVersion(u"local"_s, u"1"_s);
  const auto formulae = scan({record("zlib"), record("wget", "1.25.0")}).formulae;
  ASSERT_EQ(formulae.size(), 3U);
  EXPECT_EQ(formulae[0].catalogFormula, std::nullopt);
  EXPECT_EQ(formulae[1].catalogFormula, std::nullopt);
  EXPECT_EQ(formulae[2].catalogFormula, record("wget", "1.25.0"));
}

TEST_F(FormulaInventoryScanner, KeepsTheOrderOfTheCellar) {
  for (const QString& name : {u"wget"_s, u"abc"_s, u"Zsh"_s, u"pkg2"_s, u"pkg10"_s}) {
    addVersion(name, u"1.0"_s);
  }
  EXPECT_EQ(namesOf(scan()), (QStringList{u"Zsh"_s, u"abc"_s, u"pkg10"_s, u"pkg2"_s, u"wget"_s}));
}

TEST_F(FormulaInventoryScanner, FindsNothingWithoutACellar) {
  disk_->withFolder(u"/opt/homebrew/bin"_s);
  const auto result = scan({record("wget")});
  EXPECT_TRUE(result.formulae.empty());
  EXPECT_EQ(result.prefixReadResult.location(Kind::cellar)->status,
            HomebrewPrefixLocation::Status::missing);
}

TEST_F(FormulaInventoryScanner, FindsNothingInACellarThatCannotBeRead) {
  addVersion(u"wget"_s, u"1.25.0"_s);
  disk_->withUnreadable(u"/opt/homebrew/Cellar"_s);
  const auto result = scan();
  EXPECT_TRUE(result.formulae.empty());
  EXPECT_EQ(result.prefixReadResult.location(Kind::cellar)->status,
            HomebrewPrefixLocation::Status::notReadable);
  EXPECT_EQ(result.prefixReadResult.locations.size(), 7U);
}

TEST_F(FormulaInventoryScanner, AsksTheDiskNoMoreThanItNeeds) {
  addReceipt(u"wget"_s, u"1.10"_s, onRequest);
  addReceipt(u"wget"_s, u"1.9"_s, onRequest);
  disk_->withFolder(folderOf(u"secret"_s)).withUnreadable(folderOf(u"secret"_s));
  static_cast<void>(scan({record("wget")}));
  const qsizetype afterTheRead =
      disk_->asked.indexOf(u"fileExists /opt/homebrew/var/homebrew/cache"_s) + 1;
  EXPECT_EQ(disk_->asked.sliced(afterTheRead),
            (QStringList{u"fileExists /opt/homebrew/Cellar/secret"_s,
                         u"isReadableFile /opt/homebrew/Cellar/secret"_s,
                         u"fileExists /opt/homebrew/Cellar/wget"_s,
                         u"isReadableFile /opt/homebrew/Cellar/wget"_s,
                         u"contentsOfDirectory /opt/homebrew/Cellar/wget"_s,
                         u"readData /opt/homebrew/Cellar/wget/1.10/INSTALL_RECEIPT.json"_s}));
}

TEST_F(FormulaInventoryScanner, ReportsEveryPackageAlsoThoseThatItLeavesOut) {
  addVersion(u"a"_s, u"1"_s);
  addVersion(u"b"_s, u"1"_s);
  addVersion(u"c"_s, u"1"_s);
  disk_->withUnreadable(folderOf(u"b"_s));
  std::vector<std::pair<qsizetype, qsizetype>> reports;
  static_cast<void>(HomebrewFormulaInventoryScanner(prefixURL, disk_)
                        .scan({}, [&reports](qsizetype scanned, qsizetype total) {
                          reports.emplace_back(scanned, total);
                        }));
  EXPECT_THAT(reports,
              ElementsAre(std::pair(0, 3), std::pair(1, 3), std::pair(2, 3), std::pair(3, 3)));
}

TEST_F(FormulaInventoryScanner, ReportsThatThereIsNothingToScan) {
  std::vector<std::pair<qsizetype, qsizetype>> reports;
  static_cast<void>(HomebrewFormulaInventoryScanner(prefixURL, disk_)
                        .scan({}, [&reports](qsizetype scanned, qsizetype total) {
                          reports.emplace_back(scanned, total);
                        }));
  EXPECT_THAT(reports, ElementsAre(std::pair(0, 0)));
}

TEST_F(FormulaInventoryScanner, DatesTheScanAfterTheReadOfThePrefix) {
  addVersion(u"wget"_s, u"1"_s);
  const QDateTime before = QDateTime::currentDateTimeUtc();
  const auto result = scan();
  EXPECT_LE(before, result.prefixReadResult.scannedAt);
  EXPECT_LE(result.prefixReadResult.scannedAt, result.scannedAt);
  EXPECT_LE(result.scannedAt, QDateTime::currentDateTimeUtc());
  EXPECT_EQ(result.prefixReadResult.prefixURL, prefixURL);
}

TEST_F(FormulaInventoryScanner, GivesBackTheAccessThatItWasGranted) {
  addVersion(u"wget"_s, u"1"_s);
  const auto before = SecurityScopedAccess::counts();
  static_cast<void>(scan());
  const auto after = SecurityScopedAccess::counts();
  EXPECT_EQ(after.started - before.started, 2);
  EXPECT_EQ(after.stopped - before.stopped, 2);
}

TEST_F(FormulaInventoryScanner, IsEqualOnlyInEveryField) {
  addVersion(u"wget"_s, u"1"_s);
  const auto result = scan();
  auto other = result;
  EXPECT_EQ(other, result);
  other.scannedAt = other.scannedAt.addMSecs(1);
  EXPECT_NE(other, result);
  other = result;
  other.formulae.clear();
  EXPECT_NE(other, result);
  other = result;
  other.prefixReadResult.locations.clear();
  EXPECT_NE(other, result);
}

using FormulaInventoryScannerDeathTest = FormulaInventoryScanner;

TEST_F(FormulaInventoryScannerDeathTest, StopsAtACatalogThatNamesAFormulaTwice) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  addVersion(u"wget"_s, u"1"_s);
  EXPECT_DEATH(static_cast<void>(scan({record("wget"), record("zlib"), record("wget", "2.0")})),
               "Duplicate values for key: 'wget'\n");
}

TEST_F(FormulaInventoryScannerDeathTest, StopsEvenWhereNothingIsInstalled) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_DEATH(static_cast<void>(scan({record("\u00e9t\u00e9"), record("\u00e9t\u00e9")})),
               "Duplicate values for key: '\u00e9t\u00e9'\n");
}

}  // namespace
}  // namespace quillmere

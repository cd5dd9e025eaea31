#include <QtCore/QDir>
#include <QtCore/QFile>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "inventory/HomebrewCaskInventoryScanner.h"
#include "inventory/HomebrewFormulaInventoryScanner.h"
#include "support/Printers.h"
#include "support/TestPrefix.h"
#include "support/UnprivilegedUser.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using test::TestPrefix;
using Reason = InstalledFormula::InstallReason;

const QByteArray onRequest = R"({"installed_on_request":true})";
const QByteArray asDependency = R"({"installed_on_request":false})";

std::vector<InstalledFormula> formulaeOf(const TestPrefix& prefix) {
  return HomebrewFormulaInventoryScanner(prefix.url()).scan({}).formulae;
}

std::vector<InstalledCask> casksOf(const TestPrefix& prefix) {
  return HomebrewCaskInventoryScanner(prefix.url()).scan({}).casks;
}

QStringList namesOf(const std::vector<InstalledFormula>& formulae) {
  QStringList names;
  for (const InstalledFormula& formula : formulae) {
    names += formula.name;
  }
  return names;
}

void link(const TestPrefix& prefix, const QString& target, const QString& relativePath) {
  ASSERT_TRUE(QFile::link(target, prefix.pathOf(relativePath)));
}

TEST(DiskInventory, HoldsWhatIsInstalled) {
  TestPrefix prefix;
  prefix.withAllLocations();
  const auto formulae = formulaeOf(prefix);
  ASSERT_EQ(formulae.size(), 2U);
  EXPECT_EQ(formulae[0], (InstalledFormula{.name = u"openssl@3"_s,
                                           .installedVersions = {u"3.5.0"_s},
                                           .currentVersion = u"3.5.0"_s,
                                           .installReason = Reason::dependency,
                                           .catalogFormula = std::nullopt}));
  EXPECT_EQ(formulae[1].installReason, Reason::direct);
  const auto casks = casksOf(prefix);
  ASSERT_EQ(casks.size(), 1U);
  EXPECT_EQ(casks[0].token, u"firefox"_s);
  EXPECT_EQ(casks[0].currentVersion, u"142.0"_s);
}

TEST(DiskInventory, OrdersVersionsByTheirNumbersInEveryLocale) {
  TestPrefix prefix;
  for (const QString& version : {u"1.10"_s, u"1.9"_s, u"1.9_1"_s, u"HEAD-1a2b3c4"_s, u"1.9_10"_s}) {
    prefix.withFolder(u"Cellar/tool/"_s + version);
  }
  EXPECT_EQ(formulaeOf(prefix).at(0).installedVersions,
            (QStringList{u"1.9"_s, u"1.9_1"_s, u"1.9_10"_s, u"1.10"_s, u"HEAD-1a2b3c4"_s}));
}

TEST(DiskInventory, LeavesOutHiddenEntries) {
  TestPrefix prefix;
  prefix.withFolder(u"Caskroom/chrome/121.0.1"_s).withFolder(u"Caskroom/chrome/120.0"_s);
  prefix.withFile(u"Caskroom/chrome/.metadata/120.0/20260101000000.000/Casks/chrome.json"_s);
  prefix.withFile(u"Caskroom/.DS_Store"_s).withFile(u"Cellar/.keepme"_s);
  const auto casks = casksOf(prefix);
  ASSERT_EQ(casks.size(), 1U);
  EXPECT_EQ(casks[0].installedVersions, (QStringList{u"120.0"_s, u"121.0.1"_s}));
  EXPECT_TRUE(formulaeOf(prefix).empty());
}

TEST(DiskInventory, KnowsNamesInAnyScriptAndWithAnySign) {
  TestPrefix prefix;
  const QString version = u"1.0,2:3+b c%20#4?"_s;
  for (const QString& name : {u"a b"_s, u"gtk+3"_s, u"100%25"_s, u"\u00e9t\u00e9"_s,
                              u"\u6d4f\u89c8\u5668"_s, u"\U0001F37A"_s, u"e\u0301"_s}) {
    prefix.withFile(u"Cellar/"_s + name + u'/' + version + u"/INSTALL_RECEIPT.json"_s, onRequest);
    prefix.withFolder(u"Caskroom/"_s + name + u'/' + version);
  }
  const auto formulae = formulaeOf(prefix);
  EXPECT_EQ(namesOf(formulae),
            (QStringList{u"100%25"_s, u"a b"_s, u"e\u0301"_s, u"gtk+3"_s, u"\u00e9t\u00e9"_s,
                         u"\u6d4f\u89c8\u5668"_s, u"\U0001F37A"_s}));
  for (const InstalledFormula& formula : formulae) {
    EXPECT_EQ(formula.installedVersions, QStringList{version}) << formula.name.toStdString();
    EXPECT_EQ(formula.installReason, Reason::direct) << formula.name.toStdString();
  }
  for (const InstalledCask& cask : casksOf(prefix)) {
    EXPECT_EQ(cask.currentVersion, version) << cask.token.toStdString();
  }
}

TEST(DiskInventory, LeavesOutAFolderWhoseNameIsNoText) {
  TestPrefix prefix;
  prefix.withFolder(u"Cellar/wget/1.0"_s);
  const QByteArray cellar = QFile::encodeName(prefix.pathOf(u"Cellar"_s));
  const QByteArrayList folders = {cellar + "/broken\xFF\xFE", cellar + "/wget/2.0\xC3"};
  for (const QByteArray& folder : folders) {
    ASSERT_EQ(mkdir(folder.constData(), 0755), 0);
  }
  const auto formulae = formulaeOf(prefix);
  // Qt knows no name for them and would leave them behind.
  for (const QByteArray& folder : folders) {
    EXPECT_EQ(rmdir(folder.constData()), 0);
  }
  EXPECT_EQ(namesOf(formulae), QStringList{u"wget"_s});
  EXPECT_EQ(formulae[0].installedVersions, (QStringList{u"1.0"_s, u"2.0\uFFFD"_s}));
}

TEST(DiskInventory, FollowsLinksAndLeavesOutThoseThatLeadNowhere) {
  TestPrefix prefix;
  prefix.withFile(u"elsewhere/1.0/INSTALL_RECEIPT.json"_s, asDependency);
  prefix.withFolder(u"Cellar/tool/1.0"_s).withFolder(u"Caskroom/new-name/2.0"_s);
  link(prefix, prefix.pathOf(u"elsewhere"_s), u"Cellar/linked"_s);
  link(prefix, prefix.pathOf(u"nothing"_s), u"Cellar/dangling"_s);
  link(prefix, u"loop"_s, u"Cellar/loop"_s);
  link(prefix, prefix.pathOf(u"nothing"_s), u"Cellar/tool/1.1"_s);
  link(prefix, u"1.2"_s, u"Cellar/tool/1.2"_s);
  link(prefix, u"new-name"_s, u"Caskroom/old-name"_s);
  const auto formulae = formulaeOf(prefix);
  EXPECT_EQ(namesOf(formulae), (QStringList{u"linked"_s, u"tool"_s}));
  EXPECT_EQ(formulae[0].installReason, Reason::dependency);
  EXPECT_EQ(formulae[1].installedVersions, (QStringList{u"1.0"_s, u"1.1"_s, u"1.2"_s}));
  EXPECT_EQ(formulae[1].installReason, Reason::unknown);
  const auto casks = casksOf(prefix);
  ASSERT_EQ(casks.size(), 2U);
  EXPECT_EQ(casks[1].token, u"old-name"_s);
  EXPECT_EQ(casks[1].installedVersions, QStringList{u"2.0"_s});
}

TEST(DiskInventory, TakesPlainFilesForVersionsAndEmptyFoldersForNone) {
  TestPrefix prefix;
  prefix.withFile(u"Cellar/tool/1.0"_s, "x").withFolder(u"Cellar/empty"_s);
  prefix.withFile(u"Cellar/file"_s, "x");
  const auto formulae = formulaeOf(prefix);
  ASSERT_EQ(formulae.size(), 3U);
  EXPECT_EQ(formulae[0], InstalledFormula{.name = u"empty"_s});
  EXPECT_EQ(formulae[1], InstalledFormula{.name = u"file"_s});
  EXPECT_EQ(formulae[2].installedVersions, QStringList{u"1.0"_s});
}

TEST(DiskInventory, PassesByAReceiptThatIsAPipeOrAFolder) {
  TestPrefix prefix;
  prefix.withFolder(u"Cellar/tool/1.2"_s).withFolder(u"Cellar/tool/1.1/INSTALL_RECEIPT.json"_s);
  prefix.withFile(u"Cellar/tool/1.0/INSTALL_RECEIPT.json"_s, asDependency);
  const QString pipe = prefix.pathOf(u"Cellar/tool/1.2/INSTALL_RECEIPT.json"_s);
  ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0644), 0);
  EXPECT_EQ(formulaeOf(prefix).at(0).installReason, Reason::dependency);
}

TEST(DiskInventory, LeavesOutFoldersThatMayNotBeRead) {
  TestPrefix prefix;
  prefix.withFile(u"Cellar/secret/1.0/INSTALL_RECEIPT.json"_s, onRequest);
  prefix.withFile(u"Cellar/wget/1.0/INSTALL_RECEIPT.json"_s, onRequest);
  prefix.withFolder(u"Caskroom/secret/1.0"_s);
  for (const QString& folder : {u"Cellar/secret"_s, u"Caskroom/secret"_s}) {
    ASSERT_EQ(chmod(QFile::encodeName(prefix.pathOf(folder)).constData(), 0), 0);
  }
  EXPECT_TRUE(test::runUnprivileged([&prefix] {
    return namesOf(formulaeOf(prefix)) == QStringList{u"wget"_s} && casksOf(prefix).empty();
  }));
  for (const QString& folder : {u"Cellar/secret"_s, u"Caskroom/secret"_s}) {
    ASSERT_EQ(chmod(QFile::encodeName(prefix.pathOf(folder)).constData(), 0755), 0);
  }
}

TEST(DiskInventory, ListsVersionsWhoseReceiptsMayNotBeRead) {
  TestPrefix prefix;
  prefix.withFile(u"Cellar/tool/1.1/INSTALL_RECEIPT.json"_s, onRequest);
  prefix.withFile(u"Cellar/tool/1.0/INSTALL_RECEIPT.json"_s, asDependency);
  const QString newest = prefix.pathOf(u"Cellar/tool/1.1"_s);
  ASSERT_EQ(chmod(QFile::encodeName(newest).constData(), 0), 0);
  EXPECT_TRUE(test::runUnprivileged([&prefix] {
    const InstalledFormula tool = formulaeOf(prefix).at(0);
    return tool.currentVersion == u"1.1"_s && tool.installReason == Reason::dependency;
  }));
  ASSERT_EQ(chmod(QFile::encodeName(newest).constData(), 0755), 0);
}

TEST(DiskInventory, FindsNothingWhereThereIsNoPrefix) {
  const QUrl gone = QUrl::fromLocalFile(TestPrefix().path() + u"/gone"_s);
  EXPECT_TRUE(HomebrewFormulaInventoryScanner(gone).scan({}).formulae.empty());
  EXPECT_TRUE(HomebrewCaskInventoryScanner(gone).scan({}).casks.empty());
}

TEST(DiskInventory, CountsTenThousandFormulae) {
  TestPrefix prefix;
  constexpr int count = 10'000;
  prefix.withFolder(u"Cellar"_s);
  QStringList expected;
  for (int i = 0; i < count; ++i) {
    const QString name = u"formula-%1"_s.arg(i, 5, 10, QChar(u'0'));
    const QByteArray path = QFile::encodeName(prefix.pathOf(u"Cellar/"_s + name));
    ASSERT_EQ(mkdir(path.constData(), 0755), 0);
    ASSERT_EQ(mkdir((path + "/1.0").constData(), 0755), 0);
    expected += name;
  }
  qsizetype last = -1;
  const auto scan = HomebrewFormulaInventoryScanner(prefix.url())
                        .scan({}, [&](qsizetype scanned, qsizetype total) {
                          EXPECT_EQ(scanned, last + 1);
                          EXPECT_EQ(total, count);
                          last = scanned;
                        });
  EXPECT_EQ(last, count);
  EXPECT_EQ(namesOf(scan.formulae), expected);
}

/// The disk, on which Homebrew is at work: a folder is gone as soon as it was listed.
class RestlessDisk final : public HomebrewPrefixFileSystem {
 public:
  explicit RestlessDisk(QString vanishing) : vanishing_(std::move(vanishing)) {}

  bool fileExists(const QString& path) const override { return disk_->fileExists(path); }

  bool isReadableFile(const QString& path) const override { return disk_->isReadableFile(path); }

  std::expected<QList<QUrl>, FileSystemError> contentsOfDirectory(const QUrl& url) const override {
    auto contents = disk_->contentsOfDirectory(url);
    if (contents && contents->contains(QUrl::fromLocalFile(vanishing_))) {
      EXPECT_TRUE(QDir(vanishing_).removeRecursively());
    }
    return contents;
  }

  std::expected<QByteArray, FileSystemError> readData(const QUrl& url) const override {
    return disk_->readData(url);
  }

 private:
  HomebrewPrefixFileSystemPtr disk_ = platformFileSystem();
  QString vanishing_;
};

TEST(DiskInventory, LeavesOutAFormulaThatVanishesAfterTheCellarWasListed) {
  TestPrefix prefix;
  prefix.withFolder(u"Cellar/gone/1.0"_s).withFolder(u"Cellar/stays/1.0"_s);
  const auto disk = std::make_shared<RestlessDisk>(prefix.pathOf(u"Cellar/gone"_s));
  EXPECT_EQ(namesOf(HomebrewFormulaInventoryScanner(prefix.url(), disk).scan({}).formulae),
            QStringList{u"stays"_s});
}

TEST(DiskInventory, AsksTheNextReceiptWhereAVersionVanishesAfterItWasListed) {
  TestPrefix prefix;
  prefix.withFile(u"Cellar/tool/1.0/INSTALL_RECEIPT.json"_s, asDependency);
  prefix.withFile(u"Cellar/tool/1.1/INSTALL_RECEIPT.json"_s, onRequest);
  const auto disk = std::make_shared<RestlessDisk>(prefix.pathOf(u"Cellar/tool/1.1"_s));
  const auto formulae = HomebrewFormulaInventoryScanner(prefix.url(), disk).scan({}).formulae;
  ASSERT_EQ(formulae.size(), 1U);
  EXPECT_EQ(formulae[0].installedVersions, (QStringList{u"1.0"_s, u"1.1"_s}));
  EXPECT_EQ(formulae[0].installReason, Reason::dependency);
}

}  // namespace
}  // namespace quillmere

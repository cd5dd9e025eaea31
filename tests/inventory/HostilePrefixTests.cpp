#include <QtCore/QDir>
#include <QtCore/QFile>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>

#include "inventory/HomebrewCaskInventoryScanner.h"
#include "inventory/HomebrewFormulaInventoryScanner.h"
#include "platform/FileDescriptor.h"
#include "support/Printers.h"
#include "support/Rounds.h"
#include "support/TestPrefix.h"
#include "support/UnprivilegedUser.h"

// A prefix in which nothing is as it should be: every scan ends, waits for nobody, and tells what
// it could see.

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using test::TestPrefix;
using Reason = InstalledFormula::InstallReason;

const QByteArray asDependency = R"({"installed_on_request":false})";
const QString receipt = u"/INSTALL_RECEIPT.json"_s;

class HostilePrefix : public testing::Test {
 protected:
  [[nodiscard]] std::vector<InstalledFormula> formulae() const {
    return HomebrewFormulaInventoryScanner(prefix_.url()).scan({}).formulae;
  }

  [[nodiscard]] std::vector<InstalledCask> casks() const {
    return HomebrewCaskInventoryScanner(prefix_.url()).scan({}).casks;
  }

  [[nodiscard]] QStringList names() const {
    QStringList names;
    for (const InstalledFormula& formula : formulae()) {
      names += formula.name;
    }
    return names;
  }

  [[nodiscard]] QByteArray path(const QString& relativePath) const {
    return QFile::encodeName(prefix_.pathOf(relativePath));
  }

  void link(const QString& target, const QString& relativePath) {
    ASSERT_EQ(symlink(QFile::encodeName(target).constData(), path(relativePath).constData()), 0);
  }

  /// A formula whose newest receipt lies at `place`, where nothing is yet, and whose older one says
  /// that it is a dependency.
  QString newestReceipt() {
    prefix_.withFolder(u"Cellar/tool/1.1"_s);
    prefix_.withFile(u"Cellar/tool/1.0"_s + receipt, asDependency);
    return u"Cellar/tool/1.1"_s + receipt;
  }

  void expectOlderReceiptDecides() const {
    const auto found = formulae();
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].installedVersions, (QStringList{u"1.0"_s, u"1.1"_s}));
    EXPECT_EQ(found[0].installReason, Reason::dependency);
  }

  /// What Homebrew does to a Cellar, without a pause.
  void workOn(const std::stop_token& stop) {
    const QString stays = prefix_.pathOf(u"Cellar/stays/"_s);
    while (!stop.stop_requested()) {
      prefix_.withFile(u"Cellar/comes/1.0"_s + receipt, asDependency);
      for (const mode_t mode : {0, 0444, 0755}) {
        chmod(path(u"Cellar/comes"_s).constData(), mode);
      }
      chmod(path(u"Cellar/comes/1.0"_s + receipt).constData(), 0);
      QDir(prefix_.pathOf(u"Cellar/comes"_s)).removeRecursively();
      QFile::rename(stays + u"1.0"_s, stays + u"2.0"_s);
      QFile::rename(stays + u"2.0"_s, stays + u"1.0"_s);
    }
  }

  TestPrefix prefix_;
};

TEST_F(HostilePrefix, WithLinksInCirclesIsScanned) {
  prefix_.withFolder(u"Cellar/tool/1.0"_s);
  link(u"b"_s, u"Cellar/a"_s);
  link(u"a"_s, u"Cellar/b"_s);
  link(u"."_s, u"Cellar/itself"_s);
  link(u".."_s, u"Cellar/parent"_s);
  link(u"../.."_s, u"Cellar/tool/2.0"_s);
  link(prefix_.pathOf(u"Cellar"_s), u"Cellar/tool/3.0"_s);
  link(u"tool"_s, u"Cellar/tool/4.0"_s);
  link(u"Cellar"_s, u"Caskroom"_s);
  const auto found = formulae();
  ASSERT_EQ(names(), (QStringList{u"itself"_s, u"parent"_s, u"tool"_s}));
  EXPECT_EQ(found[2].installedVersions, (QStringList{u"1.0"_s, u"2.0"_s, u"3.0"_s, u"4.0"_s}));
  EXPECT_EQ(found[2].installReason, Reason::unknown);
  EXPECT_EQ(casks().size(), 3U);
}

TEST_F(HostilePrefix, WhoseCellarIsACircleHasNothingInIt) {
  link(u"Caskroom"_s, u"Cellar"_s);
  link(u"Cellar"_s, u"Caskroom"_s);
  EXPECT_TRUE(formulae().empty());
  EXPECT_TRUE(casks().empty());
}

/// Links are followed, as Homebrew follows them; only one level is listed behind each.
TEST_F(HostilePrefix, WithLinksToTheWholeMachineIsScanned) {
  prefix_.withFolder(u"Cellar/tool"_s);
  link(u"/"_s, u"Cellar/root"_s);
  link(u"/proc"_s, u"Cellar/processes"_s);
  link(u"/dev"_s, u"Cellar/devices"_s);
  link(u"/proc/self/root"_s, u"Cellar/tool/1.0"_s);
  link(u"/"_s, u"Caskroom"_s);
  EXPECT_EQ(names(), (QStringList{u"devices"_s, u"processes"_s, u"root"_s, u"tool"_s}));
  EXPECT_FALSE(casks().empty());
}

TEST_F(HostilePrefix, WithAReceiptOfATerabyteIsScanned) {
  QFile sparse(prefix_.withFile(newestReceipt(), "{}").pathOf(newestReceipt()));
  if (!sparse.resize(qint64{1} << 40)) {
    GTEST_SKIP() << "no disk here takes files of such a size";
  }
  expectOlderReceiptDecides();
}

TEST_F(HostilePrefix, WithAReceiptOfMoreThanFourMebibytesPassesItBy) {
  constexpr int most = 4 * 1024 * 1024;
  const QString newest = newestReceipt();
  const QByteArray onRequest = R"({"installed_on_request":true})";
  prefix_.withFile(newest, onRequest + QByteArray(most - onRequest.size(), ' '));
  EXPECT_EQ(formulae().at(0).installReason, Reason::direct);
  prefix_.withFile(newest, onRequest + QByteArray(most - onRequest.size() + 1, ' '));
  expectOlderReceiptDecides();
}

class HostileReceipt : public HostilePrefix, public testing::WithParamInterface<const char*> {};

TEST_P(HostileReceipt, IsPassedByWhereItLeadsElsewhere) {
  link(QString::fromLatin1(GetParam()), newestReceipt());
  expectOlderReceiptDecides();
}

INSTANTIATE_TEST_SUITE_P(Targets, HostileReceipt,
                         testing::Values("/dev/zero", "/dev/tty", "/proc/self/pagemap", "/proc",
                                         "/proc/self/mem", "INSTALL_RECEIPT.json", "..",
                                         "../1.1/INSTALL_RECEIPT.json", "/nothing"));

TEST_F(HostilePrefix, WithSocketsAndDevicesForFilesIsScanned) {
  const QByteArray place = path(newestReceipt());
  sockaddr_un address = {.sun_family = AF_UNIX, .sun_path = {}};
  ASSERT_LT(place.size(), qsizetype{sizeof(address.sun_path)});
  std::ranges::copy(place, address.sun_path);
  const FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM, 0));
  ASSERT_EQ(bind(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
  expectOlderReceiptDecides();
  ASSERT_EQ(unlink(place.constData()), 0);
  if (mknod(place.constData(), S_IFCHR | 0644, makedev(1, 5)) != 0) {
    GTEST_SKIP() << "this user may make no device";
  }
  expectOlderReceiptDecides();
}

TEST_F(HostilePrefix, WithPipesForFoldersIsScanned) {
  prefix_.withFolder(u"Cellar/tool"_s);
  for (const QString& place : {u"Cellar/pipe"_s, u"Cellar/tool/1.0"_s, u"Caskroom"_s}) {
    ASSERT_EQ(mkfifo(path(place).constData(), 0644), 0);
  }
  const auto found = formulae();
  ASSERT_EQ(names(), (QStringList{u"pipe"_s, u"tool"_s}));
  EXPECT_EQ(found[0].installedVersions, QStringList());
  EXPECT_EQ(found[1].installedVersions, QStringList{u"1.0"_s});
  EXPECT_TRUE(casks().empty());
}

TEST_F(HostilePrefix, WithThousandsOfVersionsOfOneFormulaIsScanned) {
  const int count = test::rounds(1000, 10'000);
  prefix_.withFolder(u"Cellar/tool"_s);
  for (int i = 0; i < count; ++i) {
    const QByteArray folder = path(u"Cellar/tool/1.%1"_s.arg(i));
    ASSERT_EQ(mkdir(folder.constData(), 0755), 0);
    ASSERT_EQ(symlink("/dev/zero", (folder + receipt.toLatin1()).constData()), 0);
  }
  prefix_.withFile(u"Cellar/tool/0.1"_s + receipt, asDependency);
  const auto found = formulae();
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].installedVersions.size(), count + 1);
  EXPECT_EQ(found[0].installedVersions.first(), u"0.1"_s);
  EXPECT_EQ(found[0].currentVersion, u"1.%1"_s.arg(count - 1));
  EXPECT_EQ(found[0].installReason, Reason::dependency);
}

TEST_F(HostilePrefix, KeepsNamesThatNobodyCanRead) {
  const QStringList awkward{u"\x1b[2J"_s, u"\ttab"_s,      u"--force"_s,
                            u"a\nb"_s,    u"a\u202eb"_s,   QString(255, u'n'),
                            u"~"_s,       u"$(touch x)"_s, u"%2e%2e"_s};
  for (const QString& name : awkward) {
    prefix_.withFile(u"Cellar/"_s + name + u'/' + name + receipt, asDependency);
  }
  QStringList expected = awkward;
  std::ranges::sort(expected);
  EXPECT_EQ(names(), expected);
  for (const InstalledFormula& formula : formulae()) {
    EXPECT_EQ(formula.installedVersions, QStringList{formula.name});
    EXPECT_EQ(formula.installReason, Reason::dependency) << formula.name.toStdString();
  }
}

TEST_F(HostilePrefix, MayLieInAFolderOfAnyName) {
  for (const QString& name : {u"a b"_s, u"a\nb"_s, u"\u00e9t\u00e9 \u6d4f"_s, u"%41#?"_s,
                              u"a\u202eb"_s, u"--force"_s, QString(255, u'n')}) {
    TestPrefix inner(prefix_.withFolder(name).pathOf(name));
    inner.withAllLocations();
    const auto scan = HomebrewFormulaInventoryScanner(inner.url()).scan({});
    EXPECT_EQ(scan.formulae.size(), 2U) << name.toStdString();
    EXPECT_EQ(scan.formulae.at(1).installReason, Reason::direct) << name.toStdString();
  }
}

/// Homebrew at work, and a user who changes what may be read, while one scan follows the other.
TEST_F(HostilePrefix, ThatChangesWhileItIsReadIsScanned) {
  prefix_.withFolder(u"Cellar"_s);
  ASSERT_EQ(chmod(path(u"Cellar"_s).constData(), 0777), 0);
  EXPECT_TRUE(test::runUnprivileged([this] {
    prefix_.withFile(u"Cellar/stays/1.0"_s + receipt, asDependency);
    const std::jthread homebrew([this](const std::stop_token& stop) { workOn(stop); });
    const int rounds = test::rounds(300, 30'000);
    for (int i = 0; i < rounds; ++i) {
      const QStringList found = names();
      if (found.last() != u"stays"_s || found.size() > 2) {
        return false;
      }
    }
    return true;
  }));
}

}  // namespace
}  // namespace quillmere

#include <QtCore/QDir>

#include <gtest/gtest.h>

#include "inventory/HomebrewCaskInventoryScanner.h"
#include "inventory/HomebrewFormulaInventoryScanner.h"
#include "platform/FileUrl.h"
#include "support/Printers.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using Reason = InstalledFormula::InstallReason;

/// A prefix that Homebrew itself installed into.
class RealPrefix : public testing::Test {
 protected:
  void SetUp() override {
    if (!QDir(folder()).exists(u"Cellar"_s)) {
      GTEST_SKIP() << "no real prefix in " << folder().toStdString()
                   << "; ctest puts it there where it finds it";
    }
  }

  static QString folder() { return QStringLiteral(QUILLMERE_UNPACKED_PREFIX); }
};

InstalledFormula formula(const QString& name, const QString& version, Reason reason) {
  return {.name = name,
          .installedVersions = {version},
          .currentVersion = version,
          .installReason = reason,
          .catalogFormula = std::nullopt};
}

TEST_F(RealPrefix, HoldsTheFormulaeThatWereInstalledAndWhy) {
  const auto scan = HomebrewFormulaInventoryScanner(fileUrl(folder())).scan({});
  const std::vector<InstalledFormula> expected = {
      formula(u"hello-a"_s, u"1.0"_s, Reason::direct),
      formula(u"hello-app"_s, u"0.1.0"_s, Reason::direct),
      formula(u"hello-b"_s, u"2.0"_s, Reason::dependency),
      formula(u"hello-c"_s, u"3.0.0"_s, Reason::direct),
      formula(u"hello-daemon"_s, u"0.9"_s, Reason::direct),
      formula(u"hello-leaf"_s, u"1.2.3_1"_s, Reason::direct),
      formula(u"hello-lib"_s, u"4.5"_s, Reason::dependency),
  };
  EXPECT_EQ(scan.formulae, expected);
}

TEST_F(RealPrefix, HoldsTheCaskWithoutItsMetadata) {
  const auto scan = HomebrewCaskInventoryScanner(fileUrl(folder())).scan({});
  ASSERT_EQ(scan.casks.size(), 1U);
  EXPECT_EQ(scan.casks[0].token, u"hello-cask"_s);
  EXPECT_EQ(scan.casks[0].installedVersions, QStringList{u"2.0"_s});
  EXPECT_EQ(scan.casks[0].currentVersion, u"2.0"_s);
}

}  // namespace
}  // namespace quillmere

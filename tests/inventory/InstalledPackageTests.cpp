#include <QtCore/QSet>

#include <gtest/gtest.h>

#include "inventory/InstalledCask.h"
#include "inventory/InstalledFormula.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using Reason = InstalledFormula::InstallReason;

TEST(InstalledFormula, KeepsItsReasonsUnderTheirNames) {
  ASSERT_EQ(rawValues<Reason>.size(), 3U);
  EXPECT_EQ(rawValue(Reason::direct), "direct"_L1);
  EXPECT_EQ(rawValue(Reason::dependency), "dependency"_L1);
  EXPECT_EQ(rawValue(Reason::unknown), "unknown"_L1);
  for (const auto& row : rawValues<Reason>) {
    EXPECT_EQ(fromRawValue<Reason>(QString(row.text)), row.value);
  }
  EXPECT_EQ(fromRawValue<Reason>(u"Direct"), std::nullopt);
}

TEST(InstalledFormula, IsEqualOnlyInEveryField) {
  const InstalledFormula wget{.name = u"wget"_s,
                              .installedVersions = {u"1.24"_s, u"1.25"_s},
                              .currentVersion = u"1.25"_s,
                              .installReason = Reason::direct,
                              .catalogFormula = HomebrewFormula{.name = SharedText(u"wget")}};
  InstalledFormula other = wget;
  EXPECT_EQ(other, wget);
  other.name = u"wget2"_s;
  EXPECT_NE(other, wget);
  other = wget;
  other.installedVersions = {u"1.25"_s};
  EXPECT_NE(other, wget);
  other = wget;
  other.currentVersion.reset();
  EXPECT_NE(other, wget);
  other = wget;
  other.installReason = Reason::dependency;
  EXPECT_NE(other, wget);
  other = wget;
  other.catalogFormula->versions.stable = SharedText(u"2.2");
  EXPECT_NE(other, wget);
}

TEST(InstalledFormula, CanBeKeptInASet) {
  const InstalledFormula wget{.name = u"wget"_s};
  const InstalledFormula zlib{.name = u"zlib"_s};
  EXPECT_EQ(QSet<InstalledFormula>({wget, zlib, wget}).size(), 2);
}

TEST(InstalledCask, IsEqualOnlyInEveryField) {
  const InstalledCask firefox{.token = u"firefox"_s,
                              .installedVersions = {u"154.0"_s},
                              .currentVersion = u"154.0"_s,
                              .catalogCask = HomebrewCask{.token = SharedText(u"firefox")}};
  InstalledCask other = firefox;
  EXPECT_EQ(other, firefox);
  other.token = u"firefox@beta"_s;
  EXPECT_NE(other, firefox);
  other = firefox;
  other.installedVersions.clear();
  EXPECT_NE(other, firefox);
  other = firefox;
  other.currentVersion = u"153.0"_s;
  EXPECT_NE(other, firefox);
  other = firefox;
  other.catalogCask.reset();
  EXPECT_NE(other, firefox);
}

TEST(InstalledCask, CanBeKeptInASet) {
  const InstalledCask firefox{.token = u"firefox"_s};
  const InstalledCask iterm{.token = u"iterm2"_s};
  EXPECT_EQ(QSet<InstalledCask>({firefox, iterm, iterm}).size(), 2);
}

}  // namespace
}  // namespace quillmere

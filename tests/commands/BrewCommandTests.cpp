#include <QtCore/QStringList>

#include <gtest/gtest.h>

#include "commands/BrewCommand.h"
#include "commands/DirectExecutionPolicy.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;

template <typename Enum>
QStringList rawValuesInOrder() {
  QStringList texts;
  for (const RawValue<Enum>& row : rawValues<Enum>) {
    texts += QString(row.text);
  }
  return texts;
}

template <typename Enum>
void expectRoundTrip() {
  for (const RawValue<Enum>& row : rawValues<Enum>) {
    EXPECT_EQ(rawValue(row.value), row.text);
    EXPECT_EQ(fromRawValue<Enum>(QString(row.text)), row.value);
  }
  EXPECT_EQ(fromRawValue<Enum>(u"nothing of the kind"), std::nullopt);
  EXPECT_EQ(fromRawValue<Enum>(u""), std::nullopt);
}

TEST(BrewCommandOperation, IsStoredUnderTheNamesOfItsCases) {
  EXPECT_EQ(rawValuesInOrder<BrewCommandOperation>(),
            QStringList({u"info"_s, u"install"_s, u"uninstall"_s, u"update"_s, u"upgrade"_s,
                         u"outdated"_s, u"cleanup"_s, u"dependencies"_s, u"reverseDependencies"_s,
                         u"servicesList"_s, u"doctor"_s}));
  expectRoundTrip<BrewCommandOperation>();
}

TEST(BrewCommandTargetKind, IsStoredUnderTheNamesOfItsCases) {
  EXPECT_EQ(rawValuesInOrder<BrewCommandTargetKind>(),
            QStringList({u"formula"_s, u"cask"_s, u"global"_s, u"diagnostic"_s}));
  expectRoundTrip<BrewCommandTargetKind>();
}

TEST(BrewCommandRiskLevel, RisesFromInformationalToDestructive) {
  EXPECT_EQ(rawValuesInOrder<BrewCommandRiskLevel>(),
            QStringList({u"informational"_s, u"low"_s, u"medium"_s, u"destructive"_s}));
  expectRoundTrip<BrewCommandRiskLevel>();
  EXPECT_LT(BrewCommandRiskLevel::informational, BrewCommandRiskLevel::low);
  EXPECT_LT(BrewCommandRiskLevel::low, BrewCommandRiskLevel::medium);
  EXPECT_LT(BrewCommandRiskLevel::medium, BrewCommandRiskLevel::destructive);
}

TEST(DirectExecutionPolicyMode, IsStoredUnderTheNamesOfItsCases) {
  EXPECT_EQ(rawValuesInOrder<DirectExecutionPolicyMode>(),
            QStringList({u"runDirectly"_s, u"requiresConfirmation"_s,
                         u"requiresStrongConfirmation"_s, u"previewOnly"_s}));
  expectRoundTrip<DirectExecutionPolicyMode>();
}

TEST(BrewCommandTarget, EqualsATargetOfTheSameKindAndName) {
  using Kind = BrewCommandTargetKind;
  const BrewCommandTarget wget{Kind::formula, u"wget"_s};
  EXPECT_EQ(wget, (BrewCommandTarget{Kind::formula, u"wget"_s}));
  EXPECT_NE(wget, (BrewCommandTarget{Kind::cask, u"wget"_s}));
  EXPECT_NE(wget, (BrewCommandTarget{Kind::formula, u"Wget"_s}));
  EXPECT_NE(wget, (BrewCommandTarget{Kind::formula, std::nullopt}));
  EXPECT_NE((BrewCommandTarget{Kind::formula, u""_s}),
            (BrewCommandTarget{Kind::formula, std::nullopt}));
  EXPECT_EQ((BrewCommandTarget{Kind::global, std::nullopt}),
            (BrewCommandTarget{Kind::global, std::nullopt}));
}

}  // namespace
}  // namespace quillmere

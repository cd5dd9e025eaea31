#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <iterator>
#include <ostream>
#include <string>
#include <vector>

#include "commands/BrewCommandBuilder.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using Operation = BrewCommandOperation;
using Kind = BrewCommandTargetKind;
using Risk = BrewCommandRiskLevel;
using Result = BrewCommandBuilder::Result;

const BrewCommandTarget wget{Kind::formula, u"wget"_s};
const BrewCommandTarget firefox{Kind::cask, u"firefox"_s};
const BrewCommandTarget everything{Kind::global, std::nullopt};
const BrewCommandTarget diagnostics{Kind::diagnostic, std::nullopt};

const QStringList prints = {u"Prints information from Homebrew."_s,
                            u"Does not install, update, or remove packages by itself."_s};

struct Row {
  const char* name;
  std::function<Result(const BrewCommandBuilder&)> build;
  QString commandText;
  Operation operation;
  BrewCommandTarget target;
  Risk riskLevel;
  QString explanation;
  QStringList possibleEffects;
};

void PrintTo(const Row& row, std::ostream* out) {
  *out << row.name;
}

std::string nameOf(const testing::TestParamInfo<Row>& row) {
  return row.param.name;
}

const BrewCommandBuilder builder;

class BuiltCommand : public testing::TestWithParam<Row> {};

TEST_P(BuiltCommand, IsThatOfTheTable) {
  const Result result = GetParam().build(builder);
  ASSERT_TRUE(result.has_value());
  EXPECT_EQ(result->commandText, GetParam().commandText);
  EXPECT_EQ(result->operation, GetParam().operation);
  EXPECT_EQ(result->target, GetParam().target);
  EXPECT_EQ(result->riskLevel, GetParam().riskLevel);
  EXPECT_EQ(result->explanation, GetParam().explanation);
  EXPECT_EQ(result->possibleEffects, GetParam().possibleEffects);
}

TEST_P(BuiltCommand, DiffersFromItsTwinInTheIdentifierOnly) {
  const Result first = GetParam().build(builder);
  Result second = GetParam().build(builder);
  ASSERT_TRUE(first && second);
  EXPECT_FALSE(first->id.isNull());
  EXPECT_NE(first->id, second->id);
  second->id = first->id;
  EXPECT_EQ(*first, *second);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(
    Of, BuiltCommand,
    testing::Values(
        Row{"infoOfFormula", [](auto& b) { return b.info(wget); },
            u"brew info wget"_s, Operation::info, wget, Risk::informational,
            u"Shows Homebrew information for wget."_s, prints},
        Row{"infoOfCask", [](auto& b) { return b.info(firefox); },
            u"brew info --cask firefox"_s, Operation::info, firefox, Risk::informational,
            u"Shows Homebrew information for firefox."_s, prints},
        Row{"installOfFormula", [](auto& b) { return b.install(wget); },
            u"brew install wget"_s, Operation::install, wget, Risk::medium,
            u"Installs wget with Homebrew."_s,
            {u"May download package files."_s, u"May install wget and required dependencies."_s}},
        Row{"installOfCask", [](auto& b) { return b.install(firefox); },
            u"brew install --cask firefox"_s, Operation::install, firefox, Risk::medium,
            u"Installs firefox with Homebrew."_s,
            {u"May download package files."_s,
             u"May install firefox and required dependencies."_s}},
        Row{"uninstallOfFormula", [](auto& b) { return b.uninstall(wget); },
            u"brew uninstall wget"_s, Operation::uninstall, wget, Risk::destructive,
            u"Uninstalls wget with Homebrew."_s,
            {u"May remove wget from the Homebrew prefix."_s,
             u"May leave configuration or support files behind depending on Homebrew behavior."_s}},
        Row{"uninstallOfCask", [](auto& b) { return b.uninstall(firefox); },
            u"brew uninstall --cask firefox"_s, Operation::uninstall, firefox, Risk::destructive,
            u"Uninstalls firefox with Homebrew."_s,
            {u"May remove firefox from the Homebrew prefix."_s,
             u"May leave configuration or support files behind depending on Homebrew behavior."_s}},
        Row{"upgradeOfEverything", [](auto& b) { return b.upgrade(std::nullopt); },
            u"brew upgrade"_s, Operation::upgrade, everything, Risk::medium,
            u"Upgrades outdated Homebrew packages."_s,
            {u"May download newer package versions."_s,
             u"May update multiple installed formulae or casks."_s}},
        Row{"upgradeOfFormula", [](auto& b) { return b.upgrade(wget); },
            u"brew upgrade wget"_s, Operation::upgrade, wget, Risk::medium,
            u"Upgrades wget with Homebrew."_s,
            {u"May download a newer package version."_s,
             u"May replace the installed version of wget."_s}},
        Row{"upgradeOfCask", [](auto& b) { return b.upgrade(firefox); },
            u"brew upgrade --cask firefox"_s, Operation::upgrade, firefox, Risk::medium,
            u"Upgrades firefox with Homebrew."_s,
            {u"May download a newer package version."_s,
             u"May replace the installed version of firefox."_s}},
        Row{"dependencies", [](auto& b) { return b.dependencies(u"wget"_s); },
            u"brew deps wget"_s, Operation::dependencies, wget, Risk::informational,
            u"Lists formula dependencies for wget."_s, prints},
        Row{"reverseDependencies", [](auto& b) { return b.reverseDependencies(u"wget"_s); },
            u"brew uses wget"_s, Operation::reverseDependencies, wget, Risk::informational,
            u"Lists formulae that use wget."_s, prints},
        Row{"servicesList", [](auto& b) { return b.servicesList(); },
            u"brew services list"_s, Operation::servicesList, everything, Risk::informational,
            u"Lists Homebrew services."_s, prints},
        Row{"update", [](auto& b) { return b.update(); },
            u"brew update"_s, Operation::update, everything, Risk::medium,
            u"Updates Homebrew and tap metadata."_s,
            {u"May update Homebrew and tap metadata."_s,
             u"May change files inside the selected Homebrew prefix."_s}},
        Row{"cleanup", [](auto& b) { return b.cleanup(); },
            u"brew cleanup"_s, Operation::cleanup, everything, Risk::medium,
            u"Asks Homebrew to remove old downloads and outdated package versions."_s,
            {u"May delete Homebrew cache files."_s,
             u"May remove older package versions no longer linked by Homebrew."_s}},
        Row{"outdated", [](auto& b) { return b.outdated(); },
            u"brew outdated"_s, Operation::outdated, everything, Risk::informational,
            u"Lists outdated Homebrew packages."_s, prints},
        Row{"doctor", [](auto& b) { return b.doctor(); },
            u"brew doctor"_s, Operation::doctor, diagnostics, Risk::informational,
            u"Runs Homebrew diagnostics."_s, prints}),
    nameOf);
// clang-format on

TEST(PossibleEffects, SpeakOfPackagesWhereTheTargetHasNoName) {
  const BrewCommandTarget unnamed{Kind::formula, std::nullopt};
  EXPECT_EQ(possibleEffects(Operation::install, unnamed).last(),
            u"May install packages and required dependencies."_s);
  EXPECT_EQ(possibleEffects(Operation::uninstall, unnamed).first(),
            u"May remove packages from the Homebrew prefix."_s);
  EXPECT_EQ(possibleEffects(Operation::upgrade, unnamed).last(),
            u"May replace the installed version of packages."_s);
}

TEST(PossibleEffects, AreTwoForEveryOperation) {
  for (const RawValue<Operation>& row : rawValues<Operation>) {
    EXPECT_EQ(possibleEffects(row.value, wget).size(), 2) << row.text.data();
  }
}

/// Every way in for a package name, so that none is forgotten.
std::vector<Result> everyPackageCommand(const BrewCommandTarget& target) {
  return {builder.info(target), builder.install(target), builder.uninstall(target),
          builder.upgrade(target)};
}

std::vector<Result> everyCommandOf(const QString& name) {
  std::vector<Result> results = everyPackageCommand({Kind::formula, name});
  std::ranges::copy(everyPackageCommand({Kind::cask, name}), std::back_inserter(results));
  results.push_back(builder.dependencies(name));
  results.push_back(builder.reverseDependencies(name));
  return results;
}

TEST(BrewCommandBuilder, PutsAnAcceptedIdentifierUnchangedAtTheEndOfTheCommand) {
  for (const QString& name :
       {u"openssl@3"_s, u"user/tap/thing"_s, u"-x"_s, u"--cask"_s, u"/"_s, u".."_s, u"a//b"_s,
        u"@"_s, u"gtk+3"_s, u"a_b.c-d"_s, QString(100'000, u'a'),
        u"abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789@._+-/"_s}) {
    SCOPED_TRACE(name.left(80).toStdString());
    for (const Result& result : everyCommandOf(name)) {
      ASSERT_TRUE(result.has_value());
      EXPECT_TRUE(result->commandText.endsWith(u' ' + name));
      EXPECT_EQ(result->target.name, name);
    }
  }
}

TEST(BrewCommandBuilder, TellsAPackageFromAnOptionAndAFile) {
  for (const QString& name : {u"wget"_s, u"openssl@3"_s, u"0-ad"_s, u"user/tap/thing"_s,
                              u"A+b.c_d"_s, QString(255, u'a')}) {
    EXPECT_TRUE(isPlausiblePackageName(name)) << name.toStdString();
  }
  for (const QString& name :
       {u""_s, u"-x"_s, u"--cask"_s, u"../x"_s, u"./x"_s, u"/x"_s, u"a/../x"_s, u"a/-x"_s,
        u"a//b"_s, u"a/"_s, u"@"_s, u"\u00e9"_s, u"\u0661"_s, QString(256, u'a')}) {
    EXPECT_FALSE(isPlausiblePackageName(name)) << name.toStdString();
  }
}

TEST(BrewCommandBuilder, ReportsARefusedIdentifierWhole) {
  for (const QString& name : {u""_s,
                              u"a b"_s,
                              u"a;b"_s,
                              u"foo;rm"_s,
                              u"é"_s,
                              u" wget"_s,
                              u"wget\n"_s,
                              u"a\tb"_s,
                              u"$(id)"_s,
                              u"`id`"_s,
                              u"a|b"_s,
                              u"a&b"_s,
                              u"a>b"_s,
                              u"a'b"_s,
                              u"a\"b"_s,
                              u"a\\b"_s,
                              u"a*"_s,
                              u"~"_s,
                              u"#a"_s,
                              u"a=b"_s,
                              u"a:b"_s,
                              u"a,b"_s,
                              u"%n"_s,
                              u"а"_s,
                              u"ａ"_s,
                              u"a\u200b"_s,
                              u"📦"_s,
                              u"a\0b"_s,
                              QString(QChar(0xd800))}) {
    SCOPED_TRACE(name.toStdString());
    for (const Result& result : everyCommandOf(name)) {
      ASSERT_FALSE(result.has_value());
      EXPECT_EQ(result.error(), BrewCommandBuilderError{name});
      EXPECT_EQ(result.error().description(), u"Invalid Homebrew package identifier: "_s + name);
    }
  }
}

TEST(BrewCommandBuilder, RefusesEveryAsciiCharacterThatAShellCouldTakeForSomethingElse) {
  const QString allowed = u"abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789@._+-/"_s;
  for (char16_t c = 0; c < 0x100; ++c) {
    EXPECT_EQ(builder.dependencies(u"a"_s + QChar(c)).has_value(), allowed.contains(QChar(c)))
        << static_cast<int>(c);
  }
}

TEST(BrewCommandBuilder, RefusesATargetWithoutPackageUnderItsNameOrItsKind) {
  struct Refused {
    BrewCommandTarget target;
    QString identifier;
  };

  for (const Refused& row :
       {Refused{{Kind::diagnostic, std::nullopt}, u"diagnostic"_s},
        Refused{{Kind::global, std::nullopt}, u"global"_s}, Refused{{Kind::global, u"x"_s}, u"x"_s},
        Refused{{Kind::diagnostic, u"a b"_s}, u"a b"_s}, Refused{{Kind::global, u""_s}, u""_s},
        Refused{{Kind::formula, std::nullopt}, u""_s},
        Refused{{Kind::cask, std::nullopt}, u""_s}}) {
    for (const Result& result : everyPackageCommand(row.target)) {
      ASSERT_FALSE(result.has_value());
      EXPECT_EQ(result.error().invalidPackageIdentifier, row.identifier);
    }
  }
}

TEST(BrewCommandBuilder, EndsTheMessageAfterTheColonWhereThereIsNoIdentifier) {
  const Result result = builder.info({Kind::formula, std::nullopt});
  ASSERT_FALSE(result.has_value());
  EXPECT_EQ(result.error().description(), u"Invalid Homebrew package identifier: "_s);
}

TEST(BrewCommandBuilderError, EqualsAnErrorOfTheSameIdentifier) {
  EXPECT_EQ(BrewCommandBuilderError{u"a b"_s}, BrewCommandBuilderError{u"a b"_s});
  EXPECT_NE(BrewCommandBuilderError{u"a b"_s}, BrewCommandBuilderError{u"a c"_s});
}

}  // namespace
}  // namespace quillmere

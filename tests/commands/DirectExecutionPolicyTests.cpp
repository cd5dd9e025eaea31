#include <gtest/gtest.h>
#include <ostream>
#include <string>
#include <vector>

#include "commands/BrewCommandBuilder.h"
#include "commands/DirectExecutionPolicy.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using Mode = DirectExecutionPolicyMode;

const BrewCommandBuilder builder;
const BrewCommandTarget wget{BrewCommandTargetKind::formula, u"wget"_s};
const BrewCommandTarget firefox{BrewCommandTargetKind::cask, u"firefox"_s};

AppCapabilities allBut(bool AppCapabilities::* flag) {
  AppCapabilities capabilities = AppCapabilities::all();
  capabilities.*flag = false;
  return capabilities;
}

AppCapabilities only(bool AppCapabilities::* flag) {
  AppCapabilities capabilities;
  capabilities.canExecuteCommands = true;
  capabilities.*flag = true;
  return capabilities;
}

std::vector<BrewCommand> everyCommand() {
  return {*builder.info(wget),
          *builder.info(firefox),
          *builder.install(wget),
          *builder.install(firefox),
          *builder.uninstall(wget),
          *builder.uninstall(firefox),
          builder.update(),
          *builder.upgrade(wget),
          *builder.upgrade(firefox),
          *builder.upgrade(std::nullopt),
          builder.outdated(),
          builder.cleanup(),
          *builder.dependencies(u"wget"_s),
          *builder.reverseDependencies(u"wget"_s),
          builder.servicesList(),
          builder.doctor()};
}

struct Row {
  const char* name;
  BrewCommand command;
  AppCapabilities capabilities;
  Mode mode;
  QString title;
  QString message;
};

void PrintTo(const Row& row, std::ostream* out) {
  *out << row.name;
}

std::string nameOf(const testing::TestParamInfo<Row>& row) {
  return row.param.name;
}

class Decision : public testing::TestWithParam<Row> {};

TEST_P(Decision, IsThatOfTheTable) {
  const auto decision = executionPolicyDecision(GetParam().command, GetParam().capabilities);
  EXPECT_EQ(decision.mode, GetParam().mode);
  EXPECT_EQ(decision.title, GetParam().title);
  EXPECT_EQ(decision.message, GetParam().message);
}

const AppCapabilities all = AppCapabilities::all();
/// Commands may be run; nothing that has a flag of its own may.
const AppCapabilities plain = {.canExecuteCommands = true};
const QString onlyPrints = u"This command only prints Homebrew information."_s;
const QString mayInstall =
    u"This may download and install a package in the selected Homebrew prefix."_s;
const QString noUninstall = u"Uninstall remains preview and copy only for Quillmere Direct v1."_s;
const QString mayUpdate = u"This may update Homebrew and tap metadata in the selected prefix."_s;
const QString mayReplace = u"This may replace the installed package version."_s;
const QString mayUpgrade = u"This may upgrade multiple installed formulae or casks."_s;
const QString mayDelete = u"This may delete Homebrew cache files and older package versions."_s;
const QString noCleanup = u"Cleanup execution is disabled in this build."_s;
const QString listsServices =
    u"This command lists Homebrew service state without starting or stopping services."_s;
const QString noServices = u"Live service reads are disabled in this build."_s;
const QString printsGuidance = u"This command prints Homebrew diagnostic guidance."_s;
const QString noDiagnostics = u"Diagnostics are disabled in this build."_s;
const QString reviewCarefully = u"Review carefully before running"_s;

// clang-format off
INSTANTIATE_TEST_SUITE_P(
    On, Decision,
    testing::Values(
        Row{"info", *builder.info(wget), plain, Mode::runDirectly,
            u"Run brew info wget"_s, onlyPrints},
        Row{"outdated", builder.outdated(), plain, Mode::runDirectly,
            u"Run brew outdated"_s, onlyPrints},
        Row{"dependencies", *builder.dependencies(u"wget"_s), plain, Mode::runDirectly,
            u"Run brew deps wget"_s, onlyPrints},
        Row{"reverseDependencies", *builder.reverseDependencies(u"wget"_s), plain,
            Mode::runDirectly, u"Run brew uses wget"_s, onlyPrints},
        Row{"install", *builder.install(wget), plain, Mode::requiresConfirmation,
            u"Confirm brew install wget"_s, mayInstall},
        Row{"uninstall", *builder.uninstall(wget), all, Mode::previewOnly,
            u"Preview brew uninstall wget"_s, noUninstall},
        Row{"update", builder.update(), plain, Mode::requiresStrongConfirmation,
            reviewCarefully, mayUpdate},
        Row{"upgradeOfFormula", *builder.upgrade(wget), plain, Mode::requiresConfirmation,
            u"Confirm brew upgrade wget"_s, mayReplace},
        Row{"upgradeOfCask", *builder.upgrade(firefox), all, Mode::requiresConfirmation,
            u"Confirm brew upgrade --cask firefox"_s, mayReplace},
        Row{"upgradeOfEverything", *builder.upgrade(std::nullopt), plain,
            Mode::requiresStrongConfirmation, reviewCarefully, mayUpgrade},
        Row{"cleanup", builder.cleanup(), only(&AppCapabilities::canPerformCleanup),
            Mode::requiresStrongConfirmation, reviewCarefully, mayDelete},
        Row{"cleanupNotAllowed", builder.cleanup(), allBut(&AppCapabilities::canPerformCleanup),
            Mode::previewOnly, u"Preview brew cleanup"_s, noCleanup},
        Row{"servicesList", builder.servicesList(), only(&AppCapabilities::canReadLiveServices),
            Mode::runDirectly, u"Run brew services list"_s, listsServices},
        Row{"servicesListNotAllowed", builder.servicesList(),
            allBut(&AppCapabilities::canReadLiveServices), Mode::previewOnly,
            u"Preview brew services list"_s, noServices},
        Row{"doctor", builder.doctor(), only(&AppCapabilities::canRunDiagnostics),
            Mode::runDirectly, u"Run brew doctor"_s, printsGuidance},
        Row{"doctorNotAllowed", builder.doctor(), allBut(&AppCapabilities::canRunDiagnostics),
            Mode::previewOnly, u"Preview brew doctor"_s, noDiagnostics}),
    nameOf);
// clang-format on

TEST(DirectExecutionPolicy, KeepsEveryCommandToThePreviewWhereNoneMayBeRun) {
  for (const BrewCommand& command : everyCommand()) {
    EXPECT_EQ(executionPolicyDecision(command, allBut(&AppCapabilities::canExecuteCommands)),
              (DirectExecutionPolicyDecision{
                  Mode::previewOnly, u"Preview "_s + command.commandText,
                  u"This build keeps Homebrew commands as preview and copy only."_s}));
  }
}

TEST(DirectExecutionPolicy, NeverRunsAnUninstallWhateverTheBuildMayDo) {
  for (unsigned flags = 0; flags < 32; ++flags) {
    const AppCapabilities capabilities = {(flags & 1) != 0, (flags & 2) != 0, (flags & 4) != 0,
                                          (flags & 8) != 0, (flags & 16) != 0};
    EXPECT_EQ(executionPolicyDecision(*builder.uninstall(firefox), capabilities).mode,
              Mode::previewOnly);
  }
}

TEST(DirectExecutionPolicy, DecidesAlikeWithAndWithoutStreamedOutput) {
  for (const BrewCommand& command : everyCommand()) {
    EXPECT_EQ(executionPolicyDecision(command, all),
              executionPolicyDecision(command, allBut(&AppCapabilities::canStreamCommandOutput)));
  }
}

TEST(DirectExecutionPolicy, DecidesAlikeForEveryRiskLevel) {
  for (BrewCommand command : everyCommand()) {
    const auto decision = executionPolicyDecision(command, all);
    for (const auto& risk : rawValues<BrewCommandRiskLevel>) {
      command.riskLevel = risk.value;
      EXPECT_EQ(executionPolicyDecision(command, all), decision);
    }
  }
}

TEST(ConfirmTitle, NamesTheExactCommand) {
  EXPECT_EQ(confirmTitle(*builder.upgrade(firefox)), u"Confirm brew upgrade --cask firefox"_s);
  EXPECT_EQ(confirmTitle(*builder.upgrade(std::nullopt)), u"Confirm brew upgrade"_s);
}

}  // namespace
}  // namespace quillmere

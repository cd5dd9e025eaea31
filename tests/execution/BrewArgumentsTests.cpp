#include <gtest/gtest.h>
#include <optional>
#include <vector>

#include "commands/BrewCommandBuilder.h"
#include "execution/BrewArguments.h"

namespace quillmere {
namespace {

using Kind = BrewCommandTargetKind;
using Operation = BrewCommandOperation;

BrewCommand commandFor(BrewCommandOperation operation, Kind kind,
                       const std::optional<QString>& name) {
  return {.operation = operation, .target = {kind, name}};
}

struct Row {
  BrewCommandOperation operation;
  const char* formula;
  const char* cask;
  const char* noPackage;
  Kind noPackageKind = Kind::global;
};

class BrewArgumentsOfOperation : public testing::TestWithParam<Row> {};

void expectArguments(const BrewCommand& command, const char* expected) {
  const auto arguments = brewArguments(command);
  if (!expected) {
    ASSERT_FALSE(arguments) << arguments->join(u' ').toStdString();
    EXPECT_EQ(arguments.error(), UnsupportedTarget{command.target.kind});
    return;
  }
  ASSERT_TRUE(arguments);
  EXPECT_EQ(*arguments, QString::fromLatin1(expected).split(u' '));
}

TEST_P(BrewArgumentsOfOperation, FollowTheTargetsKind) {
  const Row& row = GetParam();
  expectArguments(commandFor(row.operation, Kind::formula, QStringLiteral("wget")), row.formula);
  expectArguments(commandFor(row.operation, Kind::cask, QStringLiteral("firefox")), row.cask);
  expectArguments(commandFor(row.operation, row.noPackageKind, std::nullopt), row.noPackage);
}

TEST_P(BrewArgumentsOfOperation, RefuseAPackageWithoutName) {
  for (const Kind kind : {Kind::formula, Kind::cask}) {
    expectArguments(commandFor(GetParam().operation, kind, std::nullopt), nullptr);
  }
}

TEST_P(BrewArgumentsOfOperation, RefuseTheOtherKindThatNamesNoPackage) {
  const Kind other = GetParam().noPackageKind == Kind::global ? Kind::diagnostic : Kind::global;
  expectArguments(commandFor(GetParam().operation, other, std::nullopt), nullptr);
}

/// Every command of one operation that can be shown.
std::vector<BrewCommandBuilder::Result> commandsOf(Operation operation) {
  const BrewCommandBuilder builder;
  const QString name = QStringLiteral("user/tap/openssl@3");
  const BrewCommandTarget formula{Kind::formula, name};
  const BrewCommandTarget cask{Kind::cask, name};
  switch (operation) {
    case Operation::info:
      return {builder.info(formula), builder.info(cask)};
    case Operation::install:
      return {builder.install(formula), builder.install(cask)};
    case Operation::uninstall:
      return {builder.uninstall(formula), builder.uninstall(cask)};
    case Operation::update:
      return {builder.update()};
    case Operation::upgrade:
      return {builder.upgrade(formula), builder.upgrade(cask), builder.upgrade(std::nullopt)};
    case Operation::outdated:
      return {builder.outdated()};
    case Operation::cleanup:
      return {builder.cleanup()};
    case Operation::dependencies:
      return {builder.dependencies(name)};
    case Operation::reverseDependencies:
      return {builder.reverseDependencies(name)};
    case Operation::servicesList:
      return {builder.servicesList()};
    case Operation::doctor:
      return {builder.doctor()};
  }
  return {};
}

TEST_P(BrewArgumentsOfOperation, AreWhatIsShownOfTheCommand) {
  const auto commands = commandsOf(GetParam().operation);
  EXPECT_FALSE(commands.empty());
  for (const auto& command : commands) {
    ASSERT_TRUE(command);
    EXPECT_EQ(command->operation, GetParam().operation);
    const auto arguments = brewArguments(*command);
    ASSERT_TRUE(arguments) << command->commandText.toStdString();
    EXPECT_EQ(command->commandText, QStringLiteral("brew ") + arguments->join(u' '));
  }
}

TEST_P(BrewArgumentsOfOperation, LeaveOutANameThatIsNoPackages) {
  if (const char* const expected = GetParam().noPackage) {
    expectArguments(
        commandFor(GetParam().operation, GetParam().noPackageKind, QStringLiteral("wget")),
        expected);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Table, BrewArgumentsOfOperation,
    testing::Values(Row{Operation::info, "info wget", "info --cask firefox", nullptr},
                    Row{Operation::install, "install wget", "install --cask firefox", nullptr},
                    Row{Operation::uninstall, "uninstall wget", "uninstall --cask firefox",
                        nullptr},
                    Row{Operation::upgrade, "upgrade wget", "upgrade --cask firefox", "upgrade"},
                    Row{Operation::dependencies, "deps wget", nullptr, nullptr},
                    Row{Operation::reverseDependencies, "uses wget", nullptr, nullptr},
                    Row{Operation::update, nullptr, nullptr, "update"},
                    Row{Operation::outdated, nullptr, nullptr, "outdated"},
                    Row{Operation::cleanup, nullptr, nullptr, "cleanup"},
                    Row{Operation::servicesList, nullptr, nullptr, "services list"},
                    Row{Operation::doctor, nullptr, nullptr, "doctor", Kind::diagnostic}),
    [](const auto& test) { return std::string(rawValue(test.param.operation).latin1()); });

}  // namespace
}  // namespace quillmere

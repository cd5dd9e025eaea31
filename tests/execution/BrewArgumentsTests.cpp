#include <gtest/gtest.h>
#include <optional>

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

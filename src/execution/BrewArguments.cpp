#include "execution/BrewArguments.h"

#include "commands/BrewCommandBuilder.h"

namespace quillmere {
namespace {

using Kind = BrewCommandTargetKind;

bool hasFormFor(BrewCommandOperation operation, Kind kind) {
  using enum BrewCommandOperation;
  switch (operation) {
    case info:
    case install:
    case uninstall:
      return isPackageKind(kind);
    case upgrade:
      return kind != Kind::diagnostic;
    case dependencies:
    case reverseDependencies:
      return kind == Kind::formula;
    case update:
    case outdated:
    case cleanup:
    case servicesList:
      return kind == Kind::global;
    case doctor:
      return kind == Kind::diagnostic;
  }
  return false;
}

}  // namespace

std::expected<QStringList, UnsupportedTarget> brewArguments(const BrewCommand& command) {
  const BrewCommandTarget& target = command.target;
  const bool isNameless = isPackageKind(target.kind) && !target.name;
  if (!hasFormFor(command.operation, target.kind) || isNameless) {
    return std::unexpected(UnsupportedTarget{target.kind});
  }
  return brewWords(command.operation, target);
}

}  // namespace quillmere

#include "execution/BrewArguments.h"

#include <array>
#include <optional>

namespace quillmere {
namespace {

/// The words of one operation for each kind of target; null where there is no such form. A package
/// operation ends with the package's name.
struct Row {
  BrewCommandOperation operation;
  const char* formula;
  const char* cask;
  const char* global;
  const char* diagnostic;
};

using enum BrewCommandOperation;

constexpr std::array rows = {
    Row{info, "info", "info --cask", nullptr, nullptr},
    Row{install, "install", "install --cask", nullptr, nullptr},
    Row{uninstall, "uninstall", "uninstall --cask", nullptr, nullptr},
    Row{update, nullptr, nullptr, "update", nullptr},
    Row{upgrade, "upgrade", "upgrade --cask", "upgrade", nullptr},
    Row{outdated, nullptr, nullptr, "outdated", nullptr},
    Row{cleanup, nullptr, nullptr, "cleanup", nullptr},
    Row{dependencies, "deps", nullptr, nullptr, nullptr},
    Row{reverseDependencies, "uses", nullptr, nullptr, nullptr},
    Row{servicesList, nullptr, nullptr, "services list", nullptr},
    Row{doctor, nullptr, nullptr, nullptr, "doctor"},
};
static_assert(hasRowForEach(rows, &Row::operation));

const char* wordsFor(BrewCommandOperation operation, BrewCommandTargetKind kind) {
  const Row& row = rows[static_cast<std::size_t>(operation)];
  switch (kind) {
    case BrewCommandTargetKind::formula:
      return row.formula;
    case BrewCommandTargetKind::cask:
      return row.cask;
    case BrewCommandTargetKind::global:
      return row.global;
    case BrewCommandTargetKind::diagnostic:
      return row.diagnostic;
  }
  return nullptr;
}

bool namesPackage(BrewCommandTargetKind kind) {
  return kind == BrewCommandTargetKind::formula || kind == BrewCommandTargetKind::cask;
}

}  // namespace

std::expected<QStringList, UnsupportedTarget> brewArguments(const BrewCommand& command) {
  const BrewCommandTarget& target = command.target;
  const char* words = wordsFor(command.operation, target.kind);
  if (!words || (namesPackage(target.kind) && !target.name)) {
    return std::unexpected(UnsupportedTarget{target.kind});
  }
  QStringList arguments = QString::fromLatin1(words).split(u' ');
  if (namesPackage(target.kind) && target.name) {
    arguments += *target.name;
  }
  return arguments;
}

}  // namespace quillmere

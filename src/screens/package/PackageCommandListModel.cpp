#include "screens/package/PackageCommandListModel.h"

#include <array>

#include "commands/BrewCommandBuilder.h"
#include "screens/shared/PackageTarget.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

using Build = BrewCommandBuilder::Result (*)(const BrewCommandTarget& target);

struct Row {
  QLatin1StringView title;
  QLatin1StringView symbolName;
  /// Casks have no dependencies that Homebrew would list.
  bool formulaeOnly;
  Build build;
};

constexpr auto rows = std::to_array<Row>({
    {"Info"_L1, "info.circle"_L1, false,
     [](const BrewCommandTarget& target) { return BrewCommandBuilder().info(target); }},
    {"Install"_L1, "square.and.arrow.down"_L1, false,
     [](const BrewCommandTarget& target) { return BrewCommandBuilder().install(target); }},
    {"Upgrade"_L1, "arrow.up.circle"_L1, false,
     [](const BrewCommandTarget& target) { return BrewCommandBuilder().upgrade(target); }},
    {"Uninstall"_L1, "trash"_L1, false,
     [](const BrewCommandTarget& target) { return BrewCommandBuilder().uninstall(target); }},
    {"Deps"_L1, "point.3.connected.trianglepath.dotted"_L1, true,
     [](const BrewCommandTarget& target) {
       return BrewCommandBuilder().dependencies(target.name.value_or(QString()));
     }},
    {"Uses"_L1, "arrow.triangle.branch"_L1, true,
     [](const BrewCommandTarget& target) {
       return BrewCommandBuilder().reverseDependencies(target.name.value_or(QString()));
     }},
});

QString hint(const PackageCommand& command) {
  return "Opens a command preview for "_L1 + command.command.commandText +
         ". Quillmere Direct can run approved commands when policy allows."_L1;
}

}  // namespace

std::vector<PackageCommand> packageCommands(HomebrewPackageSummary::Kind kind,
                                            const SharedText& id) {
  const auto target = packageTarget(kind, id);
  if (!target) {
    return {};
  }
  std::vector<PackageCommand> commands;
  for (const Row& row : rows) {
    if (row.formulaeOnly && target->kind != BrewCommandTargetKind::formula) {
      continue;
    }
    BrewCommandBuilder::Result built = row.build(*target);
    if (!built) {
      return {};
    }
    commands.push_back(
        {.title = row.title, .symbolName = row.symbolName, .command = *std::move(built)});
  }
  return commands;
}

PackageCommandListModel::PackageCommandListModel(std::vector<PackageCommand> commands,
                                                 QObject* parent)
    : QAbstractListModel(parent), commands_(std::move(commands)) {
}

int PackageCommandListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(commands_.size());
}

QVariant PackageCommandListModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid)) {
    return {};
  }
  const PackageCommand& command = commands_[static_cast<std::size_t>(index.row())];
  switch (role) {
    case TitleRole:
      return command.title;
    case SymbolNameRole:
      return command.symbolName;
    case AccessibleLabelRole:
      return QString("Preview "_L1 + command.title + " command"_L1);
    case HintRole:
      return hint(command);
    case DestructiveRole:
      return command.command.riskLevel == BrewCommandRiskLevel::destructive;
    default:
      return {};
  }
}

QHash<int, QByteArray> PackageCommandListModel::roleNames() const {
  return {{TitleRole, "title"},
          {SymbolNameRole, "symbolName"},
          {AccessibleLabelRole, "accessibleLabel"},
          {HintRole, "hint"},
          {DestructiveRole, "destructive"}};
}

const BrewCommand* PackageCommandListModel::command(int row) const {
  return row >= 0 && row < rowCount() ? &commands_[static_cast<std::size_t>(row)].command : nullptr;
}

}  // namespace quillmere

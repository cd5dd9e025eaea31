#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QUuid>

#include <array>
#include <optional>

#include "platform/RawValues.h"

namespace quillmere {

/// What a command does. The raw values are stored in the history.
enum class BrewCommandOperation {
  info,
  install,
  uninstall,
  update,
  upgrade,
  outdated,
  cleanup,
  dependencies,
  reverseDependencies,
  servicesList,
  doctor,
};

template <>
inline constexpr auto rawValues<BrewCommandOperation> =
    std::to_array<RawValue<BrewCommandOperation>>({
        {BrewCommandOperation::info, QLatin1StringView("info")},
        {BrewCommandOperation::install, QLatin1StringView("install")},
        {BrewCommandOperation::uninstall, QLatin1StringView("uninstall")},
        {BrewCommandOperation::update, QLatin1StringView("update")},
        {BrewCommandOperation::upgrade, QLatin1StringView("upgrade")},
        {BrewCommandOperation::outdated, QLatin1StringView("outdated")},
        {BrewCommandOperation::cleanup, QLatin1StringView("cleanup")},
        {BrewCommandOperation::dependencies, QLatin1StringView("dependencies")},
        {BrewCommandOperation::reverseDependencies, QLatin1StringView("reverseDependencies")},
        {BrewCommandOperation::servicesList, QLatin1StringView("servicesList")},
        {BrewCommandOperation::doctor, QLatin1StringView("doctor")},
    });

/// What kind of thing a command acts on.
enum class BrewCommandTargetKind { formula, cask, global, diagnostic };

template <>
inline constexpr auto rawValues<BrewCommandTargetKind> =
    std::to_array<RawValue<BrewCommandTargetKind>>({
        {BrewCommandTargetKind::formula, QLatin1StringView("formula")},
        {BrewCommandTargetKind::cask, QLatin1StringView("cask")},
        {BrewCommandTargetKind::global, QLatin1StringView("global")},
        {BrewCommandTargetKind::diagnostic, QLatin1StringView("diagnostic")},
    });

/// Whether a target of this kind is a package and has its name.
[[nodiscard]] constexpr bool isPackageKind(BrewCommandTargetKind kind) {
  return kind == BrewCommandTargetKind::formula || kind == BrewCommandTargetKind::cask;
}

/// What a command acts on: the name of a formula or the token of a cask; none for the kinds that
/// name no package.
struct BrewCommandTarget {
  BrewCommandTargetKind kind = BrewCommandTargetKind::global;
  std::optional<QString> name;

  bool operator==(const BrewCommandTarget&) const = default;
};

/// How dangerous a command is, from least to most. No command is `low` today; stored and shown
/// values keep their meaning if one becomes so.
enum class BrewCommandRiskLevel { informational, low, medium, destructive };

template <>
inline constexpr auto rawValues<BrewCommandRiskLevel> =
    std::to_array<RawValue<BrewCommandRiskLevel>>({
        {BrewCommandRiskLevel::informational, QLatin1StringView("informational")},
        {BrewCommandRiskLevel::low, QLatin1StringView("low")},
        {BrewCommandRiskLevel::medium, QLatin1StringView("medium")},
        {BrewCommandRiskLevel::destructive, QLatin1StringView("destructive")},
    });

/// A command as it is shown, copied and run. Made only by `BrewCommandBuilder`.
struct BrewCommand {
  /// Fresh for each build: two builds of the same command differ only here.
  QUuid id;
  /// The exact line, for example "brew info --cask firefox".
  QString commandText;
  BrewCommandOperation operation = BrewCommandOperation::info;
  BrewCommandTarget target;
  BrewCommandRiskLevel riskLevel = BrewCommandRiskLevel::informational;
  /// One sentence.
  QString explanation;
  /// What may happen, in the order in which it is shown.
  QStringList possibleEffects;

  bool operator==(const BrewCommand&) const = default;
};

/// Whether running the command may change what is installed.
[[nodiscard]] inline bool mayChangePackages(const BrewCommand& command) {
  return command.riskLevel != BrewCommandRiskLevel::informational;
}

}  // namespace quillmere

#pragma once

#include <QtCore/QStringList>

#include <array>
#include <optional>

#include "catalog/HomebrewFormula.h"
#include "platform/RawValues.h"

namespace quillmere {

/// A formula that has a folder in the prefix's Cellar. Made by `HomebrewFormulaInventoryScanner`.
struct InstalledFormula {
  /// Whether somebody asked for the formula or another one needs it.
  enum class InstallReason { direct, dependency, unknown };

  /// The name of its folder.
  QString name;
  /// The names of what is in its folder, oldest version first.
  QStringList installedVersions;
  /// The last of the installed versions; absent when there are none.
  std::optional<QString> currentVersion;
  InstallReason installReason = InstallReason::unknown;
  /// The record of the same name in the catalog that the scan was given.
  std::optional<HomebrewFormula> catalogFormula;

  bool operator==(const InstalledFormula&) const = default;

  friend std::size_t qHash(const InstalledFormula& formula, std::size_t seed = 0) noexcept {
    return qHash(formula.name, seed);
  }
};

template <>
inline constexpr auto rawValues<InstalledFormula::InstallReason> =
    std::to_array<RawValue<InstalledFormula::InstallReason>>({
        {InstalledFormula::InstallReason::direct, QLatin1StringView("direct")},
        {InstalledFormula::InstallReason::dependency, QLatin1StringView("dependency")},
        {InstalledFormula::InstallReason::unknown, QLatin1StringView("unknown")},
    });

}  // namespace quillmere

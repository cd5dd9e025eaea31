#pragma once

#include <optional>
#include <vector>

#include "catalog/HomebrewPackageSummary.h"
#include "inventory/InstalledCask.h"
#include "inventory/InstalledFormula.h"

namespace quillmere {

/// What the lists and the detail view show of an installed package, formula or cask alike: what is
/// on the disk, beside what the catalog knows of the same package. Texts are shared UTF-8 as in
/// `HomebrewPackageSummary`. An immutable value.
struct InstalledPackageSummary {
  /// As the package's row of the catalog has it.
  SharedText id;
  HomebrewPackageSummary::Kind kind = HomebrewPackageSummary::Kind::formula;
  SharedText name;
  std::optional<SharedText> description;
  /// Oldest first.
  std::vector<SharedText> installedVersions;
  /// The newest of them, as the scan found it.
  std::optional<SharedText> installedVersion;
  /// The catalog's.
  std::optional<SharedText> latestKnownVersion;
  /// What a formula is built from when asked for its head; casks have none.
  std::optional<SharedText> alternateVersion;
  std::optional<UrlText> homepage;
  /// Casks have none.
  std::optional<SharedText> license;
  std::optional<SharedText> tap;
  /// A formula's dependencies, a cask's artifact labels.
  std::vector<SharedText> detailItems;
  /// One line that says how the package came to be installed.
  SharedText detail;

  bool operator==(const InstalledPackageSummary&) const = default;

  friend std::size_t qHash(const InstalledPackageSummary& summary, std::size_t seed = 0) noexcept {
    return qHash(summary.id, seed);
  }
};

/// What the catalog knows of an installed package, as a row of the catalog. Pure; any thread.
[[nodiscard]] HomebrewPackageSummary catalogSummary(const InstalledPackageSummary& package);

/// The whole inventory, ordered by name; of a formula and a cask with equal names the formula comes
/// first. Pure; any thread.
[[nodiscard]] std::vector<InstalledPackageSummary> installedPackageSummaries(
    const std::vector<InstalledFormula>& formulae, const std::vector<InstalledCask>& casks);

/// Whether `left` comes before `right` in a list, by name alone and in the user's name ordering:
/// false both ways for two packages of the same name. Any thread.
[[nodiscard]] bool comesBefore(const InstalledPackageSummary& left,
                               const InstalledPackageSummary& right);

}  // namespace quillmere

#pragma once

#include <QtCore/QLatin1StringView>

#include <optional>
#include <string_view>
#include <vector>

#include "catalog/HomebrewCask.h"
#include "catalog/HomebrewFormula.h"

namespace quillmere {

/// What the lists and the detail view show of a package of the catalog, formula or cask alike.
/// A catalog is some sixteen thousand of these, kept for as long as the program runs, of which one
/// screenful is looked at: hence shared UTF-8 texts, turned into `QString` by the list model for
/// the rows in view.
struct HomebrewPackageSummary {
  enum class Kind { formula, cask };

  /// As `packageId` makes it.
  SharedText id;
  Kind kind = Kind::formula;
  SharedText name;
  std::optional<SharedText> description;
  std::optional<SharedText> version;
  /// What a formula is built from when asked for its head; casks have none.
  std::optional<SharedText> alternateVersion;
  std::optional<UrlText> homepage;
  std::optional<SharedText> license;
  std::optional<SharedText> tap;
  /// A formula's dependencies, a cask's artifact labels.
  std::vector<SharedText> detailItems;

  bool operator==(const HomebrewPackageSummary&) const = default;

  friend std::size_t qHash(const HomebrewPackageSummary& summary, std::size_t seed = 0) noexcept {
    return qHash(summary.id, seed);
  }
};

/// The identity of a package: "formula:" or "cask:", because the two may share a name, and `name`,
/// which is the formula's name or the cask's token. Pure; any thread.
[[nodiscard]] SharedText packageId(HomebrewPackageSummary::Kind kind, std::string_view name,
                                   SharedTextBuilder& texts);

/// The name or token in an identity that `packageId` made for a package of this kind; a view of
/// `id`. Pure; any thread.
[[nodiscard]] std::string_view nameInPackageId(HomebrewPackageSummary::Kind kind,
                                               const SharedText& id);

/// What a cask is called: its first name, or its token where it has none. A member of `cask`.
[[nodiscard]] const SharedText& displayName(const HomebrewCask& cask);

/// "Formula" or "Cask".
[[nodiscard]] QLatin1StringView displayLabel(HomebrewPackageSummary::Kind kind);

/// One summary per record, in the order of the records, whose texts they take over. Pure; any
/// thread.
[[nodiscard]] std::vector<HomebrewPackageSummary> packageSummaries(
    std::vector<HomebrewFormula> formulae);
[[nodiscard]] std::vector<HomebrewPackageSummary> packageSummaries(std::vector<HomebrewCask> casks);

}  // namespace quillmere

#pragma once

#include <QtCore/QLatin1StringView>
#include <QtCore/QString>

#include <array>
#include <optional>
#include <vector>

#include "catalog/PackageCatalog.h"
#include "platform/RawValues.h"

namespace quillmere {

/// Which kind of package is shown. The raw values are the titles as well.
enum class PackageCatalogFilter { all, formulae, casks };

template <>
inline constexpr auto rawValues<PackageCatalogFilter> =
    std::to_array<RawValue<PackageCatalogFilter>>({
        {PackageCatalogFilter::all, QLatin1StringView("All")},
        {PackageCatalogFilter::formulae, QLatin1StringView("Formulae")},
        {PackageCatalogFilter::casks, QLatin1StringView("Casks")},
    });

/// What a list of packages was asked for, and the identity of the answer. The catalog is told from
/// another one by its size and its ends, so that no lists are compared.
struct FilterRequest {
  /// Without white space around it.
  QString searchQuery;
  PackageCatalogFilter packageFilter = PackageCatalogFilter::all;
  std::size_t packageCount = 0;
  std::optional<SharedText> firstPackageID;
  std::optional<SharedText> lastPackageID;

  bool operator==(const FilterRequest&) const = default;

  [[nodiscard]] static FilterRequest make(QStringView searchText, PackageCatalogFilter filter,
                                          const PackageCatalog& catalog);

  /// Whether the answer is the catalog itself, for which nothing has to be walked.
  [[nodiscard]] bool isUnfiltered() const;
};

struct FilteredPackageResults {
  /// Nobody reads further than this; whoever looks for more narrows the search.
  static constexpr std::size_t maximumVisible = 250;

  FilterRequest request;
  /// The packages shown, as positions in the catalog, ascending.
  std::vector<std::size_t> visiblePackages;
  /// How many match; absent when the search stopped after what is shown.
  std::optional<std::size_t> exactMatchCount;
  std::size_t totalCount = 0;

  bool operator==(const FilteredPackageResults&) const = default;

  /// What is shown until the answer to `request` is there.
  [[nodiscard]] static FilteredPackageResults provisional(const FilterRequest& request);

  /// "Showing 12 of 12 matches from 7000 packages".
  [[nodiscard]] QString longSummary() const;
  /// "Showing 12 of 12 matches".
  [[nodiscard]] QString shortSummary() const;
};

/// Answers `request`, which was made for `catalog`. A package matches when the query occurs, case
/// and diacritics aside, in its name, description, version, tap, the word for its kind or one of
/// its detail items. Pure; any thread. Instant for an unfiltered request; a search of the real
/// catalog takes less than a millisecond.
[[nodiscard]] FilteredPackageResults filteredPackages(const PackageCatalog& catalog,
                                                      const FilterRequest& request);

}  // namespace quillmere

#include "catalog/PackageCatalogFilter.h"

#include <algorithm>
#include <numeric>
#include <string>

#include "platform/TextMatching.h"

namespace quillmere {
namespace {

using Kind = HomebrewPackageSummary::Kind;

bool passes(PackageCatalogFilter filter, Kind kind) {
  return filter == PackageCatalogFilter::all ||
         (filter == PackageCatalogFilter::formulae) == (kind == Kind::formula);
}

/// The packages that match, one after the other.
class Matches {
 public:
  Matches(const PackageCatalog& catalog, const FilterRequest& request)
      : catalog_(catalog),
        filter_(request.packageFilter),
        isSearch_(!request.searchQuery.isEmpty()),
        query_(searchableForm(request.searchQuery)) {}

  /// The position of the next one; absent after the last.
  std::optional<std::size_t> next() {
    const auto& packages = catalog_.packages();
    while (position_ < packages.size()) {
      if (!passes(filter_, packages[position_].kind)) {
        ++position_;
        continue;
      }
      const auto found =
          isSearch_ ? catalog_.searchIndex().find(query_, position_) : std::optional(position_);
      position_ = found.value_or(packages.size());
      if (found && passes(filter_, packages[*found].kind)) {
        return position_++;
      }
    }
    return std::nullopt;
  }

 private:
  const PackageCatalog& catalog_;
  PackageCatalogFilter filter_;
  bool isSearch_;
  std::string query_;
  std::size_t position_ = 0;
};

}  // namespace

FilterRequest FilterRequest::make(QStringView searchText, PackageCatalogFilter filter,
                                  const PackageCatalog& catalog) {
  const auto& packages = catalog.packages();
  FilterRequest request{.searchQuery = searchText.trimmed().toString(),
                        .packageFilter = filter,
                        .packageCount = packages.size(),
                        .firstPackageID = {},
                        .lastPackageID = {}};
  if (!packages.empty()) {
    request.firstPackageID = packages.front().id;
    request.lastPackageID = packages.back().id;
  }
  return request;
}

bool FilterRequest::isUnfiltered() const {
  return searchQuery.isEmpty() && packageFilter == PackageCatalogFilter::all;
}

FilteredPackageResults FilteredPackageResults::provisional(const FilterRequest& request) {
  return {.request = request,
          .visiblePackages = {},
          .exactMatchCount = std::nullopt,
          .totalCount = request.packageCount};
}

QString FilteredPackageResults::longSummary() const {
  const QString visible = QString::number(visiblePackages.size());
  const QString total = QString::number(totalCount);
  if (!exactMatchCount) {
    return QStringLiteral("Showing first %1 matches from %2 packages").arg(visible, total);
  }
  if (*exactMatchCount != totalCount) {
    return QStringLiteral("Showing %1 of %2 matches from %3 packages")
        .arg(visible, QString::number(*exactMatchCount), total);
  }
  return QStringLiteral("Showing %1 of %2 packages").arg(visible, total);
}

QString FilteredPackageResults::shortSummary() const {
  const QString visible = QString::number(visiblePackages.size());
  if (!exactMatchCount) {
    return QStringLiteral("Showing first %1 matches").arg(visible);
  }
  if (*exactMatchCount != totalCount) {
    return QStringLiteral("Showing %1 of %2 matches")
        .arg(visible, QString::number(*exactMatchCount));
  }
  return QStringLiteral("Showing %1 of %2").arg(visible, QString::number(totalCount));
}

FilteredPackageResults filteredPackages(const PackageCatalog& catalog,
                                        const FilterRequest& request) {
  FilteredPackageResults results = FilteredPackageResults::provisional(request);
  auto& visible = results.visiblePackages;
  if (request.isUnfiltered()) {
    visible.resize(std::min(FilteredPackageResults::maximumVisible, results.totalCount));
    std::iota(visible.begin(), visible.end(), std::size_t{0});
    results.exactMatchCount = results.totalCount;
    return results;
  }
  Matches matches(catalog, request);
  std::size_t count = 0;
  while (const auto match = matches.next()) {
    ++count;
    if (visible.size() < FilteredPackageResults::maximumVisible) {
      visible.push_back(*match);
    } else if (!request.searchQuery.isEmpty()) {
      return results;
    }
  }
  results.exactMatchCount = count;
  return results;
}

}  // namespace quillmere

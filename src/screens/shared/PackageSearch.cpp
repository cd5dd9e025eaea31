#include "screens/shared/PackageSearch.h"

namespace quillmere {

void PackageSearch::setSearchText(const QString& text) {
  if (searchText_ != text) {
    searchText_ = text;
    Q_EMIT changed();
  }
}

void PackageSearch::setPackageFilter(PackageCatalogFilter filter) {
  if (packageFilter_ != filter) {
    packageFilter_ = filter;
    Q_EMIT changed();
  }
}

QStringList PackageSearch::filterTitles() const {
  QStringList titles;
  for (const auto& filter : rawValues<PackageCatalogFilter>) {
    titles += filter.text;
  }
  return titles;
}

void PackageSearch::setFilterIndex(int index) {
  setPackageFilter(rawValues<PackageCatalogFilter>.at(static_cast<std::size_t>(index)).value);
}

}  // namespace quillmere

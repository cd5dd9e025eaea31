#include "screens/browse/PackageListModel.h"

#include <utility>

#include "screens/shared/OptionalText.h"

using namespace Qt::StringLiterals;

namespace quillmere {

QString accessibleLabel(const HomebrewPackageSummary& package) {
  QString label = sanitizedText(package.name) + ", "_L1 + displayLabel(package.kind) + ", "_L1;
  label += package.version ? "version "_L1 + sanitizedText(*package.version) : u"unknown version"_s;
  if (package.description) {
    label += ", "_L1 + sanitizedText(*package.description);
  }
  return label;
}

void PackageListModel::setPackages(PackageCatalogPtr catalog, std::vector<std::size_t> places) {
  if (catalog_ == catalog && places_ == places) {
    return;
  }
  const int count = static_cast<int>(places.size());
  replaceRows(count, [&] {
    catalog_ = std::move(catalog);
    places_ = std::move(places);
  });
}

const HomebrewPackageSummary& PackageListModel::package(int row) const {
  return catalog_->packages()[places_[static_cast<std::size_t>(row)]];
}

int PackageListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(places_.size());
}

QVariant PackageListModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid)) {
    return {};
  }
  const HomebrewPackageSummary& package = this->package(index.row());
  switch (role) {
    case NameRole:
      return sanitizedText(package.name);
    case KindRole:
      return QString(displayLabel(package.kind));
    case VersionRole:
      return textOrEmpty(package.version);
    case DescriptionRole:
      return textOrEmpty(package.description);
    case AccessibleLabelRole:
      return accessibleLabel(package);
    default:
      return {};
  }
}

QHash<int, QByteArray> PackageListModel::roleNames() const {
  return {{NameRole, "name"},
          {KindRole, "kind"},
          {VersionRole, "version"},
          {DescriptionRole, "description"},
          {AccessibleLabelRole, "accessibleLabel"}};
}

}  // namespace quillmere

#include "screens/installed/InstalledPackageListModel.h"

#include <utility>

#include "screens/shared/OptionalText.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

QString part(QLatin1StringView lead, const std::optional<SharedText>& value) {
  return value ? lead + sanitizedText(*value) : QString();
}

QString textOr(QLatin1StringView substitute, const std::optional<SharedText>& text) {
  return text ? sanitizedText(*text) : QString(substitute);
}

}  // namespace

QString accessibleLabel(const InstalledPackageSummary& package) {
  return sanitizedText(package.name) + part(", installed "_L1, package.installedVersion) +
         part(", latest known "_L1, package.latestKnownVersion) + part(", source "_L1, package.tap);
}

void InstalledPackageListModel::setPackages(InstalledPackagesPtr packages,
                                            std::vector<std::size_t> places) {
  if (packages_ == packages && places_ == places) {
    return;
  }
  const int count = static_cast<int>(places.size());
  replaceRows(count, [&] {
    packages_ = std::move(packages);
    places_ = std::move(places);
  });
}

const InstalledPackageSummary& InstalledPackageListModel::package(int row) const {
  return (*packages_)[places_[static_cast<std::size_t>(row)]];
}

int InstalledPackageListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(places_.size());
}

QVariant InstalledPackageListModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid)) {
    return {};
  }
  const InstalledPackageSummary& package = this->package(index.row());
  switch (role) {
    case NameRole:
      return sanitizedText(package.name);
    case KindRole:
      return QString(displayLabel(package.kind));
    case InstalledVersionRole:
      return textOr("Unknown"_L1, package.installedVersion);
    case LatestKnownVersionRole:
      return textOr("Not listed"_L1, package.latestKnownVersion);
    case DescriptionRole:
      return sanitizedText(package.description.value_or(package.detail));
    case AccessibleLabelRole:
      return accessibleLabel(package);
    default:
      return {};
  }
}

QHash<int, QByteArray> InstalledPackageListModel::roleNames() const {
  return {{NameRole, "name"},
          {KindRole, "kind"},
          {InstalledVersionRole, "installedVersion"},
          {LatestKnownVersionRole, "latestKnownVersion"},
          {DescriptionRole, "description"},
          {AccessibleLabelRole, "accessibleLabel"}};
}

}  // namespace quillmere

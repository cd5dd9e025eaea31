#include "screens/updates/PackageUpdateListModel.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "platform/SanitizedText.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

using Status = PackageVersionState::Status;

bool isOutdated(const PackageUpdateSummary& summary) {
  return summary.versionState.status == Status::outdated;
}

QString tint(Status status) {
  switch (status) {
    case Status::upToDate:
      return u"green"_s;
    case Status::outdated:
      return u"blue"_s;
    case Status::newerThanCatalog:
    case Status::unknown:
    case Status::notComparable:
      return u"orange"_s;
  }
  Q_UNREACHABLE();
}

QString versionText(const std::optional<SharedText>& version) {
  return version ? sanitizedText(*version) : u"Unknown"_s;
}

}  // namespace

void PackageUpdateListModel::setPackages(std::vector<PackageUpdateSummary> summaries) {
  beginResetModel();
  rows_.clear();
  std::vector<PackageUpdateSummary> review;
  for (PackageUpdateSummary& summary : summaries) {
    if (isOutdated(summary)) {
      rows_.push_back(std::move(summary));
    } else if (summary.versionState.status != Status::upToDate) {
      review.push_back(std::move(summary));
    }
  }
  upToDateCount_ = static_cast<int>(summaries.size() - rows_.size() - review.size());
  updateCount_ = static_cast<int>(rows_.size());
  std::ranges::move(review, std::back_inserter(rows_));
  endResetModel();
}

const InstalledPackageSummary* PackageUpdateListModel::package(int row) const {
  return row >= 0 && row < rowCount() ? &rows_[static_cast<std::size_t>(row)].package : nullptr;
}

int PackageUpdateListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

/// Above the first row of each section.
QString PackageUpdateListModel::heading(int row) const {
  if (row == updateCount_) {
    return u"Needs Review"_s;
  }
  return row == 0 ? u"Outdated"_s : QString();
}

QVariant PackageUpdateListModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid)) {
    return {};
  }
  const PackageUpdateSummary& row = rows_[static_cast<std::size_t>(index.row())];
  switch (role) {
    case NameRole:
      return sanitizedText(row.package.name);
    case KindTextRole:
      return displayLabel(row.package.kind);
    case StatusTextRole:
      return rawValue(row.versionState.status);
    case TintRole:
      return tint(row.versionState.status);
    case InstalledTextRole:
      return versionText(row.versionState.currentVersion);
    case LatestKnownTextRole:
      return versionText(row.versionState.latestKnownVersion);
    case AccessibleLabelRole:
      return accessibleLabel(row);
    case UpgradeLabelRole:
      return QString("Preview upgrade command for "_L1 + sanitizedText(row.package.name));
    case HeadingRole:
      return heading(index.row());
    case NoteRole:
      return isRebuild(row.versionState.currentVersion, row.versionState.latestKnownVersion)
                 ? u"Rebuilt by Homebrew, same version"_s
                 : QString();
    default:
      return {};
  }
}

QHash<int, QByteArray> PackageUpdateListModel::roleNames() const {
  return {{NameRole, "name"},
          {KindTextRole, "kindText"},
          {StatusTextRole, "statusText"},
          {TintRole, "tint"},
          {InstalledTextRole, "installedText"},
          {LatestKnownTextRole, "latestKnownText"},
          {AccessibleLabelRole, "accessibleLabel"},
          {UpgradeLabelRole, "upgradeLabel"},
          {HeadingRole, "heading"},
          {NoteRole, "note"}};
}

}  // namespace quillmere

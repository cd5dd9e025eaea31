#include "screens/cleanup/OldVersionListModel.h"

#include <QtCore/QStringList>

#include <utility>

#include "platform/SanitizedText.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

using OldVersionPackage = CleanupGuidanceSummary::OldVersionPackage;

QString olderVersions(const OldVersionPackage& package) {
  QStringList versions;
  for (const SharedText& version : package.oldVersions) {
    versions += version.toString();
  }
  return sanitizedText(versions.join(", "_L1));
}

QString currentVersion(const OldVersionPackage& package, const QString& unknown) {
  return package.currentVersion ? sanitizedText(*package.currentVersion) : unknown;
}

QString accessibleLabel(const OldVersionPackage& package) {
  return sanitizedText(package.name) + ", "_L1 + displayLabel(package.kind) + ", current "_L1 +
         currentVersion(package, u"unknown"_s) + ", older versions "_L1 + olderVersions(package);
}

}  // namespace

void OldVersionListModel::setPackages(std::vector<OldVersionPackage> packages) {
  beginResetModel();
  packages_ = std::move(packages);
  endResetModel();
}

int OldVersionListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(packages_.size());
}

QVariant OldVersionListModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid)) {
    return {};
  }
  const OldVersionPackage& package = packages_[static_cast<std::size_t>(index.row())];
  switch (role) {
    case NameRole:
      return sanitizedText(package.name);
    case KindTextRole:
      return displayLabel(package.kind);
    case VersionsTextRole:
      return QString("Current: "_L1 + currentVersion(package, u"Unknown"_s) + " | Older: "_L1 +
                     olderVersions(package));
    case AccessibleLabelRole:
      return accessibleLabel(package);
    default:
      return {};
  }
}

QHash<int, QByteArray> OldVersionListModel::roleNames() const {
  return {{NameRole, "name"},
          {KindTextRole, "kindText"},
          {VersionsTextRole, "versionsText"},
          {AccessibleLabelRole, "accessibleLabel"}};
}

}  // namespace quillmere

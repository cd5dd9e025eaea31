#include "screens/settings/HomebrewPrefixLocationListModel.h"

#include <utility>

#include "platform/SanitizedText.h"

namespace quillmere {
namespace {

QString tint(HomebrewPrefixProbeResult::Status status) {
  switch (status) {
    case HomebrewPrefixProbeResult::Status::readable:
      return QStringLiteral("green");
    case HomebrewPrefixProbeResult::Status::missing:
      return QStringLiteral("neutral");
    case HomebrewPrefixProbeResult::Status::notReadable:
      return QStringLiteral("orange");
  }
  Q_UNREACHABLE();
}

}  // namespace

void HomebrewPrefixLocationListModel::setResults(std::vector<HomebrewPrefixProbeResult> results) {
  if (results.size() == results_.size() && !results.empty()) {
    results_ = std::move(results);
    Q_EMIT dataChanged(index(0), index(rowCount() - 1));
    return;
  }
  beginResetModel();
  results_ = std::move(results);
  endResetModel();
}

int HomebrewPrefixLocationListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(results_.size());
}

QVariant HomebrewPrefixLocationListModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid)) {
    return {};
  }
  const HomebrewPrefixProbeResult& result = results_[static_cast<std::size_t>(index.row())];
  switch (role) {
    case LabelRole:
      return result.label;
    case RelativePathRole:
      return result.relativePath;
    case StatusTextRole:
      return statusText(result);
    case TintRole:
      return tint(result.status);
    case FoundAtTextRole:
      return result.foundAt.isEmpty() ? QString()
                                      : QStringLiteral("Found at ") + sanitizedText(result.foundAt);
    default:
      return {};
  }
}

QHash<int, QByteArray> HomebrewPrefixLocationListModel::roleNames() const {
  return {{LabelRole, "label"},
          {RelativePathRole, "relativePath"},
          {StatusTextRole, "statusText"},
          {TintRole, "tint"},
          {FoundAtTextRole, "foundAtText"}};
}

}  // namespace quillmere

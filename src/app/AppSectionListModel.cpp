#include "app/AppSectionListModel.h"

#include <utility>

namespace quillmere {

int AppSectionListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(allAppSections.size());
}

QVariant AppSectionListModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid)) {
    return {};
  }
  const auto row = static_cast<std::size_t>(index.row());
  const AppSection section = allAppSections[row];
  switch (role) {
    case SectionRole:
      return QString(rawValue(section));
    case TitleRole:
      return QString(title(section));
    case SymbolNameRole:
      return QString(symbolName(section));
    case CountRole:
      return counts_[row].count;
    case CountTextRole:
      return counts_[row].text;
    default:
      return {};
  }
}

QHash<int, QByteArray> AppSectionListModel::roleNames() const {
  return {{SectionRole, "section"},
          {TitleRole, "title"},
          {SymbolNameRole, "symbolName"},
          {CountRole, "count"},
          {CountTextRole, "countText"}};
}

void AppSectionListModel::setCount(AppSection section, int count, const QString& text) {
  const auto row = static_cast<std::size_t>(section);
  Count changed{.count = count, .text = count == 0 ? QString() : text};
  if (counts_[row] == changed) {
    return;
  }
  counts_[row] = std::move(changed);
  const QModelIndex place = index(static_cast<int>(row));
  Q_EMIT dataChanged(place, place, {CountRole, CountTextRole});
}

}  // namespace quillmere

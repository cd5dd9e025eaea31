#include "app/AppSectionListModel.h"

#include "app/AppSection.h"

namespace quillmere {

int AppSectionListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(allAppSections.size());
}

QVariant AppSectionListModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid)) {
    return {};
  }
  const AppSection section = allAppSections[static_cast<std::size_t>(index.row())];
  switch (role) {
    case SectionRole:
      return QString(rawValue(section));
    case TitleRole:
      return QString(title(section));
    case SymbolNameRole:
      return QString(symbolName(section));
    default:
      return {};
  }
}

QHash<int, QByteArray> AppSectionListModel::roleNames() const {
  return {{SectionRole, "section"}, {TitleRole, "title"}, {SymbolNameRole, "symbolName"}};
}

}  // namespace quillmere

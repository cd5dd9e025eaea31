#include "screens/run/OutputSummaryListModel.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

QLatin1StringView tintName(DirectCommandOutputPresentation::Tint tint) {
  switch (tint) {
    case DirectCommandOutputPresentation::Tint::blue:
      return "blue"_L1;
    case DirectCommandOutputPresentation::Tint::green:
      return "green"_L1;
    case DirectCommandOutputPresentation::Tint::red:
      return "red"_L1;
  }
  return {};
}

}  // namespace

int OutputSummaryListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant OutputSummaryListModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
    return {};
  }
  const auto& row = rows_[static_cast<std::size_t>(index.row())];
  switch (role) {
    case Qt::DisplayRole:
    case TitleRole:
      return row.title;
    case DetailRole:
      return row.detail.value_or(QString());
    case SymbolNameRole:
      return row.symbolName;
    case TintRole:
      return QString(tintName(row.tint));
    case ShownTintRole:
      return cancelled_ ? u"neutral"_s : QString(tintName(row.tint));
    default:
      return {};
  }
}

QHash<int, QByteArray> OutputSummaryListModel::roleNames() const {
  return {{TitleRole, "title"},
          {DetailRole, "detail"},
          {SymbolNameRole, "symbolName"},
          {TintRole, "tint"},
          {ShownTintRole, "shownTint"}};
}

void OutputSummaryListModel::setRows(std::vector<DirectCommandOutputPresentation::Row> rows,
                                     bool cancelled) {
  cancelled_ = cancelled;
  const int before = rowCount();
  const int after = static_cast<int>(rows.size());
  if (after < before) {
    beginRemoveRows({}, after, before - 1);
    rows_.resize(rows.size());
    endRemoveRows();
  }
  if (const int kept = std::min(before, after); kept > 0) {
    std::move(rows.begin(), rows.begin() + kept, rows_.begin());
    Q_EMIT dataChanged(index(0), index(kept - 1));
  }
  if (after > before) {
    beginInsertRows({}, before, after - 1);
    rows_.insert(rows_.end(), std::make_move_iterator(rows.begin() + before),
                 std::make_move_iterator(rows.end()));
    endInsertRows();
  }
}

}  // namespace quillmere

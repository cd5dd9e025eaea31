#pragma once

#include <QtCore/QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <algorithm>

namespace quillmere {

/// A list whose rows give way to others all at once, as after a search. The rows in view change
/// their texts instead of being torn down and made anew, which would take longer than a frame. UI
/// thread only.
class ReplaceableListModel : public QAbstractListModel {
  Q_OBJECT
  QML_ANONYMOUS

 public:
  using QAbstractListModel::QAbstractListModel;

 Q_SIGNALS:
  /// Other rows are shown: whoever looks at them begins at the first.
  void rowsReplaced();

 protected:
  /// Puts `count` rows in the place of those that are there; `assign` makes them so.
  template <typename Assign>
  void replaceRows(int count, const Assign& assign) {
    const int before = rowCount();
    if (count < before) {
      beginRemoveRows({}, count, before - 1);
      assign();
      endRemoveRows();
    } else if (count > before) {
      beginInsertRows({}, before, count - 1);
      assign();
      endInsertRows();
    } else {
      assign();
    }
    const int stayed = std::min(before, count);
    if (stayed > 0) {
      Q_EMIT dataChanged(index(0), index(stayed - 1));
    }
    Q_EMIT rowsReplaced();
  }
};

}  // namespace quillmere

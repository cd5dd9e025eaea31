#pragma once

#include <QtCore/QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <vector>

#include "execution/DirectCommandOutputPresentation.h"

namespace quillmere {

/// The rows of a run's summary. Rows that stay as they are keep their place, so that nothing jumps
/// while a run goes on. Owned by the session's view model; UI thread only.
class OutputSummaryListModel : public QAbstractListModel {
  Q_OBJECT
  QML_ANONYMOUS

 public:
  enum Role {
    TitleRole = Qt::UserRole,
    DetailRole,
    SymbolNameRole,
    TintRole,
    /// The tint to draw in, which is the row's but for a run that was cancelled.
    ShownTintRole
  };

  using QAbstractListModel::QAbstractListModel;

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  /// `cancelled`: whether the run was, whose rows are no success.
  void setRows(std::vector<DirectCommandOutputPresentation::Row> rows, bool cancelled = false);

 private:
  std::vector<DirectCommandOutputPresentation::Row> rows_;
  bool cancelled_ = false;
};

}  // namespace quillmere

#pragma once

#include <QtCore/QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include "persistence/CommandHistory.h"

namespace quillmere {

class LocalPersistenceStore;

/// The rows of the history, in the store's order. Follows the store; owned by
/// `CommandHistoryViewModel`; UI thread only.
class CommandHistoryListModel : public QAbstractListModel {
  Q_OBJECT
  QML_ANONYMOUS

 public:
  enum Role {
    CommandRole = Qt::UserRole,
    DetailsRole,
    TimeTextRole,
    ExecutedRole,
    CancelledRole,
    FailedRole,
    OutcomeTextRole,
    AccessibleLabelRole,
  };

  explicit CommandHistoryListModel(const LocalPersistenceStore& store, QObject* parent = nullptr);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

 private:
  void follow();

  const LocalPersistenceStore& store_;
  /// The history as the view knows it. Shares the store's list until the next change.
  CommandHistory records_;
};

/// What a screen reader says of a record.
[[nodiscard]] QString accessibleLabel(const CommandHistoryRecord& record);

}  // namespace quillmere

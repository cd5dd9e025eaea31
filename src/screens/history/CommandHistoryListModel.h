#pragma once

#include <QCoroTask>
#include <QtCore/QLocale>
#include <QtCore/QUuid>
#include <QtQml/qqmlregistration.h>

#include <string>
#include <vector>

#include "persistence/CommandHistory.h"
#include "screens/components/ReplaceableListModel.h"

namespace quillmere {

class LocalPersistenceStore;

/// The rows of the history that match the search, in the store's order. Follows the store; owned by
/// `CommandHistoryViewModel`. Lives on the UI thread; a large history is made ready for its first
/// search on another one.
class CommandHistoryListModel : public quillmere::ReplaceableListModel {
  Q_OBJECT
  QML_ANONYMOUS

 public:
  enum Role {
    CommandRole = Qt::UserRole,
    DetailsRole,
    OutputRole,
    SentenceRole,
    DescriptionRole,
    TimeTextRole,
    ExecutedRole,
    CancelledRole,
    FailedRole,
    OutcomeTextRole,
    AccessibleLabelRole,
  };

  /// Searches in the language of `locale`.
  CommandHistoryListModel(const LocalPersistenceStore& store, const QLocale& locale,
                          QObject* parent = nullptr);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  /// How many records there are, shown or not.
  [[nodiscard]] int recordCount() const { return recordCount_; }

  /// Whether the rows are those that a search found. Not yet while a large history is made ready.
  [[nodiscard]] bool isFiltered() const { return isNarrowed_; }

  /// Makes the records ready to be searched, before the first letter is typed.
  void prepareSearch();

  /// Shows the records whose search text contains `query`; all of them for an empty one.
  void search(QStringView query);

 Q_SIGNALS:
  /// Other records, or others of them shown.
  void changed();

 private:
  void follow();
  void insertInFront(const CommandHistory& now);
  void update();
  [[nodiscard]] std::vector<int> foundRows() const;
  QCoro::Task<> fold();
  [[nodiscard]] bool isFolded() const;
  void remember(const CommandHistory& now);
  [[nodiscard]] const CommandHistoryRecord* at(int row) const;

  const LocalPersistenceStore& store_;
  QLocale locale_;
  /// What the view knows of the store's list: how many records, and which stand at its ends. Not
  /// the list itself, which the store would have to copy to put a record in front.
  int recordCount_ = 0;
  QUuid newest_;
  QUuid oldest_;
  /// The records' search texts in searchable form, made at the first search: folding takes much
  /// longer than searching.
  std::vector<std::string> folded_;
  bool isFolding_ = false;
  /// Counts the histories that took the place of another: what was folded of one is of no use for
  /// the next.
  int history_ = 0;
  /// In searchable form.
  std::string query_;
  bool isNarrowed_ = false;
  /// Which records the rows are while they are narrowed.
  std::vector<int> rows_;
};

/// What a screen reader says of a record.
[[nodiscard]] QString accessibleLabel(const CommandHistoryRecord& record);

/// What a record is found by.
[[nodiscard]] QString searchText(const CommandHistoryRecord& record);

}  // namespace quillmere

#include "screens/CommandHistoryListModel.h"

#include "persistence/LocalPersistenceStore.h"
#include "platform/DateTexts.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

/// When what the record tells of happened: the end of a run, or the copy.
QString timeText(const CommandHistoryRecord& record) {
  return dateText(record.executed ? record.executionEndedAt.value_or(record.copiedAt)
                                  : record.copiedAt);
}

bool cancelled(const CommandHistoryRecord& record) {
  return record.executionCancelled.value_or(false);
}

bool failed(const CommandHistoryRecord& record) {
  return record.executed && !cancelled(record) && record.executionExitCode.value_or(0) != 0;
}

/// What the command was for and where it was offered, as far as the record tells.
QString details(const CommandHistoryRecord& record) {
  QStringList parts{"Operation "_L1 + record.operationType};
  parts << record.packageTarget.value_or(QString()) << record.sourceScreen.value_or(QString());
  parts.removeAll(QString());
  return parts.join(QStringLiteral("  \u00b7  "));
}

QString outcomeText(const CommandHistoryRecord& record) {
  if (!record.executed) {
    return QStringLiteral("Copied");
  }
  return failed(record) ? QStringLiteral("Exit code %1").arg(record.executionExitCode.value_or(0))
                        : QStringLiteral("Executed");
}

}  // namespace

QString accessibleLabel(const CommandHistoryRecord& record) {
  return "Command "_L1 + record.command + ", operation "_L1 + record.operationType +
         ", target "_L1 + record.packageTarget.value_or("no target"_L1) + ", source "_L1 +
         record.sourceScreen.value_or("unknown source"_L1) +
         (record.executed ? ", executed "_L1 : ", copied "_L1) + timeText(record);
}

CommandHistoryListModel::CommandHistoryListModel(const LocalPersistenceStore& store,
                                                 QObject* parent)
    : QAbstractListModel(parent), store_(store), records_(store.commandHistory()) {
  connect(&store_, &LocalPersistenceStore::commandHistoryChanged, this,
          &CommandHistoryListModel::follow);
}

int CommandHistoryListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(records_.size());
}

QVariant CommandHistoryListModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid)) {
    return {};
  }
  const CommandHistoryRecord& record = records_[index.row()];
  switch (role) {
    case CommandRole:
      return record.command;
    case DetailsRole:
      return details(record);
    case TimeTextRole:
      return timeText(record);
    case ExecutedRole:
      return record.executed;
    case CancelledRole:
      return cancelled(record);
    case FailedRole:
      return failed(record);
    case OutcomeTextRole:
      return outcomeText(record);
    case AccessibleLabelRole:
      return accessibleLabel(record);
    default:
      return {};
  }
}

QHash<int, QByteArray> CommandHistoryListModel::roleNames() const {
  return {{CommandRole, "command"},         {DetailsRole, "details"},
          {TimeTextRole, "timeText"},       {ExecutedRole, "executed"},
          {CancelledRole, "cancelled"},     {FailedRole, "failed"},
          {OutcomeTextRole, "outcomeText"}, {AccessibleLabelRole, "accessibleLabel"}};
}

/// A new record goes in front of the rest: the rows that are there stay where the user sees them.
void CommandHistoryListModel::follow() {
  const CommandHistory& now = store_.commandHistory();
  const bool oneInFront = now.size() == records_.size() + 1 &&
                          (records_.isEmpty() || (now[1].id == records_.first().id &&
                                                  now.last().id == records_.last().id));
  if (oneInFront) {
    beginInsertRows({}, 0, 0);
    records_ = now;
    endInsertRows();
    return;
  }
  beginResetModel();
  records_ = now;
  endResetModel();
}

}  // namespace quillmere

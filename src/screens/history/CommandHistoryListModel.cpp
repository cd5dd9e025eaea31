#include "screens/history/CommandHistoryListModel.h"

#include <QCoroFuture>
#include <QtConcurrent/QtConcurrentRun>
#include <QtCore/QPointer>

#include <algorithm>
#include <iterator>
#include <utility>

#include "persistence/LocalPersistenceStore.h"
#include "platform/BackgroundThreads.h"
#include "platform/DateTexts.h"
#include "platform/SanitizedText.h"
#include "platform/TextMatching.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

/// As many records as are folded before anybody notices.
constexpr qsizetype foldedAtOnce = 200;

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
  return sanitizedText(parts.join(QStringLiteral("  \u00b7  ")));
}

QString outcomeText(const CommandHistoryRecord& record) {
  if (!record.executed) {
    return QStringLiteral("Copied");
  }
  return failed(record) ? QStringLiteral("Exit code %1").arg(record.executionExitCode.value_or(0))
                        : QStringLiteral("Executed");
}

/// What a run said, in one line.
QString output(const CommandHistoryRecord& record) {
  return sanitizedText(record.executionOutputSummary.value_or(QString()).simplified());
}

/// What came of a run, where the record says it.
QString sentence(const CommandHistoryRecord& record) {
  return sanitizedText(record.executionOutcome.value_or(QString()).simplified());
}

/// How a record came to be and what came of it, for those who do not see the row.
QString description(const CommandHistoryRecord& record) {
  QString how = cancelled(record) ? QStringLiteral("Cancelled") : outcomeText(record);
  const QString what = sentence(record);
  if (what.isEmpty()) {
    return how;
  }
  return what.startsWith(how) ? what : how + ". "_L1 + what;
}

std::string foldedSearchText(const CommandHistoryRecord& record, const QLocale& locale) {
  return searchableForm(searchText(record), locale);
}

std::vector<std::string> foldedSearchTexts(const CommandHistory& records, const QLocale& locale) {
  std::vector<std::string> folded(static_cast<std::size_t>(records.size()));
  std::ranges::transform(records, folded.begin(), [&locale](const CommandHistoryRecord& record) {
    return foldedSearchText(record, locale);
  });
  return folded;
}

}  // namespace

QString searchText(const CommandHistoryRecord& record) {
  const auto& exitCode = record.executionExitCode;
  return QStringList{record.command,
                     record.operationType,
                     record.packageTarget.value_or(QString()),
                     record.sourceScreen.value_or(QString()),
                     record.copied ? "copied"_L1 : "not copied"_L1,
                     record.executed ? "executed"_L1 : "not executed"_L1,
                     exitCode ? QString::number(*exitCode) : QString(),
                     cancelled(record) ? "cancelled"_L1 : ""_L1,
                     record.executionOutputSummary.value_or(QString())}
      .join(u' ');
}

QString accessibleLabel(const CommandHistoryRecord& record) {
  return "Command "_L1 + sanitizedText(record.command) + ", operation "_L1 +
         sanitizedText(record.operationType) + ", target "_L1 +
         sanitizedText(record.packageTarget.value_or("no target"_L1)) + ", source "_L1 +
         sanitizedText(record.sourceScreen.value_or("unknown source"_L1)) +
         (record.executed ? ", executed "_L1 : ", copied "_L1) + timeText(record);
}

CommandHistoryListModel::CommandHistoryListModel(const LocalPersistenceStore& store,
                                                 const QLocale& locale, QObject* parent)
    : ReplaceableListModel(parent), store_(store), locale_(locale) {
  if (store_.isHistoryLoaded()) {
    remember(store_.commandHistory());
  }
  connect(&store_, &LocalPersistenceStore::commandHistoryChanged, this,
          &CommandHistoryListModel::follow);
}

int CommandHistoryListModel::rowCount(const QModelIndex& parent) const {
  if (parent.isValid()) {
    return 0;
  }
  return isNarrowed_ ? static_cast<int>(rows_.size()) : recordCount();
}

QVariant CommandHistoryListModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid)) {
    return {};
  }
  const CommandHistoryRecord* const found = at(index.row());
  if (found == nullptr) {
    return {};
  }
  const CommandHistoryRecord& record = *found;
  switch (role) {
    case CommandRole:
      return sanitizedText(record.command);
    case DetailsRole:
      return details(record);
    case OutputRole:
      return output(record);
    case SentenceRole:
      return sentence(record);
    case DescriptionRole:
      return description(record);
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
  return {{CommandRole, "command"},
          {DetailsRole, "details"},
          {OutputRole, "output"},
          {SentenceRole, "sentence"},
          {DescriptionRole, "description"},
          {TimeTextRole, "timeText"},
          {ExecutedRole, "executed"},
          {CancelledRole, "cancelled"},
          {FailedRole, "failed"},
          {OutcomeTextRole, "outcomeText"},
          {AccessibleLabelRole, "accessibleLabel"}};
}

void CommandHistoryListModel::search(QStringView query) {
  std::string folded = searchableForm(query, locale_);
  if (folded == query_) {
    return;
  }
  query_ = std::move(folded);
  update();
}

void CommandHistoryListModel::prepareSearch() {
  if (!isFolded()) {
    fold();
  }
}

void CommandHistoryListModel::follow() {
  const CommandHistory& now = store_.commandHistory();
  const bool oneInFront = now.size() == recordCount_ + 1 &&
                          (recordCount_ == 0 || (now[1].id == newest_ && now.last().id == oldest_));
  if (oneInFront) {
    insertInFront(now);
    Q_EMIT changed();
    return;
  }
  ++history_;
  folded_.clear();
  replaceRows(static_cast<int>(now.size()), [this, &now] {
    remember(now);
    isNarrowed_ = false;
  });
  update();
}

/// The rows that are there stay where the user sees them.
void CommandHistoryListModel::insertInFront(const CommandHistory& now) {
  if (isFolded()) {
    folded_.insert(folded_.begin(), foldedSearchText(now.first(), locale_));
  }
  const bool isShown = !isNarrowed_ || containsSearchable(folded_.front(), query_);
  if (isShown) {
    beginInsertRows({}, 0, 0);
  }
  remember(now);
  rows_ = isNarrowed_ ? foundRows() : std::vector<int>();
  if (isShown) {
    endInsertRows();
  }
}

/// Shows what the query finds, or goes on showing what it showed until it can.
void CommandHistoryListModel::update() {
  const bool narrows = !query_.empty();
  if (narrows && !isFolded() && recordCount_ > foldedAtOnce) {
    fold();
    return;
  }
  if (narrows && !isFolded()) {
    folded_ = foldedSearchTexts(store_.commandHistory(), locale_);
  }
  std::vector<int> rows = narrows ? foundRows() : std::vector<int>();
  const int count = narrows ? static_cast<int>(rows.size()) : recordCount();
  replaceRows(count, [&] {
    isNarrowed_ = narrows;
    rows_ = std::move(rows);
  });
  Q_EMIT changed();
}

std::vector<int> CommandHistoryListModel::foundRows() const {
  std::vector<int> rows;
  for (int row = 0; row < recordCount(); ++row) {
    if (containsSearchable(folded_[static_cast<std::size_t>(row)], query_)) {
      rows.push_back(row);
    }
  }
  return rows;
}

QCoro::Task<> CommandHistoryListModel::fold() {
  if (std::exchange(isFolding_, true)) {
    co_return;
  }
  const QPointer<CommandHistoryListModel> self(this);
  const int history = history_;
  const QFuture<std::vector<std::string>> folding =
      QtConcurrent::run(backgroundThreads(), &foldedSearchTexts, store_.commandHistory(), locale_);
  std::vector<std::string> folded = co_await folding;
  if (!self) {
    co_return;
  }
  isFolding_ = false;
  if (history == history_) {
    // Records that came meanwhile stand in front.
    const CommandHistory added = store_.commandHistory().first(recordCount_ - std::ssize(folded));
    std::vector<std::string> inFront = foldedSearchTexts(added, locale_);
    inFront.insert(inFront.end(), std::make_move_iterator(folded.begin()),
                   std::make_move_iterator(folded.end()));
    folded_ = std::move(inFront);
  }
  if (!query_.empty()) {
    update();
  }
}

bool CommandHistoryListModel::isFolded() const {
  return std::ssize(folded_) == recordCount_;
}

void CommandHistoryListModel::remember(const CommandHistory& now) {
  recordCount_ = static_cast<int>(now.size());
  newest_ = now.isEmpty() ? QUuid() : now.first().id;
  oldest_ = now.isEmpty() ? QUuid() : now.last().id;
}

/// The record in a row; null for one that has just gone. What the view does not know yet stands in
/// front.
const CommandHistoryRecord* CommandHistoryListModel::at(int row) const {
  const CommandHistory& records = store_.commandHistory();
  const qsizetype place =
      records.size() - recordCount_ + (isNarrowed_ ? rows_[static_cast<std::size_t>(row)] : row);
  return place >= 0 && place < records.size() ? &records[place] : nullptr;
}

}  // namespace quillmere

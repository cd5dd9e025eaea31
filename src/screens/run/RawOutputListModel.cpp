#include "screens/run/RawOutputListModel.h"

#include <QtCore/QStringList>

#include <algorithm>
#include <utility>

#include "platform/TerminalText.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

/// What stands beside a line that is not standard output, so that its stream is told by more than
/// its colour.
QLatin1StringView marker(DirectExecutionOutputStream stream) {
  switch (stream) {
    case DirectExecutionOutputStream::standardOutput:
      return ""_L1;
    case DirectExecutionOutputStream::standardError:
      return "err"_L1;
    case DirectExecutionOutputStream::diagnostic:
      return "app"_L1;
  }
  return {};
}

}  // namespace

int RawOutputListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : closedRows_ + (openLine_ ? 1 : 0);
}

QVariant RawOutputListModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
    return {};
  }
  const auto [lines, place] = find(index.row());
  switch (role) {
    case Qt::DisplayRole:
    case TextRole:
      return terminalText(lines->line(place));
    case StreamRole:
      return QString(rawValue(lines->stream));
    case MarkerRole:
      return QString(marker(lines->stream));
    default:
      return {};
  }
}

QHash<int, QByteArray> RawOutputListModel::roleNames() const {
  return {{TextRole, "text"}, {StreamRole, "stream"}, {MarkerRole, "marker"}};
}

void RawOutputListModel::append(std::vector<OutputLines> lines,
                                std::optional<OutputLines> unfinishedLine) {
  const int rowsBefore = rowCount();
  const bool wasOpen = openLine_.has_value();
  int closedRows = closedRows_;
  for (const OutputLines& each : lines) {
    closedRows += static_cast<int>(each.count());
  }
  const int rowsAfter = closedRows + (unfinishedLine ? 1 : 0);
  const int rowOfOpenLine = closedRows_;
  const auto store = [&] {
    for (OutputLines& each : lines) {
      const int count = static_cast<int>(each.count());
      blocks_.push_back({closedRows_, std::move(each)});
      closedRows_ += count;
    }
    openLine_ = std::move(unfinishedLine);
  };
  // An open line never vanishes: it grows, or it is the first of the lines that were completed.
  if (rowsAfter > rowsBefore) {
    beginInsertRows({}, rowsBefore, rowsAfter - 1);
    store();
    endInsertRows();
  } else {
    store();
  }
  if (wasOpen) {
    const QModelIndex changed = index(rowOfOpenLine);
    Q_EMIT dataChanged(changed, changed);
  }
}

QString RawOutputListModel::text(int first, int last) const {
  QStringList texts;
  for (int row = std::max(first, 0); row <= std::min(last, rowCount() - 1); ++row) {
    const auto [lines, place] = find(row);
    texts += terminalText(lines->line(place));
  }
  return texts.join(u'\n');
}

std::pair<const OutputLines*, qsizetype> RawOutputListModel::find(int row) const {
  if (openLine_ && row >= closedRows_) {
    return {&*openLine_, 0};
  }
  const auto next = std::ranges::upper_bound(blocks_, row, {}, &Block::firstRow);
  const Block& block = *std::prev(next);
  return {&block.lines, row - block.firstRow};
}

}  // namespace quillmere

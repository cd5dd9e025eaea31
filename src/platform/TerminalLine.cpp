#include "platform/TerminalLine.h"

#include <algorithm>
#include <limits>

namespace quillmere {
namespace {

/// How far the cursor can move beyond the text.
constexpr qsizetype maxBlanks = 512;
/// A longer character takes no more marks once another was written: moving it in the pool for each
/// mark would cost the square of their number.
constexpr qsizetype maxMovedLength = 32;

}  // namespace

void TerminalLine::put(QStringView character) {
  const Cell cell{.begin = pool_.size(), .length = character.size(), .writtenAt = now()};
  pool_ += character;
  if (column() >= cells_.size()) {
    cells_.resize(column() + 1);
  }
  cells_[column()] = cell;
  ++column_;
}

void TerminalLine::putUnits(QStringView units) {
  const auto count = static_cast<std::size_t>(units.size());
  const qsizetype begin = pool_.size();
  pool_ += units;
  cells_.resize(std::max(cells_.size(), column() + count));
  for (std::size_t i = 0; i < count; ++i) {
    cells_[column() + i] = {.begin = begin + qsizetype(i), .length = 1, .writtenAt = now()};
  }
  column_ += units.size();
}

void TerminalLine::attach(QStringView mark) {
  if (column_ == 0 || column() > cells_.size()) {
    put(mark);
    return;
  }
  Cell& cell = cells_[column() - 1];
  if (cell.begin + cell.length != pool_.size()) {
    if (cell.length > maxMovedLength) {
      return;
    }
    const QString moved = pool_.sliced(cell.begin, cell.length);
    cell.begin = pool_.size();
    pool_ += moved;
  }
  pool_ += mark;
  cell.length += mark.size();
}

void TerminalLine::moveTo(qsizetype column) {
  column_ = std::clamp<qsizetype>(column, 0, std::max<qsizetype>(std::ssize(cells_), maxBlanks));
}

void TerminalLine::eraseToEnd() {
  cells_.resize(std::min(column(), cells_.size()));
}

void TerminalLine::eraseToStart() {
  erasures_.push_back({.lastColumn = column_, .erasedAt = now()});
}

void TerminalLine::eraseAll() {
  erasures_.push_back({.lastColumn = std::numeric_limits<qsizetype>::max(), .erasedAt = now()});
}

QString TerminalLine::takeText() {
  blankErased();
  while (!cells_.empty() && cells_.back().length == 0) {
    cells_.pop_back();
  }
  QString text;
  text.reserve(pool_.size());
  for (const Cell& cell : cells_) {
    text +=
        cell.length == 0 ? QStringView(u" ") : QStringView(pool_).sliced(cell.begin, cell.length);
  }
  return text;
}

/// From the last column to the first, the latest of the erasures that reach the column decides.
void TerminalLine::blankErased() {
  std::ranges::sort(erasures_, {}, &Erasure::lastColumn);
  qsizetype latest = -1;
  for (qsizetype column = std::ssize(cells_) - 1; column >= 0; --column) {
    for (; !erasures_.empty() && erasures_.back().lastColumn >= column; erasures_.pop_back()) {
      latest = std::max(latest, erasures_.back().erasedAt);
    }
    Cell& cell = cells_[static_cast<std::size_t>(column)];
    if (cell.writtenAt <= latest) {
      cell.length = 0;
    }
  }
}

}  // namespace quillmere

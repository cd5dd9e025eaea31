#pragma once

#include <QtCore/QString>
#include <QtCore/QStringView>

#include <cstddef>
#include <iterator>
#include <vector>

namespace quillmere {

/// One line of a terminal: what was written into which column, and what was erased since. Every
/// operation but the last takes constant time, however wide the line is, so that no output can be
/// made to cost more than its length. Used by one thread.
class TerminalLine {
 public:
  /// Writes one character at the cursor, which goes on by one column.
  void put(QStringView character);
  /// Writes characters that are one UTF-16 unit wide each.
  void putUnits(QStringView units);
  /// Adds what has no width of its own to the character before the cursor.
  void attach(QStringView mark);

  /// Moves the cursor, not left of the first column. Blanks come into being only within the width
  /// that a terminal may have.
  void moveTo(qsizetype column);

  void moveBy(qsizetype columns) { moveTo(column_ + columns); }

  void eraseToEnd();
  void eraseToStart();
  void eraseAll();

  /// What stands, from the first column to the last one that holds anything. The line is done with.
  [[nodiscard]] QString takeText();

 private:
  /// A column: a character with its marks, as a part of the pool; blank when it has no length.
  struct Cell {
    qsizetype begin = 0;
    qsizetype length = 0;
    qsizetype writtenAt = 0;
  };

  struct Erasure {
    qsizetype lastColumn = 0;
    qsizetype erasedAt = 0;
  };

  [[nodiscard]] std::size_t column() const { return static_cast<std::size_t>(column_); }

  /// Erasures are the ticks of this clock: a character is erased by those that come after it.
  [[nodiscard]] qsizetype now() const { return std::ssize(erasures_); }

  void blankErased();

  QString pool_;
  std::vector<Cell> cells_;
  std::vector<Erasure> erasures_;
  qsizetype column_ = 0;
};

}  // namespace quillmere

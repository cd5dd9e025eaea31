#include "platform/TerminalText.h"

#include <QtCore/QStringDecoder>

#include <algorithm>
#include <limits>
#include <vector>

namespace quillmere {
namespace {

constexpr char16_t escape = u'\x1b';
constexpr char16_t bell = u'\x07';

constexpr bool isControl(char32_t code) {
  return code < 0x20 || (code >= 0x7f && code < 0xa0);
}

constexpr bool isBetween(QChar character, char16_t first, char16_t last) {
  return character >= first && character <= last;
}

/// Whether a terminal would do anything with `line` but show it.
bool needsTerminal(QByteArrayView line) {
  for (qsizetype i = 0; i < line.size(); ++i) {
    const auto byte = static_cast<quint8>(line[i]);
    const bool isSecondControlSet =
        byte == 0xC2 && i + 1 < line.size() && static_cast<quint8>(line[i + 1]) < 0xA0;
    if ((byte < 0x20 && byte != '\t') || byte == 0x7F || isSecondControlSet) {
      return true;
    }
  }
  return false;
}

/// Unlike QString::fromUtf8, which drops a byte order mark that other text may have put first.
QString decoded(QByteArrayView line) {
  QStringDecoder decoder(QStringDecoder::Utf8,
                         QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
  return decoder.decode(line);
}

/// One line of a terminal: what was written into which column, and what was erased since. Every
/// operation takes constant time, however wide the line is, so that no output can be made to cost
/// more than its length.
class Line {
 public:
  void put(QStringView character) {
    const Cell cell{.begin = pool_.size(), .length = character.size(), .writtenAt = now()};
    pool_ += character;
    if (column() >= cells_.size()) {
      cells_.resize(column() + 1);
    }
    cells_[column()] = cell;
    ++column_;
  }

  /// Puts characters that are one UTF-16 unit wide each.
  void putUnits(QStringView units) {
    const auto count = static_cast<std::size_t>(units.size());
    const qsizetype begin = pool_.size();
    pool_ += units;
    cells_.resize(std::max(cells_.size(), column() + count));
    for (std::size_t i = 0; i < count; ++i) {
      cells_[column() + i] = {.begin = begin + qsizetype(i), .length = 1, .writtenAt = now()};
    }
    column_ += units.size();
  }

  /// Adds what has no width of its own to the character before the cursor.
  void attach(QStringView mark) {
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

  /// Blanks come into being only within the width that a terminal may have.
  void moveTo(qsizetype column) {
    column_ = std::clamp<qsizetype>(column, 0, std::max<qsizetype>(std::ssize(cells_), maxBlanks));
  }

  void moveBy(qsizetype columns) { moveTo(column_ + columns); }

  void eraseToEnd() { cells_.resize(std::min(column(), cells_.size())); }

  void eraseToStart() { erasures_.push_back({.lastColumn = column_, .erasedAt = now()}); }

  void eraseAll() {
    erasures_.push_back({.lastColumn = std::numeric_limits<qsizetype>::max(), .erasedAt = now()});
  }

  /// What stands, from the first column to the last one that holds anything. The line is done with.
  [[nodiscard]] QString takeText() {
    erase();
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

  static constexpr qsizetype maxBlanks = 512;
  static constexpr qsizetype maxMovedLength = 32;

  [[nodiscard]] std::size_t column() const { return static_cast<std::size_t>(column_); }

  /// Erasures are the ticks of this clock: a character is erased by those that come after it.
  [[nodiscard]] qsizetype now() const { return std::ssize(erasures_); }

  /// Makes the erased columns blank. From the last column to the first, the latest of the erasures
  /// that reach the column decides.
  void erase() {
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

  QString pool_;
  std::vector<Cell> cells_;
  std::vector<Erasure> erasures_;
  qsizetype column_ = 0;
};

/// A control sequence without its introducer: parameters, intermediates and the final character.
struct ControlSequence {
  QStringView parameters;
  QStringView intermediates;
  /// Null for one that is cut off or broken.
  QChar final;

  [[nodiscard]] bool isPlain() const {
    return intermediates.isEmpty() && std::ranges::all_of(parameters, [](QChar character) {
             return isBetween(character, u'0', u';');
           });
  }

  /// The first parameter, absent ones and huge ones made harmless.
  [[nodiscard]] qsizetype parameter(qsizetype whenAbsent) const {
    const qsizetype end = parameters.indexOf(u';');
    const QStringView digits = end < 0 ? parameters : parameters.first(end);
    if (digits.isEmpty()) {
      return whenAbsent;
    }
    bool fits = false;
    const int number = digits.toInt(&fits);
    return fits ? number : std::numeric_limits<int>::max();
  }
};

/// Reads a line from its beginning to its end and has it written.
class LineReader {
 public:
  explicit LineReader(QStringView text) : rest_(text) {}

  QString standingText() {
    while (!rest_.isEmpty()) {
      if (const QStringView ascii = joins_ ? QStringView() : takeWhile(u' ', u'~');
          !ascii.isEmpty()) {
        line_.putUnits(ascii);
      } else {
        readCharacter();
      }
    }
    return line_.takeText();
  }

 private:
  QStringView take(qsizetype length) {
    const QStringView taken = rest_.first(length);
    rest_ = rest_.sliced(length);
    return taken;
  }

  QStringView takeWhile(char16_t first, char16_t last) {
    const auto* const end = std::ranges::find_if_not(
        rest_, [=](QChar character) { return isBetween(character, first, last); });
    return take(end - rest_.begin());
  }

  void readCharacter() {
    const bool isPair = rest_.size() > 1 && rest_[0].isHighSurrogate();
    const QStringView character = take(isPair ? 2 : 1);
    const char32_t code = isPair ? QChar::surrogateToUcs4(character[0], character[1])
                                 : char32_t(character[0].unicode());
    if (code == escape) {
      readEscape();
    } else if (code == '\r') {
      line_.moveTo(0);
    } else if (code == '\b') {
      line_.moveBy(-1);
    } else if (code == '\t' || !isControl(code)) {
      write(character, code);
    }
  }

  void write(QStringView character, char32_t code) {
    constexpr char32_t zeroWidthJoiner = 0x200D;
    const bool hasNoWidth = QChar::isMark(code) || QChar::category(code) == QChar::Other_Format;
    if (hasNoWidth || joins_) {
      line_.attach(character);
    } else {
      line_.put(character);
    }
    joins_ = code == zeroWidthJoiner;
  }

  void readEscape() {
    joins_ = false;
    if (rest_.isEmpty()) {
      return;
    }
    const QChar kind = rest_.front();
    if (kind == u'[') {
      take(1);
      readControlSequence();
    } else if (QStringView(u"]PX^_").contains(kind)) {
      take(1);
      skipString();
    } else {
      takeWhile(u' ', u'/');
      skipOneBetween(u'0', u'~');
    }
  }

  void readControlSequence() {
    ControlSequence sequence;
    sequence.parameters = takeWhile(u'0', u'?');
    sequence.intermediates = takeWhile(u' ', u'/');
    if (const QStringView final = skipOneBetween(u'@', u'~'); !final.isEmpty()) {
      sequence.final = final.front();
    }
    if (sequence.isPlain()) {
      obey(sequence);
    }
  }

  void obey(const ControlSequence& sequence) {
    switch (sequence.final.unicode()) {
      case u'C':
        return line_.moveBy(std::max<qsizetype>(1, sequence.parameter(1)));
      case u'D':
        return line_.moveBy(-std::max<qsizetype>(1, sequence.parameter(1)));
      case u'G':
        return line_.moveTo(sequence.parameter(1) - 1);
      case u'K':
        return erase(sequence.parameter(0));
      default:
        return;
    }
  }

  void erase(qsizetype what) {
    switch (what) {
      case 0:
        return line_.eraseToEnd();
      case 1:
        return line_.eraseToStart();
      case 2:
        return line_.eraseAll();
      default:
        return;
    }
  }

  /// A string for the terminal itself, such as a title or the address of a link. The escape
  /// character that ends it begins the next sequence.
  void skipString() {
    const auto* const end = std::ranges::find_if(
        rest_, [](QChar character) { return character == bell || character == escape; });
    take(end - rest_.begin());
    if (!rest_.isEmpty() && rest_.front() == bell) {
      take(1);
    }
  }

  QStringView skipOneBetween(char16_t first, char16_t last) {
    const bool isThere = !rest_.isEmpty() && isBetween(rest_.front(), first, last);
    return take(isThere ? 1 : 0);
  }

  QStringView rest_;
  Line line_;
  /// Whether the next character becomes one with the last one.
  bool joins_ = false;
};

}  // namespace

QString standingText(QByteArrayView line) {
  const QString text = decoded(line);
  return needsTerminal(line) ? LineReader(text).standingText() : text;
}

}  // namespace quillmere

#include "platform/TerminalText.h"

#include <QtCore/QStringDecoder>

#include <algorithm>
#include <limits>

#include "platform/TerminalLine.h"

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

  QString terminalText() {
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
  TerminalLine line_;
  /// Whether the next character becomes one with the last one.
  bool joins_ = false;
};

}  // namespace

QString terminalText(QByteArrayView line) {
  const QString text = decoded(line);
  return needsTerminal(line) ? LineReader(text).terminalText() : text;
}

}  // namespace quillmere

#include "execution/OutputDigest.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

#include "platform/TerminalText.h"

namespace quillmere {
namespace {

constexpr qsizetype maxNotableLines = 6;
constexpr qsizetype maxServiceLines = 6;

enum class Interest { firstLines, change, services };

constexpr Interest interestOf(BrewCommandOperation operation) {
  switch (operation) {
    case BrewCommandOperation::install:
    case BrewCommandOperation::uninstall:
    case BrewCommandOperation::update:
    case BrewCommandOperation::upgrade:
    case BrewCommandOperation::cleanup:
      return Interest::change;
    case BrewCommandOperation::servicesList:
      return Interest::services;
    case BrewCommandOperation::info:
    case BrewCommandOperation::outdated:
    case BrewCommandOperation::dependencies:
    case BrewCommandOperation::reverseDependencies:
    case BrewCommandOperation::doctor:
      break;
  }
  return Interest::firstLines;
}

/// How many lines the rows of an operation quote from the beginning of its output.
constexpr qsizetype maxFirstLines(BrewCommandOperation operation) {
  switch (operation) {
    case BrewCommandOperation::info:
      return 6;
    case BrewCommandOperation::doctor:
      return 5;
    case BrewCommandOperation::outdated:
    case BrewCommandOperation::dependencies:
    case BrewCommandOperation::reverseDependencies:
      return 8;
    case BrewCommandOperation::servicesList:
      return 0;
    case BrewCommandOperation::install:
    case BrewCommandOperation::uninstall:
    case BrewCommandOperation::update:
    case BrewCommandOperation::upgrade:
    case BrewCommandOperation::cleanup:
      break;
  }
  return 4;
}

/// What makes a line notable, in lower case.
constexpr std::array<std::string_view, 9> notableWords{"==>",     "error",     "warning",
                                                       "already", "installed", "upgraded",
                                                       "removed", "deleted",   "downloaded"};

/// Two characters in a row, rare in other lines, of which each of those words has a pair.
constexpr std::array<std::string_view, 5> notablePairs{"=>", "rr", "rn", "lr", "ed"};

constexpr bool hasNotablePair(std::string_view word) {
  return std::ranges::any_of(notablePairs,
                             [word](std::string_view pair) { return word.contains(pair); });
}

static_assert(std::ranges::all_of(notableWords, hasNotablePair));

/// Lower-cases ASCII letters; the other characters of the pairs stay.
constexpr std::uint8_t loweredBit(char character) {
  return static_cast<std::uint8_t>(static_cast<std::uint8_t>(character) | 0x20);
}

static_assert(std::ranges::all_of(notablePairs, [](std::string_view pair) {
  return std::ranges::all_of(pair, [](char c) { return loweredBit(c) == std::uint8_t(c); });
}));

/// `line` is UTF-8. The words are ASCII, and no other letter becomes one of theirs when it is
/// lower-cased.
bool isNotable(QByteArrayView line) {
  const QByteArray lowered = line.toByteArray().toLower();
  const std::string_view text(lowered.constData(), static_cast<std::size_t>(lowered.size()));
  return std::ranges::any_of(notableWords,
                             [text](std::string_view word) { return text.contains(word); });
}

/// False only where `isNotable` is false: whether one of the pairs occurs. Without a branch, so
/// that the compiler may look at many characters at a time; nearly all lines of a long build log
/// end here.
bool mayBeNotable(QByteArrayView line) {
  std::uint8_t found = 0;
  for (qsizetype i = 0; i + 1 < line.size(); ++i) {
    const std::uint8_t first = loweredBit(line.data()[i]);
    const std::uint8_t second = loweredBit(line.data()[i + 1]);
    for (const std::string_view pair : notablePairs) {
      const std::uint8_t isFirst = first == std::uint8_t(pair[0]);
      const std::uint8_t isSecond = second == std::uint8_t(pair[1]);
      found |= std::uint8_t(isFirst & isSecond);
    }
  }
  return found != 0;
}

/// Whether a terminal would show `line` as it is, one column for each byte.
bool isPlain(QByteArrayView line) {
  std::uint8_t found = 0;
  for (const char character : line) {
    const auto byte = static_cast<std::uint8_t>(character);
    found |= std::uint8_t(((byte < 0x20) & (byte != '\t')) | (byte >= 0x7F));
  }
  return found == 0;
}

/// Whether `line`, which is plain, shows anything.
bool hasInk(QByteArrayView line) {
  return std::ranges::any_of(line, [](char character) { return character > ' '; });
}

QByteArrayView withoutTrailingCarriageReturn(QByteArrayView line) {
  return line.endsWith('\r') ? line.chopped(1) : line;
}

/// The length of the line break at the beginning of `text`, zero where there is none. A carriage
/// return is none: a terminal goes on in the same line.
qsizetype lineBreakLength(QByteArrayView text) {
  if (text.front() >= '\n' && text.front() <= '\f') {
    return 1;
  }
  static constexpr std::array breaks{QByteArrayView("\xC2\x85"), QByteArrayView("\xE2\x80\xA8"),
                                     QByteArrayView("\xE2\x80\xA9")};
  const auto* const found =
      std::ranges::find_if(breaks, [text](QByteArrayView b) { return text.startsWith(b); });
  return found == breaks.end() ? 0 : found->size();
}

void appendFirst(QStringList& list, const QStringList& more, qsizetype limit) {
  list += more.first(std::clamp<qsizetype>(limit - list.size(), 0, more.size()));
}

}  // namespace

void OutputDigest::addLine(QStringView line) {
  const QStringView trimmed = line.trimmed();
  if (trimmed.isEmpty()) {
    return;
  }
  ++lineCount_;
  if (firstLines_.size() < maxFirstLines(operation_)) {
    firstLines_ += trimmed.toString();
  }
  const Interest interest = interestOf(operation_);
  if (interest == Interest::services) {
    addServiceLine(trimmed);
  } else if (interest == Interest::change && notableLines_.size() < maxNotableLines &&
             isNotable(trimmed.toUtf8())) {
    notableLines_ += trimmed.toString();
  }
}

void OutputDigest::addServiceLine(QStringView line) {
  const auto has = [line](QLatin1StringView word) {
    return line.contains(word, Qt::CaseInsensitive);
  };
  if (has(QLatin1StringView("name")) && has(QLatin1StringView("status"))) {
    return;
  }
  ++serviceCount_;
  startedCount_ += has(QLatin1StringView("started")) ? 1 : 0;
  stoppedCount_ += has(QLatin1StringView("stopped")) ? 1 : 0;
  if (firstServiceLines_.size() < maxServiceLines) {
    firstServiceLines_ += line.toString();
  }
}

void OutputDigest::addOutputLine(QByteArrayView line) {
  const QByteArrayView shown = withoutTrailingCarriageReturn(line);
  if (isPlain(shown) && !mayQuote(shown)) {
    lineCount_ += hasInk(shown) ? 1 : 0;
    return;
  }
  qsizetype begin = 0;
  for (qsizetype end = 0; end < line.size();) {
    const qsizetype length = lineBreakLength(line.sliced(end));
    if (length > 0) {
      addLine(terminalText(line.sliced(begin, end - begin)));
      begin = end + length;
    }
    end += std::max<qsizetype>(length, 1);
  }
  addLine(terminalText(line.sliced(begin)));
}

bool OutputDigest::mayQuote(QByteArrayView plainLine) const {
  if (firstLines_.size() < maxFirstLines(operation_)) {
    return true;
  }
  switch (interestOf(operation_)) {
    case Interest::firstLines:
      return false;
    case Interest::change:
      return notableLines_.size() < maxNotableLines && mayBeNotable(plainLine) &&
             isNotable(plainLine);
    case Interest::services:
      return true;
  }
  return true;
}

void OutputDigest::append(const OutputDigest& later) {
  lineCount_ += later.lineCount_;
  appendFirst(firstLines_, later.firstLines_, maxFirstLines(operation_));
  appendFirst(notableLines_, later.notableLines_, maxNotableLines);
  serviceCount_ += later.serviceCount_;
  startedCount_ += later.startedCount_;
  stoppedCount_ += later.stoppedCount_;
  appendFirst(firstServiceLines_, later.firstServiceLines_, maxServiceLines);
}

}  // namespace quillmere

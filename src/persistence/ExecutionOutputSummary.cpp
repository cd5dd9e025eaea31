#include "persistence/ExecutionOutputSummary.h"

#include <algorithm>

#include "platform/AbbreviatedText.h"

namespace quillmere {
namespace {

constexpr qsizetype summaryLimit = 500;

/// The length of the white-space character that `text` begins with; 0 where it begins with another.
/// White space has no character of more than three bytes.
qsizetype leadingSpace(QByteArrayView text) {
  const auto byte = [text](qsizetype i) { return static_cast<unsigned char>(text[i]); };
  if (text.isEmpty()) {
    return 0;
  }
  const unsigned lead = byte(0);
  if (lead < 0x80) {
    return QChar::isSpace(lead) ? 1 : 0;
  }
  if (lead >> 5 == 0b110 && text.size() >= 2) {
    return QChar::isSpace((lead & 0x1fU) << 6 | (byte(1) & 0x3fU)) ? 2 : 0;
  }
  if (lead >> 4 == 0b1110 && text.size() >= 3) {
    return QChar::isSpace((lead & 0xfU) << 12 | (byte(1) & 0x3fU) << 6 | (byte(2) & 0x3fU)) ? 3 : 0;
  }
  return 0;
}

bool continuesCharacter(char byte) {
  return (static_cast<unsigned char>(byte) & 0xc0U) == 0x80;
}

/// Where the character that holds byte `position` begins.
qsizetype characterStart(QByteArrayView text, qsizetype position) {
  while (position > 0 && continuesCharacter(text[position])) {
    --position;
  }
  return position;
}

QByteArrayView trimmedStart(QByteArrayView text) {
  while (const qsizetype length = leadingSpace(text)) {
    text = text.sliced(length);
  }
  return text;
}

QByteArrayView trimmedEnd(QByteArrayView text) {
  while (!text.isEmpty()) {
    const qsizetype last = characterStart(text, text.size() - 1);
    if (leadingSpace(text.sliced(last)) == 0) {
      break;
    }
    text.truncate(last);
  }
  return text;
}

/// The joined output without ever joining it: runs print megabytes, a summary needs their start.
struct JoinedOutput {
  QByteArrayView first;
  QByteArrayView second;

  [[nodiscard]] qsizetype size() const {
    return second.isEmpty() ? first.size() : first.size() + 1 + second.size();
  }

  /// The first `length` bytes; if there are more, without the last character, which may be cut.
  [[nodiscard]] QString prefix(qsizetype length) const {
    QByteArray bytes = first.first(std::min(length, first.size())).toByteArray();
    if (length > first.size()) {
      bytes += '\n';
      bytes += second.first(length - first.size() - 1);
    }
    if (length < size()) {
      bytes.truncate(characterStart(bytes, bytes.size() - 1));
    }
    return QString::fromUtf8(bytes);
  }
};

JoinedOutput joined(QByteArrayView standardOutput, QByteArrayView standardError) {
  const QByteArrayView output = trimmedStart(standardOutput);
  const QByteArrayView error = trimmedEnd(standardError);
  if (output.isEmpty()) {
    return {trimmedStart(error), {}};
  }
  return error.isEmpty() ? JoinedOutput{trimmedEnd(output), {}} : JoinedOutput{output, error};
}

}  // namespace

std::optional<QString> executionOutputSummary(QByteArrayView standardOutput,
                                              QByteArrayView standardError,
                                              const Secrets& secrets) {
  const JoinedOutput output = joined(standardOutput, standardError);
  if (output.size() == 0) {
    return std::nullopt;
  }
  for (qsizetype length = 4 * summaryLimit; length < output.size(); length *= 2) {
    // The last user-perceived character of a prefix, or a secret, may continue beyond its end, so
    // the prefix has to be longer than the summary.
    const QString start = secrets.redacted(output.prefix(length));
    if (abbreviated(start, summaryLimit + secrets.longest()) != start) {
      return abbreviated(start, summaryLimit);
    }
  }
  return abbreviated(secrets.redacted(output.prefix(output.size())), summaryLimit);
}

}  // namespace quillmere

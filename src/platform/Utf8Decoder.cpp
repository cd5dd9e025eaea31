#include "platform/Utf8Decoder.h"

#include <QtCore/QByteArrayView>
#include <QtCore/QtGlobal>

#include <array>
#include <cstdint>
#include <cstring>

namespace quillmere {
namespace {

constexpr QByteArrayView replacementCharacter("\xEF\xBF\xBD");

/// What stands at the beginning of a text that does not begin with an ASCII character.
struct Sequence {
  enum class State { whole, cutOff, broken };
  State state;
  /// For a broken one, the bytes that could still have become a character: at least one.
  qsizetype length;
};

/// How a lead byte goes on: the number of bytes that follow and the range of the first of them,
/// which leaves out overlong forms, surrogates and what lies beyond U+10FFFF.
struct Continuation {
  qsizetype count = 0;
  quint8 first = 0x80;
  quint8 last = 0xBF;
};

constexpr Continuation continuationOf(quint8 lead) {
  if (lead >= 0xC2 && lead <= 0xDF) {
    return {.count = 1};
  }
  if (lead >= 0xE0 && lead <= 0xEF) {
    return {.count = 2,
            .first = static_cast<quint8>(lead == 0xE0 ? 0xA0 : 0x80),
            .last = static_cast<quint8>(lead == 0xED ? 0x9F : 0xBF)};
  }
  if (lead >= 0xF0 && lead <= 0xF4) {
    return {.count = 3,
            .first = static_cast<quint8>(lead == 0xF0 ? 0x90 : 0x80),
            .last = static_cast<quint8>(lead == 0xF4 ? 0x8F : 0xBF)};
  }
  return {};
}

Sequence sequenceAt(QByteArrayView text) {
  const Continuation continuation = continuationOf(static_cast<quint8>(text.front()));
  if (continuation.count == 0) {
    return {Sequence::State::broken, 1};
  }
  quint8 first = continuation.first;
  quint8 last = continuation.last;
  for (qsizetype length = 1; length <= continuation.count; ++length) {
    if (length == text.size()) {
      return {Sequence::State::cutOff, length};
    }
    if (const auto byte = static_cast<quint8>(text[length]); byte < first || byte > last) {
      return {Sequence::State::broken, length};
    }
    first = 0x80;
    last = 0xBF;
  }
  return {Sequence::State::whole, continuation.count + 1};
}

/// The length of the ASCII characters at the beginning of `text`, looked at 32 bytes at a time.
qsizetype asciiLength(QByteArrayView text) {
  using Block = std::array<std::uint64_t, 4>;
  constexpr std::uint64_t highBits = 0x8080808080808080;
  qsizetype length = 0;
  for (; text.size() - length >= qsizetype(sizeof(Block)); length += sizeof(Block)) {
    Block block;
    std::memcpy(block.data(), text.data() + length, sizeof(Block));
    if (((block[0] | block[1] | block[2] | block[3]) & highBits) != 0) {
      break;
    }
  }
  while (length < text.size() && static_cast<quint8>(text[length]) < 0x80) {
    ++length;
  }
  return length;
}

/// The length of the whole characters at the beginning of `text`.
qsizetype validLength(QByteArrayView text) {
  qsizetype length = 0;
  while (true) {
    length += asciiLength(text.sliced(length));
    if (length == text.size()) {
      return length;
    }
    const Sequence sequence = sequenceAt(text.sliced(length));
    if (sequence.state != Sequence::State::whole) {
      return length;
    }
    length += sequence.length;
  }
}

}  // namespace

QByteArray Utf8Decoder::decode(const QByteArray& bytes) {
  if (pending_.isEmpty() && validLength(bytes) == bytes.size()) {
    return bytes;
  }
  const QByteArray input = pending_ + bytes;
  pending_.clear();
  QByteArray text;
  text.reserve(input.size());
  for (QByteArrayView rest = input; !rest.isEmpty();) {
    const qsizetype valid = validLength(rest);
    text += rest.first(valid);
    rest = rest.sliced(valid);
    if (rest.isEmpty()) {
      break;
    }
    const Sequence sequence = sequenceAt(rest);
    if (sequence.state == Sequence::State::cutOff) {
      pending_ = rest.toByteArray();
      break;
    }
    text += replacementCharacter;
    rest = rest.sliced(sequence.length);
  }
  return text;
}

QByteArray Utf8Decoder::finish() {
  if (pending_.isEmpty()) {
    return {};
  }
  pending_.clear();
  return replacementCharacter.toByteArray();
}

}  // namespace quillmere

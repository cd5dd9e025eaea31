#pragma once

#include <QtCore/QByteArray>

namespace quillmere {

/// Turns bytes that arrive in pieces into valid UTF-8, piece by piece: a sequence split over two
/// pieces is kept back until it is whole, and what can never become a character is replaced by
/// U+FFFD, so that a reader of the output need not ask again. NUL bytes and carriage returns pass.
/// One decoder per stream of bytes; not thread-safe.
class Utf8Decoder {
 public:
  /// The complete text of what was kept back and `bytes`; shares `bytes` where they are clean.
  [[nodiscard]] QByteArray decode(const QByteArray& bytes);

  /// What is left when no more bytes will come: U+FFFD for a sequence cut off at its end.
  [[nodiscard]] QByteArray finish();

 private:
  QByteArray pending_;
};

}  // namespace quillmere

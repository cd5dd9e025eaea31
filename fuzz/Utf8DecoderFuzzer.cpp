#include <QtCore/QStringDecoder>

#include <algorithm>
#include <cstdint>

#include "platform/Utf8Decoder.h"
#include "require.h"

using quillmere::require;

namespace {

bool isValid(const QByteArray& text) {
  QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
  const QString decoded = decoder.decode(text);
  return !decoder.hasError();
}

/// Decodes `bytes` in pieces; the first byte of what is left says how long the next one is.
QByteArray decodedInPieces(const QByteArray& bytes) {
  quillmere::Utf8Decoder decoder;
  QByteArray text;
  for (qsizetype begin = 0; begin < bytes.size();) {
    const qsizetype length =
        std::min<qsizetype>(1 + static_cast<unsigned char>(bytes[begin]) % 7, bytes.size() - begin);
    const QByteArray piece = decoder.decode(bytes.sliced(begin, length));
    require(isValid(piece));
    text += piece;
    begin += length;
  }
  return text + decoder.finish();
}

}  // namespace

// However bytes are split, the same valid text comes out, and clean bytes come out unchanged.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  quillmere::Utf8Decoder decoder;
  QByteArray whole = decoder.decode(bytes);
  whole += decoder.finish();
  require(isValid(whole));
  require(whole == decodedInPieces(bytes));
  require(!isValid(bytes) || whole == bytes);
  return 0;
}

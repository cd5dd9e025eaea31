#include <algorithm>
#include <cstdint>
#include <vector>

#include "execution/DirectCommandOutputPresentation.h"
#include "execution/OutputTranscript.h"
#include "platform/Utf8Decoder.h"
#include "require.h"

namespace quillmere {
namespace {

using Chunks = std::vector<DirectExecutionOutputChunk>;
using Stream = DirectExecutionOutputStream;

void addDecoded(Chunks& chunks, Stream stream, const QByteArray& text) {
  if (!text.isEmpty()) {
    chunks.push_back({.id = {}, .stream = stream, .text = text, .receivedAt = {}});
  }
}

Chunks inOnePiece(Stream stream, const QByteArray& bytes) {
  Chunks chunks;
  Utf8Decoder decoder;
  addDecoded(chunks, stream, decoder.decode(bytes));
  addDecoded(chunks, stream, decoder.finish());
  return chunks;
}

/// The first byte of what is left says how long the next piece is.
Chunks inPieces(Stream stream, const QByteArray& bytes) {
  Chunks chunks;
  Utf8Decoder decoder;
  for (qsizetype begin = 0; begin < bytes.size();) {
    const qsizetype length =
        std::min<qsizetype>(1 + static_cast<unsigned char>(bytes[begin]) % 7, bytes.size() - begin);
    addDecoded(chunks, stream, decoder.decode(bytes.sliced(begin, length)));
    begin += length;
  }
  addDecoded(chunks, stream, decoder.finish());
  return chunks;
}

/// A piece of the one, a piece of the other.
Chunks interleaved(const Chunks& left, const Chunks& right) {
  Chunks chunks;
  for (std::size_t i = 0; i < std::max(left.size(), right.size()); ++i) {
    for (const Chunks* each : {&left, &right}) {
      if (i < each->size()) {
        chunks.push_back((*each)[i]);
      }
    }
  }
  return chunks;
}

struct Reading {
  QByteArrayList log;
  OutputDigest live;
  OutputDigest result;
};

Reading readingOf(BrewCommandOperation operation, const Chunks& chunks) {
  OutputTranscript transcript(operation);
  QByteArrayList log;
  const auto addLines = [&log](const OutputLines& lines) {
    for (qsizetype i = 0; i < lines.count(); ++i) {
      log += lines.line(i).toByteArray();
    }
  };
  for (const DirectExecutionOutputChunk& chunk : chunks) {
    std::ranges::for_each(transcript.add({&chunk, 1}), addLines);
  }
  if (const auto open = transcript.unfinishedLine()) {
    addLines(*open);
  }
  return {std::move(log), transcript.liveDigest(), transcript.resultDigest()};
}

bool isAllowed(QChar character) {
  return character == u'\t' || character == u'\n' || character.category() != QChar::Other_Control;
}

bool isLegible(const QString& text) {
  return std::ranges::all_of(text, isAllowed);
}

void checkRows(const OutputDigest& digest) {
  constexpr std::size_t mostRows = 6;
  const auto presentation = makePresentation(digest, SessionRunning());
  require(presentation.rows.empty() == !digest.hasOutput());
  require(presentation.rows.size() <= mostRows && !presentation.title.isEmpty());
  for (const auto& row : presentation.rows) {
    require(isLegible(row.title) && isLegible(row.detail.value_or(QString())));
  }
}

/// Whatever was printed, and however it arrived, the same is shown of it.
void check(BrewCommandOperation operation, const QByteArray& bytes) {
  const qsizetype middle = bytes.size() / 2;
  const Reading whole = readingOf(operation, inOnePiece(Stream::standardOutput, bytes));
  const Reading pieces = readingOf(operation, inPieces(Stream::standardOutput, bytes));
  require(whole.log == pieces.log);
  require(whole.live == pieces.live);
  require(whole.live == whole.result && pieces.live == pieces.result);
  checkRows(whole.live);

  const QByteArray output = bytes.first(middle);
  const QByteArray error = bytes.sliced(middle);
  OutputDigest expected = readingOf(operation, inOnePiece(Stream::standardOutput, output)).result;
  expected.append(readingOf(operation, inOnePiece(Stream::standardError, error)).result);
  const Chunks both =
      interleaved(inPieces(Stream::standardOutput, output), inPieces(Stream::standardError, error));
  require(readingOf(operation, both).result == expected);

  OutputDigest inOneLine(operation);
  Utf8Decoder decoder;
  QByteArray text = decoder.decode(bytes);
  text += decoder.finish();
  inOneLine.addOutputLine(text);
  require(inOneLine == whole.live);
}

}  // namespace
}  // namespace quillmere

/// The first byte is the operation, the others what was printed.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using quillmere::BrewCommandOperation;
  if (size > 0) {
    const auto& operations = quillmere::rawValues<BrewCommandOperation>;
    quillmere::check(operations[*data % operations.size()].value,
                     {reinterpret_cast<const char*>(data + 1), static_cast<qsizetype>(size - 1)});
  }
  return 0;
}

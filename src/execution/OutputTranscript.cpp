#include "execution/OutputTranscript.h"

#include <utility>

namespace quillmere {
namespace {

/// A line without end (a progress bar, a minified file) is cut here, so that neither the log nor a
/// summary has to draw or copy megabytes for one row.
constexpr qsizetype longestLine = 64Z * 1024;

/// Adds to `open` and returns whether it has to count as a line now.
bool fill(QByteArray& open, QByteArrayView text) {
  open += text;
  return open.size() >= longestLine;
}

OutputLines singleLine(DirectExecutionOutputStream stream, const QByteArray& text) {
  return {stream, text, {0}, static_cast<std::uint32_t>(text.size())};
}

}  // namespace

void LineSplitter::add(QByteArrayView text, const OnLine& onLine) {
  while (true) {
    const qsizetype end = text.indexOf('\n');
    if (end < 0) {
      break;
    }
    if (open_.isEmpty()) {
      onLine(text.first(end));
    } else {
      open_ += text.first(end);
      onLine(open_);
      open_.clear();
    }
    text = text.sliced(end + 1);
  }
  if (fill(open_, text)) {
    onLine(open_);
    open_.clear();
  }
}

QByteArrayView OutputLines::line(qsizetype index) const {
  const auto position = static_cast<std::size_t>(index);
  const std::uint32_t begin = begins[position];
  const std::uint32_t next = position + 1 < begins.size() ? begins[position + 1] : end;
  const QByteArrayView line = QByteArrayView(text).sliced(begin, next - begin);
  return line.endsWith('\n') ? line.chopped(1) : line;
}

OutputTranscript::OutputTranscript(BrewCommandOperation operation)
    : live_(operation), standardOutput_(operation), standardError_(operation) {
}

void OutputTranscript::DigestedText::add(const QByteArray& text) {
  splitter.add(text, [this](QByteArrayView line) { digest.addOutputLine(line); });
}

OutputDigest OutputTranscript::DigestedText::whole() const {
  OutputDigest result = digest;
  result.addOutputLine(splitter.open());
  return result;
}

std::vector<OutputLines> OutputTranscript::add(std::span<const DirectExecutionOutputChunk> chunks) {
  std::vector<OutputLines> lines;
  for (const DirectExecutionOutputChunk& chunk : chunks) {
    addToLog(chunk, lines);
    switch (chunk.stream) {
      case DirectExecutionOutputStream::standardOutput:
        live_.add(chunk.text);
        standardOutput_.add(chunk.text);
        break;
      case DirectExecutionOutputStream::standardError:
        live_.add(chunk.text);
        standardError_.add(chunk.text);
        break;
      case DirectExecutionOutputStream::diagnostic:
        break;
    }
  }
  return lines;
}

void OutputTranscript::addToLog(const DirectExecutionOutputChunk& chunk,
                                std::vector<OutputLines>& lines) {
  if (chunk.stream != openStream_ && !openText_.isEmpty()) {
    lines.push_back(singleLine(openStream_, std::exchange(openText_, {})));
  }
  openStream_ = chunk.stream;

  const QByteArrayView text = chunk.text;
  qsizetype begin = 0;
  if (!openText_.isEmpty()) {
    begin = text.indexOf('\n') + 1;
    if (begin == 0) {
      if (fill(openText_, text)) {
        lines.push_back(singleLine(openStream_, std::exchange(openText_, {})));
      }
      return;
    }
    openText_ += text.first(begin);
    lines.push_back(singleLine(openStream_, std::exchange(openText_, {})));
  }

  // The lines that lie whole in the chunk share its text.
  OutputLines whole{chunk.stream, chunk.text, {}, 0};
  for (qsizetype end = text.indexOf('\n', begin); end >= 0; end = text.indexOf('\n', begin)) {
    whole.begins.push_back(static_cast<std::uint32_t>(begin));
    begin = end + 1;
  }
  if (whole.count() > 0) {
    whole.end = static_cast<std::uint32_t>(begin);
    lines.push_back(std::move(whole));
  }
  if (fill(openText_, text.sliced(begin))) {
    lines.push_back(singleLine(openStream_, std::exchange(openText_, {})));
  }
}

std::optional<OutputLines> OutputTranscript::unfinishedLine() const {
  if (openText_.isEmpty()) {
    return std::nullopt;
  }
  return singleLine(openStream_, openText_);
}

OutputDigest OutputTranscript::liveDigest() const {
  return live_.whole();
}

OutputDigest OutputTranscript::resultDigest() const {
  OutputDigest result = standardOutput_.whole();
  result.append(standardError_.whole());
  return result;
}

}  // namespace quillmere

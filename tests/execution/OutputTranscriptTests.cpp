#include <QtCore/QRandomGenerator>

#include <gtest/gtest.h>

#include "execution/OutputTranscript.h"
#include "support/Printers.h"

namespace quillmere {
namespace {

using Stream = DirectExecutionOutputStream;
using enum Stream;
using Chunks = std::vector<DirectExecutionOutputChunk>;

DirectExecutionOutputChunk chunk(Stream stream, const QByteArray& text) {
  return {.stream = stream, .text = text};
}

struct LogLine {
  Stream stream;
  QByteArray text;
  bool operator==(const LogLine&) const = default;
};

void PrintTo(const LogLine& line, std::ostream* out) {
  *out << rawValue(line.stream).latin1() << ": " << line.text.toStdString();
}

void addTo(std::vector<LogLine>& log, const OutputLines& lines) {
  for (qsizetype i = 0; i < lines.count(); ++i) {
    log.push_back({lines.stream, lines.line(i).toByteArray()});
  }
}

/// The whole log of chunks that are read one after the other.
std::vector<LogLine> logOf(const Chunks& chunks) {
  OutputTranscript transcript(BrewCommandOperation::install);
  std::vector<LogLine> log;
  for (const auto& each : chunks) {
    for (const OutputLines& lines : transcript.add({&each, 1})) {
      addTo(log, lines);
    }
  }
  if (const auto open = transcript.unfinishedLine()) {
    addTo(log, *open);
  }
  return log;
}

TEST(OutputTranscript, CutsAChunkIntoLines) {
  EXPECT_EQ(logOf({chunk(standardOutput, "one\n\nthree\n")}),
            (std::vector<LogLine>{
                {standardOutput, "one"}, {standardOutput, ""}, {standardOutput, "three"}}));
}

TEST(OutputTranscript, JoinsALineThatCameInPieces) {
  EXPECT_EQ(logOf({chunk(standardOutput, "o"), chunk(standardOutput, "n"),
                   chunk(standardOutput, "e\ntwo\nthr"), chunk(standardOutput, "ee\nfour\n")}),
            (std::vector<LogLine>{{standardOutput, "one"},
                                  {standardOutput, "two"},
                                  {standardOutput, "three"},
                                  {standardOutput, "four"}}));
}

TEST(OutputTranscript, ShowsALineThatIsNotComplete) {
  EXPECT_EQ(logOf({chunk(standardOutput, "done\nworking")}),
            (std::vector<LogLine>{{standardOutput, "done"}, {standardOutput, "working"}}));
}

TEST(OutputTranscript, BeginsALineWhereAnotherStreamSpeaks) {
  EXPECT_EQ(logOf({chunk(standardOutput, "out"), chunk(standardError, "err\n"),
                   chunk(diagnostic, "[quillmere] note\n"), chunk(standardOutput, "put\n")}),
            (std::vector<LogLine>{{standardOutput, "out"},
                                  {standardError, "err"},
                                  {diagnostic, "[quillmere] note"},
                                  {standardOutput, "put"}}));
}

TEST(OutputTranscript, SharesTheTextOfItsChunks) {
  OutputTranscript transcript(BrewCommandOperation::install);
  const auto each = chunk(standardOutput, "one\ntwo\nrest");
  const auto lines = transcript.add({&each, 1});
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_TRUE(lines[0].text.isSharedWith(each.text));
}

TEST(OutputTranscript, CutsALineWithoutEnd) {
  Chunks chunks;
  for (int i = 0; i < 40; ++i) {
    chunks.push_back(chunk(standardOutput, QByteArray(10'000, 'x')));
  }
  const auto log = logOf(chunks);
  EXPECT_GT(log.size(), 4U);
  qsizetype size = 0;
  for (const LogLine& line : log) {
    EXPECT_LE(line.text.size(), 80'000);
    size += line.text.size();
  }
  EXPECT_EQ(size, 400'000);
}

TEST(OutputTranscript, DigestsBothStreamsAsTheyArriveWhileTheRunGoesOn) {
  OutputTranscript transcript(BrewCommandOperation::outdated);
  const Chunks chunks = {chunk(diagnostic, "[quillmere] note\n"), chunk(standardOutput, "wge"),
                         chunk(standardError, "t\nfire"), chunk(standardOutput, "fox")};
  EXPECT_FALSE(transcript.add(chunks).empty());
  EXPECT_EQ(transcript.liveDigest().firstLines(),
            QStringList({QStringLiteral("wget"), QStringLiteral("firefox")}));
}

TEST(OutputTranscript, DigestsStandardOutputBeforeStandardErrorForTheResult) {
  OutputTranscript transcript(BrewCommandOperation::outdated);
  const Chunks chunks = {chunk(standardError, "Warning: old\n"), chunk(standardOutput, "wge"),
                         chunk(standardError, "Error: no"), chunk(standardOutput, "t\n")};
  EXPECT_FALSE(transcript.add(chunks).empty());
  EXPECT_EQ(transcript.resultDigest().firstLines(),
            QStringList({QStringLiteral("wget"), QStringLiteral("Warning: old"),
                         QStringLiteral("Error: no")}));
}

/// What `lines` says of a text does not depend on where the pieces of the text end.
TEST(OutputTranscript, TellsTheSameHoweverThePiecesFall) {
  const QByteArray text =
      "==> Pouring wget\n\nalready installed\r\nprogress 1\rprogress 2\n\x1b[32mgreen\x1b[0m\nend";
  const auto whole = logOf({chunk(standardOutput, text)});
  QRandomGenerator random(7);
  for (int round = 0; round < 200; ++round) {
    Chunks pieces;
    for (qsizetype begin = 0; begin < text.size();) {
      const qsizetype size = std::min<qsizetype>(1 + random.bounded(12), text.size() - begin);
      pieces.push_back(chunk(standardOutput, text.sliced(begin, size)));
      begin += size;
    }
    ASSERT_EQ(logOf(pieces), whole);
    OutputTranscript inPieces(BrewCommandOperation::install);
    OutputTranscript atOnce(BrewCommandOperation::install);
    (void)inPieces.add(pieces);
    const auto one = chunk(standardOutput, text);
    (void)atOnce.add({&one, 1});
    ASSERT_EQ(inPieces.liveDigest(), atOnce.liveDigest());
  }
}

}  // namespace
}  // namespace quillmere

#include <gtest/gtest.h>
#include <random>

#include "execution/OutputDigest.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using Operation = BrewCommandOperation;

OutputDigest digestOf(Operation operation, const QByteArrayList& lines) {
  OutputDigest digest(operation);
  for (const QByteArray& line : lines) {
    digest.addOutputLine(line);
  }
  return digest;
}

TEST(OutputDigest, CountsNoBlankLines) {
  const OutputDigest digest =
      digestOf(Operation::outdated, {"", "  ", "\t\r", "\u3000", "\x1b[0m", "wget", " zlib \r"});
  EXPECT_EQ(digest.lineCount(), 2);
  EXPECT_EQ(digest.firstLines(), (QStringList{u"wget"_s, u"zlib"_s}));
}

TEST(OutputDigest, HasOutputOnceALineShowsSomething) {
  OutputDigest digest(Operation::install);
  EXPECT_FALSE(digest.hasOutput());
  digest.addOutputLine("   ");
  digest.addLine(u"\t");
  EXPECT_FALSE(digest.hasOutput());
  digest.addLine(u".");
  EXPECT_TRUE(digest.hasOutput());
}

TEST(OutputDigest, CountsNoBlankLinesLongAfterItStoppedKeepingThem) {
  OutputDigest digest(Operation::info);
  for (int i = 0; i < 1000; ++i) {
    digest.addOutputLine("text");
    digest.addOutputLine(" \t ");
    digest.addOutputLine("gone\r\x1b[K");
    digest.addOutputLine("gone\r    ");
    digest.addOutputLine("\u00a0");
  }
  EXPECT_EQ(digest.lineCount(), 1000);
  EXPECT_EQ(digest.firstLines().size(), 6);
}

TEST(OutputDigest, TakesWhatATerminalLeavesStanding) {
  EXPECT_EQ(digestOf(Operation::info, {"  1%\r 50%\rdone", "\x1b[1mbold\x1b[0m\r"}).firstLines(),
            (QStringList{u"done"_s, u"bold"_s}));
}

TEST(OutputDigest, SplitsAtTheOtherLineBreaksOfUnicode) {
  EXPECT_EQ(digestOf(Operation::info, {"a\vb\fc\u0085d\u2028e\u2029f"}).firstLines(),
            (QStringList{u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s, u"f"_s}));
}

TEST(OutputDigest, KeepsAsManyFirstLinesAsItsOperationQuotes) {
  const QByteArrayList lines(20, "line");
  EXPECT_EQ(digestOf(Operation::info, lines).firstLines().size(), 6);
  EXPECT_EQ(digestOf(Operation::doctor, lines).firstLines().size(), 5);
  EXPECT_EQ(digestOf(Operation::outdated, lines).firstLines().size(), 8);
  EXPECT_EQ(digestOf(Operation::dependencies, lines).firstLines().size(), 8);
  EXPECT_EQ(digestOf(Operation::reverseDependencies, lines).firstLines().size(), 8);
  EXPECT_EQ(digestOf(Operation::install, lines).firstLines().size(), 4);
  EXPECT_EQ(digestOf(Operation::servicesList, lines).firstServiceLines().size(), 6);
}

class NotableLine : public testing::TestWithParam<std::string> {};

TEST_P(NotableLine, IsFoundBehindManyOthersInAnyCase) {
  QByteArrayList lines(100, "compiling");
  lines += QByteArray::fromStdString("a " + GetParam() + " b");
  lines += QByteArray::fromStdString(GetParam()).toUpper();
  lines += QByteArray::fromStdString("\u2714 " + GetParam());
  lines += QByteArray::fromStdString("\x1b[1m" + GetParam() + "\x1b[0m");
  EXPECT_EQ(digestOf(Operation::upgrade, lines).notableLines().size(), 4);
}

INSTANTIATE_TEST_SUITE_P(Words, NotableLine,
                         testing::Values("==>", "error", "warning", "already", "installed",
                                         "upgraded", "removed", "deleted", "downloaded"));

TEST(OutputDigest, FindsNothingNotableInOrdinaryLines) {
  const QByteArrayList lines{"=> arrow", "needed", "corner", "all ready", "terror"};
  EXPECT_EQ(digestOf(Operation::install, lines + QByteArrayList(lines)).notableLines(),
            (QStringList{u"terror"_s, u"terror"_s}));
}

TEST(OutputDigest, LooksForNotableLinesOnlyInChanges) {
  EXPECT_TRUE(digestOf(Operation::doctor, {"Warning: x"}).notableLines().isEmpty());
  EXPECT_TRUE(digestOf(Operation::outdated, {"Warning: x"}).notableLines().isEmpty());
}

TEST(OutputDigest, KeepsTheFirstSixNotableLines) {
  QByteArrayList lines;
  for (int i = 1; i <= 9; ++i) {
    lines += QByteArray("line");
    lines += "==> " + QByteArray::number(i);
  }
  const OutputDigest digest = digestOf(Operation::cleanup, lines);
  EXPECT_EQ(digest.notableLines(),
            (QStringList{u"==> 1"_s, u"==> 2"_s, u"==> 3"_s, u"==> 4"_s, u"==> 5"_s, u"==> 6"_s}));
  EXPECT_EQ(digest.lineCount(), 18);
}

TEST(OutputDigest, TellsServicesFromTheHeader) {
  const OutputDigest digest =
      digestOf(Operation::servicesList, {"Name  STATUS User File", "redis started anna",
                                         "dnsmasq Stopped", "name of a service", "nginx none"});
  EXPECT_EQ(digest.serviceCount(), 4);
  EXPECT_EQ(digest.startedCount(), 1);
  EXPECT_EQ(digest.stoppedCount(), 1);
  EXPECT_EQ(digest.firstServiceLines().front(), u"redis started anna"_s);
}

QByteArray arbitraryLine(std::mt19937& random) {
  static const QByteArrayList pieces{
      "",       " ",        "\r",   "\t",      "==> ",      "err",        "or",     "warning",
      "text",   "\x1b[",    "K",    "\x1b[2K", "\b",        "ins",        "talled", "Name",
      "status", "x",        "\xC2", "\x85",    "\u2028",    "\u00a0",     "\v",     "started",
      "\u3000", "stopped ", "\0",   "\x01",    "\u0301\b ", "\x1b]8;;\a", "DELETED"};
  QByteArray line;
  for (unsigned left = random() % 8; left > 0; --left) {
    line += pieces[random() % unsigned(pieces.size())];
  }
  return line;
}

class EveryOperation : public testing::TestWithParam<RawValue<Operation>> {};

TEST_P(EveryOperation, DigestsTheSameInOnePieceOrInSeveral) {
  std::mt19937 random(7);
  for (int round = 0; round < 300; ++round) {
    OutputDigest whole(GetParam().value);
    OutputDigest joined(GetParam().value);
    for (unsigned piecesLeft = random() % 5; piecesLeft > 0; --piecesLeft) {
      OutputDigest piece(GetParam().value);
      for (unsigned linesLeft = random() % 12; linesLeft > 0; --linesLeft) {
        const QByteArray line = arbitraryLine(random);
        whole.addOutputLine(line);
        piece.addOutputLine(line);
      }
      joined.append(piece);
    }
    ASSERT_EQ(joined, whole);
  }
}

TEST_P(EveryOperation, DigestsTheSameWhetherOrNotALineIsStillWanted) {
  std::mt19937 random(8);
  for (int round = 0; round < 300; ++round) {
    const QByteArray line = arbitraryLine(random);
    OutputDigest fresh(GetParam().value);
    fresh.addOutputLine(line);
    OutputDigest full(GetParam().value);
    for (int i = 0; i < 8; ++i) {
      full.addOutputLine("filler");
    }
    const qsizetype before = full.lineCount();
    full.addOutputLine(line);
    ASSERT_EQ(full.lineCount() - before, fresh.lineCount())
        << line.toPercentEncoding().toStdString();
    ASSERT_EQ(full.notableLines(), fresh.notableLines()) << line.toPercentEncoding().toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(Operations, EveryOperation, testing::ValuesIn(rawValues<Operation>),
                         [](const testing::TestParamInfo<RawValue<Operation>>& operation) {
                           return std::string(operation.param.text.data());
                         });

}  // namespace
}  // namespace quillmere

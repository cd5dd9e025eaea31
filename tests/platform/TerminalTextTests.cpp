#include <gtest/gtest.h>

#include "platform/TerminalText.h"

namespace quillmere {
namespace {

using namespace std::string_literals;

struct Row {
  const char* name;
  std::string line;
  std::string standing;
};

void PrintTo(const Row& row, std::ostream* out) {
  *out << row.name;
}

class StandingText : public testing::TestWithParam<Row> {};

TEST_P(StandingText, IsWhatATerminalWouldShow) {
  EXPECT_EQ(terminalText(GetParam().line).toStdString(), GetParam().standing);
}

std::string nameOf(const testing::TestParamInfo<Row>& info) {
  return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(PlainText, StandingText,
                         testing::Values(Row{"Empty", "", ""},
                                         Row{"Words", "==> Pouring wget", "==> Pouring wget"},
                                         Row{"Blanks", "  indented  ", "  indented  "},
                                         Row{"Tabs", "Name\tStatus", "Name\tStatus"},
                                         Row{"OtherScripts", "\u2714\uFE0E Größe 統一 \U0001F37A",
                                             "\u2714\uFE0E Größe 統一 \U0001F37A"},
                                         Row{"ByteOrderMark", "\uFEFF\uFEFFx", "\uFEFF\uFEFFx"},
                                         Row{"UndecodableByte", "a\xFFz", "a\uFFFDz"}),
                         nameOf);

INSTANTIATE_TEST_SUITE_P(
    CursorMoves, StandingText,
    testing::Values(Row{"CarriageReturnAtTheEnd", "text\r", "text"},
                    Row{"CarriageReturnsAtTheEnd", "text\r\r", "text"},
                    Row{"ProgressThatOverwritesItself", "  1%\r 50%\r100%", "100%"},
                    Row{"ShorterTextLeavesTheRest", "abcdef\rXY", "XYcdef"},
                    Row{"BlanksOverwrite", "abc\r  \r", "  c"}, Row{"Backspace", "abc\b\bX", "aXc"},
                    Row{"BackspaceStopsAtTheFirstColumn", "a\b\b\bX", "X"},
                    Row{"SpinnerOfBackspaces", "|\b/\b-\bdone", "done"},
                    Row{"Left", "abcdef\x1b[3DX", "abcXef"}, Row{"LeftByOne", "abc\x1b[DX", "abX"},
                    Row{"LeftByNoneIsLeftByOne", "abc\x1b[0DX", "abX"},
                    Row{"LeftStopsAtTheFirstColumn", "abc\x1b[99DX", "Xbc"},
                    Row{"RightLeavesBlanks", "a\x1b[3Cb", "a   b"},
                    Row{"RightByOne", "a\x1b[Cb", "a b"},
                    Row{"RightOverText", "abcdef\r\x1b[2CX", "abXdef"},
                    Row{"ToColumn", "abcdef\x1b[3GX", "abXdef"},
                    Row{"ToFirstColumn", "abc\x1b[GX", "Xbc"},
                    Row{"ToColumnZeroIsTheFirst", "abc\x1b[0GX", "Xbc"},
                    Row{"MoveWithoutTextLeavesNothing", "a\x1b[9C", "a"}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(
    Erasing, StandingText,
    testing::Values(
        Row{"ToTheEnd", "abcdef\r\x1b[Kxy", "xy"}, Row{"ToTheEndByNumber", "abc\b\x1b[0K", "ab"},
        Row{"ToTheStart", "abcdef\x1b[3G\x1b[1K", "   def"},
        Row{"ToTheStartFromBehindTheText", "abc\x1b[1Kd", "   d"},
        Row{"Whole", "abc\x1b[2Kd", "   d"}, Row{"WholeLeavesNothing", "abc\x1b[2K", ""},
        Row{"WholeThenAnew", "Downloading\x1b[2K\rdone", "done"},
        Row{"OnlyWhatWasThereBefore", "abc\x1b[1K\rx\x1b[3Gz", "x z"},
        Row{"TwiceAndWrittenBetween", "abcd\x1b[2G\x1b[1K\rx\x1b[3G\x1b[1K", "   d"},
        Row{"LaterShorterOneLeavesLaterText", "abcd\x1b[2K\rwxyz\x1b[2G\x1b[1K", "  yz"},
        Row{"UnknownKind", "abc\x1b[7K", "abc"}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(
    WhatVanishes, StandingText,
    testing::Values(Row{"Colours", "\x1b[1;31mError\x1b[0m: no", "Error: no"},
                    Row{"ColoursWithColons", "\x1b[38:2::255:0:0mred\x1b[m", "red"},
                    Row{"PrivateModes", "\x1b[?25lhidden\x1b[?25h", "hidden"},
                    Row{"PrivateErase", "abc\x1b[?2K", "abc"},
                    Row{"OtherControlSequences", "a\x1b[2Jb\x1b[1;1Hc\x1b[5Ad\x1b[!pe", "abcde"},
                    Row{"IntermediatesMakeAnotherSequence", "abc\x1b[2 Dd", "abcd"},
                    Row{"TitleEndedByBell", "\x1b]0;brew\x07text", "text"},
                    Row{"LinkEndedByStringTerminator",
                        "\x1b]8;;https://example.org\x1b\\link\x1b]8;;\x1b\\ text", "link text"},
                    Row{"ClipboardWrite", "a\x1b]52;c;c2VjcmV0\x07z", "az"},
                    Row{"DeviceControlString", "a\x1bP1$r0m\x1b\\z", "az"},
                    Row{"TwoCharacterEscapes", "a\x1b=b\x1b>c\x1b"s + "7d\x1bMe", "abcde"},
                    Row{"CharacterSetChoice", "\x1b(Bascii", "ascii"},
                    Row{"Bell", "ding\x07", "ding"}, Row{"Nul", "a\0b"s, "ab"},
                    Row{"Delete", "a\x7f"s + "b", "ab"},
                    Row{"VerticalTabAndFormFeed", "a\vb\fc", "abc"},
                    Row{"SecondControlSet", "a\u0085b\u009bc", "abc"}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(CutOff, StandingText,
                         testing::Values(Row{"Escape", "text\x1b", "text"},
                                         Row{"Introducer", "text\x1b[", "text"},
                                         Row{"Parameters", "text\x1b[12;3", "text"},
                                         Row{"String", "text\x1b]8;;https://", "text"},
                                         Row{"StringTerminator", "text\x1b]0;t\x1b", "text"},
                                         Row{"CharacterSet", "text\x1b(", "text"},
                                         Row{"EscapeWithinAnEscape", "a\x1b\x1b[1mb", "ab"},
                                         Row{"SequenceBrokenByText", "a\x1b[3\u00e9b", "a\u00e9b"},
                                         Row{"SequenceBrokenByEscape", "abc\x1b[\x1b[2Dx", "axc"}),
                         nameOf);

INSTANTIATE_TEST_SUITE_P(Characters, StandingText,
                         testing::Values(Row{"MarkGoesWithItsBase", "e\u0301x\rE", "Ex"},
                                         Row{"MarkCountsAsNoColumn", "e\u0301x\bY", "e\u0301Y"},
                                         Row{"MarkAfterAColour", "e\x1b[0m\u0301x", "e\u0301x"},
                                         Row{"MarkOnAnEarlierCharacter", "ex\b\u0301", "e\u0301x"},
                                         Row{"MarkWithoutABase", "\r\u0301x", "\u0301x"},
                                         Row{"VariationSelector", "\u2714\uFE0Ex\r\x1b[Cy",
                                             "\u2714\uFE0Ey"},
                                         Row{"JoinedEmoji", "\U0001F469\u200D\U0001F680x\r\x1b[Cy",
                                             "\U0001F469\u200D\U0001F680y"},
                                         Row{"BeyondTheBasicPlane", "\U0001F37Ax\rab", "ab"}),
                         nameOf);

TEST(StandingTextOfHostileOutput, StaysAsSmallAsTheOutput) {
  EXPECT_LE(terminalText("a\x1b[999999999Cb").size(), 1024);
  EXPECT_LE(terminalText("a\x1b[999999999999999999999Gb").size(), 1024);
  const QByteArray manyJumps = QByteArray("\x1b[999999999Cx").repeated(10'000);
  EXPECT_LE(terminalText(manyJumps).size(), 11'000);
}

TEST(StandingTextOfHostileOutput, CostsNoMoreThanItsLength) {
  const QByteArray wide(200'000, 'x');
  EXPECT_EQ(terminalText(wide + QByteArray("\x1b[1Ky").repeated(100'000)).trimmed(), u"y");
  EXPECT_EQ(terminalText(wide + QByteArray("\x1b[2Ky").repeated(100'000)).trimmed(), u"y");
  const QByteArray marks = QByteArray("\b\u0301\x1b[C\u0302").repeated(100'000);
  EXPECT_LE(terminalText("ab" + marks).size(), 400'000);
}

}  // namespace
}  // namespace quillmere

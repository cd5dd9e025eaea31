#include <QtCore/QStringDecoder>

#include <gtest/gtest.h>
#include <random>

#include "platform/Utf8Decoder.h"

namespace quillmere {
namespace {

using namespace std::string_literals;

const std::string replaced = "\uFFFD";

std::string decodedWhole(const std::string& bytes) {
  Utf8Decoder decoder;
  const QByteArray text = decoder.decode(QByteArray::fromStdString(bytes));
  return (text + decoder.finish()).toStdString();
}

struct Row {
  const char* name;
  std::string bytes;
  std::string text;
};

void PrintTo(const Row& row, std::ostream* out) {
  *out << row.name;
}

std::string nameOf(const testing::TestParamInfo<Row>& info) {
  return info.param.name;
}

class Utf8DecoderTable : public testing::TestWithParam<Row> {};

TEST_P(Utf8DecoderTable, DecodesAWhole) {
  EXPECT_EQ(decodedWhole(GetParam().bytes), GetParam().text);
}

TEST_P(Utf8DecoderTable, DecodesTheSameByteByByte) {
  Utf8Decoder decoder;
  std::string text;
  for (const char byte : GetParam().bytes) {
    text += decoder.decode(QByteArray(1, byte)).toStdString();
  }
  EXPECT_EQ(text + decoder.finish().toStdString(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Utf8DecoderTable,
    testing::Values(
        Row{"Nothing", "", ""}, Row{"Ascii", "plain text\n", "plain text\n"},
        Row{"NulAndCarriageReturn", "a\0b\r\n"s, "a\0b\r\n"s},
        Row{"ByteOrderMark", "\uFEFFx", "\uFEFFx"},
        Row{"FirstAndLastOfEachLength", "\u0080\u07FF\u0800\uD7FF\uE000\uFFFF\U00010000\U0010FFFF",
            "\u0080\u07FF\u0800\uD7FF\uE000\uFFFF\U00010000\U0010FFFF"},
        Row{"LoneContinuation", "a\x80z", "a" + replaced + "z"},
        Row{"NeverALeadByte", "\xC0\xC1\xF5\xFF", replaced + replaced + replaced + replaced},
        Row{"CutOffByText", "\xE2\x82z", replaced + "z"},
        Row{"CutOffByASequence", "\xF0\x9F\x8D\u00e9", replaced + "\u00e9"},
        Row{"CutOffByTheEnd", "a\xF0\x9F\x8D", "a" + replaced},
        Row{"OverlongSlash", "\xE0\x80\xAF", replaced + replaced + replaced},
        Row{"OverlongInFour", "\xF0\x8F\xBF\xBF", replaced + replaced + replaced + replaced},
        Row{"Surrogate", "\xED\xA0\x80", replaced + replaced + replaced},
        Row{"BeyondUnicode", "\xF4\x90\x80\x80", replaced + replaced + replaced + replaced},
        Row{"BrokenBehindLongAscii", std::string(100, 'a') + "\xFF",
            std::string(100, 'a') + replaced},
        Row{"Latin1", "Gr\xF6\xDF"s + "e", "Gr" + replaced + replaced + "e"}),
    nameOf);

TEST(Utf8Decoder, SharesCleanBytes) {
  Utf8Decoder decoder;
  const QByteArray bytes = QByteArray("\xF0\x9F\x8D\xBA clean ").repeated(100);
  EXPECT_EQ(decoder.decode(bytes).constData(), bytes.constData());
}

TEST(Utf8Decoder, KeepsBackWhatIsNotWholeYet) {
  Utf8Decoder decoder;
  EXPECT_EQ(decoder.decode("a\xF0\x9F"), "a");
  EXPECT_EQ(decoder.decode("\x8D"), "");
  EXPECT_EQ(decoder.decode("\xBAz"), "\xF0\x9F\x8D\xBAz");
  EXPECT_EQ(decoder.finish(), "");
}

TEST(Utf8Decoder, HasNothingLeftAfterTheEnd) {
  Utf8Decoder decoder;
  EXPECT_EQ(decoder.decode("\xE2\x82"), "");
  EXPECT_EQ(decoder.finish(), replaced.c_str());
  EXPECT_EQ(decoder.finish(), "");
  EXPECT_EQ(decoder.decode("x"), "x");
}

/// Bytes in which whole, broken and cut-off sequences follow each other.
std::string arbitraryBytes(std::mt19937& random) {
  static const std::vector<std::string> pieces{
      "a",    "\xC3", "\xA9",   "\xE2",       "\x82",
      "\xAC", "\xF0", "\x9F",   "\x8D",       "\xBA",
      "\xED", "\xFF", "\u00e9", "\U0001F37A", "0123456789012345678901234567890123456789"};
  std::string bytes;
  for (unsigned left = random() % 40; left > 0; --left) {
    bytes += pieces[random() % pieces.size()];
  }
  return bytes;
}

TEST(Utf8Decoder, GivesTheSameValidTextHoweverTheBytesAreSplit) {
  std::mt19937 random(20261120);
  for (int round = 0; round < 2000; ++round) {
    const std::string bytes = arbitraryBytes(random);
    Utf8Decoder decoder;
    std::string text;
    for (std::size_t begin = 0; begin < bytes.size();) {
      const std::size_t length = 1 + random() % 7;
      text += decoder.decode(QByteArray::fromStdString(bytes.substr(begin, length))).toStdString();
      QStringDecoder check(QStringDecoder::Utf8);
      const QString checked = check.decode(text);
      ASSERT_FALSE(check.hasError());
      begin += length;
    }
    text += decoder.finish().toStdString();
    ASSERT_EQ(text, decodedWhole(bytes));
  }
}

}  // namespace
}  // namespace quillmere

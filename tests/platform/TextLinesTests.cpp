#include <QtCore/QStringList>

#include <gtest/gtest.h>

#include "platform/TextLines.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;

QStringList linesOf(const QString& text) {
  QStringList lines;
  for (const QStringView line : trimmedLines(text)) {
    lines += line.toString();
  }
  return lines;
}

TEST(TrimmedLines, EndsALineAtEveryLineBreak) {
  const QStringList expected{u"one"_s, u"two"_s};
  for (const QString& lineBreak :
       {u"\n"_s, u"\r"_s, u"\r\n"_s, u"\v"_s, u"\f"_s, u"\u0085"_s, u"\u2028"_s, u"\u2029"_s}) {
    EXPECT_EQ(linesOf(u"one"_s + lineBreak + u"two"_s), expected);
  }
}

TEST(TrimmedLines, TrimsWhiteSpaceAndDropsWhatIsThenEmpty) {
  EXPECT_EQ(linesOf(u"  one\t\n\n \u00a0\u3000\n\u2003two words \n"_s),
            (QStringList{u"one"_s, u"two words"_s}));
}

TEST(TrimmedLines, FindsNoneInBlankText) {
  EXPECT_TRUE(linesOf({}).isEmpty());
  EXPECT_TRUE(linesOf(u" \n\t\r\n"_s).isEmpty());
}

TEST(TrimmedLines, PointIntoTheText) {
  const QString text = u" one \n two "_s;
  EXPECT_EQ(trimmedLines(text).back().data(), text.data() + 7);
}

TEST(Abbreviated, LeavesATextOfTheLimitWhole) {
  EXPECT_EQ(abbreviated({}, 3), QString());
  EXPECT_EQ(abbreviated(u"ab"_s, 3), u"ab"_s);
  EXPECT_EQ(abbreviated(u"abc"_s, 3), u"abc"_s);
}

TEST(Abbreviated, CutsALongerTextAtTheLimit) {
  EXPECT_EQ(abbreviated(u"abcd"_s, 3), u"abc..."_s);
  EXPECT_EQ(abbreviated(u"abcd"_s, 0), u"..."_s);
}

TEST(Abbreviated, CountsCharactersAsPeopleDo) {
  const QString accented = u"e\u0301"_s;
  EXPECT_EQ(abbreviated(accented.repeated(3), 3), accented.repeated(3));
  EXPECT_EQ(abbreviated(accented.repeated(4), 3), accented.repeated(3) + u"..."_s);
  const QString beer = u"\U0001F37A"_s;
  EXPECT_EQ(abbreviated(beer.repeated(500), 500), beer.repeated(500));
  EXPECT_EQ(abbreviated(beer.repeated(501), 500), beer.repeated(500) + u"..."_s);
}

TEST(Abbreviated, KeepsACharacterTogetherThatHasVeryManyMarks) {
  const QString heavy = u"a"_s + QString(10'000, u'\u0301');
  EXPECT_EQ(abbreviated(heavy + heavy, 2), heavy + heavy);
  EXPECT_EQ(abbreviated(heavy + heavy, 1), heavy + u"..."_s);
}

}  // namespace
}  // namespace quillmere

#include <gtest/gtest.h>

#include "platform/AbbreviatedText.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;

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

#include <gtest/gtest.h>

#include "platform/SanitizedText.h"
#include "support/Printers.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

TEST(SanitizedText, LeavesTextAsItIs) {
  for (const QString& text :
       {u""_s, u"wget"_s, u"<b>bold</b> & <img src=\"x\">"_s, u"\u05e9\u05dc\u05d5\u05dd 1.0"_s,
        u"\u0627\u0644\u0639\u0631\u0628\u064a\u0629\u200f (1.0)"_s, u"e\u0301t\u00e9"_s,
        u"\U0001F37A"_s, QString(2000, u'x')}) {
    EXPECT_EQ(sanitizedText(text), text);
    EXPECT_EQ(sanitizedText(SharedText(QStringView(text))), text);
  }
}

TEST(SanitizedText, StandsOnOneLine) {
  EXPECT_EQ(sanitizedText(u"one\ntwo\r\nthree\tfour\vfive\u2028six\u2029seven\u0085eight"_s),
            u"one two  three four five six seven eight"_s);
}

TEST(SanitizedText, MakesOtherControlCharactersVisible) {
  EXPECT_EQ(sanitizedText(QString(u"a\0b\x1b[2Jc\x07\x7f\x08\u009b"_s)),
            u"a\ufffdb\ufffd[2Jc\ufffd\ufffd\ufffd\ufffd"_s);
}

TEST(SanitizedText, LetsNothingTurnTheDirection) {
  for (const char16_t character : {u'\u202a', u'\u202b', u'\u202c', u'\u202d', u'\u202e', u'\u2066',
                                   u'\u2067', u'\u2068', u'\u2069'}) {
    EXPECT_EQ(sanitizedText(u"1.0"_s + QChar(character) + u"2.9"_s), u"1.0\ufffd2.9"_s);
  }
}

TEST(SanitizedText, EndsWhereNobodyReadsOn) {
  const QString shown = sanitizedText(QString(1'000'000, u'x'));
  EXPECT_EQ(shown, QString(2000, u'x') + QChar(u'\u2026'));
  EXPECT_EQ(sanitizedText(SharedText(std::string(1'000'000, 'x'))), shown);
  EXPECT_EQ(sanitizedText(QString(1999, u'x') + u"\U0001F37A\U0001F37A"_s),
            QString(1999, u'x') + QChar(u'\u2026'));
}

}  // namespace
}  // namespace quillmere

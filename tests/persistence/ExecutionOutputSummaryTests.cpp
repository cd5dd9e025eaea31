#include <QtCore/QElapsedTimer>

#include <gtest/gtest.h>

#include "persistence/ExecutionOutputSummary.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;

std::optional<QString> summaryOfOutput(QByteArrayView standardOutput,
                                       QByteArrayView standardError) {
  return executionOutputSummary(standardOutput, standardError, Secrets(QProcessEnvironment()));
}

QString summaryOf(const QString& standardOutput, const QString& standardError = {}) {
  return summaryOfOutput(standardOutput.toUtf8(), standardError.toUtf8()).value_or(u"(absent)"_s);
}

TEST(ExecutionOutputSummary, JoinsWhatTheStreamsHoldInTheirOrder) {
  struct Row {
    QString standardOutput;
    QString standardError;
    QString summary;
  };

  for (const Row& row : {
           Row{u"ok"_s, u"warn"_s, u"ok\nwarn"_s},
           Row{u"ok"_s, u""_s, u"ok"_s},
           Row{u""_s, u"warn"_s, u"warn"_s},
           Row{u"ok\n"_s, u"warn\n"_s, u"ok\n\nwarn"_s},
           Row{u"\n ok \n"_s, u"  warn  "_s, u"ok \n\n  warn"_s},
           Row{u" \n\t"_s, u"  warn  "_s, u"warn"_s},
           Row{u"  ok  "_s, u" \r\n "_s, u"ok"_s},
           Row{u"a\0b"_s, u"c\rd"_s, u"a\0b\nc\rd"_s},
       }) {
    SCOPED_TRACE(row.summary.toStdString());
    EXPECT_EQ(summaryOf(row.standardOutput, row.standardError), row.summary);
  }
}

TEST(ExecutionOutputSummary, IsAbsentForNothingButWhiteSpace) {
  EXPECT_EQ(summaryOfOutput({}, {}), std::nullopt);
  EXPECT_EQ(summaryOfOutput("", "\n"), std::nullopt);
  EXPECT_EQ(summaryOfOutput(" \t\r\n", "\v\f"), std::nullopt);
  EXPECT_EQ(summaryOfOutput("\u00a0\u2003\u3000", "\u0085\u2028\u2029\u202f\u205f\u1680"),
            std::nullopt);
}

TEST(ExecutionOutputSummary, TrimsEveryKindOfWhiteSpaceFromBothEnds) {
  EXPECT_EQ(summaryOf(u"\u3000\u00a0\n é \u2029\u00a0 "_s), u"é"_s);
  EXPECT_EQ(summaryOf(u"\u3000x"_s, u"y\u2003"_s), u"x\ny"_s);
  EXPECT_EQ(summaryOf(u"🍺 "_s), u"🍺"_s);
  EXPECT_EQ(summaryOf(u"\u200bx\u200b"_s), u"\u200bx\u200b"_s);
}

TEST(ExecutionOutputSummary, KeepsFiveHundredCharactersWhole) {
  const QString text = QString(499, u'a') + u'b';
  EXPECT_EQ(summaryOf(text), text);
  EXPECT_EQ(summaryOf(u"\n"_s + text + u"\n"_s), text);
}

TEST(ExecutionOutputSummary, CutsFromTheFiveHundredAndFirstCharacterOn) {
  const QString text(500, u'a');
  EXPECT_EQ(summaryOf(text + u'b'), text + u"..."_s);
  EXPECT_EQ(summaryOf(text + u" b"_s), text + u"..."_s);
  EXPECT_EQ(summaryOf(QString(600, u'a')).size(), 503);
  EXPECT_EQ(summaryOf(QString(600, u'a')), text + u"..."_s);
}

TEST(ExecutionOutputSummary, CutsAcrossTheJoin) {
  const QString output(499, u'a');
  EXPECT_EQ(summaryOf(output, u"b"_s), output + u"\n..."_s);
  EXPECT_EQ(summaryOf(QString(498, u'a'), u"b"_s), QString(498, u'a') + u"\nb"_s);
  EXPECT_EQ(summaryOf(QString(10, u'a'), QString(5000, u'b')),
            QString(10, u'a') + u'\n' + QString(489, u'b') + u"..."_s);
}

TEST(ExecutionOutputSummary, CountsCharactersAsPeopleDo) {
  for (const QString& character : {u"é"_s, u"e\u0301"_s, u"🍺"_s, u"🇵🇱"_s, u"\r\n."_s.left(2),
                                   u"e"_s + QString(40, QChar(0x0301))}) {
    SCOPED_TRACE(character.toStdString());
    const QString start = u"x"_s + character.repeated(498) + u"y"_s;
    EXPECT_EQ(summaryOf(start), start);
    EXPECT_EQ(summaryOf(start + u"z"_s), start + u"..."_s);
    EXPECT_EQ(summaryOf(start + u"z"_s.repeated(10'000)), start + u"..."_s);
  }
}

/// A prefix of the text ends in the middle of this last character, whatever its length.
TEST(ExecutionOutputSummary, NeverCutsACharacterInTwo) {
  const QString accents(100'000, QChar(0x0301));
  const QString start = QString(499, u'a') + u'e' + accents;
  EXPECT_EQ(summaryOf(start), start);
  EXPECT_EQ(summaryOf(start + u'z'), start + u"..."_s);
}

TEST(ExecutionOutputSummary, CostsNoMoreForAHundredMegabytes) {
  const QByteArray output("beer 🍺 and a line\n");
  const QByteArray text = output.repeated(100'000'000 / output.size());
  const qsizetype rounds = 100;
  QElapsedTimer timer;
  timer.start();
  for (qsizetype i = 0; i < rounds; ++i) {
    ASSERT_TRUE(summaryOfOutput(text, text).has_value());
  }
  // Converting the text once takes longer than the hundred summaries may.
  EXPECT_LT(timer.elapsed(), 2000);
}

}  // namespace
}  // namespace quillmere

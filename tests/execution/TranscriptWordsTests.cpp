#include <QtCore/QDir>
#include <QtCore/QFile>

#include <algorithm>
#include <gtest/gtest.h>

#include "execution/DirectCommandOutputPresentation.h"
#include "execution/FailureAdvice.h"
#include "execution/RunOutcome.h"
#include "execution/TranscriptWords.h"
#include "support/Printers.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;

/// Runs of the real thing, kept beside the checkout: NAME.cmd is what was asked, NAME.out and
/// NAME.err what it printed, NAME.rc how it ended.
class TranscriptWords : public testing::Test {
 protected:
  void SetUp() override {
    if (!QDir(folder_).exists()) {
      GTEST_SKIP() << "no transcripts in " << folder_.toStdString();
    }
  }

  [[nodiscard]] QStringList names() const {
    QStringList names;
    for (const QString& folder : {u"transcripts"_s, u"transcripts2"_s}) {
      for (QString& name : QDir(folder_ + u'/' + folder).entryList({u"*.cmd"_s}, QDir::Files)) {
        names += folder + u'/' + name.remove(u".cmd"_s);
      }
    }
    return names;
  }

  [[nodiscard]] DirectCommandResult resultOf(const test::TranscriptWord& words) const {
    const QString name = QString::fromUtf8(words.name);
    DirectCommandResult result;
    result.command.commandText = QString::fromUtf8(contentOf(name + u".cmd"_s).trimmed());
    result.command.operation = words.operation;
    if (!QLatin1StringView(words.target).isEmpty()) {
      result.command.target = {BrewCommandTargetKind::formula, QString::fromUtf8(words.target)};
    }
    result.standardOutput = contentOf(name + u".out"_s);
    result.standardError = contentOf(name + u".err"_s);
    result.exitCode = contentOf(name + u".rc"_s).trimmed().toInt();
    return result;
  }

 private:
  [[nodiscard]] QByteArray contentOf(const QString& fileName) const {
    QFile file(folder_ + u'/' + fileName);
    EXPECT_TRUE(file.open(QFile::ReadOnly)) << fileName.toStdString();
    return file.readAll();
  }

  QString folder_ =
      qEnvironmentVariable("QUILLMERE_REAL_DATA", QStringLiteral(QUILLMERE_REAL_DATA));
};

DirectExecutionSessionStatus statusOf(const DirectCommandResult& result) {
  if (result.exitCode == 0) {
    return SessionCompleted{0};
  }
  return SessionFailed{u"Command exited with status %1."_s.arg(result.exitCode)};
}

/// The titles of the rows without the rest of an address; of an explanation, which is a mere
/// quotation, their number.
std::string rowsOf(const DirectCommandResult& result) {
  const auto presentation =
      makePresentation(result.command, presentationText(result, {}), statusOf(result));
  if (result.command.operation == BrewCommandOperation::info ||
      result.command.operation == BrewCommandOperation::doctor) {
    return std::to_string(presentation.rows.size());
  }
  QStringList titles;
  for (const auto& row : presentation.rows) {
    titles += row.title.section(u"https:"_s, 0, 0);
  }
  return titles.join(u" | "_s).toStdString();
}

std::string stepsOf(const DirectCommandResult& result) {
  using State = DirectExecutionProgressStep::State;
  std::string steps;
  for (const auto& step : makeProgressSteps(result.command, statusOf(result), true)) {
    steps += step.state == State::complete ? '+' : step.state == State::failed ? '-' : '?';
  }
  return steps;
}

/// The first sentence of the advice.
std::string adviceOf(const DirectCommandResult& result) {
  return result.exitCode == 0 ? std::string()
                              : failureAdvice(result).section(u'.', 0, 0).toStdString();
}

/// The sentence, the details, the lines of the caveats, the warnings; of each as many as there are.
std::string outcomeOf(const DirectCommandResult& result) {
  const RunOutcome outcome = makeRunOutcome({.operation = result.command.operation,
                                             .target = result.command.target.name.value_or(u""_s),
                                             .exitCode = result.exitCode,
                                             .standardOutput = result.standardOutput,
                                             .standardError = result.standardError});
  QStringList parts{outcome.sentence};
  parts += outcome.details;
  if (!outcome.caveats.isEmpty()) {
    parts += u"caveats: %1 lines"_s.arg(outcome.caveats.count(u'\n') + 1);
  }
  for (const QString& warning : outcome.warnings) {
    parts += u"warning: "_s + warning;
  }
  return parts.join(u" | "_s).toStdString();
}

TEST_F(TranscriptWords, AreKnownForEachTranscript) {
  for (const QString& name : names()) {
    EXPECT_TRUE(std::ranges::any_of(test::transcriptWords, [&name](const auto& words) {
      return name == QLatin1StringView(words.name);
    })) << name.toStdString();
  }
}

TEST_F(TranscriptWords, AreWhatAUserReads) {
  for (const test::TranscriptWord& words : test::transcriptWords) {
    SCOPED_TRACE(words.name);
    const DirectCommandResult result = resultOf(words);
    EXPECT_EQ(stepsOf(result), result.exitCode == 0 ? "++++" : "+-+-");
    EXPECT_EQ(rowsOf(result), words.rows);
    EXPECT_EQ(adviceOf(result), words.advice);
    EXPECT_EQ(outcomeOf(result), words.outcome);
  }
}

}  // namespace
}  // namespace quillmere

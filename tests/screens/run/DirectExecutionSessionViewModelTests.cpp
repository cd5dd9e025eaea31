#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <gtest/gtest.h>

#include "commands/BrewCommandBuilder.h"
#include "execution/DirectCommandRunner.h"
#include "platform/FileUrl.h"
#include "screens/run/SessionView.h"
#include "support/Printers.h"
#include "support/TestPrefix.h"

namespace quillmere::test {
namespace {

TEST_F(SessionView, BeginsWithNothingToShow) {
  const auto& session = view("#!/bin/sh\n", upgrade);
  EXPECT_EQ(session.commandText(), QStringLiteral("brew upgrade"));
  EXPECT_EQ(session.statusText(), QStringLiteral("Ready"));
  EXPECT_EQ(session.summaryTitle(), QStringLiteral("Upgrade Result"));
  EXPECT_EQ(session.durationText(), QString());
  EXPECT_FALSE(session.showsRawOutput());
  EXPECT_TRUE(session.rawOutputIsEmpty());
  EXPECT_TRUE(session.isRunning());
  EXPECT_EQ(stepStates(), QStringList({QStringLiteral("complete"), QStringLiteral("pending"),
                                       QStringLiteral("pending"), QStringLiteral("pending")}));
}

TEST_F(SessionView, ShowsWhatItPrintedAndHowItEnded) {
  auto& session =
      view("#!/bin/sh\necho '==> Upgrading wget'\necho detail\necho warned >&2\n", upgrade);
  const QAbstractItemModelTester logTester(session.rawOutput());
  const QAbstractItemModelTester summaryTester(session.summaryRows());
  const QAbstractItemModelTester stepsTester(session.progressSteps());
  runToEnd();
  EXPECT_EQ(session.statusText(), QStringLiteral("Completed with exit code 0"));
  EXPECT_EQ(session.statusSymbol(), QStringLiteral("checkmark.circle"));
  EXPECT_EQ(session.statusTint(), QStringLiteral("green"));
  EXPECT_TRUE(session.durationText().endsWith(QStringLiteral(" s")));
  EXPECT_FALSE(session.isRunning());
  EXPECT_EQ(summary(), QStringList(QStringLiteral("Upgrading wget")));
  EXPECT_EQ(stepStates(), QStringList(4, QStringLiteral("complete")));
  EXPECT_TRUE(log().contains(QStringLiteral("detail")));
  const qsizetype warned = log().indexOf(QStringLiteral("warned"));
  EXPECT_EQ(log(RawOutputListModel::StreamRole).at(warned), QStringLiteral("standardError"));
  EXPECT_EQ(log(RawOutputListModel::MarkerRole).at(warned), QStringLiteral("err"));
  EXPECT_TRUE(log().first().startsWith(QStringLiteral("[quillmere] ")));
  EXPECT_EQ(log(RawOutputListModel::MarkerRole).first(), QStringLiteral("app"));
}

TEST_F(SessionView, MarksWhatFailed) {
  const auto& session = view("#!/bin/sh\necho 'Error: no'\nexit 1\n", upgrade);
  runToEnd();
  EXPECT_EQ(session.statusText(), QStringLiteral("Command exited with status 1."));
  EXPECT_EQ(session.statusTint(), QStringLiteral("red"));
  EXPECT_EQ(stepStates(), QStringList({QStringLiteral("complete"), QStringLiteral("failed"),
                                       QStringLiteral("complete"), QStringLiteral("failed")}));
  EXPECT_EQ(model->summaryRows()->index(0).data(OutputSummaryListModel::TintRole).toString(),
            QStringLiteral("red"));
}

TEST_F(SessionView, AdvisesOnAFailureThatItKnows) {
  const auto& session = view(
      "#!/bin/sh\necho 'Error: wget: A `brew install wget` process has already locked x.' >&2\n"
      "exit 1\n",
      upgrade);
  const QSignalSpy said(model.get(), &DirectExecutionSessionViewModel::announced);
  runToEnd();
  EXPECT_TRUE(session.adviceText().startsWith(QStringLiteral("Another brew process is working")));
  const QString both = session.outcomeSentence() + QStringLiteral(". ") + session.adviceText();
  EXPECT_TRUE(QTest::qWaitFor([&] { return said.last()[0].toString() == both; }));
}

TEST_F(SessionView, AdvisesOnNothingThatWentWell) {
  const auto& session = view("#!/bin/sh\necho 'x process has already locked y'\n", upgrade);
  runToEnd();
  EXPECT_EQ(session.adviceText(), QString());
}

TEST_F(SessionView, ShowsOutputWhileTheRunGoesOn) {
  const auto& session = view(
      "#!/bin/sh\ncd \"${0%/*}/..\"\necho '==> Pouring'\n"
      "while [ -e bin/brew ] && [ ! -e release ]; do sleep 0.05; done\n",
      upgrade);
  controller->start();
  ASSERT_TRUE(QTest::qWaitFor([this] { return !summary().isEmpty(); }));
  EXPECT_EQ(session.statusText(), QStringLiteral("Running"));
  EXPECT_EQ(summary(), QStringList(QStringLiteral("Pouring")));
  EXPECT_EQ(stepStates(), QStringList({QStringLiteral("complete"), QStringLiteral("active"),
                                       QStringLiteral("active"), QStringLiteral("pending")}));
  EXPECT_TRUE(log().contains(QStringLiteral("==> Pouring")));
  QSignalSpy settled(model.get(), &DirectExecutionSessionViewModel::outputSettled);
  prefix.withFile(QStringLiteral("release"));
  EXPECT_TRUE(settled.wait());
}

TEST_F(SessionView, ReadsTheOutputAtMostTenTimesASecondAndOnceAtTheEnd) {
  view("#!/bin/sh\ni=0\nwhile [ $i -lt 300 ]; do echo line $i; sleep 0.004; i=$((i+1)); done\n",
       upgrade);
  QSignalSpy changes(model.get(), &DirectExecutionSessionViewModel::presentationChanged);
  QElapsedTimer timer;
  timer.start();
  runToEnd();
  const auto most = timer.elapsed() / 100 + 2;
  EXPECT_LE(changes.count(), most);
  EXPECT_GE(changes.count(), 3);
  const auto atTheEnd = changes.count();
  QTest::qWait(250);
  EXPECT_EQ(changes.count(), atTheEnd);
  EXPECT_EQ(log().filter(QStringLiteral("line ")).size(), 300);
}

TEST_F(SessionView, ShowsTheTextThatATerminalWouldLeaveStanding) {
  view("#!/bin/sh\nprintf '\\033[32mgreen\\033[0m\\nprogress 1\\rprogress 2\\n'\n", upgrade);
  runToEnd();
  EXPECT_TRUE(log().contains(QStringLiteral("green")));
  EXPECT_TRUE(log().contains(QStringLiteral("progress 2")));
  EXPECT_EQ(controller->result()->standardOutput, "\x1b[32mgreen\x1b[0m\nprogress 1\rprogress 2\n");
}

TEST_F(SessionView, SaysSoWhileACancelledChildStillRuns) {
  auto& session = view(
      "#!/bin/sh\ntrap '' TERM\ncd \"${0%/*}/..\"\necho ready\n"
      "while [ -e bin/brew ] && [ ! -e release ]; do sleep 0.05; done\n",
      upgrade);
  controller->start();
  ASSERT_TRUE(QTest::qWaitFor([this] { return log().contains(QStringLiteral("ready")); }));
  EXPECT_FALSE(session.cancellationPending());
  EXPECT_EQ(session.cancelTitle(), QStringLiteral("Cancel"));
  QSignalSpy announced(model.get(), &DirectExecutionSessionViewModel::announced);
  session.cancel();
  EXPECT_TRUE(session.cancellationPending());
  EXPECT_EQ(session.cancelTitle(), QStringLiteral("Cancelling\u2026"));
  EXPECT_EQ(announced.takeLast().constFirst().toString(), session.cancellationText());
  EXPECT_FALSE(session.cancellationText().isEmpty());
  EXPECT_EQ(session.statusText(), QStringLiteral("Running"));
  QSignalSpy settled(model.get(), &DirectExecutionSessionViewModel::outputSettled);
  prefix.withFile(QStringLiteral("release"));
  ASSERT_TRUE(settled.wait());
  EXPECT_FALSE(session.cancellationPending());
  EXPECT_EQ(session.statusText(), QStringLiteral("Cancelled"));
  EXPECT_EQ(session.statusSymbol(), QStringLiteral("stop.circle"));
}

TEST_F(SessionView, NamesWhatItsToggleDoes) {
  auto& session = view("#!/bin/sh\n", upgrade);
  EXPECT_EQ(session.rawOutputToggleTitle(), QStringLiteral("Show Command-Line Output"));
  EXPECT_EQ(session.rawOutputToggleAccessibleName(), QStringLiteral("Show command-line output"));
  session.setShowsRawOutput(true);
  EXPECT_EQ(session.rawOutputToggleTitle(), QStringLiteral("Hide Command-Line Output"));
  EXPECT_EQ(session.rawOutputToggleAccessibleName(), QStringLiteral("Hide command-line output"));
}

TEST_F(SessionView, CopiesLinesOfTheLog) {
  view("#!/bin/sh\nprintf 'one\\ntwo\\nthree\\n'\n", upgrade);
  runToEnd();
  const int first = static_cast<int>(log().indexOf(QStringLiteral("one")));
  model->copyRawOutput(first, first + 1);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("one\ntwo"));
}

TEST_F(SessionView, SaysHowManyLinesItCopied) {
  view("#!/bin/sh\nprintf 'one\\ntwo\\n'\n", upgrade);
  runToEnd();
  QSignalSpy copied(model.get(), &DirectExecutionSessionViewModel::rawOutputCopied);
  model->copyRawOutput(0, 0);
  EXPECT_EQ(copied.takeLast().constFirst().toString(), QStringLiteral("1 line copied"));
  model->copyRawOutput(0, 1'000'000);
  EXPECT_EQ(copied.takeLast().constFirst().toString(),
            QStringLiteral("%1 lines copied").arg(log().size()));
}

TEST_F(SessionView, LeavesTheClipboardWhereThereIsNothingToCopy) {
  view("#!/bin/sh\n", upgrade);
  QGuiApplication::clipboard()->setText(QStringLiteral("mine"));
  model->copyRawOutput(-1, -1);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("mine"));
}

TEST_F(SessionView, AnnouncesHowItStandsEachTimeThatChanges) {
  view("#!/bin/sh\nexit 1\n", upgrade);
  QSignalSpy announced(model.get(), &DirectExecutionSessionViewModel::announced);
  runToEnd();
  ASSERT_EQ(announced.count(), 2);
  EXPECT_EQ(announced.at(0).constFirst().toString(), QStringLiteral("Running"));
  EXPECT_EQ(announced.at(1).constFirst().toString(),
            QStringLiteral("Command exited with status 1."));
}

TEST_F(SessionView, SaysWhatCameOfARunWhenItHasEnded) {
  auto& session = view(
      "#!/bin/sh\necho '==> Upgrading jq'\necho '  1.7 -> 1.8'\n"
      "echo '==> Caveats'\necho 'Mind the gap.'\necho '==> Summary'\n"
      "echo '/opt/Cellar/jq/1.8: 20 files, 1MB'\necho 'Warning: careful' >&2\n",
      upgrade);
  QSignalSpy announced(model.get(), &DirectExecutionSessionViewModel::announced);
  EXPECT_FALSE(session.hasOutcome());
  runToEnd();
  EXPECT_TRUE(session.hasOutcome());
  EXPECT_EQ(session.outcomeSentence(), QStringLiteral("Upgraded jq 1.7 to 1.8"));
  EXPECT_EQ(session.outcomeSymbol(), QStringLiteral("checkmark.circle.fill"));
  EXPECT_EQ(session.outcomeTint(), QStringLiteral("green"));
  EXPECT_EQ(session.outcomeCaveats(), QStringLiteral("Mind the gap."));
  EXPECT_EQ(session.outcomeWarnings(), QStringList(QStringLiteral("careful")));
  // The status is heard first.
  EXPECT_EQ(announced.last()[0].toString(), session.statusText());
  const auto before = announced.count();
  EXPECT_TRUE(QTest::qWaitFor([&] { return announced.count() > before; }));
  EXPECT_EQ(announced.last()[0].toString(), session.outcomeSentence());
  EXPECT_EQ(announced.count(), before + 1);
}

TEST_F(SessionView, SaysNothingOfAnOutcomeThatItDoesNotKnow) {
  auto& session = view("#!/bin/sh\necho something\nexit 1\n", upgrade);
  runToEnd();
  EXPECT_FALSE(session.hasOutcome());
}

TEST_F(SessionView, SaysWhatACancelledRunWasDoing) {
  auto& session = view(
      "#!/bin/sh\ntrap 'echo Error: SIGTERM >&2; exit 1' TERM\ncd \"${0%/*}/..\"\n"
      "echo '==> Upgrading jq'\nwhile [ -e bin/brew ]; do sleep 0.05; done\n",
      upgrade);
  controller->start();
  ASSERT_TRUE(QTest::qWaitFor([this] { return !summary().isEmpty(); }));
  QSignalSpy settled(model.get(), &DirectExecutionSessionViewModel::outputSettled);
  session.cancel();
  ASSERT_TRUE(settled.wait());
  EXPECT_EQ(session.outcomeSentence(),
            QStringLiteral("Cancelled while upgrading jq; a part of it may have been left"));
  EXPECT_EQ(session.outcomeTint(), QStringLiteral("neutral"));
}

TEST_F(SessionView, DrawsACancelledRunAsNoSuccess) {
  auto& session = view(
      "#!/bin/sh\ntrap 'exit 1' TERM\ncd \"${0%/*}/..\"\n"
      "echo '==> Upgrading jq'\nwhile [ -e bin/brew ]; do sleep 0.05; done\n",
      upgrade);
  controller->start();
  ASSERT_TRUE(QTest::qWaitFor([this] { return !summary().isEmpty(); }));
  const auto row = session.summaryRows()->index(0);
  EXPECT_EQ(row.data(OutputSummaryListModel::ShownTintRole), QStringLiteral("green"));
  QSignalSpy settled(model.get(), &DirectExecutionSessionViewModel::outputSettled);
  session.cancel();
  ASSERT_TRUE(settled.wait());
  EXPECT_EQ(row.data(OutputSummaryListModel::TintRole), QStringLiteral("green"));
  EXPECT_EQ(row.data(OutputSummaryListModel::ShownTintRole), QStringLiteral("neutral"));
  EXPECT_EQ(stepStates(), QStringList(4, QStringLiteral("complete")));
  for (int step = 0; step < 4; ++step) {
    EXPECT_EQ(session.progressSteps()->index(step).data(ProgressStepListModel::TintRole),
              QStringLiteral("neutral"));
  }
}

TEST_F(SessionView, DrawsTheStepsOfARunByTheirStates) {
  auto& session = view("#!/bin/sh\nexit 1\n", upgrade);
  const auto tint = [&session](int step) {
    return session.progressSteps()->index(step).data(ProgressStepListModel::TintRole).toString();
  };
  EXPECT_EQ(tint(0), QStringLiteral("green"));
  EXPECT_EQ(tint(1), QStringLiteral("neutral"));
  runToEnd();
  EXPECT_EQ(tint(0), QStringLiteral("green"));
  EXPECT_EQ(tint(1), QStringLiteral("red"));
}

TEST_F(SessionView, ShowsALineThatGrows) {
  RawOutputListModel log;
  const QAbstractItemModelTester tester(&log);
  OutputTranscript transcript(BrewCommandOperation::install);
  const auto print = [&](const QByteArray& text) {
    const DirectExecutionOutputChunk chunk{.text = text};
    auto lines = transcript.add({&chunk, 1});
    log.append(std::move(lines), transcript.unfinishedLine());
  };
  print("wor");
  EXPECT_EQ(log.text(0, 9), QStringLiteral("wor"));
  print("king");
  EXPECT_EQ(log.text(0, 9), QStringLiteral("working"));
  print("\nnext");
  EXPECT_EQ(log.text(0, 9), QStringLiteral("working\nnext"));
  EXPECT_EQ(log.text(1, 1), QStringLiteral("next"));
  print("\n");
  EXPECT_EQ(log.rowCount(), 2);
}

}  // namespace
}  // namespace quillmere::test

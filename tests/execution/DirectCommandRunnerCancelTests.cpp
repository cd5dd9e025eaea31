#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QRandomGenerator>
#include <QtTest/QTest>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <thread>

#include "execution/RunFixture.h"
#include "platform/SecurityScopedAccess.h"

namespace quillmere::test {
namespace {

using enum DirectExecutionOutputStream;

const QString beforeLaunch =
    QStringLiteral("Cancellation requested before process launch. Closing Direct session stream.");
const QString started = QStringLiteral("started");

TEST(DirectCommandRunnerCancel, NeverLaunchesAChildThatWasCancelledBefore) {
  TestPrefix prefix;
  prefix.withBrew("#!/bin/sh\ntouch \"${0%/*}/../ran\"\n");
  // The run's thread may be quicker than this one; it is not a hundred times in a row.
  for (int attempt = 0; attempt < 100; ++attempt) {
    const auto execution = startRun(prefix);
    execution->cancel();
    const FinishedRun run = finish(execution);
    if (run.result.exitCode != -1) {
      QFile::remove(prefix.pathOf(QStringLiteral("ran")));
      continue;
    }
    EXPECT_TRUE(run.result.wasCancelled);
    EXPECT_EQ(run.diagnostics().size(), 9);
    EXPECT_EQ(run.diagnostics().last(), beforeLaunch);
    EXPECT_EQ(run.text(standardOutput) + run.text(standardError), QByteArray());
    EXPECT_FALSE(QFile::exists(prefix.pathOf(QStringLiteral("ran"))));
    return;
  }
  FAIL() << "no run was cancelled before its launch";
}

TEST(DirectCommandRunnerCancel, EndsARunThatWouldNeverEnd) {
  TestPrefix prefix;
  prefix.withBrew(
      "#!/bin/sh\necho working\ntouch \"${0%/*}/../started\"\nwhile :; do sleep 5; done\n");
  const auto execution = startRun(prefix);
  ASSERT_TRUE(waitForFile(prefix.pathOf(started)));
  execution->cancel();
  const FinishedRun run = finish(execution);
  EXPECT_TRUE(run.result.wasCancelled);
  EXPECT_EQ(run.result.exitCode, SIGTERM);
  EXPECT_EQ(run.text(standardOutput), "working\n");
  EXPECT_TRUE(livingProcessesOfSession(sessionOf(run)).isEmpty());
}

TEST(DirectCommandRunnerCancel, ReachesToolsInProcessGroupsOfTheirOwn) {
  TestPrefix prefix;
  prefix.withBrew(
      "#!/bin/bash\n"
      "set -m\n"  // each background job leads a group of its own, as brew's downloads do
      "sleep 300 &\n"
      "(sleep 301 & wait) &\n"
      "trap 'echo Error: SIGTERM >&2; exit 1' TERM\n"
      "touch \"${0%/*}/../started\"\n"
      "wait\n");
  const auto execution = startRun(prefix);
  ASSERT_TRUE(waitForFile(prefix.pathOf(started)));
  execution->cancel();
  const FinishedRun run = finish(execution);
  EXPECT_TRUE(run.result.wasCancelled);
  EXPECT_EQ(run.result.exitCode, 1);
  // The shell may find the time to say that its jobs were terminated.
  EXPECT_TRUE(run.result.standardError.contains("Error: SIGTERM\n"));
  const qint64 session = sessionOf(run);
  EXPECT_TRUE(
      QTest::qWaitFor([session] { return livingProcessesOfSession(session).isEmpty(); }, 5000));
}

TEST(DirectCommandRunnerCancel, WaitsForAChildThatIgnoresTheRequest) {
  TestPrefix prefix;
  prefix.withBrew(
      "#!/bin/sh\ntrap '' TERM\ncd \"${0%/*}/..\"\ntouch started\n"
      "while [ -e bin/brew ] && [ ! -e release ]; do sleep 0.05; done\necho finished my work\n");
  const auto execution = startRun(prefix);
  ASSERT_TRUE(waitForFile(prefix.pathOf(started)));
  execution->cancel();
  QTest::qWait(400);
  EXPECT_FALSE(execution->result().isFinished());
  prefix.withFile(QStringLiteral("release"));
  const FinishedRun run = finish(execution);
  EXPECT_TRUE(run.result.wasCancelled);
  EXPECT_EQ(run.result.exitCode, 0);
  EXPECT_EQ(run.result.standardOutput, "finished my work\n");
}

TEST(DirectCommandRunnerCancel, ChangesNothingAfterTheEnd) {
  TestPrefix prefix;
  prefix.withBrew("#!/bin/sh\necho done\n");
  const auto execution = startRun(prefix);
  const FinishedRun run = finish(execution);
  execution->cancel();
  execution->cancel();
  EXPECT_FALSE(run.result.wasCancelled);
  EXPECT_FALSE(execution->result().result()->wasCancelled);
  EXPECT_TRUE(execution->output()->take().empty());
}

TEST(DirectCommandRunnerCancel, LeavesNothingBehindAtAnyMoment) {
  constexpr int runs = 1000;
  constexpr int atOnce = 20;
  constexpr int latestCancel = 12'000;  // microseconds; the child lives about half as long
  TestPrefix prefix;
  prefix.withBrew("#!/bin/sh\necho one\nsleep 0.005\necho two >&2\n");
  EXPECT_EQ(finish(startRun(prefix)).result.exitCode, 0);  // what is made once is made now
  const auto counts = SecurityScopedAccess::counts();
  const qsizetype descriptors = openDescriptors();
  int cancelledBeforeLaunch = 0;
  int cancelledLater = 0;
  for (int batch = 0; batch < runs / atOnce; ++batch) {
    std::vector<std::shared_ptr<DirectCommandExecution>> executions;
    for (int i = 0; i < atOnce; ++i) {
      executions.push_back(startRun(prefix));
      const int wait = QRandomGenerator::global()->bounded(latestCancel) * (i % 4) / 3;
      std::jthread([execution = executions.back(), wait] {
        std::this_thread::sleep_for(std::chrono::microseconds(wait));
        execution->cancel();
      }).detach();
    }
    for (const auto& execution : executions) {
      const FinishedRun run = finish(execution);
      const bool neverRan = run.result.exitCode == -1;
      EXPECT_EQ(neverRan, run.diagnostics().contains(beforeLaunch));
      cancelledBeforeLaunch += neverRan ? 1 : 0;
      cancelledLater += !neverRan && run.result.wasCancelled ? 1 : 0;
      EXPECT_TRUE(neverRan || livingProcessesOfSession(sessionOf(run)).isEmpty());
    }
  }
  EXPECT_GT(cancelledBeforeLaunch, 0);
  EXPECT_GT(cancelledLater, 0);
  EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
  EXPECT_EQ(errno, ECHILD);
  const auto countsNow = SecurityScopedAccess::counts();
  EXPECT_EQ(countsNow.started - counts.started, runs);
  EXPECT_EQ(countsNow.stopped - counts.stopped, runs);
  // The threads that cancelled late may still be asleep, each with a hold on its run.
  EXPECT_TRUE(QTest::qWaitFor([descriptors] { return openDescriptors() <= descriptors; }, 5000));
}

}  // namespace
}  // namespace quillmere::test

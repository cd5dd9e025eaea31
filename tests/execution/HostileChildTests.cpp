#include <QtCore/QElapsedTimer>
#include <QtTest/QTest>

#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include "execution/RunFixture.h"
#include "support/Rounds.h"

namespace quillmere::test {
namespace {

using namespace Qt::StringLiterals;
using enum DirectExecutionOutputStream;

/// Runs that mean no good; nothing may be left of any.
class HostileChild : public testing::Test {
 protected:
  void SetUp() override {
    EXPECT_EQ(runScript("#!/bin/sh\n").result.exitCode, 0);  // what is made once is made now
    descriptors_ = openDescriptors();
  }

  void TearDown() override {
    execution.reset();
    // The thread of the run may still hold what it ended with.
    EXPECT_TRUE(QTest::qWaitFor([this] { return openDescriptors() <= descriptors_; }, 20'000))
        << openDescriptors() << " descriptors instead of " << descriptors_;
    EXPECT_LE(waitpid(-1, nullptr, WNOHANG), 0) << "a zombie";
  }

  /// Starts a script in the prefix's folder and waits until it says that it has come so far.
  void startAndWait(const QByteArray& script) {
    prefix.withBrew("#!/bin/bash\ncd \"${0%/*}/..\"\n" + script);
    execution = startRun(prefix);
    ASSERT_TRUE(waitForFile(prefix.pathOf(u"started"_s)));
  }

  /// Lets go whatever waits for it in `untilReleased`.
  void release() { prefix.withFile(u"release"_s); }

  static void expectNobodyLeftOf(qint64 session) {
    EXPECT_TRUE(
        QTest::qWaitFor([session] { return livingProcessesOfSession(session).isEmpty(); }, 20'000));
  }

  /// A command that lasts until it is released, or until the prefix is gone.
  const QByteArray untilReleased =
      "while [ -e bin/brew ] && [ ! -e release ]; do sleep 0.05; done\n";
  TestPrefix prefix;
  std::shared_ptr<DirectCommandExecution> execution;

 private:
  qsizetype descriptors_ = 0;
};

TEST_F(HostileChild, IsFollowedThoughItClosedItsOutputs) {
  startAndWait("echo last words\nexec >&- 2>&-\ntouch started\n" + untilReleased + "exit 3\n");
  QTest::qWait(50);
  EXPECT_FALSE(execution->result().isFinished());
  release();
  const FinishedRun run = finish(execution);
  EXPECT_EQ(run.result.exitCode, 3);
  EXPECT_EQ(run.result.standardOutput, "last words\n");
}

TEST_F(HostileChild, IsEndedThoughItClosedItsOutputs) {
  startAndWait("exec >&- 2>&-\ntouch started\nexec sleep 300\n");
  execution->cancel();
  EXPECT_EQ(finish(execution).result.exitCode, SIGTERM);
}

TEST_F(HostileChild, IsEndedThoughItWasStopped) {
  startAndWait("touch started\nkill -STOP $$\necho went on\n");
  execution->cancel();
  const FinishedRun run = finish(execution);
  EXPECT_TRUE(run.result.wasCancelled);
  EXPECT_EQ(run.result.exitCode, SIGTERM);
}

TEST_F(HostileChild, IsEndedThoughNoDescriptorIsLeft) {
  startAndWait("touch started\nexec sleep 300\n");
  rlimit before{};
  ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &before), 0);
  // As many as the runner polls; the first of them are open in any program.
  const rlimit few{.rlim_cur = 4, .rlim_max = before.rlim_max};
  ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &few), 0);
  EXPECT_EQ(open("/dev/null", O_RDONLY), -1);
  execution->cancel();
  const FinishedRun run = finish(execution);
  ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &before), 0);
  EXPECT_EQ(run.result.exitCode, SIGTERM);
}

TEST_F(HostileChild, WritesALineThatNeverEnds) {
  constexpr qsizetype size = 100'000'000;
  const FinishedRun run = runScript("#!/bin/sh\nhead -c 100000000 /dev/zero | tr '\\0' x >&2\n");
  EXPECT_EQ(run.result.standardError.size(), size);
  EXPECT_EQ(run.result.standardError.count('x'), size);
}

TEST_F(HostileChild, WritesByteByByte) {
  const int writes = rounds(50'000, 5'000'000);
  const FinishedRun run = runScript("#!/bin/sh\nexec dd if=/dev/zero bs=1 status=none count=" +
                                    QByteArray::number(writes) + '\n');
  EXPECT_EQ(run.result.standardOutput, QByteArray(writes, '\0'));
  EXPECT_TRUE(run.text(standardOutput) == run.result.standardOutput);
}

TEST_F(HostileChild, LeavesSomebodyBehindWhoWritesOn) {
  const FinishedRun run = runScript("#!/bin/sh\necho done\nyes >&2 &\nexit 4\n");
  EXPECT_EQ(run.result.exitCode, 4);
  EXPECT_EQ(run.result.standardOutput, "done\n");
  expectNobodyLeftOf(sessionOf(run));  // nobody reads any more
}

TEST_F(HostileChild, LeavesSomebodyBehindWhoKeepsThePipes) {
  startAndWait("(" + untilReleased.trimmed() + "; touch gone) &\ntouch started\necho done\n");
  const FinishedRun run = finish(execution);
  EXPECT_EQ(run.result.standardOutput, "done\n");
  EXPECT_FALSE(waitpid(-1, nullptr, WNOHANG) > 0);
  release();
  EXPECT_TRUE(waitForFile(prefix.pathOf(u"gone"_s)));
}

TEST_F(HostileChild, StormsWithForks) {
  // Each a group of its own, with a child of its own; the first hears of the request and starts
  // others in answer.
  startAndWait(
      "set -m\n"
      "trap 'for i in $(seq 20); do sleep 300 & done' TERM\n"
      "for i in $(seq 100); do (sleep 300 & wait) & done 2>/dev/null\n"
      "touch started\nwait\nwait\n");
  execution->cancel();
  QElapsedTimer patience;
  patience.start();
  // The trap makes the shell survive the first request; the next reaches it and all that are new.
  while (!execution->result().isFinished() && patience.elapsed() < 60'000) {
    QTest::qWait(20);
    execution->cancel();
  }
  ASSERT_TRUE(execution->result().isFinished());
  const FinishedRun run = finish(execution);
  EXPECT_TRUE(run.result.wasCancelled);
  expectNobodyLeftOf(sessionOf(run));
}

TEST_F(HostileChild, HasChildrenInSessionsOfTheirOwn) {
  // They are out of reach and keep the pipes; the run ends without them.
  startAndWait("for i in 1 2 3; do setsid bash -c 'touch ready$0; " + untilReleased.trimmed() +
               "; touch gone$0' $i & done\n"
               "until [ -e ready1 -a -e ready2 -a -e ready3 ]; do sleep 0.05; done\n"
               "touch started\nexec sleep 300\n");
  execution->cancel();
  const FinishedRun run = finish(execution);
  EXPECT_TRUE(run.result.wasCancelled);
  expectNobodyLeftOf(sessionOf(run));
  release();
  for (const char* number : {"1", "2", "3"}) {
    EXPECT_TRUE(waitForFile(prefix.pathOf(u"gone"_s + QLatin1StringView(number))));
  }
}

}  // namespace
}  // namespace quillmere::test

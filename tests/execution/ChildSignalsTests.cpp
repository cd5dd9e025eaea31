#include <csignal>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include "execution/RunFixture.h"

namespace quillmere::test {
namespace {

using namespace Qt::StringLiterals;
using testing::MatchesRegex;
using enum DirectExecutionOutputStream;

/// What this process does on a signal, until the end of the scope.
class Disposition {
 public:
  Disposition(int signal, void (*handler)(int), int flags = 0) : signal_(signal) {
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = flags;
    EXPECT_EQ(sigaction(signal_, &action, &before_), 0);
  }

  ~Disposition() { EXPECT_EQ(sigaction(signal_, &before_, nullptr), 0); }

  Disposition(const Disposition&) = delete;
  Disposition& operator=(const Disposition&) = delete;

 private:
  int signal_;
  struct sigaction before_ = {};
};

void doNothing(int /*signal*/) {
}

/// Whoever starts this program may have it ignore the end of its children, which then leave no
/// status behind.
TEST(ChildSignals, LeaveTheExitStatusThoughTheEndOfChildrenWasIgnored) {
  const Disposition ignored(SIGCHLD, SIG_IGN);
  const FinishedRun run = runScript("#!/bin/sh\nexit 3\n");
  EXPECT_EQ(run.result.exitCode, 3);
  EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "a zombie";
}

TEST(ChildSignals, LeaveTheExitStatusThoughChildrenWereNotToBeWaitedFor) {
  const Disposition unwaited(SIGCHLD, SIG_DFL, SA_NOCLDWAIT);
  EXPECT_EQ(runScript("#!/bin/sh\nexit 3\n").result.exitCode, 3);
}

TEST(ChildSignals, LeaveTheHandlerOfAnother) {
  const Disposition handled(SIGCHLD, &doNothing, SA_RESTART | SA_NOCLDWAIT);
  EXPECT_EQ(runScript("#!/bin/sh\nexit 3\n").result.exitCode, 3);
  struct sigaction now = {};
  ASSERT_EQ(sigaction(SIGCHLD, nullptr, &now), 0);
  EXPECT_EQ(now.sa_handler, &doNothing);
  EXPECT_EQ(now.sa_flags & (SA_RESTART | SA_NOCLDWAIT), SA_RESTART);
}

TEST(ChildSignals, AreNoSuccessWhereTheExitStatusIsLost) {
  TestPrefix prefix;
  prefix.withBrew(
      "#!/bin/sh\ncd \"${0%/*}/..\"\necho last words\ntouch started\n"
      "while [ -e bin/brew ] && [ ! -e release ]; do sleep 0.05; done\nexit 3\n");
  const auto execution = startRun(prefix);
  ASSERT_TRUE(waitForFile(prefix.pathOf(u"started"_s)));
  const Disposition ignored(SIGCHLD, SIG_IGN);
  prefix.withFile(u"release"_s);
  const DirectCommandOutcome outcome = execution->result().result();
  ASSERT_FALSE(outcome) << "exit code " << outcome->exitCode;
  const std::error_code noChild(ECHILD, std::system_category());
  EXPECT_EQ(outcome.error(), DirectCommandRunnerError(SystemFailure{noChild}));
  const FinishedRun run{{}, execution->output()->take()};
  EXPECT_EQ(run.text(standardOutput), "last words\n");
  EXPECT_EQ(run.diagnostics().at(9),
            u"Process exited, but its status is lost: No child processes. "
            "Collecting remaining output."_s);
  EXPECT_EQ(run.diagnostics().last(),
            u"Output collection finished. Closing Direct session stream."_s);
}

TEST(ChildSignals, AreThoseOfAFreshProgram) {
  const Disposition children(SIGCHLD, SIG_IGN);
  const Disposition pipes(SIGPIPE, SIG_IGN);
  const Disposition hangUps(SIGHUP, SIG_IGN);
  sigset_t blocked;
  sigset_t before;
  sigemptyset(&blocked);
  sigaddset(&blocked, SIGTERM);
  ASSERT_EQ(pthread_sigmask(SIG_BLOCK, &blocked, &before), 0);
  const FinishedRun run = runScript("#!/bin/sh\nexec grep -E 'Sig(Blk|Ign)' /proc/self/status\n");
  ASSERT_EQ(pthread_sigmask(SIG_SETMASK, &before, nullptr), 0);
  // The C library ignores the two signals behind the standard ones, its own, in all it starts.
  EXPECT_THAT(run.text(standardOutput).toStdString(),
              MatchesRegex("SigBlk:\t0000000000000000\nSigIgn:\t0000000[01][08]0000000\n"));
}

}  // namespace
}  // namespace quillmere::test

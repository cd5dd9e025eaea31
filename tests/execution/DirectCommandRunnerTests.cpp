#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>

#include <csignal>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "execution/DirectCommandRunner.h"
#include "execution/RunFixture.h"
#include "platform/FileUrl.h"
#include "platform/SecurityScopedAccess.h"

namespace quillmere::test {
namespace {

using enum DirectExecutionOutputStream;
using testing::ElementsAre;
using testing::StartsWith;

std::vector<std::string> lines(const QStringList& list) {
  std::vector<std::string> result;
  for (const QString& line : list) {
    result.push_back(line.toStdString());
  }
  return result;
}

TEST(DirectCommandRunner, TellsEachStepOfARunInOrder) {
  TestPrefix prefix;
  prefix.withBrew("#!/bin/sh\nprintf '%s|' \"$@\"\nexit 0\n");
  const FinishedRun run = finish(startRun(prefix));
  const std::string path = prefix.path().toStdString();
  const std::vector<std::string> told = lines(run.diagnostics());
  EXPECT_THAT(
      told,
      ElementsAre("Preparing Direct Homebrew process.", "Executable: " + path + "/bin/brew",
                  "Arguments: info wget", "Selected prefix: " + path, "Security scope started: yes",
                  "PATH: " + path + "/bin:/usr/bin:/bin:/usr/sbin:/sbin",
                  "Homebrew flags: HOMEBREW_NO_AUTO_UPDATE=1, HOMEBREW_NO_INPUT=1, "
                  "HOMEBREW_NO_ANALYTICS=1",
                  "Output readers started. Launching process.",
                  testing::MatchesRegex("Process launched with pid [0-9]+\\. Waiting for exit\\."),
                  "Process exited with status 0. Collecting remaining output.",
                  "Output collection finished. Closing Direct session stream."));
  EXPECT_EQ(run.text(standardOutput), "info|wget|");
}

TEST(DirectCommandRunner, SaysInItsResultWhatCameOfTheRun) {
  TestPrefix prefix;
  prefix.withBrew("#!/bin/sh\necho 'Error: no such thing' >&2\nexit 1\n");
  const DirectCommandResult result = finish(startRun(prefix)).result;
  EXPECT_EQ(result.outcome.sentence, QStringLiteral("Failed: no such thing"));
  EXPECT_EQ(result.outcome.kind, RunOutcome::Kind::failure);
}

TEST(DirectCommandRunner, DescribesTheRunInItsResult) {
  TestPrefix prefix;
  prefix.withBrew("#!/bin/sh\necho out\necho err >&2\n");
  const BrewCommand command = infoCommand();
  const QDateTime before = QDateTime::currentDateTimeUtc();
  const DirectCommandResult result = finish(startRun(prefix, command)).result;
  EXPECT_EQ(result.command, command);
  EXPECT_EQ(result.brewExecutableURL, appendingPath(prefix.url(), u"bin/brew"));
  EXPECT_EQ(result.arguments, QStringList({QStringLiteral("info"), QStringLiteral("wget")}));
  EXPECT_EQ(result.standardOutput, "out\n");
  EXPECT_EQ(result.standardError, "err\n");
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_FALSE(result.wasCancelled);
  EXPECT_LE(before, result.startedAt);
  EXPECT_LE(result.startedAt, result.endedAt);
  EXPECT_LE(result.endedAt, QDateTime::currentDateTimeUtc());
}

TEST(DirectCommandRunner, RefusesAPrefixWithoutBrewAndStartsNothing) {
  using Status = BrewExecutableResolution::Status;
  for (const Status status : {Status::noSelectedPrefix, Status::invalidPrefix,
                              Status::missingExecutable, Status::notExecutable}) {
    const auto execution = DirectCommandRunner().start(
        infoCommand(), {status, std::nullopt, fileUrl(QStringLiteral("/bin/true"))});
    ASSERT_FALSE(execution);
    EXPECT_EQ(execution.error(), DirectCommandRunnerError(UnresolvedBrewExecutable{status}));
  }
  const auto withoutUrl = DirectCommandRunner().start(
      infoCommand(), {Status::resolved, fileUrl(QStringLiteral("/")), std::nullopt});
  ASSERT_FALSE(withoutUrl);
  EXPECT_EQ(withoutUrl.error(),
            DirectCommandRunnerError(UnresolvedBrewExecutable{Status::resolved}));
}

TEST(DirectCommandRunner, RefusesATargetThatTheOperationHasNoFormFor) {
  TestPrefix prefix;
  BrewCommand command = infoCommand();
  command.target.kind = BrewCommandTargetKind::global;
  const auto execution = DirectCommandRunner().start(command, resolved(prefix));
  ASSERT_FALSE(execution);
  EXPECT_EQ(execution.error(),
            DirectCommandRunnerError(UnsupportedTarget{BrewCommandTargetKind::global}));
}

TEST(DirectCommandRunner, RunsWithTheSystemsSearchPathWhereNoPrefixIsKnown) {
  TestPrefix prefix;
  prefix.withBrew("#!/bin/sh\necho $PATH\n");
  BrewExecutableResolution resolution = resolved(prefix);
  resolution.selectedPrefixURL.reset();
  const FinishedRun run = finish(DirectCommandRunner().start(infoCommand(), resolution).value());
  EXPECT_EQ(run.text(standardOutput), "/usr/bin:/bin:/usr/sbin:/sbin\n");
  EXPECT_TRUE(run.diagnostics().contains(QStringLiteral("Selected prefix: none")));
  EXPECT_TRUE(run.diagnostics().contains(QStringLiteral("Security scope started: no")));
  EXPECT_TRUE(run.diagnostics().contains(QStringLiteral("PATH: /usr/bin:/bin:/usr/sbin:/sbin")));
}

TEST(DirectCommandRunner, GivesTheChildTheVariablesThatItSets) {
  qputenv("HOMEBREW_NO_INPUT", "inherited");
  const FinishedRun run =
      runScript("#!/bin/sh\nenv | grep -E '^(HOMEBREW_NO_|CLICOLOR|NO_COLOR)' | LC_ALL=C sort\n");
  qunsetenv("HOMEBREW_NO_INPUT");
  EXPECT_EQ(run.text(standardOutput),
            "CLICOLOR=0\nHOMEBREW_NO_ANALYTICS=1\nHOMEBREW_NO_AUTO_UPDATE=1\n"
            "HOMEBREW_NO_ENV_HINTS=1\nHOMEBREW_NO_INPUT=1\nNO_COLOR=1\n");
}

TEST(DirectCommandRunner, LetsAQuestionFailAtOnce) {
  const FinishedRun run =
      runScript("#!/bin/sh\nif read answer; then echo answered; else echo nobody there; fi\n");
  EXPECT_EQ(run.text(standardOutput), "nobody there\n");
}

TEST(DirectCommandRunner, LeadsASessionWithoutATerminal) {
  const FinishedRun run = runScript(
      "#!/bin/sh\n"
      "set -- $(sed 's/.*) //' /proc/$$/stat)\n"
      "[ \"$4\" = $$ ] && echo leader\n"
      "(: </dev/tty) 2>/dev/null || echo no terminal\n");
  EXPECT_EQ(run.text(standardOutput), "leader\nno terminal\n");
}

TEST(DirectCommandRunner, StartsTheChildWithDefaultSignals) {
  const auto previous = std::signal(SIGINT, SIG_IGN);
  sigset_t blocked;
  sigset_t before;
  sigemptyset(&blocked);
  sigaddset(&blocked, SIGTERM);
  pthread_sigmask(SIG_BLOCK, &blocked, &before);
  const FinishedRun run = runScript(
      "#!/bin/sh\nexec sed -n 's/^Sig\\(Ign\\|Blk\\):[^0-9]*/\\1 /p' /proc/self/status\n");
  pthread_sigmask(SIG_SETMASK, &before, nullptr);
  std::signal(SIGINT, previous);
  // The C library keeps the two signals above these for itself.
  constexpr qulonglong ordinarySignals = 0x7fffffff;
  const QList<QByteArray> masks = run.text(standardOutput).trimmed().split('\n');
  ASSERT_EQ(masks.size(), 2);
  for (const QByteArray& mask : masks) {
    EXPECT_EQ(mask.sliced(4).toULongLong(nullptr, 16) & ordinarySignals, 0U) << mask.toStdString();
  }
}

TEST(DirectCommandRunner, KeepsItsDescriptorsFromTheChild) {
  const int ours = open("/dev/null", O_RDONLY);  // without close-on-exec, as a library might
  const FinishedRun run = runScript("#!/bin/sh\nexec ls /proc/self/fd\n");
  close(ours);
  // The folder that is being listed is open too.
  QList<QByteArray> descriptors = run.text(standardOutput).trimmed().split('\n');
  EXPECT_LE(descriptors.size(), 4);
  for (const char* standard : {"0", "1", "2"}) {
    EXPECT_TRUE(descriptors.contains(standard)) << standard;
  }
}

TEST(DirectCommandRunner, StartsWhereTheProgramWasStarted) {
  const FinishedRun run = runScript("#!/bin/sh\npwd -P\n");
  EXPECT_EQ(QString::fromUtf8(run.text(standardOutput)).trimmed(),
            QDir(QDir::currentPath()).canonicalPath());
}

TEST(DirectCommandRunner, StartsAtHomeWhereTheWorkingDirectoryIsGone) {
  const QString before = QDir::currentPath();
  const QByteArray homeBefore = qgetenv("HOME");
  const TestPrefix home;
  {
    const TestPrefix gone;
    ASSERT_TRUE(QDir::setCurrent(gone.path()));
  }
  qputenv("HOME", home.path().toLocal8Bit());
  const FinishedRun run = runScript("#!/bin/sh\npwd -P\n");
  qputenv("HOME", homeBefore);
  ASSERT_TRUE(QDir::setCurrent(before));
  EXPECT_EQ(QString::fromUtf8(run.text(standardOutput)).trimmed(),
            QDir(home.path()).canonicalPath());
}

TEST(DirectCommandRunner, ReportsTheExitStatus) {
  for (const int status : {0, 1, 255}) {
    const FinishedRun run = runScript("#!/bin/sh\nexit " + QByteArray::number(status) + '\n');
    EXPECT_EQ(run.result.exitCode, status);
    EXPECT_FALSE(run.result.wasCancelled);
  }
}

TEST(DirectCommandRunner, ReportsTheSignalThatEndedTheChild) {
  const FinishedRun run = runScript("#!/bin/sh\necho last words\nkill -KILL $$\n");
  EXPECT_EQ(run.result.exitCode, SIGKILL);
  EXPECT_EQ(run.text(standardOutput), "last words\n");
  EXPECT_THAT(run.diagnostics().at(9).toStdString(), StartsWith("Process exited with status 9."));
}

TEST(DirectCommandRunner, PassesOnWhyTheProgramDidNotStart) {
  TestPrefix prefix;
  prefix.withFile(QStringLiteral("bin/brew"), "#!/no/such/interpreter\n");
  prefix.withBrew("#!/no/such/interpreter\n");
  const auto counts = SecurityScopedAccess::counts();
  const auto execution = startRun(prefix);
  const DirectCommandOutcome outcome = execution->result().result();
  ASSERT_FALSE(outcome);
  const DirectCommandRunnerError expected =
      SystemFailure{std::error_code(ENOENT, std::system_category())};
  EXPECT_EQ(outcome.error(), expected);
  const FinishedRun run{{}, execution->output()->take()};
  EXPECT_TRUE(hasFinished(*execution->output()));
  EXPECT_EQ(run.diagnostics().last(),
            QStringLiteral("Process launch failed: ") + description(expected));
  EXPECT_EQ(SecurityScopedAccess::counts(),
            (SecurityScopedAccess::Counts{counts.started + 1, counts.stopped + 1}));
}

TEST(DirectCommandRunner, StartsAndStopsAccessToThePrefixOnce) {
  const auto counts = SecurityScopedAccess::counts();
  EXPECT_EQ(runScript("#!/bin/sh\n").result.exitCode, 0);
  EXPECT_EQ(SecurityScopedAccess::counts(),
            (SecurityScopedAccess::Counts{counts.started + 1, counts.stopped + 1}));
}

TEST(DirectCommandRunner, DeliversBothStreamsAsTheyInterleave) {
  const FinishedRun run = runScript(
      "#!/bin/sh\nfor i in 1 2 3; do echo out $i; sleep 0.05; echo err $i >&2; sleep 0.05; done\n");
  QByteArray together;
  for (const auto& chunk : run.chunks) {
    if (chunk.stream != diagnostic) {
      together += chunk.text;
    }
  }
  EXPECT_EQ(together, "out 1\nerr 1\nout 2\nerr 2\nout 3\nerr 3\n");
  EXPECT_EQ(run.result.standardOutput, "out 1\nout 2\nout 3\n");
  EXPECT_EQ(run.result.standardError, "err 1\nerr 2\nerr 3\n");
}

TEST(DirectCommandRunner, JoinsACharacterThatWasSplitOverTwoReads) {
  const FinishedRun run = runScript(
      "#!/bin/sh\nprintf '\\342\\202'; sleep 0.2; printf '\\254 \\360\\237'; sleep 0.2; "
      "printf '\\215\\272'\n");
  EXPECT_EQ(run.text(standardOutput), "€ 🍺");
  EXPECT_EQ(run.result.standardOutput, "€ 🍺");
}

TEST(DirectCommandRunner, ReplacesWhatIsNoCharacter) {
  const FinishedRun run = runScript("#!/bin/sh\nprintf 'a\\377b'; printf 'half \\342\\202'\n");
  EXPECT_EQ(run.text(standardOutput), "a\uFFFDbhalf \uFFFD");
  EXPECT_EQ(run.result.standardOutput, run.text(standardOutput));
}

TEST(DirectCommandRunner, KeepsNulBytesAndCarriageReturns) {
  const FinishedRun run = runScript("#!/bin/sh\nprintf 'a\\000b\\rc\\r\\n'\n");
  EXPECT_EQ(run.text(standardOutput), QByteArray("a\0b\rc\r\n", 7));
}

TEST(DirectCommandRunner, DeliversAllThatWasWrittenJustBeforeTheExit) {
  const FinishedRun run =
      runScript("#!/bin/sh\nhead -c 60000 /dev/zero | tr '\\0' x\nprintf err >&2\n");
  EXPECT_EQ(run.text(standardOutput), QByteArray(60000, 'x'));
  EXPECT_EQ(run.text(standardError), "err");
}

TEST(DirectCommandRunner, DeliversAHundredMegabytes) {
  constexpr qsizetype size = 100 * 1024 * 1024;
  const FinishedRun run = runScript("#!/bin/sh\nyes 0123456789abcde | head -c 104857600\n");
  EXPECT_EQ(run.result.standardOutput.size(), size);
  EXPECT_TRUE(run.text(standardOutput) == run.result.standardOutput);
  EXPECT_EQ(run.result.standardOutput.count("0123456789abcde\n"), size / 16);
}

TEST(DirectCommandRunner, EndsThoughAGrandchildStillHoldsAPipe) {
  QElapsedTimer timer;
  timer.start();
  const FinishedRun run = runScript("#!/bin/sh\nsleep 8 &\necho done\n");
  EXPECT_EQ(run.text(standardOutput), "done\n");
  EXPECT_EQ(run.result.exitCode, 0);
  EXPECT_LT(timer.elapsed(), 6000);
}

}  // namespace
}  // namespace quillmere::test

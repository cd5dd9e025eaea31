#include <QtCore/QPromise>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <gtest/gtest.h>

#include "execution/DirectExecutionSessionController.h"
#include "execution/RunFixture.h"

namespace quillmere::test {
namespace {

using enum DirectExecutionOutputStream;

const QDateTime startTime(QDate(2026, 11, 20), QTime(12, 0), Qt::UTC);

/// An execution whose end the test decides.
class ScriptedExecution : public DirectCommandExecution {
 public:
  ScriptedExecution() { promise_.start(); }

  std::shared_ptr<OutputChunkStream> output() override { return stream_; }

  QFuture<DirectCommandOutcome> result() override { return promise_.future(); }

  void cancel() override { ++cancels; }

  void print(DirectExecutionOutputStream stream, const QByteArray& text) {
    stream_->yield({QUuid::createUuid(), stream, text, startTime});
  }

  void end(const DirectCommandOutcome& outcome) {
    stream_->finish();
    promise_.addResult(outcome);
    promise_.finish();
  }

  int cancels = 0;

 private:
  std::shared_ptr<OutputChunkStream> stream_ = std::make_shared<OutputChunkStream>();
  QPromise<DirectCommandOutcome> promise_;
};

/// Hands out one scripted execution, or refuses.
class ScriptedStarter : public DirectCommandExecutionStarting {
 public:
  std::expected<std::shared_ptr<DirectCommandExecution>, DirectCommandRunnerError> start(
      const BrewCommand& /*command*/,
      const BrewExecutableResolution& /*resolution*/) const override {
    ++starts;
    if (whileStarting) {
      whileStarting();
    }
    if (refusal) {
      return std::unexpected(*refusal);
    }
    return execution;
  }

  mutable int starts = 0;
  std::function<void()> whileStarting;
  std::optional<DirectCommandRunnerError> refusal;
  std::shared_ptr<ScriptedExecution> execution = std::make_shared<ScriptedExecution>();
};

DirectCommandResult resultWith(std::int32_t exitCode, bool wasCancelled = false) {
  return {.command = infoCommand(),
          .exitCode = exitCode,
          .startedAt = startTime,
          .endedAt = startTime.addMSecs(2500),
          .wasCancelled = wasCancelled};
}

class Session : public testing::Test {
 protected:
  void expectEnd(const DirectExecutionSessionStatus& expected) {
    EXPECT_TRUE(QTest::qWaitFor([this] { return hasEnded(controller->status()); }));
    EXPECT_TRUE(controller->status() == expected) << "status " << controller->status().index();
  }

  void refuse(const DirectCommandRunnerError& error) { starter->refusal = error; }

  std::shared_ptr<ScriptedStarter> starter = std::make_shared<ScriptedStarter>();
  ScriptedExecution& execution = *starter->execution;
  std::unique_ptr<DirectExecutionSessionController> controller =
      std::make_unique<DirectExecutionSessionController>(
          infoCommand(), DirectExecutionPolicyDecision{}, BrewExecutableResolution{}, starter,
          [] { return startTime; });
};

TEST_F(Session, IsReadyBeforeItStarts) {
  EXPECT_TRUE(controller->status() == DirectExecutionSessionStatus(SessionReady{}));
  EXPECT_TRUE(controller->outputChunks().empty());
  EXPECT_FALSE(controller->result());
  EXPECT_FALSE(controller->duration());
  EXPECT_EQ(starter->starts, 0);
}

TEST_F(Session, RunsFromItsStartOn) {
  controller->start();
  EXPECT_TRUE(controller->status() == DirectExecutionSessionStatus(SessionRunning{}));
  EXPECT_EQ(controller->startedAt(), startTime);
  EXPECT_FALSE(controller->duration());
}

TEST_F(Session, StartsOnlyOnce) {
  controller->start();
  controller->start();
  EXPECT_EQ(starter->starts, 1);
}

TEST_F(Session, CompletesWithExitCodeZero) {
  controller->start();
  const DirectCommandResult result = resultWith(0);
  execution.end(result);
  expectEnd(SessionCompleted{0});
  EXPECT_EQ(controller->result(), result);
  EXPECT_EQ(controller->endedAt(), startTime.addMSecs(2500));
  EXPECT_EQ(controller->duration(), 2.5);
}

TEST_F(Session, FailsWithAnyOtherExitCodeAndKeepsItsOutput) {
  controller->start();
  execution.print(standardError, "Error: nothing to do\n");
  execution.end(resultWith(1));
  expectEnd(SessionFailed{QStringLiteral("Command exited with status 1.")});
  ASSERT_EQ(controller->outputChunks().size(), 1U);
  EXPECT_EQ(controller->outputChunks()[0].text, "Error: nothing to do\n");
}

TEST_F(Session, IsCancelledWhereTheResultSaysSo) {
  controller->start();
  execution.end(resultWith(-1, true));
  expectEnd(SessionCancelled{});
}

TEST_F(Session, IsCancelledOnRequestEvenIfTheChildEndsWell) {
  controller->start();
  controller->cancel();
  EXPECT_TRUE(controller->cancellationRequested());
  EXPECT_TRUE(controller->status() == DirectExecutionSessionStatus(SessionRunning{}));
  EXPECT_EQ(execution.cancels, 1);
  execution.end(resultWith(0));
  expectEnd(SessionCancelled{});
}

TEST_F(Session, FailsWithTheErrorOfItsExecution) {
  controller->start();
  execution.end(std::unexpected(SystemFailure{std::error_code(EACCES, std::system_category())}));
  expectEnd(
      SessionFailed{description(SystemFailure{std::error_code(EACCES, std::system_category())})});
  EXPECT_FALSE(controller->result());
}

TEST_F(Session, IsCancelledByAnErrorAfterTheRequest) {
  controller->start();
  controller->cancel();
  execution.end(std::unexpected(SystemFailure{std::error_code(EACCES, std::system_category())}));
  expectEnd(SessionCancelled{});
}

TEST_F(Session, FailsWithTheResolversMessageWhereThereIsNoBrew) {
  refuse(UnresolvedBrewExecutable{BrewExecutableResolution::Status::missingExecutable});
  controller->start();
  expectEnd(
      SessionFailed{QStringLiteral("The selected Homebrew prefix does not contain bin/brew.")});
  EXPECT_TRUE(controller->outputChunks().empty());
}

TEST_F(Session, IsCancelledByAStartThatFailsAfterTheRequest) {
  refuse(UnsupportedTarget{BrewCommandTargetKind::global});
  starter->whileStarting = [this] { controller->cancel(); };
  controller->start();
  expectEnd(SessionCancelled{});
}

TEST_F(Session, PassesOnARequestMadeWhileStarting) {
  starter->whileStarting = [this] { controller->cancel(); };
  controller->start();
  EXPECT_EQ(execution.cancels, 1);
}

TEST_F(Session, EndsAsCancelledWithoutStartingWhatWasNeverStarted) {
  controller->cancel();
  expectEnd(SessionCancelled{});
  controller->start();
  EXPECT_EQ(starter->starts, 0);
  EXPECT_FALSE(controller->startedAt());
}

TEST_F(Session, StaysAsItEnded) {
  controller->start();
  execution.end(resultWith(0));
  expectEnd(SessionCompleted{0});
  controller->cancel();
  EXPECT_FALSE(controller->cancellationRequested());
  EXPECT_EQ(execution.cancels, 0);
  expectEnd(SessionCompleted{0});
}

TEST_F(Session, CollectsItsChunksInTheOrderOfArrival) {
  controller->start();
  QSignalSpy changes(controller.get(), &DirectExecutionSessionController::outputChunksChanged);
  execution.print(diagnostic, "[quillmere] a\n");
  execution.print(standardOutput, "b");
  execution.print(standardError, "c");
  execution.print(standardOutput, "d");
  ASSERT_TRUE(changes.wait());
  execution.print(standardOutput, "e");
  execution.end(resultWith(0));
  expectEnd(SessionCompleted{0});
  QByteArray text;
  for (const auto& chunk : controller->outputChunks()) {
    text += chunk.text;
  }
  EXPECT_EQ(text, "[quillmere] a\nbcde");
}

TEST_F(Session, MayBeDroppedWhileTheChildRuns) {
  controller->start();
  execution.print(standardOutput, "x");
  controller.reset();
  execution.print(standardOutput, "y");
  execution.end(resultWith(0));
  QTest::qWait(20);
  EXPECT_EQ(execution.cancels, 0);
}

TEST(SessionWithARealChild, StreamsItsOutputAndEnds) {
  TestPrefix prefix;
  prefix.withBrew("#!/bin/sh\necho one\nsleep 0.1\necho two >&2\nexit 3\n");
  DirectExecutionSessionController controller(infoCommand(), {}, resolved(prefix),
                                              std::make_shared<DirectCommandRunner>());
  controller.start();
  ASSERT_TRUE(QTest::qWaitFor([&] { return hasEnded(controller.status()); }));
  EXPECT_TRUE(controller.status() == DirectExecutionSessionStatus(SessionFailed{
                                         QStringLiteral("Command exited with status 3.")}));
  EXPECT_EQ(controller.result()->standardOutput, "one\n");
  EXPECT_EQ(controller.result()->standardError, "two\n");
  EXPECT_GT(controller.duration(), 0.05);
}

TEST(SessionWithARealChild, CancelsIt) {
  TestPrefix prefix;
  prefix.withBrew("#!/bin/sh\necho ready\nexec sleep 100\n");
  DirectExecutionSessionController controller(infoCommand(), {}, resolved(prefix),
                                              std::make_shared<DirectCommandRunner>());
  controller.start();
  ASSERT_TRUE(QTest::qWaitFor([&] {
    return !controller.outputChunks().empty() && controller.outputChunks().back().text == "ready\n";
  }));
  controller.cancel();
  ASSERT_TRUE(QTest::qWaitFor([&] { return hasEnded(controller.status()); }));
  EXPECT_TRUE(controller.status() == DirectExecutionSessionStatus(SessionCancelled{}));
}

}  // namespace
}  // namespace quillmere::test

#include "execution/DirectExecutionSessionController.h"

#include <QCoroFuture>
#include <QtCore/QPointer>

#include <iterator>
#include <utility>

namespace quillmere {

DirectExecutionSessionController::DirectExecutionSessionController(
    BrewCommand command, DirectExecutionPolicyDecision policyDecision,
    BrewExecutableResolution brewResolution,
    std::shared_ptr<const DirectCommandExecutionStarting> executionStarter, Clock clock,
    QObject* parent)
    : QObject(parent),
      command_(std::move(command)),
      policyDecision_(std::move(policyDecision)),
      brewResolution_(std::move(brewResolution)),
      executionStarter_(std::move(executionStarter)),
      clock_(std::move(clock)) {
}

DirectExecutionSessionController::~DirectExecutionSessionController() = default;

std::optional<double> DirectExecutionSessionController::duration() const {
  if (!startedAt_ || !endedAt_) {
    return std::nullopt;
  }
  constexpr double millisecondsPerSecond = 1000.0;
  return static_cast<double>(startedAt_->msecsTo(*endedAt_)) / millisecondsPerSecond;
}

void DirectExecutionSessionController::start() {
  if (!std::holds_alternative<SessionReady>(status_)) {
    return;
  }
  startedAt_ = clock_();
  Q_EMIT startedAtChanged();
  setStatus(SessionRunning{});
  auto execution = executionStarter_->start(command_, brewResolution_);
  if (!execution) {
    finishWithError(execution.error());
    return;
  }
  execution_ = std::move(*execution);
  if (cancellationRequested_) {
    execution_->cancel();
  }
  execution_->output()->consume(this, [this] { takeChunks(); });
  awaitResult();
}

void DirectExecutionSessionController::cancel() {
  if (hasEnded(status_)) {
    return;
  }
  if (!std::exchange(cancellationRequested_, true)) {
    Q_EMIT cancellationRequestedChanged();
  }
  if (execution_) {
    execution_->cancel();
  } else if (std::holds_alternative<SessionReady>(status_)) {
    setStatus(SessionCancelled{});
  }
}

QCoro::Task<> DirectExecutionSessionController::awaitResult() {
  const QPointer<DirectExecutionSessionController> self(this);
  const auto execution = execution_;
  const DirectCommandOutcome outcome = co_await execution->result();
  if (self) {
    finish(outcome);
  }
}

void DirectExecutionSessionController::takeChunks() {
  auto chunks = execution_->output()->take();
  if (chunks.empty()) {
    return;
  }
  outputChunks_.insert(outputChunks_.end(), std::make_move_iterator(chunks.begin()),
                       std::make_move_iterator(chunks.end()));
  Q_EMIT outputChunksChanged();
}

void DirectExecutionSessionController::finish(const DirectCommandOutcome& outcome) {
  // The stream has finished by now; what its last call has not delivered yet is waiting in it.
  takeChunks();
  if (!outcome) {
    finishWithError(outcome.error());
    return;
  }
  result_ = *outcome;
  endedAt_ = result_->endedAt;
  Q_EMIT endedAtChanged();
  if (result_->wasCancelled || cancellationRequested_) {
    setStatus(SessionCancelled{});
  } else if (result_->exitCode != 0) {
    setStatus(
        SessionFailed{QStringLiteral("Command exited with status %1.").arg(result_->exitCode)});
  } else {
    setStatus(SessionCompleted{0});
  }
  Q_EMIT resultChanged();
}

void DirectExecutionSessionController::finishWithError(const DirectCommandRunnerError& error) {
  endedAt_ = clock_();
  Q_EMIT endedAtChanged();
  if (cancellationRequested_) {
    setStatus(SessionCancelled{});
  } else {
    setStatus(SessionFailed{description(error)});
  }
}

void DirectExecutionSessionController::setStatus(DirectExecutionSessionStatus status) {
  status_ = std::move(status);
  Q_EMIT statusChanged();
}

}  // namespace quillmere

#pragma once

#include <QCoroTask>
#include <QtCore/QObject>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "commands/BrewCommand.h"
#include "commands/DirectExecutionPolicy.h"
#include "execution/DirectCommandExecution.h"
#include "execution/DirectExecutionSessionStatus.h"

namespace quillmere {

/// One run of one approved command, seen from the UI thread: it starts the execution, collects the
/// chunks in arrival order and turns the outcome into a status. Owned by the sheet that started the
/// run; may be dropped while the child still runs. UI thread only.
class DirectExecutionSessionController : public QObject {
  Q_OBJECT
 public:
  using Clock = std::function<QDateTime()>;

  DirectExecutionSessionController(
      BrewCommand command, DirectExecutionPolicyDecision policyDecision,
      BrewExecutableResolution brewResolution,
      std::shared_ptr<const DirectCommandExecutionStarting> executionStarter,
      Clock clock = &QDateTime::currentDateTimeUtc, QObject* parent = nullptr);
  ~DirectExecutionSessionController() override;

  [[nodiscard]] const BrewCommand& command() const { return command_; }

  [[nodiscard]] const DirectExecutionPolicyDecision& policyDecision() const {
    return policyDecision_;
  }

  [[nodiscard]] const BrewExecutableResolution& brewResolution() const { return brewResolution_; }

  [[nodiscard]] const DirectExecutionSessionStatus& status() const { return status_; }

  /// In arrival order, never reordered or merged.
  [[nodiscard]] const std::vector<DirectExecutionOutputChunk>& outputChunks() const {
    return outputChunks_;
  }

  [[nodiscard]] const std::optional<DirectCommandResult>& result() const { return result_; }

  [[nodiscard]] const std::optional<QDateTime>& startedAt() const { return startedAt_; }

  [[nodiscard]] const std::optional<QDateTime>& endedAt() const { return endedAt_; }

  [[nodiscard]] bool cancellationRequested() const { return cancellationRequested_; }

  /// Seconds between start and end; absent while either is missing.
  [[nodiscard]] std::optional<double> duration() const;

  /// Begins the run. Does nothing unless the session is ready.
  void start();
  /// Asks the run to end; the status changes when it has. A session that was never started ends as
  /// cancelled at once, without starting anything; one that has ended stays as it is.
  void cancel();

 Q_SIGNALS:
  void statusChanged();
  void outputChunksChanged();
  void resultChanged();
  void startedAtChanged();
  void endedAtChanged();
  void cancellationRequestedChanged();

 private:
  QCoro::Task<> awaitResult();
  void takeChunks();
  void finish(const DirectCommandOutcome& outcome);
  void finishWithError(const DirectCommandRunnerError& error);
  void setStatus(DirectExecutionSessionStatus status);

  BrewCommand command_;
  DirectExecutionPolicyDecision policyDecision_;
  BrewExecutableResolution brewResolution_;
  std::shared_ptr<const DirectCommandExecutionStarting> executionStarter_;
  Clock clock_;
  DirectExecutionSessionStatus status_ = SessionReady{};
  std::vector<DirectExecutionOutputChunk> outputChunks_;
  std::optional<DirectCommandResult> result_;
  std::optional<QDateTime> startedAt_;
  std::optional<QDateTime> endedAt_;
  bool cancellationRequested_ = false;
  std::shared_ptr<DirectCommandExecution> execution_;
};

}  // namespace quillmere

#pragma once

#include <QtCore/QFuture>
#include <QtCore/QPromise>

#include <memory>
#include <optional>

#include "execution/BrewEnvironment.h"
#include "execution/ChildProcess.h"
#include "execution/DirectCommandDiagnosticLogger.h"
#include "execution/DirectCommandExecution.h"
#include "execution/FileHandleDataReader.h"
#include "execution/ProcessCancellationState.h"
#include "platform/SecurityScopedAccess.h"

namespace quillmere {

/// One run of the selected prefix's `bin/brew`. A thread of its own launches the child, reads both
/// its outputs and waits for its end; it keeps the execution alive until then, whoever else lets
/// go of it. `output`, `result` and `cancel` may be called from any thread.
class ProcessDirectCommandExecution
    : public DirectCommandExecution,
      public std::enable_shared_from_this<ProcessDirectCommandExecution> {
 public:
  struct Run {
    BrewCommand command;
    QUrl brewExecutableURL;
    std::optional<QUrl> prefixURL;
    QStringList arguments;
    Environment environment;
  };

  /// Begins the run: everything but the launch itself is prepared on the caller's thread.
  [[nodiscard]] static std::expected<std::shared_ptr<DirectCommandExecution>,
                                     DirectCommandRunnerError>
  start(Run run);

  [[nodiscard]] std::shared_ptr<OutputChunkStream> output() override { return output_; }

  [[nodiscard]] QFuture<DirectCommandOutcome> result() override { return promise_.future(); }

  void cancel() override;

 private:
  ProcessDirectCommandExecution(Run run, ChildProcess::Pipe standardOutput,
                                ChildProcess::Pipe standardError, FileDescriptor cancelSignal);

  [[nodiscard]] StreamingFileHandleDataReader makeReader(ChildProcess::Pipe& pipe,
                                                         DirectExecutionOutputStream stream) const;
  void logPreparation() const;
  void runToEnd();
  [[nodiscard]] DirectCommandOutcome launchAndFollow();
  void followUntilExit(const ChildProcess& child);
  void readUntilExitOrCancel(const ChildProcess& child);
  [[nodiscard]] DirectCommandResult makeResult(std::int32_t exitCode) const;

  Run run_;
  QDateTime startedAt_;
  std::shared_ptr<OutputChunkStream> output_;
  DirectCommandDiagnosticLogger logger_;
  ChildProcess::Pipe standardOutput_;
  ChildProcess::Pipe standardError_;
  StreamingFileHandleDataReader standardOutputReader_;
  StreamingFileHandleDataReader standardErrorReader_;
  ProcessCancellationState cancellationState_;
  /// Wakes the run's thread when the run is cancelled. Only that thread signals the child, because
  /// only it knows that the child is not reaped yet and its number not reused.
  FileDescriptor cancelSignal_;
  std::optional<SecurityScopedAccess> access_;
  QPromise<DirectCommandOutcome> promise_;
};

}  // namespace quillmere

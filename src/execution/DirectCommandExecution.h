#pragma once

#include <QtCore/QFuture>

#include <expected>
#include <memory>

#include "execution/BrewExecutableResolver.h"
#include "execution/DirectCommandResult.h"
#include "execution/DirectCommandRunnerError.h"
#include "execution/OutputChunkStream.h"

namespace quillmere {

using DirectCommandOutcome = std::expected<DirectCommandResult, DirectCommandRunnerError>;

/// One running execution of one command. It ends once and cannot be started again.
class DirectCommandExecution {
 public:
  virtual ~DirectCommandExecution() = default;

  /// What the command prints, in order; for one consumer. Finished before the result is there.
  [[nodiscard]] virtual std::shared_ptr<OutputChunkStream> output() = 0;
  /// What became of the command; never cancelled, set exactly once.
  [[nodiscard]] virtual QFuture<DirectCommandOutcome> result() = 0;
  /// Asks the command to end. Any thread, any number of times.
  virtual void cancel() = 0;
};

/// Starts executions.
class DirectCommandExecutionStarting {
 public:
  virtual ~DirectCommandExecutionStarting() = default;

  [[nodiscard]] virtual std::expected<std::shared_ptr<DirectCommandExecution>,
                                      DirectCommandRunnerError>
  start(const BrewCommand& command, const BrewExecutableResolution& resolution) const = 0;
};

}  // namespace quillmere

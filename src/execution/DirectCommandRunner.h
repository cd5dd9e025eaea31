#pragma once

#include "execution/DirectCommandExecution.h"

namespace quillmere {

/// Starts `bin/brew` of the resolved prefix as a child process, one per execution. Stateless; any
/// thread.
class DirectCommandRunner : public DirectCommandExecutionStarting {
 public:
  [[nodiscard]] std::expected<std::shared_ptr<DirectCommandExecution>, DirectCommandRunnerError>
  start(const BrewCommand& command, const BrewExecutableResolution& resolution) const override;
};

}  // namespace quillmere

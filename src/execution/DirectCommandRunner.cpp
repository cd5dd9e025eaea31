#include "execution/DirectCommandRunner.h"

#include <utility>

#include "execution/BrewArguments.h"
#include "execution/ProcessDirectCommandExecution.h"

namespace quillmere {

std::expected<std::shared_ptr<DirectCommandExecution>, DirectCommandRunnerError>
DirectCommandRunner::start(const BrewCommand& command,
                           const BrewExecutableResolution& resolution) const {
  if (resolution.status != BrewExecutableResolution::Status::resolved ||
      !resolution.brewExecutableURL) {
    return std::unexpected(UnresolvedBrewExecutable{resolution.status});
  }
  auto arguments = brewArguments(command);
  if (!arguments) {
    return std::unexpected(arguments.error());
  }
  return ProcessDirectCommandExecution::start(
      {command, *resolution.brewExecutableURL, resolution.selectedPrefixURL, std::move(*arguments),
       brewEnvironment(inheritedEnvironment(), resolution.selectedPrefixURL)});
}

}  // namespace quillmere

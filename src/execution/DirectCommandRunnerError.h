#pragma once

#include <QtCore/QString>

#include <system_error>
#include <variant>

#include "commands/BrewCommand.h"
#include "execution/BrewExecutableResolver.h"

namespace quillmere {

/// There is no `bin/brew` to run.
struct UnresolvedBrewExecutable {
  BrewExecutableResolution::Status status;
  bool operator==(const UnresolvedBrewExecutable&) const = default;
};

/// The command's operation has no arguments for a target of this kind.
struct UnsupportedTarget {
  BrewCommandTargetKind kind;
  bool operator==(const UnsupportedTarget&) const = default;
};

/// The operating system did not start the program, or did not tell how it ended.
struct SystemFailure {
  std::error_code error;
  bool operator==(const SystemFailure&) const = default;
};

using DirectCommandRunnerError =
    std::variant<UnresolvedBrewExecutable, UnsupportedTarget, SystemFailure>;

/// The sentence for the user.
[[nodiscard]] QString description(const DirectCommandRunnerError& error);

}  // namespace quillmere

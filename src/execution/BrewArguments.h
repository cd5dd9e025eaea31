#pragma once

#include <QtCore/QStringList>

#include <expected>

#include "commands/BrewCommand.h"
#include "execution/DirectCommandRunnerError.h"

namespace quillmere {

/// The words that follow "brew" for `command`, each one argument of the child. An operation that
/// has no form for the command's target is refused. Pure; any thread.
[[nodiscard]] std::expected<QStringList, UnsupportedTarget> brewArguments(
    const BrewCommand& command);

}  // namespace quillmere

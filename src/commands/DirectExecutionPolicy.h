#pragma once

#include <QtCore/QString>

#include <array>

#include "app/AppCapabilities.h"
#include "commands/BrewCommand.h"

namespace quillmere {

/// How far a command may go.
enum class DirectExecutionPolicyMode {
  runDirectly,
  requiresConfirmation,
  requiresStrongConfirmation,
  previewOnly,
};

template <>
inline constexpr auto rawValues<DirectExecutionPolicyMode> =
    std::to_array<RawValue<DirectExecutionPolicyMode>>({
        {DirectExecutionPolicyMode::runDirectly, QLatin1StringView("runDirectly")},
        {DirectExecutionPolicyMode::requiresConfirmation,
         QLatin1StringView("requiresConfirmation")},
        {DirectExecutionPolicyMode::requiresStrongConfirmation,
         QLatin1StringView("requiresStrongConfirmation")},
        {DirectExecutionPolicyMode::previewOnly, QLatin1StringView("previewOnly")},
    });

/// The verdict on running a command, with the texts that the preview and the confirmation show.
struct DirectExecutionPolicyDecision {
  DirectExecutionPolicyMode mode = DirectExecutionPolicyMode::previewOnly;
  QString title;
  QString message;

  bool operator==(const DirectExecutionPolicyDecision&) const = default;
};

/// Decides by the command's operation and target kind and by what this build may do; the risk level
/// takes no part. Pure; any thread.
[[nodiscard]] DirectExecutionPolicyDecision executionPolicyDecision(
    const BrewCommand& command, const AppCapabilities& capabilities);

/// The label of the button that confirms running `command`. It names the exact command, so that the
/// user sees what the click will run. Pure; any thread.
[[nodiscard]] QString confirmTitle(const BrewCommand& command);

}  // namespace quillmere

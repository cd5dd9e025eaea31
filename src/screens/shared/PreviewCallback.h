#pragma once

#include <QtCore/QString>

#include <functional>

#include "commands/BrewCommand.h"

namespace quillmere {

/// How a screen asks its owner to show the preview of a command. `sourceScreen` is the name under
/// which the history remembers where the command was offered.
using PreviewCallback =
    std::function<void(const BrewCommand& command, const QString& sourceScreen)>;

}  // namespace quillmere

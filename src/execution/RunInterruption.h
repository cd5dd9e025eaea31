#pragma once

#include <QtCore/QString>

#include <cstdint>

#include "execution/RunFacts.h"

namespace quillmere {

/// What Homebrew was doing when it ended, for example "installing wget"; empty where it had not
/// said so.
[[nodiscard]] QString underWay(const RunFacts& facts);

/// What a cancelled run may have left or changed, without a full stop.
[[nodiscard]] QString cancellationSentence(const RunFacts& facts, std::int32_t exitCode);

}  // namespace quillmere

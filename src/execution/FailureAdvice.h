#pragma once

#include <QtCore/QString>

#include "execution/DirectCommandResult.h"

namespace quillmere {

/// What a user can do about a command that failed, where Homebrew's own words say why; empty where
/// they say nothing that we know. Looks at the end of what was printed only, which is where a
/// failure is explained. Pure; any thread.
[[nodiscard]] QString failureAdvice(const DirectCommandResult& result);

}  // namespace quillmere

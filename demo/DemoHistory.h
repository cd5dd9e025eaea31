#pragma once

#include <QtCore/QDateTime>

#include "persistence/CommandHistory.h"

namespace quillmere::demo {

/// What somebody copied and ran before `now`, newest first: every kind of record occurs.
[[nodiscard]] CommandHistory historyUntil(const QDateTime& now);

}  // namespace quillmere::demo

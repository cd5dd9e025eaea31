#pragma once

#include "persistence/CommandHistory.h"

namespace quillmere {

/// One record: a run with a summary of about a hundred characters if `number` is odd, else a copy.
[[nodiscard]] CommandHistoryRecord historyRecord(int number);

/// Ten thousand of them.
[[nodiscard]] CommandHistory longHistory();

}  // namespace quillmere

#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QString>

#include <optional>

#include "commands/BrewCommand.h"
#include "commands/CommandHistoryRecord.h"

namespace quillmere {

/// What the caller has to do for a command that was copied or run: the text for the clipboard and
/// the record for the history.
struct PreparedCommandAction {
  QString commandText;
  CommandHistoryRecord historyRecord;
  /// Whether the action records a command that was run; false for a copy.
  bool executedCommand = false;

  bool operator==(const PreparedCommandAction&) const = default;
};

/// Prepares the copy of a command; runs nothing. Stateless; any thread.
class PreviewOnlyCommandRunner {
 public:
  [[nodiscard]] PreparedCommandAction prepare(const BrewCommand& command,
                                              const std::optional<QString>& sourceScreen,
                                              const QDateTime& now) const;
};

}  // namespace quillmere

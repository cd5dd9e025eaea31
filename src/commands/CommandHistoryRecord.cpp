#include "commands/CommandHistoryRecord.h"

namespace quillmere {

CommandHistoryRecord makeCopyRecord(const BrewCommand& command,
                                    const std::optional<QString>& sourceScreen,
                                    const QDateTime& now) {
  return {
      .id = QUuid::createUuid(),
      .command = command.commandText,
      .copiedAt = now,
      .operationType = rawValue(command.operation),
      .packageTarget = command.target.name,
      .sourceScreen = sourceScreen,
      .copied = true,
      .executed = false,
      .executionStartedAt = std::nullopt,
      .executionEndedAt = std::nullopt,
      .executionExitCode = std::nullopt,
      .executionCancelled = std::nullopt,
      .executionOutputSummary = std::nullopt,
  };
}

}  // namespace quillmere

#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QString>
#include <QtCore/QUuid>

#include <cstdint>
#include <optional>

#include "commands/BrewCommand.h"

namespace quillmere {

/// One command that the user copied or ran. `persistence/CommandHistory.h` stores it.
struct CommandHistoryRecord {
  QUuid id;
  /// The exact command text, as it was shown.
  QString command;
  /// When the record was made: the time of the copy, or the end of the run.
  QDateTime copiedAt;
  /// Raw value of the command's operation. A text, so that a record of a later version stays
  /// readable.
  QString operationType;
  std::optional<QString> packageTarget;
  /// The screen that offered the command, for example "Updates".
  std::optional<QString> sourceScreen;
  /// Records from before commands could be run hold neither flag: they were all copies.
  bool copied = true;
  bool executed = false;
  std::optional<QDateTime> executionStartedAt;
  std::optional<QDateTime> executionEndedAt;
  /// The child's exit status; -1 when it was cancelled before it started.
  std::optional<std::int32_t> executionExitCode;
  std::optional<bool> executionCancelled;
  std::optional<QString> executionOutputSummary;
  /// What came of the run, in one sentence. Records of earlier versions have none.
  std::optional<QString> executionOutcome;

  bool operator==(const CommandHistoryRecord&) const = default;
};

/// The record of a copy made at `now` from `sourceScreen`. Pure but for its fresh `id`; any thread.
[[nodiscard]] CommandHistoryRecord makeCopyRecord(const BrewCommand& command,
                                                  const std::optional<QString>& sourceScreen,
                                                  const QDateTime& now);

}  // namespace quillmere

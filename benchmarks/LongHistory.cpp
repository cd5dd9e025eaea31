#include "LongHistory.h"

namespace quillmere {

CommandHistoryRecord historyRecord(int number) {
  const QDateTime now = QDateTime::fromMSecsSinceEpoch(1'795'207'320'125 + number, Qt::UTC);
  CommandHistoryRecord record = {
      .id = QUuid::createUuid(),
      .command = QStringLiteral("brew upgrade --cask package-%1").arg(number),
      .copiedAt = now,
      .operationType = QStringLiteral("upgrade"),
      .packageTarget = QStringLiteral("package-%1").arg(number),
      .sourceScreen = QStringLiteral("Updates"),
      .copied = number % 2 == 0,
      .executed = number % 2 != 0,
      .executionStartedAt = std::nullopt,
      .executionEndedAt = std::nullopt,
      .executionExitCode = std::nullopt,
      .executionCancelled = std::nullopt,
      .executionOutputSummary = std::nullopt,
  };
  if (record.executed) {
    record.executionStartedAt = now.addMSecs(-4321);
    record.executionEndedAt = now;
    record.executionExitCode = 0;
    record.executionCancelled = false;
    record.executionOutputSummary = QStringLiteral("==> Upgrading 1 package \u2714\n").repeated(5);
  }
  return record;
}

CommandHistory longHistory() {
  CommandHistory records;
  for (int i = 0; i < 10'000; ++i) {
    records += historyRecord(i);
  }
  return records;
}

}  // namespace quillmere

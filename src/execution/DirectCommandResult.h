#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QDateTime>
#include <QtCore/QStringList>
#include <QtCore/QUrl>

#include <cstdint>

#include "commands/BrewCommand.h"
#include "execution/RunOutcome.h"

namespace quillmere {

/// What became of one run.
struct DirectCommandResult {
  BrewCommand command;
  QUrl brewExecutableURL;
  /// Without the leading "brew".
  QStringList arguments;
  /// All that the child printed, valid UTF-8.
  QByteArray standardOutput;
  QByteArray standardError;
  /// The exit status; the number of the signal for a child that died by one; -1 when it never ran.
  std::int32_t exitCode = 0;
  QDateTime startedAt;
  QDateTime endedAt;
  bool wasCancelled = false;
  /// What came of it, in words: made beside the result, so that whoever shows or keeps the run need
  /// not read its output again.
  RunOutcome outcome;

  bool operator==(const DirectCommandResult&) const = default;
};

}  // namespace quillmere

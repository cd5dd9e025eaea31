#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>

#include <optional>

#include "commands/CommandHistoryRecord.h"
#include "execution/DirectCommandResult.h"

namespace quillmere {

/// Newest first.
using CommandHistory = QList<CommandHistoryRecord>;

/// The history as one JSON array. Dates are numbers of seconds since 2001-01-01T00:00:00Z with
/// their fraction, identifiers upper-case UUIDs; absent values are left out, `copied` and
/// `executed` always written. Pure; any thread.
[[nodiscard]] QByteArray encodeCommandHistory(const CommandHistory& history);

/// Reads what `encodeCommandHistory` writes and what people write by hand: unknown keys are passed
/// over, optional ones may be missing or null, dates may be integers. Absent when `json` is not an
/// array in which every record has its required values.
[[nodiscard]] std::optional<CommandHistory> decodeCommandHistory(const QByteArray& json);

/// The record of a finished run.
[[nodiscard]] CommandHistoryRecord makeExecutionRecord(const DirectCommandResult& result,
                                                       const std::optional<QString>& sourceScreen);

}  // namespace quillmere

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QDateTime>
#include <QtCore/QUuid>

#include <array>

#include "platform/RawValues.h"

namespace quillmere {

/// Where a piece of a run's output came from; `diagnostic` is our own.
enum class DirectExecutionOutputStream { standardOutput, standardError, diagnostic };

template <>
inline constexpr auto rawValues<DirectExecutionOutputStream> =
    std::to_array<RawValue<DirectExecutionOutputStream>>({
        {DirectExecutionOutputStream::standardOutput, QLatin1StringView("standardOutput")},
        {DirectExecutionOutputStream::standardError, QLatin1StringView("standardError")},
        {DirectExecutionOutputStream::diagnostic, QLatin1StringView("diagnostic")},
    });

/// One piece of a run's output as it arrived, not necessarily a whole line.
struct DirectExecutionOutputChunk {
  QUuid id;
  DirectExecutionOutputStream stream = DirectExecutionOutputStream::standardOutput;
  /// Valid UTF-8. Bytes and not a QString, because a long build log is nearly all ASCII and would
  /// take twice the memory; copies share it.
  QByteArray text;
  QDateTime receivedAt;

  bool operator==(const DirectExecutionOutputChunk&) const = default;
};

/// A chunk that came just now. Any thread.
[[nodiscard]] DirectExecutionOutputChunk makeChunk(DirectExecutionOutputStream stream,
                                                   const QByteArray& text);

}  // namespace quillmere

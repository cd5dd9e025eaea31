#pragma once

#include <QtCore/QString>

#include <cstdint>
#include <variant>

namespace quillmere {

struct SessionReady {
  bool operator==(const SessionReady&) const = default;
};

struct SessionRunning {
  bool operator==(const SessionRunning&) const = default;
};

struct SessionCompleted {
  std::int32_t exitCode = 0;
  bool operator==(const SessionCompleted&) const = default;
};

struct SessionFailed {
  /// The sentence for the user.
  QString message;
  bool operator==(const SessionFailed&) const = default;
};

struct SessionCancelled {
  bool operator==(const SessionCancelled&) const = default;
};

/// Where a session stands. The last three are final.
using DirectExecutionSessionStatus =
    std::variant<SessionReady, SessionRunning, SessionCompleted, SessionFailed, SessionCancelled>;

/// Whether the run is over.
[[nodiscard]] constexpr bool hasEnded(const DirectExecutionSessionStatus& status) {
  return !std::holds_alternative<SessionReady>(status) &&
         !std::holds_alternative<SessionRunning>(status);
}

}  // namespace quillmere

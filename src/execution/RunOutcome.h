#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <cstdint>

#include "commands/BrewCommand.h"

namespace quillmere {

/// What came of a run, in words: only what its output says for certain, and nothing where it says
/// nothing that is known. Small, however much was printed.
struct RunOutcome {
  enum class Kind { success, information, failure, cancellation };

  Kind kind = Kind::information;
  /// One sentence without its full stop, for example "Installed wget 1.25.0".
  QString sentence;
  /// What else is to be known, one line each.
  QStringList details;
  /// All that Homebrew says under "Caveats", as it says it.
  QString caveats;
  QStringList warnings;

  [[nodiscard]] bool isEmpty() const {
    return sentence.isEmpty() && details.isEmpty() && caveats.isEmpty() && warnings.isEmpty();
  }

  bool operator==(const RunOutcome&) const = default;
};

/// How a run ended, and all that it printed, UTF-8.
struct EndedRun {
  BrewCommandOperation operation = BrewCommandOperation::info;
  /// The package that the command names; empty where it names none.
  QString target;
  std::int32_t exitCode = 0;
  bool wasCancelled = false;
  QByteArrayView standardOutput;
  QByteArrayView standardError;
};

/// Reads the whole output, which takes a while where it is long; call it off the UI thread. Pure.
[[nodiscard]] RunOutcome makeRunOutcome(const EndedRun& run);

}  // namespace quillmere

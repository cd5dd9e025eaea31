#pragma once

#include <QtCore/QString>
#include <QtCore/QStringView>
#include <QtCore/QUuid>

#include <array>
#include <optional>
#include <span>
#include <vector>

#include "commands/BrewCommand.h"
#include "execution/DirectCommandResult.h"
#include "execution/DirectExecutionOutputChunk.h"
#include "execution/DirectExecutionSessionStatus.h"
#include "execution/OutputDigest.h"

namespace quillmere {

/// What a run printed, reduced to a heading and a few rows.
struct DirectCommandOutputPresentation {
  enum class Tint { blue, green, red };

  struct Row {
    /// Fresh for every row built.
    QUuid id;
    QString title;
    std::optional<QString> detail;
    QString symbolName;
    Tint tint = Tint::blue;

    bool operator==(const Row&) const = default;
  };

  QString title;
  QString symbolName;
  /// Shown when there are no rows.
  QString emptyText;
  std::vector<Row> rows;

  bool operator==(const DirectCommandOutputPresentation&) const = default;
};

/// One of the four steps that a run goes through.
struct DirectExecutionProgressStep {
  enum class State { complete, active, pending, failed };

  QString id;
  QString title;
  State state = State::pending;

  bool operator==(const DirectExecutionProgressStep&) const = default;
};

/// The text that a summary is built from: the result's two texts, or while there is no result the
/// chunks so far without our own diagnostics.
[[nodiscard]] QString presentationText(const std::optional<DirectCommandResult>& result,
                                       std::span<const DirectExecutionOutputChunk> chunks);

/// Pure but for the rows' fresh identifiers; any thread.
[[nodiscard]] DirectCommandOutputPresentation makePresentation(
    const OutputDigest& digest, const DirectExecutionSessionStatus& status);
/// The same from a whole text, split at its line breaks, each line as a terminal would leave it.
[[nodiscard]] DirectCommandOutputPresentation makePresentation(
    const BrewCommand& command, QStringView text, const DirectExecutionSessionStatus& status);

[[nodiscard]] std::array<DirectExecutionProgressStep, 4> makeProgressSteps(
    const BrewCommand& command, const DirectExecutionSessionStatus& status, bool hasOutput);

/// The status in words, and the symbol beside it.
[[nodiscard]] QString statusText(const DirectExecutionSessionStatus& status);
[[nodiscard]] QLatin1StringView statusSymbolName(const DirectExecutionSessionStatus& status);

}  // namespace quillmere

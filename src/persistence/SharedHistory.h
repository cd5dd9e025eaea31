#pragma once

#include <QtCore/QByteArray>

#include <optional>

#include "persistence/CommandHistory.h"
#include "persistence/SettingsFile.h"

namespace quillmere {

/// The command history in the settings, which every open window of the program adds to. A window
/// therefore never writes back the list that it shows: it adds its records to what the file holds
/// by then, one process at a time, and is told of what it did not know. Blocks on the disk; for the
/// one thread that writes a store's settings.
class SharedHistory {
 public:
  /// What the settings keep it under.
  static constexpr QLatin1StringView key{"commandHistory"};

  explicit SharedHistory(SettingsFile file);

  /// Puts `record` at the front. Returns as `synchronize` does.
  std::optional<CommandHistory> prepend(const CommandHistoryRecord& record);

  /// Puts `history` in the place of all that is there.
  void replace(const CommandHistory& history);

  /// Writes what a full disk did not take before, and looks what others wrote. Returns the whole
  /// list where the caller may show another.
  std::optional<CommandHistory> synchronize();

 private:
  [[nodiscard]] bool hasUnwritten() const { return replaces_ || !unwritten_.isEmpty(); }

  void store(const QByteArray& json);

  SettingsFile file_;
  /// What the file held when the caller was last told of it.
  std::optional<QByteArray> known_;
  CommandHistory unwritten_;
  /// Whether `unwritten_` takes the place of what the file holds.
  bool replaces_ = false;
};

}  // namespace quillmere

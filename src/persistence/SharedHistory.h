#pragma once

#include <QtCore/QByteArray>

#include <optional>

#include "persistence/CommandHistory.h"
#include "persistence/SettingsFile.h"

namespace quillmere {

/// The command history in the settings, to which several processes of the program may add. A window
/// therefore never writes back the list that it shows: under a lock, it adds its own records to
/// what the file holds at that moment, and is told of the records that others have added. Blocks on
/// the disk; for the one thread that writes a store's settings.
class SharedHistory {
 public:
  /// What the settings keep it under.
  static constexpr QLatin1StringView key{"commandHistory"};

  explicit SharedHistory(SettingsFile file);

  /// Puts `record` at the front. Returns as `synchronize` does.
  std::optional<CommandHistory> prepend(const CommandHistoryRecord& record);

  /// Puts `history` in the place of all that is there.
  void replace(const CommandHistory& history);

  /// Retries the records that could not be written before (because the disk was full, say) and
  /// reads what others have written. Returns the whole list if the file has changed since the last
  /// call, so that the caller may show something else; nullopt if it has not or cannot be read.
  std::optional<CommandHistory> synchronize();

 private:
  [[nodiscard]] bool hasUnwritten() const { return replaces_ || !unwritten_.isEmpty(); }

  void store(const QByteArray& json);

  SettingsFile file_;
  /// The file's value as of the last call.
  std::optional<QByteArray> known_;
  CommandHistory unwritten_;
  /// Whether `unwritten_` takes the place of what the file holds.
  bool replaces_ = false;
};

}  // namespace quillmere

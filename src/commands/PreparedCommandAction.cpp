#include "commands/PreparedCommandAction.h"

namespace quillmere {

PreparedCommandAction PreviewOnlyCommandRunner::prepare(const BrewCommand& command,
                                                        const std::optional<QString>& sourceScreen,
                                                        const QDateTime& now) const {
  return {
      .commandText = command.commandText,
      .historyRecord = makeCopyRecord(command, sourceScreen, now),
      .executedCommand = false,
  };
}

}  // namespace quillmere

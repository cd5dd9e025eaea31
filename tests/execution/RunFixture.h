#pragma once

#include <QtCore/QStringList>

#include "execution/DirectCommandRunner.h"
#include "support/Printers.h"
#include "support/TestPrefix.h"

namespace quillmere::test {

/// The prefix as resolved, without a look at the disk.
[[nodiscard]] BrewExecutableResolution resolved(const TestPrefix& prefix);

/// A command that `bin/brew` gets as "info wget".
[[nodiscard]] BrewCommand infoCommand();

/// A run that has ended, with all that it printed.
struct FinishedRun {
  DirectCommandResult result;
  OutputChunkStream::Chunks chunks;

  [[nodiscard]] QByteArray text(DirectExecutionOutputStream stream) const;
  /// Our own lines, without the marker that begins each.
  [[nodiscard]] QStringList diagnostics() const;
};

/// Starts `command` (which must be possible) in `prefix`.
[[nodiscard]] std::shared_ptr<DirectCommandExecution> startRun(
    const TestPrefix& prefix, const BrewCommand& command = infoCommand());

/// Waits for the end of a run that was launched.
[[nodiscard]] FinishedRun finish(const std::shared_ptr<DirectCommandExecution>& execution);

/// Whether a stream of which all is taken lets nothing more in.
[[nodiscard]] bool hasFinished(OutputChunkStream& stream);

/// Runs a script as `bin/brew`.
[[nodiscard]] FinishedRun runScript(const QByteArray& script);

/// Waits until a file is there; a script says with one that it has come so far.
[[nodiscard]] bool waitForFile(const QString& path);

/// The child's process number as the run told it; it is the number of its session too.
[[nodiscard]] qint64 sessionOf(const FinishedRun& run);

/// How many descriptors this process has open.
[[nodiscard]] qsizetype openDescriptors();

/// The living processes of a session, without those that are ending or wait to be reaped.
[[nodiscard]] QStringList livingProcessesOfSession(qint64 session);

}  // namespace quillmere::test

#pragma once

#include <chrono>
#include <functional>
#include <poll.h>

#include "execution/FileHandleDataReader.h"

namespace quillmere {

/// Waits for something to read. A closed descriptor is none to `poll`, so that it needs no case of
/// its own.
[[nodiscard]] pollfd listenTo(const FileDescriptor& fd);

/// Reads once if `entry` says that there is something, and closes at the end.
void readIfReady(FileHandleDataReader& reader, const pollfd& entry);

using SteadyNow = std::function<std::chrono::steady_clock::time_point()>;

/// Reads what an exited child and the processes that it started have written, and closes both
/// pipes. The child's own output is in them by then and is read however late it is; other processes
/// that still hold a pipe get half a second for their last output.
void readRemainingOutput(FileHandleDataReader& standardOutput, FileHandleDataReader& standardError,
                         const SteadyNow& now = &std::chrono::steady_clock::now);

}  // namespace quillmere

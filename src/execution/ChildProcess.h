#pragma once

#include <cstdint>
#include <expected>
#include <string>
#include <sys/types.h>
#include <system_error>
#include <vector>

#include "execution/BrewEnvironment.h"
#include "platform/FileDescriptor.h"

namespace quillmere {

/// One child process in a session of its own. Its standard input is the null device and its session
/// has no terminal, so that a question or a password prompt fails at once instead of hanging. It
/// has default signal dispositions and none of our descriptors. Owned and used by one thread.
class ChildProcess {
 public:
  struct Launch {
    std::string program;
    /// Without the program's name.
    std::vector<std::string> arguments;
    Environment environment;
  };

  /// Both ends of one of the child's outputs; the reading end does not block.
  struct Pipe {
    FileDescriptor reading;
    FileDescriptor writing;
  };

  [[nodiscard]] static std::expected<Pipe, std::error_code> openPipe();

  /// Starts the program directly, never through a shell, in the working directory of this process,
  /// or at home where that is gone. Both writing ends are closed here afterwards. Where this
  /// process ignores SIGCHLD, it no longer does, because the exit status would be lost.
  [[nodiscard]] static std::expected<ChildProcess, std::error_code> launch(const Launch& launch,
                                                                           Pipe& standardOutput,
                                                                           Pipe& standardError);

  [[nodiscard]] pid_t pid() const { return pid_; }

  /// Becomes readable when the child has exited; not open on a system without such a descriptor.
  [[nodiscard]] const FileDescriptor& exitDescriptor() const { return exitDescriptor_; }

  /// Whether the child has exited. It stays a zombie until `reap`, so that its session keeps its
  /// number.
  [[nodiscard]] bool hasExited() const;

  /// Sends the terminate request to every process of the child's session: `brew` puts the tools
  /// that it starts into process groups of their own, which a request to one group would miss. Must
  /// come before `reap`.
  void terminateSession() const;

  /// The exit status of the child, or the number of the signal that ended it. Fails where somebody
  /// else of this process has reaped the child. Call once, when it has exited.
  [[nodiscard]] std::expected<std::int32_t, std::error_code> reap();

 private:
  explicit ChildProcess(pid_t pid);

  pid_t pid_;
  FileDescriptor exitDescriptor_;
};

}  // namespace quillmere

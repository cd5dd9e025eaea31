#include "execution/ChildProcess.h"

#include <array>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <set>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quillmere {
namespace {

std::error_code lastError() {
  return {errno, std::system_category()};
}

/// Moves a descriptor above the three standard ones. Where this process was started without those,
/// a pipe could get one of their numbers and be overwritten when the child's are set up.
FileDescriptor aboveStandardStreams(FileDescriptor fd) {
  return fd.get() > STDERR_FILENO
             ? std::move(fd)
             : FileDescriptor(fcntl(fd.get(), F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
}

/// Undoes an ignored SIGCHLD, with which the system would reap children and drop their exit
/// statuses. An ignored signal is inherited through exec, so whoever started us may have set it.
void keepExitStatuses() {
  struct sigaction action = {};
  sigaction(SIGCHLD, nullptr, &action);
  const bool isIgnored = action.sa_handler == SIG_IGN;
  if (isIgnored || (action.sa_flags & SA_NOCLDWAIT) != 0) {
    action.sa_handler = isIgnored ? SIG_DFL : action.sa_handler;
    action.sa_flags &= ~SA_NOCLDWAIT;
    sigaction(SIGCHLD, &action, nullptr);
  }
}

class SpawnAttributes {
 public:
  SpawnAttributes() {
    posix_spawnattr_init(&attributes_);
    sigset_t signals;
    sigfillset(&signals);
    posix_spawnattr_setsigdefault(&attributes_, &signals);
    sigemptyset(&signals);
    posix_spawnattr_setsigmask(&attributes_, &signals);
    posix_spawnattr_setflags(&attributes_,
                             POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);
  }

  ~SpawnAttributes() { posix_spawnattr_destroy(&attributes_); }

  SpawnAttributes(const SpawnAttributes&) = delete;
  SpawnAttributes& operator=(const SpawnAttributes&) = delete;

  [[nodiscard]] const posix_spawnattr_t* get() const { return &attributes_; }

 private:
  posix_spawnattr_t attributes_{};
};

class SpawnFileActions {
 public:
  SpawnFileActions(int standardOutput, int standardError) {
    posix_spawn_file_actions_init(&actions_);
    posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&actions_, standardOutput, STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions_, standardError, STDERR_FILENO);
    posix_spawn_file_actions_addclosefrom_np(&actions_, STDERR_FILENO + 1);
  }

  ~SpawnFileActions() { posix_spawn_file_actions_destroy(&actions_); }

  SpawnFileActions(const SpawnFileActions&) = delete;
  SpawnFileActions& operator=(const SpawnFileActions&) = delete;

  void startIn(const std::string& folder) {
    posix_spawn_file_actions_addchdir_np(&actions_, folder.c_str());
  }

  [[nodiscard]] const posix_spawn_file_actions_t* get() const { return &actions_; }

 private:
  posix_spawn_file_actions_t actions_{};
};

/// The folder to start in where the current one was deleted: `brew` refuses to work without one.
std::optional<std::string> replacementWorkingDirectory() {
  std::error_code error;
  if (std::filesystem::exists(std::filesystem::current_path(error), error)) {
    return std::nullopt;
  }
  const char* home = std::getenv("HOME");
  return home && std::filesystem::is_directory(home, error) ? home : "/";
}

std::vector<char*> pointers(std::vector<std::string>& texts) {
  std::vector<char*> result;
  result.reserve(texts.size() + 1);
  for (std::string& text : texts) {
    result.push_back(text.data());
  }
  result.push_back(nullptr);
  return result;
}

/// SIGCONT follows because a stopped process handles SIGTERM only once it continues.
constexpr std::array terminateRequest{SIGTERM, SIGCONT};

/// Signals through a descriptor of the process, so that its number cannot be reused between the
/// check and the signal. A zombie ignores it.
void terminateMember(pid_t member, pid_t session) {
  const FileDescriptor process(static_cast<int>(syscall(SYS_pidfd_open, member, 0)));
  if (process.isOpen()) {
    if (getsid(member) == session) {
      for (const int signal : terminateRequest) {
        syscall(SYS_pidfd_send_signal, process.get(), signal, nullptr, 0);
      }
    }
  } else if (errno != ESRCH) {
    // The system has no such descriptors, or none are left: signal by number, which was just seen.
    for (const int signal : terminateRequest) {
      kill(member, signal);
    }
  }
}

/// Asks `getsid` instead of reading each /proc/PID/stat: a millisecond for all processes of a busy
/// machine instead of many. The leader is listed even where /proc cannot be opened for lack of
/// descriptors.
std::vector<pid_t> membersOfSession(pid_t session) {
  std::vector<pid_t> members = {session};
  std::error_code error;
  for (std::filesystem::directory_iterator entry("/proc", error), end; !error && entry != end;
       entry.increment(error)) {
    const std::string name = entry->path().filename().string();
    pid_t number = 0;
    const auto [rest, problem] = std::from_chars(name.data(), name.data() + name.size(), number);
    if (problem == std::errc() && *rest == '\0' && number != session && getsid(number) == session) {
      members.push_back(number);
    }
  }
  return members;
}

}  // namespace

std::expected<ChildProcess::Pipe, std::error_code> ChildProcess::openPipe() {
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) {
    return std::unexpected(lastError());
  }
  Pipe pipe{aboveStandardStreams(FileDescriptor(ends[0])),
            aboveStandardStreams(FileDescriptor(ends[1]))};
  if (!pipe.reading.isOpen() || !pipe.writing.isOpen() ||
      fcntl(pipe.reading.get(), F_SETFL, O_NONBLOCK) != 0) {
    return std::unexpected(lastError());
  }
  return pipe;
}

std::expected<ChildProcess, std::error_code> ChildProcess::launch(const Launch& launch,
                                                                  Pipe& standardOutput,
                                                                  Pipe& standardError) {
  std::vector<std::string> arguments = {launch.program};
  arguments.insert(arguments.end(), launch.arguments.begin(), launch.arguments.end());
  std::vector<std::string> environment;
  environment.reserve(launch.environment.size());
  for (const auto& [name, value] : launch.environment) {
    environment.emplace_back(name).append("=").append(value);
  }
  const SpawnAttributes attributes;
  SpawnFileActions actions(standardOutput.writing.get(), standardError.writing.get());
  if (const auto folder = replacementWorkingDirectory()) {
    actions.startIn(*folder);
  }
  keepExitStatuses();
  pid_t pid = 0;
  const int error = posix_spawn(&pid, launch.program.c_str(), actions.get(), attributes.get(),
                                pointers(arguments).data(), pointers(environment).data());
  standardOutput.writing.reset();
  standardError.writing.reset();
  if (error != 0) {
    return std::unexpected(std::error_code(error, std::system_category()));
  }
  return ChildProcess(pid);
}

ChildProcess::ChildProcess(pid_t pid)
    : pid_(pid), exitDescriptor_(static_cast<int>(syscall(SYS_pidfd_open, pid, 0))) {
}

bool ChildProcess::hasExited() const {
  siginfo_t information{};
  const auto id = static_cast<id_t>(pid_);
  return waitid(P_PID, id, &information, WEXITED | WNOHANG | WNOWAIT) != 0 ||
         information.si_pid == pid_;
}

void ChildProcess::terminateSession() const {
  // The session may start processes while it is being read, so it is read again until there is no
  // new one. The bound is for a session that starts processes faster than we read.
  constexpr int mostRounds = 50;
  std::set<pid_t> asked;
  for (int round = 0; round < mostRounds; ++round) {
    bool foundNew = false;
    for (const pid_t member : membersOfSession(pid_)) {
      if (asked.insert(member).second) {
        foundNew = true;
        terminateMember(member, pid_);
      }
    }
    if (!foundNew) {
      return;
    }
  }
}

std::expected<std::int32_t, std::error_code> ChildProcess::reap() {
  siginfo_t information{};
  while (waitid(P_PID, static_cast<id_t>(pid_), &information, WEXITED) != 0) {
    if (errno != EINTR) {
      return std::unexpected(lastError());
    }
  }
  return information.si_status;
}

}  // namespace quillmere

#include "support/FullDisk.h"

#include <csignal>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quillmere::test {

bool holdsOnDiskFullAfter(qint64 bytes, const std::function<bool()>& body) {
  const pid_t child = fork();
  if (child == 0) {
    // Without this the write ends the process instead of failing.
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit = {static_cast<rlim_t>(bytes), static_cast<rlim_t>(bytes)};
    _exit(setrlimit(RLIMIT_FSIZE, &limit) == 0 && body() ? 0 : 1);
  }
  int status = 0;
  return child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status) &&
         WEXITSTATUS(status) == 0;
}

}  // namespace quillmere::test

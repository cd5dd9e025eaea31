#include "support/UnprivilegedUser.h"

#include <sys/wait.h>
#include <unistd.h>

namespace quillmere::test {

bool holdsForUnprivilegedUser(const std::function<bool()>& body) {
  if (geteuid() != 0) {
    return body();
  }
  const pid_t child = fork();
  if (child == 0) {
    constexpr uid_t nobody = 65534;
    const bool holds = setgid(nobody) == 0 && setuid(nobody) == 0 && body();
    _exit(holds ? 0 : 1);
  }
  int status = 0;
  return child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status) &&
         WEXITSTATUS(status) == 0;
}

}  // namespace quillmere::test

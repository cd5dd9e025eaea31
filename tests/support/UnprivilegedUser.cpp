#include "support/UnprivilegedUser.h"

#include <unistd.h>

#include "support/ForkedProcess.h"

namespace quillmere::test {

bool runUnprivileged(const std::function<bool()>& body) {
  if (geteuid() != 0) {
    return body();
  }
  return exitedCleanly(runForked([&] {
    constexpr uid_t nobody = 65534;
    if (setgid(nobody) != 0 || setuid(nobody) != 0 || !body()) {
      _exit(1);
    }
  }));
}

}  // namespace quillmere::test

#include "support/FullDisk.h"

#include <algorithm>
#include <csignal>
#include <sys/resource.h>
#include <unistd.h>

#include "support/ForkedProcess.h"

namespace quillmere::test {
namespace {

/// Leaves the hard limit alone, above which nobody comes back.
bool limitFilesTo(rlim_t bytes) {
  rlimit limit = {};
  if (getrlimit(RLIMIT_FSIZE, &limit) != 0) {
    return false;
  }
  limit.rlim_cur = std::min(bytes, limit.rlim_max);
  return setrlimit(RLIMIT_FSIZE, &limit) == 0;
}

}  // namespace

bool runWithDiskLimit(qint64 bytes, const std::function<bool()>& body) {
  return exitedCleanly(runForked([&] {
    // Without this the write ends the process instead of failing.
    std::signal(SIGXFSZ, SIG_IGN);
    if (!limitFilesTo(static_cast<rlim_t>(bytes)) || !body()) {
      _exit(1);
    }
  }));
}

bool restoreDiskSpace() {
  return limitFilesTo(RLIM_INFINITY);
}

}  // namespace quillmere::test

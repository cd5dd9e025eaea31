#include <array>
#include <cerrno>
#include <cstddef>
#include <gtest/gtest.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "execution/RunFixture.h"
#include "support/ForkedProcess.h"

namespace quillmere::test {
namespace {

/// From now on `call` fails with `error` in this process.
bool refuse(unsigned call, unsigned error) {
  std::array<sock_filter, 4> filter = {{
      BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
      BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, call, 0, 1),
      BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | error),
      BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
  }};
  const sock_fprog program = {.len = filter.size(), .filter = filter.data()};
  return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
         prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

/// A call that a run needs, and why the system refuses it.
struct Refusal {
  const char* name;
  unsigned call;
  int error;
};

class RefusedDescriptors : public testing::TestWithParam<Refusal> {};

TEST_P(RefusedDescriptors, AreToldOfAsTheSystemTellsIt) {
  const TestPrefix prefix;
  EXPECT_TRUE(exitedCleanly(runForked([&prefix] {
    const auto& [name, call, error] = GetParam();
    if (!refuse(call, static_cast<unsigned>(error))) {
      _exit(2);
    }
    const auto started = DirectCommandRunner().start(infoCommand(), resolved(prefix));
    const DirectCommandRunnerError expected =
        SystemFailure{std::error_code(error, std::system_category())};
    _exit(!started && started.error() == expected ? 0 : 1);
  })));
}

INSTANTIATE_TEST_SUITE_P(Calls, RefusedDescriptors,
                         testing::Values(Refusal{"Pipes", SYS_pipe2, ENFILE},
                                         Refusal{"EventDescriptors", SYS_eventfd2, ENOMEM}),
                         [](const auto& test) { return std::string(test.param.name); });

}  // namespace
}  // namespace quillmere::test

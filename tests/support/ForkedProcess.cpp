#include "support/ForkedProcess.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <ctime>
#include <malloc.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace quillmere::test {
namespace {

int statusOf(pid_t process) {
  int status = -1;
  return process > 0 && waitpid(process, &status, 0) == process ? status : -1;
}

/// Has the C library overwrite what is freed from now on, so that whoever goes on using it is found
/// out without a sanitizer too. It does not while its cache of small pieces has room, which is
/// filled here.
void spoilWhatIsFreed() {
  constexpr std::size_t largest = 1024;
  constexpr std::size_t step = 16;
  for (std::size_t size = step; size <= largest; size += step) {
    std::array<void* volatile, 16> pieces = {};
    for (void* volatile& piece : pieces) {
      piece = std::malloc(size);
    }
    for (void* const piece : pieces) {
      std::free(piece);
    }
  }
  mallopt(M_PERTURB, 1);
}

/// Made before `main`, and so destroyed behind all that is made later.
struct LastToGo {
  std::function<bool()> body;

  ~LastToGo() {
    if (body) {
      _exit(body() ? 0 : 1);
    }
  }
};

LastToGo lastToGo;

}  // namespace

pid_t runForked(const std::function<void()>& body) {
  const pid_t child = fork();
  if (child == 0) {
    body();
    _exit(0);
  }
  return child;
}

pid_t runForkedAtExit(std::function<bool()> body) {
  return runForked([&body] {
    lastToGo.body = std::move(body);
    spoilWhatIsFreed();
    std::exit(1);
  });
}

bool exitedCleanly(pid_t process) {
  const int status = statusOf(process);
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

bool wasKilled(pid_t process) {
  const int status = statusOf(process);
  return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
}

void killSelfAfter(std::chrono::microseconds time) {
  constexpr auto nanoseconds = std::chrono::nanoseconds(std::chrono::seconds(1)).count();
  sigevent event = {};
  event.sigev_notify = SIGEV_SIGNAL;
  event.sigev_signo = SIGKILL;
  timer_t timer = {};
  const auto whole = std::chrono::nanoseconds(time).count();
  const itimerspec moment = {
      .it_interval = {},
      .it_value = {.tv_sec = whole / nanoseconds, .tv_nsec = whole % nanoseconds + 1}};
  if (timer_create(CLOCK_MONOTONIC, &event, &timer) != 0 ||
      timer_settime(timer, 0, &moment, nullptr) != 0) {
    _exit(1);
  }
}

}  // namespace quillmere::test

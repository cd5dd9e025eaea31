#include "support/AnotherProcess.h"

#include <csignal>
#include <ctime>
#include <sys/wait.h>
#include <unistd.h>

namespace quillmere::test {
namespace {

int statusOf(pid_t process) {
  int status = -1;
  return process > 0 && waitpid(process, &status, 0) == process ? status : -1;
}

}  // namespace

pid_t inAnotherProcess(const std::function<void()>& body) {
  const pid_t child = fork();
  if (child == 0) {
    body();
    _exit(0);
  }
  return child;
}

bool hasEndedWell(pid_t process) {
  const int status = statusOf(process);
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

bool wasKilled(pid_t process) {
  const int status = statusOf(process);
  return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
}

void killMyselfAfter(std::chrono::microseconds time) {
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

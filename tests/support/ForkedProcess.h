#pragma once

#include <chrono>
#include <functional>
#include <sys/types.h>

namespace quillmere::test {

/// Runs `body` in a copy of this process, which then ends without a word.
[[nodiscard]] pid_t runForked(const std::function<void()>& body);

/// Lets a copy of this process end as a program does, and runs `body` when all that a function has
/// made `static` is destroyed: what a thread that nobody joins may still do. Ends well where `body`
/// returns true.
[[nodiscard]] pid_t runForkedAtExit(std::function<bool()> body);

/// Wait for its end.
[[nodiscard]] bool exitedCleanly(pid_t process);
[[nodiscard]] bool wasKilled(pid_t process);

/// Ends the calling process as `kill -9` does, whatever it is doing by then.
void killSelfAfter(std::chrono::microseconds time);

}  // namespace quillmere::test

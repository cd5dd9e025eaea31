#pragma once

#include <functional>

namespace quillmere::test {

/// Runs `body` where file permissions hold: for root, who may read everything, in a child process
/// that has become nobody. Returns whether `body` returned true.
[[nodiscard]] bool runUnprivileged(const std::function<bool()>& body);

}  // namespace quillmere::test

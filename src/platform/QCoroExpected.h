#pragma once

#include <coroutine>
#include <cstddef>
#include <expected>

namespace QCoro::detail {

template <typename T>
class TaskPromise;

}  // namespace QCoro::detail

namespace quillmere {

/// Lets a `QCoro::Task` of a `std::expected` be awaited. QCoro compares the task's handle with
/// nullptr. Because our expected can be built from nullptr, libstdc++ 12 then tries its own
/// operator== and recurses endlessly. This overload is the better match. Any thread.
template <typename T, typename Error>
[[nodiscard]] bool operator==(
    std::coroutine_handle<QCoro::detail::TaskPromise<std::expected<T, Error>>> handle,
    std::nullptr_t /*null*/) noexcept {
  return !handle;
}

}  // namespace quillmere

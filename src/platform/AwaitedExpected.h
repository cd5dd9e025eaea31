#pragma once

#include <coroutine>
#include <cstddef>
#include <expected>

namespace QCoro::detail {

template <typename T>
class TaskPromise;

}  // namespace QCoro::detail

namespace quillmere {

/// Lets a `QCoro::Task` of a `std::expected` of ours be awaited. Whoever awaits has the task's
/// handle compared with null; null makes many a value as well, so that libstdc++ 12 would compare
/// two results, and then the value of one with the handle, without end. This is the better match.
template <typename T, typename Error>
[[nodiscard]] bool operator==(
    std::coroutine_handle<QCoro::detail::TaskPromise<std::expected<T, Error>>> handle,
    std::nullptr_t /*null*/) noexcept {
  return !handle;
}

}  // namespace quillmere

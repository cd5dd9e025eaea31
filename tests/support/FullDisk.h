#pragma once

#include <QtCore/QtGlobal>

#include <functional>

namespace quillmere::test {

/// Runs `body` in a child process in which no file can grow beyond `bytes`: what is written past
/// them fails as on a full disk. Returns whether `body` returned true.
[[nodiscard]] bool runWithDiskLimit(qint64 bytes, const std::function<bool()>& body);

/// Makes room again, from inside of `body`. Returns whether that worked.
[[nodiscard]] bool restoreDiskSpace();

}  // namespace quillmere::test

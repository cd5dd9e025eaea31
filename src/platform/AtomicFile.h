#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace quillmere {

/// Replaces the file at `path` by `bytes` as a whole: a reader sees the old content or the new,
/// and on any failure, a full disk included, the old content stays. Nobody but the owner
/// may read the new one. Returns whether it stands. Blocks on the disk; any thread.
[[nodiscard]] bool replaceFile(const QString& path, const QByteArray& bytes);

/// Whether the disk has room for a file of `bytes` beside the one at `path`. For writers that are
/// not ours and would lose the old file to a full disk. Any thread.
[[nodiscard]] bool hasFreeSpaceFor(const QString& path, qint64 bytes);

}  // namespace quillmere

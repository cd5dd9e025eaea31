#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <expected>

namespace quillmere {

/// How many bytes beyond the content a text takes that was read here: a reader of JSON that works
/// on whole registers may look at them, and so need not copy the text first.
inline constexpr qsizetype readAheadPadding = 64;

/// Whether `bytes` have that capacity behind them. Any thread.
[[nodiscard]] bool hasReadAheadPadding(const QByteArray& bytes);

/// The whole of the regular file at `path`, or the platform's words for why not. A pipe, a device
/// or a folder is refused instead of waited for, and so is a file of more than `mostBytes`, before
/// memory is set aside for it: some have a size that no disk has, and some no end. The bytes come
/// with `readAheadPadding` of capacity. Blocks on the disk; any thread.
[[nodiscard]] std::expected<QByteArray, QString> readRegularFile(const QString& path,
                                                                 qint64 mostBytes);

}  // namespace quillmere

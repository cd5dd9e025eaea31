#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <expected>

namespace quillmere {

/// How many bytes of spare capacity follow the content of a file that was read here. The JSON
/// parser reads in blocks, past the end of the text; without this room it has to copy the text.
inline constexpr qsizetype parserPadding = 64;

/// Whether `bytes` have that capacity behind them. Any thread.
[[nodiscard]] bool hasParserPadding(const QByteArray& bytes);

/// The whole content of the regular file at `path`, or the system's error message. A pipe, a device
/// or a folder is an error, because opening one could block. So is a file of more than
/// `maximumBytes`, before memory is allocated for it: sparse files and those of /proc can be of any
/// size. The bytes have `parserPadding` behind them. Blocks on the disk; any thread.
[[nodiscard]] std::expected<QByteArray, QString> readRegularFile(const QString& path,
                                                                 qint64 maximumBytes);

}  // namespace quillmere

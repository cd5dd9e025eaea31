#pragma once

#include <QtCore/QString>
#include <QtCore/QUrl>

// All of these are pure; any thread, also while the program ends.

namespace quillmere {

/// A file URL for a path of this machine; every character of the path is meant as itself.
[[nodiscard]] QUrl fileUrl(const QString& path);

/// The path of a file URL, without a trailing slash (but for the root).
[[nodiscard]] QString filePath(const QUrl& url);

/// `url` with a relative path appended, whether or not `url` ends in a slash.
[[nodiscard]] QUrl appendingPath(const QUrl& url, QStringView relativePath);

/// What stands behind the last slash of the path, not counting a trailing one: the name of the file
/// or folder. Empty for the root.
[[nodiscard]] QString lastPathComponent(const QUrl& url);

}  // namespace quillmere

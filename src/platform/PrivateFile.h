#pragma once

#include <QtCore/QFile>
#include <QtCore/QString>

namespace quillmere {

/// What nobody but the user may read: packages that somebody has tell a lot about them.
inline constexpr QFile::Permissions ownerOnly = QFile::ReadOwner | QFile::WriteOwner;

/// Takes the file at `path` from everybody but its owner, where there is one. Any thread.
void restrictToOwner(const QString& path);

/// The same, and makes an empty file, with its folder, where there is none: whoever writes it
/// afterwards keeps its permissions. A disk that refuses is left as it is. Any thread.
void ensurePrivateFile(const QString& path);

}  // namespace quillmere

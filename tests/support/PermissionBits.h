#pragma once

#include <QtCore/QFile>

#include <sys/stat.h>

namespace quillmere::test {

/// Who may do what with the file, as chmod counts it; 0 where there is none.
inline mode_t permissionBits(const QString& path) {
  struct stat status = {};
  const bool exists = stat(QFile::encodeName(path).constData(), &status) == 0;
  return exists ? status.st_mode & 07777U : 0;
}

}  // namespace quillmere::test

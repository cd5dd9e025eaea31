#include "platform/VisibleEntries.h"

#include <QtCore/QFile>

#include <cerrno>
#include <fcntl.h>

namespace quillmere {

VisibleEntries::VisibleEntries(const QString& path, Links links) {
  const int refusal = links == Links::refused ? O_NOFOLLOW : 0;
  const int descriptor = open(QFile::encodeName(path).constData(),
                              O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK | refusal);
  folder_.reset(descriptor < 0 ? nullptr : fdopendir(descriptor));
  if (!folder_) {
    error_.assign(errno, std::generic_category());
  }
}

const dirent* VisibleEntries::next() {
  while (folder_ && !error_) {
    errno = 0;
    const dirent* const entry = readdir(folder_.get());
    if (entry == nullptr) {
      error_.assign(errno, std::generic_category());
      return nullptr;
    }
    if (entry->d_name[0] != '.') {
      return entry;
    }
  }
  return nullptr;
}

}  // namespace quillmere

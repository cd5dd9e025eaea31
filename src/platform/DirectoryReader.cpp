#include "platform/DirectoryReader.h"

#include <QtCore/QFile>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace quillmere {

DirectoryReader::DirectoryReader(const QString& path, LinkPolicy links) {
  const int refusal = links == LinkPolicy::refuse ? O_NOFOLLOW : 0;
  const int descriptor = open(QFile::encodeName(path).constData(),
                              O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK | refusal);
  folder_.reset(descriptor < 0 ? nullptr : fdopendir(descriptor));
  if (!folder_) {
    error_.assign(errno, std::generic_category());
    if (descriptor >= 0) {
      close(descriptor);
    }
  }
}

const dirent* DirectoryReader::next() {
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

std::optional<struct stat> DirectoryReader::status(const dirent& entry) const {
  struct stat status = {};
  const int folder = dirfd(folder_.get());
  const bool isKnown =
      folder >= 0 && fstatat(folder, entry.d_name, &status, AT_SYMLINK_NOFOLLOW) == 0;
  return isKnown ? std::optional(status) : std::nullopt;
}

}  // namespace quillmere

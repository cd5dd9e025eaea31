#include "platform/RegularFile.h"

#include <QtCore/QFile>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "platform/FileDescriptor.h"

namespace quillmere {
namespace {

std::unexpected<QString> failure(int number) {
  const std::error_code code(number, std::generic_category());
  return std::unexpected(QString::fromStdString(code.message()));
}

/// Reads until the end of the file, which may have grown or shrunk since its `size` was asked for.
std::expected<QByteArray, QString> readAll(const FileDescriptor& file, qsizetype size,
                                           qint64 maximumBytes) {
  constexpr qsizetype least = 4096;
  QByteArray data;
  qsizetype length = 0;
  // One byte more than `size` shows whether the file has grown. Files of /proc have the size 0,
  // whatever their content.
  for (qsizetype room = size == 0 ? least : size + 1;;) {
    data.reserve(room + parserPadding);
    data.resize(room);
    const ssize_t count =
        read(file.get(), data.data() + length, static_cast<std::size_t>(room - length));
    if (count < 0 && errno != EINTR) {
      return failure(errno);
    }
    length += std::max(count, ssize_t{0});
    if (length > maximumBytes) {
      return failure(EFBIG);
    }
    if (count == 0 || (count > 0 && length == size)) {
      data.resize(length);
      return data;
    }
    if (length == room) {
      room = std::max(least, 2 * room);
    }
  }
}

}  // namespace

bool hasParserPadding(const QByteArray& bytes) {
  // Only a copy, which shares the bytes, gives a look at where they are kept.
  return QByteArray(bytes).data_ptr().freeSpaceAtEnd() >= parserPadding;
}

std::expected<QByteArray, QString> readRegularFile(const QString& path, qint64 maximumBytes) {
  // Opening a pipe would wait for its other end, and opening some devices acts on them.
  const FileDescriptor file(
      open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
  struct stat status = {};
  if (!file.isOpen() || fstat(file.get(), &status) != 0) {
    return failure(errno);
  }
  if (!S_ISREG(status.st_mode)) {
    return failure(S_ISDIR(status.st_mode) ? EISDIR : EINVAL);
  }
  if (status.st_size > maximumBytes) {
    return failure(EFBIG);
  }
  return readAll(file, status.st_size, maximumBytes);
}

}  // namespace quillmere

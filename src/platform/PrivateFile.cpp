#include "platform/PrivateFile.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>

#include "platform/FileDescriptor.h"

namespace quillmere {

void restrictToOwner(const QString& path) {
  const QByteArray name = QFile::encodeName(path);
  struct stat status = {};
  // A folder in its place could not be entered afterwards.
  if (stat(name.constData(), &status) == 0 && S_ISREG(status.st_mode) &&
      (status.st_mode & (S_IRWXG | S_IRWXO)) != 0) {
    (void)chmod(name.constData(), S_IRUSR | S_IWUSR);
  }
}

void ensurePrivateFile(const QString& path) {
  if (QDir().mkpath(QFileInfo(path).path())) {
    const FileDescriptor made(open(QFile::encodeName(path).constData(),
                                   O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR));
  }
  restrictToOwner(path);
}

}  // namespace quillmere

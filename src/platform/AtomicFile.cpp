#include "platform/AtomicFile.h"

#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>
#include <QtCore/QTemporaryFile>

#include <fcntl.h>

#include "platform/PrivateFile.h"

namespace quillmere {

bool replaceFile(const QString& path, const QByteArray& bytes) {
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly) || !file.setPermissions(ownerOnly)) {
    return false;
  }
  // A write that comes up short stays in the buffer of the file, and commit() does not look whether
  // it ever reached the disk: flush() does.
  if (file.write(bytes) != bytes.size() || !file.flush()) {
    file.cancelWriting();
    return false;
  }
  return file.commit();
}

bool hasFreeSpaceFor(const QString& path, qint64 bytes) {
  QTemporaryFile probe(QFileInfo(path).path() + QStringLiteral("/.room-XXXXXX"));
  return probe.open() && posix_fallocate(probe.handle(), 0, bytes) == 0;
}

}  // namespace quillmere

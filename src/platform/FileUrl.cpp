#include "platform/FileUrl.h"

namespace quillmere {

QUrl fileUrl(const QString& path) {
  return QUrl::fromLocalFile(path);
}

QString filePath(const QUrl& url) {
  return url.adjusted(QUrl::StripTrailingSlash).toLocalFile();
}

QUrl appendingPath(const QUrl& url, QStringView relativePath) {
  QString path = filePath(url);
  if (!path.endsWith(u'/')) {
    path += u'/';
  }
  path += relativePath;
  return fileUrl(path);
}

QString lastPathComponent(const QUrl& url) {
  const QString path = filePath(url);
  return path.sliced(path.lastIndexOf(u'/') + 1);
}

}  // namespace quillmere

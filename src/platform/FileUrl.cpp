#include "platform/FileUrl.h"

namespace quillmere {

QUrl fileUrl(const QString& path) {
  // Two slashes may begin the name of another machine.
  if (!path.startsWith(u'/') || path.startsWith(QLatin1StringView("//"))) {
    return QUrl::fromLocalFile(path);
  }
  // Scans make many of these, and what `fromLocalFile` does is mostly to set the scheme and to look
  // for percent signs, slowly. Never destroyed: a scan may outlive the end of `main`.
  static const auto& root = *new QUrl(QUrl::fromLocalFile(QStringLiteral("/")));
  QUrl url = root;
  url.setPath(path, path.contains(u'%') ? QUrl::DecodedMode : QUrl::TolerantMode);
  return url;
}

QString filePath(const QUrl& url) {
  QString path = url.toLocalFile();
  while (path.size() > 1 && path.endsWith(u'/')) {
    path.chop(1);
  }
  return path;
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

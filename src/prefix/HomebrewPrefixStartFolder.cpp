#include "prefix/HomebrewPrefixStartFolder.h"

#include <QtCore/QDir>

#include "platform/FileUrl.h"

namespace quillmere {

QUrl homebrewPrefixStartFolder(const HomebrewPrefixFileSystem& fileSystem) {
  for (const QString& folder :
       {QStringLiteral("/opt/homebrew"), QStringLiteral("/home/linuxbrew/.linuxbrew")}) {
    if (fileSystem.fileExists(folder)) {
      return fileUrl(folder);
    }
  }
  return fileUrl(QDir::homePath());
}

}  // namespace quillmere

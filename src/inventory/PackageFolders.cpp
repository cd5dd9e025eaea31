#include "inventory/PackageFolders.h"

#include <QtCore/QtGlobal>

#include "platform/FileUrl.h"
#include "platform/NameOrdering.h"
#include "prefix/HomebrewPrefixReader.h"

namespace quillmere {
namespace {

/// The children of the location, if it is a folder that can be read.
QStringList packageNames(const HomebrewPrefixLocation* location) {
  const bool isReadable =
      location != nullptr && location->status == HomebrewPrefixLocation::Status::readable;
  return isReadable ? location->childNames : QStringList();
}

QStringList versionsIn(const HomebrewPrefixFileSystem& fileSystem, const QUrl& folder) {
  QStringList versions = childNames(fileSystem, folder);
  // Most packages have one version, which is in order.
  if (versions.size() > 1) {
    NameOrdering::forUserLocale().stableSort(versions, [](const QString& name) { return name; });
  }
  return versions;
}

}  // namespace

std::optional<QString> PackageFolder::currentVersion() const {
  return versions.isEmpty() ? std::nullopt : std::optional(versions.last());
}

void visitPackageFolders(const HomebrewPrefixFileSystem& fileSystem,
                         const HomebrewPrefixReadResult& prefix, HomebrewPrefixLocation::Kind kind,
                         const ScanProgress& progress,
                         const std::function<void(PackageFolder&&)>& visit) {
  const HomebrewPrefixLocation* const location = prefix.location(kind);
  const QStringList names = packageNames(location);
  const auto report = [&](qsizetype scanned) {
    if (progress) {
      progress(scanned, names.size());
    }
  };
  report(0);
  for (qsizetype i = 0; i < names.size(); ++i) {
    const QUrl url = appendingPath(location->url, names[i]);
    const QString path = filePath(url);
    if (fileSystem.fileExists(path) && fileSystem.isReadableFile(path)) {
      visit({.name = names[i], .url = url, .versions = versionsIn(fileSystem, url)});
    }
    report(i + 1);
  }
}

void abortForDuplicateKey(std::string_view key) {
  qFatal("Duplicate values for key: '%.*s'", static_cast<int>(key.size()), key.data());
}

}  // namespace quillmere

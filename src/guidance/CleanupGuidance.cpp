#include "guidance/CleanupGuidance.h"

#include <QtCore/QFile>
#include <QtCore/QStringList>

#include <sys/stat.h>

#include "platform/DirectoryReader.h"
#include "platform/FileUrl.h"
#include "platform/NameOrdering.h"
#include "platform/SecurityScopedAccess.h"
#include "prefix/HomebrewPrefixReader.h"

namespace quillmere {
namespace {

using CacheState = CleanupGuidanceSummary::CacheState;
using OldVersionPackage = CleanupGuidanceSummary::OldVersionPackage;

OldVersionPackage oldVersionsOf(const InstalledPackageSummary& package) {
  const auto& versions = package.installedVersions;
  return {.id = package.id,
          .name = package.name,
          .kind = package.kind,
          .currentVersion = package.installedVersion,
          .oldVersions = {versions.begin(), versions.end() - 1}};
}

/// Adds up the sizes of what lies in one folder after another.
class SizeEstimate {
 public:
  /// Whether the folder could be listed. Leaves the folders in it for later, by their paths: a
  /// tree may be deeper than a process may have folders open.
  bool addFolder(const QString& path, DirectoryReader::LinkPolicy links) {
    DirectoryReader entries(path, links);
    if (entries.error()) {
      return false;
    }
    while (const dirent* const entry = entries.next()) {
      const auto status = entries.status(*entry);
      if (status && S_ISDIR(status->st_mode)) {
        remaining_ += path + u'/' + QFile::decodeName(entry->d_name);
      } else if (status && S_ISREG(status->st_mode)) {
        addFile(status->st_size);
      }
    }
    return true;
  }

  void addRemainingFolders() {
    while (!remaining_.isEmpty()) {
      addFolder(remaining_.takeLast(), DirectoryReader::LinkPolicy::refuse);
    }
  }

  [[nodiscard]] qint64 bytes() const { return bytes_; }

 private:
  void addFile(qint64 size) {
    if (__builtin_add_overflow(bytes_, size, &bytes_)) {
      qFatal("The files of the cache are larger than a number can say");
    }
  }

  QStringList remaining_;
  qint64 bytes_ = 0;
};

}  // namespace

std::vector<OldVersionPackage> oldVersionPackages(
    const std::vector<InstalledPackageSummary>& inventory) {
  std::vector<OldVersionPackage> packages;
  for (const InstalledPackageSummary& package : inventory) {
    if (package.installedVersions.size() > 1) {
      packages.push_back(oldVersionsOf(package));
    }
  }
  NameOrdering::forUserLocale().stableSort(
      packages, [](const OldVersionPackage& package) { return package.name.toString(); });
  return packages;
}

qsizetype oldVersionCount(const std::vector<OldVersionPackage>& packages) {
  // Every version that is counted is in memory, so that the sum fits.
  qsizetype count = 0;
  for (const OldVersionPackage& package : packages) {
    count += static_cast<qsizetype>(package.oldVersions.size());
  }
  return count;
}

CacheState cleanupCacheState(const std::optional<QUrl>& prefixURL) {
  using Status = HomebrewPrefixLocation::Status;
  if (!prefixURL) {
    return {};
  }
  const HomebrewPrefixReadResult prefix = HomebrewPrefixReader(*prefixURL).read();
  const auto* const cache = prefix.location(HomebrewPrefixLocation::Kind::cache);
  if (cache == nullptr) {
    return {};
  }
  const QString path = filePath(cache->url);
  switch (cache->status) {
    case Status::readable:
      return {CacheState::Readable{.path = path, .estimatedBytes = estimatedSize(cache->url)}};
    case Status::missing:
      return {CacheState::Missing{path}};
    case Status::notReadable:
      break;
  }
  return {CacheState::NotReadable{path}};
}

CleanupGuidanceSummary cleanupGuidance(const std::vector<InstalledPackageSummary>& inventory,
                                       const std::optional<QUrl>& prefixURL) {
  return {.oldVersionPackages = oldVersionPackages(inventory),
          .cacheState = cleanupCacheState(prefixURL)};
}

std::optional<qint64> estimatedSize(const QUrl& folder) {
  const SecurityScopedAccess access(folder);
  SizeEstimate estimate;
  // The cache itself may well be a link to a larger disk.
  if (!estimate.addFolder(filePath(folder), DirectoryReader::LinkPolicy::follow)) {
    return std::nullopt;
  }
  estimate.addRemainingFolders();
  return estimate.bytes();
}

}  // namespace quillmere

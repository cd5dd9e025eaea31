#include "inventory/HomebrewCaskInventoryScanner.h"

#include <utility>

#include "inventory/PackageFolders.h"
#include "platform/SecurityScopedAccess.h"
#include "prefix/HomebrewPrefixReader.h"

namespace quillmere {

HomebrewCaskInventoryScanner::HomebrewCaskInventoryScanner(QUrl prefixURL,
                                                           HomebrewPrefixFileSystemPtr fileSystem)
    : prefixURL_(std::move(prefixURL)), fileSystem_(std::move(fileSystem)) {
}

HomebrewCaskInventoryScan HomebrewCaskInventoryScanner::scan(std::span<const HomebrewCask> catalog,
                                                             const ScanProgress& progress) const {
  const SecurityScopedAccess access(prefixURL_);
  HomebrewCaskInventoryScan scan;
  scan.prefixReadResult = HomebrewPrefixReader(prefixURL_, fileSystem_).read();
  const CatalogLookup<HomebrewCask> records(catalog, &HomebrewCask::token);
  visitPackageFolders(*fileSystem_, scan.prefixReadResult, HomebrewPrefixLocation::Kind::caskroom,
                      progress, [&](PackageFolder&& folder) {
                        scan.casks.push_back({.token = folder.name,
                                              .installedVersions = folder.versions,
                                              .currentVersion = folder.currentVersion(),
                                              .catalogCask = records.find(folder.name)});
                      });
  scan.scannedAt = QDateTime::currentDateTimeUtc();
  return scan;
}

}  // namespace quillmere

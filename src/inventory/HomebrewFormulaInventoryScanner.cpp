#include "inventory/HomebrewFormulaInventoryScanner.h"

#include <ranges>
#include <utility>

#include "inventory/HomebrewInstallReceipt.h"
#include "inventory/PackageFolders.h"
#include "platform/FileUrl.h"
#include "platform/SecurityScopedAccess.h"
#include "prefix/HomebrewPrefixReader.h"

namespace quillmere {
namespace {

using InstallReason = InstalledFormula::InstallReason;

InstallReason reasonOf(const HomebrewInstallReceipt& receipt) {
  if (!receipt.installedOnRequest) {
    return InstallReason::unknown;
  }
  return *receipt.installedOnRequest ? InstallReason::direct : InstallReason::dependency;
}

/// What the newest readable receipt says. If that one does not say, the reason is unknown: older
/// receipts are not asked.
InstallReason installReason(const HomebrewPrefixFileSystem& fileSystem, const PackageFolder& folder,
                            HomebrewInstallReceiptReader& receipts) {
  for (const QString& version : folder.versions | std::views::reverse) {
    const auto json = fileSystem.readData(
        appendingPath(folder.url, version + QStringLiteral("/INSTALL_RECEIPT.json")));
    const auto receipt = json ? receipts.read(*json) : std::nullopt;
    if (receipt) {
      return reasonOf(*receipt);
    }
  }
  return InstallReason::unknown;
}

}  // namespace

HomebrewFormulaInventoryScanner::HomebrewFormulaInventoryScanner(
    QUrl prefixURL, HomebrewPrefixFileSystemPtr fileSystem)
    : prefixURL_(std::move(prefixURL)), fileSystem_(std::move(fileSystem)) {
}

HomebrewFormulaInventoryScan HomebrewFormulaInventoryScanner::scan(
    std::span<const HomebrewFormula> catalog, const ScanProgress& progress) const {
  const SecurityScopedAccess access(prefixURL_);
  HomebrewFormulaInventoryScan scan;
  scan.prefixReadResult = HomebrewPrefixReader(prefixURL_, fileSystem_).read();
  const CatalogLookup<HomebrewFormula> records(catalog, &HomebrewFormula::name);
  HomebrewInstallReceiptReader receipts;
  visitPackageFolders(
      *fileSystem_, scan.prefixReadResult, HomebrewPrefixLocation::Kind::cellar, progress,
      [&](PackageFolder&& folder) {
        scan.formulae.push_back({.name = folder.name,
                                 .installedVersions = folder.versions,
                                 .currentVersion = folder.currentVersion(),
                                 .installReason = installReason(*fileSystem_, folder, receipts),
                                 .catalogFormula = records.find(folder.name)});
      });
  scan.scannedAt = QDateTime::currentDateTimeUtc();
  return scan;
}

}  // namespace quillmere

#pragma once

#include <QtCore/QDateTime>

#include <span>
#include <vector>

#include "inventory/InstalledCask.h"
#include "inventory/ScanProgress.h"
#include "prefix/HomebrewPrefixFileSystem.h"
#include "prefix/HomebrewPrefixLocation.h"

namespace quillmere {

/// The casks that a prefix held at one moment.
struct HomebrewCaskInventoryScan {
  /// When the scan had finished.
  QDateTime scannedAt;
  /// In the order of the Caskroom's child names.
  std::vector<InstalledCask> casks;
  /// The prefix as it was read at the start of the scan.
  HomebrewPrefixReadResult prefixReadResult;

  bool operator==(const HomebrewCaskInventoryScan&) const = default;
};

/// Finds the casks that are installed in a prefix: their folders in the Caskroom and the versions
/// in these. Immutable; safe from any thread; blocks on the disk, so call it off the UI thread.
class HomebrewCaskInventoryScanner {
 public:
  explicit HomebrewCaskInventoryScanner(
      QUrl prefixURL, HomebrewPrefixFileSystemPtr fileSystem = platformFileSystem());

  /// Never fails: what cannot be read is left out or has no versions. The tokens in `catalog` must
  /// be unique, as `withoutDuplicates` makes them; two records of one token stop the program.
  [[nodiscard]] HomebrewCaskInventoryScan scan(std::span<const HomebrewCask> catalog,
                                               const ScanProgress& progress = {}) const;

 private:
  QUrl prefixURL_;
  HomebrewPrefixFileSystemPtr fileSystem_;
};

}  // namespace quillmere

#pragma once

#include <QtCore/QDateTime>

#include <span>
#include <vector>

#include "inventory/InstalledFormula.h"
#include "inventory/ScanProgress.h"
#include "prefix/HomebrewPrefixFileSystem.h"
#include "prefix/HomebrewPrefixLocation.h"

namespace quillmere {

/// The formulae that a prefix held at one moment.
struct HomebrewFormulaInventoryScan {
  /// When the scan had finished.
  QDateTime scannedAt;
  /// In the order of the Cellar's child names.
  std::vector<InstalledFormula> formulae;
  /// The prefix as it was read at the start of the scan.
  HomebrewPrefixReadResult prefixReadResult;

  bool operator==(const HomebrewFormulaInventoryScan&) const = default;
};

/// Finds the formulae that are installed in a prefix: their folders in the Cellar, the versions in
/// these, and from the receipts why they were installed. Immutable; safe from any thread; blocks on
/// the disk, so call it off the UI thread.
class HomebrewFormulaInventoryScanner {
 public:
  explicit HomebrewFormulaInventoryScanner(
      QUrl prefixURL, HomebrewPrefixFileSystemPtr fileSystem = platformFileSystem());

  /// Never fails: what cannot be read is left out or has no versions. The names in `catalog` must
  /// be unique, as `withoutDuplicates` makes them; two records of one name stop the program.
  [[nodiscard]] HomebrewFormulaInventoryScan scan(std::span<const HomebrewFormula> catalog,
                                                  const ScanProgress& progress = {}) const;

 private:
  QUrl prefixURL_;
  HomebrewPrefixFileSystemPtr fileSystem_;
};

}  // namespace quillmere

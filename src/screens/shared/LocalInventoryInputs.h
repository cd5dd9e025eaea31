#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QString>
#include <QtCore/QUrl>

#include <optional>

#include "guidance/InstalledPackagesState.h"

namespace quillmere {

/// What the main window tells a screen of the local inventory, anew whenever any of it changes.
struct LocalInventoryInputs {
  InstalledPackagesState state;
  /// Whether a command that may have changed the prefix ran since what is known was scanned.
  bool needsRescan = false;
  /// How many such commands have ended since the start.
  int endedRuns = 0;
  /// Whether a catalog was fetched since, so that other versions are the latest known now.
  bool isCatalogNewer = false;
  /// Why the selected prefix could not be read, as a sentence; empty where it could.
  QString accessProblem;
  /// Of the scan that is under way.
  int scannedPackages = 0;
  int totalPackages = 0;
  std::optional<QString> selectedPrefixPath;
  std::optional<QUrl> selectedPrefixURL;
  std::optional<QDateTime> lastScanDate;
  std::optional<QDateTime> catalogLastRefreshDate;

  bool operator==(const LocalInventoryInputs&) const = default;
};

/// Why what is known of the inventory is older than what was done or fetched since; empty where it
/// is not. `usesCatalog` says whether versions of the catalog are shown beside it. Pure.
[[nodiscard]] QString rescanWarning(const LocalInventoryInputs& inputs, bool usesCatalog);

}  // namespace quillmere

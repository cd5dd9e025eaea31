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
  /// Of the scan that is under way.
  int scannedPackages = 0;
  int totalPackages = 0;
  std::optional<QString> selectedPrefixPath;
  std::optional<QUrl> selectedPrefixURL;
  std::optional<QDateTime> lastScanDate;
  std::optional<QDateTime> catalogLastRefreshDate;

  bool operator==(const LocalInventoryInputs&) const = default;
};

}  // namespace quillmere

#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QString>

#include <optional>

#include "catalog/PackageCatalog.h"
#include "guidance/InstalledPackagesState.h"
#include "screens/package/PackageDetailViewModel.h"

namespace quillmere {

/// What is known when a package is opened, and where it is opened.
struct PackageDetailContext {
  /// Null when no catalog is loaded.
  PackageCatalogPtr catalog;
  InstalledPackagesState inventory;
  std::optional<QDateTime> catalogLastRefreshDate;
  std::optional<QDateTime> localInventoryLastScanDate;
  /// The name of the section, for the history.
  QString sourceScreen;
};

/// What the page of a package of the catalog shows. Pure; any thread.
[[nodiscard]] PackageDetailViewModel::Inputs catalogPackageInputs(
    const HomebrewPackageSummary& package, const PackageDetailContext& context);

/// What the page of an installed package shows. Pure; any thread.
[[nodiscard]] PackageDetailViewModel::Inputs installedPackageInputs(
    const InstalledPackageSummary& package, const PackageDetailContext& context);

}  // namespace quillmere

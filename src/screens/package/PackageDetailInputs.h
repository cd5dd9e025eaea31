#pragma once

#include <QtCore/QString>

#include "catalog/PackageCatalog.h"
#include "screens/package/PackageDetailViewModel.h"
#include "screens/shared/LocalInventoryInputs.h"

namespace quillmere {

/// What is known of packages at the moment.
struct PackageDetailContext {
  /// Null when no catalog is loaded.
  PackageCatalogPtr catalog;
  LocalInventoryInputs inventory;
};

/// Where a package is opened, which decides what is said while its dependants are unknown.
enum class PackageDetailOrigin { catalog, inventory };

/// What the page of a package shows: what the loaded catalog says of it, or else `package` as it
/// was opened, and what the last scan found. `sourceScreen` is the name of the section, for the
/// history. Pure; any thread.
[[nodiscard]] PackageDetailViewModel::Inputs packageDetailInputs(
    const HomebrewPackageSummary& package, PackageDetailOrigin origin, const QString& sourceScreen,
    const PackageDetailContext& context);

}  // namespace quillmere

#include "screens/package/PackageDetailInputs.h"

namespace quillmere {
namespace {

using Kind = HomebrewPackageSummary::Kind;

QString unavailableText(Kind kind, PackageDetailOrigin origin) {
  if (origin == PackageDetailOrigin::catalog) {
    return QStringLiteral("Reverse dependency information is not available from the current data.");
  }
  return kind == Kind::formula
             ? QStringLiteral(
                   "Reverse dependency data is unavailable from the installed-only scan. Load the "
                   "formula catalog to derive what depends on this package.")
             : QStringLiteral(
                   "Reverse dependency lookup is only available for formula catalog metadata. Cask "
                   "dependency impact is not estimated.");
}

/// A catalog of casks alone knows of no formula what depends on it.
bool hasFormulae(const PackageCatalog& catalog) {
  return !catalog.packages().empty() && catalog.packages().front().kind == Kind::formula;
}

}  // namespace

PackageDetailViewModel::Inputs packageDetailInputs(const HomebrewPackageSummary& package,
                                                   PackageDetailOrigin origin,
                                                   const QString& sourceScreen,
                                                   const PackageDetailContext& context) {
  const PackageCatalog* const catalog = context.catalog.get();
  const HomebrewPackageSummary* const known =
      catalog != nullptr ? catalog->package(package.id) : nullptr;
  const InstalledPackagesState& inventory = context.inventory.state;
  const InstalledPackageSummary* const installed = inventory.package(package.id);
  const bool hasInventory = inventory.packages() != nullptr;
  return {
      .package = known != nullptr ? *known : package,
      .installedPackage = installed != nullptr ? std::optional(*installed) : std::nullopt,
      .reverseDependencyNames = catalog != nullptr && hasFormulae(*catalog)
                                    ? catalog->reverseDependencyNames(package)
                                    : std::nullopt,
      .reverseDependencyUnavailableText = unavailableText(package.kind, origin),
      .catalogLastRefreshDate = context.inventory.catalogLastRefreshDate,
      .localInventoryLastScanDate = hasInventory ? context.inventory.lastScanDate : std::nullopt,
      .hasInventory = hasInventory,
      .hasCatalog = catalog != nullptr,
      .rescanWarning = rescanWarning(context.inventory, true),
      .sourceScreen = sourceScreen};
}

}  // namespace quillmere

#include "screens/package/PackageDetailInputs.h"

namespace quillmere {

PackageDetailViewModel::Inputs catalogPackageInputs(const HomebrewPackageSummary& package,
                                                    const PackageDetailContext& context) {
  const InstalledPackageSummary* const installed = context.inventory.package(package.id);
  return {.package = package,
          .installedPackage = installed != nullptr ? std::optional(*installed) : std::nullopt,
          .reverseDependencyNames =
              context.catalog ? context.catalog->reverseDependencyNames(package) : std::nullopt,
          .reverseDependencyUnavailableText = QStringLiteral(
              "Reverse dependency information is not available from the current data."),
          .catalogLastRefreshDate = context.catalogLastRefreshDate,
          .localInventoryLastScanDate = std::nullopt,
          .hasInventory = context.inventory.packages() != nullptr,
          .hasCatalog = context.catalog != nullptr,
          .sourceScreen = context.sourceScreen};
}

PackageDetailViewModel::Inputs installedPackageInputs(const InstalledPackageSummary& package,
                                                      const PackageDetailContext& context) {
  const bool isFormula = package.kind == HomebrewPackageSummary::Kind::formula;
  return {
      .package = catalogSummary(package),
      .installedPackage = package,
      .reverseDependencyNames = std::nullopt,
      .reverseDependencyUnavailableText =
          isFormula
              ? QStringLiteral("Reverse dependency data is unavailable from the installed-only "
                               "scan. Load the formula catalog to derive what depends on this "
                               "package.")
              : QStringLiteral("Reverse dependency lookup is only available for formula catalog "
                               "metadata. Cask dependency impact is not estimated."),
      .catalogLastRefreshDate = context.catalogLastRefreshDate,
      .localInventoryLastScanDate = context.localInventoryLastScanDate,
      .hasInventory = true,
      .hasCatalog = context.catalog != nullptr,
      .sourceScreen = context.sourceScreen};
}

}  // namespace quillmere

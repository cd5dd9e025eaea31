#include <algorithm>
#include <utility>

#include "app/ContentViewModel.h"
#include "persistence/LocalPersistenceStore.h"
#include "platform/FileUrl.h"

// What flows between the screens, the workflows and the store.

namespace quillmere {

void ContentViewModel::connectCatalog() {
  const auto tell = [this] { updateBrowse(); };
  connect(&catalog_, &CatalogWorkflows::stateChanged, this, tell);
  connect(&catalog_, &CatalogWorkflows::fetchProgressChanged, this, tell);
  connect(&store_, &LocalPersistenceStore::catalogCacheChanged, this, tell);
  connect(&store_, &LocalPersistenceStore::catalogLastRefreshDateChanged, this, tell);
  connect(&browse_, &FormulaCatalogViewModel::fetchWanted, this,
          [this](CatalogScope scope) { catalog_.fetch(scope); });
  connect(&browse_, &FormulaCatalogViewModel::loadCachedWanted, this,
          [this](CatalogScope scope) { catalog_.loadCached(scope); });
  connect(&browse_, &FormulaCatalogViewModel::cancelFetchWanted, &catalog_,
          &CatalogWorkflows::cancelFetches);
  connect(&browse_, &FormulaCatalogViewModel::packageChosen, this,
          &ContentViewModel::openCatalogPackage);
}

void ContentViewModel::connectInventory() {
  const auto tell = [this] { updateInventoryScreens(); };
  connect(&inventory_, &InventoryWorkflows::stateChanged, this, tell);
  connect(&inventory_, &InventoryWorkflows::scanProgressChanged, this, tell);
  connect(&store_, &LocalPersistenceStore::selectedHomebrewPrefixPathChanged, this, tell);
  connect(&store_, &LocalPersistenceStore::localInventoryLastScanDateChanged, this, tell);
  connect(&store_, &LocalPersistenceStore::catalogLastRefreshDateChanged, this, tell);
  connectInventoryScreen(installed_);
  connectInventoryScreen(updates_);
  connectInventoryScreen(cleanup_);
}

/// The three screens that show the inventory ask for the same things.
void ContentViewModel::connectInventoryScreen(LocalInventoryViewModel& screen) {
  connect(&screen, &LocalInventoryViewModel::scanWanted, this, [this] { inventory_.scan(); });
  connect(&screen, &LocalInventoryViewModel::cancelScanWanted, &inventory_,
          &InventoryWorkflows::cancelScans);
  connect(&screen, &LocalInventoryViewModel::selectPrefixWanted, &prefixSelection_,
          &PrefixSelectionWorkflow::begin);
}

void ContentViewModel::connectCommands() {
  connect(&commands_, &CommandWorkflow::previewChanged, this, [this] {
    if (CommandPreviewSheetModel* const preview = commands_.preview()) {
      quitGuard_.watch(preview);
    }
  });
  connect(&commands_, &CommandWorkflow::packagesMayHaveChanged, &inventory_,
          &InventoryWorkflows::noteRun);
}

void ContentViewModel::connectScreens() {
  const auto browse = [this] { select(AppSection::browse); };
  connect(&installed_, &InstalledPackagesViewModel::browseCatalogWanted, this, browse);
  connect(&updates_, &UpdatesViewModel::browseCatalogWanted, this, browse);
  connect(&installed_, &InstalledPackagesViewModel::packageChosen, this,
          &ContentViewModel::openInstalledPackage);
  // What becomes stale says so on every screen, not on the one alone that watches the time.
  connect(&dashboard_, &DashboardViewModel::changed, this, [this] {
    updateBrowse();
    updateInventoryScreens();
  });
  connect(&dashboard_, &DashboardViewModel::viewInstalledWanted, this,
          [this] { select(AppSection::installed); });
  connect(&store_, &LocalPersistenceStore::hasCompletedOnboardingChanged, this,
          &ContentViewModel::showsOnboardingChanged);
}

void ContentViewModel::updateBrowse() {
  const auto progress = catalog_.fetchProgress().value_or(CatalogWorkflows::Progress());
  browse_.setInputs({.state = catalog_.state(),
                     .receivedBytes = progress.receivedBytes,
                     .expectedBytes = progress.expectedBytes,
                     .hasCachedFormulae = store_.hasCachedFormulaCatalog(),
                     .hasCachedCasks = store_.hasCachedCaskCatalog(),
                     .lastRefreshDate = store_.catalogLastRefreshDate()});
}

void ContentViewModel::updateInventoryScreens() {
  const auto progress = inventory_.scanProgress().value_or(InventoryWorkflows::Progress());
  const auto& path = store_.selectedHomebrewPrefixPath();
  const LocalInventoryInputs inputs{
      .state = inventory_.state(),
      .isOvertaken = inventory_.isOvertaken(),
      .scannedPackages = progress.scannedPackages,
      .knownPackages = progress.knownPackages,
      .selectedPrefixPath = path,
      .selectedPrefixURL = path ? std::optional(fileUrl(*path)) : std::nullopt,
      .lastScanDate = store_.localInventoryLastScanDate(),
      .catalogLastRefreshDate = store_.catalogLastRefreshDate()};
  installed_.setInputs(inputs);
  updates_.setInputs(inputs);
  cleanup_.setInputs(inputs);
  // While a scan goes on, what was known before it stands: nothing flickers.
  if (!std::holds_alternative<InstalledPackagesState::Loading>(inputs.state.value)) {
    updateSidebarCounts();
  }
}

/// How much is behind a section helps to choose it.
void ContentViewModel::updateSidebarCounts() {
  const auto* const packages = inventory_.state().packages();
  const auto installed = packages != nullptr ? static_cast<int>(packages->size()) : 0;
  sections_.setCount(AppSection::installed, installed,
                     counted(installed, QStringLiteral("package")));
  sections_.setCount(AppSection::updates, updates_.updateCount(), updates_.updatesText());
}

void ContentViewModel::openCatalogPackage(const HomebrewPackageSummary& package) {
  const auto* const installed = inventory_.state().packages();
  std::optional<InstalledPackageSummary> installedPackage;
  if (installed != nullptr) {
    const auto found = std::ranges::find(*installed, package.id, &InstalledPackageSummary::id);
    if (found != installed->end()) {
      installedPackage = *found;
    }
  }
  const PackageCatalogPtr catalog = catalog_.state().catalog();
  openDetail(
      {.package = package,
       .installedPackage = installedPackage,
       .reverseDependencyNames = catalog ? catalog->reverseDependencyNames(package) : std::nullopt,
       .reverseDependencyUnavailableText =
           QStringLiteral("Reverse dependency information is not available from the current data."),
       .catalogLastRefreshDate = store_.catalogLastRefreshDate(),
       .localInventoryLastScanDate = std::nullopt,
       .hasInventory = installed != nullptr,
       .hasCatalog = catalog != nullptr,
       .sourceScreen = selectedTitle()});
}

void ContentViewModel::openInstalledPackage(const InstalledPackageSummary& package) {
  const bool isFormula = package.kind == HomebrewPackageSummary::Kind::formula;
  openDetail(
      {.package = {.id = package.id,
                   .kind = package.kind,
                   .name = package.name,
                   .description = package.description,
                   .version = package.latestKnownVersion,
                   .alternateVersion = package.alternateVersion,
                   .homepage = package.homepage,
                   .license = package.license,
                   .tap = package.tap,
                   .detailItems = package.detailItems},
       .installedPackage = package,
       .reverseDependencyNames = std::nullopt,
       .reverseDependencyUnavailableText =
           isFormula
               ? QStringLiteral("Reverse dependency data is unavailable from the installed-only "
                                "scan. Load the formula catalog to derive what depends on this "
                                "package.")
               : QStringLiteral("Reverse dependency lookup is only available for formula catalog "
                                "metadata. Cask dependency impact is not estimated."),
       .catalogLastRefreshDate = store_.catalogLastRefreshDate(),
       .localInventoryLastScanDate = store_.localInventoryLastScanDate(),
       .hasInventory = true,
       .hasCatalog = catalog_.state().catalog() != nullptr,
       .sourceScreen = selectedTitle()});
}

void ContentViewModel::openFormula(PackageDetailViewModel& from, const QString& name) {
  if (const PackageCatalogPtr catalog = catalog_.state().catalog()) {
    SharedTextBuilder texts;
    const SharedText id =
        packageId(HomebrewPackageSummary::Kind::formula, name.toStdString(), texts);
    const auto found = std::ranges::find(catalog->packages(), id, &HomebrewPackageSummary::id);
    if (found != catalog->packages().end()) {
      openCatalogPackage(*found);
      return;
    }
  }
  from.reportUnknownFormula(name);
}

void ContentViewModel::openDetail(PackageDetailViewModel::Inputs inputs) {
  auto detail = std::make_unique<PackageDetailViewModel>(std::move(inputs), previewRequest());
  connect(detail.get(), &PackageDetailViewModel::formulaWanted, this,
          [this, from = detail.get()](const QString& name) { openFormula(*from, name); });
  details_.push(std::move(detail));
}

}  // namespace quillmere

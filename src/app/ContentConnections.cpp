#include <utility>

#include "app/ContentViewModel.h"
#include "persistence/LocalPersistenceStore.h"
#include "platform/FileUrl.h"
#include "platform/Plural.h"

// What flows between the screens, the workflows and the store.

namespace quillmere {

void ContentViewModel::connectCatalog() {
  const auto tell = [this] { updateBrowse(); };
  connect(&catalog_, &CatalogWorkflows::stateChanged, this, tell);
  connect(&catalog_, &CatalogWorkflows::fetchProgressChanged, this, tell);
  connect(&store_, &LocalPersistenceStore::catalogCacheChanged, this, tell);
  connect(&store_, &LocalPersistenceStore::catalogLastRefreshDateChanged, this, tell);
  connect(&browse_, &FormulaCatalogViewModel::fetchRequested, this,
          [this](CatalogScope scope) { catalog_.fetch(scope); });
  connect(&browse_, &FormulaCatalogViewModel::loadCachedRequested, this,
          [this](CatalogScope scope) { catalog_.loadCached(scope); });
  connect(&browse_, &FormulaCatalogViewModel::cancelFetchRequested, &catalog_,
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
  connect(&screen, &LocalInventoryViewModel::scanRequested, this, [this] { inventory_.scan(); });
  connect(&screen, &LocalInventoryViewModel::cancelScanRequested, &inventory_,
          &InventoryWorkflows::cancelScans);
  connect(&screen, &LocalInventoryViewModel::selectPrefixRequested, &prefixSelection_,
          &PrefixSelectionWorkflow::requestChooser);
}

void ContentViewModel::connectCommands() {
  connect(&commands_, &CommandWorkflow::previewChanged, this, [this] {
    if (CommandPreviewSheetModel* const preview = commands_.preview()) {
      quitGuard_.watch(preview);
    }
  });
  connect(&commands_, &CommandWorkflow::packagesMayHaveChanged, &inventory_,
          &InventoryWorkflows::handleRunEnded);
}

void ContentViewModel::connectScreens() {
  const auto browse = [this] { select(AppSection::browse); };
  connect(&installed_, &InstalledPackagesViewModel::browseCatalogRequested, this, browse);
  connect(&updates_, &UpdatesViewModel::browseCatalogRequested, this, browse);
  connect(&installed_, &InstalledPackagesViewModel::packageChosen, this,
          &ContentViewModel::openInstalledPackage);
  // What becomes stale says so on every screen, not on the one alone that watches the time.
  connect(&dashboard_, &DashboardViewModel::changed, this, [this] {
    updateBrowse();
    updateInventoryScreens();
  });
  connect(&dashboard_, &DashboardViewModel::viewInstalledRequested, this,
          [this] { select(AppSection::installed); });
  // Whoever has selected a prefix has no use for the first steps any more.
  connect(&prefixSelection_, &PrefixSelectionWorkflow::prefixSelected, this,
          &ContentViewModel::finishOnboarding);
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
      .needsRescan = inventory_.needsRescan(),
      .scannedPackages = progress.scannedPackages,
      .totalPackages = progress.totalPackages,
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
                     pluralized(installed, QStringLiteral("package")));
  sections_.setCount(AppSection::updates, updates_.updateCount(), updates_.updatesText());
}

PackageDetailContext ContentViewModel::detailContext() const {
  return {.catalog = catalog_.state().catalog(),
          .inventory = inventory_.state(),
          .catalogLastRefreshDate = store_.catalogLastRefreshDate(),
          .localInventoryLastScanDate = store_.localInventoryLastScanDate(),
          .sourceScreen = selectedTitle()};
}

void ContentViewModel::openCatalogPackage(const HomebrewPackageSummary& package) {
  openDetail(catalogPackageInputs(package, detailContext()));
}

void ContentViewModel::openInstalledPackage(const InstalledPackageSummary& package) {
  openDetail(installedPackageInputs(package, detailContext()));
}

void ContentViewModel::openFormula(PackageDetailViewModel& from, const QString& name) {
  const PackageCatalogPtr catalog = catalog_.state().catalog();
  const HomebrewPackageSummary* const formula =
      catalog ? catalog->formula(name.toStdString()) : nullptr;
  if (formula != nullptr) {
    openCatalogPackage(*formula);
  } else {
    from.reportUnknownFormula(name);
  }
}

void ContentViewModel::openDetail(PackageDetailViewModel::Inputs inputs) {
  auto detail = std::make_unique<PackageDetailViewModel>(std::move(inputs), previewCallback());
  connect(detail.get(), &PackageDetailViewModel::formulaRequested, this,
          [this, from = detail.get()](const QString& name) { openFormula(*from, name); });
  details_.push(std::move(detail));
}

}  // namespace quillmere

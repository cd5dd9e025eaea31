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
  connect(&store_, &LocalPersistenceStore::prefixSelected, this, tell);
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
  // A package page keeps what it shows while a catalog is being loaded.
  if (!std::holds_alternative<PackageCatalogState::Loading>(catalog_.state().value)) {
    Q_EMIT knowledgeChanged();
  }
  const auto progress = catalog_.fetchProgress().value_or(CatalogWorkflows::Progress());
  const auto failure = catalog_.failure().value_or(CatalogWorkflows::Failure());
  browse_.setInputs({.state = catalog_.state(),
                     .receivedBytes = progress.receivedBytes,
                     .expectedBytes = progress.expectedBytes,
                     .hasCachedFormulae = store_.hasCachedFormulaCatalog(),
                     .hasCachedCasks = store_.hasCachedCaskCatalog(),
                     .lastRefreshDate = store_.catalogLastRefreshDate(),
                     .fetchFailure = failure.reason,
                     .failedScope = failure.scope});
}

LocalInventoryInputs ContentViewModel::inventoryInputs() const {
  const auto progress = inventory_.scanProgress().value_or(InventoryWorkflows::Progress());
  const auto& path = store_.selectedHomebrewPrefixPath();
  return {.state = inventory_.state(),
          .needsRescan = inventory_.needsRescan(),
          .endedRuns = inventory_.endedRuns(),
          .isCatalogNewer = inventory_.isCatalogNewer(),
          .accessProblem = inventory_.accessProblem(),
          .scannedPackages = progress.scannedPackages,
          .totalPackages = progress.totalPackages,
          .selectedPrefixPath = path,
          .selectedPrefixURL = path ? std::optional(fileUrl(*path)) : std::nullopt,
          .lastScanDate = store_.localInventoryLastScanDate(),
          .catalogLastRefreshDate = store_.catalogLastRefreshDate()};
}

void ContentViewModel::updateInventoryScreens() {
  const LocalInventoryInputs inputs = inventoryInputs();
  installed_.setInputs(inputs);
  updates_.setInputs(inputs);
  cleanup_.setInputs(inputs);
  dashboard_.setAccessProblem(installed_.accessProblemText());
  // While a scan goes on, what was known before it stands: nothing flickers.
  if (!std::holds_alternative<InstalledPackagesState::Loading>(inputs.state.value)) {
    updateSidebarCounts();
    Q_EMIT knowledgeChanged();
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
  return {.catalog = catalog_.state().catalog(), .inventory = inventoryInputs()};
}

void ContentViewModel::openCatalogPackage(const HomebrewPackageSummary& package) {
  openDetail(package, PackageDetailOrigin::catalog);
}

void ContentViewModel::openInstalledPackage(const InstalledPackageSummary& package) {
  openDetail(catalogSummary(package), PackageDetailOrigin::inventory);
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

void ContentViewModel::openDetail(const HomebrewPackageSummary& package,
                                  PackageDetailOrigin origin) {
  const QString sourceScreen = selectedTitle();
  auto detail = std::make_unique<PackageDetailViewModel>(
      packageDetailInputs(package, origin, sourceScreen, detailContext()), previewCallback());
  connect(detail.get(), &PackageDetailViewModel::formulaRequested, this,
          [this, from = detail.get()](const QString& name) { openFormula(*from, name); });
  connect(this, &ContentViewModel::knowledgeChanged, detail.get(),
          [this, package, origin, sourceScreen, shown = detail.get()] {
            shown->update(packageDetailInputs(package, origin, sourceScreen, detailContext()));
          });
  details_.push(std::move(detail));
}

}  // namespace quillmere

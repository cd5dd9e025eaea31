#include "app/InventoryWorkflows.h"

#include <QCoroFuture>
#include <QtConcurrent/QtConcurrentRun>
#include <QtCore/QFutureWatcher>
#include <QtCore/QPointer>

#include <utility>

#include "guidance/LocalInventory.h"
#include "persistence/LocalPersistenceStore.h"
#include "platform/BackgroundThreads.h"

namespace quillmere {

using State = InstalledPackagesState;

namespace {

void scanInBackground(QPromise<LocalInventory>& promise, const QUrl& prefix,
                      const HomebrewPrefixFileSystemPtr& fileSystem,
                      const CachedCatalogFiles& cachedCatalog) {
  qsizetype known = -1;
  const auto progress = [&promise, &known](qsizetype scanned, qsizetype total) {
    // A range is passed on whenever it is set, unlike a value, of which only some are.
    if (std::exchange(known, total) != total) {
      promise.setProgressRange(0, static_cast<int>(total));
    }
    promise.setProgressValue(static_cast<int>(scanned));
  };
  promise.addResult(scanLocalInventory(prefix, fileSystem, cachedCatalog, progress));
}

}  // namespace

InventoryWorkflows::InventoryWorkflows(LocalPersistenceStore& store,
                                       HomebrewPrefixFileSystemPtr fileSystem, QObject* parent)
    : QObject(parent),
      store_(store),
      fileSystem_(std::move(fileSystem)),
      prefixPath_(store.selectedHomebrewPrefixPath()) {
  connect(&store_, &LocalPersistenceStore::prefixSelected, this,
          &InventoryWorkflows::followSelection);
}

QCoro::Task<> InventoryWorkflows::scan() {
  const QPointer<InventoryWorkflows> self(this);
  const std::optional<QUrl> prefix = store_.resolvedPrefixURL();
  if (!prefix) {
    // A prefix is selected, but its bookmark leads nowhere.
    accessProblem_ = store_.selectedHomebrewPrefixPath()
                         ? QStringLiteral("The folder cannot be found any more.")
                         : QString();
    settle({State::AccessNeeded{}});
    co_return;
  }
  const int generation = generation_;
  const int runs = runs_;
  const auto catalogDate = store_.catalogLastRefreshDate();
  setState({State::Loading{}});
  setProgress(Progress{});
  const CachedCatalogFiles cachedCatalog{.formulae = store_.formulaCacheURL(),
                                         .casks = store_.caskCacheURL()};
  const QFuture<LocalInventory> scanning = QtConcurrent::run(backgroundThreads(), &scanInBackground,
                                                             *prefix, fileSystem_, cachedCatalog);
  QFutureWatcher<LocalInventory> watcher;
  connect(&watcher, &QFutureWatcherBase::progressValueChanged, this,
          [this, generation, &watcher](int scanned) {
            if (generation == generation_ && scanProgress_) {
              setProgress(
                  Progress{.scannedPackages = scanned, .totalPackages = watcher.progressMaximum()});
            }
          });
  watcher.setFuture(scanning);
  const LocalInventory inventory = co_await scanning;
  if (!self || generation != generation_) {
    co_return;
  }
  if (inventory.scannedAt) {
    store_.setLocalInventoryLastScanDate(inventory.scannedAt);
  }
  scannedRuns_ = runs;
  accessProblem_ = inventory.accessProblem;
  comparedCatalogDate_ = catalogDate;
  settle(inventory.state);
}

bool InventoryWorkflows::isCatalogNewer() const {
  return std::holds_alternative<State::Loaded>(state_.value) && store_.catalogLastRefreshDate() &&
         store_.catalogLastRefreshDate() != comparedCatalogDate_;
}

QString InventoryWorkflows::accessProblem() const {
  return std::holds_alternative<State::AccessNeeded>(state_.value) ? accessProblem_ : QString();
}

void InventoryWorkflows::handleRunEnded() {
  ++runs_;
  Q_EMIT stateChanged();
}

void InventoryWorkflows::cancelScans() {
  ++generation_;
  settle(settledState_);
}

/// What was found in one prefix says nothing about another. What was found in the same one stands;
/// whoever selects it again because it could not be read may scan it again.
void InventoryWorkflows::followSelection() {
  const auto& path = store_.selectedHomebrewPrefixPath();
  const bool isSame = std::exchange(prefixPath_, path) == path;
  const bool isOfUse = std::holds_alternative<State::Loaded>(state_.value) ||
                       std::holds_alternative<State::Loading>(state_.value);
  if (isSame && isOfUse) {
    return;
  }
  ++generation_;
  settle({State::Idle{}});
}

void InventoryWorkflows::settle(InstalledPackagesState state) {
  setProgress(std::nullopt);
  settledState_ = state;
  setState(std::move(state));
}

void InventoryWorkflows::setState(InstalledPackagesState state) {
  state_ = std::move(state);
  Q_EMIT stateChanged();
}

void InventoryWorkflows::setProgress(std::optional<Progress> progress) {
  if (std::exchange(scanProgress_, progress) != progress) {
    Q_EMIT scanProgressChanged();
  }
}

}  // namespace quillmere

#pragma once

#include <QCoroTask>
#include <QtCore/QDateTime>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <optional>

#include "guidance/InstalledPackagesState.h"
#include "prefix/HomebrewPrefixFileSystem.h"

namespace quillmere {

class LocalPersistenceStore;

/// Finds out what is installed in the selected prefix, and owns what is known of it. Scans may
/// overlap: the last to finish has the last word. They run on another thread; the state changes on
/// the UI thread alone. Owned by `ContentViewModel`.
class InventoryWorkflows : public QObject {
  Q_OBJECT
 public:
  /// How far a scan has come.
  struct Progress {
    int scannedPackages = 0;
    /// Grows when the scan goes on from the formulae to the casks.
    int totalPackages = 0;
    bool operator==(const Progress&) const = default;
  };

  explicit InventoryWorkflows(LocalPersistenceStore& store,
                              HomebrewPrefixFileSystemPtr fileSystem = platformFileSystem(),
                              QObject* parent = nullptr);

  [[nodiscard]] const InstalledPackagesState& state() const { return state_; }

  /// Whether a run that may have changed the prefix ended since the state was found.
  [[nodiscard]] bool needsRescan() const {
    return std::holds_alternative<InstalledPackagesState::Loaded>(state_.value) &&
           scannedRuns_ != runs_;
  }

  /// How many runs that may have changed the prefix have ended since the start.
  [[nodiscard]] int endedRuns() const { return runs_; }

  /// Whether a catalog was fetched since the state was found, which compares with the one before.
  [[nodiscard]] bool isCatalogNewer() const;

  /// Why the selected prefix could not be read, as a sentence; empty unless the last scan says so.
  [[nodiscard]] QString accessProblem() const;

  /// Such a run has ended.
  void handleRunEnded();

  /// Absent when no scan is under way.
  [[nodiscard]] const std::optional<Progress>& scanProgress() const { return scanProgress_; }

  /// Scans the selected prefix, tells from the cached catalog which versions are the latest, and
  /// records when.
  QCoro::Task<> scan();
  /// Shows again what was shown before. The disk may not answer, so nobody waits for the scan.
  void cancelScans();

 Q_SIGNALS:
  /// `state` or `needsRescan` changed.
  void stateChanged();
  void scanProgressChanged();

 private:
  void followSelection();
  void setState(InstalledPackagesState state);
  void settle(InstalledPackagesState state);
  void setProgress(std::optional<Progress> progress);

  LocalPersistenceStore& store_;
  HomebrewPrefixFileSystemPtr fileSystem_;
  /// Of the prefix that `state_` is about.
  std::optional<QString> prefixPath_;
  InstalledPackagesState state_;
  QString accessProblem_;
  /// Of the catalog that `state_` was compared with.
  std::optional<QDateTime> comparedCatalogDate_;
  /// What a cancelled scan leaves behind: the last state that was not loading.
  InstalledPackagesState settledState_;
  std::optional<Progress> scanProgress_;
  int runs_ = 0;
  /// How many of them had ended when the scan began that found the settled state.
  int scannedRuns_ = 0;
  /// Counts what makes the scans that are under way useless: another prefix, or nobody waits.
  int generation_ = 0;
};

}  // namespace quillmere

#pragma once

#include <QCoroTask>
#include <QtCore/QDateTime>
#include <QtCore/QObject>

#include <expected>
#include <functional>
#include <optional>
#include <stop_token>
#include <vector>

#include "catalog/CatalogScope.h"
#include "catalog/HomebrewCaskMetadataClient.h"
#include "catalog/HomebrewFormulaMetadataClient.h"
#include "catalog/PackageCatalogState.h"
#include "platform/QCoroExpected.h"

namespace quillmere {

class LocalPersistenceStore;

/// Fills the catalog, from the network or from the cache, and owns what there is of it. Workflows
/// may overlap: the last to finish has the last word. Downloads wait for the network, everything
/// slow runs on other threads; the state changes on the UI thread alone. Owned by
/// `ContentViewModel`.
class CatalogWorkflows : public QObject {
  Q_OBJECT
 public:
  struct Clients {
    HomebrewFormulaMetadataClient formulae;
    HomebrewCaskMetadataClient casks;
  };

  using Clock = std::function<QDateTime()>;

  /// How far a fetch has come, all its documents together.
  struct Progress {
    qint64 receivedBytes = 0;
    /// As the server says, or else as large as the cached documents are; absent where neither is
    /// known.
    std::optional<qint64> expectedBytes;
    bool operator==(const Progress&) const = default;
  };

  /// A fetch that failed while the cache had something to show instead.
  struct Failure {
    CatalogScope scope = CatalogScope::all;
    /// A sentence.
    QString reason;
    bool operator==(const Failure&) const = default;
  };

  CatalogWorkflows(LocalPersistenceStore& store, Clients clients,
                   Clock clock = &QDateTime::currentDateTimeUtc, QObject* parent = nullptr);
  ~CatalogWorkflows() override;
  Q_DISABLE_COPY_MOVE(CatalogWorkflows)

  [[nodiscard]] const PackageCatalogState& state() const { return state_; }

  /// Of the fetch that began last; absent when none is under way.
  [[nodiscard]] const std::optional<Progress>& fetchProgress() const { return fetchProgress_; }

  /// Why cached documents are shown in place of those that were to be fetched; absent where the
  /// last fetch did not fail so, and from the next one on.
  [[nodiscard]] const std::optional<Failure>& failure() const { return failure_; }

  /// Downloads the documents, keeps them in the cache and shows them. Whatever goes wrong, the
  /// cached documents are shown instead; only where there are none either the error is.
  QCoro::Task<> fetch(CatalogScope scope);
  /// Shows the cached documents, or why they cannot be read. Returns whether they are shown.
  QCoro::Task<bool> loadCached(CatalogScope scope);

  /// Ends the fetches that are under way. What was shown before is shown again, and the cache
  /// stays as it is.
  void cancelFetches();

 Q_SIGNALS:
  void stateChanged();
  void fetchProgressChanged();

 private:
  /// A fetch that is under way.
  struct Fetch {
    int id = 0;
    CatalogScope scope = CatalogScope::all;
    std::stop_source stop;
    /// One for each of its documents, in the order of their downloads.
    std::vector<Progress> documents;
  };

  struct Fetched {
    CatalogDocuments documents;
    PackageCatalogPtr catalog;
  };

  Fetch begin(CatalogScope scope);
  void finish(const Fetch& fetch, PackageCatalogState state);
  void restoreSettledState(const Fetch& fetch);
  void remove(const Fetch& fetch);
  void setState(PackageCatalogState state);
  void updateProgress(int id, std::size_t document, const MetadataProgress& progress);
  void showProgress();
  [[nodiscard]] MetadataFetchOptions optionsFor(const Fetch& fetch, std::size_t document);

  QCoro::Task<std::expected<Fetched, QString>> downloadAndDecode(Fetch fetch);
  QCoro::Task<std::expected<CatalogDocuments, QString>> download(Fetch fetch);
  QCoro::Task<> save(CatalogDocuments documents);
  QCoro::Task<std::expected<PackageCatalogPtr, QString>> readCached(CatalogScope scope);

  LocalPersistenceStore& store_;
  Clients clients_;
  Clock clock_;
  PackageCatalogState state_;
  /// What a cancelled fetch leaves behind: the last state that was not loading.
  PackageCatalogState settledState_;
  std::optional<Progress> fetchProgress_;
  std::optional<Failure> failure_;
  /// In the order of their beginnings.
  std::vector<Fetch> fetches_;
  int lastFetch_ = 0;
};

}  // namespace quillmere

#pragma once

#include <QCoroTask>
#include <QtCore/QByteArray>
#include <QtCore/QDateTime>
#include <QtCore/QFuture>
#include <QtCore/QObject>
#include <QtCore/QSettings>
#include <QtCore/QString>
#include <QtCore/QThreadPool>
#include <QtCore/QUrl>

#include <memory>
#include <optional>

#include "persistence/CatalogCache.h"
#include "persistence/CommandHistory.h"
#include "persistence/SettingsFile.h"
#include "persistence/SharedHistory.h"
#include "platform/SecurityScopedBookmarks.h"

namespace quillmere {

/// The one owner of everything that the program remembers between launches. Made once at start and
/// shared by all windows; every setter writes through to the settings at once, on a thread of the
/// store's own, since a disk that is busy must keep no window waiting. Writes keep the order of
/// their calls, and those under way are finished before the store is gone. None reports an error: a
/// failed write is lost, the old value on the disk is not. What other processes write to the same
/// settings stays: of one value the last, of the history all. UI thread only.
class LocalPersistenceStore : public QObject {
  Q_OBJECT
 public:
  /// Loads everything from `defaults`, a long history on another thread, and moves catalog
  /// documents that an older version kept there into the cache directory.
  explicit LocalPersistenceStore(
      std::unique_ptr<QSettings> defaults, QUrl cacheDirectoryURL = defaultCacheDirectoryURL(),
      std::shared_ptr<const SecurityScopedBookmarks> bookmarks = platformBookmarks(),
      QObject* parent = nullptr);
  ~LocalPersistenceStore() override;

  [[nodiscard]] static QUrl defaultCacheDirectoryURL() {
    return CatalogCache::defaultDirectoryURL();
  }

  [[nodiscard]] bool hasCompletedOnboarding() const { return hasCompletedOnboarding_; }

  void setHasCompletedOnboarding(bool completed);

  [[nodiscard]] const std::optional<QString>& selectedHomebrewPrefixPath() const {
    return selectedHomebrewPrefixPath_;
  }

  void setSelectedHomebrewPrefixPath(const std::optional<QString>& path);

  [[nodiscard]] const std::optional<QByteArray>& selectedHomebrewPrefixBookmarkData() const {
    return selectedHomebrewPrefixBookmarkData_;
  }

  void setSelectedHomebrewPrefixBookmarkData(const std::optional<QByteArray>& bookmark);

  [[nodiscard]] const std::optional<QDateTime>& catalogLastRefreshDate() const {
    return catalogLastRefreshDate_;
  }

  void setCatalogLastRefreshDate(const std::optional<QDateTime>& date);

  [[nodiscard]] const std::optional<QDateTime>& localInventoryLastScanDate() const {
    return localInventoryLastScanDate_;
  }

  void setLocalInventoryLastScanDate(const std::optional<QDateTime>& date);

  /// Blocks while a long history is still being read after the start.
  [[nodiscard]] const CommandHistory& commandHistory() const;

  /// Whether `commandHistory` returns at once. `commandHistoryChanged` is emitted when a long
  /// history has been read.
  [[nodiscard]] bool isHistoryLoaded() const { return !readingHistory_.isValid(); }

  void setCommandHistory(const CommandHistory& history);

  // The cached catalog documents, as `CatalogCache` keeps them.

  [[nodiscard]] const QUrl& cacheDirectoryURL() const { return catalogCache_.directoryURL(); }

  [[nodiscard]] QUrl formulaCacheURL() const { return catalogCache_.formulaURL(); }

  [[nodiscard]] QUrl caskCacheURL() const { return catalogCache_.caskURL(); }

  [[nodiscard]] bool hasCachedFormulaCatalog() const { return catalogCache_.hasFormulae(); }

  [[nodiscard]] bool hasCachedCaskCatalog() const { return catalogCache_.hasCasks(); }

  [[nodiscard]] bool hasReadableCatalogCache() const { return catalogCache_.isReadable(); }

  /// Writes the document without holding up the caller, and then records when, even where the write
  /// failed. Where the cache is cleared meanwhile it stays cleared.
  QCoro::Task<> saveFormulaCatalog(QByteArray document, QDateTime refreshedAt);
  QCoro::Task<> saveCaskCatalog(QByteArray document, QDateTime refreshedAt);

  void writeCacheFile(const std::optional<QByteArray>& bytes, const QUrl& file) {
    catalogCache_.write(bytes, file);
  }

  /// Remembers a folder that the user chose: its path and a bookmark of it. Another folder than
  /// before has not been scanned yet, so that the scan date goes.
  void selectPrefix(const QUrl& folder);
  /// The selected prefix; absent when none is selected or its bookmark leads nowhere. Renews a
  /// stale bookmark.
  [[nodiscard]] std::optional<QUrl> resolvedPrefixURL();

  /// Forgets the catalog documents and their date; the scan date stays.
  void clearCacheMarkers();
  /// Forgets the selected prefix and the scan date; the prefix itself is not touched.
  void resetPrefix();
  void clearHistory();
  void resetOnboarding();

  /// Ends when every setting that was set so far has been written; does not wait for the catalog
  /// documents.
  QCoro::Task<> flush();

  /// Puts `record` at the front of the history, which has no maximum length, and what other windows
  /// of the program have added behind it.
  void appendHistory(const CommandHistoryRecord& record);
  /// Takes over what other windows of the program did to the history; `commandHistoryChanged` says
  /// when it is there.
  void refreshHistory();
  /// Appends the record of a finished run.
  void recordExecution(const DirectCommandResult& result,
                       const std::optional<QString>& sourceScreen);

 Q_SIGNALS:
  void hasCompletedOnboardingChanged();
  /// A prefix was selected, also the same one once more, or the selection was reset. Path, bookmark
  /// and scan date are those of the new selection.
  void prefixSelected();
  void selectedHomebrewPrefixPathChanged();
  void selectedHomebrewPrefixBookmarkDataChanged();
  void catalogLastRefreshDateChanged();
  /// A document was written to the cache or removed from it.
  void catalogCacheChanged();
  void localInventoryLastScanDateChanged();
  void commandHistoryChanged();

 private:
  /// What belongs to the selected prefix and changes with it.
  struct Selection {
    std::optional<QString> path;
    std::optional<QByteArray> bookmark;
    std::optional<QDateTime> lastScanDate;
  };

  using ChangeSignal = void (LocalPersistenceStore::*)();

  void load();
  void readHistory();
  QCoro::Task<> readLongHistory();
  void finishReadingHistory() const;
  QCoro::Task<> takeOver(QFuture<std::optional<CommandHistory>> reading);
  void migrateCatalogDocument(QLatin1StringView oldKey, const QUrl& file);
  void renewBookmark(const QUrl& folder);
  void setSelection(const Selection& selection);
  void showSelection(const Selection& selection);
  QCoro::Task<> saveCatalog(QByteArray document, QUrl file, QDateTime refreshedAt);
  template <typename T>
  void show(T& property, const T& value, ChangeSignal changed);
  template <typename T>
  void set(T& property, const T& value, QLatin1StringView key, ChangeSignal changed);
  /// Syncs all changes to the disk at once.
  void write(std::vector<SettingsFile::Change> changes);

  std::unique_ptr<QSettings> defaults_;
  SettingsFile settingsFile_;
  /// For one thread at a time: the one that reads a long history, then the one that writes
  /// settings.
  std::shared_ptr<SharedHistory> sharedHistory_;
  std::shared_ptr<const SecurityScopedBookmarks> bookmarks_;
  bool hasCompletedOnboarding_ = false;
  std::optional<QString> selectedHomebrewPrefixPath_;
  std::optional<QByteArray> selectedHomebrewPrefixBookmarkData_;
  std::optional<QDateTime> catalogLastRefreshDate_;
  std::optional<QDateTime> localInventoryLastScanDate_;
  // Mutable, because the getter fetches the history from the thread that reads it.
  mutable CommandHistory commandHistory_;
  mutable QFuture<std::optional<CommandHistory>> readingHistory_;
  /// Count the changes made here, so that a list read from the file meanwhile goes behind the
  /// records appended since, and is dropped if the history was replaced.
  int replacedHistories_ = 0;
  qsizetype appendedRecords_ = 0;
  /// Has a thread of its own: a setting does not wait for a document of many megabytes.
  CatalogCache catalogCache_;
  /// One thread, so that writes keep their order; its end waits for them.
  QThreadPool settingsWriter_;
};

}  // namespace quillmere

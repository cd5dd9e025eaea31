#include "persistence/LocalPersistenceStore.h"

#include <QCoroFuture>
#include <QtConcurrent/QtConcurrentRun>
#include <QtCore/QFileInfo>
#include <QtCore/QPointer>
#include <QtCore/QRunnable>

#include <utility>

#include "platform/BackgroundThreads.h"
#include "platform/FileUrl.h"
#include "platform/PrivateFile.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

namespace keys {

constexpr QLatin1StringView onboarding = "hasCompletedOnboarding"_L1;
constexpr QLatin1StringView prefixPath = "selectedHomebrewPrefixPath"_L1;
constexpr QLatin1StringView prefixBookmark = "selectedHomebrewPrefixBookmarkData"_L1;
constexpr QLatin1StringView refreshDate = "catalogLastRefreshDate"_L1;
constexpr QLatin1StringView scanDate = "localInventoryLastScanDate"_L1;
constexpr QLatin1StringView oldFormulaCatalog = "cachedFormulaCatalogData"_L1;
constexpr QLatin1StringView oldCaskCatalog = "cachedCaskCatalogData"_L1;

}  // namespace keys

/// Absent where the settings hold nothing, or something of another type.
template <typename T>
std::optional<T> valueOf(const QSettings& settings, QLatin1StringView key) {
  const QVariant value = settings.value(key);
  return value.typeId() == qMetaTypeId<T>() ? std::optional(value.value<T>()) : std::nullopt;
}

/// A settings file keeps a flag as text.
bool flagOf(const QSettings& settings, QLatin1StringView key) {
  return settings.value(key).toString() == "true"_L1;
}

std::optional<QDateTime> dateOf(const QSettings& settings, QLatin1StringView key) {
  const auto date = valueOf<QDateTime>(settings, key);
  return date && date->isValid() ? date : std::nullopt;
}

/// Bytes of a settings file. In a larger one there is most likely a history whose decoding would
/// keep the first frame waiting.
constexpr qint64 longHistory = 128 * qint64{1024};

QVariant toVariant(bool flag) {
  return flag;
}

template <typename T>
QVariant toVariant(const std::optional<T>& value) {
  return value ? QVariant(*value) : QVariant();
}

}  // namespace

LocalPersistenceStore::LocalPersistenceStore(
    std::unique_ptr<QSettings> defaults, QUrl cacheDirectoryURL,
    std::shared_ptr<const SecurityScopedBookmarks> bookmarks, QObject* parent)
    : QObject(parent),
      defaults_(std::move(defaults)),
      settingsFile_(*defaults_),
      sharedHistory_(std::make_shared<SharedHistory>(settingsFile_)),
      bookmarks_(std::move(bookmarks)),
      catalogCache_(std::move(cacheDirectoryURL)) {
  settingsWriter_.setMaxThreadCount(1);
  // Earlier versions left it to everybody's eyes.
  restrictToOwner(settingsFile_.name());
  // What the user has reset must not come back out of settings of the whole machine.
  defaults_->setFallbacksEnabled(false);
  load();
  migrateCatalogDocument(keys::oldFormulaCatalog, formulaCacheURL());
  migrateCatalogDocument(keys::oldCaskCatalog, caskCacheURL());
}

LocalPersistenceStore::~LocalPersistenceStore() = default;

void LocalPersistenceStore::load() {
  hasCompletedOnboarding_ = flagOf(*defaults_, keys::onboarding);
  selectedHomebrewPrefixPath_ = valueOf<QString>(*defaults_, keys::prefixPath);
  selectedHomebrewPrefixBookmarkData_ = valueOf<QByteArray>(*defaults_, keys::prefixBookmark);
  catalogLastRefreshDate_ = dateOf(*defaults_, keys::refreshDate);
  localInventoryLastScanDate_ = dateOf(*defaults_, keys::scanDate);
  readHistory();
}

void LocalPersistenceStore::readHistory() {
  if (QFileInfo(settingsFile_.name()).size() < longHistory) {
    commandHistory_ = sharedHistory_->synchronize().value_or(CommandHistory());
  } else {
    readLongHistory();
  }
}

QCoro::Task<> LocalPersistenceStore::readLongHistory() {
  const QPointer<LocalPersistenceStore> self(this);
  // Nobody else uses it before this is done.
  const QFuture<std::optional<CommandHistory>> reading =
      QtConcurrent::run(backgroundThreads(), &SharedHistory::synchronize, sharedHistory_);
  readingHistory_ = reading;
  co_await reading;
  if (self) {
    finishReadingHistory();
    Q_EMIT commandHistoryChanged();
  }
}

void LocalPersistenceStore::finishReadingHistory() const {
  if (!isHistoryLoaded()) {
    commandHistory_ = readingHistory_.result().value_or(CommandHistory());
    readingHistory_ = {};
  }
}

const CommandHistory& LocalPersistenceStore::commandHistory() const {
  finishReadingHistory();
  return commandHistory_;
}

void LocalPersistenceStore::write(std::vector<SettingsFile::Change> changes) {
  settingsWriter_.start(QRunnable::create(
      [file = settingsFile_, changes = std::move(changes)] { (void)file.write(changes); }));
}

void LocalPersistenceStore::migrateCatalogDocument(QLatin1StringView oldKey, const QUrl& file) {
  const auto document = valueOf<QByteArray>(*defaults_, oldKey);
  if (document) {
    catalogCache_.migrate(*document, file);
  }
  if (defaults_->contains(oldKey)) {
    write({{oldKey, QVariant()}});
  }
}

QCoro::Task<> LocalPersistenceStore::flush() {
  const QFuture<void> last = QtConcurrent::run(&settingsWriter_, [] {});
  co_await last;
}

template <typename T>
void LocalPersistenceStore::show(T& property, const T& value, ChangeSignal changed) {
  if (std::exchange(property, value) != value) {
    Q_EMIT(this->*changed)();
  }
}

template <typename T>
void LocalPersistenceStore::set(T& property, const T& value, QLatin1StringView key,
                                ChangeSignal changed) {
  write({{key, toVariant(value)}});
  show(property, value, changed);
}

void LocalPersistenceStore::setHasCompletedOnboarding(bool completed) {
  set(hasCompletedOnboarding_, completed, keys::onboarding,
      &LocalPersistenceStore::hasCompletedOnboardingChanged);
}

void LocalPersistenceStore::setSelectedHomebrewPrefixPath(const std::optional<QString>& path) {
  write({{keys::prefixPath, toVariant(path)}});
  showSelection({path, selectedHomebrewPrefixBookmarkData_, localInventoryLastScanDate_});
}

void LocalPersistenceStore::setSelectedHomebrewPrefixBookmarkData(
    const std::optional<QByteArray>& bookmark) {
  write({{keys::prefixBookmark, toVariant(bookmark)}});
  showSelection({selectedHomebrewPrefixPath_, bookmark, localInventoryLastScanDate_});
}

void LocalPersistenceStore::setSelection(const Selection& selection) {
  write({{keys::prefixPath, toVariant(selection.path)},
         {keys::prefixBookmark, toVariant(selection.bookmark)},
         {keys::scanDate, toVariant(selection.lastScanDate)}});
  showSelection(selection);
}

void LocalPersistenceStore::showSelection(const Selection& selection) {
  // Whoever hears of one of the three may ask for the others.
  const bool otherPath =
      std::exchange(selectedHomebrewPrefixPath_, selection.path) != selection.path;
  const bool otherBookmark =
      std::exchange(selectedHomebrewPrefixBookmarkData_, selection.bookmark) != selection.bookmark;
  const bool otherDate =
      std::exchange(localInventoryLastScanDate_, selection.lastScanDate) != selection.lastScanDate;
  if (otherPath) {
    Q_EMIT selectedHomebrewPrefixPathChanged();
  }
  if (otherBookmark) {
    Q_EMIT selectedHomebrewPrefixBookmarkDataChanged();
  }
  if (otherDate) {
    Q_EMIT localInventoryLastScanDateChanged();
  }
  if (otherPath) {
    Q_EMIT prefixSelected();
  }
}

void LocalPersistenceStore::setCatalogLastRefreshDate(const std::optional<QDateTime>& date) {
  set(catalogLastRefreshDate_, date, keys::refreshDate,
      &LocalPersistenceStore::catalogLastRefreshDateChanged);
}

void LocalPersistenceStore::setLocalInventoryLastScanDate(const std::optional<QDateTime>& date) {
  set(localInventoryLastScanDate_, date, keys::scanDate,
      &LocalPersistenceStore::localInventoryLastScanDateChanged);
}

void LocalPersistenceStore::setCommandHistory(const CommandHistory& history) {
  finishReadingHistory();
  ++replacedHistories_;
  settingsWriter_.start(
      QRunnable::create([shared = sharedHistory_, history] { shared->replace(history); }));
  show(commandHistory_, history, &LocalPersistenceStore::commandHistoryChanged);
}

void LocalPersistenceStore::appendHistory(const CommandHistoryRecord& record) {
  finishReadingHistory();
  commandHistory_.prepend(record);
  ++appendedRecords_;
  takeOver(QtConcurrent::run(&settingsWriter_, &SharedHistory::prepend, sharedHistory_, record));
  Q_EMIT commandHistoryChanged();
}

void LocalPersistenceStore::refreshHistory() {
  if (isHistoryLoaded()) {
    takeOver(QtConcurrent::run(&settingsWriter_, &SharedHistory::synchronize, sharedHistory_));
  }
}

QCoro::Task<> LocalPersistenceStore::takeOver(QFuture<std::optional<CommandHistory>> reading) {
  const QPointer<LocalPersistenceStore> self(this);
  const int replacedHistories = replacedHistories_;
  const qsizetype appendedRecords = appendedRecords_;
  const std::optional<CommandHistory> shared = co_await reading;
  if (!self || !shared || replacedHistories != replacedHistories_) {
    co_return;
  }
  const auto history = commandHistory_.first(appendedRecords_ - appendedRecords) + *shared;
  show(commandHistory_, history, &LocalPersistenceStore::commandHistoryChanged);
}

QCoro::Task<> LocalPersistenceStore::saveFormulaCatalog(QByteArray document,
                                                        QDateTime refreshedAt) {
  return saveCatalog(std::move(document), formulaCacheURL(), std::move(refreshedAt));
}

QCoro::Task<> LocalPersistenceStore::saveCaskCatalog(QByteArray document, QDateTime refreshedAt) {
  return saveCatalog(std::move(document), caskCacheURL(), std::move(refreshedAt));
}

QCoro::Task<> LocalPersistenceStore::saveCatalog(QByteArray document, QUrl file,
                                                 QDateTime refreshedAt) {
  const QPointer<LocalPersistenceStore> self(this);
  auto saving = catalogCache_.save(std::move(document), std::move(file));
  const bool isKept = co_await saving;
  if (self && isKept) {
    setCatalogLastRefreshDate(refreshedAt);
    Q_EMIT catalogCacheChanged();
  }
}

void LocalPersistenceStore::selectPrefix(const QUrl& folder) {
  const QString path = filePath(folder);
  const bool isSelectedAgain = path == selectedHomebrewPrefixPath_;
  setSelection({path, bookmarks_->create(folder),
                isSelectedAgain ? localInventoryLastScanDate_ : std::nullopt});
  if (isSelectedAgain) {
    Q_EMIT prefixSelected();
  }
}

std::optional<QUrl> LocalPersistenceStore::resolvedPrefixURL() {
  if (!selectedHomebrewPrefixBookmarkData_) {
    return selectedHomebrewPrefixPath_ ? std::optional(fileUrl(*selectedHomebrewPrefixPath_))
                                       : std::nullopt;
  }
  const auto resolved = bookmarks_->resolve(*selectedHomebrewPrefixBookmarkData_);
  if (!resolved) {
    return std::nullopt;
  }
  if (resolved->isStale) {
    renewBookmark(resolved->url);
  }
  return resolved->url;
}

void LocalPersistenceStore::renewBookmark(const QUrl& folder) {
  const QString path = filePath(folder);
  const auto fresh = bookmarks_->create(folder);
  const auto& bookmark = fresh ? fresh : selectedHomebrewPrefixBookmarkData_;
  if (path != selectedHomebrewPrefixPath_ || bookmark != selectedHomebrewPrefixBookmarkData_) {
    setSelection({path, bookmark, localInventoryLastScanDate_});
  }
}

void LocalPersistenceStore::clearCacheMarkers() {
  setCatalogLastRefreshDate(std::nullopt);
  catalogCache_.clear();
  Q_EMIT catalogCacheChanged();
}

void LocalPersistenceStore::resetPrefix() {
  setSelection({});
}

void LocalPersistenceStore::clearHistory() {
  setCommandHistory({});
}

void LocalPersistenceStore::resetOnboarding() {
  setHasCompletedOnboarding(false);
}

void LocalPersistenceStore::recordExecution(const DirectCommandResult& result,
                                            const std::optional<QString>& sourceScreen) {
  appendHistory(makeExecutionRecord(result, sourceScreen));
}

}  // namespace quillmere

#include "app/CatalogWorkflows.h"

#include <QCoroFuture>
#include <QtConcurrent/QtConcurrentRun>
#include <QtCore/QFileInfo>
#include <QtCore/QPointer>

#include <algorithm>
#include <utility>

#include "catalog/CachedCatalog.h"
#include "persistence/LocalPersistenceStore.h"
#include "platform/BackgroundThreads.h"
#include "platform/FileUrl.h"

namespace quillmere {

using State = PackageCatalogState;

namespace {

QString loadingMessage(CatalogScope scope) {
  switch (scope) {
    case CatalogScope::formulae:
      return QStringLiteral("Fetching Homebrew formula metadata...");
    case CatalogScope::casks:
      return QStringLiteral("Fetching Homebrew cask metadata...");
    case CatalogScope::all:
      break;
  }
  return QStringLiteral("Fetching Homebrew package metadata...");
}

QString cacheFailureMessage(CatalogScope scope, const QString& reason) {
  switch (scope) {
    case CatalogScope::formulae:
      return QStringLiteral("Cached formula metadata could not be read: ") + reason;
    case CatalogScope::casks:
      return QStringLiteral("Cached cask metadata could not be read: ") + reason;
    case CatalogScope::all:
      break;
  }
  return QStringLiteral("Cached package metadata could not be read: ") + reason;
}

/// All documents of a fetch together.
CatalogWorkflows::Progress sumOf(const std::vector<CatalogWorkflows::Progress>& documents) {
  CatalogWorkflows::Progress sum{.receivedBytes = 0, .expectedBytes = 0};
  for (const CatalogWorkflows::Progress& document : documents) {
    sum.receivedBytes += document.receivedBytes;
    if (!document.expectedBytes) {
      sum.expectedBytes.reset();
    }
    if (sum.expectedBytes) {
      *sum.expectedBytes += std::max(*document.expectedBytes, document.receivedBytes);
    }
  }
  return sum;
}

/// How far a document has come that has not begun: it will be as large as last time's.
CatalogWorkflows::Progress initialProgress(const QUrl& cacheFile) {
  const qint64 size = QFileInfo(filePath(cacheFile)).size();
  return {.receivedBytes = 0, .expectedBytes = size > 0 ? std::optional(size) : std::nullopt};
}

}  // namespace

CatalogWorkflows::CatalogWorkflows(LocalPersistenceStore& store, Clients clients, Clock clock,
                                   QObject* parent)
    : QObject(parent), store_(store), clients_(std::move(clients)), clock_(std::move(clock)) {
}

CatalogWorkflows::~CatalogWorkflows() {
  cancelFetches();
}

QCoro::Task<> CatalogWorkflows::fetch(CatalogScope scope) {
  const QPointer<CatalogWorkflows> self(this);
  const Fetch fetch = begin(scope);
  auto fetching = downloadAndDecode(fetch);
  auto fetched = co_await fetching;
  if (!self) {
    co_return;
  }
  if (fetch.stop.stop_requested()) {
    restoreSettledState(fetch);
    co_return;
  }
  if (fetched) {
    // Only what decodes takes the place of the cached documents.
    auto saving = save(std::move(fetched->documents));
    co_await saving;
    if (self) {
      finish(fetch, {State::Loaded{std::move(fetched->catalog)}});
    }
    co_return;
  }
  auto reading = readCached(scope);
  auto cached = co_await reading;
  if (!self) {
    co_return;
  }
  if (fetch.stop.stop_requested()) {
    restoreSettledState(fetch);
  } else if (cached) {
    failure_ = {scope, std::move(fetched).error()};
    finish(fetch, {State::Loaded{*std::move(cached)}});
  } else {
    finish(fetch, {State::Failed{std::move(fetched).error()}});
  }
}

auto CatalogWorkflows::downloadAndDecode(Fetch fetch)
    -> QCoro::Task<std::expected<Fetched, QString>> {
  auto downloading = download(std::move(fetch));
  auto documents = co_await downloading;
  if (!documents) {
    co_return std::unexpected(std::move(documents).error());
  }
  const auto decoding = QtConcurrent::run(backgroundThreads(), &decodeCatalog, *documents);
  auto catalog = co_await decoding;
  if (!catalog) {
    co_return std::unexpected(catalog.error().description());
  }
  co_return Fetched{.documents = *std::move(documents), .catalog = *std::move(catalog)};
}

auto CatalogWorkflows::download(Fetch fetch)
    -> QCoro::Task<std::expected<CatalogDocuments, QString>> {
  const QPointer<CatalogWorkflows> self(this);
  CatalogDocuments documents;
  if (hasFormulae(fetch.scope)) {
    auto fetching = clients_.formulae.fetch(optionsFor(fetch, 0));
    auto document = co_await fetching;
    if (!document) {
      co_return std::unexpected(description(document.error()));
    }
    documents.formulae = *std::move(document);
  }
  if (self && hasCasks(fetch.scope)) {
    auto fetching = clients_.casks.fetch(optionsFor(fetch, fetch.documents.size() - 1));
    auto document = co_await fetching;
    if (!document) {
      co_return std::unexpected(description(document.error()));
    }
    documents.casks = *std::move(document);
  }
  co_return documents;
}

QCoro::Task<> CatalogWorkflows::save(CatalogDocuments documents) {
  const QPointer<CatalogWorkflows> self(this);
  const QDateTime now = clock_();
  if (documents.formulae) {
    auto saving = store_.saveFormulaCatalog(*std::move(documents.formulae), now);
    co_await saving;
  }
  if (self && documents.casks) {
    auto saving = store_.saveCaskCatalog(*std::move(documents.casks), now);
    co_await saving;
  }
}

QCoro::Task<bool> CatalogWorkflows::loadCached(CatalogScope scope) {
  const QPointer<CatalogWorkflows> self(this);
  auto reading = readCached(scope);
  auto cached = co_await reading;
  if (!self) {
    co_return false;
  }
  const bool isLoaded = cached.has_value();
  settledState_ = isLoaded ? State{State::Loaded{*std::move(cached)}}
                           : State{State::Failed{cacheFailureMessage(scope, cached.error())}};
  setState(settledState_);
  co_return isLoaded;
}

auto CatalogWorkflows::readCached(CatalogScope scope)
    -> QCoro::Task<std::expected<PackageCatalogPtr, QString>> {
  const CachedCatalogFiles files{.formulae = store_.formulaCacheURL(),
                                 .casks = store_.caskCacheURL()};
  const auto reading = QtConcurrent::run(backgroundThreads(), &readCachedCatalog, files, scope);
  auto cached = co_await reading;
  co_return cached;
}

void CatalogWorkflows::cancelFetches() {
  // Stopping one may end it at once, and with it its place in the list.
  for (const Fetch& fetch : std::vector(fetches_)) {
    fetch.stop.request_stop();
  }
}

auto CatalogWorkflows::begin(CatalogScope scope) -> Fetch {
  Fetch fetch{.id = ++lastFetch_, .scope = scope, .stop = {}, .documents = {}};
  if (hasFormulae(scope)) {
    fetch.documents.push_back(initialProgress(store_.formulaCacheURL()));
  }
  if (hasCasks(scope)) {
    fetch.documents.push_back(initialProgress(store_.caskCacheURL()));
  }
  fetches_.push_back(fetch);
  failure_.reset();
  setState({State::Loading{loadingMessage(scope)}});
  showProgress();
  return fetch;
}

void CatalogWorkflows::finish(const Fetch& fetch, PackageCatalogState state) {
  remove(fetch);
  settledState_ = std::move(state);
  setState(settledState_);
}

void CatalogWorkflows::restoreSettledState(const Fetch& fetch) {
  remove(fetch);
  if (std::holds_alternative<State::Loading>(state_.value)) {
    setState(fetches_.empty() ? settledState_
                              : State{State::Loading{loadingMessage(fetches_.back().scope)}});
  }
}

void CatalogWorkflows::remove(const Fetch& fetch) {
  std::erase_if(fetches_, [&fetch](const Fetch& other) { return other.id == fetch.id; });
  showProgress();
}

void CatalogWorkflows::setState(PackageCatalogState state) {
  state_ = std::move(state);
  Q_EMIT stateChanged();
}

MetadataFetchOptions CatalogWorkflows::optionsFor(const Fetch& fetch, std::size_t document) {
  return {.stop = fetch.stop.get_token(),
          .onProgress = [self = QPointer(this), id = fetch.id,
                         document](const MetadataProgress& progress) {
            if (self) {
              self->updateProgress(id, document, progress);
            }
          }};
}

void CatalogWorkflows::updateProgress(int id, std::size_t document,
                                      const MetadataProgress& progress) {
  const auto fetch = std::ranges::find(fetches_, id, &Fetch::id);
  if (fetch == fetches_.end()) {
    return;
  }
  Progress& noted = fetch->documents[document];
  noted.receivedBytes = progress.receivedBytes;
  if (progress.totalBytes) {
    noted.expectedBytes = progress.totalBytes;
  }
  showProgress();
}

void CatalogWorkflows::showProgress() {
  const auto progress =
      fetches_.empty() ? std::nullopt : std::optional(sumOf(fetches_.back().documents));
  if (progress != fetchProgress_) {
    fetchProgress_ = progress;
    Q_EMIT fetchProgressChanged();
  }
}

}  // namespace quillmere

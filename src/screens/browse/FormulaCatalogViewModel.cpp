#include "screens/browse/FormulaCatalogViewModel.h"

#include <QCoroFuture>
#include <QtConcurrent/QtConcurrentRun>
#include <QtCore/QPointer>

#include <algorithm>
#include <chrono>
#include <utility>

#include "guidance/FreshnessIndicator.h"
#include "platform/BackgroundThreads.h"
#include "platform/ByteTexts.h"

namespace quillmere {
namespace {

/// What is answered within it feels immediate.
constexpr std::chrono::milliseconds filteringDelay{100};

QString freshnessLabel() {
  return QStringLiteral("Catalog");
}

}  // namespace

FormulaCatalogViewModel::FormulaCatalogViewModel(Clock clock, QObject* parent)
    : QObject(parent), clock_(std::move(clock)) {
  connect(&search_, &PackageSearch::changed, this, [this] { filter(); });
  filteringDelay_.setSingleShot(true);
  filteringDelay_.setInterval(filteringDelay);
  connect(&filteringDelay_, &QTimer::timeout, this, &FormulaCatalogViewModel::showResults);
}

auto FormulaCatalogViewModel::state() const -> State {
  if (std::holds_alternative<PackageCatalogState::Loading>(inputs_.state.value)) {
    return Loading;
  }
  if (std::holds_alternative<PackageCatalogState::Failed>(inputs_.state.value)) {
    return Failed;
  }
  if (!catalog_ || catalog_->packages().empty()) {
    return NotLoaded;
  }
  if (showsFiltering_) {
    return Filtering;
  }
  return packages_.rowCount() == 0 ? NoMatch : Listed;
}

QString FormulaCatalogViewModel::symbolName() const {
  return state() == Failed ? QStringLiteral("wifi.exclamationmark")
                           : QStringLiteral("magnifyingglass");
}

QString FormulaCatalogViewModel::title() const {
  switch (state()) {
    case NotLoaded:
    case NoMatch:
      return QStringLiteral("No Packages Found");
    case Loading:
      return std::get<PackageCatalogState::Loading>(inputs_.state.value).message;
    case Failed:
      return QStringLiteral("Could Not Load Catalog");
    case Filtering:
      return QStringLiteral("Searching packages...");
    case Listed:
      return {};
  }
  Q_UNREACHABLE();
}

QString FormulaCatalogViewModel::text() const {
  switch (state()) {
    case NotLoaded:
      return QStringLiteral("Fetch formulae or casks to populate Browse.");
    case Failed:
      return std::get<PackageCatalogState::Failed>(inputs_.state.value).message;
    case NoMatch:
      return QStringLiteral("Try a different search term or package type filter.");
    case Loading:
    case Filtering:
    case Listed:
      return {};
  }
  Q_UNREACHABLE();
}

QString FormulaCatalogViewModel::progressText() const {
  if (state() != Loading || inputs_.receivedBytes == 0) {
    return {};
  }
  QString received = byteCountText(inputs_.receivedBytes);
  if (progressFraction() < 0) {
    return received;
  }
  // Rounded down: what is not there whole is not at 100%.
  return QStringLiteral("%1 of %2 (%3%)")
      .arg(received, byteCountText(inputs_.expectedBytes.value_or(0)),
           QString::number(static_cast<int>(progressFraction() * 100)));
}

double FormulaCatalogViewModel::progressFraction() const {
  const qint64 expected = inputs_.expectedBytes.value_or(0);
  if (state() != Loading || expected <= 0) {
    return -1;
  }
  return std::min(1.0, static_cast<double>(inputs_.receivedBytes) / static_cast<double>(expected));
}

QString FormulaCatalogViewModel::longSummary() const {
  return shownResults_ ? shownResults_->longSummary() : QString();
}

QString FormulaCatalogViewModel::shortSummary() const {
  return shownResults_ ? shownResults_->shortSummary() : QString();
}

QString FormulaCatalogViewModel::accessibleSummary() const {
  return longSummary() + QStringLiteral(" - ") +
         catalogFreshness(inputs_.lastRefreshDate, clock_()).shortText(freshnessLabel());
}

QString FormulaCatalogViewModel::freshnessText() const {
  return catalogFreshness(inputs_.lastRefreshDate, clock_()).longText(freshnessLabel()) +
         QStringLiteral(" Browse does not require a selected Homebrew prefix.");
}

QString FormulaCatalogViewModel::fetchFailureText() const {
  return inputs_.fetchFailure.isEmpty() || state() == Loading
             ? QString()
             : QStringLiteral("The catalog could not be fetched. %1 The cached catalog is shown.")
                   .arg(inputs_.fetchFailure);
}

void FormulaCatalogViewModel::open(int row) {
  if (row >= 0 && row < packages_.rowCount()) {
    // A copy: whoever opens it may have the list changed.
    const HomebrewPackageSummary package = packages_.package(row);
    Q_EMIT packageChosen(package);
  }
}

void FormulaCatalogViewModel::setInputs(const CatalogInputs& inputs) {
  inputs_ = inputs;
  setCatalog(inputs_.state.catalog());
  Q_EMIT stateChanged();
  announce();
}

void FormulaCatalogViewModel::setCatalog(PackageCatalogPtr catalog) {
  if (catalog_ == catalog) {
    return;
  }
  catalog_ = std::move(catalog);
  // Results are places in the catalog before.
  filteredResults_.reset();
  shownResults_.reset();
  filter();
}

QCoro::Task<> FormulaCatalogViewModel::filter() {
  if (!catalog_) {
    ++question_;
    setResults(std::nullopt, false);
    co_return;
  }
  const FilterRequest request =
      FilterRequest::make(search_.searchText(), search_.packageFilter(), *catalog_);
  if (filteredResults_ && filteredResults_->request == request) {
    co_return;
  }
  const int question = ++question_;
  if (request.isUnfiltered()) {
    setResults(filteredPackages(*catalog_, request), false);
    co_return;
  }
  setResults(FilteredPackageResults::provisional(request), true);
  const QPointer<FormulaCatalogViewModel> self(this);
  const QFuture<FilteredPackageResults> filtering = QtConcurrent::run(
      backgroundThreads(),
      [catalog = catalog_, request] { return filteredPackages(*catalog, request); });
  const FilteredPackageResults results = co_await filtering;
  if (self && question == question_) {
    setResults(results, false);
  }
}

void FormulaCatalogViewModel::setResults(std::optional<FilteredPackageResults> results,
                                         bool isFiltering) {
  filteredResults_ = std::move(results);
  isFiltering_ = isFiltering;
  Q_EMIT resultsChanged();
  if (isFiltering_) {
    spoken_.reset();
  }
  // Nearly every answer is there before the next frame: a list that went and came back would only
  // flicker.
  if (!isFiltering_ || !shownResults_) {
    showResults();
  } else if (!filteringDelay_.isActive()) {
    filteringDelay_.start();
  }
}

void FormulaCatalogViewModel::showResults() {
  filteringDelay_.stop();
  shownResults_ = filteredResults_;
  showsFiltering_ = isFiltering_;
  packages_.setPackages(
      catalog_, shownResults_ ? shownResults_->visiblePackages : std::vector<std::size_t>());
  Q_EMIT stateChanged();
  announce();
}

QString FormulaCatalogViewModel::spokenState() const {
  switch (state()) {
    case Loading:
    case NoMatch:
      return title();
    case Failed:
      return title() + QStringLiteral(". ") + text();
    case Listed:
      return longSummary();
    case NotLoaded:
    case Filtering:
      return {};
  }
  Q_UNREACHABLE();
}

void FormulaCatalogViewModel::announce() {
  // In one text: of two announcements at once only the second is heard.
  QStringList news;
  if (spokenFailure_.accept(fetchFailureText())) {
    news += fetchFailureText();
  }
  const QString spoken = spokenState();
  if (spoken_.accept(spoken)) {
    news += spoken;
  }
  if (!news.isEmpty()) {
    Q_EMIT announced(news.join(u' '));
  }
}

}  // namespace quillmere

#include "screens/FormulaCatalogViewModel.h"

#include <QCoroFuture>
#include <QtConcurrent/QtConcurrentRun>
#include <QtCore/QPointer>

#include <utility>

#include "platform/BackgroundThreads.h"

namespace quillmere {

void FormulaCatalogViewModel::setSearchText(const QString& text) {
  if (searchText_ == text) {
    return;
  }
  searchText_ = text;
  Q_EMIT searchTextChanged();
  filter();
}

void FormulaCatalogViewModel::setPackageFilter(PackageCatalogFilter filter) {
  if (packageFilter_ == filter) {
    return;
  }
  packageFilter_ = filter;
  Q_EMIT packageFilterChanged();
  this->filter();
}

void FormulaCatalogViewModel::setInputs(const CatalogInputs& inputs) {
  inputs_ = inputs;
  setCatalog(inputs_.state.catalog());
  Q_EMIT inputsChanged();
}

void FormulaCatalogViewModel::setCatalog(PackageCatalogSnapshot catalog) {
  if (catalog_ == catalog) {
    return;
  }
  catalog_ = std::move(catalog);
  // What is shown are places in the catalog before.
  filteredResults_.reset();
  Q_EMIT catalogChanged();
  filter();
}

QCoro::Task<> FormulaCatalogViewModel::filter() {
  if (!catalog_) {
    ++question_;
    show(std::nullopt, false);
    co_return;
  }
  const FilterRequest request = FilterRequest::make(searchText_, packageFilter_, *catalog_);
  if (filteredResults_ && filteredResults_->request == request) {
    co_return;
  }
  const int question = ++question_;
  if (request.isUnfiltered()) {
    show(filteredPackages(*catalog_, request), false);
    co_return;
  }
  show(FilteredPackageResults::provisional(request), true);
  const QPointer<FormulaCatalogViewModel> self(this);
  const QFuture<FilteredPackageResults> filtering = QtConcurrent::run(
      backgroundThreads(),
      [catalog = catalog_, request] { return filteredPackages(*catalog, request); });
  const FilteredPackageResults results = co_await filtering;
  if (self && question == question_) {
    show(results, false);
  }
}

void FormulaCatalogViewModel::show(std::optional<FilteredPackageResults> results,
                                   bool isFiltering) {
  filteredResults_ = std::move(results);
  isFiltering_ = isFiltering;
  Q_EMIT resultsChanged();
}

}  // namespace quillmere

#pragma once

#include <QCoroTask>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

#include <optional>

#include "catalog/CatalogScope.h"
#include "catalog/PackageCatalogFilter.h"
#include "screens/CatalogInputs.h"

namespace quillmere {

/// What the Browse screen shows of the loaded catalog: the packages that match a committed search
/// text and a type. Searching happens on another thread, and an answer that was overtaken by
/// another question is dropped; everything else, all changes of state included, on the UI thread.
class FormulaCatalogViewModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the main window's view model")
  Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
  Q_PROPERTY(bool isFiltering READ isFiltering NOTIFY resultsChanged)

 public:
  explicit FormulaCatalogViewModel(QObject* parent = nullptr) : QObject(parent) {}

  [[nodiscard]] const QString& searchText() const { return searchText_; }

  /// Commits a search.
  void setSearchText(const QString& text);

  [[nodiscard]] PackageCatalogFilter packageFilter() const { return packageFilter_; }

  void setPackageFilter(PackageCatalogFilter filter);

  [[nodiscard]] const CatalogInputs& inputs() const { return inputs_; }

  void setInputs(const CatalogInputs& inputs);

  /// The catalog that is loaded; null when none is.
  [[nodiscard]] const PackageCatalogSnapshot& catalog() const { return catalog_; }

  /// What is shown: while a search goes on, provisionally nothing; absent without a catalog.
  [[nodiscard]] const std::optional<FilteredPackageResults>& filteredResults() const {
    return filteredResults_;
  }

  [[nodiscard]] bool isFiltering() const { return isFiltering_; }

 Q_SIGNALS:
  void inputsChanged();
  // What the user wants of the main window.
  void fetchWanted(quillmere::CatalogScope scope);
  void loadCachedWanted(quillmere::CatalogScope scope);
  void cancelFetchWanted();
  void packageChosen(const quillmere::HomebrewPackageSummary& package);

  void searchTextChanged();
  void packageFilterChanged();
  void catalogChanged();
  void resultsChanged();

 private:
  void setCatalog(PackageCatalogSnapshot catalog);
  QCoro::Task<> filter();
  void show(std::optional<FilteredPackageResults> results, bool isFiltering);

  CatalogInputs inputs_;
  QString searchText_;
  PackageCatalogFilter packageFilter_ = PackageCatalogFilter::all;
  PackageCatalogSnapshot catalog_;
  std::optional<FilteredPackageResults> filteredResults_;
  bool isFiltering_ = false;
  /// Counts the questions, so that only the answer to the last one is shown.
  int question_ = 0;
};

}  // namespace quillmere

#pragma once

#include <QCoroTask>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QTimer>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <optional>

#include "catalog/CatalogScope.h"
#include "screens/browse/CatalogInputs.h"
#include "screens/browse/PackageListModel.h"
#include "screens/components/AnnouncementFilter.h"
#include "screens/shared/PackageSearch.h"

namespace quillmere {

/// What the Browse screen shows of the loaded catalog: the packages that match a committed search
/// text and a type. Searching happens on another thread, and an answer that was overtaken by
/// another question is dropped; everything else, all changes of state included, on the UI thread.
class FormulaCatalogViewModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the main window's view model")
  Q_PROPERTY(State state READ state NOTIFY stateChanged)
  Q_PROPERTY(QString symbolName READ symbolName NOTIFY stateChanged)
  Q_PROPERTY(QString title READ title NOTIFY stateChanged)
  Q_PROPERTY(QString text READ text NOTIFY stateChanged)
  Q_PROPERTY(QString progressText READ progressText NOTIFY stateChanged)
  Q_PROPERTY(double progressFraction READ progressFraction NOTIFY stateChanged)
  Q_PROPERTY(QString longSummary READ longSummary NOTIFY stateChanged)
  Q_PROPERTY(QString shortSummary READ shortSummary NOTIFY stateChanged)
  Q_PROPERTY(QString accessibleSummary READ accessibleSummary NOTIFY stateChanged)
  Q_PROPERTY(QString freshnessText READ freshnessText NOTIFY stateChanged)
  Q_PROPERTY(QString fetchFailureText READ fetchFailureText NOTIFY stateChanged)
  Q_PROPERTY(bool hasCachedCatalog READ hasCachedCatalog NOTIFY stateChanged)
  Q_PROPERTY(bool hasCachedFormulae READ hasCachedFormulae NOTIFY stateChanged)
  Q_PROPERTY(bool hasCachedCasks READ hasCachedCasks NOTIFY stateChanged)
  Q_PROPERTY(quillmere::PackageSearch* search READ search CONSTANT)
  Q_PROPERTY(quillmere::PackageListModel* packages READ packages CONSTANT)

 public:
  /// From `Filtering` on there is a catalog to search.
  enum State {
    /// There is no catalog, or an empty one.
    NotLoaded,
    Loading,
    Failed,
    /// A search is under way.
    Filtering,
    NoMatch,
    Listed,
  };
  Q_ENUM(State)

  using Clock = std::function<QDateTime()>;

  explicit FormulaCatalogViewModel(Clock clock = &QDateTime::currentDateTimeUtc,
                                   QObject* parent = nullptr);

  [[nodiscard]] State state() const;

  // What the state says: nothing where the list is shown.
  [[nodiscard]] QString symbolName() const;
  [[nodiscard]] QString title() const;
  [[nodiscard]] QString text() const;

  /// How far a fetch has come: "12 MB of 30 MB (40%)"; empty before the first byte.
  [[nodiscard]] QString progressText() const;
  /// The same from 0 to 1; negative where all is not known.
  [[nodiscard]] double progressFraction() const;

  // How many of how many packages are shown.
  [[nodiscard]] QString longSummary() const;
  [[nodiscard]] QString shortSummary() const;
  /// The same and how fresh they are, for assistive technology.
  [[nodiscard]] QString accessibleSummary() const;
  [[nodiscard]] QString freshnessText() const;

  [[nodiscard]] bool hasCachedCatalog() const { return inputs_.hasCachedCatalog(); }

  [[nodiscard]] bool hasCachedFormulae() const { return inputs_.hasCachedFormulae; }

  [[nodiscard]] bool hasCachedCasks() const { return inputs_.hasCachedCasks; }

  [[nodiscard]] PackageSearch* search() { return &search_; }

  [[nodiscard]] const CatalogInputs& inputs() const { return inputs_; }

  void setInputs(const CatalogInputs& inputs);

  /// The catalog that is loaded; null when none is.
  [[nodiscard]] const PackageCatalogPtr& catalog() const { return catalog_; }

  /// The answer to the last question: while it is looked for, provisionally nothing; absent
  /// without a catalog.
  [[nodiscard]] const std::optional<FilteredPackageResults>& filteredResults() const {
    return filteredResults_;
  }

  [[nodiscard]] bool isFiltering() const { return isFiltering_; }

  [[nodiscard]] PackageListModel* packages() { return &packages_; }

  /// Why the last fetch failed, where what is shown is the cached catalog; empty otherwise.
  [[nodiscard]] QString fetchFailureText() const;

  // What the buttons do.
  Q_INVOKABLE void tryAgain() { Q_EMIT fetchRequested(inputs_.failedScope); }

  Q_INVOKABLE void fetchAll() { Q_EMIT fetchRequested(CatalogScope::all); }

  Q_INVOKABLE void fetchFormulae() { Q_EMIT fetchRequested(CatalogScope::formulae); }

  Q_INVOKABLE void fetchCasks() { Q_EMIT fetchRequested(CatalogScope::casks); }

  Q_INVOKABLE void loadCachedAll() { Q_EMIT loadCachedRequested(CatalogScope::all); }

  Q_INVOKABLE void loadCachedFormulae() { Q_EMIT loadCachedRequested(CatalogScope::formulae); }

  Q_INVOKABLE void loadCachedCasks() { Q_EMIT loadCachedRequested(CatalogScope::casks); }

  Q_INVOKABLE void cancelFetch() { Q_EMIT cancelFetchRequested(); }

  /// Opens the package in this row of the list; does nothing for a row that is none.
  Q_INVOKABLE void open(int row);

 Q_SIGNALS:
  // What the user wants of the main window.
  void fetchRequested(quillmere::CatalogScope scope);
  void loadCachedRequested(quillmere::CatalogScope scope);
  void cancelFetchRequested();
  void packageChosen(const quillmere::HomebrewPackageSummary& package);

  /// What `state` and all that goes with it say has changed.
  void stateChanged();
  void resultsChanged();
  /// Something came about that a user who does not see the screen wants to know.
  void announced(const QString& text);

 private:
  void setCatalog(PackageCatalogPtr catalog);
  QCoro::Task<> filter();
  void setResults(std::optional<FilteredPackageResults> results, bool isFiltering);
  void showResults();
  void announce();
  [[nodiscard]] QString spokenState() const;

  Clock clock_;
  CatalogInputs inputs_;
  PackageSearch search_;
  PackageCatalogPtr catalog_;
  std::optional<FilteredPackageResults> filteredResults_;
  /// What is in view: the answer before stays until the next is there or the wait is felt.
  std::optional<FilteredPackageResults> shownResults_;
  bool showsFiltering_ = false;
  QTimer filteringDelay_;
  PackageListModel packages_;
  AnnouncementFilter spoken_;
  AnnouncementFilter spokenFailure_;
  bool isFiltering_ = false;
  /// Counts the questions, so that only the answer to the last one is shown.
  int question_ = 0;
};

}  // namespace quillmere

#pragma once

#include <QtCore/QLocale>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

#include <functional>

#include "catalog/PackageCatalogFilter.h"
#include "screens/InstalledPackageListModel.h"
#include "screens/LocalInventoryInputs.h"
#include "screens/PackageFilterChoice.h"

namespace quillmere {

/// The Installed screen: the local inventory, searched and filtered. UI thread only.
class InstalledPackagesViewModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the main window's view model")
  Q_PROPERTY(State state READ state NOTIFY stateChanged)
  Q_PROPERTY(QString symbolName READ symbolName NOTIFY stateChanged)
  Q_PROPERTY(QString title READ title NOTIFY stateChanged)
  Q_PROPERTY(QString text READ text NOTIFY stateChanged)
  Q_PROPERTY(QString progressText READ progressText NOTIFY stateChanged)
  Q_PROPERTY(double progressFraction READ progressFraction NOTIFY stateChanged)
  Q_PROPERTY(QString summary READ summary NOTIFY stateChanged)
  Q_PROPERTY(QString accessibleSummary READ accessibleSummary NOTIFY stateChanged)
  Q_PROPERTY(QString freshnessText READ freshnessText NOTIFY stateChanged)
  Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
  Q_PROPERTY(QList<QString> filterTitles READ filterTitles CONSTANT)
  Q_PROPERTY(int filterIndex READ filterIndex WRITE setFilterIndex NOTIFY packageFilterChanged)
  Q_PROPERTY(quillmere::InstalledPackageListModel* packages READ packages CONSTANT)

 public:
  /// In the order in which they are told apart; from `NoMatch` on there are packages to search.
  enum State { AccessNeeded, NotScanned, Scanning, Failed, NothingFound, NoMatch, Listed };
  Q_ENUM(State)

  using Clock = std::function<QDateTime()>;

  explicit InstalledPackagesViewModel(Clock clock = &QDateTime::currentDateTimeUtc,
                                      QObject* parent = nullptr);

  [[nodiscard]] State state() const;

  // What the state says: nothing where the list is shown.
  [[nodiscard]] QString symbolName() const;
  [[nodiscard]] QString title() const;
  [[nodiscard]] QString text() const;

  /// How far a scan has come: "12 of 30 packages scanned"; empty before the first package.
  [[nodiscard]] QString progressText() const;
  /// The same from 0 to 1; negative where all is not known.
  [[nodiscard]] double progressFraction() const;

  /// How many of how many packages are shown.
  [[nodiscard]] QString summary() const;
  /// The same and how fresh they are, for assistive technology.
  [[nodiscard]] QString accessibleSummary() const;
  [[nodiscard]] QString freshnessText() const;

  [[nodiscard]] const QString& searchText() const { return searchText_; }

  /// Commits a search.
  void setSearchText(const QString& text);

  [[nodiscard]] PackageCatalogFilter packageFilter() const { return packageFilter_; }

  void setPackageFilter(PackageCatalogFilter filter);

  [[nodiscard]] QStringList filterTitles() const { return packageFilterTitles(); }

  [[nodiscard]] int filterIndex() const { return packageFilterIndex(packageFilter_); }

  void setFilterIndex(int index) { setPackageFilter(packageFilterAt(index)); }

  [[nodiscard]] const LocalInventoryInputs& inputs() const { return inputs_; }

  void setInputs(const LocalInventoryInputs& inputs);

  [[nodiscard]] InstalledPackageListModel* packages() { return &packages_; }

  // What the buttons do.
  Q_INVOKABLE void scan() { Q_EMIT scanWanted(); }

  Q_INVOKABLE void cancelScan() { Q_EMIT cancelScanWanted(); }

  Q_INVOKABLE void selectPrefix() { Q_EMIT selectPrefixWanted(); }

  Q_INVOKABLE void browseCatalog() { Q_EMIT browseCatalogWanted(); }

  Q_INVOKABLE void clearSearch() { setSearchText(QString()); }

  /// Opens the package in this row of the list; does nothing for a row that is none.
  Q_INVOKABLE void open(int row);

 Q_SIGNALS:
  void inputsChanged();
  // What the user wants of the main window.
  void scanWanted();
  void cancelScanWanted();
  void selectPrefixWanted();
  void browseCatalogWanted();
  void packageChosen(const quillmere::InstalledPackageSummary& package);

  /// What `state` and all that goes with it say has changed.
  void stateChanged();
  void searchTextChanged();
  void packageFilterChanged();
  /// Something came about that a user who does not see the screen wants to know.
  void announced(const QString& text);

 private:
  [[nodiscard]] InstalledPackagesSnapshot inventory() const;
  void filter();
  void announce();
  [[nodiscard]] QString spokenState() const;

  Clock clock_;
  LocalInventoryInputs inputs_;
  QString searchText_;
  PackageCatalogFilter packageFilter_ = PackageCatalogFilter::all;
  InstalledPackageListModel packages_;
  QString announced_;
};

/// The places of the installed packages that pass `filter` and of which some text contains
/// `query`: case and diacritics aside, and with the letters of the language of `locale`. The empty
/// query is in all of them. Pure; any thread.
[[nodiscard]] std::vector<std::size_t> matchingPackages(
    const std::vector<InstalledPackageSummary>& packages, const QString& query,
    PackageCatalogFilter filter, const QLocale& locale = QLocale::system());

/// What is said to somebody who has not scanned yet.
[[nodiscard]] QString scanInvitation(const std::optional<QString>& selectedPrefixPath);

}  // namespace quillmere

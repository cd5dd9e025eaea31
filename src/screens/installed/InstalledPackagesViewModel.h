#pragma once

#include <QtCore/QLocale>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

#include "screens/installed/InstalledPackageListModel.h"
#include "screens/shared/LocalInventoryViewModel.h"
#include "screens/shared/PackageSearch.h"

namespace quillmere {

/// The Installed screen: the local inventory, searched and filtered. UI thread only.
class InstalledPackagesViewModel : public quillmere::LocalInventoryViewModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the main window's view model")
  Q_PROPERTY(quillmere::InstalledPackagesViewModel::State state READ state NOTIFY changed)
  Q_PROPERTY(QString summary READ summary NOTIFY changed)
  Q_PROPERTY(QString accessibleSummary READ accessibleSummary NOTIFY changed)
  Q_PROPERTY(QString freshnessText READ freshnessText NOTIFY changed)
  Q_PROPERTY(quillmere::PackageSearch* search READ search CONSTANT)
  Q_PROPERTY(quillmere::InstalledPackageListModel* packages READ packages CONSTANT)

 public:
  /// In the order in which they are told apart; from `NoMatch` on there are packages to search.
  enum State {
    NeedsAccess,
    NotScanned,
    Scanning,
    ScanFailed,
    NothingInstalled,
    NoMatch,
    Listed,
  };
  Q_ENUM(State)

  explicit InstalledPackagesViewModel(Clock clock = &QDateTime::currentDateTimeUtc,
                                      QObject* parent = nullptr);

  [[nodiscard]] State state() const;

  // What the state says: nothing where the list is shown.
  [[nodiscard]] QString symbolName() const override;
  [[nodiscard]] QString title() const override;
  [[nodiscard]] QString text() const override;

  /// How many of how many packages are shown.
  [[nodiscard]] QString summary() const;
  /// The same and how fresh they are, for assistive technology.
  [[nodiscard]] QString accessibleSummary() const;
  [[nodiscard]] QString freshnessText() const;

  [[nodiscard]] PackageSearch* search() { return &search_; }

  [[nodiscard]] InstalledPackageListModel* packages() { return &packages_; }

  /// Opens the package in this row of the list; does nothing for a row that is none.
  Q_INVOKABLE void open(int row);

 Q_SIGNALS:
  // What the user wants of the main window.
  void browseCatalogRequested();
  void packageChosen(const quillmere::InstalledPackageSummary& package);

 private:
  void applyInputs(const LocalInventoryInputs& previous) override;
  [[nodiscard]] QString spokenResult() const override;
  [[nodiscard]] InstalledPackagesPtr inventory() const;
  void filter();

  PackageSearch search_;
  InstalledPackageListModel packages_;
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

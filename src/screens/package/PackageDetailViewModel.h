#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <optional>
#include <vector>

#include "catalog/HomebrewPackageSummary.h"
#include "guidance/InstalledPackageSummary.h"
#include "screens/package/PackageCommandListModel.h"
#include "screens/shared/PreviewCallback.h"

namespace quillmere {

/// One package, as the catalog and the local inventory know it at the moment. Owned by
/// `ContentViewModel`, which makes one for each package that is opened and keeps it up to date. UI
/// thread only.
class PackageDetailViewModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the main window's view model")
  Q_PROPERTY(QString name READ name CONSTANT)
  Q_PROPERTY(QString kindText READ kindText CONSTANT)
  Q_PROPERTY(QString versionText READ versionText NOTIFY changed)
  Q_PROPERTY(QString descriptionText READ descriptionText NOTIFY changed)
  Q_PROPERTY(QString notListedText READ notListedText CONSTANT)
  Q_PROPERTY(QString latestKnownText READ latestKnownText NOTIFY changed)
  Q_PROPERTY(QString headVersionText READ headVersionText NOTIFY changed)
  Q_PROPERTY(QString homepageText READ homepageText NOTIFY changed)
  Q_PROPERTY(bool canOpenHomepage READ canOpenHomepage NOTIFY changed)
  Q_PROPERTY(QString homepageProblem READ homepageProblem NOTIFY homepageProblemChanged)
  Q_PROPERTY(QString licenseText READ licenseText NOTIFY changed)
  Q_PROPERTY(QString tapText READ tapText NOTIFY changed)
  Q_PROPERTY(bool isInstalled READ isInstalled NOTIFY changed)
  Q_PROPERTY(QString installedVersionText READ installedVersionText NOTIFY changed)
  Q_PROPERTY(QString localSourceText READ localSourceText NOTIFY changed)
  Q_PROPERTY(bool isFormula READ isFormula CONSTANT)
  Q_PROPERTY(QString detailTitle READ detailTitle CONSTANT)
  Q_PROPERTY(QString detailSymbolName READ detailSymbolName CONSTANT)
  Q_PROPERTY(QString detailText READ detailText NOTIFY listsChanged)
  Q_PROPERTY(QList<QString> detailItems READ detailItems NOTIFY listsChanged)
  Q_PROPERTY(bool canOpenDetailItems READ canOpenDetailItems NOTIFY changed)
  Q_PROPERTY(QString formulaProblem READ formulaProblem NOTIFY formulaProblemChanged)
  Q_PROPERTY(QString reverseDependencyText READ reverseDependencyText NOTIFY changed)
  Q_PROPERTY(QList<QString> reverseDependencyNames READ reverseDependencyNames NOTIFY listsChanged)
  Q_PROPERTY(QString catalogFreshnessText READ catalogFreshnessText NOTIFY changed)
  Q_PROPERTY(QString inventoryFreshnessText READ inventoryFreshnessText NOTIFY changed)
  Q_PROPERTY(QString rescanWarning READ rescanWarning NOTIFY changed)
  Q_PROPERTY(quillmere::PackageCommandListModel* commands READ commands CONSTANT)
  Q_PROPERTY(QString commandsText READ commandsText CONSTANT)

 public:
  using Clock = std::function<QDateTime()>;
  /// Hands an address to the desktop; returns whether somebody took it.
  using UrlOpener = std::function<bool(const QUrl&)>;

  struct Inputs {
    HomebrewPackageSummary package;
    std::optional<InstalledPackageSummary> installedPackage;
    /// Absent when unknown.
    std::optional<std::vector<SharedText>> reverseDependencyNames;
    /// Says why they are.
    QString reverseDependencyUnavailableText;
    std::optional<QDateTime> catalogLastRefreshDate;
    std::optional<QDateTime> localInventoryLastScanDate;
    /// Whether what a scan found is known, so that a package without a record is not installed.
    bool hasInventory = false;
    /// Whether there is a catalog that formulae can be looked up in.
    bool hasCatalog = false;
    /// Why what is said of the installed package may be out of date; empty otherwise.
    QString rescanWarning;
    /// The name of the section that it was opened in, for the history.
    QString sourceScreen;

    bool operator==(const Inputs&) const = default;
  };

  PackageDetailViewModel(Inputs inputs, PreviewCallback previewCallback,
                         Clock clock = &QDateTime::currentDateTimeUtc,
                         UrlOpener openUrl = &QDesktopServices::openUrl, QObject* parent = nullptr);

  [[nodiscard]] const Inputs& inputs() const { return inputs_; }

  /// Shows what has become known of the same package since.
  void update(Inputs inputs);

  [[nodiscard]] const QString& rescanWarning() const { return inputs_.rescanWarning; }

  [[nodiscard]] QString name() const;
  /// "Formula" or "Cask".
  [[nodiscard]] QString kindText() const;
  /// The catalog's version; empty where it has none.
  [[nodiscard]] QString versionText() const;
  [[nodiscard]] QString descriptionText() const;

  /// What stands where the metadata have no value.
  [[nodiscard]] static QString notListedText();
  // The metadata.
  [[nodiscard]] QString latestKnownText() const;
  [[nodiscard]] QString headVersionText() const;
  [[nodiscard]] QString homepageText() const;
  [[nodiscard]] QString licenseText() const;
  [[nodiscard]] QString tapText() const;

  /// Whether the homepage is one for a browser. A package may name any address, and some of them
  /// start other programs.
  [[nodiscard]] bool canOpenHomepage() const;

  /// Why the homepage did not open; empty while nothing is wrong.
  [[nodiscard]] QString homepageProblem() const { return homepageProblem_; }

  [[nodiscard]] bool isInstalled() const { return inputs_.installedPackage.has_value(); }

  [[nodiscard]] QString installedVersionText() const;
  [[nodiscard]] QString localSourceText() const;

  [[nodiscard]] bool isFormula() const;
  [[nodiscard]] QString detailTitle() const;
  [[nodiscard]] QString detailSymbolName() const;
  /// What is said in place of an empty list; empty above a list.
  [[nodiscard]] QString detailText() const;
  /// A formula's dependencies, a cask's artifacts.
  [[nodiscard]] QStringList detailItems() const;

  /// Whether choosing one of them can open it.
  [[nodiscard]] bool canOpenDetailItems() const { return isFormula() && inputs_.hasCatalog; }

  /// Why the formula that was chosen last did not open; empty while nothing is wrong.
  [[nodiscard]] QString formulaProblem() const { return formulaProblem_; }

  /// The formula of this name, which was wanted, is not in the loaded catalog.
  void reportUnknownFormula(const QString& name);

  /// What is said above the dependants, or in place of them.
  [[nodiscard]] QString reverseDependencyText() const;
  [[nodiscard]] QStringList reverseDependencyNames() const;

  [[nodiscard]] QString catalogFreshnessText() const;
  [[nodiscard]] QString inventoryFreshnessText() const;

  [[nodiscard]] PackageCommandListModel* commands() { return &commands_; }

  /// What is said above the commands, or in place of them.
  [[nodiscard]] QString commandsText() const;

  /// Does nothing where `canOpenHomepage` is false.
  Q_INVOKABLE void openHomepage();
  /// Asks for the preview of the command in this row of `commands`.
  Q_INVOKABLE void previewCommand(int row);

 Q_SIGNALS:
  void changed();
  /// The lists of other packages, which take longer to draw, have changed.
  void listsChanged();
  void homepageProblemChanged();
  void formulaProblemChanged();
  /// The user goes back to where the package was opened.
  void backRequested();
  /// The user chose a dependency or a dependant, which may or may not be in the loaded catalog.
  void formulaRequested(const QString& name);

 private:
  Inputs inputs_;
  PreviewCallback previewCallback_;
  Clock clock_;
  UrlOpener openUrl_;
  PackageCommandListModel commands_;
  QString homepageProblem_;
  QString formulaProblem_;
};

}  // namespace quillmere

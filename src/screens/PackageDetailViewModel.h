#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <optional>
#include <vector>

#include "catalog/HomebrewPackageSummary.h"
#include "guidance/InstalledPackageSummary.h"
#include "screens/PreviewRequest.h"

namespace quillmere {

/// One package, from the catalog or from the local inventory. Owned by `ContentViewModel`, which
/// makes one for each package that is opened. UI thread only.
class PackageDetailViewModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the main window's view model")

 public:
  using Clock = std::function<QDateTime()>;

  struct Inputs {
    HomebrewPackageSummary package;
    std::optional<InstalledPackageSummary> installedPackage;
    /// Absent when unknown.
    std::optional<std::vector<SharedText>> reverseDependencyNames;
    /// Says why they are.
    QString reverseDependencyUnavailableText;
    std::optional<QDateTime> catalogLastRefreshDate;
    std::optional<QDateTime> localInventoryLastScanDate;
    /// The name of the section that it was opened in, for the history.
    QString sourceScreen;
  };

  PackageDetailViewModel(Inputs inputs, PreviewRequest previewRequest,
                         Clock clock = &QDateTime::currentDateTimeUtc, QObject* parent = nullptr);

 Q_SIGNALS:
  /// The user goes back to where the package was opened.
  void backWanted();
  /// The user chose a dependency or a dependant, which may or may not be in the loaded catalog.
  void formulaWanted(const QString& name);

 private:
  Inputs inputs_;
  PreviewRequest previewRequest_;
  Clock clock_;
};

}  // namespace quillmere

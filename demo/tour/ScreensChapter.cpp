#include <QtGui/QGuiApplication>

#include <algorithm>

#include "demo/DemoPackages.h"
#include "demo/tour/Chapters.h"
#include "demo/tour/Stage.h"

namespace quillmere::demo {
namespace {

using namespace Qt::StringLiterals;

constexpr QSize usualSize(1200, 800);

void captureFirstStart(Stage& stage) {
  PrefixSelectionWorkflow& selection = *stage.content().prefixSelection();
  stage.takePicture(u"first-start"_s);
  selection.requestChooser();
  stage.takePicture(u"first-start-folder-chooser"_s);
  stage.press(Qt::Key_Escape);
  selection.choose(QUrl::fromLocalFile(stage.home().folder));
  stage.waitFor(u"first-start-no-prefix"_s, [&] { return selection.isRefused(); });
  stage.takePicture(u"first-start-no-prefix"_s);
  selection.acknowledgeRefusal();
  stage.content().finishOnboarding();
  stage.takePicture(u"dashboard-catalog-only"_s);
}

void captureWithoutPrefix(Stage& stage) {
  stage.show(AppSection::installed);
  stage.takePicture(u"installed-without-prefix"_s);
  stage.show(AppSection::updates);
  stage.takePicture(u"updates-without-prefix"_s);
  stage.show(AppSection::cleanup);
  stage.takePicture(u"cleanup-without-prefix"_s);
  stage.show(AppSection::history);
  stage.takePicture(u"history-empty"_s);
}

/// A download, which needs a network, and how it fails without one.
void captureDownload(Stage& stage) {
  FormulaCatalogViewModel& browse = *stage.content().browse();
  const CatalogInputs real = browse.inputs();
  CatalogInputs inputs = real;
  inputs.state.value = PackageCatalogState::Loading{u"Fetching Homebrew package metadata..."_s};
  browse.setInputs(inputs);
  stage.takePicture(u"browse-fetching"_s);
  inputs.receivedBytes = 12'400'000;
  inputs.expectedBytes = 31'200'000;
  browse.setInputs(inputs);
  stage.takePicture(u"browse-fetching-bytes"_s);
  browse.setInputs(real);
  stage.putCatalogAside(true);
  browse.fetchAll();
  stage.waitFor(u"browse-failed"_s,
                [&] { return browse.state() == FormulaCatalogViewModel::Failed; });
  stage.takePicture(u"browse-failed"_s);
  stage.putCatalogAside(false);
}

void search(Stage& stage, const QString& text, const QString& picture) {
  FormulaCatalogViewModel& browse = *stage.content().browse();
  browse.search()->setSearchText(text);
  stage.waitFor(picture, [&] { return !browse.isFiltering(); });
  stage.takePicture(picture);
}

void captureBrowse(Stage& stage) {
  FormulaCatalogViewModel& browse = *stage.content().browse();
  stage.show(AppSection::browse);
  stage.takePicture(u"browse-not-loaded"_s);
  captureDownload(stage);
  stage.loadCatalog(u"browse"_s);
  stage.takePicture(u"browse"_s);
  search(stage, u"json"_s, u"browse-search"_s);
  search(stage, u"no package is called so"_s, u"browse-no-match"_s);
  browse.search()->setPackageFilter(PackageCatalogFilter::casks);
  search(stage, QString(), u"browse-casks"_s);
  browse.search()->setPackageFilter(PackageCatalogFilter::all);
  stage.press(Qt::Key_F, Qt::ControlModifier);
  search(stage, QString(), u"browse-search-focused"_s);
  for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Down, Qt::Key_Down}) {
    stage.press(key);
  }
  stage.takePicture(u"browse-row-focused"_s);
}

/// The row of the list that shows this package; -1 while there is none.
int rowOf(const FormulaCatalogViewModel& browse, PackageListModel& packages, const QString& name) {
  for (int row = 0; !browse.isFiltering() && row < packages.rowCount(); ++row) {
    if (packages.package(row).name.toString() == name) {
      return row;
    }
  }
  return -1;
}

void openPackage(Stage& stage, const QString& name, const QString& nextPicture) {
  FormulaCatalogViewModel& browse = *stage.content().browse();
  browse.search()->setSearchText(name);
  const auto row = [&] { return rowOf(browse, *browse.packages(), name); };
  stage.waitFor(nextPicture, [&] { return row() >= 0; });
  browse.open(row());
}

void capturePackages(Stage& stage) {
  stage.show(AppSection::browse);
  const auto tell = [&stage](const QString& name, const QString& picture) {
    openPackage(stage, name, picture);
    stage.takePicture(picture);
    stage.scrollToEnd();
    stage.takePicture(picture + u"-end"_s);
    stage.content().details()->back();
  };
  tell(u"wget"_s, u"formula"_s);
  tell(u"ffmpeg"_s, u"formula-with-many-dependencies"_s);
  tell(u"openssl@3"_s, u"formula-with-many-dependants"_s);
  tell(u"Microsoft Visual Studio Code"_s, u"cask"_s);
  tell(u"head-only-bench"_s, u"formula-without-release"_s);
  stage.content().browse()->search()->setSearchText(QString());
}

void captureChoice(Stage& stage) {
  HomebrewPrefixSelectionViewModel& selection = *stage.content().settings()->prefixSelection();
  stage.show(AppSection::settings);
  stage.takePicture(u"settings-without-prefix"_s);
  selection.chooseFolder(QUrl::fromLocalFile(stage.home().folder));
  stage.takePicture(u"settings-prefix-refused"_s);
  selection.chooseFolder(stage.prefix());
  stage.waitFor(u"settings-prefix-selected"_s,
                [&] { return stage.store().selectedHomebrewPrefixPath().has_value(); });
  stage.takePicture(u"settings-prefix-selected"_s);
  stage.show(AppSection::dashboard);
  stage.takePicture(u"dashboard-not-scanned"_s);
}

/// The states of a scan, which is over before one sees it.
void captureScan(Stage& stage) {
  InstalledPackagesViewModel& installed = *stage.content().installed();
  const LocalInventoryInputs real = installed.inputs();
  for (const auto* const scene : {"scanning", "failed", "empty"}) {
    installed.setInputs(demoInventory(QLatin1StringView(scene), stage.prefix()));
    stage.takePicture(u"installed-"_s + QLatin1StringView(scene));
  }
  installed.setInputs(real);
}

void captureInstalled(Stage& stage) {
  InstalledPackagesViewModel& installed = *stage.content().installed();
  stage.show(AppSection::installed);
  stage.takePicture(u"installed-not-scanned"_s);
  captureScan(stage);
  stage.show(AppSection::updates);
  stage.takePicture(u"updates-not-scanned"_s);
  stage.show(AppSection::cleanup);
  stage.takePicture(u"cleanup-not-scanned"_s);
  stage.show(AppSection::installed);
  stage.scan(u"installed"_s);
  stage.takePicture(u"installed"_s);
  installed.search()->setSearchText(u"python"_s);
  stage.takePicture(u"installed-search"_s);
  installed.search()->setSearchText(u"nothing is called so"_s);
  stage.takePicture(u"installed-no-match"_s);
  installed.search()->setSearchText(QString());
  installed.search()->setPackageFilter(PackageCatalogFilter::casks);
  stage.takePicture(u"installed-casks"_s);
  installed.search()->setSearchText(u"curl"_s);
  installed.search()->setPackageFilter(PackageCatalogFilter::all);
  installed.open(0);
  stage.takePicture(u"installed-formula"_s);
  stage.scrollToEnd();
  stage.takePicture(u"installed-formula-end"_s);
  installed.search()->setSearchText(QString());
}

void captureGuidance(Stage& stage) {
  stage.show(AppSection::dashboard);
  stage.takePicture(u"dashboard"_s);
  stage.show(AppSection::updates);
  stage.takePicture(u"updates"_s);
  stage.scrollToEnd();
  stage.takePicture(u"updates-end"_s);
  stage.scrollToBeginning();
  UpdatesViewModel& updates = *stage.content().updates();
  const LocalInventoryInputs real = updates.inputs();
  for (const auto* const scene : {"scanning", "failed", "empty", "current", "review"}) {
    updates.setInputs(demoInventory(QLatin1StringView(scene), stage.prefix()));
    stage.takePicture(u"updates-"_s + QLatin1StringView(scene));
  }
  updates.setInputs(real);
  stage.show(AppSection::cleanup);
  stage.waitFor(u"cleanup"_s, [&] { return !stage.content().cleanup()->isMeasuringCache(); });
  stage.takePicture(u"cleanup"_s);
  stage.scrollToEnd();
  stage.takePicture(u"cleanup-end"_s);
  stage.scrollToBeginning();
  for (const auto* const scene : {"scanning", "failed", "current"}) {
    stage.content().cleanup()->setInputs(demoInventory(QLatin1StringView(scene), stage.prefix()));
    stage.takePicture(u"cleanup-"_s + QLatin1StringView(scene));
  }
  stage.content().cleanup()->setInputs(real);
  stage.show(AppSection::services);
  stage.takePicture(u"services"_s);
}

void captureStale(Stage& stage) {
  const QDateTime now = QDateTime::currentDateTimeUtc();
  const auto refreshed = stage.store().catalogLastRefreshDate();
  stage.store().setCatalogLastRefreshDate(now.addDays(-30));
  stage.store().setLocalInventoryLastScanDate(now.addDays(-2));
  stage.show(AppSection::dashboard);
  stage.takePicture(u"dashboard-stale"_s);
  stage.store().setCatalogLastRefreshDate(refreshed);
  stage.store().setLocalInventoryLastScanDate(now);
}

void captureSettingsWindow(Stage& stage) {
  stage.press(Qt::Key_Comma, Qt::ControlModifier);
  const auto isSettings = [](const QWindow* each) {
    return each->isVisible() && each->title() == u"Quillmere Settings"_s;
  };
  const auto windows = [] { return QGuiApplication::topLevelWindows(); };
  stage.waitFor(u"settings-window"_s, [&] { return std::ranges::any_of(windows(), isSettings); });
  const QWindowList all = windows();
  auto* const window = qobject_cast<QQuickWindow*>(*std::ranges::find_if(all, isSettings));
  stage.takePicture(*window, u"settings-window"_s);
  SettingsViewModel& settings = *stage.content().settingsWindow();
  settings.askClearHistory();
  stage.takePicture(*window, u"settings-window-confirmation"_s);
  settings.cancel();
  window->close();
}

void captureSettings(Stage& stage) {
  SettingsViewModel& settings = *stage.content().settings();
  stage.show(AppSection::settings);
  stage.takePicture(u"settings"_s);
  for (const QString& button :
       {u"Clear Metadata Cache"_s, u"Reset Onboarding"_s, u"Quillmere Support"_s}) {
    stage.focusOn(button);
    stage.takePicture(u"settings-"_s + button.section(u' ', -1).toLower());
  }
  stage.scrollToBeginning();
  const auto confirm = [&](void (SettingsViewModel::*ask)(), const QString& picture) {
    (settings.*ask)();
    stage.takePicture(picture);
    settings.cancel();
  };
  confirm(&SettingsViewModel::askResetPrefix, u"settings-reset-prefix"_s);
  confirm(&SettingsViewModel::askClearCacheMarkers, u"settings-clear-cache"_s);
  confirm(&SettingsViewModel::askClearHistory, u"settings-clear-history"_s);
  confirm(&SettingsViewModel::askResetOnboarding, u"settings-reset-onboarding"_s);
  captureSettingsWindow(stage);
}

}  // namespace

void captureScreens(Album& album) {
  Stage stage(album, DemoUser::newcomer, usualSize);
  captureFirstStart(stage);
  captureWithoutPrefix(stage);
  captureBrowse(stage);
  capturePackages(stage);
  captureChoice(stage);
  captureInstalled(stage);
  captureGuidance(stage);
  captureStale(stage);
  captureSettings(stage);
  stage.show(AppSection::aboutLegal);
  stage.takePicture(u"about"_s);
  stage.scrollToEnd();
  stage.takePicture(u"about-end"_s);
}

void captureBeginning(Album& album) {
  Stage stage(album, DemoUser::newcomer, usualSize);
  captureFirstStart(stage);
  stage.show(AppSection::browse);
  stage.loadCatalog(u"browse"_s);
  stage.takePicture(u"browse"_s);
  openPackage(stage, u"wget"_s, u"formula"_s);
  stage.takePicture(u"formula"_s);
}

}  // namespace quillmere::demo

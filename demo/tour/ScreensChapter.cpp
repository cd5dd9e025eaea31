#include <QtGui/QGuiApplication>

#include <algorithm>

#include "demo/DemoPackages.h"
#include "demo/tour/Chapters.h"
#include "demo/tour/Stage.h"

namespace quillmere::demo {
namespace {

using namespace Qt::StringLiterals;

constexpr QSize usualSize(1200, 800);

void tellFirstStart(Stage& stage) {
  PrefixSelectionWorkflow& selection = *stage.content().prefixSelection();
  stage.picture(u"first-start"_s);
  selection.begin();
  stage.picture(u"first-start-folder-chooser"_s);
  stage.press(Qt::Key_Escape);
  selection.choose(QUrl::fromLocalFile(stage.home().folder));
  stage.waitFor(u"first-start-no-prefix"_s, [&] { return selection.isRefused(); });
  stage.picture(u"first-start-no-prefix"_s);
  selection.acknowledge();
  stage.content().finishOnboarding();
  stage.picture(u"dashboard-catalog-only"_s);
}

void tellWithoutPrefix(Stage& stage) {
  stage.show(AppSection::installed);
  stage.picture(u"installed-without-prefix"_s);
  stage.show(AppSection::updates);
  stage.picture(u"updates-without-prefix"_s);
  stage.show(AppSection::cleanup);
  stage.picture(u"cleanup-without-prefix"_s);
  stage.show(AppSection::history);
  stage.picture(u"history-empty"_s);
}

/// A download, which needs a network, and how it fails without one.
void tellDownload(Stage& stage) {
  FormulaCatalogViewModel& browse = *stage.content().browse();
  const CatalogInputs real = browse.inputs();
  CatalogInputs inputs = real;
  inputs.state.value = PackageCatalogState::Loading{u"Fetching Homebrew package metadata..."_s};
  browse.setInputs(inputs);
  stage.picture(u"browse-fetching"_s);
  inputs.receivedBytes = 12'400'000;
  inputs.expectedBytes = 31'200'000;
  browse.setInputs(inputs);
  stage.picture(u"browse-fetching-bytes"_s);
  browse.setInputs(real);
  stage.putCatalogAside(true);
  browse.fetchAll();
  stage.waitFor(u"browse-failed"_s,
                [&] { return browse.state() == FormulaCatalogViewModel::Failed; });
  stage.picture(u"browse-failed"_s);
  stage.putCatalogAside(false);
}

void search(Stage& stage, const QString& text, const QString& picture) {
  FormulaCatalogViewModel& browse = *stage.content().browse();
  browse.search()->setSearchText(text);
  stage.waitFor(picture, [&] { return !browse.isFiltering(); });
  stage.picture(picture);
}

void tellBrowse(Stage& stage) {
  FormulaCatalogViewModel& browse = *stage.content().browse();
  stage.show(AppSection::browse);
  stage.picture(u"browse-not-loaded"_s);
  tellDownload(stage);
  stage.loadCatalog(u"browse"_s);
  stage.picture(u"browse"_s);
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
  stage.picture(u"browse-row-focused"_s);
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

void tellPackages(Stage& stage) {
  stage.show(AppSection::browse);
  const auto tell = [&stage](const QString& name, const QString& picture) {
    openPackage(stage, name, picture);
    stage.picture(picture);
    stage.scrollToEnd();
    stage.picture(picture + u"-end"_s);
    stage.content().details()->back();
  };
  tell(u"wget"_s, u"formula"_s);
  tell(u"ffmpeg"_s, u"formula-with-many-dependencies"_s);
  tell(u"openssl@3"_s, u"formula-with-many-dependants"_s);
  tell(u"Microsoft Visual Studio Code"_s, u"cask"_s);
  tell(u"head-only-bench"_s, u"formula-without-release"_s);
  stage.content().browse()->search()->setSearchText(QString());
}

void tellChoice(Stage& stage) {
  HomebrewPrefixSelectionViewModel& selection = *stage.content().settings()->prefixSelection();
  stage.show(AppSection::settings);
  stage.picture(u"settings-without-prefix"_s);
  selection.chooseFolder(QUrl::fromLocalFile(stage.home().folder));
  stage.picture(u"settings-prefix-refused"_s);
  selection.chooseFolder(stage.prefix());
  stage.waitFor(u"settings-prefix-selected"_s,
                [&] { return stage.store().selectedHomebrewPrefixPath().has_value(); });
  stage.picture(u"settings-prefix-selected"_s);
  stage.show(AppSection::dashboard);
  stage.picture(u"dashboard-not-scanned"_s);
}

/// The states of a scan, which is over before one sees it.
void tellScan(Stage& stage) {
  InstalledPackagesViewModel& installed = *stage.content().installed();
  const LocalInventoryInputs real = installed.inputs();
  for (const auto* const scene : {"scanning", "failed", "empty"}) {
    installed.setInputs(demoInventory(QLatin1StringView(scene), stage.prefix()));
    stage.picture(u"installed-"_s + QLatin1StringView(scene));
  }
  installed.setInputs(real);
}

void tellInstalled(Stage& stage) {
  InstalledPackagesViewModel& installed = *stage.content().installed();
  stage.show(AppSection::installed);
  stage.picture(u"installed-not-scanned"_s);
  tellScan(stage);
  stage.show(AppSection::updates);
  stage.picture(u"updates-not-scanned"_s);
  stage.show(AppSection::cleanup);
  stage.picture(u"cleanup-not-scanned"_s);
  stage.show(AppSection::installed);
  stage.scan(u"installed"_s);
  stage.picture(u"installed"_s);
  installed.search()->setSearchText(u"python"_s);
  stage.picture(u"installed-search"_s);
  installed.search()->setSearchText(u"nothing is called so"_s);
  stage.picture(u"installed-no-match"_s);
  installed.search()->setSearchText(QString());
  installed.search()->setPackageFilter(PackageCatalogFilter::casks);
  stage.picture(u"installed-casks"_s);
  installed.search()->setSearchText(u"curl"_s);
  installed.search()->setPackageFilter(PackageCatalogFilter::all);
  installed.open(0);
  stage.picture(u"installed-formula"_s);
  stage.scrollToEnd();
  stage.picture(u"installed-formula-end"_s);
  installed.search()->setSearchText(QString());
}

void tellGuidance(Stage& stage) {
  stage.show(AppSection::dashboard);
  stage.picture(u"dashboard"_s);
  stage.show(AppSection::updates);
  stage.picture(u"updates"_s);
  stage.scrollToEnd();
  stage.picture(u"updates-end"_s);
  stage.scrollToBeginning();
  UpdatesViewModel& updates = *stage.content().updates();
  const LocalInventoryInputs real = updates.inputs();
  for (const auto* const scene : {"scanning", "failed", "empty", "current", "review"}) {
    updates.setInputs(demoInventory(QLatin1StringView(scene), stage.prefix()));
    stage.picture(u"updates-"_s + QLatin1StringView(scene));
  }
  updates.setInputs(real);
  stage.show(AppSection::cleanup);
  stage.waitFor(u"cleanup"_s, [&] { return !stage.content().cleanup()->isMeasuringCache(); });
  stage.picture(u"cleanup"_s);
  stage.scrollToEnd();
  stage.picture(u"cleanup-end"_s);
  stage.scrollToBeginning();
  for (const auto* const scene : {"scanning", "failed", "current"}) {
    stage.content().cleanup()->setInputs(demoInventory(QLatin1StringView(scene), stage.prefix()));
    stage.picture(u"cleanup-"_s + QLatin1StringView(scene));
  }
  stage.content().cleanup()->setInputs(real);
  stage.show(AppSection::services);
  stage.picture(u"services"_s);
}

void tellStale(Stage& stage) {
  const QDateTime now = QDateTime::currentDateTimeUtc();
  const auto refreshed = stage.store().catalogLastRefreshDate();
  stage.store().setCatalogLastRefreshDate(now.addDays(-30));
  stage.store().setLocalInventoryLastScanDate(now.addDays(-2));
  stage.show(AppSection::dashboard);
  stage.picture(u"dashboard-stale"_s);
  stage.store().setCatalogLastRefreshDate(refreshed);
  stage.store().setLocalInventoryLastScanDate(now);
}

void tellSettingsWindow(Stage& stage) {
  stage.press(Qt::Key_Comma, Qt::ControlModifier);
  const auto isSettings = [](const QWindow* each) {
    return each->isVisible() && each->title() == u"Quillmere Settings"_s;
  };
  const auto windows = [] { return QGuiApplication::topLevelWindows(); };
  stage.waitFor(u"settings-window"_s, [&] { return std::ranges::any_of(windows(), isSettings); });
  const QWindowList all = windows();
  auto* const window = qobject_cast<QQuickWindow*>(*std::ranges::find_if(all, isSettings));
  stage.picture(*window, u"settings-window"_s);
  SettingsViewModel& settings = *stage.content().settingsWindow();
  settings.askClearHistory();
  stage.picture(*window, u"settings-window-confirmation"_s);
  settings.cancel();
  window->close();
}

void tellSettings(Stage& stage) {
  SettingsViewModel& settings = *stage.content().settings();
  stage.show(AppSection::settings);
  stage.picture(u"settings"_s);
  for (const QString& button :
       {u"Clear Metadata Cache"_s, u"Reset Onboarding"_s, u"Quillmere Support"_s}) {
    stage.focusOn(button);
    stage.picture(u"settings-"_s + button.section(u' ', -1).toLower());
  }
  stage.scrollToBeginning();
  const auto confirm = [&](void (SettingsViewModel::*ask)(), const QString& picture) {
    (settings.*ask)();
    stage.picture(picture);
    settings.cancel();
  };
  confirm(&SettingsViewModel::askResetPrefix, u"settings-reset-prefix"_s);
  confirm(&SettingsViewModel::askClearCacheMarkers, u"settings-clear-cache"_s);
  confirm(&SettingsViewModel::askClearHistory, u"settings-clear-history"_s);
  confirm(&SettingsViewModel::askResetOnboarding, u"settings-reset-onboarding"_s);
  tellSettingsWindow(stage);
}

}  // namespace

void tellScreens(Album& album) {
  Stage stage(album, Visitor::newcomer, usualSize);
  tellFirstStart(stage);
  tellWithoutPrefix(stage);
  tellBrowse(stage);
  tellPackages(stage);
  tellChoice(stage);
  tellInstalled(stage);
  tellGuidance(stage);
  tellStale(stage);
  tellSettings(stage);
  stage.show(AppSection::aboutLegal);
  stage.picture(u"about"_s);
  stage.scrollToEnd();
  stage.picture(u"about-end"_s);
}

void tellBeginning(Album& album) {
  Stage stage(album, Visitor::newcomer, usualSize);
  tellFirstStart(stage);
  stage.show(AppSection::browse);
  stage.loadCatalog(u"browse"_s);
  stage.picture(u"browse"_s);
  openPackage(stage, u"wget"_s, u"formula"_s);
  stage.picture(u"formula"_s);
}

}  // namespace quillmere::demo

// Draws the real window in light and dark, at the smallest and at a large size, into a folder, so
// that the look can be looked at and the pictures of the documentation can be made again.
//   screenshots FOLDER        every state, in both themes and sizes
//   screenshots packages FOLDER [DATA]
//                             the lists of packages alone; DATA holds the real formula.json and
//                             cask.json, without it the catalog is a generated one
//   screenshots preview FILE  the picture of the README

#include <QtCore/QDir>
#include <QtCore/QTimer>
#include <QtGui/QGuiApplication>
#include <QtGui/QPalette>
#include <QtQml/QQmlApplicationEngine>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>
#include <QtTest/QTest>

#include <algorithm>
#include <cstdlib>

#include "InventoryScreenshots.h"
#include "PackageScreenshots.h"
#include "app/ContentViewModel.h"
#include "app/QuillmereApp.h"
#include "app/WindowMemory.h"
#include "commands/BrewCommandBuilder.h"
#include "execution/DirectCommandRunner.h"
#include "persistence/LocalPersistenceStore.h"
#include "support/DemoPrefix.h"
#include "support/FakeBrew.h"
#include "support/HeldFileSystem.h"
#include "support/TemporarySettings.h"

namespace {

using namespace quillmere;

constexpr int settleMilliseconds = 350;
constexpr int runMilliseconds = 30'000;

QPalette palette(bool dark) {
  return dark ? QPalette(QColor(0x22, 0x23, 0x27)) : QPalette(QColor(0xf0, 0xf0, 0xf0));
}

/// A history in which every kind of row occurs.
void fillHistory(LocalPersistenceStore& store) {
  const BrewCommandBuilder builder;
  const QDateTime now = QDateTime::currentDateTimeUtc();
  const auto run = [&store, now](const BrewCommand& command, const QString& screen, int minutesAgo,
                                 int exitCode, bool cancelled) {
    CommandHistoryRecord record = copyRecord(command, screen, now.addSecs(-60 * minutesAgo));
    record.copied = false;
    record.executed = true;
    record.executionEndedAt = record.copiedAt;
    record.executionExitCode = exitCode;
    record.executionCancelled = cancelled;
    if (exitCode == 1) {
      record.executionOutputSummary =
          QStringLiteral("Error: openssl@3 3.3.2 is already installed\nTo upgrade, run again.");
    }
    store.appendHistory(record);
  };
  run(builder
          .upgrade(BrewCommandTarget{BrewCommandTargetKind::formula, QStringLiteral("openssl@3")})
          .value(),
      QStringLiteral("Updates"), 2900, 1, false);
  run(builder.install(BrewCommandTarget{BrewCommandTargetKind::cask, QStringLiteral("firefox")})
          .value(),
      QStringLiteral("Browse"), 1500, 143, true);
  store.appendHistory(copyRecord(builder.cleanup(), QStringLiteral("Cleanup"), now.addSecs(-7200)));
  run(builder.servicesList(), QStringLiteral("Services"), 12, 0, false);
  store.appendHistory(copyRecord(builder.servicesList(), QStringLiteral("Services"), now));
}

/// A brew that does not end when it is asked to, but when a file "release" appears in its prefix.
QByteArray stubbornBrewScript() {
  return "#!/bin/sh\ntrap '' TERM\ncd \"${0%/*}/..\"\necho '==> Fetching'\n"
         "while [ -e bin/brew ] && [ ! -e release ]; do sleep 0.05; done\n";
}

/// A brew with much to say, in long lines and in a script that runs from right to left.
QByteArray talkativeBrewScript() {
  return "#!/bin/sh\nseq -f '==> Installed line %g' 10000\n"
         "printf '\\327\\251\\327\\234\\327\\225\\327\\235 (installed)\\n'\n"
         "for i in 1 2 3 4 5 6 7 8 9; do printf 'Warning: a long line without an end; '; done\n"
         "exit 1\n";
}

/// One window over a world of its own.
class Stage {
 public:
  Stage(QDir folder, QString name, QSize size)
      : folder_(std::move(folder)),
        name_(std::move(name)),
        store_(settings_.open(), settings_.cacheDirectoryURL()),
        memory_(settings_.open()),
        content_(store_, AppCapabilities::all(), std::make_shared<DirectCommandRunner>(),
                 CatalogWorkflows::Clients(), BrewExecutableResolver(disk_)) {
    disk_->released.release();
    store_.setHasCompletedOnboarding(true);
    prefix_.withBrew(test::fakeBrewScript()).withAllLocations();
    engine_.addImportPath(QStringLiteral("qrc:/qt/qml"));
    engine_.setInitialProperties({{QStringLiteral("content"), QVariant::fromValue(&content_)},
                                  {QStringLiteral("memory"), QVariant::fromValue(&memory_)}});
    engine_.load(QUrl(QStringLiteral("qrc:/qt/qml/Quillmere/App/MainWindow.qml")));
    window()->resize(size);
  }

  void drawPreview(const QString& file) {
    content_.select(AppSection::services);
    content_.openPreview(BrewCommandBuilder().servicesList(), QStringLiteral("Services"));
    save(*window(), file);
  }

  void drawAll() {
    drawFirstSteps();
    drawDashboards();
    content_.select(AppSection::aboutLegal);
    draw(QStringLiteral("about"));
    content_.select(AppSection::history);
    draw(QStringLiteral("history-empty"));
    content_.select(AppSection::settings);
    draw(QStringLiteral("settings-none"));
    content_.settings()->prefixSelection()->chooseFolder(QUrl::fromLocalFile(QDir::rootPath()));
    draw(QStringLiteral("settings-refused"));
    content_.settings()->prefixSelection()->chooseFolder(prefix_.url());
    draw(QStringLiteral("settings-chosen"));
    content_.settings()->askResetPrefix();
    draw(QStringLiteral("settings-confirmation"));
    content_.settings()->cancel();
    drawSettingsWindow();
    drawSettingsSections();
    content_.select(AppSection::services);
    draw(QStringLiteral("services"));
    fillHistory(store_);
    content_.select(AppSection::history);
    draw(QStringLiteral("history"));
    content_.history()->askClear();
    draw(QStringLiteral("history-confirmation"));
    content_.history()->cancelClear();
    content_.history()->setSearchText(QStringLiteral("not executed"));
    draw(QStringLiteral("history-found"));
    content_.history()->setSearchText(QStringLiteral("nothing like it"));
    draw(QStringLiteral("history-no-match"));
    content_.history()->clearSearch();
    test::drawInventoryScreens(
        content_, prefix_,
        [this](Qt::Key key, Qt::KeyboardModifiers modifiers) { pressKey(key, modifiers); },
        [this](const QString& what) { draw(what); });
    content_.select(AppSection::services);
    drawPreviews();
    drawPackages(QString());
  }

  void drawPackages(const QString& data) {
    activate();
    test::drawPackageScreens(*window(), content_, data,
                             [this](const QString& what) { draw(what); });
  }

 private:
  void drawFirstSteps() {
    store_.resetOnboarding();
    draw(QStringLiteral("onboarding"));
    content_.prefixSelection()->choose(QUrl::fromLocalFile(QDir::rootPath()));
    waitFor([this] { return content_.prefixSelection()->isRefused(); });
    draw(QStringLiteral("onboarding-refused"));
    content_.prefixSelection()->acknowledge();
    content_.finishOnboarding();
  }

  void drawDashboards() {
    const QDateTime now = QDateTime::currentDateTimeUtc();
    draw(QStringLiteral("dashboard-new"));
    store_.selectPrefix(prefix_.url());
    draw(QStringLiteral("dashboard-prefix"));
    store_.setCatalogLastRefreshDate(now.addDays(-3));
    store_.setLocalInventoryLastScanDate(now.addSecs(-7200));
    draw(QStringLiteral("dashboard-fresh"));
    store_.setCatalogLastRefreshDate(now.addDays(-30));
    store_.setLocalInventoryLastScanDate(now.addDays(-2));
    draw(QStringLiteral("dashboard-stale"));
    store_.clearCacheMarkers();
    store_.resetPrefix();
  }

  /// The sections below the first, which scrolls away.
  void drawSettingsSections() {
    store_.setCatalogLastRefreshDate(QDateTime::currentDateTimeUtc());
    for (const QString& what :
         {QStringLiteral("Clear Metadata Cache"), QStringLiteral("Reset Onboarding"),
          QStringLiteral("Quillmere Support")}) {
      focusOn(what, window()->contentItem());
      draw(QStringLiteral("settings-") + what.section(u' ', -1).toLower());
    }
    content_.settings()->askClearCacheMarkers();
    draw(QStringLiteral("settings-clear-question"));
    content_.settings()->cancel();
  }

  /// Gives the keyboard to the button with this text, which brings it into view.
  static void focusOn(const QString& text, QQuickItem* from) {
    if (from->isVisible() && from->inherits("QQuickAbstractButton") &&
        from->property("text").toString() == text) {
      from->forceActiveFocus(Qt::TabFocusReason);
      return;
    }
    for (QQuickItem* const child : from->childItems()) {
      focusOn(text, child);
    }
  }

  [[nodiscard]] QQuickWindow* window() const {
    return qobject_cast<QQuickWindow*>(engine_.rootObjects().constFirst());
  }

  void pressKey(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
    activate();
    QTest::keyClick(window(), key, modifiers);
  }

  void drawPreviews() {
    const BrewCommandBuilder builder;
    const BrewCommandTarget wget{BrewCommandTargetKind::formula, QStringLiteral("wget")};
    content_.openPreview(builder.uninstall(wget).value(), QStringLiteral("Installed"));
    draw(QStringLiteral("preview-only"));
    content_.preview()->close();
    content_.openPreview(builder.upgrade(std::nullopt).value(), QStringLiteral("Updates"));
    draw(QStringLiteral("preview"));
    content_.preview()->copy();
    draw(QStringLiteral("preview-copied"));
    content_.preview()->run();
    draw(QStringLiteral("preview-confirmation"));
    content_.preview()->confirmRun();
    draw(QStringLiteral("session-running"));
    finishRun(QStringLiteral("session-finished"));
    content_.openPreview(builder.doctor(), QStringLiteral("Dashboard"));
    content_.preview()->run();
    finishRun(QStringLiteral("session-failed"));
    drawStartup();
    drawCancellation();
    drawLongTexts();
    store_.resetPrefix();
    content_.openPreview(builder.servicesList(), QStringLiteral("Services"));
    content_.preview()->run();
    draw(QStringLiteral("preview-refused"));
  }

  void drawStartup() {
    disk_->released.acquire();
    content_.openPreview(BrewCommandBuilder().servicesList(), QStringLiteral("Services"));
    content_.preview()->run();
    draw(QStringLiteral("startup"));
    showStartupDiagnostics(window()->contentItem());
    draw(QStringLiteral("startup-diagnostics"));
    content_.preview()->close();
    disk_->released.release();
  }

  static void showStartupDiagnostics(QQuickItem* from) {
    if (from->property("showsDiagnostics").isValid()) {
      from->setProperty("showsDiagnostics", true);
      return;
    }
    for (QQuickItem* const child : from->childItems()) {
      showStartupDiagnostics(child);
    }
  }

  void drawCancellation() {
    prefix_.withBrew(stubbornBrewScript());
    content_.openPreview(BrewCommandBuilder().update(), QStringLiteral("Updates"));
    content_.preview()->run();
    content_.preview()->confirmRun();
    waitFor([this] { return content_.preview()->isRunning(); });
    draw(QStringLiteral("session-started"));
    window()->close();
    draw(QStringLiteral("quit-question"));
    content_.quitGuard()->quit();
    draw(QStringLiteral("session-cancelling"));
    content_.preview()->session()->setShowsRawOutput(true);
    draw(QStringLiteral("session-cancelling-raw"));
    window()->close();
    draw(QStringLiteral("quit-without-waiting"));
    content_.quitGuard()->stay();
    prefix_.withFile(QStringLiteral("release"));
    waitFor([this] { return !content_.preview()->isRunning(); });
    content_.preview()->close();
  }

  void drawLongTexts() {
    prefix_.withBrew(talkativeBrewScript());
    const BrewCommandTarget target{BrewCommandTargetKind::formula, QString(120, u'w')};
    content_.openPreview(BrewCommandBuilder().install(target).value(), QStringLiteral("Browse"));
    draw(QStringLiteral("long-preview"));
    content_.preview()->run();
    draw(QStringLiteral("long-confirmation"));
    content_.preview()->confirmRun();
    waitFor([this] { return content_.preview()->isRunning(); });
    finishRun(QStringLiteral("long-session"));
    content_.select(AppSection::history);
    draw(QStringLiteral("long-history"));
    content_.select(AppSection::services);
  }

  void drawSettingsWindow() {
    activate();
    QTest::keyClick(window(), Qt::Key_Comma, Qt::ControlModifier);
    const auto isSettings = [](const QWindow* each) {
      return each->isVisible() && each->title() == QStringLiteral("Quillmere Settings");
    };
    const QWindowList windows = QGuiApplication::topLevelWindows();
    const auto found = std::ranges::find_if(windows, isSettings);
    if (found == windows.end()) {
      qFatal("The settings window does not open");
    }
    draw(*qobject_cast<QQuickWindow*>(*found), QStringLiteral("settings-window"));
    (*found)->close();
    activate();
  }

  void activate() const {
    window()->requestActivate();
    waitFor([this] { return window()->isActive(); });
  }

  template <typename Question>
  static void waitFor(Question question) {
    if (!QTest::qWaitFor(question, runMilliseconds)) {
      qFatal("The demo command does not go on");
    }
  }

  void finishRun(const QString& what) {
    waitFor([this] { return content_.preview()->session() && !content_.preview()->isRunning(); });
    draw(what);
    content_.preview()->session()->setShowsRawOutput(true);
    draw(what + QStringLiteral("-raw"));
    content_.preview()->close();
  }

  void draw(const QString& what) const { draw(*window(), what); }

  void draw(QQuickWindow& each, const QString& what) const {
    save(each, folder_.filePath(name_ + u'-' + what + QStringLiteral(".png")));
  }

  static void save(QQuickWindow& window, const QString& file) {
    QTest::qWait(settleMilliseconds);
    if (!window.grabWindow().save(file)) {
      qFatal("Cannot write %s", qUtf8Printable(file));
    }
  }

  QDir folder_;
  QString name_;
  test::TemporarySettings settings_;
  test::DemoPrefix prefix_;
  std::shared_ptr<test::HeldFileSystem> disk_ = std::make_shared<test::HeldFileSystem>();
  LocalPersistenceStore store_;
  WindowMemory memory_;
  ContentViewModel content_;
  QQmlApplicationEngine engine_;
};

}  // namespace

int main(int argc, char** argv) {
  QuillmereApp::prepare();
  const QGuiApplication application(argc, argv);
  const QStringList arguments = QGuiApplication::arguments();
  if (arguments.size() == 3 && arguments.at(1) == QStringLiteral("preview")) {
    QGuiApplication::setPalette(palette(false));
    Stage(QDir(), QString(), QSize(1200, 800)).drawPreview(arguments.at(2));
    return EXIT_SUCCESS;
  }
  const bool packages = arguments.size() >= 3 && arguments.at(1) == QStringLiteral("packages");
  if (arguments.size() != 2 && !packages) {
    qWarning("usage: screenshots FOLDER | packages FOLDER [DATA] | preview FILE");
    return 2;
  }
  const QDir folder(arguments.at(packages ? 2 : 1));
  const auto drawAt = [&](const QString& name, QSize size) {
    Stage stage(folder, name, size);
    if (packages) {
      stage.drawPackages(arguments.value(3));
    } else {
      stage.drawAll();
    }
  };
  for (const bool dark : {false, true}) {
    QGuiApplication::setPalette(palette(dark));
    const QString theme = dark ? QStringLiteral("dark") : QStringLiteral("light");
    drawAt(theme + QStringLiteral("-small"), QSize(900, 600));
    drawAt(theme + QStringLiteral("-large"), QSize(1600, 1000));
  }
  return EXIT_SUCCESS;
}

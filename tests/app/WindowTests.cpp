// Drives the real window on the offscreen platform: the tst_ files ask, the stage answers.

#include <QtCore/QDirIterator>
#include <QtCore/QStringList>
#include <QtGui/QClipboard>
#include <QtGui/QDesktopServices>
#include <QtGui/QGuiApplication>
#include <QtNetwork/QNetworkAccessManager>
#include <QtQml/QQmlContext>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickWindow>
#include <QtQuickTest/quicktest.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>

#include "app/ContentViewModel.h"
#include "app/QuillmereApp.h"
#include "app/WindowGeometry.h"
#include "commands/BrewCommandBuilder.h"
#include "demo/DemoPackages.h"
#include "demo/SampleCatalog.h"
#include "execution/DirectCommandRunner.h"
#include "persistence/LocalPersistenceStore.h"
#include "support/BackgroundThreadBlocker.h"
#include "support/BlockingFileSystem.h"
#include "support/CatalogServer.h"
#include "support/FakeBrew.h"
#include "support/GeneratedCatalog.h"
#include "support/HoneypotServer.h"
#include "support/HostileCatalog.h"
#include "support/TemporarySettings.h"
#include "support/TestPrefix.h"

namespace {

using namespace quillmere;

const QByteArray formulaPath = QByteArrayLiteral("/formula.json");
const QByteArray caskPath = QByteArrayLiteral("/cask.json");

/// A world of a test's own: settings, a demo prefix, and the window's view models over them.
struct World {
  World() {
    store.setHasCompletedOnboarding(true);
    prefix.withBrew(test::fakeBrewScript()).withAllLocations();
    disk->released.release();
  }

  /// An answer that is still waited for must come before the test ends.
  ~World() { disk->released.release(); }

  test::TemporarySettings settings;
  test::TestPrefix prefix;
  test::TestPrefix emptyFolder;
  std::shared_ptr<test::BlockingFileSystem> disk = std::make_shared<test::BlockingFileSystem>();
  LocalPersistenceStore store{settings.open(), settings.cacheDirectoryURL()};
  WindowGeometry geometry{settings.open()};
  /// Answers that nothing is there, until it is told otherwise.
  test::CatalogServer server;
  test::HoneypotServer bait;
  QNetworkAccessManager session;
  std::optional<test::BackgroundThreadBlocker> heldThreads;
  ContentViewModel content{store, AppCapabilities::all(), std::make_shared<DirectCommandRunner>(),
                           CatalogWorkflows::Clients{
                               .formulae = {.apiURL = server.url(formulaPath), .session = &session},
                               .casks = {.apiURL = server.url(caskPath), .session = &session}},
                           BrewExecutableResolver(disk)};
};

/// What the test may ask of the world; reaches QML as `stage`. Between two tests there is no world,
/// and QML may look all the same: the bindings of the next test are made then.
class Stage : public QObject {
  Q_OBJECT
  Q_PROPERTY(quillmere::ContentViewModel* content READ content NOTIFY worldChanged)
  Q_PROPERTY(quillmere::WindowGeometry* geometry READ geometry NOTIFY worldChanged)
  Q_PROPERTY(QUrl prefix READ prefix NOTIFY worldChanged)
  Q_PROPERTY(QUrl emptyFolder READ emptyFolder NOTIFY worldChanged)
  Q_PROPERTY(QUrl openedUrl READ openedUrl)
  Q_PROPERTY(QUrl bait READ bait)
  Q_PROPERTY(int baitVisits READ baitVisits)
  Q_PROPERTY(QString wantedFormula READ wantedFormula)

 public:
  [[nodiscard]] ContentViewModel* content() { return world_ ? &world_->content : nullptr; }

  [[nodiscard]] WindowGeometry* geometry() { return world_ ? &world_->geometry : nullptr; }

  [[nodiscard]] QUrl prefix() const { return world_ ? world_->prefix.url() : QUrl(); }

  [[nodiscard]] QUrl emptyFolder() const { return world_ ? world_->emptyFolder.url() : QUrl(); }

  Q_INVOKABLE void makeWorld() {
    world_ = std::make_unique<World>();
    openedUrl_.clear();
    wantedFormula_.clear();
    browserAnswers_ = true;
    Q_EMIT worldChanged();
  }

  /// Whoever looks at the world looks away before it goes.
  Q_INVOKABLE void endWorld() {
    QDesktopServices::unsetUrlHandler(QStringLiteral("https"));
    const std::unique_ptr<World> ended = std::move(world_);
    Q_EMIT worldChanged();
  }

  Q_INVOKABLE void selectPrefix() { world_->store.selectPrefix(prefix()); }

  Q_INVOKABLE void resetPrefix() { world_->store.resetPrefix(); }

  Q_INVOKABLE void selectEmptyFolder() { world_->store.selectPrefix(emptyFolder()); }

  /// From now on, the server has a small catalog.
  Q_INVOKABLE void serveCatalog() {
    world_->server.answer(formulaPath, {.body = demo::sampleFormulaDocument()});
    world_->server.answer(caskPath, {.body = demo::sampleCaskDocument()});
  }

  /// From now on, the server begins with an answer and does not go on.
  Q_INVOKABLE void stallCatalog() {
    world_->server.answer(
        formulaPath,
        {.body = QByteArray(2000, ' '), .bodyBytes = 500, .ending = test::Answer::Ending::silence});
  }

  [[nodiscard]] QUrl bait() const { return world_->bait.url(); }

  [[nodiscard]] int baitVisits() const { return world_->bait.visits(); }

  /// From now on, the server has the worst of catalogs.
  Q_INVOKABLE void serveHostileCatalog() {
    world_->server.answer(formulaPath, {.body = hostileFormulaDocument(bait())});
    world_->server.answer(caskPath, {.body = hostileCaskDocument(bait())});
  }

  Q_INVOKABLE void addHostileHistory() {
    for (const QString& text : hostileTexts(bait()) + hostileFolderNames()) {
      const BrewCommand command{.commandText = "brew info " + text,
                                .target = {BrewCommandTargetKind::formula, text}};
      world_->store.appendHistory(
          makeCopyRecord(command, QStringLiteral("<b>bold</b>"), QDateTime::currentDateTimeUtc()));
    }
  }

  /// Installs packages with names that a file system takes.
  Q_INVOKABLE void makeHostileFolders() {
    for (const QString& name : hostileFolderNames()) {
      for (const QString& version : {"1.0" + name.left(100), name + "2.0"}) {
        world_->prefix.withFolder("Cellar/" + name + "/" + version.left(255));
      }
    }
  }

  /// Fills the cache, in a moment.
  Q_INVOKABLE void cacheFormulae() {
    world_->store.saveFormulaCatalog(demo::sampleFormulaDocument(),
                                     QDateTime::currentDateTimeUtc());
  }

  Q_INVOKABLE void cacheCasks() {
    world_->store.saveCaskCatalog(demo::sampleCaskDocument(), QDateTime::currentDateTimeUtc());
  }

  /// Shows a catalog of so many formulae and no cask, as if it had been loaded.
  Q_INVOKABLE void showCatalogOf(int formulae) {
    world_->content.browse()->setInputs(
        demo::loadedCatalog({.formulae = generatedFormulaDocument(formulae), .casks = "[]"}));
  }

  /// Shows an inventory of the demo packages, as if it had been scanned.
  Q_INVOKABLE void showInventory() {
    world_->content.installed()->setInputs(demo::scannedInventory());
  }

  Q_INVOKABLE void failScan() {
    LocalInventoryInputs inputs = world_->content.installed()->inputs();
    inputs.state.value =
        InstalledPackagesState::Failed{QStringLiteral("Local inventory could not be scanned: No.")};
    world_->content.installed()->setInputs(inputs);
  }

  /// So many packages of so many have been scanned, as if a scan were under way.
  Q_INVOKABLE void showScan(int scanned, int known) {
    LocalInventoryInputs inputs = world_->content.installed()->inputs();
    inputs.state.value = InstalledPackagesState::Loading{};
    inputs.scannedPackages = scanned;
    inputs.totalPackages = known;
    world_->content.installed()->setInputs(inputs);
  }

  /// Nothing in the background is answered until it is let go.
  Q_INVOKABLE void holdThreads() { world_->heldThreads.emplace(); }

  Q_INVOKABLE void releaseThreads() { world_->heldThreads.reset(); }

  /// From now on, another brew works on whatever is asked for.
  Q_INVOKABLE void lockPackages() {
    world_->prefix.withBrew(
        "#!/bin/sh\necho 'Error: A `brew upgrade` process has already locked wget.' >&2\nexit 1\n");
  }

  /// From now on, brew has something to say to its user.
  Q_INVOKABLE void printCaveats() {
    world_->prefix.withBrew(
        "#!/bin/sh\necho '==> Caveats'\necho 'To start it:'\necho '  brew services start it'\n");
  }

  /// From now on, brew does not end when it is asked to, but only when it is released.
  Q_INVOKABLE void ignoreRequestsToEnd() {
    world_->prefix.withBrew(
        "#!/bin/sh\ntrap '' TERM\ncd \"${0%/*}/..\"\necho '==> Fetching'\n"
        "while [ -e bin/brew ] && [ ! -e release ]; do sleep 0.05; done\n");
  }

  /// From now on, the disk does not answer.
  Q_INVOKABLE void holdDisk() { world_->disk->released.acquire(); }

  Q_INVOKABLE void release() { world_->prefix.withFile(QStringLiteral("release")); }

  Q_INVOKABLE bool hasPrefix() const {
    return world_->store.selectedHomebrewPrefixPath().has_value();
  }

  Q_INVOKABLE int historyCount() const {
    return static_cast<int>(world_->store.commandHistory().size());
  }

  Q_INVOKABLE void addToHistory() {
    world_->store.appendHistory(makeCopyRecord(BrewCommandBuilder().cleanup(),
                                               QStringLiteral("Cleanup"),
                                               QDateTime::currentDateTimeUtc()));
  }

  Q_INVOKABLE void addManyToHistory(int count) {
    CommandHistory history;
    for (int number = 0; number < count; ++number) {
      history += makeCopyRecord(BrewCommandBuilder().update(), QStringLiteral("Updates"),
                                QDateTime::currentDateTimeUtc());
    }
    world_->store.setCommandHistory(history);
  }

  Q_INVOKABLE void resetOnboarding() { world_->store.resetOnboarding(); }

  Q_INVOKABLE bool hasCompletedOnboarding() const { return world_->store.hasCompletedOnboarding(); }

  /// The catalog was refreshed, and the prefix scanned, so many hours ago.
  Q_INVOKABLE void setAges(int catalogHours, int scanHours) {
    constexpr qint64 secondsPerHour = 3600;
    const QDateTime now = QDateTime::currentDateTimeUtc();
    world_->store.setCatalogLastRefreshDate(now.addSecs(-secondsPerHour * catalogHours));
    world_->store.setLocalInventoryLastScanDate(now.addSecs(-secondsPerHour * scanHours));
  }

  /// The catalog is fresh for a moment more.
  Q_INVOKABLE void letCatalogTurnStale() {
    constexpr qint64 moment = 300;
    world_->store.setCatalogLastRefreshDate(
        QDateTime::currentDateTimeUtc().addDays(-7).addMSecs(moment));
  }

  /// The addresses that would have gone to the browser since they are caught.
  Q_INVOKABLE QStringList openedPages() const { return openedPages_; }

  Q_INVOKABLE void catchPages() {
    openedPages_.clear();
    QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "openPage");
  }

  Q_INVOKABLE void openPage(const QUrl& page) { openedPages_ += page.toString(); }

  /// The screens of the inventory show this scene of `DemoPackages.h`.
  Q_INVOKABLE void showInventory(const QString& scene) {
    const LocalInventoryInputs inputs = demo::demoInventory(scene, prefix());
    world_->content.updates()->setInputs(inputs);
    world_->content.cleanup()->setInputs(inputs);
  }

  /// Opens the package of this scene of `DemoPackages.h`. Its homepage is opened by no browser.
  Q_INVOKABLE void openPackage(const QString& scene) {
    ContentViewModel& content = world_->content;
    auto detail = std::make_unique<PackageDetailViewModel>(
        demo::demoPackage(scene),
        [&content](const BrewCommand& command, const QString& sourceScreen) {
          content.commands()->openPreview(command, sourceScreen);
        },
        &QDateTime::currentDateTimeUtc,
        [this](const QUrl& url) {
          openedUrl_ = url;
          return browserAnswers_;
        });
    connect(detail.get(), &PackageDetailViewModel::formulaRequested, this,
            [this](const QString& name) { wantedFormula_ = name; });
    content.details()->push(std::move(detail));
  }

  /// From now on, no browser can be started.
  Q_INVOKABLE void breakBrowser() { browserAnswers_ = false; }

  [[nodiscard]] QUrl openedUrl() const { return openedUrl_; }

  [[nodiscard]] QString wantedFormula() const { return wantedFormula_; }

  /// Puts a file of this size into the download cache.
  Q_INVOKABLE void fillCache(int bytes) {
    world_->prefix.withFile(QStringLiteral("var/homebrew/cache/file"), QByteArray(bytes, 'x'));
  }

  Q_INVOKABLE void previewUninstall() {
    const BrewCommandTarget wget{BrewCommandTargetKind::formula, QStringLiteral("wget")};
    world_->content.commands()->openPreview(BrewCommandBuilder().uninstall(wget).value(),
                                            QStringLiteral("Installed"));
  }

  Q_INVOKABLE void previewServicesList() {
    world_->content.commands()->openPreview(BrewCommandBuilder().servicesList(),
                                            QStringLiteral("Services"));
  }

  Q_INVOKABLE void previewUpgrade() {
    world_->content.commands()->openPreview(BrewCommandBuilder().upgrade(std::nullopt).value(),
                                            QStringLiteral("Updates"));
  }

  /// The window of this title that is open; null where there is none.
  Q_INVOKABLE QWindow* windowNamed(const QString& title) const {
    const QWindowList windows = QGuiApplication::topLevelWindows();
    const auto found = std::ranges::find_if(windows, [&title](const QWindow* each) {
      return each->isVisible() && each->title() == title;
    });
    return found == windows.end() ? nullptr : *found;
  }

  Q_INVOKABLE QSize rememberedSize() { return WindowGeometry(world_->settings.open()).size(); }

  Q_INVOKABLE bool remembersMaximized() {
    return WindowGeometry(world_->settings.open()).maximized();
  }

  Q_INVOKABLE void previewLongInstall() {
    const BrewCommandTarget target{BrewCommandTargetKind::formula, QString(120, u'w')};
    world_->content.commands()->openPreview(BrewCommandBuilder().install(target).value(),
                                            QStringLiteral("Browse"));
  }

  Q_INVOKABLE QString clipboard() const { return QGuiApplication::clipboard()->text(); }

  Q_INVOKABLE QStringList qmlFiles() const {
    QStringList files;
    QDirIterator all(QStringLiteral(":/qt/qml/Quillmere"), {QStringLiteral("*.qml")}, QDir::Files,
                     QDirIterator::Subdirectories);
    while (all.hasNext()) {
      files += QStringLiteral("qrc") + all.next();
    }
    return files;
  }

 Q_SIGNALS:
  void worldChanged();

 private:
  QStringList openedPages_;
  std::unique_ptr<World> world_;
  QUrl openedUrl_;
  QString wantedFormula_;
  bool browserAnswers_ = true;
};

/// Prepares the test program as `main` prepares the real one.
class Setup : public QObject {
  Q_OBJECT

 public Q_SLOTS:

  void applicationAvailable() { QuillmereApp::prepare(); }

  void qmlEngineAvailable(QQmlEngine* engine) {
    engine->addImportPath(QStringLiteral("qrc:/qt/qml"));
    engine->rootContext()->setContextProperty(QStringLiteral("stage"), &stage_);
  }

 private:
  Stage stage_;
};

}  // namespace

QUICK_TEST_MAIN_WITH_SETUP(window, Setup)

#include "WindowTests.moc"

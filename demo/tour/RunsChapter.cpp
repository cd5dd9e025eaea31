#include <QtQuick/QQuickItem>

#include "commands/BrewCommandBuilder.h"
#include "demo/tour/Chapters.h"
#include "demo/tour/Stage.h"

namespace quillmere::demo {
namespace {

using namespace Qt::StringLiterals;

constexpr QSize usualSize(1200, 800);
constexpr QSize smallestSize(900, 600);
const BrewCommandBuilder builder;

BrewCommandTarget formula(const QString& name) {
  return {BrewCommandTargetKind::formula, name};
}

void capturePreviews(Stage& stage) {
  const auto tell = [&stage](const BrewCommand& command, const QString& screen,
                             const QString& picture) {
    stage.openPreview(command, screen);
    stage.takePicture(picture);
    stage.content().commands()->preview()->close();
  };
  stage.show(AppSection::services);
  tell(builder.servicesList(), u"Services"_s, u"preview"_s);
  stage.show(AppSection::installed);
  tell(builder.uninstall(formula(u"yq"_s)).value(), u"Installed"_s, u"preview-uninstall"_s);
  stage.show(AppSection::browse);
  stage.openPreview(builder.install(formula(u"ffmpeg"_s)).value(), u"Browse"_s);
  stage.takePicture(u"preview-install"_s);
  stage.content().commands()->preview()->copy();
  stage.takePicture(u"preview-copied"_s);
  stage.content().commands()->preview()->run();
  stage.takePicture(u"confirmation"_s);
  stage.content().commands()->preview()->cancelConfirmation();
  stage.content().commands()->preview()->close();
  stage.show(AppSection::updates);
  stage.openPreview(builder.update(), u"Updates"_s);
  stage.takePicture(u"preview-update"_s);
  stage.content().commands()->preview()->run();
  stage.takePicture(u"confirmation-stronger"_s);
  stage.content().commands()->preview()->cancelConfirmation();
  stage.content().commands()->preview()->close();
}

bool showStartupDiagnostics(QQuickItem* from) {
  if (from->property("showsDiagnostics").isValid()) {
    return from->setProperty("showsDiagnostics", true);
  }
  const auto children = from->childItems();
  return std::ranges::any_of(children, &showStartupDiagnostics);
}

/// The moment before `brew` is found, which is over before one sees it.
void captureStart(Stage& stage) {
  stage.holdDisk();
  stage.openPreview(builder.servicesList(), u"Services"_s);
  stage.content().commands()->preview()->run();
  stage.takePicture(u"run-starting"_s);
  showStartupDiagnostics(stage.window()->contentItem());
  stage.takePicture(u"run-starting-diagnostics"_s);
  stage.content().commands()->preview()->close();
  stage.releaseDisk();
}

/// The end of a run that is going on, its summary and its output.
void captureEnd(Stage& stage, const QString& picture) {
  stage.waitForEndOfRun(picture);
  stage.takePicture(picture);
  stage.content().commands()->session()->setShowsRawOutput(true);
  stage.takePicture(picture + u"-output"_s);
  stage.content().commands()->preview()->close();
}

void waitForOutput(Stage& stage, const QString& text, const QString& nextPicture) {
  stage.waitFor(nextPicture, [&] {
    const auto* const controller = stage.content().commands()->preview()->sessionController();
    return std::ranges::any_of(controller->outputChunks(), [&text](const auto& chunk) {
      return QString::fromUtf8(chunk.text).contains(text);
    });
  });
}

void captureUpgrade(Stage& stage) {
  stage.show(AppSection::updates);
  stage.openPreview(builder.upgrade(formula(u"jq"_s)).value(), u"Updates"_s);
  stage.run(u"run"_s);
  waitForOutput(stage, u"Pouring"_s, u"run"_s);
  stage.takePicture(u"run"_s);
  stage.content().commands()->session()->setShowsRawOutput(true);
  stage.takePicture(u"run-output"_s);
  stage.content().commands()->session()->setShowsRawOutput(false);
  captureEnd(stage, u"run-finished"_s);
  stage.scan(u"updates-after-upgrade"_s);
  stage.takePicture(u"updates-after-upgrade"_s);
}

void captureQuestions(Stage& stage) {
  stage.show(AppSection::services);
  stage.openPreview(builder.servicesList(), u"Services"_s);
  stage.run(u"services-finished"_s);
  captureEnd(stage, u"services-finished"_s);
  stage.openPreview(builder.dependencies(u"curl"_s).value(), u"Browse"_s);
  stage.run(u"dependencies-finished"_s);
  captureEnd(stage, u"dependencies-finished"_s);
  stage.openPreview(builder.info(formula(u"jq"_s)).value(), u"Browse"_s);
  stage.run(u"information-finished"_s);
  captureEnd(stage, u"information-finished"_s);
  stage.openPreview(builder.upgrade(formula(u"ffmpeg"_s)).value(), u"Browse"_s);
  stage.run(u"run-failed"_s);
  captureEnd(stage, u"run-failed"_s);
}

/// A brew that does not end when it is asked to, but when a file "release" appears in its prefix.
QByteArray stubbornBrew() {
  return "#!/bin/sh\ntrap '' TERM\ncd \"${0%/*}/..\"\necho '==> Fetching downloads for: ffmpeg'\n"
         "while [ -e bin/brew ] && [ ! -e var/release ]; do sleep 0.05; done\n";
}

void captureCancellation(Stage& stage) {
  stage.show(AppSection::browse);
  stage.openPreview(builder.install(formula(u"ffmpeg"_s)).value(), u"Browse"_s);
  stage.run(u"run-cancelled"_s);
  waitForOutput(stage, u"Bottle"_s, u"run-cancelled"_s);
  stage.window()->close();
  stage.takePicture(u"quit-while-running"_s);
  stage.content().quitGuard()->cancelQuit();
  stage.content().commands()->session()->cancel();
  captureEnd(stage, u"run-cancelled"_s);
  stage.setBrew(stubbornBrew());
  stage.openPreview(builder.install(formula(u"ffmpeg"_s)).value(), u"Browse"_s);
  stage.run(u"run-cancelling"_s);
  waitForOutput(stage, u"Fetching"_s, u"run-cancelling"_s);
  stage.window()->close();
  stage.content().quitGuard()->confirmQuit();
  stage.takePicture(u"run-cancelling"_s);
  stage.window()->close();
  stage.takePicture(u"quit-without-waiting"_s);
  stage.content().quitGuard()->cancelQuit();
  stage.addFile(u"var/release"_s);
  stage.waitForEndOfRun(u"run-refused"_s);
  stage.content().commands()->preview()->close();
}

void captureCleanup(Stage& stage) {
  stage.show(AppSection::cleanup);
  stage.content().cleanup()->previewCleanup();
  stage.run(u"cleanup-finished"_s);
  captureEnd(stage, u"cleanup-finished"_s);
  stage.scan(u"cleanup-after-cleanup"_s);
  stage.show(AppSection::cleanup);
  stage.waitFor(u"cleanup-after-cleanup"_s,
                [&] { return !stage.content().cleanup()->isMeasuringCache(); });
  stage.takePicture(u"cleanup-after-cleanup"_s);
}

void captureHistory(Stage& stage) {
  CommandHistoryViewModel& history = *stage.content().history();
  stage.show(AppSection::history);
  stage.takePicture(u"history"_s);
  history.setSearchText(u"upgrade"_s);
  stage.takePicture(u"history-search"_s);
  history.setSearchText(u"nothing like it"_s);
  stage.takePicture(u"history-no-match"_s);
  history.clearSearch();
  history.askClear();
  stage.takePicture(u"history-clear"_s);
  history.cancelClear();
}

void captureRefusal(Stage& stage) {
  stage.store().resetPrefix();
  stage.show(AppSection::services);
  stage.openPreview(builder.servicesList(), u"Services"_s);
  stage.content().commands()->preview()->run();
  stage.waitFor(u"run-refused"_s,
                [&] { return stage.content().commands()->preview()->errorPending(); });
  stage.takePicture(u"run-refused"_s);
  stage.content().commands()->preview()->dismissError();
  stage.content().commands()->preview()->close();
}

/// A brew that upgrades a service, with what its user has to know.
QByteArray brewWithCaveats() {
  return "#!/bin/sh\ncellar=$(cd \"${0%/*}/..\" && pwd)/Cellar\ncat <<EOF\n"
         "==> Upgrading 2 outdated packages:\nicu4c@78 78.1 -> 78.2\n"
         "postgresql@17 17.6 -> 17.7\n==> Upgrading icu4c@78\n  78.1 -> 78.2 \n"
         "$cellar/icu4c@78/78.2: 278 files, 86.4MB\n==> Upgrading postgresql@17\n"
         "  17.6 -> 17.7 \n==> Caveats\n"
         "This formula has created a default database cluster with:\n"
         "  initdb --locale=en_US.UTF-8 -E UTF-8 $cellar/../var/postgresql@17\n\n"
         "To start postgresql@17 now and restart at login:\n"
         "  brew services start postgresql@17\n"
         "Or, if you don't want/need a background service you can just run:\n"
         "  LC_ALL=\"en_US.UTF-8\" $cellar/../opt/postgresql@17/bin/postgres\n==> Summary\n"
         "$cellar/postgresql@17/17.7: 3,832 files, 79.9MB\n"
         "==> Running \\`brew cleanup postgresql@17\\`...\n"
         "Removing: $cellar/postgresql@17/17.6... (3,830 files, 79.8MB)\n"
         "==> Upgraded 2 outdated packages\nEOF\n"
         "echo 'Warning: Not upgrading 1 pinned package:' >&2\n";
}

void captureSmallest(Album& album) {
  Stage stage(album, DemoUser::regular, smallestSize);
  stage.loadCatalog(u"run-caveats"_s);
  stage.scan(u"run-caveats"_s);
  stage.setBrew(brewWithCaveats());
  stage.show(AppSection::updates);
  stage.openPreview(builder.upgrade(formula(u"postgresql@17"_s)).value(), u"Updates"_s);
  stage.run(u"run-caveats"_s);
  captureEnd(stage, u"run-caveats"_s);
  stage.show(AppSection::history);
  stage.takePicture(u"history-small"_s);
}

}  // namespace

void captureRuns(Album& album) {
  Stage stage(album, DemoUser::regular, usualSize);
  stage.loadCatalog(u"preview"_s);
  stage.scan(u"preview"_s);
  capturePreviews(stage);
  captureStart(stage);
  captureUpgrade(stage);
  captureQuestions(stage);
  captureCleanup(stage);
  captureHistory(stage);
  captureCancellation(stage);
  captureRefusal(stage);
  captureSmallest(album);
}

}  // namespace quillmere::demo

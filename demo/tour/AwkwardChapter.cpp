#include <array>
#include <memory>

#include "commands/BrewCommandBuilder.h"
#include "demo/DemoPackages.h"
#include "demo/SampleCatalog.h"
#include "demo/tour/Chapters.h"
#include "demo/tour/Stage.h"

namespace quillmere::demo {
namespace {

using namespace Qt::StringLiterals;

/// The smallest window that the program allows, and one that is larger than its texts are wide.
struct Size {
  QLatin1StringView name;
  QSize size;
};

constexpr std::array sizes = {Size{QLatin1StringView("small"), QSize(900, 600)},
                              Size{QLatin1StringView("large"), QSize(1600, 1000)}};

constexpr auto inventoryScenes = std::to_array<QLatin1StringView>(
    {"updates"_L1, "review"_L1, "away"_L1, "failed"_L1, "many"_L1, "long"_L1});
constexpr auto packageScenes = std::to_array<QLatin1StringView>(
    {"installed-cask"_L1, "many"_L1, "long"_L1, "right-to-left"_L1, "refused"_L1, "bare"_L1});

/// A brew with much to say, in long lines and in a script that runs from right to left.
QByteArray talkativeBrew() {
  return "#!/bin/sh\nseq -f '==> Installed line %g' 10000\n"
         "printf '\\327\\251\\327\\234\\327\\225\\327\\235 (installed)\\n'\n"
         "for i in 1 2 3 4 5 6 7 8 9; do printf 'Warning: a long line without an end; '; done\n"
         "exit 1\n";
}

void captureSections(Stage& stage, QLatin1StringView size) {
  for (const AppSection section : allAppSections) {
    stage.show(section);
    stage.takePicture(size + u'-' + rawValue(section).toString());
  }
}

void captureCatalog(Stage& stage, QLatin1StringView size) {
  stage.show(AppSection::browse);
  stage.content().browse()->setInputs(
      loadedCatalog({.formulae = sampleFormulaDocument(), .casks = sampleCaskDocument()}));
  stage.waitFor(u"browse-awkward"_s, [&] { return !stage.content().browse()->isFiltering(); });
  stage.takePicture(size + "-browse-awkward"_L1);
}

void captureInventory(Stage& stage, QLatin1StringView size) {
  for (const QLatin1StringView scene : inventoryScenes) {
    const LocalInventoryInputs inputs = demoInventory(scene, stage.prefix());
    stage.content().installed()->setInputs(inputs);
    stage.content().updates()->setInputs(inputs);
    stage.content().cleanup()->setInputs(inputs);
    stage.show(AppSection::installed);
    stage.takePicture(size + "-installed-"_L1 + scene);
    stage.show(AppSection::updates);
    stage.takePicture(size + "-updates-"_L1 + scene);
    stage.show(AppSection::cleanup);
    stage.takePicture(size + "-cleanup-"_L1 + scene);
  }
}

void capturePackages(Stage& stage, QLatin1StringView size) {
  stage.show(AppSection::installed);
  for (const QLatin1StringView scene : packageScenes) {
    stage.content().details()->push(std::make_unique<PackageDetailViewModel>(
        demoPackage(scene), [](const BrewCommand& /*command*/, const QString& /*screen*/) {}));
    stage.takePicture(size + "-package-"_L1 + scene);
    stage.scrollToEnd();
    stage.takePicture(size + "-package-"_L1 + scene + "-end"_L1);
    stage.content().details()->back();
  }
}

void captureLongRun(Stage& stage, QLatin1StringView size) {
  stage.setBrew(talkativeBrew());
  stage.show(AppSection::browse);
  const BrewCommandTarget target{BrewCommandTargetKind::formula, QString(120, u'w')};
  stage.openPreview(BrewCommandBuilder().install(target).value(), u"Browse"_s);
  stage.takePicture(size + "-preview-long"_L1);
  stage.content().commands()->preview()->run();
  stage.takePicture(size + "-confirmation-long"_L1);
  stage.content().commands()->preview()->confirmRun();
  stage.waitForEndOfRun(u"run-long"_s);
  stage.takePicture(size + "-run-long"_L1);
  stage.content().commands()->session()->setShowsRawOutput(true);
  stage.takePicture(size + "-run-long-output"_L1);
  stage.content().commands()->preview()->close();
  stage.show(AppSection::history);
  stage.takePicture(size + "-history-long"_L1);
}

}  // namespace

void captureAwkward(Album& album) {
  for (const auto& [name, size] : sizes) {
    Stage stage(album, DemoUser::regular, size);
    stage.loadCatalog(name.toString());
    stage.scan(name.toString());
    captureSections(stage, name);
    captureCatalog(stage, name);
    captureInventory(stage, name);
    capturePackages(stage, name);
    captureLongRun(stage, name);
  }
  Stage stage(album, DemoUser::newcomer, sizes.front().size);
  stage.takePicture(sizes.front().name + "-first-start"_L1);
}

void captureScaled(Album& album) {
  Stage stage(album, DemoUser::regular, sizes.front().size);
  stage.loadCatalog(u"scaled"_s);
  stage.scan(u"scaled"_s);
  captureSections(stage, "scaled"_L1);
  captureCatalog(stage, "scaled"_L1);
  stage.show(AppSection::services);
  stage.openPreview(BrewCommandBuilder().servicesList(), u"Services"_s);
  stage.takePicture(u"scaled-preview"_s);
  stage.run(u"scaled-run"_s);
  stage.waitForEndOfRun(u"scaled-run"_s);
  stage.takePicture(u"scaled-run"_s);
}

}  // namespace quillmere::demo

#include "InventoryScreenshots.h"

#include <array>
#include <memory>

#include "DemoPackages.h"
#include "app/ContentViewModel.h"

namespace quillmere::test {
namespace {

constexpr auto inventoryScenes =
    std::to_array({"idle", "idle-prefix", "access", "looking", "scanning", "failed", "current",
                   "review", "updates", "many", "long"});
constexpr auto packageScenes = std::to_array({"formula", "installed", "cask", "installed-cask",
                                              "many", "long", "right-to-left", "refused", "bare"});

}  // namespace

void drawInventoryScreens(ContentViewModel& content, DemoPrefix& prefix,
                          const std::function<void(Qt::Key, Qt::KeyboardModifiers)>& pressKey,
                          const std::function<void(const QString& what)>& draw) {
  content.select(AppSection::updates);
  for (const char* const scene : inventoryScenes) {
    content.updates()->setInputs(demoInventory(QLatin1StringView(scene), prefix.url()));
    draw(QStringLiteral("updates-") + QLatin1StringView(scene));
  }
  prefix.withFile(QStringLiteral("var/homebrew/cache/downloads/wget.tar.gz"),
                  QByteArray(1'340'000, 'x'));
  content.select(AppSection::cleanup);
  for (const char* const scene : inventoryScenes) {
    content.cleanup()->setInputs(demoInventory(QLatin1StringView(scene), prefix.url()));
    draw(QStringLiteral("cleanup-") + QLatin1StringView(scene));
  }
  pressKey(Qt::Key_Tab, Qt::NoModifier);
  pressKey(Qt::Key_Tab, Qt::NoModifier);
  draw(QStringLiteral("cleanup-end"));
  content.select(AppSection::installed);
  for (const char* const scene : packageScenes) {
    content.details()->push(std::make_unique<PackageDetailViewModel>(
        demoPackage(QLatin1StringView(scene)),
        [](const BrewCommand& /*command*/, const QString& /*screen*/) {}));
    draw(QStringLiteral("detail-") + QLatin1StringView(scene));
    pressKey(Qt::Key_Tab, Qt::ShiftModifier);
    pressKey(Qt::Key_Tab, Qt::ShiftModifier);
    draw(QStringLiteral("detail-end-") + QLatin1StringView(scene));
    content.details()->back();
  }
}

}  // namespace quillmere::test

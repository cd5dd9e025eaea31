#include "demo/DemoHome.h"

#include <QtCore/QDir>
#include <QtCore/QSettings>

#include <memory>

#include "demo/DemoDocuments.h"
#include "demo/DemoHistory.h"
#include "demo/DemoPrefixFolder.h"
#include "demo/FolderWriter.h"
#include "persistence/LocalPersistenceStore.h"
#include "platform/FileUrl.h"

namespace quillmere::demo {
namespace {

/// Through the program's own store, so that it finds what it would have left itself.
void writeSettings(const DemoHome& home, DemoUser visitor) {
  LocalPersistenceStore store(
      std::make_unique<QSettings>(home.settingsFile(), QSettings::NativeFormat),
      fileUrl(home.catalogFolder()));
  const QDateTime now = QDateTime::currentDateTimeUtc();
  store.setHasCompletedOnboarding(visitor == DemoUser::regular);
  store.setCatalogLastRefreshDate(now.addDays(-2));
  if (visitor == DemoUser::regular) {
    store.selectPrefix(fileUrl(home.prefix()));
    store.setLocalInventoryLastScanDate(now.addSecs(-1500));
    store.setCommandHistory(historyUntil(now));
  }
}

}  // namespace

std::expected<void, QString> DemoHome::write(DemoUser visitor) const {
  if (QDir(folder).exists() && !QDir(folder).isEmpty(QDir::AllEntries | QDir::Hidden |
                                                     QDir::System | QDir::NoDotAndDotDot)) {
    return std::unexpected(folder + QStringLiteral(": the folder is not empty"));
  }
  FolderWriter prefixWriter(prefix());
  writePrefix(prefixWriter);
  FolderWriter catalogWriter(catalogFolder());
  catalogWriter.file(QStringLiteral("formula.json"), formulaDocument());
  catalogWriter.file(QStringLiteral("cask.json"), caskDocument());
  FolderWriter configWriter(configFolder());
  configWriter.folder(QStringLiteral("Quillmere"));
  for (const FolderWriter* const writer : {&prefixWriter, &catalogWriter, &configWriter}) {
    if (const auto& error = writer->error()) {
      return std::unexpected(*error);
    }
  }
  writeSettings(*this, visitor);
  return {};
}

}  // namespace quillmere::demo

#include "guidance/LocalInventory.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "guidance/InstalledPackageSummary.h"
#include "inventory/HomebrewCaskInventoryScanner.h"
#include "inventory/HomebrewFormulaInventoryScanner.h"
#include "platform/FileUrl.h"

namespace quillmere {

using State = InstalledPackagesState;

LocalInventory scanLocalInventory(const QUrl& prefix, const HomebrewPrefixFileSystemPtr& fileSystem,
                                  const CachedCatalogFiles& cachedCatalog,
                                  const ScanProgress& progress) {
  if (!fileSystem->isReadableFile(filePath(prefix))) {
    return {.state = {State::AccessNeeded{}},
            .scannedAt = std::nullopt,
            .accessProblem = fileSystem->fileExists(filePath(prefix))
                                 ? QStringLiteral("The folder may not be read by this user.")
                                 : QStringLiteral("There is no such folder at the moment.")};
  }
  const auto catalog = readCachedRecords(cachedCatalog);
  if (!catalog) {
    return {.state = {State::Failed{QStringLiteral("Local inventory could not be scanned: ") +
                                    catalog.error()}},
            .scannedAt = std::nullopt,
            .accessProblem = {}};
  }
  const auto formulae =
      HomebrewFormulaInventoryScanner(prefix, fileSystem).scan(catalog->formulae, progress);
  const auto formulaCount = static_cast<qsizetype>(formulae.formulae.size());
  const auto afterFormulae = [&progress, formulaCount](qsizetype scanned, qsizetype total) {
    if (progress) {
      progress(formulaCount + scanned, formulaCount + total);
    }
  };
  const auto casks =
      HomebrewCaskInventoryScanner(prefix, fileSystem).scan(catalog->casks, afterFormulae);
  auto packages = std::make_shared<const std::vector<InstalledPackageSummary>>(
      installedPackageSummaries(formulae.formulae, casks.casks));
  return {.state = {State::Loaded{std::move(packages)}},
          .scannedAt = std::max(formulae.scannedAt, casks.scannedAt),
          .accessProblem = {}};
}

}  // namespace quillmere

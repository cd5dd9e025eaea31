#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QString>
#include <QtCore/QUrl>

#include <optional>

#include "catalog/CachedCatalog.h"
#include "guidance/InstalledPackagesState.h"
#include "inventory/ScanProgress.h"
#include "prefix/HomebrewPrefixFileSystem.h"

namespace quillmere {

/// What a scan of a prefix came to.
struct LocalInventory {
  /// Loaded, failed, or that the prefix cannot be read.
  InstalledPackagesState state;
  /// When the scan had finished; absent where it was not made.
  std::optional<QDateTime> scannedAt;
  /// Why the prefix cannot be read, as a sentence; empty otherwise.
  QString accessProblem;
};

/// Scans a prefix and joins what is installed with the catalog documents that are cached. Blocks on
/// the disk; any thread.
[[nodiscard]] LocalInventory scanLocalInventory(const QUrl& prefix,
                                                const HomebrewPrefixFileSystemPtr& fileSystem,
                                                const CachedCatalogFiles& cachedCatalog,
                                                const ScanProgress& progress = {});

}  // namespace quillmere

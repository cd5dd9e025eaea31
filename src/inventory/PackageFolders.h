#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QStringList>
#include <QtCore/QUrl>

#include <functional>
#include <optional>
#include <span>
#include <string_view>
#include <unordered_map>

#include "inventory/ScanProgress.h"
#include "platform/SharedText.h"
#include "prefix/HomebrewPrefixFileSystem.h"
#include "prefix/HomebrewPrefixLocation.h"

// What the scanners of formulae and of casks have in common.

namespace quillmere {

/// A package's folder, in the Cellar or in the Caskroom.
struct PackageFolder {
  QString name;
  QUrl url;
  /// The names of all visible entries, files as well, in the user's name ordering, oldest version
  /// first. Empty as well when the folder could not be listed.
  QStringList versions;

  /// The newest version, if there is one.
  [[nodiscard]] std::optional<QString> currentVersion() const;
};

/// Calls `visit` with each package folder of the location that is there and readable, in the order
/// of the location's child names. Visits nothing when the location is not readable.
void visitPackageFolders(const HomebrewPrefixFileSystem& fileSystem,
                         const HomebrewPrefixReadResult& prefix, HomebrewPrefixLocation::Kind kind,
                         const ScanProgress& progress,
                         const std::function<void(PackageFolder&&)>& visit);

/// Ends the program: whoever hands over a catalog has made its names unique.
[[noreturn]] void abortForDuplicateKey(std::string_view key);

/// Finds catalog records by their name or token. Reads the catalog that it was made for.
template <typename Record>
class CatalogLookup {
 public:
  /// Stops the program when two records have the same `key`.
  CatalogLookup(std::span<const Record> catalog, SharedText Record::* key) {
    records_.reserve(catalog.size());
    for (const Record& record : catalog) {
      const std::string_view name = (record.*key).view();
      if (!records_.emplace(name, &record).second) {
        abortForDuplicateKey(name);
      }
    }
  }

  [[nodiscard]] std::optional<Record> find(const QString& name) const {
    if (records_.empty()) {
      return std::nullopt;
    }
    const auto found = records_.find(std::string_view(QByteArrayView(name.toUtf8())));
    return found == records_.end() ? std::nullopt : std::optional(*found->second);
  }

 private:
  std::unordered_map<std::string_view, const Record*> records_;
};

}  // namespace quillmere

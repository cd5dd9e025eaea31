#pragma once

#include <QtCore/QString>
#include <QtCore/QUrl>

#include <optional>
#include <variant>
#include <vector>

#include "guidance/InstalledPackageSummary.h"

namespace quillmere {

/// What a cleanup would be about.
struct CleanupGuidanceSummary {
  /// A package that keeps older versions beside its newest one.
  struct OldVersionPackage {
    /// The package's.
    SharedText id;
    SharedText name;
    HomebrewPackageSummary::Kind kind = HomebrewPackageSummary::Kind::formula;
    std::optional<SharedText> currentVersion;
    /// Never empty; oldest first.
    std::vector<SharedText> oldVersions;

    bool operator==(const OldVersionPackage&) const = default;
  };

  /// What is known of the prefix's download cache.
  struct CacheState {
    struct Readable {
      QString path;
      /// Absent when the folder could not be listed.
      std::optional<qint64> estimatedBytes;

      bool operator==(const Readable&) const = default;
    };

    struct Missing {
      QString path;

      bool operator==(const Missing&) const = default;
    };

    struct NotReadable {
      QString path;

      bool operator==(const NotReadable&) const = default;
    };

    /// No prefix is selected.
    struct Unknown {
      bool operator==(const Unknown&) const = default;
    };

    std::variant<Readable, Missing, NotReadable, Unknown> value = Unknown();

    bool operator==(const CacheState&) const = default;
  };

  /// Ordered by name.
  std::vector<OldVersionPackage> oldVersionPackages;
  CacheState cacheState;

  bool operator==(const CleanupGuidanceSummary&) const = default;
};

/// The packages with more than one installed version. Pure; any thread.
[[nodiscard]] std::vector<CleanupGuidanceSummary::OldVersionPackage> oldVersionPackages(
    const std::vector<InstalledPackageSummary>& inventory);

/// How many old versions the packages keep together.
[[nodiscard]] qsizetype oldVersionCount(
    const std::vector<CleanupGuidanceSummary::OldVersionPackage>& packages);

/// The cache of the selected prefix, with the size of its files. Walks the whole folder, so call it
/// off the UI thread; it opens none of the files.
[[nodiscard]] CleanupGuidanceSummary::CacheState cleanupCacheState(
    const std::optional<QUrl>& prefixURL);

/// Both together; blocks on the disk like the latter.
[[nodiscard]] CleanupGuidanceSummary cleanupGuidance(
    const std::vector<InstalledPackageSummary>& inventory, const std::optional<QUrl>& prefixURL);

/// The bytes of all regular files in a folder and the folders in it, hidden ones and what links
/// lead to left out. What cannot be looked at does not count. Absent when the folder itself cannot
/// be listed. A sum beyond 64 bits stops the program. Blocks on the disk; any thread.
[[nodiscard]] std::optional<qint64> estimatedSize(const QUrl& folder);

}  // namespace quillmere

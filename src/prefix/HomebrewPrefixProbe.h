#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QUrl>
#include <QtCore/QUuid>

#include <functional>
#include <optional>
#include <vector>

#include "prefix/HomebrewPrefixLocation.h"

namespace quillmere {

/// One location of a folder that is being considered as a prefix: counted, not listed.
struct HomebrewPrefixProbeResult {
  using Status = HomebrewPrefixLocation::Status;

  /// New for every probe.
  QUuid id;
  QString label;
  QString relativePath;
  Status status = Status::missing;
  /// Visible entries of a readable location that can be listed.
  std::optional<qsizetype> itemCount;
  /// Where a missing location really is: below the prefix, or a whole path. Homebrew keeps its
  /// library and its taps elsewhere on Linux and on Intel Macs, and its cache in the home. Empty
  /// where it is not there either.
  QString foundAt;

  bool operator==(const HomebrewPrefixProbeResult&) const = default;
};

/// The places besides `location` where Homebrew may keep what belongs there, the likeliest first; a
/// relative path begins at the prefix. Pure but for the environment's HOMEBREW_CACHE.
[[nodiscard]] QStringList otherPlacesOf(HomebrewPrefixLocation::Kind location);

/// The text of a row's status: "Readable (3 items)", "Readable", "Missing" or "Not readable".
[[nodiscard]] QString statusText(const HomebrewPrefixProbeResult& result);

struct HomebrewPrefixProbeSummary {
  QUrl prefixURL;
  QDateTime scannedAt;
  /// Seven rows in the order of `homebrewPrefixLocations`.
  std::vector<HomebrewPrefixProbeResult> results;

  bool operator==(const HomebrewPrefixProbeSummary&) const = default;

  /// Whether "bin/brew" is there and readable; nothing else matters.
  [[nodiscard]] bool looksLikeHomebrewPrefix() const;
};

/// What a user is told who chose a folder that does not look like a prefix.
[[nodiscard]] QString notAHomebrewPrefixText();

/// Looks at a folder of this machine. Blocks on the disk for seven look-ups and listings; any
/// thread.
[[nodiscard]] HomebrewPrefixProbeSummary probeHomebrewPrefix(const QUrl& folder);

/// Looks at the folder that a chooser returned and, where that is no prefix but lies in the folder
/// that the chooser showed, at that one: some return what is highlighted inside the folder that the
/// user went into. A folder elsewhere was not chosen. The first that is a prefix, else the look at
/// `chosen`. Blocks like `probe`; any thread.
[[nodiscard]] HomebrewPrefixProbeSummary probeChosenFolder(
    const std::function<HomebrewPrefixProbeSummary(const QUrl&)>& probe, const QUrl& chosen,
    const QUrl& shown);

}  // namespace quillmere

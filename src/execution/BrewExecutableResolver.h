#pragma once

#include <QtCore/QString>
#include <QtCore/QUrl>

#include <optional>

#include "prefix/HomebrewPrefixFileSystem.h"

namespace quillmere {

/// Whether the selected prefix's `bin/brew` can be used, and where it is.
struct BrewExecutableResolution {
  enum class Status { resolved, noSelectedPrefix, invalidPrefix, missingExecutable, notExecutable };

  Status status = Status::noSelectedPrefix;
  /// The prefix that was examined; absent only for `noSelectedPrefix`.
  std::optional<QUrl> selectedPrefixURL;
  /// Present for `resolved` and `notExecutable`.
  std::optional<QUrl> brewExecutableURL;

  bool operator==(const BrewExecutableResolution&) const = default;
};

/// The sentence that says why nothing is run; empty for `resolved`.
[[nodiscard]] QString message(BrewExecutableResolution::Status status);

/// The same for a diagnostic line, where "resolved" has a word too.
[[nodiscard]] QString diagnosticText(BrewExecutableResolution::Status status);

/// Finds `bin/brew` of the prefix that the user selected, and no other: there is no search path to
/// fall back to. Immutable; any thread; blocks on the disk.
class BrewExecutableResolver {
 public:
  explicit BrewExecutableResolver(HomebrewPrefixFileSystemPtr fileSystem = platformFileSystem());

  /// Never fails: every problem is a status. With no prefix the file system is not touched.
  [[nodiscard]] BrewExecutableResolution resolve(const std::optional<QUrl>& prefixURL) const;

 private:
  HomebrewPrefixFileSystemPtr fileSystem_;
};

}  // namespace quillmere

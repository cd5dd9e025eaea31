#pragma once

#include <QtCore/QStringList>
#include <QtCore/QUrl>

#include "prefix/HomebrewPrefixFileSystem.h"
#include "prefix/HomebrewPrefixLocation.h"

namespace quillmere {

/// Reads the seven well-known locations of a prefix. Immutable; safe from any thread; blocks on the
/// disk, so call it off the UI thread.
class HomebrewPrefixReader {
 public:
  explicit HomebrewPrefixReader(QUrl prefixURL,
                                HomebrewPrefixFileSystemPtr fileSystem = platformFileSystem());

  /// A fresh snapshot. Never fails: every problem is the status of a location.
  [[nodiscard]] HomebrewPrefixReadResult read() const;

 private:
  QUrl prefixURL_;
  HomebrewPrefixFileSystemPtr fileSystem_;
};

/// The names of what `folder` holds, in the file system's order; none where it cannot be listed.
/// Any thread; blocks on the disk.
[[nodiscard]] QStringList childNames(const HomebrewPrefixFileSystem& fileSystem,
                                     const QUrl& folder);

}  // namespace quillmere

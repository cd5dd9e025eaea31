#pragma once

#include <QtCore/QStringList>

#include <optional>

#include "catalog/HomebrewCask.h"

namespace quillmere {

/// A cask that has a folder in the prefix's Caskroom. Made by `HomebrewCaskInventoryScanner`.
struct InstalledCask {
  /// The name of its folder.
  QString token;
  /// The names of what is in its folder, oldest version first.
  QStringList installedVersions;
  /// The last of the installed versions; absent when there are none.
  std::optional<QString> currentVersion;
  /// The record of the same token in the catalog that the scan was given.
  std::optional<HomebrewCask> catalogCask;

  bool operator==(const InstalledCask&) const = default;

  friend std::size_t qHash(const InstalledCask& cask, std::size_t seed = 0) noexcept {
    return qHash(cask.token, seed);
  }
};

}  // namespace quillmere

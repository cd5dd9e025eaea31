#pragma once

#include <QtCore/QUrl>

#include "prefix/HomebrewPrefixFileSystem.h"

namespace quillmere {

/// Where a folder chooser for a prefix opens: at the usual prefix of the platform, "/opt/homebrew"
/// before "/home/linuxbrew/.linuxbrew", or at the user's home where neither exists. Any thread.
[[nodiscard]] QUrl homebrewPrefixStartFolder(const HomebrewPrefixFileSystem& fileSystem);

}  // namespace quillmere

#pragma once

#include "demo/FolderWriter.h"

namespace quillmere::demo {

/// Writes a Homebrew prefix with all that the tables say is installed, and a `bin/brew` that works
/// in it.
void writePrefix(FolderWriter& writer);

}  // namespace quillmere::demo

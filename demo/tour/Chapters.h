#pragma once

#include "demo/tour/Album.h"

namespace quillmere::demo {

/// The window at a first start, every section in every state, and the settings, as somebody meets
/// them who is new.
void captureScreens(Album& album);

/// Every command's preview, and whole runs with all their endings.
void captureRuns(Album& album);

/// What the two begin with: enough to see that a tour works.
void captureBeginning(Album& album);

/// What tries a layout: the smallest and a large window, texts without an end, text from right to
/// left, packages by the thousand.
void captureAwkward(Album& album);

/// A few screens, for another scale than the usual.
void captureScaled(Album& album);

}  // namespace quillmere::demo

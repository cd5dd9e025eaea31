#pragma once

#include <QtCore/QThreadPool>

namespace quillmere {

/// The threads for work that looks at disks or takes longer than a frame. Not Qt's global pool: the
/// renderer waits for that one, and a disk that no longer answers would freeze the window. Nobody
/// waits for these, not even the end of the program, so hand them nothing that must be finished,
/// unless its owner waits for it. They go on while static objects are destroyed: what they use must
/// never be, so make it `static const auto& x = *new X;` where it is not trivial. Any thread.
[[nodiscard]] QThreadPool* backgroundThreads();

}  // namespace quillmere

#pragma once

#include <QtCore/QString>

namespace quillmere {

/// A number of bytes as file managers say it: "Zero KB", "1 byte", "512 bytes", "14 KB", "4.6 MB",
/// "1.25 GB". A unit is a thousand of the one before. The larger the unit, the more digits it gets,
/// since each is worth more. English as every text of the program. A sign stays in front. Pure; any
/// thread.
[[nodiscard]] QString byteCountText(qint64 bytes);

}  // namespace quillmere

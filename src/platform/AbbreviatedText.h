#pragma once

#include <QtCore/QString>

namespace quillmere {

/// `text` whole when it has at most `limit` user-perceived characters (grapheme clusters), else its
/// first `limit` of them followed by "...". Pure; any thread.
[[nodiscard]] QString abbreviated(const QString& text, qsizetype limit);

}  // namespace quillmere

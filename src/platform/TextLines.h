#pragma once

#include <QtCore/QString>
#include <QtCore/QStringView>

#include <vector>

namespace quillmere {

/// The lines of `text`, each trimmed of white space, the empty ones dropped. Every Unicode line
/// break ends a line. The views point into `text`.
[[nodiscard]] std::vector<QStringView> trimmedLines(QStringView text);

/// `text` whole when it has at most `limit` user-perceived characters (grapheme clusters), else its
/// first `limit` of them followed by "...".
[[nodiscard]] QString abbreviated(const QString& text, qsizetype limit);

}  // namespace quillmere

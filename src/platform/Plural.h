#pragma once

#include <QtCore/QString>

namespace quillmere {

/// "1 package" for one, "2 packages" for any other number; for nouns that take an s. Pure; any
/// thread.
[[nodiscard]] inline QString pluralized(qsizetype count, const QString& noun) {
  return QString::number(count) + u' ' + noun + (count == 1 ? QString() : QStringLiteral("s"));
}

}  // namespace quillmere

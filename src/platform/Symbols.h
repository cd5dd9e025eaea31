#pragma once

#include <QtCore/QString>
#include <QtCore/QStringView>

namespace quillmere {

/// The family whose glyphs `symbolGlyph` names: Material Icons, from a Debian package. Any thread.
[[nodiscard]] QString symbolFontFamily();

/// The glyph for a symbol name such as "shippingbox" or "arrow.triangle.2.circlepath"; empty for a
/// name that the table does not hold, so that a missing one leaves a gap and not a wrong picture.
/// Pure; any thread.
[[nodiscard]] QString symbolGlyph(QStringView symbolName);

}  // namespace quillmere

#pragma once

#include <QtCore/QByteArray>

namespace quillmere {

/// Catalog documents of any size, for seeing how a cost grows: `count` records with the keys, the
/// lengths and the irregularities of real ones, as many ignored bytes as a real record has, and
/// the same bytes on every call.
[[nodiscard]] QByteArray generatedFormulaDocument(int count);
[[nodiscard]] QByteArray generatedCaskDocument(int count);

}  // namespace quillmere

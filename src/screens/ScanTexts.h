#pragma once

#include <QtCore/QString>

#include "screens/LocalInventoryInputs.h"

namespace quillmere {

/// How far the scan that is under way has come, beside the sentence that says what it is for.
[[nodiscard]] QString scanProgressText(const LocalInventoryInputs& inputs);

/// "package" for one, "packages" for any other number; the same for every noun that takes an s.
[[nodiscard]] QString counted(qsizetype count, const QString& noun);

}  // namespace quillmere

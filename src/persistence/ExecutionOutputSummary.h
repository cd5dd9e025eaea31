#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QString>

#include <optional>

#include "persistence/Secrets.h"

namespace quillmere {

/// What a run printed, shortened to 500 user-perceived characters; absent when it printed nothing
/// but white space. The two texts are UTF-8. Looks at no more of them than the summary needs, and
/// leaves `secrets` out, since a summary is kept. Pure; any thread.
[[nodiscard]] std::optional<QString> executionOutputSummary(QByteArrayView standardOutput,
                                                            QByteArrayView standardError,
                                                            const Secrets& secrets);

}  // namespace quillmere

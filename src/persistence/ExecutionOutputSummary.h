#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QString>

#include <optional>

namespace quillmere {

/// What a run printed, shortened to 500 user-perceived characters; absent when it printed nothing
/// but white space. The two texts are UTF-8. Looks at no more of them than the summary needs. Pure;
/// any thread.
[[nodiscard]] std::optional<QString> executionOutputSummary(QByteArrayView standardOutput,
                                                            QByteArrayView standardError);

}  // namespace quillmere

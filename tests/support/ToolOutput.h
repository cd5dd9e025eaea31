#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QStringList>

namespace quillmere::test {

/// What a command of the system prints when it is given `input`; the test process ends when the
/// command fails.
[[nodiscard]] QByteArray toolOutput(const QString& program, const QStringList& arguments,
                                    const QByteArray& input = {});

}  // namespace quillmere::test

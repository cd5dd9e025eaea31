#pragma once

#include <QtCore/QByteArray>

namespace quillmere::demo {

/// The demo's catalog as Homebrew publishes its own: two JSON arrays, sorted by name.
[[nodiscard]] QByteArray formulaDocument();
[[nodiscard]] QByteArray caskDocument();

}  // namespace quillmere::demo

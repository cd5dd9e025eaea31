#pragma once

#include <QtCore/QByteArray>

namespace quillmere::test {

/// A `bin/brew` that answers as Homebrew does: headings and check marks on standard error, results
/// on standard output, exit code 1 for any error, slowly enough to be watched where real work is
/// slow. It changes nothing.
[[nodiscard]] QByteArray fakeBrewScript();

}  // namespace quillmere::test

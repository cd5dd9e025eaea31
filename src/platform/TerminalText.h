#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QString>

namespace quillmere {

/// The text that a terminal would leave standing after one line of output was written to it:
/// escape sequences (CSI, OSC and the two-character ones) take effect or vanish, a carriage return
/// goes back to the first column so that later text overwrites earlier, a backspace goes back one.
/// Colours and links are dropped, tabs kept. Pure; a line without control characters comes back as
/// it is. `line` is UTF-8 without its line feed.
[[nodiscard]] QString terminalText(QByteArrayView line);

}  // namespace quillmere

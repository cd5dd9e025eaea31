#pragma once

#include <QtCore/QString>

#include "platform/SharedText.h"

namespace quillmere {

/// What is shown of a text that somebody else wrote, on one line: a name or a version of a document
/// or a folder can hold anything. Line breaks and tabs become blanks. Other control characters and
/// those that turn the direction of what stands around them, so that one name looks like another,
/// become U+FFFD; letters that are written from right to left stay as they are. What is longer than
/// anybody reads ends in "…", because laying it out would keep the window from answering. Pure; any
/// thread.
[[nodiscard]] QString sanitizedText(QString text);
[[nodiscard]] QString sanitizedText(const SharedText& text);

/// `text` whole when it has at most `limit` UTF-16 units, else as many of them as make whole
/// characters, followed by "…". Pure; any thread.
[[nodiscard]] QString elidedText(QString text, qsizetype limit);

}  // namespace quillmere

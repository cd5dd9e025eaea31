#pragma once

#include <QtCore/QUrl>

namespace quillmere {

/// Whether `address` is a page of the web. Any other, a file or a program's own scheme, would start
/// whatever the desktop has for it. One with a user's name before its host is none either: to read,
/// https://brew.sh@example.org is a page of brew.sh. Pure; any thread.
[[nodiscard]] bool isWebUrl(const QUrl& address);

}  // namespace quillmere

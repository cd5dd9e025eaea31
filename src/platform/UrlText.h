#pragma once

#include <QtCore/QUrl>

#include <optional>

#include "platform/SharedText.h"

namespace quillmere {

/// A text of which it is known that `QUrl` takes it in strict mode. It stands for a `QUrl` where
/// thousands are kept and one is opened: the text is a tenth of what the parsed parts would take.
/// An immutable value; any thread.
class UrlText {
 public:
  /// Absent when `text` is empty or no URL; nothing is guessed or corrected.
  [[nodiscard]] static std::optional<UrlText> fromText(const SharedText& text);

  [[nodiscard]] const SharedText& text() const { return text_; }

  [[nodiscard]] QUrl url() const;

  bool operator==(const UrlText&) const = default;

 private:
  explicit UrlText(const SharedText& text) : text_(text) {}

  SharedText text_;
};

/// Whether `address` is a page of the web. Any other, a file or a program's own scheme, would start
/// whatever the desktop has for it. One with a user's name before its host is none either: to read,
/// https://brew.sh@example.org is a page of brew.sh. Pure; any thread.
[[nodiscard]] bool isWebPage(const QUrl& address);

}  // namespace quillmere

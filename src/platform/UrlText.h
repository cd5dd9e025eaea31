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

}  // namespace quillmere

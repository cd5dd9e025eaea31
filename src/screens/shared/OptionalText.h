#pragma once

#include <QtCore/QString>

#include <optional>

#include "platform/SanitizedText.h"

namespace quillmere {

/// A text that may be missing, as a row shows it.
[[nodiscard]] inline QString textOrEmpty(const std::optional<SharedText>& text) {
  return text ? sanitizedText(*text) : QString();
}

}  // namespace quillmere

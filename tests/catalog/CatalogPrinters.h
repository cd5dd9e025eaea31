#pragma once

#include <ostream>

#include "catalog/CatalogDecodingError.h"
#include "platform/UrlText.h"

namespace quillmere {

inline void PrintTo(const SharedText& text, std::ostream* out) {
  *out << '"' << text.view() << '"';
}

inline void PrintTo(const UrlText& url, std::ostream* out) {
  PrintTo(url.text(), out);
}

inline void PrintTo(const CatalogDecodingError& error, std::ostream* out) {
  *out << error.description().toStdString();
}

/// For comparing with what a test writes down.
inline std::optional<std::string_view> viewOf(const std::optional<SharedText>& text) {
  return text ? std::optional(text->view()) : std::nullopt;
}

inline std::optional<std::string_view> viewOf(const std::optional<UrlText>& url) {
  return url ? std::optional(url->text().view()) : std::nullopt;
}

}  // namespace quillmere

#include "platform/UrlText.h"

namespace quillmere {

std::optional<UrlText> UrlText::fromText(const SharedText& text) {
  const UrlText candidate(text);
  const QUrl url = candidate.url();
  return url.isValid() && !url.isEmpty() ? std::optional(candidate) : std::nullopt;
}

QUrl UrlText::url() const {
  return QUrl(text_.toString(), QUrl::StrictMode);
}

}  // namespace quillmere

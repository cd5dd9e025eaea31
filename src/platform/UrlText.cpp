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

bool isWebPage(const QUrl& address) {
  const QString scheme = address.scheme();
  const bool isOfTheWeb =
      scheme == QLatin1StringView("https") || scheme == QLatin1StringView("http");
  return isOfTheWeb && !address.host().isEmpty() && address.userInfo().isEmpty();
}

}  // namespace quillmere

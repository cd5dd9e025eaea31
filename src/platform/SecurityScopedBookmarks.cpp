#include "platform/SecurityScopedBookmarks.h"

namespace quillmere {
namespace {

class UrlBookmarks : public SecurityScopedBookmarks {
 public:
  [[nodiscard]] std::optional<QByteArray> create(const QUrl& url) const override {
    return url.isLocalFile() ? std::optional(url.toEncoded()) : std::nullopt;
  }

  [[nodiscard]] std::optional<Resolved> resolve(const QByteArray& bookmark) const override {
    const QUrl url = QUrl::fromEncoded(bookmark, QUrl::StrictMode);
    return url.isLocalFile() ? std::optional(Resolved{url, false}) : std::nullopt;
  }
};

}  // namespace

std::shared_ptr<const SecurityScopedBookmarks> platformBookmarks() {
  return std::make_shared<const UrlBookmarks>();
}

}  // namespace quillmere

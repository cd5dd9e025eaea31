#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QUrl>

#include <memory>
#include <optional>

namespace quillmere {

/// Turns a folder that the user chose into bytes that find it again after a restart. Some desktops
/// follow a folder that was moved; the bytes are then stale and want renewing.
class SecurityScopedBookmarks {
 public:
  struct Resolved {
    QUrl url;
    bool isStale = false;
  };

  virtual ~SecurityScopedBookmarks() = default;

  /// Absent when the platform cannot make one.
  [[nodiscard]] virtual std::optional<QByteArray> create(const QUrl& url) const = 0;
  /// Absent when the bytes lead nowhere.
  [[nodiscard]] virtual std::optional<Resolved> resolve(const QByteArray& bookmark) const = 0;
};

/// This platform follows no folder: a bookmark is the folder's URL and is never stale.
[[nodiscard]] std::shared_ptr<const SecurityScopedBookmarks> platformBookmarks();

}  // namespace quillmere

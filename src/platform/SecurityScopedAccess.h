#pragma once

#include <QtCore/QUrl>

namespace quillmere {

/// Access to a folder that the user chose, held for as long as this object lives. Some desktops
/// guard such folders behind a grant that must be started and stopped in pairs; this platform
/// guards none, so that every local folder is granted at once and nothing else happens. Failing to
/// start is never an error: the work simply goes on and finds out for itself. Any thread.
class SecurityScopedAccess {
 public:
  /// How often access was started and stopped in this process, so that a test can see that each
  /// start had its stop.
  struct Counts {
    int started = 0;
    int stopped = 0;
    bool operator==(const Counts&) const = default;
  };

  explicit SecurityScopedAccess(const QUrl& url);
  ~SecurityScopedAccess();
  SecurityScopedAccess(const SecurityScopedAccess&) = delete;
  SecurityScopedAccess& operator=(const SecurityScopedAccess&) = delete;

  /// Whether the platform granted access; the destructor stops it only then.
  [[nodiscard]] bool started() const { return started_; }

  [[nodiscard]] static Counts counts();

 private:
  bool started_;
};

}  // namespace quillmere

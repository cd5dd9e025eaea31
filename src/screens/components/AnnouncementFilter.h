#pragma once

#include <QtCore/QString>

#include <utility>

namespace quillmere {

/// Tells what is news to somebody who does not see the screen: each thing is said once, however
/// often its details change.
class AnnouncementFilter {
 public:
  /// Whether `text`, which stands now, was not said before; an empty one says nothing.
  [[nodiscard]] bool accept(const QString& text) {
    return std::exchange(last_, text) != text && !text.isEmpty();
  }

  /// The answer to a new question is news, though it may be what was said before.
  void reset() { last_.clear(); }

 private:
  QString last_;
};

}  // namespace quillmere

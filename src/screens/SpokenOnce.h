#pragma once

#include <QtCore/QString>

#include <utility>

namespace quillmere {

/// Tells what is news to somebody who does not see the screen: each thing is said once, however
/// often its details change.
class SpokenOnce {
 public:
  /// Whether `text`, which stands now, was not said before; an empty one says nothing.
  [[nodiscard]] bool isNews(const QString& text) {
    return std::exchange(last_, text) != text && !text.isEmpty();
  }

 private:
  QString last_;
};

}  // namespace quillmere

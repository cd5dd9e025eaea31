#pragma once

#include <QtCore/QElapsedTimer>
#include <QtCore/QTimer>

#include <algorithm>

namespace quillmere {

/// Notes the longest time that the event loop of its thread was away while this lives: for so long
/// nothing that a user did would have been answered.
class LongestGap {
 public:
  LongestGap() {
    sinceLastTurn_.start();
    turns_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&turns_, &QTimer::timeout, &turns_, [this] { note(); });
    turns_.start(1);
  }

  [[nodiscard]] double milliseconds() {
    note();
    return static_cast<double>(longest_) / 1e6;
  }

 private:
  void note() {
    longest_ = std::max(longest_, sinceLastTurn_.nsecsElapsed());
    sinceLastTurn_.start();
  }

  QElapsedTimer sinceLastTurn_;
  QTimer turns_;
  qint64 longest_ = 0;
};

}  // namespace quillmere

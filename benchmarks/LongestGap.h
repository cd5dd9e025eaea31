#pragma once

#include <QtCore/QElapsedTimer>
#include <QtCore/QTimer>

#include <ctime>

namespace quillmere {

/// Notes the longest time that the event loop of its thread was away while this lives: for so long
/// nothing that a user did would have been answered.
class LongestGap {
 public:
  LongestGap() {
    sinceLastTurn_.start();
    computedBefore_ = computed();
    turns_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&turns_, &QTimer::timeout, &turns_, [this] { note(); });
    turns_.start(1);
  }

  [[nodiscard]] double milliseconds() {
    note();
    return static_cast<double>(longest_) / 1e6;
  }

  /// The part of it for which the thread computed; for the rest it had no processor.
  [[nodiscard]] double computedMilliseconds() const { return static_cast<double>(ofThat_) / 1e6; }

 private:
  /// The nanoseconds for which this thread has had a processor.
  static qint64 computed() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return time.tv_sec * qint64{1'000'000'000} + time.tv_nsec;
  }

  void note() {
    const qint64 gap = sinceLastTurn_.nsecsElapsed();
    const qint64 computedNow = computed();
    if (gap > longest_) {
      longest_ = gap;
      ofThat_ = computedNow - computedBefore_;
    }
    computedBefore_ = computedNow;
    sinceLastTurn_.start();
  }

  QElapsedTimer sinceLastTurn_;
  QTimer turns_;
  qint64 longest_ = 0;
  qint64 ofThat_ = 0;
  qint64 computedBefore_ = 0;
};

}  // namespace quillmere

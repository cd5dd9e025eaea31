#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QFile>
#include <QtCore/QObject>

#include <atomic>
#include <chrono>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

class QQuickWindow;

namespace quillmere::test {

/// Watches how long the UI thread is away from its event loop, and what it does there.
///
/// A thread of its own posts one event after the other to the UI thread, as if a user did
/// something all the time, and each is timed until it is handled. `begin` and `end` are told of
/// everything that the UI thread handles, so that a wait can be blamed. Lines on the standard
/// input name the step of the story that is being told. Lives on the UI thread.
class StoryProbe : public QObject {
 public:
  using Clock = std::chrono::steady_clock;

  StoryProbe();
  ~StoryProbe() override;
  Q_DISABLE_COPY_MOVE(StoryProbe)

  /// Tells of one event that is about to be handled, or was.
  void begin(const QObject* receiver, const QEvent& event);
  void end();

  /// From the first frame of `window` on the waits count; until then it is the start.
  void watch(QQuickWindow* window);

  /// What was found, as a JSON document.
  [[nodiscard]] QByteArray report() const;

 protected:
  void customEvent(QEvent* event) override;

 private:
  /// Something that is or was handled: what it was, and the worst that happened within.
  struct Work {
    QByteArray what;
    Clock::time_point begun;
    Clock::duration took{};
    QByteArray worstWithin;
    Clock::duration worstWithinTook{};
  };

  /// One wait that was longer than a frame may take.
  struct Gap {
    Clock::duration waited;
    Clock::duration computed;
    /// It could have gone on, and the machine had no processor for it.
    Clock::duration queued;
    Clock::time_point at;
    QByteArray step;
    std::vector<Work> works;
  };

  void askAgain();
  void listen(const std::stop_token& stop);
  [[nodiscard]] Clock::duration queued() const;
  void note(Clock::duration waited, Clock::duration computed, Clock::duration queued);

  std::vector<Work> nested_;
  /// What was handled since the last event of ours.
  std::vector<Work> handled_;
  std::vector<Gap> gaps_;
  Clock::duration longest_{};
  qint64 asked_ = 0;
  std::optional<Clock::time_point> firstFrame_;
  Clock::duration computedBefore_{};
  Clock::duration queuedBefore_{};
  QFile schedule_;

  mutable std::mutex mutex_;
  QByteArray step_ = "start";
  Clock::time_point postedAt_;

  std::atomic<bool> isAnswered_ = true;
  std::jthread asking_;
  std::jthread listening_;
};

}  // namespace quillmere::test

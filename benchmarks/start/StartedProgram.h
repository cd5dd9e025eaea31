#pragma once

#include <QtCore/QString>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <sys/types.h>
#include <thread>

namespace quillmere {

/// A program of Qt Quick at work, watched from outside: Qt itself says on its standard error when a
/// frame has been painted. Drawn in software, so that no two machines differ by their graphics
/// driver; without a display on the offscreen platform. Ends with its owner.
class StartedProgram {
 public:
  using Clock = std::chrono::steady_clock;
  using Duration = std::chrono::duration<double>;

  /// Starts `program`, which finds its files in `home`.
  StartedProgram(const QString& program, const QString& home);
  ~StartedProgram();
  StartedProgram(const StartedProgram&) = delete;
  StartedProgram& operator=(const StartedProgram&) = delete;

  /// From just before the process was made until its first frame was painted; absent when none
  /// comes. Waits.
  [[nodiscard]] std::optional<Duration> timeToFirstFrame();

  /// Waits until nothing has been painted for `rest`.
  void waitForRest(Duration rest);

  /// How many frames have been painted so far.
  [[nodiscard]] int frames();

  [[nodiscard]] pid_t id() const { return id_; }

  /// The bytes of memory that are its own or shared with others, now and at most.
  [[nodiscard]] double residentBytes() const;
  [[nodiscard]] double peakBytes() const;
  /// The megabytes that it has read from files and pipes so far.
  [[nodiscard]] double readMegabytes() const;
  /// How often its threads have gone to sleep so far, each of which something will end.
  [[nodiscard]] double sleeps() const;

 private:
  void listen();
  [[nodiscard]] QString procFile(const QString& name) const;

  Clock::time_point began_;
  pid_t id_ = -1;
  int errors_ = -1;
  std::mutex mutex_;
  std::condition_variable painted_;
  std::optional<Clock::time_point> firstFrame_;
  Clock::time_point lastFrame_;
  int frames_ = 0;
  std::jthread listener_;
};

}  // namespace quillmere

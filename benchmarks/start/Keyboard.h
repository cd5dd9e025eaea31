#pragma once

#include <QtCore/QString>

#include "start/StartedProgram.h"

namespace quillmere {

/// Presses keys in the window of a program as its user would, on the display that the environment
/// names, which has no window manager or one that lets a window have the keyboard. Blocks until the
/// program has drawn what a key has led to. Needs `xdotool`.
class Keyboard {
 public:
  explicit Keyboard(StartedProgram& program);

  /// Whether the window was found and has the keyboard.
  [[nodiscard]] bool isReady() const { return isReady_; }

  /// A key such as "Tab" or "ctrl+3", so many times.
  void press(const QString& key, int times = 1);
  void type(const QString& text);

 private:
  StartedProgram& program_;
  bool isReady_ = false;
};

}  // namespace quillmere

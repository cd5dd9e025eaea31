#pragma once

#include <QtCore/QStringView>

#include <benchmark/benchmark.h>
#include <functional>

#include "app/QuillmereApp.h"

class QQuickItem;

namespace quillmere {

/// The program's window, and a user who does something and waits until it can be seen. UI thread.
class SeenWindow {
 public:
  /// Opens the window and waits until it rests.
  explicit SeenWindow(AppEnvironment surroundings);
  Q_DISABLE_COPY_MOVE(SeenWindow)

  [[nodiscard]] ContentViewModel& content() { return app_.content(); }

  [[nodiscard]] LocalPersistenceStore& store() { return app_.store(); }

  [[nodiscard]] QQuickWindow& window() const { return *app_.window(); }

  /// Does something and waits for the first frame that shows the window in the state that `isSo`
  /// asks for. Returns the seconds from the one to the other. Where no frame ever does, the
  /// benchmark fails, and says that `what` was not seen.
  double secondsUntilSeen(benchmark::State& state, const char* what,
                          const std::function<void()>& act, const std::function<bool()>& isSo);

  /// Until the window has drawn nothing for a while.
  void settle() const;

  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
  void type(QStringView text) const;
  /// Turns the wheel one notch down over the middle of an item.
  void turnWheel(const QQuickItem& over) const;

  /// The first visible item of this QML type; null where there is none.
  [[nodiscard]] QQuickItem* find(const char* type) const;

 private:
  QuillmereApp app_;
};

}  // namespace quillmere

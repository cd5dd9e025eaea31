#include <QtGui/QGuiApplication>
#include <QtGui/QStyleHints>

#include <benchmark/benchmark.h>

#include "app/QuillmereApp.h"

// The whole program as its user sees it: from what one does to the frame that shows it. On the
// display at hand, or on none with QT_QPA_PLATFORM=offscreen.
int main(int argc, char** argv) {
  quillmere::QuillmereApp::prepare();
  const QGuiApplication application(argc, argv);
  // A cursor that blinks draws frames that nobody asked for.
  QGuiApplication::styleHints()->setCursorFlashTime(0);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}

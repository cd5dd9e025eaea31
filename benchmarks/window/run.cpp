#include <QtQuick/QQuickWindow>

#include <benchmark/benchmark.h>

#include "ChattyPrefix.h"
#include "LongestGap.h"
#include "commands/BrewCommandBuilder.h"
#include "window/BenchmarkHome.h"
#include "window/SeenWindow.h"

namespace quillmere {
namespace {

constexpr std::int64_t megabyte = 1 << 20;

/// A command is run in the window, which shows its output line by line until it has ended.
void runInTheWindow(benchmark::State& state) {
  const ChattyPrefix prefix(state.range(0) * megabyte);
  BenchmarkHome home;
  home.keepPrefix(prefix.url());
  double longest = 0;
  double computed = 0;
  for (auto _ : state) {
    SeenWindow window(home.surroundings());
    CommandWorkflow& commands = *window.content().commands();
    commands.openPreview(BrewCommandBuilder().upgrade(std::nullopt).value(),
                         QStringLiteral("Updates"));
    window.settle();
    CommandPreviewSheetModel& preview = *commands.preview();
    LongestGap gap;
    const double start = window.secondsUntilSeen(
        state, "the run",
        [&] {
          preview.run();
          preview.confirmRun();
        },
        [&] { return commands.session() != nullptr; });
    DirectExecutionSessionViewModel* const session = commands.session();
    if (session == nullptr) {
      break;
    }
    bool isAllThere = false;
    QObject::connect(session, &DirectExecutionSessionViewModel::outputSettled, session, [&] {
      isAllThere = true;
      // If the last line was drawn before it was known to be the last.
      window.window().update();
    });
    const double run = window.secondsUntilSeen(
        state, "its end", [&] { session->setShowsRawOutput(true); },
        [&] { return isAllThere && !session->isRunning(); });
    state.SetIterationTime(start + run);
    if (gap.milliseconds() > longest) {
      longest = gap.milliseconds();
      computed = gap.computedMilliseconds();
    }
  }
  state.counters["longestGapMs"] = longest;
  state.counters["computedMs"] = computed;
}

BENCHMARK(runInTheWindow)->Arg(1)->Arg(100)->UseManualTime()->Unit(benchmark::kMillisecond);

/// The floor.
void readInAPlainLoop(benchmark::State& state) {
  const ChattyPrefix prefix(state.range(0) * megabyte);
  for (auto _ : state) {
    prefix.readInAPlainLoop();
  }
}

BENCHMARK(readInAPlainLoop)->Arg(1)->Arg(100)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quillmere

#include <QtCore/QElapsedTimer>

#include <algorithm>
#include <benchmark/benchmark.h>

#include "InstalledPrefix.h"
#include "LongestGap.h"
#include "window/BenchmarkHome.h"
#include "window/SeenWindow.h"

namespace quillmere {
namespace {

void scanToList(benchmark::State& state) {
  BenchmarkHome home;
  home.keepPrefix(InstalledPrefix::ofSize(static_cast<int>(state.range(0))).url());
  double longest = 0;
  for (auto _ : state) {
    SeenWindow window(home.surroundings());
    window.content().select(AppSection::installed);
    window.settle();
    const InstalledPackagesViewModel& installed = *window.content().installed();
    LongestGap gap;
    state.SetIterationTime(window.secondsUntilSeen(
        state, "the list", [&] { Q_EMIT window.content().installed()->scanRequested(); },
        [&] { return installed.state() == InstalledPackagesViewModel::Listed; }));
    longest = std::max(longest, gap.milliseconds());
  }
  state.counters["longestGapMs"] = longest;
}

BENCHMARK(scanToList)->Arg(500)->Arg(5'000)->UseManualTime()->Unit(benchmark::kMillisecond);

/// The floor: the calls to the system, as cold as they are when somebody asks for a scan.
void callTheSystemAlike(benchmark::State& state) {
  const InstalledPrefix& prefix = InstalledPrefix::ofSize(static_cast<int>(state.range(0)));
  const BenchmarkHome home;
  for (auto _ : state) {
    const SeenWindow window(home.surroundings());
    QElapsedTimer clock;
    clock.start();
    prefix.callTheSystemAlike();
    state.SetIterationTime(static_cast<double>(clock.nsecsElapsed()) / 1e9);
  }
}

BENCHMARK(callTheSystemAlike)->Arg(500)->Arg(5'000)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quillmere

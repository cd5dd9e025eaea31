#include <QtCore/QEventLoop>
#include <QtGui/QGuiApplication>

#include <algorithm>
#include <benchmark/benchmark.h>

#include "ChattyPrefix.h"
#include "LongestGap.h"
#include "commands/BrewCommandBuilder.h"
#include "execution/DirectCommandRunner.h"
#include "execution/DirectExecutionSessionController.h"
#include "screens/run/DirectExecutionSessionViewModel.h"

namespace quillmere {
namespace {

constexpr std::int64_t megabyte = 1 << 20;

/// The floor.
void readInAPlainLoop(benchmark::State& state) {
  const ChattyPrefix prefix(state.range(0) * megabyte);
  for (auto _ : state) {
    prefix.readInAPlainLoop();
  }
  state.SetBytesProcessed(state.iterations() * state.range(0) * megabyte);
}

void runIntoTheModels(benchmark::State& state) {
  const ChattyPrefix prefix(state.range(0) * megabyte);
  const BrewExecutableResolution resolution = {BrewExecutableResolution::Status::resolved,
                                               prefix.url(), fileUrl(prefix.brew())};
  const auto runner = std::make_shared<DirectCommandRunner>();
  const BrewCommand command = BrewCommandBuilder().upgrade(std::nullopt).value();
  double longestAway = 0;
  for (auto _ : state) {
    LongestGap gap;
    DirectExecutionSessionController controller(command, {}, resolution, runner);
    DirectExecutionSessionViewModel model(controller);
    QEventLoop loop;
    QObject::connect(&model, &DirectExecutionSessionViewModel::outputSettled, &loop,
                     &QEventLoop::quit);
    controller.start();
    loop.exec();
    longestAway = std::max(longestAway, gap.milliseconds());
    if (controller.result()->standardOutput.size() < state.range(0) * megabyte ||
        model.rawOutput()->rowCount() < 1000) {
      state.SkipWithError("output was lost");
    }
  }
  state.counters["longestGapMs"] = longestAway;
  state.SetBytesProcessed(state.iterations() * state.range(0) * megabyte);
}

BENCHMARK(readInAPlainLoop)
    ->Arg(1)
    ->Arg(10)
    ->Arg(100)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(runIntoTheModels)
    ->Arg(1)
    ->Arg(10)
    ->Arg(100)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quillmere

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}

#include <QtCore/QEventLoop>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtGui/QGuiApplication>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <sys/wait.h>
#include <vector>

#include "LongestGap.h"
#include "commands/BrewCommandBuilder.h"
#include "execution/ChildProcess.h"
#include "execution/DirectCommandRunner.h"
#include "execution/DirectExecutionSessionController.h"
#include "platform/FileUrl.h"
#include "screens/DirectExecutionSessionViewModel.h"

namespace quillmere {
namespace {

constexpr std::int64_t megabyte = 1 << 20;

/// A prefix whose `bin/brew` prints as many bytes as it is told.
class ChattyPrefix {
 public:
  explicit ChattyPrefix(std::int64_t bytes) {
    QDir(folder_.path()).mkdir(QStringLiteral("bin"));
    QFile script(brew());
    script.open(QFile::WriteOnly);
    script.write("#!/bin/sh\nexec " CHATTER_PROGRAM " " + QByteArray::number(qint64(bytes)) + '\n');
    script.close();
    script.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
  }

  [[nodiscard]] QString brew() const { return folder_.filePath(QStringLiteral("bin/brew")); }

  [[nodiscard]] BrewExecutableResolution resolution() const {
    return {BrewExecutableResolution::Status::resolved, fileUrl(folder_.path()), fileUrl(brew())};
  }

 private:
  QTemporaryDir folder_;
};

/// The floor: the same child, its output read by a plain loop and thrown away.
void readInAPlainLoop(benchmark::State& state) {
  const ChattyPrefix prefix(state.range(0) * megabyte);
  std::vector<char> buffer(64UZ * 1024);
  for (auto _ : state) {
    auto standardOutput = ChildProcess::openPipe();
    auto standardError = ChildProcess::openPipe();
    auto child = ChildProcess::launch({prefix.brew().toStdString(), {}, inheritedEnvironment()},
                                      *standardOutput, *standardError);
    fcntl(standardOutput->reading.get(), F_SETFL, 0);
    while (read(standardOutput->reading.get(), buffer.data(), buffer.size()) > 0) {
    }
    benchmark::DoNotOptimize(child->reap());
  }
  state.SetBytesProcessed(state.iterations() * state.range(0) * megabyte);
}

void runIntoTheModels(benchmark::State& state) {
  const ChattyPrefix prefix(state.range(0) * megabyte);
  const auto runner = std::make_shared<DirectCommandRunner>();
  const BrewCommand command = BrewCommandBuilder().upgrade(std::nullopt).value();
  double longestAway = 0;
  for (auto _ : state) {
    LongestGap gap;
    DirectExecutionSessionController controller(command, {}, prefix.resolution(), runner);
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

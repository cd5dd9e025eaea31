#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QProcess>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>

#include <benchmark/benchmark.h>
#include <memory>
#include <thread>

#include "LongHistory.h"
#include "RealCatalog.h"
#include "demo/DemoHome.h"
#include "persistence/LocalPersistenceStore.h"
#include "platform/FileUrl.h"
#include "start/Keyboard.h"
#include "start/StartedProgram.h"

using namespace std::chrono_literals;

namespace quillmere {
namespace {

const QString emptyWindow = QStringLiteral(EMPTY_WINDOW);
const QString quillmereProgram = QStringLiteral(QUILLMERE_PROGRAM);

/// The home of somebody who knows the program: a prefix is selected, a catalog is in the cache and
/// there is a history.
class Home {
 public:
  Home() { (void)home_.write(demo::DemoUser::regular); }

  [[nodiscard]] const QString& path() const { return home_.folder; }

  void rememberTenThousandCommands() {
    LocalPersistenceStore store(
        std::make_unique<QSettings>(home_.settingsFile(), QSettings::NativeFormat),
        fileUrl(home_.catalogFolder()));
    store.setCommandHistory(longHistory());
  }

  [[nodiscard]] bool rememberCatalog(const CatalogBytes& documents) {
    return write(QStringLiteral("formula.json"), documents.formulae) &&
           write(QStringLiteral("cask.json"), documents.casks);
  }

 private:
  [[nodiscard]] bool write(const QString& name, const QByteArray& document) {
    QFile file(home_.catalogFolder() + name);
    return file.open(QFile::WriteOnly) && file.write(document) == document.size();
  }

  QTemporaryDir folder_;
  demo::DemoHome home_{folder_.path()};
};

/// From just before the process is made until Qt says that the first frame has been painted.
void start(benchmark::State& state, const QString& program, const Home& home) {
  // The first one fills the caches of the system.
  (void)StartedProgram(program, home.path()).timeToFirstFrame();
  for (auto _ : state) {
    StartedProgram started(program, home.path());
    const auto time = started.timeToFirstFrame();
    if (!time) {
      state.SkipWithError("No frame was painted");
      break;
    }
    state.SetIterationTime(time->count());
  }
}

void startToFirstFrame(benchmark::State& state) {
  start(state, quillmereProgram, Home());
}

BENCHMARK(startToFirstFrame)->Unit(benchmark::kMillisecond)->UseManualTime();

void startWithAHistoryOfTenThousand(benchmark::State& state) {
  Home home;
  home.rememberTenThousandCommands();
  start(state, quillmereProgram, home);
}

BENCHMARK(startWithAHistoryOfTenThousand)->Unit(benchmark::kMillisecond)->UseManualTime();

/// The floor.
void startOfAnEmptyWindow(benchmark::State& state) {
  start(state, emptyWindow, Home());
}

BENCHMARK(startOfAnEmptyWindow)->Unit(benchmark::kMillisecond)->UseManualTime();

/// A second in which nobody does anything, after another one for what the start left to be done.
void rest(benchmark::State& state, const QString& program) {
  constexpr auto second = 1s;
  for (auto _ : state) {
    const Home home;
    StartedProgram started(program, home.path());
    (void)started.timeToFirstFrame();
    std::this_thread::sleep_for(second);
    const double before = started.sleeps();
    std::this_thread::sleep_for(second);
    state.counters["wakeups"] = started.sleeps() - before;
    state.counters["residentBytes"] = started.residentBytes();
    state.counters["peakBytes"] = started.peakBytes();
  }
}

void memoryOfTheIdleProgram(benchmark::State& state) {
  rest(state, quillmereProgram);
}

BENCHMARK(memoryOfTheIdleProgram)->Unit(benchmark::kSecond)->Iterations(1)->UseRealTime();

/// The floor.
void memoryOfAnEmptyWindow(benchmark::State& state) {
  rest(state, emptyWindow);
}

BENCHMARK(memoryOfAnEmptyWindow)->Unit(benchmark::kSecond)->Iterations(1)->UseRealTime();

/// Loads the whole catalog from the cache, searches in it and walks down its list. On a display,
/// for its keys.
void memoryAfterAWalkThroughTheCatalog(benchmark::State& state) {
  // From the sidebar on, past the three buttons that fetch.
  constexpr int tabsToLoadCachedAll = 4;
  constexpr int rows = 250;
  const CatalogBytes documents = realCatalog().isEmpty() ? generatedCatalog(1) : realCatalog();
  for (auto _ : state) {
    Home home;
    StartedProgram started(quillmereProgram, home.path());
    if (!home.rememberCatalog(documents) || !started.timeToFirstFrame()) {
      state.SkipWithError("No frame was painted");
      break;
    }
    Keyboard keyboard(started);
    if (!keyboard.isReady()) {
      state.SkipWithError("xdotool does not find the window");
      break;
    }
    keyboard.press(QStringLiteral("ctrl+3"));
    keyboard.press(QStringLiteral("Tab"), tabsToLoadCachedAll);
    const double readBefore = started.readMegabytes();
    keyboard.press(QStringLiteral("space"));
    std::this_thread::sleep_for(1s);
    if (started.readMegabytes() - readBefore < static_cast<double>(documents.size()) / 1e6) {
      state.SkipWithError("The catalog was not loaded");
      break;
    }
    keyboard.press(QStringLiteral("ctrl+f"));
    keyboard.type(QStringLiteral("lib"));
    keyboard.press(QStringLiteral("Return"));
    std::this_thread::sleep_for(1s);
    keyboard.press(QStringLiteral("Down"));
    const int framesBefore = started.frames();
    keyboard.press(QStringLiteral("Down"), rows);
    std::this_thread::sleep_for(1s);
    if (started.frames() == framesBefore) {
      state.SkipWithError("The list was not walked down");
      break;
    }
    state.counters["residentBytes"] = started.residentBytes();
    state.counters["peakBytes"] = started.peakBytes();
  }
}

BENCHMARK(memoryAfterAWalkThroughTheCatalog)
    ->Unit(benchmark::kSecond)
    ->Iterations(1)
    ->UseRealTime();

/// What is installed, without what is there for a debugger.
void sizeOfTheProgram(benchmark::State& state) {
  const QTemporaryDir folder;
  const QString stripped = folder.filePath(QStringLiteral("quillmere"));
  for (auto _ : state) {
    if (QProcess::execute(QStringLiteral("strip"),
                          {QStringLiteral("-o"), stripped, quillmereProgram}) != 0) {
      state.SkipWithError("strip does not work");
      break;
    }
  }
  state.counters["strippedBytes"] = static_cast<double>(QFileInfo(stripped).size());
}

BENCHMARK(sizeOfTheProgram)->Unit(benchmark::kMillisecond)->Iterations(1)->UseRealTime();

}  // namespace
}  // namespace quillmere

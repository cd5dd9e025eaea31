#include <QtTest/QTest>

#include <algorithm>
#include <benchmark/benchmark.h>

#include "LongHistory.h"
#include "LongestGap.h"
#include "window/BenchmarkHome.h"
#include "window/SeenWindow.h"

namespace quillmere {
namespace {

/// A window that shows a history of ten thousand records.
class HistoryWindow : public SeenWindow {
 public:
  HistoryWindow() : SeenWindow(home().surroundings()) {
    content().select(AppSection::history);
    // It is read on another thread: a busy machine may rest before it is there.
    if (!QTest::qWaitFor([this] { return content().history()->records()->rowCount() > 0; },
                         60'000)) {
      qFatal("the history does not show");
    }
    settle();
  }

 private:
  static const BenchmarkHome& home() {
    static const BenchmarkHome made = [] {
      BenchmarkHome fresh;
      fresh.keepHistory(longHistory());
      return fresh;
    }();
    return made;
  }
};

void appendToLongHistory(benchmark::State& state) {
  HistoryWindow window;
  const QAbstractItemModel& rows = *window.content().history()->records();
  double longest = 0;
  int number = 10'000;
  for (auto _ : state) {
    const int before = rows.rowCount();
    LongestGap gap;
    state.SetIterationTime(window.secondsUntilSeen(
        state, "the record", [&] { window.store().appendHistory(historyRecord(number++)); },
        [&] { return rows.rowCount() == before + 1; }));
    longest = std::max(longest, gap.milliseconds());
    window.settle();
  }
  state.counters["longestGapMs"] = longest;
}

BENCHMARK(appendToLongHistory)->UseManualTime()->Iterations(10)->Unit(benchmark::kMillisecond);

/// Letter by letter: each until a frame shows what the text so far finds.
void searchLongHistoryAsOneTypes(benchmark::State& state) {
  HistoryWindow window;
  const CommandHistoryViewModel& history = *window.content().history();
  const QString query = QStringLiteral("package-777");
  double longest = 0;
  double first = 0;
  for (auto _ : state) {
    window.press(Qt::Key_F, Qt::ControlModifier);
    window.press(Qt::Key_Delete);
    window.settle();
    double seconds = 0;
    for (qsizetype length = 1; length <= query.size(); ++length) {
      const double letter = window.secondsUntilSeen(
          state, "what was found", [&] { window.type(query.sliced(length - 1, 1)); },
          [&] {
            return history.searchText() == query.first(length) && !history.matchesText().isEmpty();
          });
      seconds += letter;
      if (length == 1) {
        first = std::max(first, letter);
      } else {
        longest = std::max(longest, letter);
      }
    }
    state.SetIterationTime(seconds / static_cast<double>(query.size()));
  }
  state.counters["firstLetterMs"] = first * 1000;
  state.counters["longestLetterMs"] = longest * 1000;
}

BENCHMARK(searchLongHistoryAsOneTypes)
    ->UseManualTime()
    ->Iterations(3)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quillmere

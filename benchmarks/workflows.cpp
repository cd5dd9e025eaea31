#include <QCoroTask>
#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QTimer>
#include <QtNetwork/QNetworkAccessManager>

#include <algorithm>
#include <benchmark/benchmark.h>

#include "RealCatalog.h"
#include "app/CatalogWorkflows.h"
#include "app/InventoryWorkflows.h"
#include "persistence/LocalPersistenceStore.h"
#include "screens/FormulaCatalogViewModel.h"
#include "support/CatalogServer.h"
#include "support/DemoPrefix.h"
#include "support/TemporarySettings.h"

namespace quillmere {
namespace {

const QByteArray formulaPath = QByteArrayLiteral("/api/formula.json");
const QByteArray caskPath = QByteArrayLiteral("/api/cask.json");

/// Notes the longest time that the event loop was away while this lives.
class LongestGap {
 public:
  LongestGap() {
    sinceLastTurn_.start();
    QObject::connect(&turns_, &QTimer::timeout, &turns_, [this] { note(); });
    turns_.start(0);
  }

  [[nodiscard]] double milliseconds() {
    note();
    return static_cast<double>(longest_) / 1e6;
  }

 private:
  void note() {
    longest_ = std::max(longest_, sinceLastTurn_.nsecsElapsed());
    sinceLastTurn_.start();
  }

  QElapsedTimer sinceLastTurn_;
  QTimer turns_;
  qint64 longest_ = 0;
};

/// The workflows of the main window over a server of their own.
struct Workflows {
  Workflows() {
    const CatalogBytes documents = realCatalog().isEmpty() ? generatedCatalog(1) : realCatalog();
    server.answer(formulaPath, {.body = documents.formulae, .gzip = true});
    server.answer(caskPath, {.body = documents.casks, .gzip = true});
  }

  test::CatalogServer server;
  test::TemporarySettings settings;
  LocalPersistenceStore store{settings.open(), settings.cacheDirectoryURL()};
  QNetworkAccessManager session;
  CatalogWorkflows catalog{store,
                           {.formulae = {.apiURL = server.url(formulaPath), .session = &session},
                            .casks = {.apiURL = server.url(caskPath), .session = &session}}};
  InventoryWorkflows inventory{store};
};

/// Runs `task` again and again; the counter is the longest gap in the event loop of all runs.
template <typename Task>
void watch(benchmark::State& state, const Task& task) {
  double longest = 0;
  for (auto _ : state) {
    LongestGap gap;
    task();
    longest = std::max(longest, gap.milliseconds());
  }
  state.counters["longestGapMs"] = longest;
}

void fetchCatalog(benchmark::State& state) {
  Workflows workflows;
  watch(state, [&] { QCoro::waitFor(workflows.catalog.fetch(CatalogScope::all)); });
}

BENCHMARK(fetchCatalog)->Unit(benchmark::kMillisecond)->UseRealTime();

void loadCachedCatalog(benchmark::State& state) {
  Workflows workflows;
  QCoro::waitFor(workflows.catalog.fetch(CatalogScope::all));
  watch(state, [&] { QCoro::waitFor(workflows.catalog.loadCached(CatalogScope::all)); });
}

BENCHMARK(loadCachedCatalog)->Unit(benchmark::kMillisecond)->UseRealTime();

/// One letter after the other, each a search of its own.
void searchCatalog(benchmark::State& state) {
  Workflows workflows;
  QCoro::waitFor(workflows.catalog.fetch(CatalogScope::all));
  FormulaCatalogViewModel browse;
  browse.setInputs({.state = workflows.catalog.state()});
  const QString query = QStringLiteral("no such package");
  watch(state, [&] {
    for (qsizetype length = 1; length <= query.size(); ++length) {
      browse.search()->setSearchText(query.first(length));
      while (browse.isFiltering()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
      }
    }
  });
}

BENCHMARK(searchCatalog)->Unit(benchmark::kMillisecond)->UseRealTime();

void scanPrefix(benchmark::State& state) {
  Workflows workflows;
  QCoro::waitFor(workflows.catalog.fetch(CatalogScope::all));
  test::DemoPrefix prefix;
  prefix.withFile(QStringLiteral("bin/brew"));
  for (int i = 0; i < 5'000; ++i) {
    prefix.withFile(QStringLiteral("Cellar/package-%1/1.0/INSTALL_RECEIPT.json").arg(i),
                    R"({"installed_on_request": true})");
  }
  workflows.store.selectPrefix(prefix.url());
  watch(state, [&] { QCoro::waitFor(workflows.inventory.scan()); });
}

BENCHMARK(scanPrefix)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace quillmere

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}

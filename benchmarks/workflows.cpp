#include <QCoroTask>
#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtNetwork/QNetworkAccessManager>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <map>

#include "LongestGap.h"
#include "RealCatalog.h"
#include "app/CatalogWorkflows.h"
#include "app/InventoryWorkflows.h"
#include "persistence/LocalPersistenceStore.h"
#include "screens/browse/FormulaCatalogViewModel.h"
#include "support/CatalogServer.h"
#include "support/TemporarySettings.h"
#include "support/TestPrefix.h"

namespace quillmere {
namespace {

const QByteArray formulaPath = QByteArrayLiteral("/api/formula.json");
const QByteArray caskPath = QByteArrayLiteral("/api/cask.json");

/// The workflows of the main window over a server of their own.
struct Workflows {
  Workflows() {
    const CatalogBytes& documents = catalogAtHand();
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

/// Runs `task` again and again; the counters are the longest gap in the event loop of all runs, and
/// for how much of it the UI thread computed: the decoders and the server want processors as well.
template <typename Task>
void watch(benchmark::State& state, const Workflows& workflows, const Task& task) {
  double longest = 0;
  double computed = 0;
  for (auto _ : state) {
    LongestGap gap;
    task();
    if (gap.milliseconds() > longest) {
      longest = gap.milliseconds();
      computed = gap.computedMilliseconds();
    }
  }
  state.counters["longestGapMs"] = longest;
  state.counters["computedMs"] = computed;
  if (!workflows.catalog.state().catalog()) {
    state.SkipWithError("the catalog did not arrive");
  }
}

void fetchCatalog(benchmark::State& state) {
  Workflows workflows;
  watch(state, workflows, [&] { QCoro::waitFor(workflows.catalog.fetch(CatalogScope::all)); });
}

BENCHMARK(fetchCatalog)->Unit(benchmark::kMillisecond)->UseRealTime();

void loadCachedCatalog(benchmark::State& state) {
  Workflows workflows;
  QCoro::waitFor(workflows.catalog.fetch(CatalogScope::all));
  watch(state, workflows, [&] { QCoro::waitFor(workflows.catalog.loadCached(CatalogScope::all)); });
}

BENCHMARK(loadCachedCatalog)->Unit(benchmark::kMillisecond)->UseRealTime();

/// One letter after the other, each a search of its own.
void searchCatalog(benchmark::State& state) {
  Workflows workflows;
  QCoro::waitFor(workflows.catalog.fetch(CatalogScope::all));
  FormulaCatalogViewModel browse;
  browse.setInputs({.state = workflows.catalog.state()});
  const QString query = QStringLiteral("no such package");
  watch(state, workflows, [&] {
    for (qsizetype length = 1; length <= query.size(); ++length) {
      browse.search()->setSearchText(query.first(length));
      while (browse.isFiltering()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
      }
    }
  });
}

BENCHMARK(searchCatalog)->Unit(benchmark::kMillisecond)->UseRealTime();

/// A prefix with so many formulae. Made once for each size: making and removing it takes longer
/// than scanning it.
const test::TestPrefix& prefixOfSize(std::int64_t formulae) {
  static std::map<std::int64_t, test::TestPrefix> prefixes;
  const auto [prefix, isNew] = prefixes.try_emplace(formulae);
  if (isNew) {
    prefix->second.withFile(QStringLiteral("bin/brew"));
    for (std::int64_t i = 0; i < formulae; ++i) {
      prefix->second.withFile(QStringLiteral("Cellar/package-%1/1.0/INSTALL_RECEIPT.json").arg(i),
                              R"({"installed_on_request": true})");
    }
  }
  return prefix->second;
}

void scanPrefix(benchmark::State& state) {
  Workflows workflows;
  QCoro::waitFor(workflows.catalog.fetch(CatalogScope::all));
  workflows.store.selectPrefix(prefixOfSize(state.range(0)).url());
  watch(state, workflows, [&] { QCoro::waitFor(workflows.inventory.scan()); });
}

BENCHMARK(scanPrefix)->Arg(500)->Arg(5'000)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace quillmere

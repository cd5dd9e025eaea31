#include <QtCore/QByteArray>
#include <QtCore/QJsonDocument>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <malloc.h>
#include <random>

#include "RealCatalog.h"
#include "catalog/PackageCatalogFilter.h"
#include "platform/NameOrdering.h"

namespace quillmere {
namespace {

/// Runs `task` on the real documents, or on as many generated packages.
template <typename Task>
void onDocuments(benchmark::State& state, const Task& task) {
  const CatalogBytes& documents = catalogAtHand();
  for (auto _ : state) {
    task(documents);
  }
  state.SetBytesProcessed(state.iterations() * documents.size());
}

PackageCatalogPtr catalogOf(const CatalogBytes& documents) {
  return decodeCatalog({.formulae = documents.formulae, .casks = documents.casks}).value();
}

/// As the program does it: side by side, to summaries with their search index.
void decodeBothToCatalog(benchmark::State& state) {
  onDocuments(
      state, [](const CatalogBytes& documents) { benchmark::DoNotOptimize(catalogOf(documents)); });
}

BENCHMARK(decodeBothToCatalog)->Unit(benchmark::kMillisecond)->UseRealTime();

/// The floor.
void parseBothWithSimdjsonDom(benchmark::State& state) {
  onDocuments(state, [](const CatalogBytes& documents) {
    parsePlainly(documents.formulae);
    parsePlainly(documents.casks);
  });
}

BENCHMARK(parseBothWithSimdjsonDom)->Unit(benchmark::kMillisecond);

void parseBothWithQJsonDocument(benchmark::State& state) {
  onDocuments(state, [](const CatalogBytes& documents) {
    benchmark::DoNotOptimize(QJsonDocument::fromJson(documents.formulae));
    benchmark::DoNotOptimize(QJsonDocument::fromJson(documents.casks));
  });
}

BENCHMARK(parseBothWithQJsonDocument)->Unit(benchmark::kMillisecond);

/// Catalogs of one, three and ten times the real size, beside their floor: the ratio stays.
template <void (*task)(const CatalogBytes&)>
void onGeneratedCatalog(benchmark::State& state) {
  const CatalogBytes documents = generatedCatalog(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    task(documents);
  }
  state.SetBytesProcessed(state.iterations() * documents.size());
}

void decodeGenerated(const CatalogBytes& documents) {
  benchmark::DoNotOptimize(catalogOf(documents));
}

void parseGenerated(const CatalogBytes& documents) {
  parsePlainly(documents.formulae);
  parsePlainly(documents.casks);
}

BENCHMARK(onGeneratedCatalog<decodeGenerated>)
    ->Arg(1)
    ->Arg(3)
    ->Arg(10)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(onGeneratedCatalog<parseGenerated>)
    ->Arg(1)
    ->Arg(3)
    ->Arg(10)
    ->Unit(benchmark::kMillisecond);

std::size_t sizeOf(const std::optional<SharedText>& text) {
  return text ? text->view().size() : 0;
}

/// The texts that a summary holds, each counted where it stands, as UTF-8.
std::size_t textSize(const HomebrewPackageSummary& row) {
  std::size_t size = row.id.view().size() + row.name.view().size() + sizeOf(row.description) +
                     sizeOf(row.version) + sizeOf(row.alternateVersion) + sizeOf(row.license) +
                     sizeOf(row.tap);
  size += row.homepage ? row.homepage->text().view().size() : 0;
  for (const SharedText& item : row.detailItems) {
    size += item.view().size();
  }
  return size;
}

/// Bytes that the allocator has given out.
double allocated() {
  const struct mallinfo2 info = mallinfo2();
  return static_cast<double>(info.uordblks + info.hblkhd);
}

/// Not a time: the counters say what the kept catalog takes, beside the bytes of its texts.
void keepCatalog(benchmark::State& state) {
  double kept = 0;
  std::size_t texts = 0;
  onDocuments(state, [&](const CatalogBytes& documents) {
    const double before = allocated();
    const PackageCatalogPtr catalog = catalogOf(documents);
    kept = allocated() - before;
    texts = 0;
    for (const HomebrewPackageSummary& row : catalog->packages()) {
      texts += textSize(row);
    }
  });
  state.counters["keptBytes"] = kept;
  state.counters["textBytes"] = static_cast<double>(texts);
  state.counters["ratio"] = texts == 0 ? 0 : kept / static_cast<double>(texts);
}

BENCHMARK(keepCatalog)->Unit(benchmark::kMillisecond);

/// The catalog that searches are measured on.
const PackageCatalog& searchedCatalog() {
  static const PackageCatalogPtr catalog = catalogOf(catalogAtHand());
  return *catalog;
}

/// The names as they are scanned: those of the formulae and those of the casks, each in the order
/// of their folders.
std::vector<QString> listedNames() {
  std::vector<QString> result;
  for (const HomebrewPackageSummary& package : searchedCatalog().packages()) {
    result.push_back(package.name.toString());
  }
  return result;
}

std::vector<QString> shuffledNames() {
  std::vector<QString> result = listedNames();
  std::ranges::shuffle(result, std::minstd_rand(1));
  return result;
}

template <std::vector<QString> (*names)()>
void sortNames(benchmark::State& state) {
  const std::vector<QString> unsorted = names();
  for (auto _ : state) {
    std::vector<QString> sorted = unsorted;
    NameOrdering::forUserLocale().stableSort(sorted, [](const QString& name) { return name; });
    benchmark::DoNotOptimize(sorted);
  }
}

BENCHMARK(sortNames<listedNames>)->Unit(benchmark::kMillisecond);
BENCHMARK(sortNames<shuffledNames>)->Unit(benchmark::kMillisecond);

/// The floor: one collation key per name, all there at the same time as a sort needs them.
void makeSortKeys(benchmark::State& state) {
  const std::vector<QString> unsorted = listedNames();
  for (auto _ : state) {
    std::vector<QCollatorSortKey> keys;
    keys.reserve(unsorted.size());
    for (const QString& name : unsorted) {
      keys.push_back(NameOrdering::forUserLocale().sortKey(name));
    }
    benchmark::DoNotOptimize(keys);
  }
}

BENCHMARK(makeSortKeys)->Unit(benchmark::kMillisecond);

void search(benchmark::State& state, const char* text, PackageCatalogFilter filter) {
  const PackageCatalog& catalog = searchedCatalog();
  const auto request = FilterRequest::make(QString::fromLatin1(text), filter, catalog);
  for (auto _ : state) {
    benchmark::DoNotOptimize(filteredPackages(catalog, request));
  }
}

BENCHMARK_CAPTURE(search, nothing, "no such package", PackageCatalogFilter::all)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(search, broad, "lib", PackageCatalogFilter::all)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(search, oneLetter, "e", PackageCatalogFilter::all)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(search, caskWord, "cask", PackageCatalogFilter::casks)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(search, wrongKind, "formula", PackageCatalogFilter::casks)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(search, typeOnly, "", PackageCatalogFilter::casks)->Unit(benchmark::kMicrosecond);

/// The floor of the searches: one look through the same folded text.
void lookThroughText(benchmark::State& state) {
  const std::string_view text = searchedCatalog().searchIndex().text();
  const std::string_view query = "no such package";
  for (auto _ : state) {
    benchmark::DoNotOptimize(memmem(text.data(), text.size(), query.data(), query.size()));
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}

BENCHMARK(lookThroughText)->Unit(benchmark::kMicrosecond);

/// The formula that most others depend on.
const HomebrewPackageSummary& mostUsedFormula() {
  static const HomebrewPackageSummary* const mostUsed = [] {
    const PackageCatalog& catalog = searchedCatalog();
    return &*std::ranges::max_element(catalog.packages(), {}, [&catalog](const auto& package) {
      const auto names = catalog.reverseDependencyNames(package);
      return names ? names->size() : 0;
    });
  }();
  return *mostUsed;
}

void nameReverseDependencies(benchmark::State& state) {
  const HomebrewPackageSummary& formula = mostUsedFormula();
  for (auto _ : state) {
    benchmark::DoNotOptimize(searchedCatalog().reverseDependencyNames(formula));
  }
  state.counters["dependants"] =
      static_cast<double>(searchedCatalog().reverseDependencyNames(formula)->size());
}

BENCHMARK(nameReverseDependencies)->Unit(benchmark::kMicrosecond);

/// The floor: one pass over all dependencies.
void passOverDependencies(benchmark::State& state) {
  const std::string_view name = mostUsedFormula().name.view();
  for (auto _ : state) {
    std::size_t count = 0;
    for (const HomebrewPackageSummary& package : searchedCatalog().packages()) {
      for (const SharedText& item : package.detailItems) {
        count += item == name ? 1 : 0;
      }
    }
    benchmark::DoNotOptimize(count);
  }
}

BENCHMARK(passOverDependencies)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace quillmere

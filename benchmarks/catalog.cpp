#include <QtCore/QByteArray>
#include <QtCore/QCoreApplication>
#include <QtCore/QJsonDocument>
#include <QtCore/QProcess>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <malloc.h>
#include <random>
#include <simdjson.h>

#include "catalog/CatalogDecoding.h"
#include "catalog/HomebrewPackageSummary.h"
#include "platform/NameOrdering.h"
#include "support/GeneratedCatalog.h"

namespace quillmere {
namespace {

using Summaries = std::vector<HomebrewPackageSummary>;

struct Documents {
  QByteArray formulae;
  QByteArray casks;

  [[nodiscard]] qint64 size() const { return formulae.size() + casks.size(); }
};

/// The document as Homebrew writes it; empty where it or `xz` is not at hand.
QByteArray realDocument(const QString& name) {
  const QString folder =
      qEnvironmentVariable("QUILLMERE_REAL_DATA", QStringLiteral(QUILLMERE_REAL_DATA));
  QProcess xz;
  xz.start(QStringLiteral("xz"), {QStringLiteral("--decompress"), QStringLiteral("--stdout"),
                                  folder + u'/' + name + QStringLiteral(".json.xz")});
  return xz.waitForFinished() ? xz.readAllStandardOutput() : QByteArray();
}

const Documents& realDocuments() {
  static const Documents documents = {.formulae = realDocument(QStringLiteral("formula")),
                                      .casks = realDocument(QStringLiteral("cask"))};
  return documents;
}

Documents generatedDocuments(int times) {
  return {.formulae = generatedFormulaDocument(8554 * times),
          .casks = generatedCaskDocument(7701 * times)};
}

/// Runs `task` on the real documents, or says that they are absent.
template <typename Task>
void onRealDocuments(benchmark::State& state, const Task& task) {
  const Documents& documents = realDocuments();
  if (documents.formulae.isEmpty() || documents.casks.isEmpty()) {
    state.SkipWithError("no real documents; QUILLMERE_REAL_DATA names their folder");
    return;
  }
  for (auto _ : state) {
    task(documents);
  }
  state.SetBytesProcessed(state.iterations() * documents.size());
}

Summaries summariesOf(const Documents& documents) {
  Summaries summaries = packageSummaries(decodeFormulae(documents.formulae).value());
  for (HomebrewPackageSummary& cask : packageSummaries(decodeCasks(documents.casks).value())) {
    summaries.push_back(std::move(cask));
  }
  return summaries;
}

/// The floor: the same bytes parsed, nothing kept.
void parse(const QByteArray& document) {
  simdjson::dom::parser parser;
  benchmark::DoNotOptimize(
      parser.parse(document.constData(), static_cast<std::size_t>(document.size())).error());
}

void decodeBothToSummaries(benchmark::State& state) {
  onRealDocuments(
      state, [](const Documents& documents) { benchmark::DoNotOptimize(summariesOf(documents)); });
}

BENCHMARK(decodeBothToSummaries)->Unit(benchmark::kMillisecond);

void parseBothWithSimdjsonDom(benchmark::State& state) {
  onRealDocuments(state, [](const Documents& documents) {
    parse(documents.formulae);
    parse(documents.casks);
  });
}

BENCHMARK(parseBothWithSimdjsonDom)->Unit(benchmark::kMillisecond);

void parseBothWithQJsonDocument(benchmark::State& state) {
  onRealDocuments(state, [](const Documents& documents) {
    benchmark::DoNotOptimize(QJsonDocument::fromJson(documents.formulae));
    benchmark::DoNotOptimize(QJsonDocument::fromJson(documents.casks));
  });
}

BENCHMARK(parseBothWithQJsonDocument)->Unit(benchmark::kMillisecond);

/// Catalogs of one, three and ten times the real size, beside their floor: the ratio stays.
template <void (*task)(const Documents&)>
void onGeneratedCatalog(benchmark::State& state) {
  const Documents documents = generatedDocuments(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    task(documents);
  }
  state.SetBytesProcessed(state.iterations() * documents.size());
}

void decodeGenerated(const Documents& documents) {
  benchmark::DoNotOptimize(summariesOf(documents));
}

void parseGenerated(const Documents& documents) {
  parse(documents.formulae);
  parse(documents.casks);
}

BENCHMARK(onGeneratedCatalog<decodeGenerated>)
    ->Arg(1)
    ->Arg(3)
    ->Arg(10)
    ->Unit(benchmark::kMillisecond);
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
void keepSummaries(benchmark::State& state) {
  double kept = 0;
  std::size_t texts = 0;
  onRealDocuments(state, [&](const Documents& documents) {
    const double before = allocated();
    const Summaries summaries = summariesOf(documents);
    kept = allocated() - before;
    texts = 0;
    for (const HomebrewPackageSummary& row : summaries) {
      texts += textSize(row);
    }
  });
  state.counters["keptBytes"] = kept;
  state.counters["textBytes"] = static_cast<double>(texts);
  state.counters["ratio"] = texts == 0 ? 0 : kept / static_cast<double>(texts);
}

BENCHMARK(keepSummaries)->Unit(benchmark::kMillisecond);

/// As folders are listed, in the order of their characters: formulae, then casks.
std::vector<QString> listedNames() {
  std::vector<QString> result;
  for (const char* prefix : {"package", "Application"}) {
    for (int i = 0; i < 8'000; ++i) {
      result.push_back(
          QStringLiteral("%1-%2@%3").arg(QLatin1StringView(prefix)).arg(i).arg(i % 30));
    }
  }
  std::ranges::sort(result.begin(), result.begin() + 8'000);
  std::ranges::sort(result.begin() + 8'000, result.end());
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
    NameOrdering::ofUser().stableSort(sorted, [](const QString& name) { return name; });
    benchmark::DoNotOptimize(sorted);
  }
}

BENCHMARK(sortNames<listedNames>)->Unit(benchmark::kMillisecond);
BENCHMARK(sortNames<shuffledNames>)->Unit(benchmark::kMillisecond);

/// The floor: one collation key per name.
void makeSortKeys(benchmark::State& state) {
  const std::vector<QString> unsorted = listedNames();
  for (auto _ : state) {
    for (const QString& name : unsorted) {
      benchmark::DoNotOptimize(NameOrdering::ofUser().sortKey(name));
    }
  }
}

BENCHMARK(makeSortKeys)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quillmere

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}

#include <benchmark/benchmark.h>
#include <string>
#include <vector>

#include "guidance/CleanupGuidance.h"
#include "guidance/PackageUpdateSummary.h"

namespace quillmere {
namespace {

using Inventory = std::vector<InstalledPackageSummary>;

SharedText text(const std::string& utf8) {
  return SharedText(std::string_view(utf8));
}

/// As many formulae, each of them in the catalog, every third with an old version.
std::vector<InstalledFormula> installedFormulae(int count) {
  std::vector<InstalledFormula> formulae;
  for (int i = 0; i < count; ++i) {
    const std::string name =
        "formula-" + std::to_string(i * 7919 % count) + "@" + std::to_string(i % 30);
    const QString version = QStringLiteral("1.%1.%2").arg(i % 40).arg(i % 7);
    InstalledFormula formula = {
        .name = QString::fromStdString(name),
        .installedVersions = {version},
        .currentVersion = version,
        .catalogFormula =
            HomebrewFormula{.name = text(name),
                            .description = text("What " + name + " is good for"),
                            .versions = {.stable = text("1." + std::to_string(i % 41) + ".3_1")},
                            .tap = text("homebrew/core"),
                            .dependencies = {text("openssl@3"), text("zlib")}}};
    if (i % 3 == 0) {
      formula.installedVersions.prepend(QStringLiteral("0.9.%1").arg(i));
    }
    formulae.push_back(std::move(formula));
  }
  return formulae;
}

const Inventory& inventory(benchmark::State& state) {
  static const Inventory small = installedPackageSummaries(installedFormulae(5'000), {});
  static const Inventory large = installedPackageSummaries(installedFormulae(50'000), {});
  return state.range(0) == 5'000 ? small : large;
}

/// Both kinds of guidance, the walk over the cache left out.
void guide(benchmark::State& state) {
  const Inventory& packages = inventory(state);
  for (auto _ : state) {
    auto updates = packageUpdateSummaries(packages);
    auto old = oldVersionPackages(packages);
    if (updates.size() != packages.size() || old.size() * 3 < packages.size()) {
      state.SkipWithError("packages are missing");
    }
    benchmark::DoNotOptimize(updates);
    benchmark::DoNotOptimize(old);
  }
}

/// The floor: the same rows copied, once whole and once their old versions.
void copyTheRows(benchmark::State& state) {
  const Inventory& packages = inventory(state);
  for (auto _ : state) {
    benchmark::DoNotOptimize(Inventory(packages));
    for (const InstalledPackageSummary& package : packages) {
      if (package.installedVersions.size() > 1) {
        benchmark::DoNotOptimize(std::vector<SharedText>(package.installedVersions));
      }
    }
  }
}

/// What a scan makes, in the order of the folders.
void makeTheRows(benchmark::State& state) {
  const auto formulae = installedFormulae(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    benchmark::DoNotOptimize(installedPackageSummaries(formulae, {}));
  }
}

BENCHMARK(guide)->Arg(5'000)->Arg(50'000)->Unit(benchmark::kMillisecond);
BENCHMARK(copyTheRows)->Arg(5'000)->Arg(50'000)->Unit(benchmark::kMillisecond);
BENCHMARK(makeTheRows)->Arg(5'000)->Arg(50'000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quillmere

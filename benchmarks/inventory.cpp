#include <benchmark/benchmark.h>

#include "InstalledPrefix.h"
#include "inventory/HomebrewCaskInventoryScanner.h"
#include "inventory/HomebrewFormulaInventoryScanner.h"

namespace quillmere {
namespace {

void scanPrefix(benchmark::State& state) {
  const InstalledPrefix& prefix = InstalledPrefix::ofSize(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    auto formulae = HomebrewFormulaInventoryScanner(prefix.url()).scan(prefix.catalog());
    auto casks = HomebrewCaskInventoryScanner(prefix.url()).scan(prefix.casks());
    if (formulae.formulae.size() != prefix.catalog().size() ||
        casks.casks.size() != prefix.casks().size() ||
        formulae.formulae.back().installReason != InstalledFormula::InstallReason::dependency ||
        !casks.casks.back().catalogCask) {
      state.SkipWithError("the scan found something else than is there");
    }
    benchmark::DoNotOptimize(formulae);
    benchmark::DoNotOptimize(casks);
  }
}

/// The floor.
void callTheSystemAlike(benchmark::State& state) {
  const InstalledPrefix& prefix = InstalledPrefix::ofSize(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    prefix.callTheSystemAlike();
  }
}

BENCHMARK(scanPrefix)->Arg(500)->Arg(5'000)->Arg(50'000)->Unit(benchmark::kMillisecond);
BENCHMARK(callTheSystemAlike)->Arg(500)->Arg(5'000)->Arg(50'000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quillmere

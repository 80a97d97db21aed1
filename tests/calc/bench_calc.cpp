// Silent replay speed: the function engine presses stored key lists through
// pubCola thousands of times per solve.
#include <benchmark/benchmark.h>

#include <vector>

#include "calc/ovicalc.h"
#include "surface/application.h"

namespace {
using namespace tessaron;

// ( 2 + 3 X 4 ) / 7 - 1.5 = behind the three header keys.
const std::vector<int> kList = {32, 41, 99, 18, 2, 20, 3, 23, 4, 19, 24, 7, 21, 1, 11, 5, 22};

void BM_SilentReplay(benchmark::State& state) {
  QuietHost host;
  Application app(host);
  app.registerForm("OviCalc", [](Application& a) { return std::make_unique<OviCalc>(a); });
  auto& calc = app.form<OviCalc>("OviCalc");
  calc.CalcStage = 5;
  calc.KeyLog = false;
  for (auto _ : state) {
    for (int code : kList) calc.pubCola(code);
    benchmark::DoNotOptimize(calc.displayValue());
  }
  if (calc.displayValue() != 0.5) state.SkipWithError("wrong result");
  state.counters["keys/s"] = benchmark::Counter(
      static_cast<double>(state.iterations() * kList.size()), benchmark::Counter::kIsRate);
}
BENCHMARK(BM_SilentReplay);
}  // namespace

BENCHMARK_MAIN();

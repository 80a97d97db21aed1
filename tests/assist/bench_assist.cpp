// The aids' speed: a numeric integral is 10,001 replays of f(T), a length
// 5001 and a volume 10,001, each after the recogniser's 23.
#include <benchmark/benchmark.h>

#include <string>

#include "calc/ovicalc.h"
#include "tests/engine/bench_calculator.h"

namespace {
using namespace tessaron;

const char* const kAids[] = {"cmdIntegral", "cmdLength", "cmdXCyl"};

void BM_Aid(benchmark::State& state) {
  bench::Calculator a;
  a.press("cmdAssist");
  a.keys("Rad f(T) T sin X T x2 - 3 / ( T + 1 ) =");
  a.calc->vMemory[1] = Value(0);
  a.calc->vMemory[2] = Value(2);
  const char* aid = kAids[state.range(0)];
  long long evals = 0;
  for (auto _ : state) {
    const long long before = a.calc->EvalCount;
    a.press(aid);
    evals += a.calc->EvalCount - before;
  }
  state.SetLabel(aid);
  state.counters["evals/aid"] = static_cast<double>(evals) / state.iterations();
}
BENCHMARK(BM_Aid)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);
}  // namespace

BENCHMARK_MAIN();

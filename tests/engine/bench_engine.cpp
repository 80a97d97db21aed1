// The function engine's speed: every evaluation of f(T) is a full replay of
// its keys, and a solve is a few hundred to a few thousand of them.
#include <benchmark/benchmark.h>

#include <string>

#include "calc/ovicalc.h"
#include "tests/engine/bench_calculator.h"

namespace {
using namespace tessaron;

const char* const kF = "T sin X T x2 - 3 / ( T + 1 )";

void BM_Replay(benchmark::State& state) {
  bench::Calculator e;
  e.function(state.range(0) ? "Rad" : "Deg", kF);
  OviCalc& c = *e.calc;
  c.CalcStage = 5;
  c.KeyLog = false;
  // T sweeps 0.5 to 5.5, where the solver's walk spends its steps.
  double t = 0.5;
  for (auto _ : state) {
    benchmark::DoNotOptimize(c.evalAt(t));
    t += 0.001;
    if (t > 5.5) t = 0.5;
  }
  state.SetLabel(state.range(0) ? "radians" : "degrees");
  state.counters["evals/s"] =
      benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}
BENCHMARK(BM_Replay)->Arg(0)->Arg(1);

const char* const kSolves[][2] = {
    {"one root", "T - 3"},
    {"two roots", "T x2 - 2"},
    {"three roots", "( T - 2 ) X ( T + 1 ) X ( T - 5 )"},
    {"four roots", "( T x2 - 4 ) X ( T x2 - 9 )"},
    {"five roots", "( T x2 - 4 ) X ( T x2 - 9 ) X ( T - 6 )"},
    {"six roots", "( T x2 - 4 ) X ( T x2 - 9 ) X ( T x2 - 3 0 )"},
    {"trig", "T sin - 0 . 5"},
    {"pole", "1 / ( T - 3 )"},
    {"constant", "T X 0 + 5"},
    {"no root", "T x2 + 1"},
};

void BM_Solve(benchmark::State& state) {
  bench::Calculator e;
  const auto& s = kSolves[state.range(0)];
  e.function("Deg", s[1]);
  OviCalc& c = *e.calc;
  long long evals = 0;
  for (auto _ : state) {
    for (int n = 1; n <= 33; ++n) c.vMemory[n] = Value(0);
    c.EqnTable[1][0] = 0;
    const long long before = c.EvalCount;
    c.cmdTsolve();
    evals += c.EvalCount - before;
  }
  state.SetLabel(s[0]);
  state.counters["evals/solve"] = static_cast<double>(evals) / state.iterations();
}
BENCHMARK(BM_Solve)->DenseRange(0, 9)->Unit(benchmark::kMillisecond);
}  // namespace

BENCHMARK_MAIN();

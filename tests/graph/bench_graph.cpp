// The graph's speed: one whole picture is two passes of up to 999 replays of
// the function's keys, each drawing one segment, plus the marks round it.
#include <benchmark/benchmark.h>

#include <string>

#include "calc/ovicalc.h"
#include "tests/engine/bench_calculator.h"

namespace {
using namespace tessaron;

// sin(T) X T^2 - 3 / (T + 1), radians, in the default view.
void BM_GraphUserFunction(benchmark::State& state) {
  bench::Calculator g;
  g.keys("Rad f(T) T sin X T x2 - 3 / ( T + 1 ) = Graph");
  OviCalc& c = *g.calc;
  long long evals = 0;
  for (auto _ : state) {
    const long long before = c.EvalCount;
    c.PubGraph();
    evals += c.EvalCount - before;
  }
  state.counters["replays"] = static_cast<double>(evals) / state.iterations();
  state.counters["segments"] = static_cast<double>(c.control("picGraph").picture().ops().size());
}
BENCHMARK(BM_GraphUserFunction)->Unit(benchmark::kMillisecond);

// Demo 37, the circle: its two halves, each traced both ways.
void BM_GraphDemo37(benchmark::State& state) {
  bench::Calculator g;
  g.press("cmdGraph");
  OviCalc& c = *g.calc;
  while (c.DemoNumber != 37) g.press("cmdGoNext");
  long long evals = 0;
  for (auto _ : state) {
    const long long before = c.EvalCount;
    c.PubGraph();
    evals += c.EvalCount - before;
  }
  state.counters["replays"] = static_cast<double>(evals) / state.iterations();
}
BENCHMARK(BM_GraphDemo37)->Unit(benchmark::kMillisecond);

// A zoom press: the model's share of the time from the click to the picture.
void BM_ZoomPress(benchmark::State& state) {
  bench::Calculator g;
  g.keys("Rad f(T) T sin X T x2 - 3 / ( T + 1 ) = Graph");
  bool in = true;
  for (auto _ : state) {
    g.press(in ? "cmdZoomPlus" : "cmdZoomMinus");
    in = !in;
  }
}
BENCHMARK(BM_ZoomPress)->Unit(benchmark::kMillisecond);
}  // namespace

BENCHMARK_MAIN();

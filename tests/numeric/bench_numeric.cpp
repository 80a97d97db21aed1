// Figures for the inner loops of the solvers: Value arithmetic on Real and on
// Dec, the text of a Real, and Format with the calculator's widest mask.
#include <benchmark/benchmark.h>

#include "numeric/numeric.h"

using tessaron::Value;

namespace {

template <char Op>
Value Apply(const Value& a, const Value& b) {
  if constexpr (Op == '+') return a + b;
  if constexpr (Op == '-') return a - b;
  if constexpr (Op == '*') return a * b;
  return a / b;
}

template <char Op>
void BM_Real(benchmark::State& state) {
  Value a(1234.5678), b(3.25);
  for (auto _ : state) {
    benchmark::DoNotOptimize(a);
    benchmark::DoNotOptimize(b);
    Value r = Apply<Op>(a, b);
    benchmark::DoNotOptimize(r);
  }
}
BENCHMARK(BM_Real<'+'>)->Name("Real+");
BENCHMARK(BM_Real<'-'>)->Name("Real-");
BENCHMARK(BM_Real<'*'>)->Name("Real*");
BENCHMARK(BM_Real<'/'>)->Name("Real/");

template <char Op>
void BM_Dec(benchmark::State& state) {
  Value a = tessaron::CDec(Value("1234.5678")), b = tessaron::CDec(Value("0.0725"));
  for (auto _ : state) {
    benchmark::DoNotOptimize(a);
    Value r = Apply<Op>(a, b);
    benchmark::DoNotOptimize(r);
  }
}
BENCHMARK(BM_Dec<'+'>)->Name("Dec+");
BENCHMARK(BM_Dec<'-'>)->Name("Dec-");
BENCHMARK(BM_Dec<'*'>)->Name("Dec*");
BENCHMARK(BM_Dec<'/'>)->Name("Dec/");

void BM_CStrReal(benchmark::State& state) {
  Value x(3.14159265358979);
  for (auto _ : state) {
    benchmark::DoNotOptimize(x);
    benchmark::DoNotOptimize(tessaron::CStr(x));
  }
}
BENCHMARK(BM_CStrReal)->Name("CStr(Real)");

// What a display that shows a Real reads back, without its text.
void BM_CStrValue(benchmark::State& state) {
  double x = 3.14159265358979;
  for (auto _ : state) {
    benchmark::DoNotOptimize(x);
    benchmark::DoNotOptimize(tessaron::CStrValue(x));
  }
}
BENCHMARK(BM_CStrValue)->Name("CStrValue");

void BM_Format(benchmark::State& state) {
  Value x(1234567.891234);
  for (auto _ : state) {
    benchmark::DoNotOptimize(x);
    benchmark::DoNotOptimize(tessaron::Format(x, "###,##0.####################"));
  }
}
BENCHMARK(BM_Format)->Name("Format(###,##0.####################)");

}  // namespace

BENCHMARK_MAIN();

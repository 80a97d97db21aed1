// The graph's speed: one whole picture is two passes of up to 999 replays of
// the function's keys, each drawing one segment, plus the marks round it.
#include <benchmark/benchmark.h>

#include <map>
#include <string>

#include "calc/ovicalc.h"
#include "surface/application.h"

namespace {
using namespace tessaron;

struct Graph {
  QuietHost host;
  Application app{host};
  OviCalc* calc;
  Graph() {
    app.registerForm("OviCalc", [](Application& a) { return std::make_unique<OviCalc>(a); });
    calc = &app.form<OviCalc>("OviCalc");
    app.show(*calc);
    press("cmdTeqn");
  }
  void press(const char* name, int index = -1) { app.click(calc->control(name, index)); }
  void keys(const std::string& words) {
    static const std::map<std::string, std::pair<const char*, int>> k = {
        {"T", {"cmdT", -1}},        {"sin", {"SSin", -1}},    {"x2", {"Squar", -1}},
        {"(", {"cmdOpenP", -1}},    {")", {"cmdCloseP", -1}}, {"+", {"Operator", 0}},
        {"-", {"Operator", 1}},     {"=", {"Operator", 2}},   {"X", {"Operator", 3}},
        {"/", {"Operator", 4}},     {"Rad", {"cmdRad", -1}},  {"f(T)", {"cmdTform", -1}},
        {"Graph", {"cmdGraph", -1}}};
    size_t i = 0;
    while (i < words.size()) {
      size_t j = words.find(' ', i);
      if (j == std::string::npos) j = words.size();
      const std::string w = words.substr(i, j - i);
      if (w.size() == 1 && w[0] >= '0' && w[0] <= '9')
        press("Number", w[0] - '0');
      else if (!w.empty())
        press(k.at(w).first, k.at(w).second);
      i = j + 1;
    }
  }
};

// sin(T) X T^2 - 3 / (T + 1), radians, in the default view.
void BM_GraphUserFunction(benchmark::State& state) {
  Graph g;
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
  Graph g;
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
  Graph g;
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

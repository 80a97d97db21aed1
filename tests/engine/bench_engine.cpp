// The function engine's speed: every evaluation of f(T) is a full replay of
// its keys, and a solve is a few hundred to a few thousand of them.
#include <benchmark/benchmark.h>

#include <map>
#include <string>

#include "calc/ovicalc.h"
#include "surface/application.h"

namespace {
using namespace tessaron;

struct Engine {
  QuietHost host;
  Application app{host};
  OviCalc* calc;
  Engine() {
    app.registerForm("OviCalc", [](Application& a) { return std::make_unique<OviCalc>(a); });
    calc = &app.form<OviCalc>("OviCalc");
    app.show(*calc);
    press("cmdTeqn");
  }
  void press(const char* name, int index = -1) { app.click(calc->control(name, index)); }
  void keys(const std::string& words) {
    static const std::map<std::string, std::pair<const char*, int>> k = {
        {"T", {"cmdT", -1}},       {"sin", {"SSin", -1}},   {"cos", {"Ccos", -1}},
        {"tan", {"Ttan", -1}},     {"x2", {"Squar", -1}},   {"e^x", {"Expo", -1}},
        {"ln", {"NatLog", -1}},    {"1/x", {"Rever", -1}},  {"(", {"cmdOpenP", -1}},
        {")", {"cmdCloseP", -1}},  {"+", {"Operator", 0}},  {"-", {"Operator", 1}},
        {"=", {"Operator", 2}},    {"X", {"Operator", 3}},  {"/", {"Operator", 4}},
        {".", {"cmdDeci", -1}},    {"Rad", {"cmdRad", -1}}, {"Deg", {"cmdDeg", -1}},
        {"f(T)", {"cmdTform", -1}}};
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
  void function(const std::string& mode, const std::string& f) { keys(mode + " f(T) " + f + " ="); }
};

const char* const kF = "T sin X T x2 - 3 / ( T + 1 )";

void BM_Replay(benchmark::State& state) {
  Engine e;
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
  Engine e;
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

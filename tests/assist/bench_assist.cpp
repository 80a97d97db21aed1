// The aids' speed: a numeric integral is 10,001 replays of f(T), a length
// 5001 and a volume 10,001, each after the recogniser's 23.
#include <benchmark/benchmark.h>

#include <map>
#include <string>

#include "calc/ovicalc.h"
#include "surface/application.h"

namespace {
using namespace tessaron;

struct Aids {
  QuietHost host;
  Application app{host};
  OviCalc* calc;
  Aids() {
    app.registerForm("OviCalc", [](Application& a) { return std::make_unique<OviCalc>(a); });
    calc = &app.form<OviCalc>("OviCalc");
    app.show(*calc);
    press("cmdTeqn");
    press("cmdAssist");
  }
  void press(const char* name, int index = -1) { app.click(calc->control(name, index)); }
  void keys(const std::string& words) {
    static const std::map<std::string, std::pair<const char*, int>> k = {
        {"T", {"cmdT", -1}},     {"sin", {"SSin", -1}},    {"x2", {"Squar", -1}},
        {"(", {"cmdOpenP", -1}}, {")", {"cmdCloseP", -1}}, {"+", {"Operator", 0}},
        {"-", {"Operator", 1}},  {"=", {"Operator", 2}},   {"X", {"Operator", 3}},
        {"/", {"Operator", 4}},  {"Rad", {"cmdRad", -1}},  {"f(T)", {"cmdTform", -1}}};
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

const char* const kAids[] = {"cmdIntegral", "cmdLength", "cmdXCyl"};

void BM_Aid(benchmark::State& state) {
  Aids a;
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

#pragma once
// The calculator on a quiet host with its function panel open, keyed by the
// words on its keys: what the engine's, the graph's and the aids'
// benchmarks drive.
#include <map>
#include <memory>
#include <string>
#include <utility>

#include "calc/ovicalc.h"
#include "surface/application.h"

namespace tessaron::bench {

struct Calculator {
  QuietHost host;
  Application app{host};
  OviCalc* calc;
  Calculator() {
    app.registerForm("OviCalc", [](Application& a) { return std::make_unique<OviCalc>(a); });
    calc = &app.form<OviCalc>("OviCalc");
    app.show(*calc);
    press("cmdTeqn");
  }
  void press(const char* name, int index = -1) { app.click(calc->control(name, index)); }
  // Digits, operators, the function keys and the engine's own, a blank
  // between.
  void keys(const std::string& words) {
    static const std::map<std::string, std::pair<const char*, int>> k = {
        {"T", {"cmdT", -1}},        {"sin", {"SSin", -1}},      {"cos", {"Ccos", -1}},
        {"tan", {"Ttan", -1}},      {"x2", {"Squar", -1}},      {"e^x", {"Expo", -1}},
        {"ln", {"NatLog", -1}},     {"1/x", {"Rever", -1}},     {"(", {"cmdOpenP", -1}},
        {")", {"cmdCloseP", -1}},   {"+", {"Operator", 0}},     {"-", {"Operator", 1}},
        {"=", {"Operator", 2}},     {"X", {"Operator", 3}},     {"/", {"Operator", 4}},
        {".", {"cmdDeci", -1}},     {"Rad", {"cmdRad", -1}},    {"Deg", {"cmdDeg", -1}},
        {"f(T)", {"cmdTform", -1}}, {"Graph", {"cmdGraph", -1}}};
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
  // f(T) keyed in the angle unit given, to its "=".
  void function(const std::string& unit, const std::string& f) { keys(unit + " f(T) " + f + " ="); }
};

}  // namespace tessaron::bench

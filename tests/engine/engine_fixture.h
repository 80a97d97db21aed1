#pragma once
// The calculator with its function panel open: functions keyed as the user
// keys them, solved, and their answers read from the memories and the slot.
#include <cmath>
#include <map>
#include <string>
#include <vector>

#include "tests/calc/calc_fixture.h"

namespace tessaron::test {

class EngineTest : public CalcTest {
 protected:
  void SetUp() override {
    CalcTest::SetUp();
    app.click(c("cmdTeqn"));
  }
  // One key of a function: the calculator's words and the panel's own.
  void fkey(const std::string& k) {
    static const std::map<std::string, std::string> named = {
        {"T", "cmdT"},         {"1/x", "Rever"},     {"x2", "Squar"},     {"x3", "Cubi"},
        {"sqrt", "SqRt"},      {"cbrt", "CuR"},      {"10^x", "exp10"},   {"e^x", "Expo"},
        {"log", "Loga"},       {"ln", "NatLog"},     {"sin", "SSin"},     {"cos", "Ccos"},
        {"tan", "Ttan"},       {"sec", "Secant"},    {"csc", "Cosec"},    {"ctn", "Cotan"},
        {"Hyp", "cmdHyp"},     {"Arc", "cmdArc"},    {"Deg", "cmdDeg"},   {"Rad", "cmdRad"},
        {"Eqn", "cmdTeqn"},    {"f(T)", "cmdTform"}, {"T=", "cmdTvalue"}, {"Solve", "cmdTsolve"},
        {"Calc", "cmdTcalcu"}, {"Paste", "cmdPaste"}};
    if (auto it = named.find(k); it != named.end()) return app.click(c(it->second.c_str()));
    if (k.size() > 1 && k[0] == 'M' && k[1] >= '0' && k[1] <= '9') {
      // A memory recall: the strip moved to show it, then its key.
      const int n = std::stoi(k.substr(1));
      const int top = n <= 4 ? 0 : n - 4;
      c("scrMem").setValue(Value(top));
      return app.click(c("MMMout", n - top));
    }
    key(k);
  }
  void fkeys(const std::string& words) {
    size_t i = 0;
    while (i < words.size()) {
      while (i < words.size() && words[i] == ' ') ++i;
      size_t j = words.find(' ', i);
      if (j == std::string::npos) j = words.size();
      if (j > i) fkey(words.substr(i, j - i));
      i = j;
    }
  }
  // f(T) keyed from the f(T) key to "=".
  void function(const std::string& words) {
    fkey("f(T)");
    fkeys(words);
    fkey("=");
  }
  void setT(const std::string& digits) {
    fkey("T=");
    fkeys(digits);
    fkey("=");
  }
  // The slot's kept answers.
  std::vector<double> slotAnswers(int slot = 1) {
    std::vector<double> a;
    const auto& col = calc->EqnTable[slot];
    for (int k = 1; k <= static_cast<int>(col[0]); ++k) a.push_back(col[2 * k - 1]);
    return a;
  }
  double memory(int n) { return calc->vMemory[n].number(); }
  // The memories 4 to 33 that are not 0.
  std::vector<double> memoryAnswers() {
    std::vector<double> a;
    for (int n = 4; n <= 33; ++n)
      if (memory(n) != 0) a.push_back(memory(n));
    return a;
  }
  static bool near(double a, double b, double rel = 1e-10) {
    return std::fabs(a - b) <= rel * std::max(1.0, std::fabs(b));
  }
  static bool holds(const std::vector<double>& v, double x, double rel = 1e-10) {
    for (double y : v)
      if (near(y, x, rel)) return true;
    return false;
  }
  // A key list pressed silently as the solver presses it, at T = t.
  double replayAt(double t) {
    calc->CalcStage = 5;
    calc->KeyLog = false;
    calc->ErrFlag = false;
    const double f = calc->evalAt(t);
    return f;
  }
};

}  // namespace tessaron::test

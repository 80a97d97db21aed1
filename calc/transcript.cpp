// The transcript: the calculation as the user would write it, grown key by
// key in lblFormula, with short numbers and the reference values of the
// functions in braces.
#include <cmath>

#include "calc/ovicalc.h"

namespace tessaron {

// Short numbers: the transcript never shows the fifteen digits.
std::string OviCalc::formulaNumber(double v) const {
  const Value x(v);
  if (std::fabs(v) <= 1e6) {
    if (v == std::floor(v)) return Format(x, "0");
    return Format(x, std::fabs(v) > 100 ? "0.#" : "0.#####");
  }
  return Format(x, "0.###e+");
}

void OviCalc::PubFormula(const Value& value) {
  if (CalcStage == 3) {
    // A T, a memory, or a sign or prefix before them: the transcript names
    // the variable instead of its value.
    // The key that calls for the transcript is recorded already: the value
    // it writes came from the key before it.
    const int top = KeyCount - 2;
    const int last = top >= 0 ? KeyOrder[top] : 99;
    const bool named =
        last == 12 || last == 33 || (last >= 61 && last <= 94) || (last >= 40 && last <= 44);
    if (named) {
      int i = top;
      bool minus = false;
      while (i > 2 && (KeyOrder[i] == 12 || (KeyOrder[i] >= 40 && KeyOrder[i] <= 44))) {
        if (KeyOrder[i] == 12) minus = !minus;
        --i;
      }
      if (i > 2 && i + 1 <= top && KeyOrder[i + 1] == 12) minus = true;
      const int code = KeyOrder[i];
      if (code == 33)
        FormulaText += minus ? " -T" : " T";
      else if (code >= 61 && code <= 94)
        FormulaText += (minus ? " -M" : " M") + std::to_string(nMemLast);
      showFormula();
      PubFormCut();
      return;
    }
  }
  if (!loud()) return;
  const double v = value.kind() == Kind::Empty ? 0 : value.number();
  FormulaText += ' ';
  FormulaText += formulaNumber(v);
  showFormula();
  PubFormCut();
}

void OviCalc::PubFormula2(const Value& value) {
  if (!loud() || InputForm) return;
  FormulaText += '{';
  FormulaText += formulaNumber(value.kind() == Kind::Empty ? 0 : value.number());
  FormulaText += "} ";
  showFormula();
}

void OviCalc::PubFormFunc(const Value& value) {
  PubFormula(value);
  bParenValue = true;
}

// An "=" inside the running text drops what came before it; the "=" that
// ends the text stays, so that a finished calculation keeps its line.
void OviCalc::PubFormCut() {
  if (!loud()) return;
  const size_t n = FormulaText.size();
  for (size_t i = 0; i + 2 < n; ++i) {
    if (FormulaText.compare(i, 2, " =") != 0) continue;
    const size_t rest = i + 2;
    if (FormulaText.find_first_not_of(' ', rest) == std::string::npos) continue;
    FormulaText.erase(0, rest);
    showFormula();
    return;
  }
}

}  // namespace tessaron

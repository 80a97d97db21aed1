// Saving calculations into the history.
#include "calc/kernels/history.h"

namespace tessaron::kernels {

namespace {
// Below six characters a transcript is a bare number and an "=".
bool LongEnough(const std::string& formula) { return Len(Value(formula)) > 5; }
}  // namespace

bool SaveAtEqual(const std::string& formula, const std::string& newest, int eqnIdx, bool errFlag,
                 bool entering) {
  return eqnIdx == 0 && LongEnough(formula) && formula != newest && !errFlag && !entering;
}

bool SaveAtCancel(const std::string& formula, bool eqnOpen) {
  return !eqnOpen && LongEnough(formula) && (formula.empty() || formula.back() != '=');
}

void SaveCalculation(HistoryRefs rows, const std::string& formula, const Value& display,
                     int colour) {
  rows.text[0] = formula;
  rows.value[0] = display;
  rows.colour[0] = colour;
  for (int i = kHistoryRows - 1; i >= 1; --i) {
    rows.text[i] = rows.text[i - 1];
    rows.value[i] = rows.value[i - 1];
    rows.colour[i] = rows.colour[i - 1];
  }
}

}  // namespace tessaron::kernels

// Where the answers go: into the slot's rows, ordered by residual, and into
// the memories from 4 upward, where the user takes them up.
#include <cmath>

#include "calc/ovicalc.h"

namespace tessaron {

void OviCalc::PubAnswerWrite() {
  if (AnswerCode >= 999 || AnswerCode <= 0.5f) return;
  auto& col = EqnTable[EqnIdx];
  int kept = static_cast<int>(col[0]);
  if (kept == 0) {
    col[1] = AnsT;
    col[2] = AnsF;
    col[0] = 1;
  } else {
    DupFlag = false;
    for (int i = 1; i <= kept; ++i) {
      const double t = col[2 * i - 1];
      // Equal to 14 digits is the same answer.
      if (AnsT == t || std::fabs(AnsT / (AnsT - t)) > 1e14) {
        DupFlag = true;
        break;
      }
    }
    if (!DupFlag) {
      for (int j = 1; j <= kept; ++j) {
        if (std::fabs(AnsF) <= std::fabs(col[2 * j])) {
          for (int i = std::min(kept, 10); i >= j; --i) {
            col[2 * i + 1] = col[2 * i - 1];
            col[2 * i + 2] = col[2 * i];
          }
          col[2 * j - 1] = AnsT;
          col[2 * j] = AnsF;
          break;
        }
        if (j == kept && kept < 11) {
          col[2 * j + 1] = AnsT;
          col[2 * j + 2] = AnsF;
        }
      }
      if (kept < 11) col[0] = kept + 1;
    }
  }
  PubShow(*Readout, Value(AnsF));
}

void OviCalc::pubAnswerCount() {
  PubSolveRound();
  if (AnsCount > 22) return;
  ++AnsCount;
  const std::string shown = disp();
  PubShow(*Readout, Value(AnsT));
  if (AnsCount == 1) {
    AnsList[1] = AnsT;
    scrMem->setValue(Value(0));
    for (MemScan = 4; MemScan <= 33; ++MemScan) {
      if (vMemory[MemScan] != Value(0) && MemScan != 33) continue;
      if (MemScan > 4) scrMem->setValue(Value(MemScan - 4));
      if (MemScan == 33) vMemory[33] = Value(0);
      MMMinKey(4);
      const std::string& slot = EqnText[EqnIdx];
      const std::string mem = std::to_string(MemScan);
      std::string note;
      if (SilentNote)
        note = FormulaSave.empty()
                   ? slot + " 0 :   Ans T  at Mem  # " + mem
                   : FormulaSave + std::string(19, ' ') + slot + " 0 :   Ans T  at Mem  # " + mem;
      else
        note = FormulaSave.empty() ? slot + " 0 :   Ans T  from Mem  # " + mem
                                   : slot + " 0 :   Ans T from Mem  # " + mem;
      if (std::fabs(AnsT) > 1e33) note += " +-Infinity ?";
      FormulaText = note;
      FormulaNote = note;
      lblFormula->Caption = note;
      AnsMem = MemScan;
      break;
    }
  } else {
    bool again = false;
    for (int i = 1; i < AnsCount; ++i) again |= AnsList[i] == AnsT;
    if (again) {
      --AnsCount;
    } else {
      const int memory = std::min(AnsMem + AnsCount - 1, 33);
      if (scrMem->value().AsInt16() < memory - 4) scrMem->setValue(Value(memory - 4));
      const int index = memory - scrMem->value().AsInt16();
      MMMsubKey(index);
      MMMinKey(index);
      AnsList[AnsCount] = AnsT;
    }
  }
  setDisp(shown);
  // The strip shows the memories in the face their length needs.
  scrMemChange();
  AnswerCode = 0;
}

}  // namespace tessaron

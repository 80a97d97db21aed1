#pragma once
// What a function key does once its kernel has run. The kernels compute and
// name the texts; the key routine shows them, so the same kernel serves the
// user's press (boxes, transcript) and the silent replay (ErrFlag only).
#include <string>

#include "numeric/numeric.h"

namespace tessaron::kernels {

enum class Act {
  Show,      // the value stands: display, transcript, reference, PubLast
  Zero,      // 1/x of 0: `text` on display while the box is open, then "0";
             // ErrFlag, the chain is kept
  Cancel,    // box, ErrFlag, then Cancel
  TakeBack,  // `formula` on lblFormula, box, then cmdBack and the last key
             // pressed again; ErrFlag, the engine's failure count rises
  Stop,      // `formula` on lblFormula and the box; the key simply ends
  Record,    // the answer is the text `text`: box, a new history row, and
             // the display returns to "0"
  Fail,      // a silent evaluation: no box, no Cancel, ErrFlag only
};

struct Outcome {
  Act act = Act::Show;
  Value value;             // the result, for Act::Show
  std::string transcript;  // appended to FormulaText after a shown result
  std::string message;     // text of the box (boxes open only below stage 5)
  std::string formula;     // lblFormula text at a refusal; "" when none
  std::string text;        // see Act::Zero and Act::Record

  bool ok() const { return act == Act::Show; }
};

inline Outcome Shown(Value v, std::string transcript) {
  Outcome o;
  o.value = std::move(v);
  o.transcript = std::move(transcript);
  return o;
}

inline Outcome Refused(Act act, std::string message, std::string formula = {}) {
  Outcome o;
  o.act = act;
  o.message = std::move(message);
  o.formula = std::move(formula);
  return o;
}

}  // namespace tessaron::kernels

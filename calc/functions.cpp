// The one-operand functions: they act at once on the value on display, note
// the value and the function in the transcript and show the result in braces.
// A refused value never reaches the display.
#include <cmath>

#include "calc/kernels/elementary.h"
#include "calc/kernels/history.h"
#include "calc/ovicalc.h"

namespace tessaron {

namespace k = kernels;

namespace {
constexpr long kBlue = 0xFF0000;
bool isPrefix(int code) { return code == 43 || code == 44; }
}  // namespace

Value OviCalc::SqR(const Value& x) {
  Value r = k::SqR(x);
  if (r.kind() == Kind::Empty && CalcStage != 5) {
    warn(k::kSqrRefusal);
    Cancel();
  }
  return r;
}

Value OviCalc::CuRoot(const Value& x) { return k::CuRoot(x); }

// A refused key is taken back: the key before it is pressed again on the
// state that came before, so nothing but the box has happened.
void OviCalc::takeBack(int before) {
  if (loud()) {
    cmdBack();
    pubCola(before);
  }
  ErrFlag = true;
  ++nFailCount;
}

// A value picked from the history becomes the first operand, as an operator
// would take it, so a function continues from a recalled answer too.
void OviCalc::takeHistoryRow() {
  if (EqnIdx == 0 || EqnOpen) return;
  const Value kept = HistValue[EqnIdx];
  scrFormToZero();
  PubShow(*Readout, kept);
  PubIniOrder();
}

template <class Kernel>
void OviCalc::functionKey(int code, Kernel kernel) {
  // Arc and Hyp prefix the trigonometric keys only: the prefix is taken off.
  if (KeyLog && isPrefix(lastKey())) {
    cmdBack();
    return;
  }
  takeHistoryRow();
  PubSetting();
  logKey(code);
  if (nLastOp[nLevel] == Value(2)) pubNew();
  const Value x(displayValue());
  const k::Outcome o = kernel(x);
  switch (o.act) {
    case k::Act::Show:
      break;
    case k::Act::Zero:
      // The infinity stands while the box is open; the chain is kept.
      setDisp(o.text);
      warn(o.message);
      setDisp("0");
      ErrFlag = true;
      return;
    case k::Act::Cancel:
      if (loud() && !o.formula.empty()) lblFormula->Caption = o.formula;
      warn(o.message);
      Cancel();
      ErrFlag = true;
      return;
    case k::Act::Stop:
      if (loud() && !o.formula.empty()) lblFormula->Caption = o.formula;
      warn(o.message);
      return;
    case k::Act::Record:
      // The answer is a text no Real holds: it goes to the history as a
      // finished calculation and cannot continue one.
      warn(o.message);
      k::SaveCalculation({HistText, HistValue, HistColor}, o.text, Value(0), nColor);
      colour(kBlue);
      setDisp("0");
      sEntry[nLevel] = Entry::Ops;
      if (loud()) PubIniOrder();
      return;
    case k::Act::Fail:
      ErrFlag = true;
      return;
    case k::Act::TakeBack:
      return;
  }
  if (!bParenValue) PubFormFunc(x);
  // The reference in braces is the value as the display shows it.
  PubReadout(o.value);
  if (loud()) {
    FormulaText += o.transcript;
    PubFormula2(Value(displayValue()));
  }
  PubLast();
  PubReadComma();
}

void OviCalc::Rever() { functionKey(51, k::Rever); }
void OviCalc::Squar() { functionKey(52, k::Squar); }
void OviCalc::Cubi() { functionKey(53, k::Cubi); }
void OviCalc::CuR() { functionKey(59, k::CuR); }
void OviCalc::exp10() { functionKey(54, k::Exp10); }
void OviCalc::Expo() { functionKey(55, k::Expo); }
void OviCalc::cmdArea() { functionKey(47, k::CmdArea); }
void OviCalc::nFacKey() { functionKey(46, k::NFac); }

void OviCalc::SqRt() {
  const int stage = CalcStage;
  functionKey(58, [stage](const Value& x) { return k::SqRt(x, stage); });
}

// The logarithms test their value before anything else: a refused one is
// taken back with the key before it.
void OviCalc::Loga() {
  const k::Outcome o = k::Loga(Value(displayValue()), CalcStage, InputT);
  if (o.act == k::Act::TakeBack) {
    const int before = lastKey();
    if (loud()) lblFormula->Caption = o.formula;
    warn(o.message);
    takeBack(before);
    return;
  }
  functionKey(57, [this](const Value& x) { return k::Loga(x, CalcStage, InputT); });
}

void OviCalc::NatLog() {
  const k::Outcome o = k::NatLog(Value(displayValue()), CalcStage, InputT);
  if (o.act == k::Act::TakeBack) {
    const int before = lastKey();
    if (loud()) lblFormula->Caption = o.formula;
    warn(o.message);
    takeBack(before);
    return;
  }
  functionKey(56, [this](const Value& x) { return k::NatLog(x, CalcStage, InputT); });
}

}  // namespace tessaron

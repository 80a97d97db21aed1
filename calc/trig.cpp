// The trigonometric family: six keys, each with the Arc and Hyp prefixes,
// the angle unit and its conversion. The special angles are forced values
// and each pole is answered by a message naming its side.
#include "calc/kernels/trig.h"
#include "calc/ovicalc.h"

namespace tessaron {

namespace k = kernels;

namespace {
constexpr long kLit = 0xC0FFC0, kUnlit = 0xC0C0C0;
}  // namespace

void OviCalc::familyKey(int code, int key) {
  // The prefixes are read before the opening act of the key puts them out,
  // and serve this key alone: a silent replay, whose opening act leaves
  // them, must not carry them on to the next key or the next replay.
  const bool arc = bArc, hyp = bHyp;
  bArc = bHyp = false;
  takeHistoryRow();
  PubSetting();
  logKey(code);
  if (nLastOp[nLevel] == Value(2)) pubNew();
  const Value x(displayValue());
  if (!bParenValue) PubFormFunc(x);
  ErrFlag = false;
  const k::Outcome o = k::Trig(static_cast<k::TrigKey>(key), arc, hyp, x, bDegree);
  if (!o.ok()) {
    if (loud() && !o.formula.empty()) lblFormula->Caption = o.formula;
    warn(o.message);
    ErrFlag = true;
    Cancel();
    return;
  }
  PubReadout(o.value);
  // The reference in braces is the value as the display shows it; a silent
  // replay writes no transcript.
  if (loud()) {
    FormulaText += o.transcript;
    PubFormula2(Value(displayValue()));
  }
  PubLast();
  PubReadComma();
}

void OviCalc::SSin() { familyKey(36, static_cast<int>(k::TrigKey::Sin)); }
void OviCalc::Ccos() { familyKey(35, static_cast<int>(k::TrigKey::Cos)); }
void OviCalc::Ttan() { familyKey(34, static_cast<int>(k::TrigKey::Tan)); }
void OviCalc::Cotan() { familyKey(37, static_cast<int>(k::TrigKey::Cot)); }
void OviCalc::Secant() { familyKey(38, static_cast<int>(k::TrigKey::Sec)); }
void OviCalc::Cosec() { familyKey(39, static_cast<int>(k::TrigKey::Csc)); }

// A prefix pressed twice in a row is taken back, so the second press puts it
// out. While replaying nothing is recorded and the flag simply follows.
void OviCalc::cmdHypKey() {
  if (KeyLog && lastKey() == 43) {
    cmdBack();
    return;
  }
  logKey(43);
  bHyp = !bHyp;
  if (!loud()) return;
  cmdHyp->BackColor = bHyp ? kLit : QBColor(7);
  frameRD->Visible = !bHyp;
}

void OviCalc::cmdArcKey() {
  if (KeyLog && lastKey() == 44) {
    cmdBack();
    return;
  }
  logKey(44);
  bArc = !bArc;
  if (loud()) cmdArc->BackColor = bArc ? kLit : QBColor(7);
}

void OviCalc::cmdRaDegKey() {
  if (KeyLog && lastKey() == 40) {
    cmdBack();
    return;
  }
  logKey(40);
  if (nLastOp[nLevel] == Value(2)) pubNew();
  const Value x(displayValue());
  const bool toRadians = bDegree;
  PubReadout(toRadians ? k::DegreesToRadians(x) : k::RadiansToDegrees(x));
  PubLast();
  bDegree = !toRadians;
  if (loud()) {
    cmdRadC->BackColor = bDegree ? kUnlit : kLit;
    cmdDegC->BackColor = bDegree ? kLit : kUnlit;
    setFormula(k::RaDegMark(FormulaText, toRadians));
  }
}

// The unit keys leave the value alone. They are recorded, so that a replay
// and Back keep the unit the keys were pressed in.
void OviCalc::cmdDeg() {
  logKey(41);
  bDegree = true;
  if (!loud()) return;
  cmdDegC->BackColor = kLit;
  cmdRadC->BackColor = kUnlit;
}

void OviCalc::cmdRad() {
  logKey(42);
  bDegree = false;
  if (!loud()) return;
  cmdRadC->BackColor = kLit;
  cmdDegC->BackColor = kUnlit;
}

}  // namespace tessaron

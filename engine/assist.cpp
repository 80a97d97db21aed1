// The Assist box: calculus aids on the function in hand, between the values
// of memory 1 and memory 2, answering in memory 3. Here are the box itself,
// the set-up every aid starts from, the reset after it, and the slope.
#include <cmath>

#include "calc/ovicalc.h"
#include "engine/rounding.h"

namespace tessaron {

namespace {
constexpr long kAidColour = 16762823;
const char* const kAidKeys[] = {"cmdSlope",    "cmdIntegral", "cmdLength", "cmdXCyl",
                                "cmdYCol",     "cmdXsurf",    "cmdYsurf",  "cmdMinMax",
                                "cmdVaskMode", "cmdVaskMode2"};
const char* const kNoFunction =
    " No function. Please find the function/equation with left Scroll Bar or input new one.  ";
}  // namespace

void OviCalc::aidKeysColour() {
  for (const char* name : kAidKeys) control(name).BackColor = kAidColour;
}

void OviCalc::cmdAssistKey() {
  if (!frameAssist->Visible) {
    frameAssist->Visible = true;
    aidKeysColour();
    cmdAssist->Caption = "Close Assist";
    Width = 12690;
    // The aids read their range from the memories, so the digits and the
    // recalls stay ready after an answer.
    bHoldKeys = true;
  } else {
    cmdAssist->Caption = "Assist, Intgrl ";
    frameAssist->Visible = false;
    Width = 11640;
    bHoldKeys = false;
  }
  if (DemoSub == 5) {
    DemoSub = 0;
    ScrForm->setValue(Value(0));
    DemoNumber = 1;
  }
}

void OviCalc::cmdExitAssist() {
  frameAssist->Visible = false;
  cmdAssist->Caption = "Assist, Intgrl ";
  Width = 11640;
  bHoldKeys = false;
}

void OviCalc::PubAssistNew() {
  CalcStage = 4;
  KeyLog = true;
  pubNewOri();
  lblFormula->Caption = EqnText[EqnIdx];
  backKeyWaits(false);
  CalcStage = 4;
}

void OviCalc::assistRefuse(std::string_view text) {
  MsgBox(std::string(text), 48, " Vantor Calc");
  PubAssistNew();
  // A refused aid leaves no answer behind from an earlier one.
  scrMem->setValue(Value(0));
  MMMsubKey(3);
  AssistOn = false;
}

// Steps 1 and 2 of the set-up: a function must be in hand.
void OviCalc::PubAssistSlopeSetUp() {
  Cancel();
  aidKeysColour();
  AssistOn = true;
  if (!EqnOpen) cmdTeqn();
  if (EqnIdx == 0) {
    if (EqnPrev > 0 && EqnTable[EqnPrev][29] > 2)
      ScrForm->setValue(Value(EqnPrev));
    else if (EqnTable[1][29] > 2)
      ScrForm->setValue(Value(1));
    else
      return assistRefuse(kNoFunction);
  }
  if (EqnTable[EqnIdx][29] < 1) assistRefuse(kNoFunction);
}

void OviCalc::PubAssistSetUp() {
  PubAssistSlopeSetUp();
  if (!AssistOn) return;
  const int slot = EqnIdx;
  const double m1 = vMemory[1].number(), m2 = vMemory[2].number();
  if (m1 == m2) return assistRefuse(" X of From and To be in Memory(1, 2). ");
  IntFrom = std::min(m1, m2);
  IntTo = std::max(m1, m2);
  PubDomainCk();
  SkipFlag = 0;
  if (domainActive()) PubContiCk();
  lblFormula->Caption = EqnText[slot];
  disp() = "0";
  const char* const kOut = " Not Continuous and/or Some Out of Domain !!!  ";
  if (SkipFlag > 1) return assistRefuse(kOut);
  // The domain check leaves the bar where it was; the ends are pressed on
  // the slot itself.
  CalcStage = 4;
  Cancel();
  ErrFlag = false;
  if (ScrForm->value() != Value(slot)) ScrForm->setValue(Value(slot));
  EqnIdx = slot;
  if (!aidEval(IntFrom, YFrom) || !aidEval(IntTo, YTo)) return assistRefuse(kOut);
}

// The range must stay inside the limits of T, and hold no pole and no end
// of a gap.
void OviCalc::PubContiCk() {
  const double a = IntFrom, b = IntTo;
  if (a < DomainTab[100] || b > DomainTab[200]) SkipFlag = 2;
  for (int k = 9; k <= 99; ++k) {
    if (DomainTab[k] <= 1) continue;
    const double p = DomainTab[300 + k];
    if (p >= a && p <= b) SkipFlag = 2;
  }
  for (int k = 80; k <= 99; ++k) {
    if (DomainTab[k] <= 1) continue;
    const double g1 = DomainTab[400 + k], g2 = DomainTab[500 + k];
    if ((g1 >= a && g1 <= b) || (g2 >= a && g2 <= b)) SkipFlag = 2;
  }
}

bool OviCalc::aidEval(double t, double& f) {
  CalcStage = 5;
  KeyLog = false;
  ErrFlag = false;
  f = evalAt(t);
  return !ErrFlag && std::isfinite(f);
}

// An answer past what a number holds is no answer: the aid says so, and
// memory 3 keeps what it had.
bool OviCalc::aidAnswer(double value) {
  if (!std::isfinite(value)) {
    aidMessage(" Too Big  ...!!! e ");
    return false;
  }
  CalcStage = 4;
  PubReadout(Value(value));
  frameRD->Enabled = true;
  scrMem->setValue(Value(0));
  MMMsubKey(3);
  MMMinKey(3);
  lblFormula->Caption = EqnText[EqnIdx];
  return true;
}

double Cramer(double a1, double b1, double c1, double a2, double b2, double c2, double a3,
              double b3, double c3, double tiny) {
  const double d = a1 * (b2 * c3 - b3 * c2) - b1 * (a2 * c3 - a3 * c2) + c1 * (a2 * b3 - a3 * b2);
  return std::fabs(d) < tiny ? 0 : d;
}

void OviCalc::cmdSlope() {
  const double h = 1 / 1e6;
  PubAssistSlopeSetUp();
  if (!AssistOn) return;
  const std::string x = InputBox(" X - value ???  of the graph. ");
  if (!IsNumeric(Value(x))) {
    MsgBox(" X-value must be Numeric Number! ", 48, " Vantor Calc");
    return PubAssistNew();
  }
  const double t = Val(x);
  double f = 0, fl = 0, fr = 0;
  if (!aidEval(t, f)) {
    MsgBox(" Not Working...!!!  ", 48, " Vantor Calc");
    return PubAssistNew();
  }
  const bool left = aidEval(t - h, fl), right = aidEval(t + h, fr);
  const double sl = (f - fl) / h, sr = (fr - f) / h;
  auto infinity = [](double s) -> std::string {
    if (s > 1e5) return "  +Infinity??? ";
    if (s < -1e5) return "  -Infinity??? ";
    return "";
  };
  if (!left && !right) {
    MsgBox(" No Slope !!!  ", 48, " Vantor Calc");
    return PubAssistNew();
  }
  const double slope = RoundX(7, left && right ? (sl + sr) / 2 : left ? sl : sr);
  if (!aidAnswer(slope)) return;
  std::string text;
  if (left && right) {
    text = slope > 1e5    ? " Slope at Memory 3.  +Infinity??? "
           : slope < -1e5 ? " Slope at Memory 3.  -Infinity??? "
                          : " Slope at Memory 3. ";
  } else if (left) {
    text = " Slope at Left Side at Memory 3,   No-Slope on Right Side. " + infinity(slope);
  } else {
    text = " No-Slope on Left Side,   Slope at Right Side at Memory 3.  " + infinity(slope);
  }
  MsgBox(text, 48, " Vantor Calc");
  PubAssistNew();
}

void OviCalc::assistRoutes() {
  auto click = [this](std::string_view name, void (OviCalc::*routine)()) {
    on(name, Event::Click, [this, routine](EventArgs&) { (this->*routine)(); });
  };
  click("cmdAssist", &OviCalc::cmdAssistKey);
  click("cmdExitAssist", &OviCalc::cmdExitAssist);
  click("cmdSlope", &OviCalc::cmdSlope);
  click("cmdIntegral", &OviCalc::cmdIntegral);
  click("cmdLength", &OviCalc::cmdLength);
  click("cmdXCyl", &OviCalc::cmdXCyl);
  click("cmdYCol", &OviCalc::cmdYCol);
  click("cmdXsurf", &OviCalc::cmdXsurf);
  click("cmdYsurf", &OviCalc::cmdYsurf);
  click("cmdMinMax", &OviCalc::cmdMinMax);
  click("cmdVaskMode", &OviCalc::cmdVaskMode);
  click("cmdVaskMode2", &OviCalc::cmdVaskMode2);
}

}  // namespace tessaron

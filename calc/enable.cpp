// Which keys may be pressed next: a number being typed, a fresh entry, or a
// result standing. The user is stopped by a grey key first and by a message
// only where a key stays enabled.
#include <cmath>

#include "calc/ovicalc.h"

namespace tessaron {

namespace {
constexpr double kOctalLimit = 1152921504606846976.0;  // 8^20
constexpr long kTPale = 0x80CCFF, kTLit = 0x80FF;

enum class KeyState { Typing, Fresh, Result };

// The display value for the tests, or nothing when the text is no number.
bool tryValue(const std::string& text, double& v) {
  const Value t(text);
  if (!IsNumeric(t)) return false;
  v = t.number();
  return true;
}
}  // namespace

// The number views and the keys for whole numbers follow the display value;
// a display that is no number (an infinity's words) leaves them as the first
// row sets them.
static void valueKeys(OviCalc& f, Control* fract, Control* octal, Control* fac, Control* op5,
                      Control* op6, bool typing, bool exp, const std::string& text) {
  auto integerKeys = [&](bool on) {
    fac->Enabled = on;
    op5->Enabled = on;
    op6->Enabled = on;
  };
  fract->Enabled = false;
  octal->Visible = true;
  integerKeys(typing);
  double v = 0;
  if (!tryValue(text, v)) return;
  if (v != std::floor(v) && !exp) {
    fract->Enabled = true;
    octal->Visible = false;
    integerKeys(false);
  } else if (v == std::floor(v) && v >= 0 && std::fabs(v) < kOctalLimit) {
    fract->Enabled = false;
    octal->Enabled = true;
    integerKeys(true);
  } else {
    fract->Enabled = false;
    octal->Enabled = false;
    integerKeys(false);
  }
}

void OviCalc::pubEnableA() {
  blankToZero();
  if (CalcStage > 4) return;
  double v = 0;
  tryValue(disp(), v);
  cmdDeleteC->Enabled = true;
  CancelEntryC->Enabled = true;
  cmdExpC->Enabled = v != 0 && !bExp;
  if (!bHoldKeys)
    for (Control* n : NumberC) n->Enabled = true;
  cmdDeciC->Enabled = !bDecimal;
  SignC->Enabled = true;
  PipiC->Enabled = !bDecimal;
  if (bDecimal) cmdPasteC->Enabled = false;
  for (int i = 1; i <= 4; ++i) MMMout[i]->Enabled = bHoldKeys;
  cmdOpenPC->Enabled = false;
  cmdTC->Enabled = false;
  cmdTC->BackColor = kTPale;
  if (!EqnOpen) {
    valueKeys(*this, cmdFract, cmdOctal, nFac, OperatorC[5], OperatorC[6], true, bExp, disp());
    lblRead2->Visible = false;
  }
}

void OviCalc::pubEnableB() {
  blankToZero();
  if (CalcStage > 4) return;
  bExp = bDecimal = false;
  cmdDeleteC->Enabled = false;
  CancelEntryC->Enabled = false;
  cmdExpC->Enabled = false;
  for (Control* n : NumberC) n->Enabled = true;
  cmdDeciC->Enabled = true;
  SignC->Enabled = true;
  PipiC->Enabled = true;
  cmdPasteC->Enabled = true;
  for (int i = 1; i <= 4; ++i) MMMout[i]->Enabled = true;
  cmdOpenPC->Enabled = true;
  if (CalcStage == 3) {
    cmdTC->Enabled = true;
    cmdTC->BackColor = kTLit;
  }
  if (!EqnOpen) {
    valueKeys(*this, cmdFract, cmdOctal, nFac, OperatorC[5], OperatorC[6], false, bExp, disp());
    lblRead2->Visible = false;
  }
}

void OviCalc::pubEnableD() {
  blankToZero();
  if (CalcStage > 4) return;
  bExp = bDecimal = false;
  cmdDeleteC->Enabled = false;
  CancelEntryC->Enabled = true;
  cmdExpC->Enabled = false;
  if (!bHoldKeys)
    for (Control* n : NumberC) n->Enabled = false;
  cmdDeciC->Enabled = false;
  SignC->Enabled = true;
  PipiC->Enabled = false;
  cmdPasteC->Enabled = false;
  for (int i = 1; i <= 4; ++i) MMMout[i]->Enabled = bHoldKeys;
  cmdOpenPC->Enabled = false;
  cmdTC->Enabled = false;
  cmdTC->BackColor = kTPale;
  if (!EqnOpen) {
    valueKeys(*this, cmdFract, cmdOctal, nFac, OperatorC[5], OperatorC[6], false, bExp, disp());
    lblRead2->Visible = false;
  }
}

}  // namespace tessaron

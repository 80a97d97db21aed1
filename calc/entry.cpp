// Number entry: the digits and the keys that edit the typed text, the two
// clearing keys, and Back, which undoes a step by pressing the recorded keys
// again.
#include <cmath>
#include <vector>

#include "calc/ovicalc.h"

namespace tessaron {

namespace {
constexpr long kBlue = 0xFF0000;
constexpr double kOctalLimit = 1152921504606846976.0;  // 8^20

// Characters after the exponent letter, looked for up to nine places back;
// 0 when the text has none.
int exponentPlaces(const std::string& s) {
  const int n = static_cast<int>(s.size());
  for (int i = 1; i <= 9 && n - 1 - i >= 0; ++i)
    if (s[n - 1 - i] == 'E' || s[n - 1 - i] == 'e') return i;
  return 0;
}

bool endsWith(const std::string& s, std::string_view tail) {
  return s.size() >= tail.size() && s.compare(s.size() - tail.size(), tail.size(), tail) == 0;
}
}  // namespace

// The size of a typed exponent number, in powers of ten, beyond what a Real
// holds: the digit just typed is taken off again.
void OviCalc::expMagnitudeCheck() {
  std::string& t = disp();
  const size_t e = t.find_first_of("Ee");
  if (e == std::string::npos) return;
  std::string mant;
  for (size_t i = 0; i < e; ++i)
    if (t[i] != ',') mant += t[i];
  const double m = Value(mant).number();
  const double magnitude = Log(std::fabs(m)) / Log(10) + Value(t.substr(e + 1)).number();
  if (magnitude > 308.2 || magnitude < -308.2) {
    warn(" Sorry, Over Limit of this Calculator. ");
    t.pop_back();
  }
}

void OviCalc::numberViews(bool fraction) {
  if (fraction) {
    enable(cmdFract, true);
    show(cmdOctal, false);
    enable(nFac, false);
    enable(OperatorC[5], false);
    enable(OperatorC[6], false);
  } else {
    enable(cmdOctal, true);
    enable(nFac, true);
    enable(OperatorC[5], true);
    enable(OperatorC[6], true);
  }
}

void OviCalc::Number(int Index) {
  if (EqnIdx > 0 && !EqnOpen) scrFormToZero();
  PubSettingB();
  // A silent replay, by the solver or by Calc, keeps its digits together.
  if (CalcStage < 5 && KeyCount == 3) {
    setDisp("0");
    PubIniOrder();
  }
  logKey(Index);
  const char digit = static_cast<char>('0' + Index);
  if (bParenValue) {
    warn(" Need Operating Sign or . . . after (  ).");
  } else {
    if (chainEnded()) pubNew();
    if (bResult) {
      warn(" Need Operating Sign or . . . after Functions or Memories.");
    } else {
      colour(kBlue);
      const bool wasNumber = sEntry[nLevel] == Entry::Nums;
      if (!wasNumber) {
        setDisp("0");
        bDecimal = false;
      }
      std::string& t = disp();
      if (!bExp) {
        if (!bDecimal && !wasNumber && Index == 0 && displayValue() == 0) t = "0";
        if (bDecimal) {
          t += digit;
          if (loud()) {
            const double v = displayValue();
            if (v != std::floor(v))
              numberViews(true);
            else if (v >= 0 && v < kOctalLimit)
              numberViews(false);
          }
        } else if (t == "-0") {
          t = std::string("-") + digit;
        } else if (t == "0") {
          t = std::string(1, digit);
        } else {
          t += digit;
        }
        if (!bDecimal && std::fabs(displayValue()) >= 1000)
          t = Format(Value(displayValue()), "###,###");
        Readout->FontSize = t.size() > 22 ? 16 : 18;
      } else {
        const int expPos = exponentPlaces(t);
        if (endsWith(t, "+0") || endsWith(t, "-0")) {
          t.back() = digit;
        } else if (expPos < 5) {
          t += digit;
          expMagnitudeCheck();
        }
      }
      sEntry[nLevel] = Entry::Nums;
    }
    pubEnableA();
    blankToZero();
    if (displayValue() == 0 && !bExp) enable(cmdExpC, true);
  }
  if (!loud()) return;
  frameSlide->Visible = false;
  cmdOpenPC->Enabled = !bExp;
  if (CalcStage == 3) {
    cmdTC->Enabled = true;
    cmdTC->BackColor = 0x80FF;
  }
}

void OviCalc::cmdDeci() {
  PubSettingB();
  logKey(11);
  if (chainEnded()) pubNew();
  auto point = [this](bool fresh) {
    colour(kBlue);
    if (fresh)
      setDisp("0.");
    else
      disp() += '.';
    bDecimal = true;
    enable(cmdDeciC, false);
    sEntry[nLevel] = Entry::Nums;
    pubEnableA();
  };
  if (sEntry[nLevel] == Entry::Ops)
    point(true);
  else if (!bDecimal && !bResult && !bParenValue)
    point(false);
  else if (bDecimal && !bResult && !bParenValue) {
    if (!endsWith(disp(), ".")) warn(" Decimal Point is working arleady.");
  } else {
    warn(" Decimal Point is not working for memories or calculated values.");
  }
  PubReadComma();
}

void OviCalc::Sign() {
  // Two sign keys in a row reach the record once and act once.
  if (lastKey() == 12) return;
  const int before = lastKey();
  logKey(12);
  if (chainEnded()) pubNew();
  std::string& t = disp();
  auto toggle = [&t] {
    if (!t.empty() && t[0] == '-')
      t.erase(0, 1);
    else if (t.find_first_not_of("0.,") != std::string::npos)
      t.insert(0, "-");
  };
  if (!bParenValue && sEntry[nLevel] == Entry::Ops) {
    colour(kBlue);
    if (before == 33 || before >= 100)
      t = CStr(Value(-displayValue()));
    else
      t = "-0";
    sEntry[nLevel] = Entry::Nums;
    bDecimal = false;
  } else if (!bParenValue && !bResult && !bExp) {
    toggle();
    pubEnableA();
  } else if (bExp) {
    const int expPos = exponentPlaces(t);
    if (expPos > 0) {
      char& s = t[t.size() - expPos];
      s = s == '-' ? '+' : '-';
      expMagnitudeCheck();
    }
  } else if ((bResult || bParenValue) && t != "0") {
    toggle();
    if (loud()) {
      if (endsWith(FormulaText, "neg. "))
        FormulaText.erase(FormulaText.size() - 5);
      else
        FormulaText += " neg. ";
      showFormula();
    }
    if (bResult)
      pubEnableD();
    else
      pubEnableB();
  }
  if (bResult && disp() == "0") sEntry[nLevel] = Entry::Ops;
  show(frameSlide, false);
}

void OviCalc::cmdExp() {
  PubSettingB();
  logKey(15);
  if (displayValue() == 0) {
    pubNew();
    return;
  }
  if (nLastOp[nLevel] == Value(2)) setFormula("");
  if (sEntry[nLevel] == Entry::Nums) {
    bExp = true;
    if (disp().find_first_of("Ee") != std::string::npos) {
      warn(" Sorry, Exponent form already ");
      bExp = false;
    }
  }
  if (bExp) {
    disp() += "E+0";
    enable(cmdDeciC, false);
    enable(cmdExpC, false);
    if (!EqnOpen) {
      enable(cmdFract, false);
      show(lblRead2, false);
      enable(nFac, false);
      enable(OperatorC[5], false);
      enable(OperatorC[6], false);
      show(cmdOctal, true);
      enable(cmdOctal, false);
    }
  }
  if (loud()) {
    cmdExpC->Enabled = false;
    bExp = true;
    cmdOpenPC->Enabled = false;
  }
}

void OviCalc::cmdDelete() {
  logKey(14);
  if (sEntry[nLevel] != Entry::Nums || bResult || bParenValue) {
    if (bDecimal && bResult)
      warn(" Delete One Digit is not working for memories or calculated values.");
    return;
  }
  std::string& t = disp();
  if (t.size() > 1) {
    if (endsWith(t, ".")) {
      t.pop_back();
      bDecimal = false;
      enable(cmdDeciC, true);
      cmdDeciC->FontSize = 32;
    } else if (endsWith(t, "E+0") || endsWith(t, "E-0")) {
      t.erase(t.size() - 3);
      bExp = false;
      enable(cmdExpC, true);
      enable(cmdDeciC, true);
    } else if (bExp && t.size() >= 3 && t[t.size() - 3] == 'E') {
      t.back() = '0';
    } else {
      // Only the character goes: the commas stand where typing put them
      // until the next digit groups the text again.
      t.pop_back();
    }
  } else {
    t = "0";
    bDecimal = false;
  }
  // A negative number cut down to its sign reads "0".
  if (t == "-" || t.empty()) t = "0";
  if (t == "0") {
    sEntry[nLevel] = Entry::Ops;
    pubEnableB();
    enable(cmdExpC, false);
  } else {
    pubEnableA();
  }
}

void OviCalc::CancelEntry() {
  PubSettingB();
  logKey(16);
  if (bParenValue) return;
  if (nLastOp[nLevel] == Value(2)) pubNew();
  bResult = false;
  colour(kBlue);
  setDisp("0");
  bDecimal = false;
  sEntry[nLevel] = Entry::Ops;
  pubEnableB();
  enable(CancelEntryC, false);
  nMemLast = 0;
}

void OviCalc::Cancel() {
  // Moving the history bar back is part of the clearing, not a return to
  // the calculation in hand.
  const bool cancelling = bCancelling;
  bCancelling = true;
  enable(PercentC, true);
  if (loud()) KeyLog = true;
  // A chain left open is kept in the history too.
  std::string trimmed = FormulaText;
  while (!trimmed.empty() && trimmed.back() == ' ') trimmed.pop_back();
  if (FormulaText.size() > 5 && !EqnOpen && !endsWith(trimmed, "=")) pubHistSave();
  if (CalcStage > 4) CrossSteps = 0;
  if (loud()) scrFormToZero();
  if (loud()) greyPrefixes();
  pubNew();
  colour(kBlue);
  setDisp("0");
  enable(cmdClosePC, false);
  enable(OperatorC[2], true);
  if (!EqnOpen) {
    show(cmdFract, true);
    show(cmdOctal, true);
    for (Control* k : {cmdOctal, nFac, OperatorC[5], OperatorC[6]}) enable(k, true);
    show(frmEquation, false);
    show(cmdRaDeg, true);
  } else {
    TValue = Value(EqnTable[EqnIdx][25]);
    if (loud()) cmdTvalueC->Caption = " T=" + tessaron::Left(Value(CStr(TValue)), 7);
    enable(cmdTC, false);
    show(frameSlide, false);
    show(cmdOctal, false);
    show(cmdFract, false);
    for (Control* k : {nFac, OperatorC[5], OperatorC[6]}) enable(k, false);
    // The bar may walk the slots again after a T was keyed.
    enable(ScrForm, true);
  }
  InputForm = InputT = false;
  for (int i = 1; i <= 4; ++i) {
    enable(MMMin[i], true);
    enable(MMMsub[i], true);
  }
  if (loud()) {
    cmdTformC->BackColor = 0x80CCFF;
    cmdTvalueC->BackColor = 0x80CCFF;
  }
  enable(cmdTvalueC, true);
  enable(cmdBackC, false);
  KeyCount = 3;
  if (loud()) {
    scrFormToZero();
    PubIniOrder();
  }
  ErrFlag = true;
  enable(cmdPasteC, true);
  enable(cmdDeciC, true);
  if (Width < 9999) Width = 11640;
  bCancelling = cancelling;
}

void OviCalc::cmdBack() {
  enable(PercentC, true);
  restoreWidth();
  greyPrefixes();
  bReplay = true;
  if (KeyCount > 3) {
    --KeyCount;
    pubNewT();
    const std::vector<int> kept(KeyOrder.begin() + 3, KeyOrder.begin() + KeyCount);
    setDisp("0");
    colour(kBlue);
    if (KeyLog) {
      // The angle unit the calculation began with comes back first, silently.
      KeyLog = false;
      if (KeyOrder[1] == 41 || KeyOrder[1] == 42) pubCola(KeyOrder[1]);
      KeyLog = true;
      // Each kept key records itself anew as it is pressed, so a key that
      // looks at the key before it (a second Sign, a digit before "(") meets
      // the record it met the first time.
      KeyCount = 3;
    }
    for (int code : kept) pubCola(code);
    if (kept.empty()) {
      enable(cmdBackC, false);
      blankToZero();
    }
  } else {
    Cancel();
  }
  bReplay = false;
}

}  // namespace tessaron

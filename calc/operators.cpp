// The precedence machine. At each parenthesis level vAcc runs the
// multiplicative chain, vSumHold and sgSumOp keep the sum that waits for it,
// and vFuncX and vFuncY hold a pending two-operand function, the tightest
// binding. Nothing is parsed: the chain is evaluated as the keys arrive.
#include <algorithm>
#include <array>
#include <cmath>

#include "calc/ovicalc.h"

namespace tessaron {

namespace {
constexpr long kBlue = 0xFF0000, kGreen = 0x8000;
constexpr char kCaption[] = {'+', '-', '=', 'X', '/'};
const char* const kFuncText[] = {
    "", "", "", "", "", " C", " P", " ^", " Log(x)Y", " sqrt|X2-Y2|", " sqrt(X2+Y2)", " ^ 1/"};

const std::string kLogRule = "  Log x Y = Logarithm to the base x of Y" + std::string(40, ' ') +
                             " a=Log x Y   >>>   Y=x^a " + std::string(60, ' ') +
                             "  x, Y must be > 0,  x<>1  ";

double num(const Value& v) {
  if (v.kind() == Kind::Real) return v.AsReal();
  if (v.kind() == Kind::Empty) return 0;
  return v.number();
}

bool whole(double v) { return v == std::floor(v); }

// Ten to a whole power, as the ^ operator gives it: beyond a Real, Overflow.
// The dust cut asks for whole powers, at every sum of every replay: each is
// made once, by the very power routine, and kept.
double tenTo(int p) {
  constexpr int kLow = -330, kHigh = 308;  // beyond 10^308 the power overflows, as it should
  static const std::array<double, kHigh - kLow + 1> whole = [] {
    std::array<double, kHigh - kLow + 1> t{};
    for (int i = kLow; i <= kHigh; ++i) t[i - kLow] = Pow(Value(10), Value(i)).AsReal();
    return t;
  }();
  if (p >= kLow && p <= kHigh) return whole[p - kLow];
  return Pow(Value(10), Value(p)).AsReal();
}
}  // namespace

Value OviCalc::PubOPX(char op, const Value& x, const Value& y) {
  const double a = num(x), b = num(y);
  switch (op) {
    case '=':
      return y.kind() == Kind::Empty ? Value(0) : y;
    case '+':
    case '-': {
      double s = op == '+' ? a + b : a - b;
      if (a != 0 && b != 0) {
        // Representation dust is cut at the fifteenth digit of the larger
        // operand: 0.1 + 0.2 is 0.3, and a cancelling difference ends clean.
        // The logarithm rounds half to even, as CInt does; it is never far
        // from zero.
        const auto e =
            static_cast<int>(std::nearbyint(std::log10(std::max(std::fabs(a), std::fabs(b)))));
        const double p = tenTo(15 - e);
        s = std::floor(Checked(s * p + 0.5)) / p;
      }
      return Value(s);
    }
    case 'X': {
      if (a == 0 || b == 0) return Value(0);
      const double fa = std::fabs(a), fb = std::fabs(b);
      const bool across = (fa <= 1 && fb >= 1) || (fb <= 1 && fa >= 1);
      // Below 10^150 each, the logarithms' sum is far inside the limit.
      if (across || (fa < 1e150 && fb < 1e150) || std::log10(fa) + std::log10(fb) < 308.2)
        return Value(a * b);
      refuse("Sorry, Not Available !! ");
      return Value();
    }
    case '/': {
      if (b == 0) {
        refuse("Can't divide by zero");
        return Value();
      }
      if (a == 0) return Value(0);
      const double fa = std::fabs(a), fb = std::fabs(b);
      const bool same = (fa >= 1 && fb >= 1) || (fa <= 1 && fb <= 1);
      // Below 10^150 over above 10^-150, the logarithms' difference is far
      // inside the limit.
      if (same || (fa < 1e150 && fb > 1e-150) || std::log10(fa) - std::log10(fb) < 308.2)
        return Value(a / b);
      refuse("Sorry, Not Available !! ");
      return Value();
    }
    case '%':
      return Value(a * b);
  }
  return Value();
}

// A refusal ends the chain: the box (when not silent), then a clean start.
void OviCalc::refuse(std::string_view text) {
  warn(text);
  FormulaText.clear();
  Cancel();
}

void OviCalc::Operator(int Index) {
  blankToZero();
  if (Index == 8) {
    const double v = displayValue();
    if (v <= 0 || v == 1) {
      if (loud()) {
        lblFormula->Caption = kLogRule;
        if (CalcStage == 3)
          warn("  Adjust the initial value T  (maybe) ");
        else if (CalcStage == 4 && InputT)
          warn("  Not Work with current Formula. ");
        else
          warn(" x>0,  x<>1   Sorry, Not Available !! ");
        // The key before is taken back and pressed again, which restores
        // the state it left.
        const int before = lastKey();
        cmdBack();
        pubCola(before);
      }
      ErrFlag = true;
      return;
    }
  }
  if (Index != 2) PubSetting();
  if (Index == 2 && nLevel > 0) {
    warn("   ' ( ' is still open !! ");
    return;
  }
  if (EqnIdx > 0 && !EqnOpen) {
    const Value kept = HistValue[EqnIdx];
    scrFormToZero();
    PubShow(*Readout, kept);
    PubIniOrder();
  } else if (EqnIdx > 0 && EqnOpen && loud() && CalcStage != 3 && !InputForm && !InputT &&
             KeyCount < 4) {
    // An operator on a function slot continues from the function's value.
    const Value kept(EqnTable[EqnIdx][26]);
    scrFormToZero();
    PubShow(*Readout, kept);
    PubIniOrder();
  }
  // Percent's narrowing outlives the operators: it is a basic calculator
  // until Cancel or Back, so only a form of full width is set here.
  if (loud() && !EqnOpen && PercentC->Enabled) restoreWidth();
  logKey(20 + Index);
  if (Index == 2) {
    enable(cmdBackC, false);
    if (CalcStage == 3 && InputForm && EqnOpen) pubCaptureCheck();
  } else {
    PubSetting();
  }
  show(frameSlide, false);
  if (nLastOp[nLevel] == Value(2)) pubNew();
  const bool wasOps = sEntry[nLevel] == Entry::Ops;
  // Minus right after an operator starts a negative number: "5 X - 2" is
  // five times minus two. The pending operator and its operand stay.
  const char pending = sOp[nLevel];
  if (Index == 1 && wasOps && sgCount[nLevel] == 1 && sgLastOp[nLevel] < 5 && pending != 0 &&
      pending != '=' && pending != ' ') {
    colour(kBlue);
    setDisp("-");
    sEntry[nLevel] = Entry::Nums;
    return;
  }
  if (wasOps && (sgLastOp[nLevel] < 5 || Index < 5)) sEntry[nLevel] = Entry::Nums;
  if (loud()) {
    enableFunctions(true);
    if (Index >= 5) enableFunctions(false);
  }
  if (Index >= 5 && sgLastOp[nLevel] >= 5) {
    const KeptShow kept = keptDisplay();
    pubNew();
    restoreDisplay(kept);
    colour(kGreen);
    sEntry[nLevel] = Entry::Nums;
  }
  bResult = false;
  sShown[nLevel] = keptDisplay();
  colour(kGreen);
  if (sEntry[nLevel] == Entry::Ops) {
    const KeptShow kept = sShown[nLevel];
    Cancel();
    restoreDisplay(kept);
    vAcc[nLevel] = Value(displayValue());
  }
  if (!bParenValue && loud()) PubFormula(Value(displayValue()));
  if (loud()) {
    if (Index >= 5) {
      FormulaText += kFuncText[Index];
    } else {
      FormulaText += ' ';
      FormulaText += kCaption[Index];
      FormulaText += ' ';
      PubFormCut();
    }
  }
  bParenValue = false;
  showFormula();

  const int lv = nLevel;
  if (Index >= 5) {
    vFuncY[lv] = Value(displayValue());
    if (sgLastOp[lv] > 4)
      vFuncX[lv] = PubOPY(static_cast<int>(sgLastOp[lv]), vFuncX[lv], vFuncY[lv]);
    else
      vFuncX[lv] = Value(displayValue());
    PubReadout(vFuncX[lv]);
    sShown[lv] = keptDisplay();
  } else {
    foldPendingPower(lv);
    if (sEntry[lv] == Entry::Nums) sgCount[lv] += 1;
    const char caption = kCaption[Index];
    if (sgCount[lv] == 1) {
      vAcc[lv] = Value(displayValue());
    } else if (sgCount[lv] == 2) {
      vOperand[lv] = Value(keptNumber(sShown[lv]));
      if (Index < 3) {
        vAcc[lv] = PubOPX(sOp[lv], vAcc[lv], vOperand[lv]);
        if (nLastOp[lv] > Value(2)) {
          if (sgSumOp[lv] == 0)
            vAcc[lv] = PubOPX('+', vSumHold[lv], vAcc[lv]);
          else if (sgSumOp[lv] == 1)
            vAcc[lv] = PubOPX('-', vSumHold[lv], vAcc[lv]);
        }
        sgSumOp[lv] = static_cast<float>(Index);
        vSumHold[lv] = vAcc[lv];
        sOp[lv] = caption;
      } else {
        switch (sOp[lv]) {
          case '=':
            vAcc[lv] = vOperand[lv];
            break;
          case '+':
          case '-':
            sgSumOp[lv] = sOp[lv] == '+' ? 0 : 1;
            vSumHold[lv] = vAcc[lv];
            vAcc[lv] = vOperand[lv];
            break;
          case 'X':
          case '/':
            vAcc[lv] = PubOPX(sOp[lv], vAcc[lv], vOperand[lv]);
            break;
        }
      }
    }
    nLastOp[lv] = Value(Index);
    PubReadout(vAcc[lv]);
    sgCount[lv] = 1;
    sOp[lv] = caption;
  }
  // A computed result reads green; a refused one stays as the reset left it.
  if (!ErrFlag) colour(kGreen);
  sEntry[nLevel] = Entry::Ops;
  sgLastOp[nLevel] = static_cast<float>(Index);
  // After an operator the next operand is a fresh entry, whatever stood
  // before it: digits, Pi and the memory recalls are open again.
  if (!ErrFlag && loud()) {
    // "=" never takes CE away: "2 + 3 = CE 4 =" shows 4.
    const bool entryKey = CancelEntryC->Enabled;
    pubEnableB();
    if (Index == 2) CancelEntryC->Enabled = entryKey;
    if (Index >= 5) enableFunctions(false);
  }

  if (Index == 2 && EqnIdx == 0 && loud() && FormulaText.size() > 5 && FormulaText != HistText[1] &&
      !ErrFlag && !InputForm && !InputT)
    pubHistSave();
  if (Index != 2) enable(CancelEntryC, true);
  // A function keyed or a new T ends here: it is stored or tried.
  if (Index == 2 && loud()) pubEqualEngine();

  if ((Index == 5 || Index == 6) && !ErrFlag) {
    const double v = displayValue();
    if (!whole(v) || v < 1) {
      if (loud())
        lblFormula->Caption =
            Index == 5 ? "  Combination :  nCr  =   n!  /  (n-r)!  /  r! " + std::string(40, ' ') +
                             " Numbers must be Integers, and  n >= r >= 1."
                       : "  Permutation :  nPr  =   n!  /  (n-r)! " + std::string(48, ' ') +
                             " Numbers must be Integers, and  n >= r >= 1.";
      refuse(" Not Available !!! ");
    }
  }
  if (Index == 8 && !ErrFlag) {
    const double v = displayValue();
    if (v == 1 || v <= 0) {
      if (loud()) lblFormula->Caption = kLogRule;
      refuse(" x>0,  x<>1   Sorry, Not Available !! ");
    }
  }
  // The list closes at "=" only: a function's keys outlive its operators.
  if (Index == 2 && (EqnOpen || CalcStage == 3)) {
    PubIniOrder();
    if (loud()) KeyLog = true;
  }
  if (Index == 2) {
    KeyCount = 3;
    sEntry[nLevel] = Entry::Ops;
    if (loud()) PubIniOrder();
  }
  bExp = false;
  if (commaRange()) groupDisplay();
}

void OviCalc::cmdOpenP() {
  if (nLevel == kMaxLevel) {
    warn("  ' ( ) ' is opend 33 times already. Sorry for Maximum 33 times only.");
    return;
  }
  PubSetting();
  if (KeyLog) {
    const int before = lastKey();
    // While recording, "2(" means "2 X (".
    if (before < 10 || before == 19) Operator(3);
    logKey(18);
  }
  if (nLastOp[nLevel] == Value(2)) pubNew();
  if (sEntry[nLevel] == Entry::Nums) {
    warn("Need Operating Sign or ... after numbers or ... ");
    show(frameSlide, false);
    return;
  }
  bResult = false;
  if (loud()) {
    FormulaText += " ( ";
    showFormula();
  }
  colour(kBlue);
  setDisp("0");
  bParenValue = false;
  const Entry held = sEntry[nLevel];
  ++nLevel;
  if (nLevel > nLevelHigh) nLevelHigh = nLevel;
  if (loud()) txtKwal->Text = std::to_string(nLevel);
  sEntry[nLevel] = held;
  enableFunctions(true);
  enable(cmdClosePC, true);
  enable(OperatorC[2], false);
  enable(cmdDeleteC, false);
  enable(CancelEntryC, false);
  if (loud()) {
    cmdExpC->Enabled = false;
    bExp = false;
  }
  if (!EqnOpen) {
    show(lblRead2, false);
    enable(cmdFract, false);
    show(cmdOctal, true);
    for (Control* k : {cmdOctal, nFac, OperatorC[5], OperatorC[6]}) enable(k, false);
  }
}

// A two-operand key (x^y and its kin) waiting on this level takes the display
// as its second operand, and its result stands on the display.
void OviCalc::foldPendingPower(int lv) {
  if (sgLastOp[lv] <= 4) return;
  vFuncY[lv] = Value(displayValue());
  vFuncX[lv] = PubOPY(static_cast<int>(sgLastOp[lv]), vFuncX[lv], vFuncY[lv]);
  PubReadout(vFuncX[lv]);
  sShown[lv] = keptDisplay();
}

void OviCalc::cmdCloseP() {
  PubSetting();
  logKey(19);
  if (nLevel == 0) {
    warn("  ' (  ) ' is not opened or closed fully. ");
    enable(cmdOpenPC, true);
    return;
  }
  const int lv = nLevel;
  if (sEntry[lv] != Entry::Nums) sEntry[lv] = Entry::Nums;
  if (!bParenValue) PubFormula(Value(displayValue()));
  bParenValue = true;
  bResult = false;
  if (loud()) FormulaText += " ) ";
  sShown[lv] = keptDisplay();
  foldPendingPower(lv);
  if (sEntry[lv] == Entry::Nums) sgCount[lv] += 1;
  if (sgCount[lv] == 1) {
    vAcc[lv] = Value(displayValue());
  } else if (sgCount[lv] == 2) {
    vOperand[lv] = Value(keptNumber(sShown[lv]));
    if (num(vOperand[lv]) == 0 && sOp[lv] == '/') {
      if (loud()) {
        warn("Can not divide by zero . ");
        FormulaText.clear();
        Cancel();
      } else {
        ErrFlag = true;
      }
      return;
    }
    vAcc[lv] = PubOPX(sOp[lv], vAcc[lv], vOperand[lv]);
    // The held sum is folded in plainly here, without the rounding of PubOPX.
    if (nLastOp[lv] > Value(2)) {
      if (sgSumOp[lv] == 0)
        vAcc[lv] = vSumHold[lv] + vAcc[lv];
      else if (sgSumOp[lv] == 1)
        vAcc[lv] = vSumHold[lv] - vAcc[lv];
    }
  }
  if (ErrFlag) return;
  PubReadout(vAcc[lv]);
  colour(kGreen);
  vSumHold[lv] = Value(0);
  sgCount[lv] = 0;
  sOp[lv] = ' ';
  sgLastOp[lv] = 0;
  sgSumOp[lv] = 0;
  nLastOp[lv] = Value(0);
  --nLevel;
  if (loud()) txtKwal->Text = std::to_string(nLevel);
  sEntry[nLevel] = Entry::Nums;
  enableFunctions(true);
  if (loud()) {
    if (nLevel == 0) {
      cmdClosePC->Enabled = false;
      OperatorC[2]->Enabled = true;
    }
    CancelEntryC->Enabled = false;
    if (sgLastOp[nLevel] > 4) enableFunctions(false);
    if (CalcStage < 4) SignC->Enabled = false;
  }
  enable(cmdOpenPC, true);
}

void OviCalc::Percent() {
  const int last = static_cast<int>(sgLastOp[nLevel]);
  const double acc = num(vAcc[nLevel]);
  if (KeyCount > 4 && (last == 0 || last == 1 || last == 3) && acc != 0) {
    logKey(50);
    if (nLastOp[nLevel] == Value(2)) pubNew();
    const double v = displayValue();
    if (!bParenValue) PubFormFunc(Value(v));
    // After X the display is a rate; after + or - a share of the sum, so that
    // "200 + 10 %" adds 20.
    const Value shown = last == 3 ? Value(v / 100) : Value(num(vAcc[nLevel]) * v / 100);
    PubReadout(shown);
    if (loud()) FormulaText += " % ";
    PubFormula2(shown);
    if (loud()) Width = 7515;
    enable(PercentC, false);
  } else if (KeyCount >= 4 && last == 0 && acc == 0) {
    const Value shown(displayValue() / 100);
    PubReadout(shown);
    if (loud()) FormulaText += " % ";
    PubFormula2(shown);
    PubLast();
  } else {
    warn("% not work this case ");
  }
}

void OviCalc::Pipi() {
  PubSetting();
  logKey(13);
  if (bParenValue) {
    warn(" Need Operating Sign or . . . after (  ).");
    return;
  }
  if (chainEnded()) pubNew();
  if (bResult) warn(" Need Operating Sign or . . . after memories or calculated values.");
  colour(kGreen);
  const std::string& t = disp();
  if (sEntry[nLevel] != Entry::Nums || t == "0." || t == "0") {
    PubShow(*Readout, vPi);
    PubLast();
  } else if (t == "-0." || t == "-0") {
    PubShow(*Readout, -vPi);
    PubLast();
  } else {
    warn(" Need Operating Sign.");
  }
  sEntry[nLevel] = Entry::Nums;
}

}  // namespace tessaron

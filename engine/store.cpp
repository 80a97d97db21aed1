// The function store: f(T) is the list of keys that produced it. Keying it,
// storing it at "=", pressing it again at a value of T, and walking the
// slots with the form's scroll bar.
#include <cmath>

#include "calc/ovicalc.h"
#include "surface/application.h"

namespace tessaron {

namespace {
constexpr long kTPale = 0x80CCFF, kTLit = 0x80FF;
constexpr double kFree = 1e296;

const std::string kPanelHint = " Function / Formula / Equation f(T) : " + std::string(45, ' ') +
                               "   Input  f(T)  /  T-value.       * x, y  not variable here";
}  // namespace

// Every key code of the slot in hand is pressed again, errors or not: a later
// key may clear ErrFlag, so a failure anywhere is remembered and set at the
// end.
void OviCalc::pubCOCAcola() {
  const auto& col = EqnTable[EqnIdx];
  const int last = static_cast<int>(col[29]);
  bool failed = false;
  struct Replay {
    OviCalc& c;
    bool outer;
    explicit Replay(OviCalc& calc) : c(calc), outer(calc.replaying_) { c.replaying_ = true; }
    ~Replay() { c.replaying_ = outer; }
  } replay(*this);
  for (int i = 0; i <= last; ++i) {
    pubCola(static_cast<int>(col[30 + i]));
    failed |= ErrFlag;
  }
  if (failed) ErrFlag = true;
  ++EvalCount;
}

double OviCalc::evalAt(double t) {
  TNow = Value(t);
  pubCOCAcola();
  return readF();
}

void OviCalc::pubFunkWrite() {
  EqnTable[EqnIdx][28] = CalcStage;
  // An empty store keeps the first slot's stage in step with the slot in hand.
  if (EqnTable[0][29] == EqnTable[1][29] && EqnTable[0][29] == 0) EqnTable[1][28] = CalcStage;
  if (CalcStage == 3 && ScrForm->value() != Value(0)) ScrForm->setValue(Value(0));
}

void OviCalc::tValueCaption() {
  const std::string t = "T=" + tessaron::Left(Value(CStr(TValue)), 7);
  cmdTvalueC->Caption = tessaron::Right(Value(t), 7);
}

// Solve and Calc serve a stored function only.
void OviCalc::solveKeys() {
  const bool stored = EqnIdx >= 1 && EqnIdx < kDemoSlot && EqnTable[EqnIdx][29] > 2;
  cmdTsolveC->Enabled = stored;
  cmdTcalcuC->Enabled = stored;
}

void OviCalc::cmdT() {
  if (InputT && loud()) TNow = TValue;
  if (KeyLog) {
    const int before = lastKey();
    if (before < 10) {
      // "0T" is T itself; any other digit multiplies: "2T" is 2 X T.
      if (before == 0)
        --KeyCount;
      else
        Operator(3);
    }
    logKey(33);
  }
  PubSetting();
  if (!bParenValue) {
    if (chainEnded()) pubNewT();
    if (!bResult) {
      colour(0x8000);
      if (sEntry[nLevel] != Entry::Nums || dispIs("0.") || dispIs("0")) {
        PubShow(*Readout, TNow);
        PubLast();
      } else if (dispIs("-0.") || dispIs("-0")) {
        PubShow(*Readout, -TNow);
        PubLast();
      } else {
        warn(" Need Operating Sign.");
      }
    } else {
      warn(" Need Operating Sign or . . . after memories or calculated values.");
    }
  } else {
    warn(" Need Operating Sign or . . . after (  ).");
  }
  sEntry[nLevel] = Entry::Nums;
}

void OviCalc::panelKeys(bool open) {
  for (Control* k : {cmdOctal, cmdFract, PercentC}) k->Visible = !open;
  cmdRaDeg->Enabled = !open;
}

void OviCalc::cmdTeqn() {
  if (cmdTeqnC->Caption == "Eqn") {
    Cancel();
    EqnOpen = true;
    cmdTeqnC->Caption = "Close Eqn ";
    // The longer caption takes a smaller face to fit the key.
    cmdTeqnC->FontSize = 8;
    cmdTeqnC->FontBold = true;
    frmEquation->Visible = true;
    cmdTC->Visible = true;
    cmdTC->Enabled = false;
    cmdTC->BackColor = kTPale;
    frameSlide->Visible = false;
    cmdTsolveC->Enabled = false;
    cmdTcalcuC->Enabled = false;
    cmdGraph->Caption = "Demo Graph";
    cmdGraph->FontSize = 11;
    lblFormula->Caption = kPanelHint;
    FormulaText.clear();
    cmdTvalueC->Enabled = true;
    if (cmdTformC->usable()) cmdTformC->SetFocus();
    if (TChanged) tValueCaption();
    panelKeys(true);
    for (Control* k : {nFac, OperatorC[5], OperatorC[6]}) k->Enabled = false;
    if (EqnTable[1][29] > 2) {
      ScrForm->setValue(Value(1));
      cmdGraph->Caption = "Graph";
    }
    return;
  }
  Cancel();
  for (Control* k : {nFac, OperatorC[5], OperatorC[6]}) k->Enabled = true;
  panelKeys(false);
  cmdTeqnC->Caption = "Eqn";
  cmdTeqnC->FontSize = 14;
  cmdTeqnC->FontBold = false;
  EqnOpen = false;
  if (ScrForm->value() != Value(0)) ScrForm->setValue(Value(0));
  EqnIdx = 0;
  DemoSub = 0;
  frmEquation->Visible = false;
  picGraph->Visible = false;
  cmdTC->Visible = false;
  cmdGraph->Caption = "Demo Graph";
  cmdGraph->FontSize = 11;
  // Back to the plain calculator: the keys of the value on display.
  pubEnableB();
}

void OviCalc::cmdTform() {
  frameSlide->Visible = false;
  pubNewT();
  if (ScrForm->value() != Value(0)) ScrForm->setValue(Value(0));
  if (CalcStage > 1) {
    bColorDue = true;
    pubCOLOR();
  }
  greyPrefixes();
  TNow = TValue;
  InputForm = true;
  cmdTformC->BackColor = kTLit;
  InputT = false;
  cmdTvalueC->BackColor = kTPale;
  cmdTvalueC->Enabled = true;
  KeyCopy.fill(0);
  CalcStage = 3;
  setDisp("0");
  PubIniOrder();
  cmdTC->Enabled = true;
  cmdTC->BackColor = kTLit;
  cmdTformC->Enabled = false;
  cmdTvalueC->Enabled = false;
  cmdTsolveC->Enabled = false;
  cmdTcalcuC->Enabled = false;
  EqnIdx = kDemoSlot;
  // The slot being keyed holds the T in hand, which Cancel reads back.
  EqnTable[kDemoSlot][25] = TValue.number();
  EqnFirst[kDemoSlot] = Value(0);
  // The constants pasted into the last function are free again.
  PasteList.fill(kFree);
  frameSlide->Visible = false;
  setFormula("");
  lblFormula->Caption = " Input  f(T),  end with  =";
}

// At "=" while f(T) is keyed, before the result: the keys are closed, and a
// list without T is no function.
void OviCalc::pubCaptureCheck() {
  for (int i = 0; i < KeyCount; ++i) KeyCopy[i] = KeyOrder[i];
  for (int i = 2; i < KeyCount; ++i)
    if (KeyOrder[i] == 33) return;
  MsgBox(" Missed Variable T. Please start input again! ", 48, " Vantor Calc");
  InputForm = false;
  CalcStage = 2;
  pubFunkWrite();
  cmdTC->Enabled = false;
  cmdTC->BackColor = kTPale;
  cmdTformC->BackColor = kTPale;
  cmdTformC->Enabled = true;
}

void OviCalc::pubEqualEngine() {
  if (CalcStage == 3 && InputForm && EqnOpen)
    pubEqnStore();
  else if (InputT && !ErrFlag)
    pubTValueSet();
}

void OviCalc::pubEqnStore() {
  const int last = KeyCount - 1;
  auto& c0 = EqnTable[0];
  c0[0] = 0;
  c0[26] = displayValue();
  c0[27] = nColor;
  c0[28] = 4;
  c0[29] = last;
  EqnText[0] = FormulaText;
  EqnColor[0] = nColor;
  for (int i = 0; i <= last; ++i) {
    c0[30 + i] = KeyCopy[i];
    KeyOrder[i] = 0;
    KeyCopy[i] = 0;
  }
  cmdGraph->Caption = "Graph";
  cmdGraph->FontSize = 12;
  // The store moves down one slot; the oldest function falls off at 32.
  for (int i = 32; i >= 1; --i) {
    const auto& from = EqnTable[i - 1];
    if (from[29] <= 3) continue;
    const int rows = static_cast<int>(from[29]) + 30;
    std::copy(from.begin(), from.begin() + rows + 1, EqnTable[i].begin());
    EqnFirst[i] = EqnFirst[i - 1];
    EqnText[i] = EqnText[i - 1];
    EqnColor[i] = EqnColor[i - 1];
  }
  std::fill(c0.begin(), c0.begin() + 25, 0.0);
  c0[25] = TValue.number();
  c0[26] = 0;
  c0[27] = nColor;
  c0[28] = c0[29] = 0;
  EqnText[0].clear();
  const std::string text = EqnText[1];
  Cancel();
  c0[27] = nColor;
  EqnText[0].clear();
  ScrForm->setValue(Value(1));
  FormulaText = text;
  lblFormula->Caption = FormulaText;
  InputForm = false;
  CalcStage = 4;
  pubFunkWrite();
  FormulaKeep = FormulaText;
  cmdTC->Enabled = false;
  cmdTC->BackColor = kTPale;
  cmdTformC->Enabled = true;
  cmdTvalueC->Enabled = true;
  solveKeys();
  // A new function is seen first at the graph's own scale and origin.
  GraScale = 900;
  GraX0 = 5000;
}

void OviCalc::cmdTvalue() {
  InputT = true;
  TChanged = false;
  pubNewT();
  cmdDeciC->Enabled = true;
  cmdTvalueC->BackColor = kTLit;
  cmdTvalueC->Enabled = true;
  InputForm = false;
  cmdTformC->BackColor = kTPale;
  if (CalcStage == 3) {
    CalcStage = 2;
    ScrForm->Enabled = false;
  }
  for (int i = 1; i <= 4; ++i) {
    MMMin[i]->Enabled = false;
    MMMsub[i]->Enabled = false;
  }
  lblFormula->Caption = " Input T-value, end with = .";
  FormulaText.clear();
  frameSlide->Visible = false;
  cmdTC->Enabled = false;
  cmdTC->BackColor = kTPale;
  setDisp("0");
  PubIniOrder();
}

// "=" ends a new T: the function is pressed again there, and the old and the
// new T are tried as a bracket of a root.
void OviCalc::pubTValueSet() {
  auto& col = EqnTable[EqnIdx];
  cmdTvalueC->Enabled = true;
  cmdTvalueC->BackColor = kTPale;
  ScrForm->Enabled = true;
  for (int i = 1; i <= 4; ++i) {
    MMMin[i]->Enabled = true;
    MMMsub[i]->Enabled = true;
  }
  col[23] = col[25];
  col[24] = col[26];
  TChanged = true;
  TValue = Value(displayValue());
  col[25] = TValue.number();
  InputT = false;
  tValueCaption();
  TNow = TValue;
  pubFunkWrite();
  if (CalcStage != 4 || col[29] < 3) return;
  SilentNote = false;
  // The replay is silent, as Calc's is.
  const bool logging = KeyLog;
  KeyLog = false;
  CalcStage = 6;
  ErrFlag = false;
  pubCOCAcola();
  CalcStage = 4;
  KeyLog = logging;
  if (ErrFlag) return;
  const double f = readF();
  col[26] = f;
  if (EqnIdx < kDemoSlot) {
    const double tv = TValue.number();
    float found = 0;
    if (f == 0) {
      FormulaSave = FormulaText;
      AnswerCode = 1.0f;
      AnsT = tv;
      AnsF = 0;
      SilentNote = true;
      CalcStage = 5;
      PubSolveFin();
      found = AnswerCode;
      PubAnswerWrite();
      pubAnswerCount();
    } else if (std::fabs(f) < Tiny.number()) {
      FormulaSave = FormulaText;
      AnswerCode = 2.0f;
      AnsT = tv;
      AnsF = f;
      SilentNote = true;
      CalcStage = 5;
      pubSolveDetail();
      if (AnsF != 0) PubSolveFin();
      found = AnswerCode;
      if (AnswerCode > 0 && AnswerCode < 990) {
        PubAnswerWrite();
        pubAnswerCount();
      }
    } else if (std::fabs(f) < 1e151 && std::fabs(col[24]) < 1e151 && f * col[24] < 0) {
      TPrev = col[25];
      TNext = col[23];
      FPrev = col[26];
      FNext = col[24];
      AnswerCode = -97.0f;
      CalcStage = 5;
      PubDomainCk();
      pubSolveCross();
      found = AnswerCode;
      if (AnswerCode > 0.5f && AnswerCode < 990) {
        PubSolveFin();
        PubAnswerWrite();
        pubAnswerCount();
      }
    }
    CalcStage = 4;
    pubFunkWrite();
    // The line goes back to the formula when no answer came; the filing of
    // an answer clears the code, so the code is read as it came.
    if ((found <= 0.5f || found >= 990) && !SilentNote) lblFormula->Caption = FormulaSave;
    AnswerCode = 0;
    AnsCount = 0;
  }
  PubReadout(Value(f));
}

void OviCalc::cmdTcalcu() {
  if (EqnTable[EqnIdx][29] < 3) {
    MsgBox("  No Fuction / Equation  ", 48, " Vantor Calc");
  } else if (CalcStage >= 4) {
    CalcStage = 6;
    KeyLog = false;
    TNow = TValue;
    ErrFlag = false;
    pubCOCAcola();
    CalcStage = 4;
    PubIniOrder();
  }
  KeyLog = true;
  pubEnableB();
}

// The scroll bar over the slots while the panel is open.
void OviCalc::ScrFormPanel(int row) {
  EqnPrev = EqnIdx;
  CalcStage = 0;
  EqnIdx = row;
  pubEnableB();
  lblRead2->Visible = false;
  KeyLog = InputT = InputForm = false;
  for (Control* key : {cmdTvalueC, cmdTformC, cmdTC}) key->BackColor = kTPale;
  if (EqnIdx == 0) {
    TValue = Value(EqnTable[0][25]);
    tValueCaption();
    setFormula("");
    lblFormula->Caption.clear();
    pubNewT();
    solveKeys();
    return;
  }
  if (DemoSub != 5) DemoSub = EqnIdx == kDemoSlot ? 2 : 0;
  const auto& col = EqnTable[EqnIdx];
  if (col[29] > 2) {
    CalcStage = static_cast<int>(col[28]);
    const long back = vColorRead[static_cast<int>(col[27]) & 7];
    Readout->BackColor = back;
    lblFormula->BackColor = back;
    TValue = Value(col[25]);
    tValueCaption();
    FormulaText = EqnText[EqnIdx];
    FormulaKeep = FormulaText;
    cmdGraph->Caption = "Graph";
    cmdGraph->FontSize = 12;
    setDisp(Format(Value(col[26]), "0"));
    std::string line = FormulaText;
    const int answers = static_cast<int>(col[0]);
    for (int k = 1; k <= answers; ++k)
      line += "#" + std::to_string(k) + "=" + CStr(Value(col[2 * k - 1])) + "  ";
    lblFormula->Caption = line;
    const int last = static_cast<int>(col[29]);
    for (int i = 0; i <= last; ++i) KeyCopy[i] = static_cast<int>(col[30 + i]);
    if (EqnIdx == kDemoSlot && DemoNumber == 41)
      lblFormula->Caption = " Oren Vask's Mode = Mode in histogram (X3)  +  Mem(6) * Interval(d) ";
  } else {
    frameSlide->Visible = true;
    setDisp("0");
    cmdGraph->Caption = "Demo Graph";
    cmdGraph->FontSize = 11;
  }
  cmdOctal->Visible = false;
  for (Control* k : {nFac, OperatorC[5], OperatorC[6]}) k->Enabled = false;
  solveKeys();
}

void OviCalc::cmdGoCalc() {
  DemoNumber = 0;
  Caption = "  Vantor Calc                                           (15 digits) ";
  cmdGoCalcC->Visible = false;
  frmEquation->Visible = false;
  cmdAssist->Visible = true;
  cmdTeqnC->Visible = true;
  app().show(app().form("frmMain"));
}

void OviCalc::engineLoad() {
  for (auto& col : EqnTable) col[25] = TValue.number();
  PasteList.fill(kFree);
}

}  // namespace tessaron

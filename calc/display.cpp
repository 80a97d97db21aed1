// The display and the resets that every key shares: how a value becomes the
// display text, how a calculation starts afresh, and the opening and closing
// acts of a key.
#include <charconv>
#include <cmath>

#include "calc/ovicalc.h"

namespace tessaron {

namespace {
constexpr long kBlue = 0xFF0000, kGreen = 0x8000, kBlack = 0;

bool grouped(double v) { return std::fabs(v) >= 1000 && std::fabs(v) < 1e15; }

// The display text as a number: comma groups are read past, as the number
// rule reads them. Text that is no number falls to that rule and its failure.
double readNumber(const std::string& text) {
  if (text.empty()) return 0;
  // Digits alone, as typing makes them: up to fifteen are exact in a Real.
  if (text.size() <= 15) {
    unsigned long long whole = 0;
    bool digits = true;
    for (char ch : text) {
      if (ch < '0' || ch > '9') {
        digits = false;
        break;
      }
      whole = whole * 10 + static_cast<unsigned>(ch - '0');
    }
    if (digits) return static_cast<double>(whole);
  }
  char buf[64];
  size_t n = 0;
  for (char ch : text) {
    if (ch == ',') continue;
    if (n == sizeof buf) return Value(text).number();
    buf[n++] = ch;
  }
  double v = 0;
  const auto res = std::from_chars(buf, buf + n, v);
  if (res.ec != std::errc() || res.ptr != buf + n) return Value(text).number();
  return v;
}
}  // namespace

double OviCalc::readDisplay() const {
  shownValue_ = readNumber(Readout->Caption);
  shownText_ = Readout->Caption;
  return shownValue_;
}

void OviCalc::warn(std::string_view text) {
  if (loud()) MsgBox(std::string(text), 48, " Vantor Calc");
}

void OviCalc::logKey(int code) {
  if (!KeyLog) return;
  if (KeyCount >= kKeySlots) throw Failure("Subscript out of range");
  KeyOrder[KeyCount++] = code;
}

bool OviCalc::chainEnded() const { return nLastOp[nLevel] == Value(2) && sgLastOp[nLevel] < 5; }

void OviCalc::setFormula(std::string text) {
  FormulaText = std::move(text);
  showFormula();
}

void OviCalc::scrFormToZero() {
  if (ScrForm->value() != Value(0)) ScrForm->setValue(Value(0));
  EqnIdx = 0;
}

void OviCalc::restoreWidth() { Width = frameAssist->Visible ? 12690 : 11640; }

void OviCalc::greyPrefixes() {
  bArc = bHyp = false;
  cmdArc->BackColor = QBColor(7);
  cmdHyp->BackColor = QBColor(7);
  frameRD->Visible = true;
}

void OviCalc::enableFunctions(bool on) {
  for (int i = 5; i <= 11; ++i) enable(OperatorC[i], on);
}

void OviCalc::pubNewOri() {
  blankToZero();
  enableFunctions(true);
  // Levels above the highest one used since the last reset still hold their
  // start values, so the replay's many resets stay cheap.
  for (int l = 0; l <= nLevelHigh; ++l) {
    vAcc[l] = vOperand[l] = vFuncX[l] = vFuncY[l] = vSumHold[l] = Value(0);
    sgCount[l] = sgLastOp[l] = sgSumOp[l] = 0;
    sEntry[l] = Entry::Ops;
    sOp[l] = 0;
    sShown[l] = KeptShow();
    nLastOp[l] = Value(0);
  }
  nLevelHigh = 0;
  nLevel = 0;
  if (EqnIdx > 0 && (!EqnOpen || CalcStage == 3)) scrFormToZero();
  bParenValue = bDecimal = bResult = ErrFlag = false;
  FormulaText.clear();
  if (loud()) {
    lblFormula->Caption.clear();
    txtKwal->Text.clear();
  }
  pubEnableB();
  nMemLast = 0;
  enable(cmdPasteC, true);
  enable(cmdDeciC, true);
}

// The first calculation keeps the colour of the load; every later fresh start
// moves on by one row.
void OviCalc::pubNew() {
  if (CalcStage < 4 && (bColorDue || ErrFlag || InputForm))
    pubCOLOR();
  else
    bColorDue = true;
  pubNewOri();
}

void OviCalc::pubNewT() {
  pubNewOri();
  if (loud()) {
    cmdClosePC->Enabled = false;
    OperatorC[2]->Enabled = true;
  }
}

void OviCalc::pubCOLOR() {
  if (EqnOpen && CalcStage >= 4) return;
  if (!bColorDue) return;
  if (++nColor > 7) nColor = 1;
  BackColor = std::stol(sColorForm[nColor]);
  Readout->BackColor = vColorRead[nColor];
  lblFormula->BackColor = Readout->BackColor;
  HistColor[0] = nColor;
}

void OviCalc::PubSettingB() {
  if (loud()) cmdBackC->Enabled = true;
  if (CalcStage > 4) return;
  if (KeyCount < 4 && EqnOpen && !InputT && !InputForm && EqnIdx != 0) {
    scrFormToZero();
    bColorDue = true;
    pubCOLOR();
  }
  if (CalcStage == 3 && KeyCount == 3) setFormula("");
  frameSlide->Visible = false;
  if (lastKey() != 33) greyPrefixes();
  ErrFlag = false;
}

void OviCalc::PubSetting() {
  // Nothing of the demo runs yet, so clearing its mark is PubSettingB's work.
  PubSettingB();
}

void OviCalc::PubShow(Control& target, const Value& value) {
  const bool display = &target == Readout;
  if (display) pendingShow_ = false;
  if (value.kind() == Kind::Empty || (value.kind() == Kind::String && value.AsString().empty())) {
    target.Caption = "0";
    return;
  }
  // The conversion through Real is the whole fifteen-digit limit.
  const double v = value.kind() == Kind::Real ? value.AsReal() : value.number();
  if (!display) {
    target.Caption = CStr(Value(v));
    return;
  }
  if (replaying_ && !loud()) {
    pend(v);
    return;
  }
  target.Caption = CStr(Value(v));
  shownText_ = target.Caption;
  // The next key reads the display back: it is known without reading.
  shownValue_ = readBack(v);
}

KeptShow OviCalc::keptDisplay() const {
  if (pendingShow_) return {std::string(), pendingValue_, true};
  return {Readout->Caption, 0, false};
}

void OviCalc::restoreDisplay(const KeptShow& kept) {
  if (kept.numeric)
    PubShow(*Readout, Value(kept.number));
  else
    setDisp(kept.text);
}

double OviCalc::keptNumber(const KeptShow& kept) const {
  if (kept.numeric) return readBack(kept.number);
  return !pendingShow_ && kept.text == shownText_ ? shownValue_ : readNumber(kept.text);
}

double OviCalc::readAfresh(double v, std::size_t slot) const {
  readIn_[slot] = v;
  return readOut_[slot] = CStrValue(v);
}

void OviCalc::pend(double v) {
  pendingShow_ = true;
  pendingValue_ = v;
}

void OviCalc::settle() {
  if (pendingShow_ && !replaying_) flushShow();
}

void OviCalc::flushShow() {
  pendingShow_ = false;
  Readout->Caption = CStr(Value(pendingValue_));
  shownText_ = Readout->Caption;
  shownValue_ = readBack(pendingValue_);
}

void OviCalc::PubReadout(const Value& value) {
  PubShow(*Readout, value);
  colour(kBlack);
}

void OviCalc::PubReadComma() {
  // Val stops at a comma; a text without one reads as the display does.
  // A number waiting to be shown has no comma yet.
  const std::string& t = Readout->Caption;
  const bool plain = pendingShow_ || (t.find(',') == std::string::npos && !t.empty());
  if (plain ? commaRange() : grouped(Val(t))) groupDisplay();
}

// Whether the number shown is at least 1000 and below 10^15, where the display
// groups its digits. A number waiting to be shown is judged by itself unless
// its fifteen digits could carry it across a bound: the next key may well
// show another, and the reading back is then saved.
bool OviCalc::commaRange() const {
  if (pendingShow_) {
    const double a = std::fabs(pendingValue_);
    if (a < 999 || a > 1.001e15) return false;
    if (a > 1001 && a < 0.999e15) return true;
  }
  return grouped(displayValue());
}

void OviCalc::groupDisplay() {
  setDisp(Format(Value(displayValue()), "###,##0.####################"));
}

void OviCalc::PubZeroRead() {
  pubNewT();
  // With the panel open the bar stands on a function slot, whose list
  // starts from the display it was keyed on.
  PubShow(*Readout, EqnOpen ? EqnFirst[EqnIdx] : HistValue[EqnIdx]);
}

void OviCalc::PubLast() {
  bDecimal = bResult = true;
  colour(kGreen);
  if (FormulaText.empty())
    PubSettingB();
  else
    PubSetting();
  pubEnableD();
  if (bParenValue) enable(CancelEntryC, false);
  show(frameRD, true);
}

void OviCalc::PubIniOrder() {
  const Value first = lastKey() == 22 ? Value(0) : Value(displayValue());
  KeyOrder[0] = 32;
  KeyOrder[1] = bDegree ? 41 : 42;
  KeyOrder[2] = 99;
  KeyCount = 3;
  if (EqnOpen) {
    EqnFirst[EqnIdx] = first;
    TValue = Value(EqnTable[EqnIdx][25]);
    EqnTable[EqnIdx][28] = CalcStage;
    if (loud()) KeyLog = true;
  } else {
    HistValue[0] = first;
  }
}

}  // namespace tessaron

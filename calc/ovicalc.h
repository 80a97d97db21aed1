#pragma once
// The Vantor Calc: a machine of keys. Every key is a plain routine that reads
// the display text, works on the per-level record and writes text back; the
// same routines are pressed again, silently, by the key log's replay.
#include <array>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include "calc/state.h"
#include "engine/assist_state.h"
#include "engine/graph_state.h"
#include "engine/state.h"
#include "surface/form.h"

namespace tessaron {

struct Shape;

class OviCalc : public Form,
                public CalcState,
                public EngineState,
                public GraphState,
                public AssistState {
 public:
  explicit OviCalc(Application& app);
  void Load() override;
  void settle() override;

  // Keys, callable by name from the keyboard routing and from replay.
  void Number(int Index);
  void cmdDeci();
  void Sign();
  void cmdExp();
  void cmdDelete();
  void cmdBack();
  void CancelEntry();
  void Cancel();
  void Operator(int Index);
  void cmdOpenP();
  void cmdCloseP();
  void Percent();
  void Pipi();
  void cmdPythaOne();
  void cmdPythaPlus();
  void cmdDeg();
  void cmdRad();
  void txtKwalClick();
  void Form_KeyPress(int& KeyAscii);

  // The one-operand functions.
  void Rever();
  void Squar();
  void Cubi();
  void SqRt();
  void CuR();
  void exp10();
  void Expo();
  void Loga();
  void NatLog();
  void cmdArea();
  void nFacKey();
  Value SqR(const Value& x);
  Value CuRoot(const Value& x);

  // The trigonometric family, its prefixes and the angle unit.
  void SSin();
  void Ccos();
  void Ttan();
  void Secant();
  void Cosec();
  void Cotan();
  void cmdHypKey();
  void cmdArcKey();
  void cmdRaDegKey();

  // The number views on lblRead2.
  void cmdFractKey();
  void cmdOctalKey();

  // The memory bank.
  void MMMinKey(int Index);
  void MMMsubKey(int Index);
  void MMMoutKey(int Index);
  void scrMemChange();
  void MMMclear();
  // A recorded recall pressed again: the bar moves to the memory's row.
  void recallCode(int code);

  // The history view and its hint.
  void ScrFormChange();
  void tmrTimer2();

  // One recorded key code, pressed again.
  void pubCola(int code);

  // The function engine: capture, replay and the slots.
  void cmdT();
  void cmdTeqn();
  void cmdTform();
  void cmdTvalue();
  void cmdTcalcu();
  void cmdGoCalc();
  void pubCOCAcola();
  // One evaluation of the slot in hand at t: replay and read the display.
  double evalAt(double t);
  void pubFunkWrite();
  void ScrFormPanel(int row);
  void pubDemoCode(int code);

  // The limits of T read from the key list.
  void PubDomainCk();
  void PubDomainCk1();
  void PubDomainCk3();
  void powerOfT();
  void PubDomainTrig();
  void PubDomainTrig3();
  void pubDomainFront();
  void pubDomainRear();

  // The calculus aids of the Assist box, between memory 1 and memory 2.
  void cmdAssistKey();
  void cmdExitAssist();
  void PubAssistNew();
  void PubAssistSetUp();
  void PubAssistSlopeSetUp();
  void PubContiCk();
  void FindGesu();
  void cmdSlope();
  void cmdIntegral();
  void cmdLength();
  void cmdXCyl();
  void cmdYCol();
  void cmdXsurf();
  void cmdYsurf();
  void cmdMinMax();
  void PubMxMnDetail(double h);
  void ZMaxMin3();
  void ZMaxMin5();
  void cmdVaskMode();
  void cmdVaskMode2();
  void pubModeGraph();
  // The histogram's curve at the display's value: the demo key 145.
  void ModeVask();
  // The curve's formula as demo 41 titles it.
  std::string modeCurveText() const;
  // The aids' shared acts: one silent evaluation, the answer to memory 3,
  // a refusal, the sums.
  enum class SumEnd { Done, Error, TooBig };
  bool aidEval(double t, double& f);
  bool probeEval(double t, double& f);
  bool aidAnswer(double value);
  void aidMessage(const char* text);
  double aidRound(double value, bool closed) const;
  void assistRefuse(std::string_view text);
  void aidKeysColour();
  Shape gesuShape() const;
  bool demoShape(Shape& s) const;
  SumEnd simpsonSum(bool square, double& value, bool& same);
  void surfaceOfRevolution(bool aboutY);
  double flatMiddle(double x, double y, bool low);
  void assistRoutes();

  // The root finder and its answers.
  void cmdTsolve();
  void pubSolveUpDown();
  void pubSolveDomain();
  void pubDoWhile();
  void pubSolveCross();
  void pubMaxMin();
  void PubMode();
  void pubDoWhile22();
  void pubSolveDetail();
  void PubSolveFin();
  void PubSolveRound();
  void PubAnswerWrite();
  void pubAnswerCount();

  // The graph of the slot in hand and the demo gallery.
  void cmdGraphClick();
  void cmdExitGraph();
  void cmdYaxLeft();
  void cmdYaxRite();
  void cmdZoomPlus();
  void cmdZoomMinus();
  void cmdGraPrint();
  void PubGraph();
  void PubCircle();
  void pubDoGraph();
  void PubGraPrint();
  void PubDemo();
  void PubDemo3();
  void cmdGoNext();
  void cmdPrior();
  void cmdGoDemo();

  // The clipboard and the printout.
  void cmdCopy();
  void cmdPaste();
  void cmdPasteX();
  void pubPasteXY(int slot);
  void cmdPrint();

  // Resets and shared acts of the keys.
  void pubNewOri();
  void pubNew();
  void pubNewT();
  void pubCOLOR();
  void PubSetting();
  void PubSettingB();
  void PubShow(Control& target, const Value& value);
  void PubReadout(const Value& value);
  void PubReadComma();
  void PubZeroRead();
  void PubLast();
  void PubIniOrder();
  void pubEnableA();
  void pubEnableB();
  void pubEnableD();

  // Arithmetic: the four operations with their rounding, and the two-operand
  // functions. An empty result means the operation was refused.
  Value PubOPX(char op, const Value& x, const Value& y);
  Value PubOPY(int index, const Value& x, const Value& y);
  Value PubCombi(const Value& n, const Value& r);
  Value PubPermute(const Value& n, const Value& r);
  Value PubPower(const Value& x, const Value& y);
  Value PubPowerR(const Value& x, const Value& y);
  Value PubLoga(const Value& x, const Value& y);
  Value PubPythaFrom(const Value& x, const Value& y);
  Value PubPythaTo(const Value& x, const Value& y);

  // The transcript.
  void PubFormula(const Value& value);
  void PubFormula2(const Value& value);
  void PubFormFunc(const Value& value);
  void PubFormCut();

  // The display's value by the number rule (comma groups accepted). Every
  // key reads the display, and most read what the key before wrote: the last
  // text read is kept with its value.
  double displayValue() const {
    if (pendingShow_) return readBack(pendingValue_);
    if (Readout->Caption == shownText_) return shownValue_;
    return readDisplay();
  }

 private:
  void design();
  void routes();
  void engineRoutes();
  void engineLoad();
  void graphRoutes();
  // The engine's ends of "=": the capture's check before the result and the
  // store or the new T after it.
  void pubCaptureCheck();
  void pubEqualEngine();
  void pubEqnStore();
  void pubTValueSet();
  void panelKeys(bool open);
  void solveKeys();
  // The Back key tells the user to wait while a long walk of replays runs.
  void backKeyWaits(bool waiting);
  double readF() const { return displayValue(); }
  bool domainActive() const { return DomainTab[0] > 1; }
  void replayRange(int col, int from, int to);
  void replayFrom(int col, int from, int to, double t);
  void walkRefine(bool plateau);
  void tValueCaption();
  void bindControls();

  // The silent rule: from stage 5 on no box, no enabling, no transcript.
  bool loud() const { return CalcStage < 5; }
  void warn(std::string_view text);
  void enable(Control* c, bool on) {
    if (loud()) c->Enabled = on;
  }
  void show(Control* c, bool on) {
    if (loud()) c->Visible = on;
  }
  void logKey(int code);
  int lastKey() const { return KeyCount > 0 ? KeyOrder[KeyCount - 1] : 99; }
  std::string& disp() {
    if (pendingShow_) flushShow();
    return Readout->Caption;
  }
  void flushShow();
  void pend(double v);
  void setDisp(std::string text) {
    pendingShow_ = false;
    Readout->Caption = std::move(text);
  }
  // The display's text is this one; a number waiting to be shown is "0"
  // only when it is zero.
  bool dispIs(std::string_view text) const {
    return pendingShow_ ? pendingValue_ == 0 && text == "0" : Readout->Caption == text;
  }
  KeptShow keptDisplay() const;
  void restoreDisplay(const KeptShow& kept);
  double keptNumber(const KeptShow& kept) const;
  // An empty display reads as 0; a number waiting to be shown is never empty.
  void blankToZero() {
    if (!pendingShow_ && Readout->Caption.empty()) Readout->Caption = "0";
  }
  void colour(long c) { Readout->ForeColor = c; }
  bool chainEnded() const;
  void setFormula(std::string text);
  void showFormula() {
    if (loud()) lblFormula->Caption = FormulaText;
  }
  void scrFormToZero();
  void restoreWidth();
  void pubHistSave();
  void refuse(std::string_view text);
  void enableFunctions(bool on);
  void numberViews(bool typing);
  void greyPrefixes();
  void expMagnitudeCheck();
  void funcKey(int code, const char* transcript, double (*compute)(double), double limit,
               const char* refusal);
  // The frame shared by the one-operand keys, around a computed outcome.
  template <class Kernel>
  void functionKey(int code, Kernel kernel);
  void foldPendingPower(int lv);
  void takeBack(int before);
  void familyKey(int code, int key);
  void loadMemories();
  void replayKept();
  void takeHistoryRow();
  std::string formulaNumber(double v) const;
  // Presses a key whose routine another part of the calculator registers.
  void pressKey(Control* c);

  // The display's text last read, and its value.
  mutable std::string shownText_ = "\x01";  // no display text is this, at first
  mutable double shownValue_ = 0;
  // A silent replay leaves the display's text to be made when it is read,
  // or when the event ends: the keys in between, and the solver's and the
  // aids' next replays, read only its number.
  bool replaying_ = false, pendingShow_ = false;
  double pendingValue_ = 0;
  // Numbers lately shown and what their texts read back as: keys often show
  // again what stands, and T comes back at every one of its keys.
  mutable std::array<double, 8> readIn_{}, readOut_{};
  double readBack(double v) const {
    std::uint64_t bits;
    std::memcpy(&bits, &v, sizeof v);
    const auto slot = static_cast<std::size_t>((bits * 0x9E3779B97F4A7C15ULL) >> 61);
    return v == readIn_[slot] ? readOut_[slot] : readAfresh(v, slot);
  }
  double readAfresh(double v, std::size_t slot) const;
  bool commaRange() const;
  void groupDisplay();
  double readDisplay() const;
  // Controls the keys touch, found once.
  Control *Readout{}, *lblFormula{}, *lblRead2{}, *txtKwal{}, *cmdDeciC{}, *SignC{}, *cmdExpC{},
      *cmdDeleteC{}, *cmdBackC{}, *CancelEntryC{}, *CancelC{}, *cmdOpenPC{}, *cmdClosePC{},
      *PercentC{}, *PipiC{}, *cmdFract{}, *cmdOctal{}, *nFac{}, *cmdPasteC{}, *cmdTC{},
      *cmdTformC{}, *cmdTvalueC{}, *cmdTsolveC{}, *cmdTcalcuC{}, *cmdTeqnC{}, *cmdAssist{},
      *cmdPrintC{}, *cmdCopyC{}, *cmdPasteXC{}, *cmdGoCalcC{}, *txtCopy{}, *cmdArc{}, *cmdHyp{},
      *cmdDegC{}, *cmdRadC{}, *frameRD{}, *frameSlide{}, *frameAssist{}, *frmEquation{},
      *cmdRaDeg{}, *cmdGraph{}, *ScrForm{}, *picGraph{}, *scrMem{}, *imgSlide{}, *imgLine{};
  std::array<Control*, 10> NumberC{};
  std::array<Control*, 12> OperatorC{};
  std::array<Control*, 5> MMMin{}, MMMout{}, MMMsub{};
};

}  // namespace tessaron

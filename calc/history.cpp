// The history of finished calculations: 36 saved rows, newest first, each
// with its transcript, its value and its colour, walked by the bar ScrForm.
// A row on view stands on the display like a result, to be taken up again.
#include <vector>

#include "calc/kernels/history.h"
#include "calc/ovicalc.h"

namespace tessaron {

namespace k = kernels;

namespace {
constexpr long kBlue = 0xFF0000, kTPale = 0x80CCFF;

bool endsInEqual(std::string text) {
  while (!text.empty() && text.back() == ' ') text.pop_back();
  return !text.empty() && text.back() == '=';
}

// The hint: the images move in four phases of twenty ticks, then start over.
constexpr int kPhaseTicks = 20, kPhases = 4;
constexpr int kStep[kPhases] = {39, 60, 78, 21};
constexpr int kSlideAt[kPhases] = {-7590, -3729, -2722, -7590};
constexpr int kLineAt[kPhases] = {1446, 4980, 2455, 1446};
}  // namespace

void OviCalc::pubHistSave() {
  k::SaveCalculation({HistText, HistValue, HistColor}, FormulaText, Value(displayValue()), nColor);
  // Now that there is a list, the hint shows until the next key.
  if (loud()) frameSlide->Visible = true;
}

// The keys of the calculation in hand pressed again from a clear display,
// in the angle unit it began with. They are in the record already, so the
// replay does not record them twice.
void OviCalc::replayKept() {
  setDisp("0");
  colour(kBlue);
  const bool logging = KeyLog;
  KeyLog = false;
  if (KeyOrder[1] == 41 || KeyOrder[1] == 42) pubCola(KeyOrder[1]);
  const std::vector<int> keys(KeyOrder.begin() + 3, KeyOrder.begin() + KeyCount);
  for (int code : keys) pubCola(code);
  KeyLog = logging;
}

void OviCalc::ScrFormChange() {
  const int row = ScrForm->value().AsInt16();
  // With the equation panel open the bar walks the stored functions.
  if (EqnOpen) {
    ScrFormPanel(row);
    return;
  }
  CalcStage = 0;
  EqnIdx = row;
  pubEnableB();
  PubReadout(HistValue[EqnIdx]);
  Readout->BackColor = vColorRead[HistColor[EqnIdx]];
  lblFormula->BackColor = Readout->BackColor;
  frameSlide->Visible = false;
  lblRead2->Visible = false;
  KeyLog = InputT = InputForm = false;
  for (Control* key : {cmdTvalueC, cmdTformC, cmdTC}) key->BackColor = kTPale;
  if (EqnIdx > 0) {
    lblFormula->Caption = HistText[EqnIdx];
    return;
  }
  // Back at the calculation in hand: a finished one gives way to a new
  // colour; an open one is pressed again where it stood.
  if (endsInEqual(FormulaText)) {
    bColorDue = true;
    pubCOLOR();
  }
  Readout->BackColor = vColorRead[nColor];
  lblFormula->BackColor = Readout->BackColor;
  setFormula("");
  pubNewT();
  if (KeyCount > 3 && !bCancelling) replayKept();
  KeyLog = true;
}

void OviCalc::tmrTimer2() {
  if (!frameSlide->Visible) return;
  const int phase = nSlideTick / kPhaseTicks;
  if (nSlideTick % kPhaseTicks == 0) {
    imgSlide->Left = kSlideAt[phase];
    imgLine->Left = kLineAt[phase];
  }
  // The two images take turns.
  Control* moving = nSlideTick % 2 == 0 ? imgSlide : imgLine;
  moving->Left += kStep[phase];
  if (++nSlideTick == kPhaseTicks * kPhases) {
    nSlideTick = 0;
    imgSlide->Left = kSlideAt[0];
    imgLine->Left = kLineAt[0];
  }
}

}  // namespace tessaron

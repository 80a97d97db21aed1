// Vask's mode: the mode of a histogram of a continuous distribution, moved
// from the middle of the highest bar to the peak of a curve through the bars
// around it, in whole tenths of the bar interval. Five bars take a quartic,
// three a parabola; the bars' heights come from the memories.
#include <cmath>

#include "calc/ovicalc.h"
#include "engine/assist_math.h"

namespace tessaron {

namespace {
const char* const kSite = "www.tessaron.org/vask-mode";
constexpr int kYesNo = 4, kYes = 6;
}  // namespace

double ModeCutOff(double x) {
  // Truncated toward 0 to whole tenths; the small lift keeps a scan point
  // such as 0.3, which is a hair below itself in binary, on its tenth.
  const double tenths = std::floor(std::fabs(x * 10) + 1e-9);
  return (x < 0 ? -tenths : tenths) / 10;
}

void OviCalc::ModeVask() {
  if (ModeCoef[1] == 0 && ModeCoef[0] == 0) return;
  const double x = displayValue();
  const double a4 = ModeCoef[1], a3 = ModeCoef[2], a2 = ModeCoef[3], a1 = ModeCoef[4];
  double y = (((a4 * x + a3) * x + a2) * x + a1) * x + vMemory[3].number();
  ModeScale = 1;
  ModeScaleDown = false;
  const double whole = std::floor(std::fabs(a4));
  if (whole > 1) {
    ModeScale = whole;
    ModeScaleDown = true;
    y /= whole;
  } else if (a4 != 0 && std::floor(1 / std::sqrt(std::fabs(a4))) > 2) {
    ModeScale = std::floor(1 / std::sqrt(std::fabs(a4)));
    y *= ModeScale;
  }
  PubShow(*Readout, Value(y));
}

std::string OviCalc::modeCurveText() const {
  auto coef = [this](int i) { return Format(Value(ModeCoef[i]), "0.####"); };
  const bool scaled = ModeScale != 1;
  std::string text = coef(1) + "X^4 + " + coef(2) + "X^3 +" + coef(3) + "X^2 + " + coef(4) +
                     (scaled ? "X - M(3),   " : "X - M(3)     ");
  if (scaled)
    text += ModeScaleDown ? " 1/" + CStr(Value(ModeScale))
                          : CStr(Value(ModeScale)) + " times of  Y    ";
  return text;
}

void OviCalc::cmdVaskMode() {
  frameSlide->Visible = false;
  ModeCoef[0] = 0;
  lblFormula->Caption =
      std::string(
          " Oren Vask's Mode = Find  more reasonable  Mode in Histogram of Continuous "
          "Distribution. ") +
      "      Y1 ~ Y5 must be  at   0 < M1 <= M2 <= M3(Highest) >= M(4) >=M5 > 0.              "
      "ref: " +
      kSite;
  for (int i = 1; i <= 4; ++i) MMMout[i]->Enabled = true;
  double M[6];
  for (int i = 1; i <= 5; ++i) M[i] = vMemory[i].number();
  if (M[1] <= 0 || M[1] > M[2] || M[2] > M[3] || M[3] < M[4] || M[4] < M[5] || M[5] <= 0) {
    MsgBox(" Y1 ~ Y5 must be at  0 < M1 <= M2 <= M3(Highest) >= M(4) >=M5 > 0.", 48,
           " Vantor Calc");
    return;
  }
  bool special = true;
  if (M[1] == M[2] && M[2] == M[3] && M[3] > M[4]) {
    ModeX = -1;
    MsgBox("  M1 = M2 = M3(Highest) > M(4) ,  Mode is at M(2) here.", 48, " Vantor Calc");
  } else if (M[2] < M[3] && M[3] == M[4] && M[4] == M[5]) {
    ModeX = 1;
    MsgBox("  M2 <  M3(Highest) = M(4) = M(5) ,  Mode is at M(4) here.", 48, " Vantor Calc");
  } else if (M[2] == M[3] && M[3] > M[4]) {
    ModeX = -0.5;
  } else if (M[2] < M[3] && M[3] == M[4]) {
    ModeX = 0.5;
  } else if (M[2] == M[4]) {
    // Equal neighbours put the peak on the highest bar's middle, also when
    // they are as high as it: 1, 5, 5, 5, 1 needs no amending.
    ModeX = 0;
  } else {
    special = false;
  }
  int warnings = 0;
  if (!special) {
    if (!(2 * M[2] - M[1] - M[3] > 0)) ++warnings;
    if (!(2 * M[4] - M[3] - M[5] > 0)) ++warnings;
    const double a4 = (M[5] + M[1] - 4 * M[2] - 4 * M[4] + 6 * M[3]) / 24;
    const double a2 = (M[4] + M[2] - 2 * M[3]) / 2 - a4;
    const double a3 = (M[5] - M[1] - 2 * M[4] + 2 * M[2]) / 12;
    const double a1 = (M[4] - M[2]) / 2 - a3;
    ModeCoef = {2, a4, a3, a2, a1};
    // The curve is scanned through the display as its graph draws it, in
    // steps of 0.005; the peak is sought over the highest bar only.
    const int stage = CalcStage;
    CalcStage = 5;
    bool failed = false;
    double best = 0;
    for (int i = 0; i <= 800 && !failed; ++i) {
      const double X = (i - 400) / 200.0;
      PubShow(*Readout, Value(X));
      ModeVask();
      const double v = displayValue();
      if (!std::isfinite(v)) failed = true;
      if (i == 300) {
        ModeX = X;
        best = v;
      } else if (i > 300 && i <= 500 && v > best) {
        ModeX = X;
        best = v;
      }
    }
    CalcStage = stage;
    if (failed || std::fabs(ModeX) > 0.5) ModeX = 0.5 * (M[4] - M[2]) / (2 * M[3] - M[4] - M[2]);
  }
  ModeMax = ModeX;
  ModeX = ModeCutOff(ModeX);
  if ((M[5] - M[2]) * ModeX < 0) ModeX = 0;
  Cancel();
  PubReadout(Value(ModeX));
  scrMem->setValue(Value(2));
  MMMsubKey(4);
  MMMinKey(4);
  if (ModeX == 0) {
    MsgBox(" Mode in histogram (X3) is Okay.   No Amend.  ", 48, " Vantor Calc");
    return;
  }
  lblFormula->Caption = " Oren Vask's Mode = Mode in histogram (X3)  +  Mem(6) * Interval(d) ";
  if (warnings > 1)
    MsgBox(
        "  Data not fit Here.  Not Recomend Result.  Better use Highest Bar(Y3) as the Mode.  "
        "But Show Result.   ",
        48, " Vantor Calc");
  if (ModeCoef[0] == 0) {
    MsgBox(" Amending part = Interval (d)  x  Memory(6). ", 48, " Vantor Calc");
    return;
  }
  if (MsgBox(" Amending Part = Interval (d)  x  Memory(6).       See Graph??   ", kYesNo,
             " Vantor Calc") == kYes)
    pubModeGraph();
}

void OviCalc::cmdVaskMode2() {
  frameSlide->Visible = false;
  lblFormula->Caption =
      " Oren Vask's Mode = X2 + d/2 * (Y3-Y1) / (2Y2-Y3-Y1) :" + std::string(14, ' ') +
      "Find better Mode in Histogram of Continuous Distribution.    Details in "
      "HELP  and  " +
      kSite;
  for (int i = 1; i <= 4; ++i) MMMout[i]->Enabled = true;
  const double y1 = vMemory[1].number(), y2 = vMemory[2].number(), y3 = vMemory[3].number(),
               d = vMemory[4].number();
  if (y1 <= 0 || y2 <= 0 || y3 <= 0 || d <= 0) {
    MsgBox(" Each of Y1, Y2, Y3, and Interval  at Memory (1, 2, 3, 4)  must be > 0.", 48,
           " Vantor Calc");
    return;
  }
  const char* const kImpossible = " Y2 in Memory(2) is the highest bar.  Impossible.";
  double a = 0;
  if (!(y1 == y2 && y2 == y3)) {
    if (2 * y2 - y3 - y1 <= 0 || y1 > y2 || y2 < y3) {
      MsgBox(kImpossible, 48, " Vantor Calc");
      return;
    }
    a = (d / 2) * (y3 - y1) / (2 * y2 - y3 - y1);
    if (std::fabs(a) > d / 2) {
      MsgBox(kImpossible, 48, " Vantor Calc");
      return;
    }
    double tenths = std::floor(std::fabs(a / d * 10) + 1e-9);
    if (tenths < 2) tenths = 0;
    a = d * tenths / 10 * (y3 - y1 < 0 ? -1 : 1);
  }
  PubReadout(Value(a));
  scrMem->setValue(Value(1));
  MMMsubKey(4);
  MMMinKey(4);
  MsgBox(" Amending part is at Memory(5), Oren Vask's Mode = Mode in histogram + Memory(5) ", 48,
         " Vantor Calc");
}

// The curve drawn as demo 41, by the graph's own key.
void OviCalc::pubModeGraph() {
  DemoSub = 5;
  // The gallery steps its number before it copies a demo: one step short of
  // 41 lands on it.
  DemoNumber = 41 - DemoDir;
  ScrForm->setValue(Value(kDemoSlot));
  GraScale = 900;
  Width = 12690;
  cmdGraphClick();
  control("lblX").Caption = "X";
  cmdZoomPlus();
  Width = 11640;
}

}  // namespace tessaron

// The graph of f(T): traced outward from the slot's T in two passes, one to
// the right and one to the left, by pressing the function's keys again at
// steps of 20 picture units. No points are kept: each step draws one segment.
#include <algorithm>
#include <cmath>

#include "calc/ovicalc.h"
#include "surface/application.h"
#include "surface/printer.h"

namespace tessaron {

namespace {
const long kCurve = Rgb(0, 0, 255);
// The picture's drawing area, in its own units.
constexpr double kLeftEnd = 200, kRightEnd = 10000, kFoot = 5130;
// The printed picture stands this far into the page.
constexpr double kPrintX = 1000, kPrintY = 2500;
// Segments of one pass: 19,980 units, twice the picture's width.
constexpr int kSegments = 999;

double held(double y, double low, double high) { return y < low ? low : y > high ? high : y; }
bool within(double y, double low, double high) { return y > low && y < high; }
}  // namespace

void OviCalc::cmdGraphClick() {
  GraSlot = ScrForm->value().AsInt16();
  Cancel();
  EqnIdx = GraSlot;
  if (EqnTable[GraSlot][29] > 2) {
    ScrForm->setValue(Value(GraSlot));
  } else {
    ScrForm->setValue(Value(kDemoSlot));
    EqnIdx = kDemoSlot;
  }
  picGraph->picture().Cls();
  CalcStage = 5;
  GraStage = 5;
  picGraph->Visible = true;
  EqnOpen = true;
  const auto& col = EqnTable[EqnIdx];
  GraMax = GraMin = TValue.number();
  for (int k = 1; k <= static_cast<int>(col[0]); ++k) {
    GraMax = std::max(GraMax, col[2 * k - 1]);
    GraMin = std::min(GraMin, col[2 * k - 1]);
  }
  // A view kept from before is put back in range.
  if (GraScale == 0) GraScale = 900;
  if (GraScale < 10) GraScale = 10;
  if (GraX0 == 0) GraX0 = 5000;
  GraX0 = held(GraX0, 300, 9800);
  Control &prior = control("cmdPrior"), &next = control("cmdGoNext"), &head = control("txtAAA");
  Control& goDemo = control("cmdGoDemo");
  if (EqnIdx == kDemoSlot) {
    if (DemoSub != 5) {
      DemoSub = 2;
      head.Visible = prior.Visible = next.Visible = true;
    }
    const bool stored = GraSlot >= 1 && GraSlot < kDemoSlot && EqnTable[GraSlot][29] > 2;
    goDemo.Caption = "Go Eqn Graph";
    goDemo.Visible = stored;
    PubDemo();
    PubDemo3();
  } else {
    DemoSub = 0;
    head.Visible = prior.Visible = next.Visible = false;
    goDemo.Caption = "Go Demo";
    goDemo.Visible = true;
  }
  PubDomainCk();
  PubGraph();
  Width = 11640;
}

void OviCalc::PubGraph() {
  if (EqnIdx == 0) ScrForm->setValue(Value(1));
  KeyLog = false;
  GraY0 = 3000;
  if (GraScale == 0) GraScale = 900;
  StepBase = 20 / GraScale;
  picGraph->picture().Cls();
  std::string number;
  if (DemoSub < 5)
    number = EqnIdx == kDemoSlot ? " Demo # " + Format(Value(DemoNumber), "#0")
                                 : " Scroll # " + Format(Value(EqnIdx), "#0");
  control("lblDemoNbr").Caption = number;
  if (picGraph->Visible) {
    Control& axis = control("lineYY");
    axis.X1 = axis.X2 = GraX0;
    axis.Visible = true;
    PubCircle();
  }
  disp() = "0";
  auto& col = EqnTable[EqnIdx];
  TValue = Value(col[25]);
  // Demo 37 is a circle: its lower and its upper half are two curves.
  const bool halves = EqnIdx == kDemoSlot && DemoNumber == 37;
  for (int run = 0; run < (halves ? 2 : 1); ++run) {
    if (halves) {
      GraCode = 137 + run;
      col[34] = GraCode;
    }
    for (int pass = 1; pass <= 2; ++pass) {
      CalcStage = 5;
      TPrev = TValue.number();
      TNow = TValue;
      // The domain scan leaves the prefixes as it found them part way down
      // the list; T's own point starts clear, as every point of the trace.
      Cancel();
      ErrFlag = false;
      greyPrefixes();
      const double atT = evalAt(TPrev);
      if (ErrFlag) {
        MsgBox("  Not work with Initial T value  - better adjust it ???  ", 48, " Vantor Calc");
        continue;
      }
      FPrev = atT;
      if (pass == 2) StepBase = -StepBase;
      SkipCount = 0;
      CrossTries = PlateauTries = 0;
      pubDoGraph();
    }
  }
  Control& exitKey = control("cmdExitGraph");
  if (picGraph->Visible && exitKey.usable()) exitKey.SetFocus();
}

void OviCalc::pubDoGraph() {
  Iter = 1;
  SkipFlag = 0;
  PubDomainCk();
  Canvas& pic = picGraph->picture();
  pic.DrawWidth = 2;
  int clamps = 0;
  // A point that fails is skipped: neither segment that meets it is drawn.
  bool failedBefore = false;
  while (Iter < kSegments) {
    CalcStage = 5;
    SkipFlag = 0;
    TNext = TPrev + StepBase;
    if (domainActive()) {
      if (TNext < DomainTab[100] || TNext > DomainTab[200]) {
        TNext = TNext < DomainTab[100] ? DomainTab[100] : DomainTab[200];
        if (++clamps == 4) return;
      }
      for (int k = 9; k <= 99; ++k) {
        if (DomainTab[k] < 2) continue;
        const double p = DomainTab[300 + k];
        if (TNext == p) {
          SkipFlag = 2;
        } else if ((TPrev < p && p < TNext) || (TNext < p && p < TPrev)) {
          // The pole is stepped over: no segment joins its two sides.
          SkipFlag = 2;
          TNext = p + StepBase;
          break;
        }
      }
      for (int k = 80; k <= 99; ++k) {
        if (DomainTab[k] < 2) continue;
        const double low = DomainTab[400 + k], high = DomainTab[500 + k];
        if (TPrev <= low && TNext > low) {
          TNext = high;
          SkipFlag = 2;
        } else if (TPrev >= high && TNext < high) {
          TNext = low;
          SkipFlag = 2;
        }
      }
    }
    TNow = Value(TNext);
    Cancel();
    ErrFlag = false;
    greyPrefixes();
    FNext = evalAt(TNext);
    const bool failed = ErrFlag;
    if (failed || failedBefore) SkipFlag = 2;
    failedBefore = failed;

    GraX1 = GraX0 + GraScale * TPrev;
    GraY1 = GraY0 - GraScale * FPrev;
    GraX2 = GraX0 + GraScale * TNext;
    GraY2 = GraY0 - GraScale * FNext;
    // The curve has left the picture.
    if (GraX1 < kLeftEnd || GraX1 > kRightEnd || GraX2 < kLeftEnd || GraX2 > kRightEnd) return;
    GraY1 = std::floor(held(GraY1, 0, kFoot));
    GraY2 = std::floor(held(GraY2, 0, kFoot));
    GraX1 = std::floor(GraX1);
    GraX2 = std::floor(GraX2);
    // A demo's jump is a discontinuity; a user's function has its jump drawn.
    const bool seen = within(GraY1, 0, kFoot) || within(GraY2, 0, kFoot);
    if (seen && (DemoSub < 1 || std::fabs(GraY1 - GraY2) < 1110) && SkipFlag < 1)
      pic.Line(GraX1, GraY1, GraX2, GraY2, kCurve);
    if (GraPrint == -1) {
      // On paper the picture stands 1000 right and 2500 down; an end counts
      // as inside when it is inside the picture there, so the page shows
      // what the screen shows and no held end runs along the frame.
      const double y1 = held(GraY1 + kPrintY, 1000, 10000), y2 = held(GraY2 + kPrintY, 1000, 10000);
      const bool inside =
          within(y1, kPrintY, kPrintY + kFoot) || within(y2, kPrintY, kPrintY + kFoot);
      if (inside && std::fabs(GraY1 - GraY2) < 3000 && SkipFlag < 1) {
        PrinterDevice& printer = Printer();
        long colour = kCurve;
        printer.DrawStyle = 0;
        printer.DrawWidth = 2;
        if (DemoNumber == 10 && GraCode >= 141 && GraCode <= 144) {
          // One pen a curve, so the four read apart on paper.
          static constexpr int kStyle[] = {0, 1, 2, 0}, kWidth[] = {3, 2, 2, 1};
          printer.DrawStyle = kStyle[GraCode - 141];
          printer.DrawWidth = kWidth[GraCode - 141];
          if (GraCode == 144) colour = Rgb(0, 0, 0);
        }
        printer.Line(GraX1 + kPrintX, y1, GraX2 + kPrintX, y2, colour);
      }
    }
    TOld = TPrev;
    FOld = FPrev;
    TPrev = TNext;
    FPrev = FNext;
    ++Iter;
  }
}

void OviCalc::cmdExitGraph() {
  if (frameAssist->Visible) Width = 11640;
  picGraph->picture().Cls();
  CalcStage = 4;
  pubFunkWrite();
  GraStage = 0;
  CalcStage = 0;
  picGraph->Visible = false;
  if (DemoSub == 5 || EqnIdx == kDemoSlot)
    for (const char* k : {"cmdPrior", "txtAAA", "cmdGoDemo", "cmdGoNext"})
      control(k).Visible = false;
  auto& col = EqnTable[EqnIdx];
  col[27] = nColor;
  const long back = vColorRead[static_cast<int>(col[27]) & 7];
  Readout->BackColor = back;
  lblFormula->BackColor = back;
  cmdGraph->Caption = "Graph";
  cmdGraph->FontSize = 12;
  lblFormula->Caption = EqnText[EqnIdx];
  for (const char* k : {"cmdYaxLeft", "cmdYaxRite", "cmdZoomPlus", "cmdZoomMinus"})
    control(k).Enabled = true;
  pubEnableB();
  control("lblX").Caption = "T";
  cmdOctal->Visible = true;
  cmdFract->Visible = true;
  for (Control* k : {nFac, OperatorC[5], OperatorC[6]}) k->Enabled = true;
  ScrForm->setValue(Value(GraSlot));
}

}  // namespace tessaron

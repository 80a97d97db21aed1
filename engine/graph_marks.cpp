// What stands round the curve: its title, the Y axis at the origin, the
// square that shows the scale (or the demos' box), the Pi/2 line of the arc
// secant; the keys that move and zoom the view; and the graph's printout.
#include <algorithm>
#include <cmath>
#include <vector>

#include "calc/ovicalc.h"
#include "shell/print_frame.h"
#include "surface/printer.h"

namespace tessaron {

namespace {
const long kMark = Rgb(255, 127, 0);
const long kCurve = Rgb(0, 0, 255);
constexpr double kLeftEnd = 200, kRightEnd = 10000, kFoot = 5130;
constexpr double kPrintX = 1000, kPrintY = 2500;
// The printed picture's frame: the curve's band with a margin, 5500 high.
constexpr double kFrameLeft = 1100, kFrameRight = 11100, kFrameTop = 2400, kFrameFoot = 7900;

struct Segment {
  double x1, y1, x2, y2;
};

// The slot's text as the title shows it: without its closing " =".
std::string titleText(const std::string& text) {
  const long n = Len(Value(text));
  return n <= 2 ? std::string() : Left(Value(text), n - 2);
}
double titleSize(const std::string& text) { return Len(Value(text)) < 101 ? 12 : 8; }
}  // namespace

void OviCalc::PubCircle() {
  const std::string& text = EqnText[EqnIdx];
  Control& title = control("lblEqX");
  title.Caption = " Y = " + titleText(text);
  title.FontSize = titleSize(text);

  Control &axis = control("lineYY"), &yName = control("lblY");
  const bool axisShown = GraX0 >= 250 && GraX0 <= 10000;
  axis.Visible = yName.Visible = axisShown;
  axis.X1 = axis.X2 = GraX0;
  yName.Left = static_cast<int>(GraX0) + 60;

  Control &square = control("lblSq"), &modeMax = control("lblModeMax"), &pi2 = control("lblPi2");
  square.Visible = modeMax.Visible = pi2.Visible = false;
  Control* sides[] = {&control("line11"), &control("line12"), &control("line13"),
                      &control("line14")};
  for (Control* s : sides) s->Visible = false;
  std::vector<Segment> marks;
  auto place = [&](int i, const Segment& s) {
    sides[i]->X1 = s.x1;
    sides[i]->Y1 = s.y1;
    sides[i]->X2 = s.x2;
    sides[i]->Y2 = s.y2;
    sides[i]->Visible = true;
    marks.push_back(s);
  };
  const double x0 = GraX0, y0 = GraY0, s = GraScale;
  if (DemoSub < 1 || DemoNumber < 38 || DemoNumber == 41) {
    // The larger square where it fits, so that a view zoomed far out still
    // shows a square of a size one can read.
    auto fits = [&](double side) {
      return x0 - side >= kLeftEnd && x0 + side <= kRightEnd && y0 - side >= 0 &&
             y0 + side <= kFoot;
    };
    const double side = fits(10 * s) ? 10 * s : fits(s) ? s : 0;
    if (side > 0) {
      place(0, {x0 - side, y0 - side, x0 + side, y0 - side});
      place(1, {x0 + side, y0 - side, x0 + side, y0 + side});
      place(2, {x0 - side, y0 + side, x0 + side, y0 + side});
      place(3, {x0 - side, y0 - side, x0 - side, y0 + side});
      square.Caption = side > s ? "10,10" : "1,1";
      square.Left = static_cast<int>(x0 + side) + 40;
      square.Top = static_cast<int>(y0 - side) - 280;
      square.Visible = true;
    }
    if (DemoSub >= 1 && DemoNumber == 41) {
      modeMax.Caption = "Max at X = " + Format(Value(ModeMax), "0.###");
      modeMax.Visible = true;
    }
  } else {
    // The normal curves stand in a box one unit each side and half a unit
    // high, on their scale of five.
    const double top = y0 - 2.5 * s;
    place(0, {x0 - s, y0, x0 - s, top});
    place(1, {x0 + s, y0, x0 + s, top});
    place(2, {x0 - s, y0, x0 + s, y0});
    if (top >= 300) place(3, {x0 - s, top, x0 + s, top});
    square.Caption = "1, 0.5";
    square.Left = static_cast<int>(x0 + s) + 40;
    square.Top = static_cast<int>(std::max(top, 300.0)) - 280;
    square.Visible = true;
  }
  if (DemoSub >= 1 && DemoNumber == 23 && y0 - 100 > vPi.number() * s / 2) {
    const double y = y0 - vPi.number() * s / 2;
    picGraph->picture().Line(500, y, 9500, y, kMark);
    marks.push_back({500, y, 9500, y});
    pi2.Top = static_cast<int>(y) - 150 - pi2.Height;
    pi2.Visible = true;
  }
  if (GraPrint == -1) {
    PrinterDevice& printer = Printer();
    printer.DrawWidth = 1;
    printer.DrawStyle = 0;
    for (const Segment& m : marks)
      printer.Line(m.x1 + kPrintX, m.y1 + kPrintY, m.x2 + kPrintX, m.y2 + kPrintY, kMark);
  }
}

void OviCalc::cmdYaxLeft() {
  Control& left = control("cmdYaxLeft");
  control("cmdYaxRite").Enabled = true;
  GraX0 -= 1000;
  if (GraX0 <= 300) {
    GraX0 = 300;
    left.Enabled = false;
  }
  PubGraph();
}

void OviCalc::cmdYaxRite() {
  Control& right = control("cmdYaxRite");
  if (GraX0 < 9750) {
    GraX0 = std::min(GraX0 + 1000, 9800.0);
    PubGraph();
    control("cmdYaxLeft").Enabled = true;
  } else {
    right.Enabled = false;
  }
}

void OviCalc::cmdZoomPlus() {
  if (GraScale < 2800) {
    GraScale = std::min(GraScale * 1.5, 2880.0);
    PubGraph();
    control("cmdZoomMinus").Enabled = true;
  } else {
    control("cmdZoomPlus").Enabled = false;
  }
}

void OviCalc::cmdZoomMinus() {
  if (GraScale > 70) {
    GraScale = std::max(GraScale / 1.5, 70.0);
    PubGraph();
    control("cmdZoomPlus").Enabled = true;
  } else {
    control("cmdZoomMinus").Enabled = false;
  }
}

void OviCalc::cmdGraPrint() {
  if (MsgBox(" Print out Graph ??? ", 4, " Vantor Calc ") != 6) return;
  PubGraPrint();
  Printer().EndDoc();
  picGraph->Visible = true;
  Control& exitKey = control("cmdExitGraph");
  if (exitKey.usable()) exitKey.SetFocus();
}

void OviCalc::PubGraPrint() {
  PubPageHead(*this, kPlaceTop);
  PrinterDevice& printer = Printer();
  printer.DrawWidth = 1;
  printer.DrawStyle = 0;
  const long black = Rgb(0, 0, 0);
  printer.Box(kFrameLeft, kFrameTop, kFrameRight, kFrameFoot, black, false);
  // The T axis as on the screen.
  printer.Line(kFrameLeft, GraY0 + kPrintY, kFrameRight, GraY0 + kPrintY, black);
  const double axisX = kPrintX + GraX0;
  if (DemoSub != 5 && axisX > 1000 && axisX < 11000) {
    printer.Line(axisX, kFrameTop, axisX, kFrameFoot, black);
    printer.CurrentX = axisX + 60;
    printer.CurrentY = kFrameTop + 40;
    printer.FontSize = 10;
    printer.ForeColor = black;
    printer.Print({Value("Y")});
  }
  GraPrint = -1;
  PubCircle();
  PubGraph();
  GraPrint = 0;
  const std::string& text = EqnText[EqnIdx];
  printer.CurrentX = kFrameLeft;
  printer.CurrentY = kFrameFoot + 200;
  printer.ForeColor = kCurve;
  printer.FontSize = titleSize(text);
  printer.Print({Value("Y = " + titleText(text))});
  if (DemoSub == 5) {
    printer.FontSize = 20;
    printer.CurrentX = kFrameLeft;
    printer.Print({Value("Max. at X = " + Format(Value(ModeMax), "0.###"))});
  }
  printer.FontSize = 12;
  const auto& col = EqnTable[EqnIdx];
  for (int k = 1; k <= static_cast<int>(col[0]); ++k) {
    printer.CurrentX = kFrameLeft;
    printer.Print(
        {Value("  Ans. # "), Value(Format(Value(k), "##")), Value(": "), Value(col[2 * k - 1])});
  }
}

}  // namespace tessaron

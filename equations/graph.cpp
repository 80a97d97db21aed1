// The graph: origin and scales tuned to the solved equation, the curve in
// two passes (segments, then points with the marks), and the zoom keys.
#include "equations/eqtns.h"

#include <algorithm>

namespace tessaron {

namespace {
constexpr int kPictureEnd = 6700;
const long kRed = Rgb(255, 0, 0);
const long kBlue = Rgb(0, 0, 255);
const long kGreen = Rgb(0, 128, 0);

Value Larger(const Value& a, const Value& b) { return b > a ? b : a; }

// A picture position for a control, held to a range any control can take.
int Twips(const Value& v) { return static_cast<int>(std::clamp(v.number(), -1.0e6, 1.0e6)); }
// A point of the curve: a line of no length.
void Point(Canvas& c, double x, const Value& y, long colour) {
  c.Line(x, y.number(), x, y.number(), colour);
}
}  // namespace

// The curve's y held within the picture, which on paper starts lower.
Value frmEqtns::Held(const Value& y) const {
  if (y < Value(sheetTop_)) return Value(sheetTop_);
  if (y > Value(sheetTop_ + kPictureEnd)) return Value(sheetTop_ + kPictureEnd);
  return y;
}

bool frmEqtns::Inside(const Value& y) const {
  return y > Value(sheetTop_ + 33) && y < Value(sheetTop_ + kPictureEnd);
}

Value frmEqtns::Mark(const Value& x) const { return Int(Value(0.5) + ScaleX * x + OriginX); }

Value frmEqtns::MidMark() const {
  const Value m = Mark(MidX);
  return m < Value(0) || m > Value(kPictureEnd) ? Value(0) : m;
}

bool frmEqtns::GraphAllowed() {
  const Value zero(0);
  switch (CInt(EqnType).AsInt16()) {
    case 1:
      if (Coef(1) != zero) {
        PubCalc();
        return true;
      }
      return Coef(2) != zero;
    case 2:
      if (Coef(1) == zero) return false;
      PubCalc();
      return true;
    case 3:
      // Parallel rows still have a picture: the fallback view of PubGraph.
      Det = Coef(2) * Coef(5) - Coef(1) * Coef(6);
      if (Det != zero) PubCalc();
      return true;
    case 4:
      Det =
          Cramer(Coef(1), Coef(2), Coef(3), Coef(5), Coef(6), Coef(7), Coef(9), Coef(10), Coef(11));
      if (Det == zero) return false;
      PubCalc();
      return true;
  }
  return false;
}

void frmEqtns::cmdGraphClick() {
  if (control("cmdGraph").Caption != "Graph") {
    control("cmdCalc").SetFocus();
    return;
  }
  if (GraphAllowed()) PubGraph();
}

void frmEqtns::cmdReturnClick() {
  for (int i = 0; i <= 3; ++i) control("lblFx", i).Caption = "";
  control("picGraph").Visible = false;
  control("cmdGraph").SetFocus();
}

void frmEqtns::pubShowYes() {
  for (int i = 0; i <= 5; ++i) control("cmdZoom", i).Visible = true;
}

void frmEqtns::pubShowNo() {
  for (int i = 0; i <= 5; ++i) control("cmdZoom", i).Visible = false;
}

void frmEqtns::cmdZoomClick(int Index) {
  const Value step(1.5);
  switch (Index) {
    case 0:
      if (!(ScaleX < Value(20) * ZoomBase)) return;
      ScaleX = ScaleX * step;
      ScaleY = ScaleY * step;
      break;
    case 1:
      if (!(ScaleX > ZoomBase / Value(10))) return;
      ScaleX = ScaleX / step;
      ScaleY = ScaleY / step;
      break;
    case 2:
      if (!(OriginY > Value(1000))) return;
      OriginY = OriginY - Value(1000);
      break;
    case 3:
      if (!(OriginX < Value(5800))) return;
      OriginX = OriginX + Value(1000);
      break;
    case 4:
      if (!(OriginY < Value(5800))) return;
      OriginY = OriginY + Value(1000);
      break;
    case 5:
      if (!(OriginX > Value(1000))) return;
      OriginX = OriginX - Value(1000);
      break;
  }
  pubZoom();
}

void frmEqtns::PubGraph() {
  control("picGraph").Visible = true;
  for (const char* name : {"lineY1", "lblY1", "lineX1", "lblX1"}) control(name).Visible = false;
  OriginX = Value(3400);
  OriginY = Value(3400);
  control("lineY1").BorderColor = kGreen;
  switch (CInt(EqnType).AsInt16()) {
    case 1:
      if (Coef(1) != Value(0))
        GraphParabola();
      else
        GraphLine();
      break;
    case 2:
      GraphCubic();
      break;
    default:
      GraphSystem();
      break;
  }
}

void frmEqtns::GraphParabola() {
  Control& caption = control("lblFx", 0);
  caption.Caption = "Graph: f(x) = y";
  caption.Visible = true;
  ScaleX = Value(500);
  control("lblY1").Caption = PtText(MidX);
  Span = Larger(Value(5), Abs(MidX));
  const bool down = Coef(1) < Value(0);
  if (Disc == Value(0)) {
    OriginY = Value(down ? 1500 : 5800);
  } else if (Disc > Value(0)) {
    OriginY = Value(3400);
    Span = Larger(Span, Abs(X2 - X1));
  } else {
    OriginY = Value(down ? 1300 : 5300);
    Span = Larger(Span, Abs(MidY));
  }
  ScaleX = Value(5) * (ScaleX / Span);
  ZoomBase = ScaleX;
  MarkA = Value(-1);
  MarkB = Value(-1);
  pubZoom();
  pubShowYes();
}

// A first-degree equation: the axes and a red marker at the root; no zoom.
void frmEqtns::GraphLine() {
  ScaleX = Value(500);
  X1 = -Coef(3) / Coef(2);
  if (Abs(X1) > Value(5)) ScaleX = Value(5) * (ScaleX / Abs(X1));
  Control& marker = control("lineY1");
  marker.BorderColor = kRed;
  MarkerY(ScaleX * X1 + Value(3400), PtText(X1));
  OriginX = Value(3400);
  OriginY = Value(3400);
  control("picGraph").picture().Cls();
  Control& xx = control("lineXX");
  xx.Y1 = xx.Y2 = 3400;
  Control& yy = control("lineYY");
  yy.X1 = yy.X2 = 3400;
  control("lblX").Top = 3400 - 120;
  control("lblY").Left = 3400 - 120;
  pubShowNo();
}

void frmEqtns::GraphCubic() {
  const Value& a = Coef(1);
  const Value &b = Coef(2), &c = Coef(3);
  ScaleX = Value(700);
  control("lblFx", 0).Visible = true;
  MidX = (-b / Value(3)) / a;
  Disc = b * b - Value(3) * a * c;
  if (Abs(Disc) < Value(1e-14)) Disc = Value(0);
  if (AnsCount == Value(1)) {
    const Value E = Abs(MidX - X1);
    if (E >= Abs(MidX) && E > Value(10)) ScaleX = Value(10) * (ScaleX / E);
    if (E < Abs(MidX) && Abs(MidX) > Value(5)) ScaleX = Value(5) * (ScaleX / Abs(MidX));
  } else {
    Span = Value(5);
    for (const Value& d : {Abs(MidX), Abs(MidX - X1), Abs(MidX - X2), Abs(MidX - X3), Abs(X2 - X1),
                           Abs(X3 - X2), Abs(X1 - X3)})
      Span = Larger(Span, d);
    ScaleX = Value(5) * (ScaleX / Span);
  }
  if (ScaleX * SideY > Value(2000)) OriginY = Value(5000);
  if (ScaleX * SideY < Value(-2000)) OriginY = Value(2000);
  ScaleY = ScaleX;
  if (Abs(a) > Value(10)) ScaleY = ScaleX / Abs(a);
  // Two trial abscissas; the left one mirrors MidX about 0, as it always has.
  const Value XL = (-ScaleX * MidX - Value(3300)) / ScaleX;
  const Value XR = (ScaleX * MidX + Value(3300)) / ScaleX;
  Span = Abs(F3(XR) - F3(XL));
  if (ScaleX * Span < Value(9000)) ScaleY = Value(9000) / Span;
  if (Abs(ScaleY * SideY) > Value(5000)) ScaleY = Value(4500) / Abs(SideY);
  // The scales keep a simple whole ratio, which the caption then states.
  auto whole = [](Value& big, const Value& small) {
    Value r = big / small;
    big = small * Int(r);
    r = big / small;
    if (r > Value(12)) big = small * Value(5) * Int((r + Value(2.5)) / Value(5));
    if (r > Value(70)) big = small * Value(10) * Int((r + Value(5)) / Value(10));
  };
  if (ScaleY <= ScaleX)
    whole(ScaleX, ScaleY);
  else
    whole(ScaleY, ScaleX);
  if (OriginY > Value(3000) && OriginY < Value(4000)) {
    Value x = -(OriginY + Value(3400)) / ScaleX;
    Value y = Value(3400) - ScaleY * F3(x);
    if (a > Value(0) && y < Value(5000)) OriginY = Value(5000);
    if (a < Value(0) && y > Value(2000)) OriginY = Value(2000);
    if (OriginY > Value(3000) && OriginY < Value(4000)) {
      x = (Value(6900) - OriginY) / ScaleX;
      y = Value(3400) - ScaleY * F3(x);
      if (a > Value(0) && y > Value(2000)) OriginY = Value(2000);
      if (a < Value(0) && y < Value(5000)) OriginY = Value(5000);
    }
  }
  OriginX = Value(3400) - ScaleX * MidX;
  // The switch to the wide mask is on for every nonzero MidX.
  control("lblY1").Caption = Format(MidX, (MidX != Value(0) ? MaskBig : MaskPt).str());
  MarkA = MarkB = MarkC = Value(-1);
  if (AnsCount > Value(0)) MarkA = Mark(X1);
  if (AnsCount > Value(1)) {
    MarkB = Mark(X2);
    MarkC = Mark(X3);
  }
  MarkMid = MidMark();
  ZoomBase = ScaleX;
  pubZoom();
  pubShowYes();
}

void frmEqtns::GraphSystem() {
  if (Det != Value(0)) {
    if (X1 > Value(0)) OriginX = Value(2000);
    if (X1 < Value(0)) OriginX = Value(4500);
    if (X2 > Value(0)) OriginY = Value(4500);
    if (X2 < Value(0)) OriginY = Value(2000);
    Span = Larger(Larger(Value(7), Abs(X1)), Abs(X2));
    ScaleX = Value(7) * (Value(500) / Span);
  } else {
    // Parallel rows: a view wide enough for the intercepts of both.
    Span = Value(5);
    for (int row : {0, 4}) {
      const Value &a = Coef(row + 1), &b = Coef(row + 2), &k = Coef(row + 3);
      if (a != Value(0)) Span = Larger(Span, Abs(k / a));
      if (b != Value(0)) Span = Larger(Span, Abs(k / b));
    }
    ScaleX = Value(5) * (Value(500) / Span);
  }
  ZoomBase = ScaleX;
  pubZoom();
  pubShowYes();
}

// The vertical marker and its figure, 100 to the left of it.
void frmEqtns::MarkerY(const Value& px, const std::string& caption) {
  Control& marker = control("lineY1");
  marker.X1 = marker.X2 = px.number();
  marker.Y1 = 0;
  marker.Y2 = kPictureEnd;
  marker.Visible = true;
  Control& label = control("lblY1");
  label.Left = Twips(px - Value(100));
  label.Caption = caption;
  label.Visible = true;
}

void frmEqtns::pubZoom() {
  const int ox = Twips(OriginX), oy = Twips(OriginY);
  Control& xx = control("lineXX");
  xx.Y1 = xx.Y2 = oy;
  Control& yy = control("lineYY");
  yy.X1 = yy.X2 = ox;
  control("lblX").Top = oy - 120;
  control("lblY").Left = ox - 120;
  Canvas& c = control("picGraph").picture();
  c.Cls();
  switch (CInt(EqnType).AsInt16()) {
    case 1:
      MarkerY(ScaleX * MidX + OriginX, control("lblY1").Caption);
      DrawParabola(c, 0);
      break;
    case 2: {
      Control& caption = control("lblFx", 0);
      if (ScaleX == ScaleY)
        caption.Caption = "Graph: f(x) = y";
      else if (ScaleX > ScaleY)
        caption.Caption = "Graph: y = f(x)  *  " + Format(ScaleX / ScaleY, "#####0");
      else
        caption.Caption = "Graph: y = f(x)  /  " + Format(ScaleY / ScaleX, "#####0");
      MarkerY(ScaleX * MidX + OriginX, control("lblY1").Caption);
      DrawCubic(c, 0);
      break;
    }
    default: {
      const bool solved = Det != Value(0);
      if (solved) {
        MarkerY(ScaleX * X1 + OriginX, PtText(X1));
        Control& across = control("lineX1");
        const Value py = OriginY - ScaleX * X2;
        across.X1 = 0;
        across.X2 = kPictureEnd;
        across.Y1 = across.Y2 = py.number();
        across.Visible = true;
        Control& label = control("lblX1");
        label.Caption = " " + PtText(X2);
        label.Top = Twips(py - Value(200));
        label.Visible = true;
      }
      if (EqnType == Value(4)) {
        Control& plane = control("lblZZ");
        plane.Caption = "Plane of z = " + PtText(X3);
        plane.Visible = true;
      }
      DrawSystem(c, 0);
      break;
    }
  }
}

// y = a x^2 + b x + c in picture units, y by ScaleX; roots in blue on the
// x axis, the focus in green above the vertex.
void frmEqtns::DrawParabola(Canvas& c, double dx) {
  const Value &a = Coef(1), &b = Coef(2), &k = Coef(3);
  MarkA = AnsCount > Value(0) ? Mark(X1) : Value(-1);
  MarkB = AnsCount == Value(2) ? Mark(X2) : Value(-1);
  MarkMid = MidMark();
  auto at = [&](int px) {
    const Value x = (Value(px) - OriginX) / ScaleX;
    return OriginY - ScaleX * (a * x * x + b * x + k);
  };
  Value prev = Held(at(33));
  for (int px = 33; px <= kPictureEnd; ++px) {
    const Value py = Held(at(px));
    c.Line(dx + (px - 1 < 33 ? 33 : px - 1), prev.number(), dx + px, py.number(), kRed);
    prev = py;
  }
  for (int px = 33; px <= kPictureEnd; ++px) {
    const Value py = at(px);
    if (Inside(py)) Point(c, dx + px, py, kRed);
    if (Value(px) == MarkA || Value(px) == MarkB) c.Circle(dx + px, OriginY.number(), 60, kBlue);
    if (Value(px) == MarkMid) {
      Value fy = py - ScaleX * (Value(1) / a) / Value(4);
      if (fy < Value(sheetTop_) || fy > Value(sheetTop_ + 7000)) fy = Value(sheetTop_);
      c.Circle(dx + px, fy.number(), 35, kGreen);
    }
  }
}

// The cubic, y by ScaleY; the roots in blue on the x axis in the first pass,
// the inflection point in green on the curve in the second.
void frmEqtns::DrawCubic(Canvas& c, double dx) {
  MarkA = MarkB = MarkC = Value(-1);
  if (AnsCount > Value(0)) MarkA = Mark(X1);
  if (AnsCount > Value(1)) {
    MarkB = Mark(X2);
    MarkC = Mark(X3);
  }
  MarkMid = MidMark();
  auto at = [&](int px) { return OriginY - ScaleY * F3((Value(px) - OriginX) / ScaleX); };
  Value prev = Held(at(11));
  for (int px = 11; px <= kPictureEnd; ++px) {
    const Value py = Held(at(px));
    c.Line(dx + (px - 1 < 11 ? 11 : px - 1), prev.number(), dx + px, py.number(), kRed);
    prev = py;
    if (Value(px) == MarkA || Value(px) == MarkB || Value(px) == MarkC)
      c.Circle(dx + px, OriginY.number(), 60, kBlue);
  }
  for (int px = 33; px <= kPictureEnd; ++px) {
    const Value py = at(px);
    if (Inside(py)) Point(c, dx + px, py, kRed);
    if (Value(px) == MarkMid) c.Circle(dx + px, py.number(), 35, kGreen);
  }
}

void frmEqtns::DrawSystem(Canvas& c, double dx) {
  if (EqnType == Value(3)) {
    DrawRow(c, Coef(1), Coef(2), Coef(3), kRed, dx);
    DrawRow(c, Coef(5), Coef(6), Coef(7), kBlue, dx);
    return;
  }
  // Each plane cut at z = X3: a x + b y = d - c z.
  const long colours[] = {kRed, kBlue, kGreen};
  for (int r = 1; r <= 3; ++r)
    DrawRow(c, Coef(4 * r - 3), Coef(4 * r - 2), Coef(4 * r) - Coef(4 * r - 1) * X3, colours[r - 1],
            dx);
}

// One row a x + b y = k as y = (k - a x) / b; with b = 0 a vertical line of
// points at x = k / a. A row of two zeros has nothing to draw.
void frmEqtns::DrawRow(Canvas& c, const Value& a, const Value& b, const Value& k, long colour,
                       double dx) {
  if (b == Value(0)) {
    if (a == Value(0)) return;
    const Value px = ScaleX * (k / a) + OriginX;
    if (px < Value(0) || px > Value(kPictureEnd)) return;
    for (int py = 34; py < kPictureEnd; ++py)
      Point(c, dx + px.number(), Value(sheetTop_ + py), colour);
    return;
  }
  auto at = [&](int px) {
    const Value x = (Value(px) - OriginX) / ScaleX;
    return OriginY - ScaleX * ((k - a * x) / b);
  };
  Value prev = Held(at(33));
  for (int px = 33; px <= kPictureEnd; ++px) {
    const Value py = Held(at(px));
    c.Line(dx + (px - 1 < 33 ? 33 : px - 1), prev.number(), dx + px, py.number(), colour);
    prev = py;
  }
  for (int px = 33; px <= kPictureEnd; ++px) {
    const Value py = at(px);
    if (Inside(py)) Point(c, dx + px, py, colour);
  }
}

}  // namespace tessaron

// The printed page: the graph redrawn on paper, lower on the page, with the
// extra texts, the equation as a line of text, the answers and the note.
#include "equations/eqtns.h"

#include "shell/print_frame.h"

namespace tessaron {

namespace {
constexpr double kPaperLeft = 1500;  // the picture's left edge on the page
constexpr double kDrop = 2600;       // how much lower the graph stands on paper
constexpr double kPictureEnd = 6700;
constexpr PrintPlace kPlaceCorner{9600, 14500, 10400, 14400};
const long kRed = Rgb(255, 0, 0);
const long kGreen = Rgb(0, 128, 0);

void Text(PrinterDevice& p, double x, double y, const std::string& text, long colour) {
  p.ForeColor = colour;
  p.CurrentX = x;
  p.CurrentY = y;
  p.Print({Value(text)});
}

void Line(PrinterDevice& p, const std::string& text, int tab = 8) {
  p.Print({Tab{tab}, Value(text)});
}
}  // namespace

void frmEqtns::cmdPrintClick() {
  if (MsgBox(" Print out ??? ", 4, " Tessaron ") != 6) return;
  if (!GraphAllowed()) return;
  PubPrint();
  Printer().EndDoc();
  control("picGraph").Visible = true;
  // A first-degree equation's picture is no curve: it stands as drawn.
  if (EqnType == Value(1) && Coef(1) == Value(0)) return;
  pubZoom();
}

std::string frmEqtns::Term(int box, bool first, const char* withFigure, const char* one,
                           const char* minusOne) const {
  const Value& v = Coef(box);
  if (!first && v == Value(0)) return "";
  const std::string plus = !first && v > Value(0) ? "   +  " : "";
  if (v == Value(1)) return plus + one;
  if (v == Value(-1)) return plus + minusOne;
  return plus + control("txtBBB", box).Text + withFigure;
}

// A row of a system: a coefficient of 1 or -1 loses its figure, and the
// later ones stand after their own sign.
std::string frmEqtns::RowText(int row) const {
  const bool three = EqnType == Value(4);
  const int base = 4 * (row - 1);
  auto figure = [this](int box) {
    const std::string t = control("txtBBB", box).Text;
    return t.empty() ? std::string("0") : t;
  };
  auto later = [&](int box, const char* name) {
    const Value& v = Coef(box);
    std::string t = figure(box);
    if (!t.empty() && t[0] == '-') t = t.substr(1);
    if (v == Value(1) || v == Value(-1)) t = "";
    return std::string(v < Value(0) ? " - " : " + ") + t + name;
  };
  const Value& first = Coef(base + 1);
  std::string s = first == Value(1) ? "" : first == Value(-1) ? "-" : figure(base + 1);
  s += "  X" + later(base + 2, "  Y");
  if (three) s += later(base + 3, "  Z");
  return s + " =    " + figure(base + (three ? 4 : 3));
}

void frmEqtns::PubPrint() {
  PrinterDevice& p = Printer();
  p.FontSize = 14;
  p.ForeColor = 0;
  p.DrawWidth = 1;
  p.DrawStyle = 0;
  p.Box(720, 720, 11520, 15120, 0, false);

  const int type = CInt(EqnType).AsInt16();
  const bool line = type == 1 && Coef(1) == Value(0);
  const Value savedY = OriginY;
  sheetTop_ = kDrop;
  OriginY = line ? Value(6000) : OriginY + Value(kDrop);
  PrintAxes(p);

  const double L = kPaperLeft;
  auto marker = [&](const Value& x, const std::string& figure, long colour) {
    const double px = (ScaleX * x + OriginX).number();
    p.Line(L + px, kDrop, L + px, kDrop + kPictureEnd, colour);
    Text(p, L + px - 100, kDrop + kPictureEnd + 40, figure, colour);
  };
  switch (type) {
    case 1:
      if (line) {
        marker(X1, PtText(X1), kRed);
      } else {
        marker(MidX, control("lblY1").Caption, kGreen);
        DrawParabola(p, L);
      }
      break;
    case 2:
      marker(MidX, control("lblY1").Caption, kGreen);
      DrawCubic(p, L);
      break;
    default:
      if (Det != Value(0)) {
        marker(X1, PtText(X1), kGreen);
        const double py = (OriginY - ScaleX * X2).number();
        p.Line(L, py, L + kPictureEnd, py, kGreen);
        Text(p, L + 40, py - 200, " " + PtText(X2), kGreen);
      }
      if (type == 4) Text(p, L + 40, kDrop - 500, "Plane of z = " + PtText(X3), 0);
      DrawSystem(p, L);
      break;
  }

  p.CurrentX = 0;
  p.CurrentY = kDrop + kPictureEnd + 500;
  p.FontSize = 12;
  p.ForeColor = 0;
  const std::string pt = MaskPt.str();
  if (type == 1 && !line) {
    Line(p, std::string(Coef(1) > Value(0) ? "Min. = " : "Max. = ") + Format(MidY, pt) +
                " at x = " + Format(MidX, pt));
    p.ForeColor = kGreen;
    Line(p, "Focus = " + PtText(MidX) + " ,  " + PtText(SideY));
  } else if (type == 2) {
    if (ScaleX > ScaleY)
      Line(p, "Graph: y = f(x) " + std::string(" *  ") + Format(ScaleX / ScaleY, "######0"));
    else if (ScaleX < ScaleY)
      Line(p, "Graph: y = f(x) " + std::string("  /  ") + Format(ScaleY / ScaleX, "######0"));
    else
      Line(p, "Graph : f(x) = y");
    for (int i = 1; i <= 3; ++i)
      if (!control("lblFx", i).Caption.empty()) Line(p, control("lblFx", i).Caption);
  }
  p.FontSize = 14;
  p.ForeColor = 0;
  p.Print({});
  PrintEquation(p);
  p.Print({});
  PrintAnswers(p);

  static const char* const kHeads[] = {
      "", " Quadratic  Equation ", " 3rd-degree Polynomial (Cubic) Equation ",
      "2-unknown 1st-degree Simultaneous Eq.", "3-unknown 1st-degree Simultaneous Eq."};
  p.CurrentX = 0;
  p.CurrentY = 1200;
  p.FontSize = 14;
  p.Print({Tab{10}, Value(line ? " First Deg. Equation " : kHeads[type])});

  PubPageHead(*this, kPlaceCorner);
  OriginY = savedY;
  sheetTop_ = 0;
}

// The axes in black with their letters, and tick pairs along both in green.
void frmEqtns::PrintAxes(PrinterDevice& p) {
  const double L = kPaperLeft;
  const double ox = L + OriginX.number(), oy = OriginY.number();
  p.Line(ox, kDrop, ox, kDrop + kPictureEnd, 0);
  Text(p, ox + 60, kDrop - 300, "Y", 0);
  p.Line(L, oy, L + kPictureEnd, oy, 0);
  Text(p, L + kPictureEnd + 60, oy - 150, "X", 0);
  for (double d = 500; d <= kPictureEnd; d += 500) {
    for (double x : {ox - d, ox + d})
      if (x >= L && x <= L + kPictureEnd) p.Line(x, oy - 40, x, oy + 40, kGreen);
    for (double y : {oy - d, oy + d})
      if (y >= kDrop && y <= kDrop + kPictureEnd) p.Line(ox - 40, y, ox + 40, y, kGreen);
  }
}

void frmEqtns::PrintEquation(PrinterDevice& p) {
  const Value zero(0);
  auto constant = [this, &zero](int box) -> std::string {
    const Value& v = Coef(box);
    if (v == zero) return "";
    return (v > zero ? "   +  " : "") + control("txtBBB", box).Text;
  };
  switch (CInt(EqnType).AsInt16()) {
    case 1:
      if (Coef(1) == zero) {
        Line(p, Term(2, true, "  X   ", "  X   ", "  -  X   ") + constant(3) + "  =   0 ", 6);
      } else {
        Line(p,
             Term(1, true, "  X^2   ", " X^2   ", " - X^2   ") +
                 Term(2, false, "  X   ", "  X   ", "  -  X   ") + constant(3) + "  =   0 ",
             6);
      }
      break;
    case 2:
      Line(p,
           Term(1, true, " X^3   ", "  X^3   ", " - X^3   ") +
               Term(2, false, "  X^2   ", " X^2   ", "  -  X^2   ") +
               Term(3, false, "  X   ", "  X   ", "  -  X   ") + constant(4) + "  =   0 ",
           6);
      break;
    case 3:
      Line(p, RowText(1), 6);
      Line(p, RowText(2), 6);
      break;
    case 4:
      for (int r = 1; r <= 3; ++r) Line(p, RowText(r), 6);
      break;
  }
}

void frmEqtns::PrintAnswers(PrinterDevice& p) {
  auto ans = [this](int i) { return control("lblAns", i).Caption; };
  switch (CInt(EqnType).AsInt16()) {
    case 1:
      Line(p, "Answers: " + ans(Coef(1) == Value(0) ? 0 : 3), 6);
      if (Coef(1) == Value(0)) break;
      Line(p, "X1 =  " + ans(0));
      Line(p, "X2 =  " + ans(1));
      Line(p, ans(2));
      break;
    case 2:
      Line(p, "Answers: " + ans(3), 6);
      Line(p, "X1 =  " + ans(0));
      Line(p, "X2 =  " + ans(1));
      Line(p, "X3 =  " + ans(2));
      break;
    case 3:
      Line(p, "X =  " + ans(0));
      Line(p, "Y =  " + ans(1));
      break;
    case 4:
      Line(p, "X =  " + ans(0));
      Line(p, "Y =  " + ans(1));
      Line(p, "Z =  " + ans(2));
      Line(p, "Answer :" + ans(3), 6);
      break;
  }
}

}  // namespace tessaron

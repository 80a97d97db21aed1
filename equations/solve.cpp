// Solving: the closed forms of the quadratic, the cubic with its Newton
// polish, and Cramer's rule for the linear systems.
#include "equations/eqtns.h"

namespace tessaron {

namespace {
const Value kTiny(1e-13);

Value Flush(const Value& v) { return Abs(v) < kTiny ? Value(0) : v; }
Value Sq(const Value& v) { return v * v; }
// " " and the general text of x.
std::string S(const Value& x) { return " " + CStr(x); }
}  // namespace

Value Three3(const Value& a, const Value& b, const Value& c, const Value& d, const Value& x) {
  return Flush(a * x * x * x + b * x * x + c * x + d);
}

Value Three2(const Value& a, const Value& b, const Value& c, const Value& x) {
  return Flush(Value(3) * a * x * x + Value(2) * b * x + c);
}

Value Three1(const Value& x, const Value& slope, const Value& y) { return Flush(x - y / slope); }

Value Cramer(const Value& a, const Value& b, const Value& c, const Value& d, const Value& e,
             const Value& f, const Value& g, const Value& h, const Value& i) {
  return Flush(a * (e * i - f * h) + b * (f * g - d * i) + c * (d * h - e * g));
}

Value frmEqtns::F3(const Value& x) const { return Three3(Coef(1), Coef(2), Coef(3), Coef(4), x); }

std::string frmEqtns::PtText(const Value& v) const {
  return Format(v, (Abs(v) > Value(10000) ? MaskBig : MaskPt).str());
}

void frmEqtns::cmdCalcClick() {
  control("picGraph").Visible = false;
  Control& graph = control("cmdGraph");
  graph.Caption = "Graph";
  ClearAnswers();
  Control& note = control("lblAns", 3);
  const Value zero(0);
  const int type = CInt(EqnType).AsInt16();
  if (type == 1) {
    if (Coef(1) != zero) {
      PubCalc();
    } else if (Coef(2) != zero) {
      X1 = -Coef(3) / Coef(2);
      control("lblAns", 0).Caption = S(X1);
      note.Caption = " First Deg. Equation ";
    } else {
      note.Caption = " Sorry, Not Good Here.  ";
      graph.Caption = "no Graph";
    }
  } else if (type == 2) {
    if (Coef(1) != zero) {
      PubCalc();
    } else {
      note.Caption = " Sorry, Use Quadratic Eqn.  or .......";
      graph.Caption = "no Graph";
    }
  } else if (type == 3) {
    Det = Coef(2) * Coef(5) - Coef(1) * Coef(6);
    if (Det == zero) {
      note.Caption = " No  Answer. ";
      graph.Caption = "no Graph";
    } else {
      PubCalc();
    }
  } else if (type == 4) {
    Det = Cramer(Coef(1), Coef(2), Coef(3), Coef(5), Coef(6), Coef(7), Coef(9), Coef(10), Coef(11));
    if (Det == zero) {
      note.Caption = " Sorry,  Not  Good  Here.           D=0";
      graph.Caption = "no Graph";
    } else {
      PubCalc();
    }
  }
  if (graph.Caption == "Graph") graph.SetFocus();
}

void frmEqtns::PubCalc() {
  switch (CInt(EqnType).AsInt16()) {
    case 1:
      CalcQuadratic();
      break;
    case 2:
      CalcCubic();
      break;
    case 3:
      X1 = (Coef(2) * Coef(7) - Coef(3) * Coef(6)) / Det;
      X2 = (Coef(3) * Coef(5) - Coef(1) * Coef(7)) / Det;
      control("lblAns", 0).Caption = S(X1);
      control("lblAns", 1).Caption = S(X2);
      break;
    case 4: {
      const Value &a = Coef(1), &b = Coef(2), &c = Coef(3), &k1 = Coef(4);
      const Value &d = Coef(5), &e = Coef(6), &f = Coef(7), &k2 = Coef(8);
      const Value &g = Coef(9), &h = Coef(10), &i = Coef(11), &k3 = Coef(12);
      X1 = Cramer(k1, b, c, k2, e, f, k3, h, i) / Det;
      X2 = Cramer(a, k1, c, d, k2, f, g, k3, i) / Det;
      X3 = Cramer(a, b, k1, d, e, k2, g, h, k3) / Det;
      control("lblAns", 0).Caption = S(X1);
      control("lblAns", 1).Caption = S(X2);
      control("lblAns", 2).Caption = S(X3);
      control("lblAns", 3).Caption = "      D = " + CStr(Det);
      break;
    }
  }
}

void frmEqtns::CalcQuadratic() {
  const Value &a = Coef(1), &b = Coef(2), &c = Coef(3);
  const Value zero(0);
  MidX = (-b / Value(2)) / a;
  MidY = a * Sq(MidX) + b * MidX + c;
  SideY = Value(0.25) / a + MidY;
  Control& focus = control("lblFx", 3);
  focus.Caption = "Focus = " + PtText(MidX) + " , " + PtText(SideY);
  focus.Visible = true;
  Disc = Sq(b) - Value(4) * a * c;
  if (Abs(Disc) < kTiny) {
    Disc = zero;
    RootD = zero;
    AnsCount = Value(1);
  }
  control("lblAns", 2).Caption = " D=" + PtText(Disc);
  Control& turn = control("lblFx", 2);
  turn.Caption = std::string(a > zero ? "Min. = " : "Max. = ") + Format(MidY, MaskPt.str()) +
                 " at x = " + Format(MidX, MaskPt.str());
  turn.Visible = true;
  Control& note = control("lblAns", 3);
  if (Disc == zero) {
    AnsCount = Value(1);
    X1 = MidX;
    control("lblAns", 0).Caption = S(X1);
    control("lblAns", 1).Caption = S(X1);
    note.Caption = " Same Numbers ";
  } else if (Disc > zero) {
    RootD = Value(Sqr(Disc.number()));
    AnsCount = Value(2);
    X1 = ((-b + RootD) / Value(2)) / a;
    X2 = ((-b - RootD) / Value(2)) / a;
    control("lblAns", 0).Caption = S(X1);
    control("lblAns", 1).Caption = S(X2);
    note.Caption = " 2 different Real Numbers ";
  } else {
    RootD = Value(Sqr((-Disc).number()));
    AnsCount = zero;
    const std::string i = Format((RootD / Value(2)) / a, MaskAns.str());
    const std::string head = b == zero ? "" : " " + Format(MidX, MaskAns.str());
    control("lblAns", 0).Caption = head + "  +  i x " + i;
    control("lblAns", 1).Caption = head + "  -  i x " + i;
    note.Caption = b == zero ? " 2 Imaginary Num." : " 2 Complex(including Imaginary) Num.";
  }
}

// The turning points, worked out and shown where the branch needs them.
void frmEqtns::CubicTurns() {
  const Value T = (Value(Sqr(Disc.number())) / Value(3)) / Coef(1);
  TurnX1 = MidX - T;
  TurnX2 = MidX + T;
  TurnY1 = F3(TurnX1);
  TurnY2 = F3(TurnX2);
  const std::string mask = MaskPt.str();
  Control& max = control("lblFx", 1);
  max.Caption = "Maxima=" + Format(TurnX1, mask) + " , " + Format(TurnY1, mask);
  max.Visible = true;
  Control& min = control("lblFx", 2);
  min.Caption = "Minima =" + Format(TurnX2, mask) + " , " + Format(TurnY2, mask);
  min.Visible = true;
}

// One real root by Newton's method from `start`, where f is `y`; shown in
// the answer mask.
void frmEqtns::CubicPolish(const Value& start, const Value& y) {
  X1 = start;
  X3 = y;
  StepCount = Value(0);
  PubSlope();
  control("lblAns", 0).Caption = " " + Format(X1, MaskAns.str());
  AnsCount = Value(1);
}

void frmEqtns::CalcCubic() {
  const Value &a = Coef(1), &b = Coef(2), &c = Coef(3), &d = Coef(4);
  const Value zero(0);
  AnsCount = zero;
  for (int i = 0; i <= 3; ++i) {
    control("lblFx", i).Caption = "";
    control("lblAns", i).Caption = "";
  }
  Control& note = control("lblAns", 3);
  auto answer = [this](int i) -> Control& { return control("lblAns", i); };

  Disc = Sq(b) - Value(3) * a * c;
  // The cubic's own flush is finer than the helpers'.
  if (Abs(Disc) < Value(1e-14)) Disc = zero;
  MidX = (-b / Value(3)) / a;
  SideY = F3(MidX);
  Control& inflection = control("lblFx", 3);
  inflection.Caption = "Inflection Point = " + PtText(MidX) + " , " + PtText(SideY);
  inflection.Visible = true;

  if (d == zero) {
    // 0 is a root and the rest is a quadratic.
    const Value E = Sq(b) - Value(4) * a * c;
    X1 = zero;
    answer(0).Caption = " 0 ";
    if (Abs(E) < kTiny) {
      X2 = (-b / Value(2)) / a;
      X3 = X2;
      answer(1).Caption = S(X2);
      answer(2).Caption = S(X2);
      if (Abs(b) < kTiny) {
        note.Caption = " 3 Same Real Numbers.                   ";
        AnsCount = Value(1);
      } else {
        note.Caption = " 3 (2-Same) Real Number Ans.           . ";
        AnsCount = Value(2);
        CubicTurns();
      }
    } else if (E > zero) {
      const Value root(Sqr(E.number()));
      X2 = ((-b - root) / Value(2)) / a;
      X3 = ((-b + root) / Value(2)) / a;
      answer(1).Caption = S(X2);
      answer(2).Caption = S(X3);
      note.Caption = c == zero ? " 3 (2-Same) Real Number Ans.            "
                               : " 3 different Real Numbers.            ";
      AnsCount = Value(2);
      CubicTurns();
    } else {
      answer(1).Caption = " ";
      answer(2).Caption = " ";
      note.Caption = " Only 1 Real Number Ans.             ";
      AnsCount = Value(1);
    }
    return;
  }

  if (Abs(Disc) < kTiny) {
    if (Abs(SideY) < kTiny) {
      X1 = MidX;
      X2 = MidX;
      X3 = MidX;
      AnsCount = Value(1);
      note.Caption = " 3 Same Number Ans.             ";
      for (int i = 0; i <= 2; ++i) answer(i).Caption = S(MidX);
    } else {
      note.Caption = " Only 1 Real Number Ans.          ";
      CubicPolish(zero, d);
    }
    return;
  }

  if (Disc < zero) {
    note.Caption = " Only 1 Real Number Ans.             ";
    CubicPolish(zero, d);
    return;
  }

  CubicTurns();
  TurnY1 = Flush(TurnY1);
  TurnY2 = Flush(TurnY2);
  // A double root at a turning point; the third root from the sum of roots.
  auto doubleRoot = [&](const Value& at) {
    X2 = at;
    X3 = at;
    AnsCount = Value(2);
    note.Caption = " 3 (2-Same) Real Number Ans.           ";
    answer(1).Caption = S(at);
    answer(2).Caption = S(at);
    X1 = -b / a - Value(2) * at;
    answer(0).Caption = S(X1);
  };
  if (TurnY1 == zero) {
    doubleRoot(TurnX1);
  } else if (TurnY1 < zero) {
    note.Caption = " Only 1 Real Number Ans.               ";
    const Value start = TurnX2 + Value(999);
    CubicPolish(start, F3(start));
  } else if (TurnY2 == zero) {
    doubleRoot(TurnX2);
  } else if (TurnY2 > zero) {
    note.Caption = " Only 1 Real Number Ans.                  ";
    const Value start = TurnX2 - Value(999);
    CubicPolish(start, F3(start));
  } else {
    AnsCount = Value(3);
    note.Caption = " 3 Real Number Answers                   ";
    X1 = zero;
    X3 = d;
    StepCount = zero;
    PubSlope();
    answer(0).Caption = " " + Format(X1, MaskAns.str());
    // Deflate by the root found and solve the quadratic that is left.
    const Value r = X1;
    Disc = Sq(a * r + b) - Value(4) * a * (a * Sq(r) + b * r + c);
    if (Disc < zero) {
      note.Caption = " something wrong     QRN        #m";
    } else {
      const Value root(Sqr(Disc.number()));
      X2 = ((-a * r - b + root) / Value(2)) / a;
      X3 = ((-a * r - b - root) / Value(2)) / a;
      answer(1).Caption = " " + Format(X2, MaskAns.str());
      answer(2).Caption = " " + Format(X3, MaskAns.str());
    }
  }
}

// Newton's method in two rounds: a coarse one to 1e-7, a rounding of the
// figure to four places that restarts from a clean value, and a fine one to
// 1e-9. A flat point is stepped over with fixed offsets.
void frmEqtns::PubSlope() {
  const Value &a = Coef(1), &b = Coef(2), &c = Coef(3);
  const Value zero(0);
  auto slope = [&](const Value& secondEscape) {
    X2 = Three2(a, b, c, X1);
    if (X2 == zero) {
      X1 = X1 + Value(1111);
      X2 = Three2(a, b, c, X1);
      X3 = F3(X1);
      if (X2 == zero) {
        X1 = X1 + secondEscape;
        X2 = Three2(a, b, c, X1);
        X3 = F3(X1);
      }
    }
    X1 = Three1(X1, X2, X3);
    X3 = F3(X1);
    StepCount = StepCount + Value(1);
  };
  while (!(Abs(X3) * Value(1e7) < Value(1))) {
    slope(Value(-9999));
    if (StepCount > Value(99)) {
      StepCount = zero;
      X3 = zero;
    }
  }
  X1 = Value(Val(Format(X1, "0.####")));
  X3 = F3(X1);
  StepCount = zero;
  while (!(Abs(X3) * Value(1e9) < Value(1))) {
    slope(Value(9999));
    if (StepCount > Value(99) && Abs(X3) * Value(1e7) < Value(1)) X3 = zero;
    if (StepCount > Value(999)) X3 = zero;
  }
  if (Abs(X3) < kTiny) X3 = zero;
}

}  // namespace tessaron

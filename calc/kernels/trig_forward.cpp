// The forward functions: reduction of the angle, the forced values at the
// special angles and the poles with their side.
#include <cmath>

#include "calc/kernels/trig.h"

namespace tessaron::kernels {

namespace {

// The display's "0" at a forced zero is text, as the key writes it.
const Value kZeroText("0");

bool Inside(double a, double lo, double hi) { return lo < a && a < hi; }

// Between the fences of a multiple of Pi.
bool NearPi(double a, double times) { return Inside(a, kPiLow * times, kPiHigh * times); }

// Degrees in, radians out, as the keys scale them.
double DegreeArc(double a) { return Atn(1) * a / 45; }

Value SinOf(double a, bool degree) {
  if (degree) {
    const double r = Sin(DegreeArc(a));
    if (a == 0 || a == 180) return kZeroText;
    if (a == 30 || a == 150) return Value(0.5);
    if (a == 210 || a == 330) return Value(-0.5);
    if (a == 90) return Value(1.0);
    if (a == 270) return Value(-1.0);
    return Value(r);
  }
  const double r = Sin(a);
  if (NearPi(a, 1)) return kZeroText;
  if (NearPi(a, 1.0 / 6) || NearPi(a, 5.0 / 6)) return Value(0.5);
  if (NearPi(a, 7.0 / 6) || NearPi(a, 11.0 / 6)) return Value(-0.5);
  if (NearPi(a, 0.5)) return Value(1.0);
  if (NearPi(a, 1.5)) return Value(-1.0);
  return Value(r);
}

Value CosOf(double a, bool degree) {
  if (degree) {
    const double r = Cos(DegreeArc(a));
    if (a == 0) return Value(1.0);
    if (a == 180) return Value(-1.0);
    if (a == 90 || a == 270) return kZeroText;
    if (a == 60 || a == 300) return Value(0.5);
    if (a == 120 || a == 240) return Value(-0.5);
    return Value(r);
  }
  const double r = Cos(a);
  if (NearPi(a, 1)) return Value(-1.0);
  if (a < kPiHigh - kPiLow || a > 2 * kPiLow) return Value(1.0);
  if (NearPi(a, 0.5) || NearPi(a, 1.5)) return kZeroText;
  if (NearPi(a, 1.0 / 3) || NearPi(a, 5.0 / 3)) return Value(0.5);
  if (NearPi(a, 2.0 / 3) || NearPi(a, 4.0 / 3)) return Value(-0.5);
  return Value(r);
}

// Tangent away from its poles.
Value TanOf(double a, bool degree) {
  if (degree) {
    const double r = Tan(DegreeArc(a));
    if (a == 45 || a == 225) return Value(1.0);
    if (a == 135 || a == 315) return Value(-1.0);
    return Value(r);
  }
  const double r = Tan(a);
  if (NearPi(a, 1)) return kZeroText;
  if (NearPi(a, 0.25) || NearPi(a, 1.25)) return Value(1.0);
  if (NearPi(a, 0.75) || NearPi(a, 1.75)) return Value(-1.0);
  return Value(r);
}

// The side bands of a pole in degrees: 90 and its twins at 0 and 180 are
// fenced to about 10^-11, 270 (and 360 from below) one digit wider, as the
// tangent's own fences stand.
bool JustBelow90(double a) { return Inside(a, 89.99999999998, 90); }
bool JustAbove90(double a) { return Inside(a, 90, 90.00000000001); }
bool JustBelow270(double a) { return Inside(a, 269.9999999998, 270); }
bool JustAbove270(double a) { return Inside(a, 270, 270.0000000001); }
bool JustAbove0(double a) { return Inside(a, 0, 0.00000000001); }
// A tiny negative angle reduces to just below 360, or to 360 itself.
bool JustBelow360(double a) { return a > 359.99999999998; }
bool JustBelow180(double a) { return Inside(a, 179.99999999998, 180); }
bool JustAbove180(double a) { return Inside(a, 180, 180.00000000001); }

// Radian fences of "equal to 0" on either side of the period's start.
bool RadJustAbove0(double a) { return a > 0 && a < kPiHigh - kPiLow; }
bool RadJustBelowPeriod(double a) { return a > 2 * kPiLow; }

Outcome Pole(std::string message) { return Refused(Act::Cancel, std::move(message)); }

Value Reciprocal(const Value& v) { return Value(1.0) / v; }

}  // namespace

double ReduceAngle(double x, bool degree) {
  if (degree) return x - 360 * std::floor(x / 360);
  return x - kRadianPeriod * std::floor(x / kRadianPeriod);
}

Outcome ZSIN(const Value& x, bool degree) {
  const double a = ReduceAngle(x.number(), degree);
  return Shown(SinOf(a, degree), degree ? " d.sin " : " r.sin ");
}

Outcome ZCOS(const Value& x, bool degree) {
  const double a = ReduceAngle(x.number(), degree);
  return Shown(CosOf(a, degree), degree ? " d.cos " : " r.cos ");
}

Outcome ZTAN(const Value& x, bool degree) {
  const double a = ReduceAngle(x.number(), degree);
  if (degree) {
    if (a == 90 || a == 270) return Pole("  +  -  Infinity.  tan ");
    if (JustBelow90(a) || JustBelow270(a)) return Pole("  +  Infinity.  tan ");
    if (JustAbove90(a) || JustAbove270(a)) return Pole("  -  Infinity.  tan ");
    return Shown(TanOf(a, true), " d.tan ");
  }
  if (NearPi(a, 0.5) || NearPi(a, 1.5)) return Pole("  +  -  Infinity.  tan ");
  return Shown(TanOf(a, false), " r.tan ");
}

Outcome ZSEC(const Value& x, bool degree) {
  const double a = ReduceAngle(x.number(), degree);
  if (degree) {
    if (a == 90 || a == 270) return Pole("  + -   Infinity.  sec ");
    // The side follows the sign of the cosine.
    if (JustBelow90(a) || JustAbove270(a)) return Pole("  +  Infinity.  sec ");
    if (JustAbove90(a) || JustBelow270(a)) return Pole("  -   Infinity.  sec ");
    return Shown(Reciprocal(CosOf(a, true)), " d.sec ");
  }
  if (NearPi(a, 0.5) || NearPi(a, 1.5)) return Pole("  +  -  Infinity.  sec ");
  return Shown(Reciprocal(CosOf(a, false)), " r.sec ");
}

Outcome ZCSC(const Value& x, bool degree) {
  const double a = ReduceAngle(x.number(), degree);
  if (degree) {
    if (a == 0) return Pole("  +  -  Infinity.  cosec(0) ");
    if (JustAbove0(a)) return Pole("  +   Infinity.  cosec(0) ");
    if (JustBelow360(a)) return Pole("  -  Infinity.  cosec(0) ");
    if (a == 180) return Pole("  + -   Infinity.  cosec(180) ");
    if (JustBelow180(a)) return Pole("  +  Infinity. cosec(180-)  ");
    if (JustAbove180(a)) return Pole("  -   Infinity.  cosec(180+) ");
    return Shown(Reciprocal(SinOf(a, true)), " d.cosec ");
  }
  if (a == 0) return Pole("  +  -  Infinity.  cosec(0) ");
  if (NearPi(a, 1)) return Pole("  + -   Infinity.  cosec(180) ");
  // Each side is named by the sign of its infinity.
  if (RadJustAbove0(a)) return Pole("  +   Infinity.  cosec(0-) ");
  if (RadJustBelowPeriod(a)) return Pole("  -   Infinity.  cosec(0+) ");
  return Shown(Reciprocal(SinOf(a, false)), " r.cosec ");
}

Outcome ZCOT(const Value& x, bool degree) {
  const double a = ReduceAngle(x.number(), degree);
  if (degree) {
    if (a == 0 || a == 180) return Pole("  +  -  Infinity.  cotan ");
    if (JustAbove0(a)) return Pole("  +   Infinity.   cotan ");
    if (JustBelow360(a) || JustBelow180(a)) return Pole("  -  Infinity.  cotan ");
    if (JustAbove180(a)) return Pole("  +  Infinity.  cotan ");
    if (a == 90 || a == 270) return Shown(kZeroText, " d.cotan ");
    return Shown(Reciprocal(TanOf(a, true)), " d.cotan ");
  }
  if (a == 0 || NearPi(a, 1)) return Pole("  +  -  Infinity.  cotan  ");
  if (RadJustAbove0(a)) return Pole("  +   Infinity.  cotan ");
  if (RadJustBelowPeriod(a)) return Pole("  -   Infinity.  cotan ");
  if (NearPi(a, 0.5) || NearPi(a, 1.5)) return Shown(kZeroText, " r.cotan ");
  return Shown(Reciprocal(TanOf(a, false)), " r.cotan ");
}

Value DegreesToRadians(const Value& x) { return Value(x.number() * Atn(1) / 45); }
Value RadiansToDegrees(const Value& x) { return Value(x.number() * 45 / Atn(1)); }

std::string RaDegMark(const std::string& formula, bool toRadians) {
  const std::string undo = toRadians ? ">Deg " : ">Rad ";
  if (formula.size() >= undo.size() &&
      formula.compare(formula.size() - undo.size(), undo.size(), undo) == 0)
    return formula.substr(0, formula.size() - undo.size());
  return formula + (toRadians ? " >Rad " : " >Deg ");
}

}  // namespace tessaron::kernels

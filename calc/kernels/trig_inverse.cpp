// The inverse functions, all built on the arctangent and the square root, and
// the family key's choice among the four routines of a key.
#include <cmath>

#include "calc/kernels/elementary.h"
#include "calc/kernels/trig.h"

namespace tessaron::kernels {

namespace {

double Pi() { return 4 * Atn(1); }

// A radian answer in the key's unit.
Value Angle(double r, bool degree) { return Value(degree ? r * 45 / Atn(1) : r); }

// A forced answer, given in degrees, in the key's unit.
Value Forced(double degrees, bool degree) { return Value(degree ? degrees : Pi() * degrees / 180); }

const char* Name(bool degree, const char* d, const char* r) { return degree ? d : r; }

double Root(double v) { return SqR(Value(v)).number(); }

}  // namespace

Outcome ZAsin(const Value& x, bool degree) {
  const double v = x.number();
  if (std::fabs(v) > 1) return Refused(Act::Cancel, "  Must be -1 <= x =<1 for Asin. ");
  const char* t = Name(degree, " d.asin ", " r.asin ");
  if (v == 1) return Shown(Forced(90, degree), t);
  if (v == -1) return Shown(Forced(-90, degree), t);
  return Shown(Angle(Atn(v / Root(1 - v * v)), degree), t);
}

Outcome ZAcos(const Value& x, bool degree) {
  const double v = x.number();
  if (std::fabs(v) > 1) return Refused(Act::Cancel, "  Must be   1 => x => -1   Acos ");
  const char* t = Name(degree, " d.acos ", " r.acos ");
  if (v == 0) return Shown(Forced(90, degree), t);
  if (v == 1) return Shown(Forced(0, degree), t);
  if (v == -1) return Shown(Forced(180, degree), t);
  double r = Atn(Root(1 - v * v) / v);
  if (v < 0) r += Pi();
  return Shown(Angle(r, degree), t);
}

Outcome ZAtan(const Value& x, bool degree) {
  return Shown(Angle(Atn(x.number()), degree), Name(degree, " d.atan ", " r.atan "));
}

Outcome ZAsec(const Value& x, bool degree) {
  const double v = x.number();
  if (std::fabs(v) < 1) return Refused(Act::Cancel, "  Must be   |x| => 1   Asec ");
  const char* t = Name(degree, " d.asec ", " r.asec ");
  if (v == 1) return Shown(Forced(0, degree), t);
  if (v == -1) return Shown(Forced(180, degree), t);
  double r = Atn(Root(v * v - 1));
  if (v < 0) r = Pi() - r;
  return Shown(Angle(r, degree), t);
}

Outcome ZAcsc(const Value& x, bool degree) {
  const double v = x.number();
  if (std::fabs(v) < 1) return Refused(Act::Cancel, "  Must be  |x|  >=  1    Acosec ");
  const char* t = Name(degree, " d.acosec ", " r.acosec ");
  if (v == 1) return Shown(Forced(90, degree), t);
  if (v == -1) return Shown(Forced(-90, degree), t);
  double r = Atn(1 / Root(v * v - 1));
  if (v < 0) r = -r;
  return Shown(Angle(r, degree), t);
}

Outcome ZAcot(const Value& x, bool degree) {
  const double v = x.number();
  const char* t = Name(degree, " d.acotan ", " r.acotan ");
  if (degree) {
    if (v == 1) return Shown(Value(45.0), t);
    if (v == -1) return Shown(Value(135.0), t);
    if (v == 0) return Shown(Value(90.0), t);
  }
  return Shown(Angle(Pi() / 2 - Atn(v), degree), t);
}

Outcome Trig(TrigKey key, bool bArc, bool bHyp, const Value& x, bool bDegree) {
  using Unit = Outcome (*)(const Value&, bool);
  using Plain = Outcome (*)(const Value&);
  static constexpr Unit kForward[] = {ZSIN, ZCOS, ZTAN, ZSEC, ZCSC, ZCOT};
  static constexpr Unit kInverse[] = {ZAsin, ZAcos, ZAtan, ZAsec, ZAcsc, ZAcot};
  static constexpr Plain kHyperbolic[] = {ZsinH, ZcosH, ZtanH, ZsecH, ZcscH, ZcotH};
  static constexpr Plain kInverseHyperbolic[] = {zAsinH, zAcosH, zAtanH, zAsecH, zAcscH, zAcotH};
  const int k = static_cast<int>(key);
  if (bArc && bHyp) return kInverseHyperbolic[k](x);
  if (bHyp) return kHyperbolic[k](x);
  if (bArc) return kInverse[k](x, bDegree);
  return kForward[k](x, bDegree);
}

}  // namespace tessaron::kernels

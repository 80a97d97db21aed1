// The hyperbolic functions, worked from the exponential, and their inverses
// from the logarithm. Each refusal puts the defining formula on lblFormula.
#include <cmath>

#include "calc/kernels/elementary.h"
#include "calc/kernels/trig.h"

namespace tessaron::kernels {

namespace {

constexpr const char* kSinHFormula = " sinH x =   (e^x - e^-x)  / 2  ";
constexpr const char* kCosHFormula = " cosH x = (e^x + e^-x)  /  2  ";
constexpr const char* kCscHFormula = " cosecH x =  1 / sinH x =  2 / (e^x - e^-x)  ";
constexpr const char* kCotHFormula =
    " cotanH x =  cosH x / sinH x= (e^x + e^-x)  /  (e^x - e^-x)  ";
constexpr const char* kTanHFormula = " tanH x = sinH x / cosH x = (e^x - e^-x)  /  (e^x + e^-x)  ";

// Beyond this the tangent is 1 or -1 to the last digit, and the exponential
// alone would overflow.
constexpr double kTanHFlat = 20;

Outcome Refuse(const char* message, const char* formula = "") {
  return Refused(Act::Cancel, message, formula);
}

double Root(double v) { return SqR(Value(v)).number(); }

}  // namespace

Outcome ZsinH(const Value& x) {
  const double v = x.number();
  if (std::fabs(v) > 709) return Refuse(" Too big here. (sinH) ", kSinHFormula);
  const double a = std::fabs(v);
  double r = (Exp(a) - Exp(-a)) / 2;
  if (v < 0) r = -r;
  return Shown(Value(r), " sinH ");
}

Outcome ZcosH(const Value& x) {
  const double v = x.number();
  if (std::fabs(v) > 709) return Refuse(" Too big here,  cosH", kCosHFormula);
  return Shown(Value((Exp(v) + Exp(-v)) / 2), " cosH ");
}

Outcome ZtanH(const Value& x) {
  const double v = x.number();
  if (v > kTanHFlat) return Shown(Value(1.0), " tanH ");
  if (v < -kTanHFlat) return Shown(Value(-1.0), " tanH ");
  return Shown(Value((Exp(v) - Exp(-v)) / (Exp(v) + Exp(-v))), " tanH ");
}

Outcome ZsecH(const Value& x) {
  const double v = x.number();
  return Shown(Value(2.0) / Value(Exp(v) + Exp(-v)), " secH ");
}

Outcome ZcscH(const Value& x) {
  const double v = x.number();
  if (v == 0) return Refuse(" + - infinity  cosecH ", kCscHFormula);
  if (v > 0 && v < 1e-16) return Refuse(" + infinity   cosecH ", kCscHFormula);
  if (v < 0 && v > -1e-16) return Refuse(" - infinity   cosecH ", kCscHFormula);
  return Shown(Value(2.0) / Value(Exp(v) - Exp(-v)), " cosecH ");
}

Outcome ZcotH(const Value& x) {
  const double v = x.number();
  if (v == 0) return Refuse(" + - Infinity  cotanH ", kCotHFormula);
  if (v > 0 && v < 1e-15) return Refuse(" + Infinity  cotanH", kCotHFormula);
  if (v < 0 && v > -1e-15) return Refuse(" - Infinity  cotanH ", kCotHFormula);
  return Shown(Value(Exp(v) + Exp(-v)) / Value(Exp(v) - Exp(-v)), " cotanH ");
}

Outcome zAsinH(const Value& x) {
  const double v = x.number();
  const double a = std::fabs(v);
  // Far out the square root adds nothing but the risk of overflow.
  double r = a > 1e10 ? Log(2 * a) : Log(a + Root(a * a + 1));
  if (v < 0) r = -r;
  return Shown(Value(r), " AsinH ");
}

Outcome zAcosH(const Value& x) {
  const double v = x.number();
  if (v < 1) return Refuse(" Must be >= One (1)    AcosH", " AcosH(x) = ln( x + sqrt(x^2 - 1) ");
  return Shown(Value(Log(v + Root(v * v - 1))), " acosH ");
}

Outcome zAtanH(const Value& x) {
  const double v = x.number();
  if (v == 1)
    return Refuse(" + Infinity.  Absolue Value need to be lesser than  1  atanH .  ", kTanHFormula);
  if (v == -1)
    return Refuse(" - Infinity.  Absolue Value need to be lesser than  1  atanH.  ", kTanHFormula);
  if (std::fabs(v) > 1)
    return Refuse(" Absolue Value need to be lesser than  1  atanH.  ", kTanHFormula);
  return Shown(Value(Log((1 + v) / (1 - v)) / 2), " atanH ");
}

Outcome zAsecH(const Value& x) {
  const double v = x.number();
  constexpr const char* kSecH = "  secH x =  1 / cosH x =  2 / (e^x + e^-x)   ";
  if (v == 0) return Refuse(" + -  infinity   AsecH ", kSecH);
  if (v < 0 || v > 1) return Refuse(" Must be   0 <= x <=1  AsecH", kSecH);
  return Shown(Value(Log((1 + Root(1 - v * v)) / v)), " asecH ");
}

Outcome zAcscH(const Value& x) {
  const double v = x.number();
  if (v == 0) return Refuse(" + - Infinity   acosecH ", kCscHFormula);
  // The same side bands as cosecH itself.
  if (v > 0 && v < 1e-16) return Refuse(" + Infinity   acosecH ", kCscHFormula);
  if (v < 0 && v > -1e-16) return Refuse(" - Infinity   acosecH ", kCscHFormula);
  return Shown(Value(Log(1 / v + Root(1 / (v * v) + 1))), " acosecH ");
}

Outcome zAcotH(const Value& x) {
  const double v = x.number();
  const std::string formula =
      std::string(kCotHFormula) + " AcotH x = (Log((x + 1) / (x - 1))) / 2 ";
  if (v == 1)
    return Refused(Act::Cancel, " + Infinity.   |x| > 1    (x<-1 or x>1)   AcotanH  ", formula);
  if (v == -1)
    return Refused(Act::Cancel, " - Infinity.   |x| > 1    (x<-1 or x>1)   AcotanH ", formula);
  if (std::fabs(v) < 1)
    return Refused(Act::Cancel, "   |x| > 1    (x<-1 or x>1)   AcotanH ", formula);
  return Shown(Value(Log((v + 1) / (v - 1)) / 2), " acotanH ");
}

}  // namespace tessaron::kernels

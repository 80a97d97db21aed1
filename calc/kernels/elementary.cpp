// The elementary functions. Each kernel checks the domain first, as the key
// does, so a refused value never reaches the display.
#include "calc/kernels/elementary.h"

#include <cmath>

namespace tessaron::kernels {

namespace {

constexpr const char* kTooBig = "Sorry, Not Available (too big) !! ";
constexpr const char* kNotAvailable = "Sorry, Not Available.";

double TooBigFor(double power) { return std::pow(10.0, power); }

// The logarithm keys' refusal: the box depends on what the engine is doing.
Outcome LogRefusal(int calcStage, bool inputT, const char* plain, const char* stage3,
                   const char* formula) {
  const char* message = plain;
  if (calcStage == 3) message = stage3;
  if (calcStage == 4 && inputT) message = "  Not Work with current Formula. ";
  return Refused(Act::TakeBack, message, formula);
}

}  // namespace

Value SqR(const Value& x) {
  const double v = x.number();
  if (v < 0) return Value();
  return Pow(Value(v), Value(0.5));
}

Value CuRoot(const Value& x) {
  const double v = x.number();
  if (v == 0) return Value(0.0);
  const double a = std::fabs(v);
  const double r = (Pow(Value(a), Value(1.0 / 3)).number() + Exp(Log(a) / 3)) / 2;
  return Value(v < 0 ? -r : r);
}

Outcome Rever(const Value& x) {
  const double v = x.number();
  if (v == 0) {
    Outcome o = Refused(Act::Zero, " Must not be 0 for 1/X ");
    o.text = " + - infinity ";
    return o;
  }
  return Shown(Value(1.0) / Value(v), " 1/x ");
}

Outcome Squar(const Value& x) {
  const double v = x.number();
  if (std::fabs(v) > TooBigFor(154.1)) return Refused(Act::Cancel, kTooBig);
  return Shown(Value(v) * Value(v), " ^2 ");
}

Outcome Cubi(const Value& x) {
  const double v = x.number();
  if (std::fabs(v) > TooBigFor(102.73)) return Refused(Act::Cancel, kTooBig);
  return Shown(Pow(Value(v), Value(3)), " ^3 ");
}

Outcome SqRt(const Value& x, int calcStage) {
  if (x.number() < 0) {
    // The solver's own evaluation only learns of the failure; a Cancel
    // there would restart its count of steps.
    if (calcStage == 5) return Refused(Act::Fail, "");
    return Refused(Act::Cancel, calcStage == 3 ? "  Adjust the initial value T " : kSqrRefusal);
  }
  return Shown(SqR(x), " ^1/2 ");
}

Outcome CuR(const Value& x) { return Shown(CuRoot(x), " ^1/3 "); }

Outcome Exp10(const Value& x) {
  const double v = x.number();
  if (v > 308.2 || v < -308.2) return Refused(Act::Cancel, kNotAvailable);
  return Shown(Pow(Value(10), Value(v)), " 10^x ");
}

Outcome Expo(const Value& x) {
  const double v = x.number();
  // Not mirror images: small answers go on into the denormal range.
  if (v > 709.7 || v < -728) return Refused(Act::Cancel, kNotAvailable);
  return Shown(Value(Exp(v)), " e^x ");
}

Outcome Loga(const Value& x, int calcStage, bool inputT) {
  const double v = x.number();
  if (v <= 0)
    return LogRefusal(calcStage, inputT, "  Must be > 0,   Log ",
                      "  Adjust the initial value T  (maybe)  ",
                      "  Logarithm  to  the  base  10. ");
  return Shown(Value(Log(v) / Log(10)), " log ");
}

Outcome NatLog(const Value& x, int calcStage, bool inputT) {
  const double v = x.number();
  if (v <= 0)
    return LogRefusal(calcStage, inputT, "  Must be > 0,   Ln ",
                      "  Adjust the initial value T   (maybe) ",
                      "  Natural Logarithm, to  the  base  e=2.718281828 ");
  return Shown(Value(Log(v)), " ln ");
}

Outcome CmdArea(const Value& x) {
  const double v = x.number();
  if (std::fabs(v) > TooBigFor(154.1)) return Refused(Act::Cancel, kTooBig);
  return Shown(Value(Atn(1) * v * v), " PiD2/4 ");
}

}  // namespace tessaron::kernels

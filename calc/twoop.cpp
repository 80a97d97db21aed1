// The seven two-operand functions, bound tighter than X and /, and the two
// one-operand Pythagorean keys. Each refusal opens its box unless silent,
// then clears the transcript and the chain; Cancel tells the replay by ErrFlag.
#include <cmath>

#include "calc/ovicalc.h"

namespace tessaron {

namespace {
double num(const Value& v) {
  if (v.kind() == Kind::Real) return v.AsReal();
  if (v.kind() == Kind::Empty) return 0;
  return v.number();
}
bool whole(double v) { return v == std::floor(v); }
double log10Abs(double v) { return std::log10(std::fabs(v)); }

const std::string kTooBigText = "  Sorry, Too Big, Not Available !!!! =";
}  // namespace

Value OviCalc::PubOPY(int index, const Value& x, const Value& y) {
  switch (index) {
    case 5:
      return PubCombi(x, y);
    case 6:
      return PubPermute(x, y);
    case 7:
      return PubPower(x, y);
    case 8:
      return PubLoga(x, y);
    case 9:
      return PubPythaFrom(x, y);
    case 10:
      return PubPythaTo(x, y);
    case 11:
      return PubPowerR(x, y);
  }
  return Value();
}

Value OviCalc::PubCombi(const Value& nv, const Value& rv) {
  const double n = num(nv), r = num(rv);
  if (!whole(n) || !whole(r) || r < 1 || n < r) {
    if (loud())
      lblFormula->Caption = "  Combination :  nCr  =   n!  /  (n-r)!  /  r! " +
                            std::string(40, ' ') + " Numbers must be Integers, and  n >= r >= 1.";
    refuse(" Not Available !!! ");
    return Value();
  }
  const double k = std::min(r, n - r);
  double c = 1;
  for (double i = 1; i <= k; ++i) {
    c = c * (n - k + i) / i;
    if (c > 1e304) {
      warn("Sorry, Too Big, Not Available !!! ");
      FormulaText = kTooBigText;
      Cancel();
      return Value();
    }
  }
  return Value(c);
}

Value OviCalc::PubPermute(const Value& nv, const Value& rv) {
  if (rv.kind() == Kind::Empty) return Value(1);
  const double n = num(nv), r = num(rv);
  if (!whole(n) || !whole(r) || r < 1 || n < r) {
    if (loud())
      lblFormula->Caption = "  Permutation :  nPr  =   n!  /  (n-r)! " + std::string(48, ' ') +
                            " Numbers must be Integers, and  n >= r >= 1.";
    refuse(" Not Available !! ");
    return Value();
  }
  auto tooBig = [this] {
    warn("Sorry, Too Big, Not Available !!!! ");
    FormulaText = kTooBigText;
    Cancel();
    return Value();
  };
  // The size is estimated in powers of ten before a single factor is taken.
  // The estimate stops as soon as it reaches the limit: every factor but a
  // last 1 adds at least log10(2), so a huge r costs a thousand steps at most.
  double size = 0;
  for (double i = 0; i < r && size < 307.5; ++i) size += std::log10(n - i);
  if (size >= 307.5) return tooBig();
  double p = 1;
  for (double i = 0; i < r; ++i) {
    p *= n - i;
    if (p > 1e304) return tooBig();
  }
  return Value(p);
}

Value OviCalc::PubPower(const Value& xv, const Value& yv) {
  ErrFlag = false;
  const double x = num(xv), y = num(yv);
  if (x == 0) {
    if (y < 0) {
      refuse("Sorry, Not Available !! ");
      return Value();
    }
    return Value(y == 0 ? 1 : 0);
  }
  const double size = y * Log(std::fabs(x)) / Log(10);
  if (size > 308.2) {
    refuse("Sorry, Not Available !! ");
    return Value();
  }
  if (size < -308.2) return Value(0);
  if (x < 0 && !whole(y)) {
    refuse(" Not Available, Non-integer power of negative (minus) number !! ");
    return Value();
  }
  return Pow(Value(x), Value(y));
}

Value OviCalc::PubPowerR(const Value& xv, const Value& yv) {
  const double x = num(xv), y = num(yv);
  if (y == 0) {
    refuse("Sorry, Not Available !! ");
    return Value();
  }
  if (x == 0) {
    if (y > 0) return Value(0);
    refuse("Sorry, Not Available !!! ");
    return Value();
  }
  const double e = Log(std::fabs(x)) / Log(10) / y;
  if (e < -308) return Value(0);
  if (e > 308) {
    refuse("Sorry, Not Available, Too big at this calculator !!!! ");
    return Value();
  }
  if (x < 0) {
    if (whole(y) && std::fmod(std::fabs(y), 2) == 1)
      return Value(-Pow(Value(-x), Value(1 / y)).AsReal());
    refuse(" Not Available, Non-integer power of negative(minus) number !! ");
    return Value();
  }
  return Pow(Value(x), Value(1 / y));
}

Value OviCalc::PubLoga(const Value& xv, const Value& yv) {
  const double x = num(xv), y = num(yv);
  if (x <= 0 || y <= 0 || x == 1) {
    if (loud())
      lblFormula->Caption = "  Log x Y = Logarithm to the base x of Y" + std::string(40, ' ') +
                            " a=Log x Y   >>>   Y=x^a " + std::string(60, ' ') +
                            "  x, Y must be > 0,  x<>1  ";
    refuse("Sorry, Not Available !! ");
    return Value();
  }
  if (x == y) return Value(1);
  if (y == 1) return Value(0);
  return Value(Log(y) / Log(x));
}

Value OviCalc::PubPythaFrom(const Value& xv, const Value& yv) {
  const double x = num(xv), y = num(yv);
  if (x == y) return Value(0);
  if (y == 0) return Value(std::fabs(x));
  if (x == 0) return Value(std::fabs(y));
  if (log10Abs(x) >= 154 || log10Abs(y) >= 154) {
    refuse("Sorry, too big number !! ");
    return Value();
  }
  return Value(Sqr(std::fabs(x * x - y * y)));
}

Value OviCalc::PubPythaTo(const Value& xv, const Value& yv) {
  const double x = num(xv), y = num(yv);
  if (x == 0) return Value(std::fabs(y));
  if (y == 0) return Value(std::fabs(x));
  if (std::fabs(x) == std::fabs(y)) return Value(std::fabs(x) * Sqr(2));
  if (log10Abs(x) >= 154 || log10Abs(y) >= 154) {
    refuse("Sorry, too big number !! ");
    return Value();
  }
  return Value(Sqr(x * x + y * y));
}

// The frame every one-operand function key shares.
void OviCalc::funcKey(int code, const char* transcript, double (*compute)(double), double limit,
                      const char* refusal) {
  const int before = lastKey();
  if (before == 43 || before == 44) {
    cmdBack();
    return;
  }
  PubSetting();
  logKey(code);
  if (nLastOp[nLevel] == Value(2)) pubNew();
  const double x = displayValue();
  if (std::fabs(x) > limit) {
    warn(refusal);
    Cancel();
    return;
  }
  if (!bParenValue) PubFormFunc(Value(x));
  const Value result(std::fabs(x) > 1e16 ? std::fabs(x) : compute(x));
  PubReadout(result);
  if (loud()) {
    FormulaText += transcript;
    PubFormula2(result);
  }
  PubLast();
  PubReadComma();
}

void OviCalc::cmdPythaOne() {
  const double x = std::fabs(displayValue());
  funcKey(
      48, x > 1 ? " sqrt(X2-1) " : " sqrt(1-X2) ",
      [](double v) { return Sqr(std::fabs(1 - v * v)); }, 1e308, " Sorry,  too big number !! ");
}

void OviCalc::cmdPythaPlus() {
  funcKey(
      49, " sqrt(1+X2) ", [](double v) { return Sqr(1 + v * v); }, 1e308,
      " Sorry,  too big number !! ");
}

}  // namespace tessaron

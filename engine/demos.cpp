// The demos' own functions, pressed by their key codes on the display's
// value like any one-operand key: the circle's halves, the distributions of
// the gallery's last demos, and the histogram mode's curve.
#include <cmath>

#include "calc/ovicalc.h"

namespace tessaron {

namespace {
constexpr double kTwoPi = 6.283185307179586;

// Gauss5 divides by 4 where the series would lead one to expect 5: the
// gallery's widest curve is drawn that much higher, and stays so.
double gauss(double x, double spread, double divisor) {
  return std::exp(-x * x / (2 * spread * spread)) / std::sqrt(kTwoPi) / divisor;
}
}  // namespace

void OviCalc::pubDemoCode(int code) {
  if (code == 145) return ModeVask();
  if (nLastOp[nLevel] == Value(2)) pubNew();
  const double x = displayValue();
  double y = 0;
  switch (code) {
    case 137:
    case 138: {
      const double r = 1 - x * x;
      if (r < 0) {
        ErrFlag = true;
        return;
      }
      y = code == 137 ? -std::sqrt(r) : std::sqrt(r);
      break;
    }
    case 139:
      y = x * std::exp(-x * x);
      break;
    case 140:
      y = x * std::exp(-x * x / 2);
      break;
    case 141:
      y = gauss(x, 1, 1);
      break;
    case 142:
      y = gauss(x, 2, 2);
      break;
    case 143:
      y = gauss(x, 3, 3);
      break;
    case 144:
      y = gauss(x, 5, 4);
      break;
    default:
      return;
  }
  PubReadout(Value(y));
  PubLast();
  PubReadComma();
}

}  // namespace tessaron

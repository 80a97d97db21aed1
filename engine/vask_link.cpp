// Where demo 41 meets the histogram mode: its curve (key code 145), the
// peak its picture reports, and its text, built from the curve's
// coefficients.
#include "calc/ovicalc.h"

namespace tessaron {

void OviCalc::pubVaskCurve() { ModeVask(); }

double OviCalc::pubVaskPeak() const { return ModeMax; }

std::string OviCalc::pubVaskText() const {
  auto coef = [this](int i) { return Format(Value(ModeCoef[i]), "0.####"); };
  const bool scaled = ModeScale != 1;
  std::string text = coef(1) + "X^4 + " + coef(2) + "X^3 +" + coef(3) + "X^2 + " + coef(4) +
                     (scaled ? "X - M(3),   " : "X - M(3)     ");
  if (scaled)
    text += ModeScaleDown ? " 1/" + CStr(Value(ModeScale))
                          : CStr(Value(ModeScale)) + " times of  Y    ";
  return text;
}

}  // namespace tessaron

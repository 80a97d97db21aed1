// Where demo 41 meets the histogram mode: its curve (key code 145), the
// peak its picture reports and the text built from the curve's
// coefficients. Until the histogram mode is part of the calculator no curve
// is in force, and a curve not in force leaves the display as it stands.
#include "calc/ovicalc.h"

namespace tessaron {

void OviCalc::pubVaskCurve() {}

double OviCalc::pubVaskPeak() const { return 0; }

std::string OviCalc::pubVaskText() const { return ""; }

}  // namespace tessaron

#pragma once
// The trigonometric and hyperbolic family: six functions, their inverses,
// the hyperbolic ones and their inverses. The special angles are forced so
// that sin 30 is 0.5 and tan 45 is 1 exactly, and a pole is answered with a
// message naming the side of infinity. Every routine is pure: a refusal comes
// back as Act::Cancel with its message (and lblFormula text where it has one).
#include <string>

#include "calc/kernels/outcome.h"

namespace tessaron::kernels {

// Fences of "equal to Pi", deliberately off Pi in the twelfth decimal.
inline constexpr double kPiLow = 3.141592653588;
inline constexpr double kPiHigh = 3.141592653591;
// The radian period, a hair above two Pi, so that 2 Pi reduces to itself.
inline constexpr double kRadianPeriod = 6.28318530717959;

// The angle brought into 0 <= a < 360 (degrees) or one period (radians),
// by Int, so that -30 becomes 330.
double ReduceAngle(double x, bool degree);

// Forward: the angle in degrees when `degree`, else in radians.
Outcome ZSIN(const Value& x, bool degree);
Outcome ZCOS(const Value& x, bool degree);
Outcome ZTAN(const Value& x, bool degree);
Outcome ZSEC(const Value& x, bool degree);
Outcome ZCSC(const Value& x, bool degree);
Outcome ZCOT(const Value& x, bool degree);

// Inverse: the answer in degrees when `degree`, else in radians.
Outcome ZAsin(const Value& x, bool degree);
Outcome ZAcos(const Value& x, bool degree);
Outcome ZAtan(const Value& x, bool degree);
Outcome ZAsec(const Value& x, bool degree);
Outcome ZAcsc(const Value& x, bool degree);
Outcome ZAcot(const Value& x, bool degree);

// Hyperbolic and inverse hyperbolic: no angle unit.
Outcome ZsinH(const Value& x);
Outcome ZcosH(const Value& x);
Outcome ZtanH(const Value& x);
Outcome ZsecH(const Value& x);
Outcome ZcscH(const Value& x);
Outcome ZcotH(const Value& x);
Outcome zAsinH(const Value& x);
Outcome zAcosH(const Value& x);
Outcome zAtanH(const Value& x);
Outcome zAsecH(const Value& x);
Outcome zAcscH(const Value& x);
Outcome zAcotH(const Value& x);

// The six keys, in the order of the keypad.
enum class TrigKey { Sin, Cos, Tan, Sec, Csc, Cot };

// A family key as pressed: no prefix the forward function, Arc alone the
// inverse, Hyp alone the hyperbolic, both the inverse hyperbolic.
Outcome Trig(TrigKey key, bool bArc, bool bHyp, const Value& x, bool bDegree);

// D<>R: the value in the other unit, and the transcript with its mark.
// A second conversion takes the first one's mark off again.
Value DegreesToRadians(const Value& x);
Value RadiansToDegrees(const Value& x);
std::string RaDegMark(const std::string& formula, bool toRadians);

}  // namespace tessaron::kernels

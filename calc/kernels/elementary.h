#pragma once
// The one-operand functions that act at once on the display value: powers,
// roots, exponentials, logarithms, the reciprocal, the circle's area and the
// factorial, each with its refusal and its transcript text.
#include <string>

#include "calc/kernels/outcome.h"

namespace tessaron::kernels {

// Square root; an empty Value for a negative argument (the caller opens
// kSqrRefusal and runs Cancel unless it is evaluating silently).
Value SqR(const Value& x);
inline constexpr const char* kSqrRefusal = "  Must be >= 0 for Square Root ";

// Cube root, taken two ways and averaged to even out the last digit.
Value CuRoot(const Value& x);

Outcome Rever(const Value& x);  // 1/x
Outcome Squar(const Value& x);  // x^2
Outcome Cubi(const Value& x);   // x^3
Outcome SqRt(const Value& x, int calcStage);
Outcome CuR(const Value& x);
Outcome Exp10(const Value& x);  // 10^x, the key exp10
Outcome Expo(const Value& x);   // e^x
Outcome Loga(const Value& x, int calcStage, bool inputT);
Outcome NatLog(const Value& x, int calcStage, bool inputT);
Outcome CmdArea(const Value& x);  // Pi D^2 / 4, the key cmdArea

// n!: a number below 171; from 171 to 123456789 the answer as text
// (Act::Record, `text` the history row, `message` the box); refusals for a
// negative or broken x and for anything larger.
Outcome NFac(const Value& x);

// Carries a factorial on from a checkpoint: the factors start + 1 to x are
// multiplied into mantissa * 10^exponent. Returns the answer's text, e.g.
// " 172 ! = 1.24827548583E+309".
std::string PubFactorial(long start, long exponent, double mantissa, long x);

// One row of the checkpoint table. The product it holds, mantissa * 10^power,
// is (first - 1)!, yet the key carries on from the factor after `first`, so
// an x equal to `first` shows the row's own product and every text from a
// row is the factorial divided by that row's `first`.
struct FactorialCheckpoint {
  long from;   // x from
  long below;  // x below (the last row includes it)
  long first;  // the first factor still to multiply
  long power;
  double mantissa;
};
const FactorialCheckpoint* FactorialCheckpoints(int& count);

}  // namespace tessaron::kernels

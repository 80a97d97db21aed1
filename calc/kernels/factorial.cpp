// The factorial: a Real up to 170!, beyond that a text carried on from the
// nearest checkpoint below x, since no Real holds 171!.
#include <cmath>

#include "calc/kernels/elementary.h"

namespace tessaron::kernels {

namespace {

// A row names its first factor and the product the long run reached there;
// carrying on multiplies from the factor after it, as the table has always
// been read, so 171 shows the row's own product.
constexpr FactorialCheckpoint kCheckpoints[] = {
    {171, 5000000, 171, 306, 7.257415615308},
    {5000000, 9999999, 5000000, 31323374, 4.58953592975217},
    {9999999, 50000000, 9999999, 65657045, 1.20242352075819},
    {50000000, 99999999, 50000000, 363233772, 4.6907607398619},
    {99999999, 123456789, 99999999, 756570540, 1.61720381109038},
};
constexpr long kLargest = 123456789;

}  // namespace

const FactorialCheckpoint* FactorialCheckpoints(int& count) {
  count = static_cast<int>(std::size(kCheckpoints));
  return kCheckpoints;
}

std::string PubFactorial(long start, long exponent, double mantissa, long x) {
  for (long i = start + 1; i <= x; ++i) {
    mantissa = mantissa * static_cast<double>(i);
    for (int k = 0; k < 11 && mantissa > 10; ++k) {
      mantissa = mantissa / 10;
      ++exponent;
    }
  }
  return Format(Value(x), " ###,###,###") + " ! = " + Format(Value(mantissa), "0.###########") +
         "E+" + CStr(Value(exponent));
}

Outcome NFac(const Value& x) {
  const double v = x.number();
  if (v == 0) return Shown(Value(1.0), " n! ");
  if (v < 0 || v != std::floor(v))
    return Refused(Act::Stop, " 0 or Positive Integer Only !!!",
                   "  Factorial :  0! = 1 ,  n! = 1 x 2 x ... x n ");
  if (v < 171) {
    double r = 1;
    for (int i = 1; i <= static_cast<int>(v); ++i) r = r * i;
    return Shown(Value(r), " n! ");
  }
  if (v > kLargest) return Refused(Act::Stop, "Sorry, Really need it ?? ");
  const long n = static_cast<long>(v);
  for (const auto& row : kCheckpoints) {
    if (n >= row.from && (n < row.below || (n == kLargest && row.below == kLargest))) {
      Outcome o;
      o.act = Act::Record;
      o.text = PubFactorial(row.first, row.power, row.mantissa, n);
      o.message = "Sorry, Not Available for conti. calc..\r\nBut  Factorial Value is :" + o.text;
      return o;
    }
  }
  return Refused(Act::Stop, "Sorry, Not Available.");
}

}  // namespace tessaron::kernels

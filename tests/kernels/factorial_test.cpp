// The factorial: a Real to 170!, text from 171 to 123456789 carried on from
// the checkpoint table. Reference digits come from factorial_vectors.txt,
// written by make_factorial_vectors.py with Python's standard library alone
// (exact integers where cheap, Stirling's series in 60-digit decimals beyond).
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <map>
#include <sstream>

#include "calc/kernels/elementary.h"
#include "expect.h"

namespace tessaron::kernels {
namespace {

struct Reference {
  long exponent;
  double mantissa;
};

const std::map<long, Reference>& References() {
  static const std::map<long, Reference> refs = [] {
    std::map<long, Reference> m;
    std::ifstream in(FACTORIAL_VECTORS);
    long n = 0, e = 0;
    double mant = 0;
    while (in >> n >> e >> mant) m[n] = {e, mant};
    return m;
  }();
  return refs;
}

const Reference& Ref(long n) {
  const auto& refs = References();
  const auto it = refs.find(n);
  if (it == refs.end()) throw std::runtime_error("no reference for " + std::to_string(n));
  return it->second;
}

// Splits " 123,456,789 ! = 2.85351252191E+945335859".
struct Parsed {
  std::string x;
  double mantissa = 0;
  long exponent = 0;
};
Parsed Parse(const std::string& text) {
  Parsed p;
  const auto bang = text.find(" ! = ");
  const auto e = text.find("E+");
  p.x = text.substr(0, bang);
  p.mantissa = std::stod(text.substr(bang + 5, e - bang - 5));
  p.exponent = std::stol(text.substr(e + 2));
  return p;
}

TEST(Factorial, SmallOnesAreNumbers) {
  testing::ExpectShown(NFac(Value(0)), 1, " n! ");
  testing::ExpectShown(NFac(Value(1)), 1, " n! ");
  testing::ExpectShown(NFac(Value(5)), 120, " n! ");
  // Up to 22! a Real holds the product exactly.
  testing::ExpectShown(NFac(Value(20)), 2432902008176640000.0, " n! ");
  testing::ExpectShown(NFac(Value(22)), 1124000727777607680000.0, " n! ");
  // 170!: 170 roundings of a plain loop, each within half a unit in the last
  // place, keep the product within 170 * 2^-53 of the true value.
  const Outcome o = NFac(Value(170));
  ASSERT_TRUE(o.ok());
  const double truth = Ref(170).mantissa * std::pow(10.0, Ref(170).exponent - 300) * 1e300;
  EXPECT_LE(std::fabs(o.value.number() - truth) / truth, 170 * std::ldexp(1.0, -53));
}

TEST(Factorial, RefusesWhatIsNoWholeNumber) {
  for (double x : {-1.0, 2.5, -0.5}) {
    testing::ExpectRefused(NFac(Value(x)), Act::Stop, " 0 or Positive Integer Only !!!",
                           "  Factorial :  0! = 1 ,  n! = 1 x 2 x ... x n ");
  }
  testing::ExpectRefused(NFac(Value(123456790)), Act::Stop, "Sorry, Really need it ?? ");
}

// Each row of the checkpoint table holds (first - 1)!: 170! at 171, and so
// on. The key carries on from the factor after `first`, so its texts are
// x! / first.
TEST(Factorial, CheckpointsHoldTheFactorialBeforeTheirFirstFactor) {
  int count = 0;
  const FactorialCheckpoint* rows = FactorialCheckpoints(count);
  ASSERT_EQ(count, 5);
  for (int i = 0; i < count; ++i) {
    const Reference& r = Ref(rows[i].first - 1);
    SCOPED_TRACE(rows[i].first);
    EXPECT_EQ(rows[i].power, r.exponent);
    // The table was itself made by long products and carries their
    // rounding, a few units in the twelfth digit.
    EXPECT_NEAR(rows[i].mantissa / r.mantissa, 1.0, 5e-12);
  }
}

TEST(Factorial, LargeOnesAreText) {
  // Each row's start and the last of the row before; the longest carries
  // (tens of millions of factors) are left out to keep the test quick.
  const long xs[] = {171,      172,      200,      1000,      3000,     4999999,
                     5000000,  5000001,  6000000,  9999998,   9999999,  10000000,
                     50000000, 50000001, 99999999, 100000000, 123456789};
  for (long x : xs) {
    SCOPED_TRACE(x);
    const Outcome o = NFac(Value(static_cast<double>(x)));
    ASSERT_EQ(o.act, Act::Record);
    const Parsed p = Parse(o.text);
    EXPECT_EQ(p.x, Format(Value(static_cast<double>(x)), " ###,###,###"));
    // x! / first, from the reference of x!.
    const long first = x < 5000000    ? 171
                       : x < 9999999  ? 5000000
                       : x < 50000000 ? 9999999
                       : x < 99999999 ? 50000000
                                      : 99999999;
    Reference r = Ref(x);
    const double lg = std::log10(r.mantissa) - std::log10(static_cast<double>(first));
    const double shift = std::floor(lg);
    r.mantissa = std::pow(10.0, lg - shift);
    r.exponent += static_cast<long>(shift);
    EXPECT_EQ(p.exponent, r.exponent);
    // Eleven decimals shown; the checkpoints and the long products carry
    // about 10^-12 of their own.
    EXPECT_NEAR(p.mantissa, r.mantissa, 1e-11 * r.mantissa + 5e-12) << o.text;
    EXPECT_EQ(o.message,
              "Sorry, Not Available for conti. calc..\r\nBut  Factorial Value is :" + o.text);
  }
}

TEST(Factorial, TextLayout) {
  // 171 is the first row's own product, 170! = 7.257415615308E+306, shown to
  // eleven decimals; 172 multiplies it by 172 alone.
  EXPECT_EQ(NFac(Value(171)).text, " 171 ! = 7.25741561531E+306");
  EXPECT_EQ(NFac(Value(172)).text, " 172 ! = 1.24827548583E+309");
  EXPECT_EQ(PubFactorial(3, 0, 6, 5), " 5 ! = 1.2E+2");
  // A whole mantissa keeps its point, as the mask writes it.
  EXPECT_EQ(PubFactorial(5, 0, 1, 5), " 5 ! = 1.E+0");
}

}  // namespace
}  // namespace tessaron::kernels

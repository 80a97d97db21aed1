// The fifteen significant digits of a Real, against the C library's own
// correctly rounded printing: CStr's text and CStrValue's number must both
// be %.14e of the same Real, in every range and at every half.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>
#include <string>

#include "numeric/detail.h"
#include "numeric/numeric.h"

namespace tessaron {
namespace {

double Reference(double x) {
  char buf[40];
  std::snprintf(buf, sizeof buf, "%.14e", x);
  return std::strtod(buf, nullptr);
}

void Agree(double x) {
  const double want = Reference(x);
  const std::string text = CStr(Value(x));
  ASSERT_EQ(std::strtod(text.c_str(), nullptr), want) << std::hexfloat << x << " " << text;
  ASSERT_EQ(CStrValue(x), want) << std::hexfloat << x;
}

TEST(FifteenDigits, RandomMagnitudes) {
  std::mt19937_64 rng(20261124);
  std::uniform_real_distribution<double> decade(-30, 40), unit(-1, 1);
  for (int i = 0; i < 200000; ++i) Agree(unit(rng) * std::pow(10.0, decade(rng)));
}

TEST(FifteenDigits, RandomBits) {
  std::mt19937_64 rng(7);
  for (int i = 0; i < 200000; ++i) {
    const unsigned long long bits = rng();
    double x;
    std::memcpy(&x, &bits, sizeof x);
    if (std::isfinite(x)) Agree(x);
  }
}

// The quick digits with a fused multiply-add and without one: wherever
// either answers, its fifteen digits and exponent are %.14e's.
TEST(FifteenDigits, FusedAndPlainQuickDigits) {
  std::mt19937_64 rng(24);
  std::uniform_real_distribution<double> decade(-7, 35), unit(0.1, 1);
  int answered = 0;
  for (int i = 0; i < 200000; ++i) {
    const double x = unit(rng) * std::pow(10.0, decade(rng));
    char buf[40];
    std::snprintf(buf, sizeof buf, "%.14e", x);
    std::string digits = std::string(1, buf[0]) + std::string(buf + 2, 14);
    const int exp10 = std::atoi(buf + 17);
    unsigned long long m;
    int e;
    if (detail::QuickDigitsPlain(x, m, e)) {
      ++answered;
      ASSERT_EQ(std::to_string(m), digits) << std::hexfloat << x;
      ASSERT_EQ(e, exp10) << std::hexfloat << x;
    }
    if (detail::FusedMultiplyAdd() && detail::QuickDigitsFused(x, m, e)) {
      ASSERT_EQ(std::to_string(m), digits) << std::hexfloat << x;
      ASSERT_EQ(e, exp10) << std::hexfloat << x;
    }
  }
  // Within the exact powers' reach and away from a half the quick way is
  // sure: nearly every value answers.
  EXPECT_GT(answered, 199000);
}

// A sixteenth digit of exactly 5 is a true half; one a hair either side is
// not. Both sides of every decade edge too.
TEST(FifteenDigits, HalvesAndEdges) {
  for (double whole : {1000000000000005.0, 1234567890123455.0, 9999999999999995.0,
                       123456789012345.5, 100000000000000.5, 999999999999999.5}) {
    for (double x = whole, k = 0; k < 3; ++k, x = std::nextafter(x, 2 * x)) Agree(x);
    for (double x = whole, k = 0; k < 3; ++k, x = std::nextafter(x, 0)) Agree(x);
    Agree(-whole);
  }
  for (int e = -12; e <= 40; ++e) {
    const double edge = std::pow(10.0, e);
    Agree(edge);
    Agree(std::nextafter(edge, 0));
    Agree(std::nextafter(edge, 2 * edge));
    Agree(edge * 0.99999999999999951);
    Agree(edge * 0.9999999999999995);
  }
  for (double x : {0.1, 0.2, 0.3, 1.0 / 3, 2.0 / 3, 1e-8, 9.99999999999999e-9, 1e36, 5e-324,
                   1.7976931348623157e308, 3.14159265358979, 2.718281828459045})
    Agree(x);
}

}  // namespace
}  // namespace tessaron

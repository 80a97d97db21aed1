// The recogniser, table-driven: every family from samples of its own curve
// (taken to the display's fifteen digits) with its coefficients, and the same
// curve with a small added term refused.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <numbers>

#include "engine/assist_math.h"
#include "engine/assist_state.h"
#include "numeric/numeric.h"

namespace tessaron::test {

namespace {
using std::numbers::pi;

struct Case {
  int no;
  const char* name;
  std::function<double(double)> f;
  double from, to;
  // The coefficients expected: a, b (the scale k, or the polynomial's b), c.
  double a, b, c;
};

double acot(double u) { return pi / 2 - std::atan(u); }

const Case kCases[] = {
    {1, "line", [](double t) { return 2.5 * t - 1; }, 0, 3, 0, 2.5, -1},
    {2, "reciprocal", [](double t) { return 3 / t + 1; }, 1, 4, 3, 1, 1},
    {3, "quadratic", [](double t) { return 2 * t * t - 3 * t + 1; }, 0, 3, 2, -3, 1},
    {4, "cubic", [](double t) { return t * t * t - 2 * t * t + t + 5; }, -1, 2, 1, -2, 1},
    {5, "ten to", [](double t) { return 2 * std::pow(10.0, 0.5 * t) + 1; }, 0, 2, 2, 0.5, 1},
    {6, "e to", [](double t) { return 3 * std::exp(2 * t) - 1; }, 0, 1, 3, 2, -1},
    {7, "ln", [](double t) { return 2 * std::log(t) + 1; }, 1, 5, 2, 1, 1},
    {8, "log", [](double t) { return 3 * std::log10(t); }, 1, 10, 3, 1, 0},
    {9, "square root", [](double t) { return 2 * std::sqrt(t) + 1; }, 0, 4, 2, 1, 1},
    {10, "cube root", [](double t) { return 3 * std::cbrt(t); }, -2, 3, 3, 1, 0},
    {11, "T to T", [](double t) { return std::pow(t, t); }, 0.5, 2, 1, 1, 0},
    {12, "T to 1/T", [](double t) { return std::pow(t, 1 / t); }, 0.5, 3, 1, 1, 0},
    {13, "tan", [](double t) { return 2 * std::tan(0.5 * t) + 1; }, 0, 2, 2, 0.5, 1},
    {14, "cos", [](double t) { return 3 * std::cos(2 * t); }, 0, 3, 3, 2, 0},
    {15, "sin", [](double t) { return 2 * std::sin(t) + 1; }, 0, 3, 2, 1, 1},
    {16, "cot", [](double t) { return 1 / std::tan(t); }, 0.5, 2.5, 1, 1, 0},
    {17, "sec", [](double t) { return 1 / std::cos(0.5 * t); }, 0, 2, 1, 0.5, 0},
    {18, "csc", [](double t) { return 2 / std::sin(t); }, 0.5, 2.5, 2, 1, 0},
    {19, "atan", [](double t) { return std::atan(2 * t); }, -1, 1, 1, 2, 0},
    {20, "acos", [](double t) { return std::acos(0.5 * t); }, -1, 1, 1, 0.5, 0},
    {21, "asin", [](double t) { return 2 * std::asin(t); }, -0.9, 0.9, 2, 1, 0},
    {22, "acot", [](double t) { return acot(t); }, -2, 2, 1, 1, 0},
    {23, "asec", [](double t) { return std::acos(1 / t); }, 1.5, 4, 1, 1, 0},
    {24, "acsc", [](double t) { return std::asin(1 / t); }, 1.5, 4, 1, 1, 0},
    {25, "tanh", [](double t) { return std::tanh(t); }, -2, 2, 1, 1, 0},
    {26, "cosh", [](double t) { return 2 * std::cosh(t); }, -1, 2, 2, 1, 0},
    {27, "sinh", [](double t) { return std::sinh(0.5 * t); }, -2, 2, 1, 0.5, 0},
    {28, "coth", [](double t) { return 1 / std::tanh(t); }, 0.5, 3, 1, 1, 0},
    {29, "sech", [](double t) { return 1 / std::cosh(t); }, -2, 2, 1, 1, 0},
    {30, "csch", [](double t) { return 1 / std::sinh(t); }, 0.5, 3, 1, 1, 0},
    {31, "atanh", [](double t) { return std::atanh(t); }, -0.9, 0.9, 1, 1, 0},
    {32, "acosh", [](double t) { return std::acosh(t); }, 1.5, 5, 1, 1, 0},
    {33, "asinh", [](double t) { return std::asinh(2 * t); }, -2, 2, 1, 2, 0},
    {34, "acoth", [](double t) { return std::atanh(1 / t); }, 1.5, 5, 1, 1, 0},
    {35, "asech", [](double t) { return std::acosh(1 / t); }, 0.1, 0.9, 1, 1, 0},
    {kGesuCircle, "circle", [](double t) { return std::sqrt(4 - t * t); }, -1.5, 1.5, 2, 0, 0},
};

// A value as the display holds it: fifteen significant digits.
double shown(double v) { return std::isfinite(v) ? std::stod(CStr(Value(v))) : v; }

GesuSamples samples(const std::function<double(double)>& f, double from, double to) {
  GesuSamples s;
  const double step = (to - from) / 17;
  for (int i = 0; i <= 17; ++i) {
    s.t[i] = from + i * step;
    s.f[i] = shown(f(s.t[i]));
  }
  const double z = f(0), lo = f(-1e22), hi = f(1e22);
  s.zeroOk = std::isfinite(z);
  s.zero = s.zeroOk ? shown(z) : 0;
  s.negOk = std::isfinite(f(-100));
  s.farOk = std::isfinite(lo) && std::isfinite(hi) && std::fabs(lo) < 1e15 && std::fabs(hi) < 1e15;
  s.farMean = (lo + hi) / 2;
  return s;
}

bool close(double x, double y) { return std::fabs(x - y) <= 1e-9 * std::max(1.0, std::fabs(y)); }
}  // namespace

class Families : public ::testing::TestWithParam<Case> {};

TEST_P(Families, RecognisedWithItsCoefficients) {
  const Case& k = GetParam();
  bool fallback = true;
  const Shape s = FindShape(samples(k.f, k.from, k.to), fallback);
  ASSERT_EQ(s.no, k.no) << k.name;
  EXPECT_FALSE(fallback);
  if (k.no == 4) {
    // The cubic keeps its constant from f(0): T^3 - 2 T^2 + T + 5.
    EXPECT_TRUE(close(s.a, 1) && close(s.b, -2) && close(s.c, 1) && close(s.d, 5))
        << s.a << " " << s.b << " " << s.c << " " << s.d;
    return;
  }
  EXPECT_TRUE(close(s.a, k.a)) << "a " << s.a;
  if (k.no != kGesuCircle) {
    EXPECT_TRUE(close(s.b, k.b)) << "b " << s.b;
    EXPECT_TRUE(close(s.c, k.c)) << "c " << s.c;
  }
}

TEST_P(Families, ASmallAddedTermIsRefused) {
  const Case& k = GetParam();
  // A bend of a millionth of the curve's size across the range.
  double size = 0;
  for (int i = 0; i <= 17; ++i)
    size = std::max(size, std::fabs(k.f(k.from + i * (k.to - k.from) / 17)));
  const double from = k.from, width = k.to - k.from;
  auto bent = [&](double t) {
    const double u = (t - from) / width;
    return k.f(t) + 1e-6 * size * u * u * u * u;
  };
  bool fallback = false;
  const Shape s = FindShape(samples(bent, k.from, k.to), fallback);
  EXPECT_EQ(s.no, 0) << k.name << " taken for shape " << s.no;
}

INSTANTIATE_TEST_SUITE_P(Shapes, Families, ::testing::ValuesIn(kCases),
                         [](const ::testing::TestParamInfo<Case>& info) {
                           std::string n = info.param.name;
                           for (char& ch : n)
                             if (ch == ' ' || ch == '/') ch = '_';
                           return std::to_string(info.param.no) + "_" + n;
                         });

TEST(Cramer, TheDeterminantByItsFirstRow) {
  EXPECT_EQ(Cramer(1, 2, 3, 4, 5, 6, 7, 8, 10, 1e-13), -3);
  EXPECT_EQ(Cramer(1, 2, 3, 4, 5, 6, 7, 8, 9, 1e-13), 0);
  // Below Tiny in size it is 0.
  EXPECT_EQ(Cramer(1e-5, 0, 0, 0, 1e-5, 0, 0, 0, 1e-5, 1e-13), 0);
}

TEST(ClosedForms, APoleBetweenTheEndsHasNone) {
  Shape tan{13, 1, 1, 0, 0};
  double v = 0;
  EXPECT_FALSE(ShapeIntegral(tan, 1, 2, v));
  EXPECT_TRUE(ShapeIntegral(tan, 0, 1, v));
  EXPECT_NEAR(v, -std::log(std::cos(1.0)), 1e-15);
  Shape ln{7, 1, 1, 0, 0};
  EXPECT_FALSE(ShapeIntegral(ln, -1, 2, v));
}

}  // namespace tessaron::test

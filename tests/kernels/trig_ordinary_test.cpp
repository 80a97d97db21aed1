// Ordinary values of all 24 routines in both angle modes, against the C
// library applied to the reduced angle, to fifteen significant digits.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "expect.h"
#include "routines.h"

namespace tessaron::kernels {
namespace {

using testing::Agree15;
using testing::FindRoutine;

constexpr double kPi = 3.14159265358979323846;
constexpr double kPeriod = 6.28318530717959;

// The reduction the keys make: by Int, into one turn (the radian turn being a
// hair above two Pi).
double Reduced(double x, bool degree) {
  if (degree) return x - 360 * std::floor(x / 360);
  return x - kPeriod * std::floor(x / kPeriod);
}
double Radians(double x, bool degree) {
  const double a = Reduced(x, degree);
  return degree ? a * kPi / 180 : a;
}
double Unit(double r, bool degree) { return degree ? r * 180 / kPi : r; }

struct Family {
  const char* routine;
  std::function<double(double, bool)> reference;
  std::vector<double> degrees, radians;
};

TEST(TrigOrdinary, AgreesWithTheCLibrary) {
  const std::vector<double> anglesD = {17, 123.4, -47.5, 200.25, 1000.3, 359.1, -1234.5, 75};
  const std::vector<double> anglesR = {0.3, 1.234, 2.5, -1.1, 4.4, 7.3, 100, -20.5};
  const std::vector<double> unitBox = {0.3, -0.45, 0.7, -0.9, 0.123456789, 0.98};
  const std::vector<double> outside = {1.5, -2.75, 10, -123.456, 1e5, 1.01};
  const std::vector<double> anyReal = {0.3, -0.45, 2.7, -13.5, 123.456, 1e-3};
  const std::vector<double> hyper = {0.5, -1.7, 2.3, -4.75, 12.5, 0.9, 100, -300};
  const std::vector<double> below1 = {0.1, 0.25, 0.5, 0.75, 0.9};
  // The defining formulas of the inverse hyperbolic functions cancel near 0
  // (asinH) and far out (acotH); their ordinary points are taken where the
  // formula keeps its digits.
  const std::vector<double> asinh = {0.3, -0.45, 2.7, -13.5, 123.456, -5e5};
  const std::vector<double> acoth = {1.5, -2.75, 10, -123.456, 1.01, -3};

  const std::vector<Family> families = {
      {"ZSIN", [](double x, bool d) { return std::sin(Radians(x, d)); }, anglesD, anglesR},
      {"ZCOS", [](double x, bool d) { return std::cos(Radians(x, d)); }, anglesD, anglesR},
      {"ZTAN", [](double x, bool d) { return std::tan(Radians(x, d)); }, anglesD, anglesR},
      {"ZSEC", [](double x, bool d) { return 1 / std::cos(Radians(x, d)); }, anglesD, anglesR},
      {"ZCSC", [](double x, bool d) { return 1 / std::sin(Radians(x, d)); }, anglesD, anglesR},
      {"ZCOT", [](double x, bool d) { return 1 / std::tan(Radians(x, d)); }, anglesD, anglesR},
      {"ZAsin", [](double x, bool d) { return Unit(std::asin(x), d); }, unitBox, unitBox},
      {"ZAcos", [](double x, bool d) { return Unit(std::acos(x), d); }, unitBox, unitBox},
      {"ZAtan", [](double x, bool d) { return Unit(std::atan(x), d); }, anyReal, anyReal},
      {"ZAsec", [](double x, bool d) { return Unit(std::acos(1 / x), d); }, outside, outside},
      {"ZAcsc", [](double x, bool d) { return Unit(std::asin(1 / x), d); }, outside, outside},
      {"ZAcot", [](double x, bool d) { return Unit(kPi / 2 - std::atan(x), d); }, anyReal, anyReal},
      {"ZsinH", [](double x, bool) { return std::sinh(x); }, hyper, hyper},
      {"ZcosH", [](double x, bool) { return std::cosh(x); }, hyper, hyper},
      {"ZtanH", [](double x, bool) { return std::tanh(x); }, hyper, hyper},
      {"ZsecH", [](double x, bool) { return 1 / std::cosh(x); }, hyper, hyper},
      {"ZcscH", [](double x, bool) { return 1 / std::sinh(x); }, hyper, hyper},
      {"ZcotH", [](double x, bool) { return 1 / std::tanh(x); }, hyper, hyper},
      {"zAsinH", [](double x, bool) { return std::asinh(x); }, asinh, {2e10, -3e12, 0.9}},
      {"zAcosH", [](double x, bool) { return std::acosh(x); }, outside, {1.5, 1e5, 7}},
      {"zAtanH", [](double x, bool) { return std::atanh(x); }, unitBox, unitBox},
      {"zAsecH", [](double x, bool) { return std::acosh(1 / x); }, below1, below1},
      {"zAcscH", [](double x, bool) { return std::asinh(1 / x); }, anyReal, {1e-9, 0.5, 50}},
      {"zAcotH", [](double x, bool) { return std::atanh(1 / x); }, acoth, acoth},
  };

  int checked = 0;
  for (const auto& f : families) {
    for (bool degree : testing::kModes) {
      for (double x : degree ? f.degrees : f.radians) {
        // acosH and acotH are only defined from 1 outward.
        if (std::string(f.routine) == "zAcosH" && x < 1) continue;
        SCOPED_TRACE(std::string(f.routine) + (degree ? " deg " : " rad ") + std::to_string(x));
        const Outcome o = (*FindRoutine(f.routine))(x, degree);
        ASSERT_TRUE(o.ok()) << o.message;
        EXPECT_TRUE(Agree15(o.value.number(), f.reference(x, degree)));
        ++checked;
      }
    }
  }
  EXPECT_GT(checked, 300);
}

// Transcript names by unit.
TEST(TrigOrdinary, TranscriptNamesTheUnit) {
  EXPECT_EQ(ZSIN(Value(17), true).transcript, " d.sin ");
  EXPECT_EQ(ZSIN(Value(1.7), false).transcript, " r.sin ");
  EXPECT_EQ(ZCSC(Value(17), true).transcript, " d.cosec ");
  EXPECT_EQ(ZCOT(Value(1.7), false).transcript, " r.cotan ");
  EXPECT_EQ(ZAcsc(Value(3), true).transcript, " d.acosec ");
  EXPECT_EQ(ZAcot(Value(3), false).transcript, " r.acotan ");
  EXPECT_EQ(ZsinH(Value(1)).transcript, " sinH ");
  EXPECT_EQ(zAsinH(Value(1)).transcript, " AsinH ");
  EXPECT_EQ(zAcotH(Value(3)).transcript, " acotanH ");
}

// The edge cases named for the family.
TEST(TrigOrdinary, EdgeCases) {
  // sin 390 is sin 30; sin(-30) goes by 330.
  EXPECT_EQ(ZSIN(Value(390), true).value.number(), ZSIN(Value(30), true).value.number());
  EXPECT_EQ(ZSIN(Value(-30), true).value.number(), -0.5);
  // tan 89.9 computes.
  const Outcome t = ZTAN(Value(89.9), true);
  ASSERT_TRUE(t.ok());
  EXPECT_TRUE(Agree15(t.value.number(), std::tan(89.9 * kPi / 180)));
  // The display's Pi, 4 Atn(1), in radians gives the text "0".
  EXPECT_EQ(ZSIN(Value(4 * std::atan(1.0)), false).value.kind(), Kind::String);
  // An empty display counts as 0.
  EXPECT_EQ(ZCOS(Value(), true).value.number(), 1);
}

}  // namespace
}  // namespace tessaron::kernels

// The forced values at the special angles, for all 24 routines in both angle
// modes. Expected values are the ones the keys force (exact), or, where the
// routine computes, the exact mathematical value.
#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "expect.h"
#include "routines.h"

namespace tessaron::kernels {
namespace {

using testing::Agree15;
using testing::FindRoutine;

constexpr double kPi = 3.14159265358979323846;
constexpr double kZero = 1e300;  // marks the text "0"

struct Special {
  const char* routine;
  bool degree;
  double x;
  double expected;  // kZero: the text "0"
  const char* transcript;
};

const Special kSpecial[] = {
    // Sine, degrees, and the reduction by Int (390 is 30, -30 is 330).
    {"ZSIN", true, 0, kZero, " d.sin "},
    {"ZSIN", true, 180, kZero, " d.sin "},
    {"ZSIN", true, 30, 0.5, " d.sin "},
    {"ZSIN", true, 150, 0.5, " d.sin "},
    {"ZSIN", true, 210, -0.5, " d.sin "},
    {"ZSIN", true, 330, -0.5, " d.sin "},
    {"ZSIN", true, 90, 1, " d.sin "},
    {"ZSIN", true, 270, -1, " d.sin "},
    {"ZSIN", true, 390, 0.5, " d.sin "},
    {"ZSIN", true, -30, -0.5, " d.sin "},
    {"ZSIN", true, -90, -1, " d.sin "},
    {"ZSIN", true, 360, kZero, " d.sin "},
    {"ZSIN", true, 720, kZero, " d.sin "},
    // Sine, radians: the bands of vPiLow and vPiHigh.
    {"ZSIN", false, kPi, kZero, " r.sin "},
    {"ZSIN", false, 3.141592653589, kZero, " r.sin "},
    {"ZSIN", false, 3 * kPi, kZero, " r.sin "},
    {"ZSIN", false, kPi / 6, 0.5, " r.sin "},
    {"ZSIN", false, 5 * kPi / 6, 0.5, " r.sin "},
    {"ZSIN", false, 7 * kPi / 6, -0.5, " r.sin "},
    {"ZSIN", false, 11 * kPi / 6, -0.5, " r.sin "},
    {"ZSIN", false, kPi / 2, 1, " r.sin "},
    {"ZSIN", false, 3 * kPi / 2, -1, " r.sin "},
    {"ZSIN", false, -kPi / 2, -1, " r.sin "},
    // Cosine.
    {"ZCOS", true, 0, 1, " d.cos "},
    {"ZCOS", true, 180, -1, " d.cos "},
    {"ZCOS", true, 90, kZero, " d.cos "},
    {"ZCOS", true, 270, kZero, " d.cos "},
    {"ZCOS", true, 60, 0.5, " d.cos "},
    {"ZCOS", true, 300, 0.5, " d.cos "},
    {"ZCOS", true, 120, -0.5, " d.cos "},
    {"ZCOS", true, 240, -0.5, " d.cos "},
    {"ZCOS", true, -60, 0.5, " d.cos "},
    {"ZCOS", true, 420, 0.5, " d.cos "},
    {"ZCOS", false, kPi, -1, " r.cos "},
    {"ZCOS", false, 0, 1, " r.cos "},
    {"ZCOS", false, 1e-12, 1, " r.cos "},
    {"ZCOS", false, 2 * kPi, 1, " r.cos "},
    {"ZCOS", false, kPi / 2, kZero, " r.cos "},
    {"ZCOS", false, 3 * kPi / 2, kZero, " r.cos "},
    {"ZCOS", false, kPi / 3, 0.5, " r.cos "},
    {"ZCOS", false, 5 * kPi / 3, 0.5, " r.cos "},
    {"ZCOS", false, 2 * kPi / 3, -0.5, " r.cos "},
    {"ZCOS", false, 4 * kPi / 3, -0.5, " r.cos "},
    // Tangent.
    {"ZTAN", true, 45, 1, " d.tan "},
    {"ZTAN", true, 225, 1, " d.tan "},
    {"ZTAN", true, 135, -1, " d.tan "},
    {"ZTAN", true, 315, -1, " d.tan "},
    {"ZTAN", true, -45, -1, " d.tan "},
    {"ZTAN", true, 405, 1, " d.tan "},
    {"ZTAN", false, kPi, kZero, " r.tan "},
    {"ZTAN", false, kPi / 4, 1, " r.tan "},
    {"ZTAN", false, 5 * kPi / 4, 1, " r.tan "},
    {"ZTAN", false, 3 * kPi / 4, -1, " r.tan "},
    {"ZTAN", false, 7 * kPi / 4, -1, " r.tan "},
    // Secant: the cosine's points, reciprocal.
    {"ZSEC", true, 0, 1, " d.sec "},
    {"ZSEC", true, 180, -1, " d.sec "},
    {"ZSEC", true, 60, 2, " d.sec "},
    {"ZSEC", true, 300, 2, " d.sec "},
    {"ZSEC", true, 120, -2, " d.sec "},
    {"ZSEC", true, 240, -2, " d.sec "},
    {"ZSEC", false, kPi, -1, " r.sec "},
    {"ZSEC", false, 0, 1, " r.sec "},
    {"ZSEC", false, kPi / 3, 2, " r.sec "},
    {"ZSEC", false, 5 * kPi / 3, 2, " r.sec "},
    {"ZSEC", false, 2 * kPi / 3, -2, " r.sec "},
    {"ZSEC", false, 4 * kPi / 3, -2, " r.sec "},
    // Cosecant: the sine's points, reciprocal.
    {"ZCSC", true, 30, 2, " d.cosec "},
    {"ZCSC", true, 150, 2, " d.cosec "},
    {"ZCSC", true, 210, -2, " d.cosec "},
    {"ZCSC", true, 330, -2, " d.cosec "},
    {"ZCSC", true, 90, 1, " d.cosec "},
    {"ZCSC", true, 270, -1, " d.cosec "},
    {"ZCSC", false, kPi / 6, 2, " r.cosec "},
    {"ZCSC", false, 5 * kPi / 6, 2, " r.cosec "},
    {"ZCSC", false, 7 * kPi / 6, -2, " r.cosec "},
    {"ZCSC", false, 11 * kPi / 6, -2, " r.cosec "},
    {"ZCSC", false, kPi / 2, 1, " r.cosec "},
    {"ZCSC", false, 3 * kPi / 2, -1, " r.cosec "},
    // Cotangent: the tangent's points, reciprocal, and "0" at its poles.
    {"ZCOT", true, 45, 1, " d.cotan "},
    {"ZCOT", true, 225, 1, " d.cotan "},
    {"ZCOT", true, 135, -1, " d.cotan "},
    {"ZCOT", true, 315, -1, " d.cotan "},
    {"ZCOT", true, 90, kZero, " d.cotan "},
    {"ZCOT", true, 270, kZero, " d.cotan "},
    {"ZCOT", false, kPi / 4, 1, " r.cotan "},
    {"ZCOT", false, 5 * kPi / 4, 1, " r.cotan "},
    {"ZCOT", false, 3 * kPi / 4, -1, " r.cotan "},
    {"ZCOT", false, 7 * kPi / 4, -1, " r.cotan "},
    {"ZCOT", false, kPi / 2, kZero, " r.cotan "},
    {"ZCOT", false, 3 * kPi / 2, kZero, " r.cotan "},
    // Inverses: the forced ends of their domains.
    {"ZAsin", true, 1, 90, " d.asin "},
    {"ZAsin", true, -1, -90, " d.asin "},
    {"ZAsin", true, 0, 0, " d.asin "},
    {"ZAsin", false, 1, kPi / 2, " r.asin "},
    {"ZAsin", false, -1, -kPi / 2, " r.asin "},
    {"ZAcos", true, 0, 90, " d.acos "},
    {"ZAcos", true, 1, 0, " d.acos "},
    {"ZAcos", true, -1, 180, " d.acos "},
    {"ZAcos", false, 0, kPi / 2, " r.acos "},
    {"ZAcos", false, 1, 0, " r.acos "},
    {"ZAcos", false, -1, kPi, " r.acos "},
    {"ZAtan", true, 0, 0, " d.atan "},
    {"ZAtan", false, 0, 0, " r.atan "},
    {"ZAtan", false, 1, kPi / 4, " r.atan "},
    {"ZAsec", true, 1, 0, " d.asec "},
    {"ZAsec", true, -1, 180, " d.asec "},
    {"ZAsec", false, 1, 0, " r.asec "},
    {"ZAsec", false, -1, kPi, " r.asec "},
    {"ZAcsc", true, 1, 90, " d.acosec "},
    {"ZAcsc", true, -1, -90, " d.acosec "},
    {"ZAcsc", false, 1, kPi / 2, " r.acosec "},
    {"ZAcsc", false, -1, -kPi / 2, " r.acosec "},
    {"ZAcot", true, 1, 45, " d.acotan "},
    {"ZAcot", true, -1, 135, " d.acotan "},
    {"ZAcot", true, 0, 90, " d.acotan "},
    {"ZAcot", false, 0, kPi / 2, " r.acotan "},
    {"ZAcot", false, 1, kPi / 4, " r.acotan "},
};

TEST(TrigSpecial, ForcedValuesExactly) {
  std::set<std::string> seen;
  for (const auto& c : kSpecial) {
    SCOPED_TRACE(std::string(c.routine) + (c.degree ? " deg " : " rad ") + std::to_string(c.x));
    const auto* routine = FindRoutine(c.routine);
    ASSERT_NE(routine, nullptr);
    seen.insert(c.routine);
    const Outcome o = (*routine)(c.x, c.degree);
    if (c.expected == kZero)
      testing::ExpectZeroText(o, c.transcript);
    else
      testing::ExpectShown(o, c.expected, c.transcript);
  }
  EXPECT_EQ(seen.size(), 12u);
}

// Computed, not forced, at their special points: right to the last digit
// that the display shows.
TEST(TrigSpecial, ComputedSpecialPoints) {
  struct Row {
    const char* routine;
    bool degree;
    double x, expected;
  };
  const Row rows[] = {
      {"ZAsin", true, 0.5, 30},
      {"ZAcos", true, 0.5, 60},
      {"ZAtan", true, 1, 45},
      {"ZAtan", true, -1, -45},
      {"ZAsec", true, 2, 60},
      {"ZAsec", true, -2, 120},
      {"ZAcsc", true, 2, 30},
      {"ZAcsc", true, -2, -30},
      {"ZAcot", false, -1, 3 * kPi / 4},
      {"ZAcos", false, -0.5, 2 * kPi / 3},
      {"ZAsin", false, 0.5, kPi / 6},
  };
  for (const auto& r : rows) {
    SCOPED_TRACE(std::string(r.routine) + " " + std::to_string(r.x));
    const Outcome o = (*FindRoutine(r.routine))(r.x, r.degree);
    ASSERT_TRUE(o.ok());
    EXPECT_TRUE(Agree15(o.value.number(), r.expected));
  }
}

// The hyperbolic routines take no unit: the same in both modes.
TEST(TrigSpecial, HyperbolicSpecialPointsInBothModes) {
  struct Row {
    const char* routine;
    double x, expected;
    const char* transcript;
  };
  const double sqrt2 = std::sqrt(2.0);
  const Row rows[] = {
      {"ZsinH", 0, 0, " sinH "},
      {"ZcosH", 0, 1, " cosH "},
      {"ZtanH", 0, 0, " tanH "},
      {"ZtanH", 25, 1, " tanH "},
      {"ZtanH", -25, -1, " tanH "},
      {"ZtanH", 700, 1, " tanH "},
      {"ZsecH", 0, 1, " secH "},
      {"zAsinH", 0, 0, " AsinH "},
      {"zAcosH", 1, 0, " acosH "},
      {"zAtanH", 0, 0, " atanH "},
      {"zAsecH", 1, 0, " asecH "},
      {"zAcscH", 1, std::log(1 + sqrt2), " acosecH "},
      {"ZcscH", std::log(1 + sqrt2), 1, " cosecH "},
      {"ZcotH", std::log(3.0) / 2, 2, " cotanH "},
      {"zAcotH", 2, std::log(3.0) / 2, " acotanH "},
  };
  for (bool degree : testing::kModes) {
    for (const auto& r : rows) {
      SCOPED_TRACE(std::string(r.routine) + (degree ? " deg " : " rad ") + std::to_string(r.x));
      const Outcome o = (*FindRoutine(r.routine))(r.x, degree);
      ASSERT_TRUE(o.ok()) << o.message;
      EXPECT_TRUE(Agree15(o.value.number(), r.expected));
      EXPECT_EQ(o.transcript, r.transcript);
    }
  }
}

// The prefixes choose the routine: Hyp and Arc together give the inverse
// hyperbolic one whatever their order.
TEST(TrigSpecial, PrefixesChooseTheRoutine) {
  const Value x(0.5);
  EXPECT_EQ(Trig(TrigKey::Sin, false, false, x, true).transcript, " d.sin ");
  EXPECT_EQ(Trig(TrigKey::Sin, true, false, x, false).transcript, " r.asin ");
  EXPECT_EQ(Trig(TrigKey::Sin, false, true, x, true).transcript, " sinH ");
  EXPECT_EQ(Trig(TrigKey::Sin, true, true, x, true).transcript, " AsinH ");
  EXPECT_EQ(Trig(TrigKey::Sec, true, true, x, true).transcript, " asecH ");
  EXPECT_EQ(Trig(TrigKey::Cot, true, false, x, true).transcript, " d.acotan ");
}

TEST(TrigSpecial, DegreeRadianConversionMarksCancel) {
  EXPECT_EQ(RaDegMark("2", true), "2 >Rad ");
  // The mark is cut by its five characters ">Rad ", so the blank in front of
  // it stays.
  EXPECT_EQ(RaDegMark("2 >Rad ", false), "2 ");
  EXPECT_EQ(RaDegMark(RaDegMark("5 X 3", false), true), "5 X 3 ");
  EXPECT_EQ(RaDegMark("", false), " >Deg ");
  EXPECT_TRUE(Agree15(DegreesToRadians(Value(180)).number(), kPi));
  EXPECT_TRUE(Agree15(RadiansToDegrees(Value(kPi / 2)).number(), 90));
}

}  // namespace
}  // namespace tessaron::kernels

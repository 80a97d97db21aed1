// The elementary functions: results against independent computations, the
// limits on either side, and the exact refusal texts.
#include <gtest/gtest.h>

#include <cmath>

#include "calc/kernels/elementary.h"
#include "expect.h"

namespace tessaron::kernels {
namespace {

using testing::Agree15;
using testing::ExpectRefused;

TEST(Elementary, Reciprocal) {
  testing::ExpectShown(Rever(Value(4)), 0.25, " 1/x ");
  testing::ExpectShown(Rever(Value(-0.5)), -2, " 1/x ");
  // 1/x of 0 keeps the chain: the infinity text stands while the box is
  // open, then the display reads "0".
  const Outcome z = Rever(Value(0));
  ExpectRefused(z, Act::Zero, " Must not be 0 for 1/X ");
  EXPECT_EQ(z.text, " + - infinity ");
  EXPECT_EQ(Rever(Value()).act, Act::Zero);
}

TEST(Elementary, SquareAndCubeWithTheirLimits) {
  testing::ExpectShown(Squar(Value(-12)), 144, " ^2 ");
  testing::ExpectShown(Cubi(Value(-3)), -27, " ^3 ");
  // 10^154.1 is the square's limit, 10^102.73 the cube's.
  const double squareEdge = std::pow(10.0, 154.1);
  EXPECT_TRUE(Squar(Value(squareEdge)).ok());
  EXPECT_TRUE(Agree15(Squar(Value(-squareEdge)).value.number(), squareEdge * squareEdge));
  ExpectRefused(Squar(Value(squareEdge * 1.000001)), Act::Cancel,
                "Sorry, Not Available (too big) !! ");
  ExpectRefused(Squar(Value(-1e155)), Act::Cancel, "Sorry, Not Available (too big) !! ");
  const double cubeEdge = std::pow(10.0, 102.73);
  EXPECT_TRUE(Cubi(Value(cubeEdge)).ok());
  ExpectRefused(Cubi(Value(-cubeEdge * 1.000001)), Act::Cancel,
                "Sorry, Not Available (too big) !! ");
}

TEST(Elementary, SquareRoot) {
  testing::ExpectShown(SqRt(Value(2.25), 0), 1.5, " ^1/2 ");
  EXPECT_TRUE(Agree15(SqRt(Value(2), 0).value.number(), std::sqrt(2.0)));
  ExpectRefused(SqRt(Value(-4), 0), Act::Cancel, "  Must be >= 0 for Square Root ");
  ExpectRefused(SqRt(Value(-4), 3), Act::Cancel, "  Adjust the initial value T ");
  // The solver's silent evaluation: no box and no Cancel, the failure only.
  ExpectRefused(SqRt(Value(-4), 5), Act::Fail, "");
  ExpectRefused(SqRt(Value(-4), 6), Act::Cancel, "  Must be >= 0 for Square Root ");
  // The value routine leaves its result empty for a negative argument.
  EXPECT_EQ(SqR(Value(-1)).kind(), Kind::Empty);
  EXPECT_EQ(SqR(Value(0)).number(), 0);
  EXPECT_EQ(SqR(Value(81)).number(), 9);
  EXPECT_EQ(std::string(kSqrRefusal), "  Must be >= 0 for Square Root ");
}

TEST(Elementary, CubeRoot) {
  testing::ExpectShown(CuR(Value(-27)), -3, " ^1/3 ");
  testing::ExpectShown(CuR(Value(0)), 0, " ^1/3 ");
  testing::ExpectShown(CuR(Value(8)), 2, " ^1/3 ");
  for (double x : {2.0, 10.0, -0.001, 12345.678, -0.5})
    EXPECT_TRUE(Agree15(CuRoot(Value(x)).number(), std::cbrt(x))) << x;
  // Far from 1 both ways of the root carry the last-place error of a large
  // logarithm (about 700 ulp of 1 at 10^300), so fourteen digits hold there.
  for (double x : {1e-200, -7e300, 3e250})
    EXPECT_NEAR(CuRoot(Value(x)).number() / std::cbrt(x), 1.0, 1e-13) << x;
}

TEST(Elementary, PowersOfTenAndE) {
  testing::ExpectShown(Exp10(Value(3)), 1000, " 10^x ");
  EXPECT_TRUE(Exp10(Value(308.2)).ok());
  EXPECT_TRUE(Exp10(Value(-308.2)).ok());
  ExpectRefused(Exp10(Value(308.21)), Act::Cancel, "Sorry, Not Available.");
  ExpectRefused(Exp10(Value(-309)), Act::Cancel, "Sorry, Not Available.");
  EXPECT_TRUE(Agree15(Exp10(Value(0.5)).value.number(), std::sqrt(10.0)));

  EXPECT_TRUE(Agree15(Expo(Value(1)).value.number(), std::exp(1.0)));
  EXPECT_EQ(Expo(Value(1)).transcript, " e^x ");
  // The two limits are not mirror images.
  EXPECT_TRUE(Expo(Value(709.7)).ok());
  ExpectRefused(Expo(Value(709.71)), Act::Cancel, "Sorry, Not Available.");
  const Outcome tiny = Expo(Value(-727));
  ASSERT_TRUE(tiny.ok());
  EXPECT_GT(tiny.value.number(), 0);
  EXPECT_LT(tiny.value.number(), 1e-300);
  EXPECT_TRUE(Expo(Value(-728)).ok());
  ExpectRefused(Expo(Value(-728.01)), Act::Cancel, "Sorry, Not Available.");
}

TEST(Elementary, Logarithms) {
  testing::ExpectShown(Loga(Value(1000), 0, false), Loga(Value(1000), 0, false).value.number(),
                       " log ");
  EXPECT_TRUE(Agree15(Loga(Value(1000), 0, false).value.number(), 3));
  EXPECT_TRUE(Agree15(Loga(Value(7), 0, false).value.number(), std::log10(7.0)));
  EXPECT_TRUE(Agree15(NatLog(Value(10), 0, false).value.number(), std::log(10.0)));
  EXPECT_EQ(NatLog(Value(10), 0, false).transcript, " ln ");

  // Refused logarithms take the key back, with their texts by stage.
  ExpectRefused(Loga(Value(0), 0, false), Act::TakeBack, "  Must be > 0,   Log ",
                "  Logarithm  to  the  base  10. ");
  ExpectRefused(Loga(Value(-1), 3, false), Act::TakeBack, "  Adjust the initial value T  (maybe)  ",
                "  Logarithm  to  the  base  10. ");
  ExpectRefused(Loga(Value(-1), 4, true), Act::TakeBack, "  Not Work with current Formula. ",
                "  Logarithm  to  the  base  10. ");
  ExpectRefused(Loga(Value(-1), 4, false), Act::TakeBack, "  Must be > 0,   Log ",
                "  Logarithm  to  the  base  10. ");
  ExpectRefused(NatLog(Value(0), 0, false), Act::TakeBack, "  Must be > 0,   Ln ",
                "  Natural Logarithm, to  the  base  e=2.718281828 ");
  ExpectRefused(NatLog(Value(-2), 3, false), Act::TakeBack,
                "  Adjust the initial value T   (maybe) ",
                "  Natural Logarithm, to  the  base  e=2.718281828 ");
  ExpectRefused(NatLog(Value(-2), 4, true), Act::TakeBack, "  Not Work with current Formula. ",
                "  Natural Logarithm, to  the  base  e=2.718281828 ");
}

TEST(Elementary, CircleArea) {
  EXPECT_TRUE(Agree15(CmdArea(Value(2)).value.number(), 3.14159265358979323846));
  EXPECT_TRUE(Agree15(CmdArea(Value(-10)).value.number(), 25 * 3.14159265358979323846));
  EXPECT_EQ(CmdArea(Value(2)).transcript, " PiD2/4 ");
  ExpectRefused(CmdArea(Value(1e155)), Act::Cancel, "Sorry, Not Available (too big) !! ");
}

}  // namespace
}  // namespace tessaron::kernels

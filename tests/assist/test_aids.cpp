// The aids' edge cases and refusals, each with its message in its words.
#include <cmath>
#include <numbers>
#include <vector>

#include "assist_fixture.h"

namespace tessaron::test {

TEST_F(AssistTest, TheBoxWidensTheFormAndHoldsTheDigitsReady) {
  EXPECT_EQ(c("cmdAssist").Caption, "Close Assist");
  EXPECT_EQ(calc->Width, 12690);
  EXPECT_TRUE(c("frameAssist").Visible);
  EXPECT_EQ(c("cmdIntegral").BackColor, 16762823);
  EXPECT_TRUE(calc->bHoldKeys);
  app.click(c("cmdAssist"));
  EXPECT_EQ(c("cmdAssist").Caption, "Assist, Intgrl ");
  EXPECT_EQ(calc->Width, 11640);
  EXPECT_FALSE(c("frameAssist").Visible);
  EXPECT_FALSE(calc->bHoldKeys);
  app.click(c("cmdAssist"));
  app.click(c("cmdExitAssist"));
  EXPECT_FALSE(c("frameAssist").Visible);
}

TEST_F(AssistTest, SquareFromZeroToThreeIsExactlyNine) {
  function("T x2");
  range(0, 3);
  aid("cmdIntegral");
  EXPECT_EQ(calc->GesuNo, 3);
  EXPECT_EQ(memory(3), 9);
  EXPECT_EQ(display(), "9");
  EXPECT_EQ(lastBox(), " Integral (= Area) is at   Memory(3).   ");
  EXPECT_EQ(c("cmdBack").Caption, "Back");
  EXPECT_EQ(calc->CalcStage, 4);
  EXPECT_EQ(c("cmdIntegral").BackColor, 16769248);
}

TEST_F(AssistTest, AReversedRangeIsTurnedRound) {
  function("T x2");
  range(3, 0);
  aid("cmdIntegral");
  EXPECT_EQ(memory(3), 9);
  EXPECT_EQ(calc->IntFrom, 0);
  EXPECT_EQ(calc->IntTo, 3);
}

TEST_F(AssistTest, EqualEndsAreRefused) {
  function("T x2");
  range(2, 2);
  setMemory(3, 7);
  aid("cmdIntegral");
  EXPECT_EQ(lastBox(), " X of From and To be in Memory(1, 2). ");
  EXPECT_FALSE(calc->AssistOn);
  // The answer's memory is cleared with the refusal.
  EXPECT_EQ(memory(3), 0);
}

TEST_F(AssistTest, NoFunctionIsRefused) {
  range(0, 1);
  aid("cmdIntegral");
  EXPECT_EQ(lastBox(),
            " No function. Please find the function/equation with left Scroll Bar or input new "
            "one.  ");
}

TEST_F(AssistTest, APoleOfAKnownDomainInTheRangeIsRefused) {
  function("1 / ( T - 3 )");
  range(2, 4);
  aid("cmdIntegral");
  EXPECT_EQ(lastBox(), " Not Continuous and/or Some Out of Domain !!!  ");
}

// The length, the volumes and the surfaces stop after the set-up's refusal
// as the integral does.
TEST_F(AssistTest, EveryRangeAidStopsAfterTheSetUpsRefusal) {
  function("T x2");
  range(1, 1);
  for (const char* name :
       {"cmdLength", "cmdXCyl", "cmdYCol", "cmdXsurf", "cmdYsurf", "cmdMinMax"}) {
    aid(name);
    ASSERT_EQ(host.boxes.size(), 1u) << name;
    EXPECT_EQ(lastBox(), " X of From and To be in Memory(1, 2). ") << name;
  }
}

TEST_F(AssistTest, AWidthOf150IsNotCalledTooWide) {
  function("T sqrt X T");
  range(0, 150);
  aid("cmdIntegral");
  EXPECT_EQ(calc->GesuNo, kGesuNone);
  EXPECT_EQ(lastBox(), " Integral (= Area) is at   Memory(3).   ");
  EXPECT_NEAR(memory(3), 0.4 * std::pow(150.0, 2.5), 1);
}

TEST_F(AssistTest, AWidthAbove200IsRoughAndRoundedToFourPlaces) {
  function("T sqrt X T");
  range(0, 300);
  aid("cmdIntegral");
  EXPECT_EQ(lastBox(), " Too wide range (recomend <101). Integral (= Area) at Mem(3)  is rough. ");
  const double m = memory(3);
  EXPECT_EQ(m, std::nearbyint(m * 1e4) / 1e4);
}

TEST_F(AssistTest, ANegativeClosedFormIsMinusTheArea) {
  function("T x2 - 1 0");
  range(0, 3);
  aid("cmdIntegral");
  EXPECT_EQ(memory(3), -21);
  EXPECT_EQ(lastBox(), " Integral (= - Area) is at   Memory(3).   ");
}

TEST_F(AssistTest, ASignChangeInTheSumsIsJustTheIntegral) {
  fkey("Rad");
  function("T sin X T");
  range(0, 6);
  aid("cmdIntegral");
  EXPECT_EQ(lastBox(), " Integral is at   Memory(3).   ");
  EXPECT_NEAR(memory(3), std::sin(6.0) - 6 * std::cos(6.0), 1e-4);
}

TEST_F(AssistTest, OneOverTheRangeIsPiAboutXAndTwoPiAsSurface) {
  function("T - T + 1");
  range(0, 1);
  aid("cmdXCyl");
  EXPECT_EQ(calc->GesuNo, 1);
  EXPECT_EQ(display(), "3.14159265359");
  EXPECT_EQ(lastBox(), " Volume rotating X-axis is at   Memory(3).   ");
  aid("cmdXsurf");
  EXPECT_NEAR(memory(3), 2 * std::numbers::pi, 1e-13);
  EXPECT_EQ(lastBox(), " Surface rotating X-axis  is  at   Memory(3).   ");
}

TEST_F(AssistTest, AboutYTheEndsMustShareASign) {
  function("T x2");
  range(-1, 1);
  for (const char* name : {"cmdYCol", "cmdYsurf"}) {
    aid(name);
    EXPECT_EQ(lastBox(), "  Memory(1, 2) both need to be same sign(+,-) or one is zero. ") << name;
  }
}

TEST_F(AssistTest, OneEndAtZeroIsOfOneSign) {
  function("T x2");
  range(0, 1);
  aid("cmdYCol");
  EXPECT_EQ(lastBox(), " Volume rotating Y-axis is at   Memory(3).   ");
  EXPECT_NEAR(memory(3), std::numbers::pi / 2, 1e-5);
  aid("cmdYsurf");
  EXPECT_EQ(lastBox(), " Surface rotating Y-axis  is  at   Memory(3).   ");
}

TEST_F(AssistTest, ADipBelowTheEndsOverlapsAboutY) {
  function("T x3 - T");
  range(0, 2);
  aid("cmdYCol");
  EXPECT_EQ(lastBox(), " Not Working.....!!!  Some Overlapping !!!  ");
}

TEST_F(AssistTest, ALineAboutYIsAClosedForm) {
  function("2 X T + 3");
  range(0, 2);
  aid("cmdYCol");
  // x = (y - 3) / 2 for y from 3 to 7: Pi (y - 3)^3 / 12 = 16 Pi / 3.
  // Thirteen digits: the closed form's rounding.
  EXPECT_NEAR(memory(3), 16 * std::numbers::pi / 3, 1e-12 * 16.8);
}

TEST_F(AssistTest, TheLengthOfALine) {
  function("2 X T + 3");
  range(0, 3);
  aid("cmdLength");
  EXPECT_NEAR(memory(3), std::sqrt(45.0), 1e-13);
  EXPECT_EQ(lastBox(), " Length  is  at   Memory(3).   ");
}

TEST_F(AssistTest, SquareFromMinusOneToTwoHasItsMinimumAtZero) {
  function("T x2");
  range(-1, 2);
  aid("cmdMinMax");
  EXPECT_EQ(memory(3), 0);
  EXPECT_EQ(memory(4), 0);
  EXPECT_EQ(memory(5), 2);
  EXPECT_EQ(memory(6), 4);
  EXPECT_EQ(lastBox(), " Min(X), Min(Y), Max(X), Max(Y)  at  Memory(3,4,5,6).   ");
}

TEST_F(AssistTest, AMonotonicCurveHasItsExtremesAtTheEnds) {
  function("T e^x");
  range(0, 1);
  const long before = calc->EvalCount;
  aid("cmdMinMax");
  EXPECT_EQ(memory(3), 0);
  EXPECT_EQ(memory(4), 1);
  EXPECT_EQ(memory(5), 1);
  EXPECT_NEAR(memory(6), 2.718281828, 1e-15);
  // The ends, the recogniser and the scan: no refinement, no flat search.
  EXPECT_EQ(calc->EvalCount - before, 2 + 23 + 1999);
}

// 1 + (T - 2)^4 is 1 to fifteen digits over a stretch around 2: the minimum
// is put in the middle of what the display cannot tell apart.
TEST_F(AssistTest, AFlatBottomIsTakenAtItsMiddle) {
  function("1 + ( T - 2 ) x2 x2");
  range(0, 3);
  aid("cmdMinMax");
  EXPECT_EQ(memory(4), 1);
  EXPECT_NEAR(memory(3), 2, 1e-3);
}

TEST_F(AssistTest, TheSlopeOfTheSquareAtThree) {
  function("T x2");
  host.inputs.push_back("3");
  aid("cmdSlope");
  EXPECT_EQ(memory(3), 6);
  EXPECT_EQ(lastBox(), " Slope at Memory 3. ");
}

TEST_F(AssistTest, ASlopeNeedsANumber) {
  function("T x2");
  host.inputs.push_back("x");
  aid("cmdSlope");
  EXPECT_EQ(lastBox(), " X-value must be Numeric Number! ");
}

TEST_F(AssistTest, ASlopeWhereTheFunctionFails) {
  function("T sqrt");
  host.inputs.push_back("-1");
  aid("cmdSlope");
  EXPECT_EQ(lastBox(), " Not Working...!!!  ");
}

TEST_F(AssistTest, AtTheEdgeOfTheDomainOnlyOneSideHasASlope) {
  function("T sqrt");
  host.inputs.push_back("0");
  aid("cmdSlope");
  EXPECT_EQ(lastBox(), " No-Slope on Left Side,   Slope at Right Side at Memory 3.  ");
  EXPECT_EQ(memory(3), 1000);
}

TEST_F(AssistTest, ASteepSlopeIsHintedInfinite) {
  // 100 times the cube root rises by 10^6 over the first 10^-6.
  function("T cbrt X 1 0 0");
  host.inputs.push_back("0");
  aid("cmdSlope");
  EXPECT_EQ(lastBox(), " Slope at Memory 3.  +Infinity??? ");
}

TEST_F(AssistTest, NoSlopeOnEitherSide) {
  // The root of -T^2 has a value at 0 alone; it is keyed at T = 0.
  setT("0");
  function("( 0 - T x2 ) sqrt");
  host.inputs.push_back("0");
  aid("cmdSlope");
  EXPECT_EQ(lastBox(), " No Slope !!!  ");
}

}  // namespace tessaron::test

namespace tessaron::test {

// A demo in slot 33: its own closed form, whatever its keys give.
class DemoAid : public AssistTest {
 protected:
  void demo(int number, std::vector<int> keys) {
    auto& col = calc->EqnTable[kDemoSlot];
    const std::vector<int> header = {32, 42, 99};
    keys.insert(keys.begin(), header.begin(), header.end());
    keys.push_back(22);
    for (size_t i = 0; i < keys.size(); ++i) col[30 + i] = keys[i];
    col[29] = static_cast<double>(keys.size() - 1);
    col[28] = 4;
    calc->EqnText[kDemoSlot] = " demo ";
    calc->DemoNumber = number;
    c("ScrForm").setValue(Value(kDemoSlot));
  }
};

TEST_F(DemoAid, TheSquaresDemoIntegratesInClosedForm) {
  demo(3, {33, 52});
  range(0, 3);
  const long before = calc->EvalCount;
  aid("cmdIntegral");
  EXPECT_EQ(memory(3), 9);
  // The ends only: no recogniser, no sums.
  EXPECT_EQ(calc->EvalCount - before, 2);
}

// Rayleigh's curve is drawn five times higher; its integral is that of the
// distribution itself.
TEST_F(DemoAid, RayleighsDemoIsTheDistributionsIntegral) {
  demo(39, {33});
  range(0, 2);
  aid("cmdIntegral");
  EXPECT_NEAR(memory(3), 1 - std::exp(-2.0), 1e-12);
}

TEST_F(DemoAid, TToTheTHasNoClosedFormAndIsSummed) {
  demo(11, {33, 27, 33});
  range(1, 2);
  aid("cmdIntegral");
  // Integral of T^T from 1 to 2 is 2.050446234...
  EXPECT_NEAR(memory(3), 2.05045, 1e-5);
}

// The scaled demo curves (above 35) are drawn five times higher: the sums
// divide f by 5, so the volume's square is divided by 25 once, not again.
TEST_F(DemoAid, AScaledDemoIsMeasuredAtItsTrueHeight) {
  // T^4 stands for the curve: no shape, so the sums run.
  demo(40, {33, 52, 52});
  range(0, 3);
  aid("cmdIntegral");
  EXPECT_EQ(calc->GesuNo, kGesuNone);
  EXPECT_NEAR(memory(3), 48.6 / 5, 1e-5);
  aid("cmdXCyl");
  EXPECT_NEAR(memory(3), std::numbers::pi * 2187 / 25, 1e-3);
}

}  // namespace tessaron::test

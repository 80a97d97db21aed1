// Vask's mode: the five-bar quartic and the three-bar parabola, their input
// tests and special shapes, and the curve's key 145.
#include <cmath>

#include "assist_fixture.h"

namespace tessaron {
double ModeCutOff(double x);
}

namespace tessaron::test {

class Histogram : public AssistTest {
 protected:
  void bars(std::initializer_list<double> ys) {
    int n = 1;
    for (double y : ys) setMemory(n++, y);
  }
};

TEST_F(Histogram, APeakIsCutToWholeTenthsTowardZero) {
  EXPECT_EQ(ModeCutOff(0.27), 0.2);
  EXPECT_EQ(ModeCutOff(-0.27), -0.2);
  EXPECT_EQ(ModeCutOff(0.3), 0.3);
  EXPECT_EQ(ModeCutOff(0.5), 0.5);
}

TEST_F(Histogram, ACurveThroughFiveBars) {
  bars({3, 5, 9, 6, 2});
  aid("cmdVaskMode");
  EXPECT_EQ(calc->ModeCoef[0], 2);
  EXPECT_DOUBLE_EQ(calc->ModeCoef[1], 15.0 / 24);
  const double m6 = memory(6);
  EXPECT_EQ(m6 * 10, std::nearbyint(m6 * 10));
  // The peak lies just right of the middle, less than a tenth away.
  EXPECT_GT(calc->ModeMax, 0);
  EXPECT_LT(calc->ModeMax, 0.1);
  EXPECT_EQ(lastBox(), " Mode in histogram (X3) is Okay.   No Amend.  ");
}

// Equal neighbours as high as the middle bar: the steps alone would scan the
// quartic to the bar's edge, but the mode stays on the middle.
TEST_F(Histogram, EqualNeighboursNeedNoAmending) {
  bars({1, 5, 5, 5, 1});
  aid("cmdVaskMode");
  EXPECT_EQ(memory(6), 0);
  EXPECT_EQ(lastBox(), " Mode in histogram (X3) is Okay.   No Amend.  ");
}

TEST_F(Histogram, ABarAtZeroIsRefused) {
  bars({0, 5, 9, 6, 2});
  aid("cmdVaskMode");
  EXPECT_EQ(lastBox(), " Y1 ~ Y5 must be at  0 < M1 <= M2 <= M3(Highest) >= M(4) >=M5 > 0.");
  bars({3, 5, 9, 6, 2});
  setMemory(3, 4);
  aid("cmdVaskMode");
  EXPECT_EQ(lastBox(), " Y1 ~ Y5 must be at  0 < M1 <= M2 <= M3(Highest) >= M(4) >=M5 > 0.");
}

TEST_F(Histogram, ThreeEqualHighBarsOnTheLeft) {
  bars({5, 5, 5, 3, 1});
  aid("cmdVaskMode");
  ASSERT_GE(host.boxes.size(), 2u);
  EXPECT_EQ(host.boxes[0].text, "  M1 = M2 = M3(Highest) > M(4) ,  Mode is at M(2) here.");
  EXPECT_EQ(memory(6), -1);
  EXPECT_EQ(lastBox(), " Amending part = Interval (d)  x  Memory(6). ");
  EXPECT_EQ(c("lblFormula").Caption,
            " Oren Vask's Mode = Mode in histogram (X3)  +  Mem(6) * Interval(d) ");
}

TEST_F(Histogram, ThreeEqualHighBarsOnTheRight) {
  bars({1, 3, 5, 5, 5});
  aid("cmdVaskMode");
  EXPECT_EQ(host.boxes[0].text, "  M2 <  M3(Highest) = M(4) = M(5) ,  Mode is at M(4) here.");
  EXPECT_EQ(memory(6), 1);
}

TEST_F(Histogram, TwoEqualHighBarsMeetHalfway) {
  bars({2, 5, 5, 3, 1});
  aid("cmdVaskMode");
  EXPECT_EQ(memory(6), -0.5);
  bars({1, 3, 5, 5, 4});
  aid("cmdVaskMode");
  EXPECT_EQ(memory(6), 0.5);
  // A right half that ends lower than the left's second bar turns the
  // amendment off: (M5 - M2) * 0.5 is below 0.
  bars({1, 3, 5, 5, 2});
  aid("cmdVaskMode");
  EXPECT_EQ(memory(6), 0);
}

TEST_F(Histogram, ALopsidedCurveOffersItsGraph) {
  bars({1, 2, 9, 8, 3});
  host.answers.push_back(7);
  aid("cmdVaskMode");
  EXPECT_NE(memory(6), 0);
  EXPECT_EQ(lastBox(), " Amending Part = Interval (d)  x  Memory(6).       See Graph??   ");
  EXPECT_EQ(host.boxes.back().flags, 4);
}

TEST_F(Histogram, ThreeBarsAndTheirInterval) {
  bars({2, 8, 6, 1});
  aid("cmdVaskMode2");
  // 0.5 * 4 / 8 = 0.25 of the interval, cut to 0.2.
  EXPECT_EQ(memory(5), 0.2);
  EXPECT_EQ(lastBox(),
            " Amending part is at Memory(5), Oren Vask's Mode = Mode in histogram + Memory(5) ");
  bars({3, 7, 5, 2});
  aid("cmdVaskMode2");
  // A tenth is below two tenths: no amending.
  EXPECT_EQ(memory(5), 0);
  bars({4, 4, 4, 1});
  aid("cmdVaskMode2");
  EXPECT_EQ(memory(5), 0);
}

TEST_F(Histogram, ThreeBarsRefused) {
  bars({5, 3, 4, 1});
  aid("cmdVaskMode2");
  EXPECT_EQ(lastBox(), " Y2 in Memory(2) is the highest bar.  Impossible.");
  bars({5, 6, 4, 0});
  aid("cmdVaskMode2");
  EXPECT_EQ(lastBox(), " Each of Y1, Y2, Y3, and Interval  at Memory (1, 2, 3, 4)  must be > 0.");
}

TEST_F(Histogram, KeyCodeOneFortyFivePressesTheCurve) {
  calc->ModeCoef = {2, 0.5, 0, -1, 0};
  setMemory(3, 2);
  calc->CalcStage = 5;
  c("Readout").Caption = "1";
  calc->pubCola(145);
  // 0.5 - 1 + 2, and a4 = 0.5 needs no scale (1 / sqrt 0.5 is below 3).
  EXPECT_EQ(std::stod(c("Readout").Caption), 1.5);
  calc->ModeCoef = {2, 0.05, 0, 0, 0};
  c("Readout").Caption = "1";
  calc->pubCola(145);
  // 1 / sqrt 0.05 = 4.47: four times the curve.
  EXPECT_EQ(std::stod(c("Readout").Caption), 4 * 2.05);
}

}  // namespace tessaron::test

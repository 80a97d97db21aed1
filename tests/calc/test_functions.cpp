// The function keys, memories and history as the key log and the replay see
// them: the codes recorded, the same keys pressed again silently, and the
// recall codes that move the memory strip.
#include <cmath>

#include "calc_fixture.h"

namespace tessaron::test {

namespace {
std::vector<int> recorded(const OviCalc& f) {
  return {f.KeyOrder.begin() + 3, f.KeyOrder.begin() + f.KeyCount};
}

void silent(OviCalc& f, const std::vector<int>& codes) {
  f.CalcStage = 5;
  f.KeyLog = false;
  for (int code : codes) f.pubCola(code);
}
}  // namespace

TEST_F(CalcTest, FunctionKeysRecordTheirCodes) {
  keys("2");
  app.click(c("cmdHyp"));
  app.click(c("cmdArc"));
  app.click(c("SSin"));
  keys("+ 9");
  app.click(c("SqRt"));
  keys("+ 3 0");
  app.click(c("Ccos"));
  EXPECT_EQ(recorded(*calc), (std::vector<int>{2, 43, 44, 36, 20, 9, 58, 20, 3, 0, 35}));
}

TEST_F(CalcTest, EveryFunctionCodeReplays) {
  // code, argument typed as digits, result read from the display
  struct Case {
    int code;
    std::vector<int> digits;
    double want;
  };
  const double asinh2 = std::log(2 + std::sqrt(5.0));
  const std::vector<Case> cases = {
      {34, {4, 5}, 1},
      {35, {6, 0}, 0.5},
      {36, {3, 0}, 0.5},
      {37, {4, 5}, 1},
      {38, {6, 0}, 2},
      {39, {3, 0}, 2},
      {46, {5}, 120},
      {47, {2}, std::atan(1.0) * 4},
      {51, {4}, 0.25},
      {52, {9}, 81},
      {53, {3}, 27},
      {54, {2}, 100},
      {55, {1}, std::exp(1.0)},
      {56, {1}, 0},
      {57, {1, 0, 0}, 2},
      {58, {1, 6}, 4},
      {59, {6, 4}, 4},
  };
  for (const Case& k : cases) {
    std::vector<int> list = {32, 41, 99};
    list.insert(list.end(), k.digits.begin(), k.digits.end());
    list.push_back(k.code);
    silent(*calc, list);
    EXPECT_NEAR(calc->displayValue(), k.want, 1e-13) << "code " << k.code;
    EXPECT_FALSE(calc->ErrFlag) << "code " << k.code;
  }
  // Hyp and Arc by their twins' codes: asinH 2.
  silent(*calc, {32, 41, 99, 2, 97, 98, 36});
  EXPECT_NEAR(calc->displayValue(), asinh2, 1e-14);
  EXPECT_TRUE(host.boxes.empty());
}

TEST_F(CalcTest, SilentPolesAndRefusalsSetErrFlagWithoutBoxes) {
  for (const std::vector<int>& list :
       {std::vector<int>{32, 41, 99, 9, 0, 34}, std::vector<int>{32, 41, 99, 0, 39},
        std::vector<int>{32, 41, 99, 2, 44, 36}, std::vector<int>{32, 41, 99, 4, 12, 58},
        std::vector<int>{32, 41, 99, 0, 57}, std::vector<int>{32, 41, 99, 0, 51}}) {
    silent(*calc, list);
    EXPECT_TRUE(calc->ErrFlag) << list.back();
  }
  EXPECT_TRUE(host.boxes.empty());
}

TEST_F(CalcTest, RadiansCodeChangesTheUnitOfTheReplay) {
  // Pi sin in radians reads "0"; the same list in degrees does not.
  silent(*calc, {32, 42, 99, 13, 36});
  EXPECT_EQ(display(), "0");
  silent(*calc, {32, 41, 99, 13, 36});
  EXPECT_NEAR(calc->displayValue(), std::sin(M_PI * M_PI / 180), 1e-15);
}

TEST_F(CalcTest, RecallCodesMoveTheStripAndKeepTheirOffByOne) {
  for (int n = 1; n <= 33; ++n) calc->vMemory[n] = Value(100 + n);
  // 61-64: bar at 0; 65-91: bar at code - 64, fourth row; 92-94: bar at 29,
  // row code - 90, which is memory code - 61: memory 32 (92) reads 31 and
  // memory 33 (93) reads 32.
  const std::vector<std::pair<int, int>> expected = {{61, 101}, {64, 104}, {65, 105}, {80, 120},
                                                     {91, 131}, {92, 131}, {93, 132}, {94, 133}};
  for (auto [code, want] : expected) {
    silent(*calc, {32, 41, 99, code});
    EXPECT_EQ(calc->displayValue(), want) << "code " << code;
  }
  EXPECT_EQ(c("scrMem").value().AsInt16(), 29);
  EXPECT_EQ(c("MMMin", 1).Caption, "30");
}

TEST_F(CalcTest, RecallRecordsTheMemoryNumber) {
  calc->vMemory[33] = Value(5);
  app.scroll(c("scrMem"), 29);
  keys("2 +");
  app.click(c("MMMout", 4));
  EXPECT_EQ(calc->nMemLast, 33);
  keys("=");
  EXPECT_EQ(display(), "7");
  keys("CA");
  keys("1 +");
  app.click(c("MMMout", 4));
  EXPECT_EQ(recorded(*calc), (std::vector<int>{1, 20, 93}));
}

TEST_F(CalcTest, BackAfterAConversionRestoresTheUnit) {
  keys("1 8 0");
  app.click(c("cmdRaDeg"));
  EXPECT_FALSE(calc->bDegree);
  keys("+ 1");
  keys("Back");
  keys("Back");
  EXPECT_FALSE(calc->bDegree);
  EXPECT_NEAR(calc->displayValue(), M_PI, 1e-14);
  keys("Back");
  EXPECT_TRUE(calc->bDegree);
  EXPECT_EQ(display(), "180");
}

TEST_F(CalcTest, LogOfZeroChangesNothingButTheBox) {
  keys("8 X 0");
  const std::vector<int> before = recorded(*calc);
  app.click(c("Loga"));
  ASSERT_EQ(host.boxes.size(), 1u);
  EXPECT_EQ(host.boxes[0].text, "  Must be > 0,   Log ");
  EXPECT_EQ(recorded(*calc), before);
  EXPECT_EQ(display(), "0");
  EXPECT_EQ(calc->nFailCount, 1);
  keys("3 =");
  EXPECT_EQ(display(), "24");
}

TEST_F(CalcTest, SavedRowsCarryValueAndColour) {
  keys("1 2 + 3 =");
  keys("4 X 5 =");
  EXPECT_EQ(calc->HistText[1], " 4 X  5 = ");
  EXPECT_EQ(calc->HistValue[1].number(), 20);
  EXPECT_EQ(calc->HistText[2], " 12 +  3 = ");
  EXPECT_EQ(calc->HistValue[2].number(), 15);
  EXPECT_EQ(calc->HistColor[2], 3);
  EXPECT_EQ(calc->HistColor[1], 4);
}

TEST_F(CalcTest, TheHintMovesOnlyWhileShown) {
  Control& slide = c("imgSlide");
  Control& line = c("imgLine");
  EXPECT_FALSE(c("frameSlide").Visible);
  app.tick(c("tmrTimer2"));
  const int left = slide.Left;
  keys("1 2 + 3 =");
  ASSERT_TRUE(c("frameSlide").Visible);
  app.tick(c("tmrTimer2"));
  EXPECT_EQ(slide.Left, -7590 + 39);
  app.tick(c("tmrTimer2"));
  EXPECT_EQ(line.Left, 1446 + 39);
  for (int i = 2; i < 80; ++i) app.tick(c("tmrTimer2"));
  EXPECT_EQ(slide.Left, -7590);
  EXPECT_EQ(line.Left, 1446);
  // The next key puts the hint away, and it stands still.
  keys("5");
  EXPECT_FALSE(c("frameSlide").Visible);
  app.tick(c("tmrTimer2"));
  EXPECT_EQ(slide.Left, -7590);
  EXPECT_EQ(left, slide.Left);
}

}  // namespace tessaron::test

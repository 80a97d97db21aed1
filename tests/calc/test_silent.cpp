#include "calc_fixture.h"

namespace tessaron::test {

// A recorded list replayed silently: the failing division opens no box, the
// keys after it are still pressed, and ErrFlag tells the failure.
TEST_F(CalcTest, SilentReplayOfAFailingList) {
  keys("5 / 0 + 2 =");
  ASSERT_EQ(host.boxes.size(), 1u);
  host.boxes.clear();
  const std::vector<int> list = {32, 41, 99, 5, 24, 0, 20, 2, 22};
  calc->CalcStage = 5;
  calc->KeyLog = false;
  const bool enabledBefore = c("cmdBack").Enabled;
  const std::string formula = c("lblFormula").Caption;
  bool failed = false;
  for (int code : list) {
    calc->pubCola(code);
    failed = failed || calc->ErrFlag;
  }
  EXPECT_TRUE(host.boxes.empty());
  EXPECT_TRUE(failed);
  EXPECT_EQ(c("cmdBack").Enabled, enabledBefore);
  EXPECT_EQ(c("lblFormula").Caption, formula);
  EXPECT_TRUE(calc->FormulaText.empty());
}

TEST_F(CalcTest, SilentReplayComputes) {
  const std::vector<int> list = {32, 41, 99, 18, 2, 20, 3, 23, 4, 19, 24, 7, 21, 1, 11, 5, 22};
  calc->CalcStage = 5;
  calc->KeyLog = false;
  for (int code : list) calc->pubCola(code);
  EXPECT_EQ(display(), "0.5");
  EXPECT_FALSE(calc->ErrFlag);
  EXPECT_TRUE(host.boxes.empty());
}

TEST_F(CalcTest, RecordedKeysMatchTheCodes) {
  keys("( 2 + 3 X 4 ) / 7 - 1 . 5");
  const std::vector<int> want = {32, 41, 99, 18, 2, 20, 3, 23, 4, 19, 24, 7, 21, 1, 11, 5};
  std::vector<int> got(calc->KeyOrder.begin(), calc->KeyOrder.begin() + calc->KeyCount);
  EXPECT_EQ(got, want);
  keys("=");
  EXPECT_EQ(display(), "0.5");
}

}  // namespace tessaron::test

#include "engine_fixture.h"

namespace tessaron::test {

namespace {
std::vector<int> keysOf(const OviCalc& f, int slot) {
  std::vector<int> k;
  const auto& col = f.EqnTable[slot];
  for (int i = 0; i <= static_cast<int>(col[29]); ++i) k.push_back(static_cast<int>(col[30 + i]));
  return k;
}
}  // namespace

TEST_F(EngineTest, TheStoredListIsTheKeysWithTheirHeader) {
  function("T x2 - 2");
  EXPECT_EQ(keysOf(*calc, 1), (std::vector<int>{32, 41, 99, 33, 52, 21, 2, 22}));
  EXPECT_EQ(calc->EqnTable[1][28], 4);
  EXPECT_EQ(calc->EqnIdx, 1);
  EXPECT_EQ(calc->CalcStage, 4);
  EXPECT_TRUE(c("cmdTsolve").Enabled);
  EXPECT_TRUE(c("cmdTcalcu").Enabled);
  EXPECT_TRUE(c("cmdTform").Enabled);
}

TEST_F(EngineTest, TwoTIsTwoTimesTZeroTIsTAlone) {
  function("2 T");
  EXPECT_EQ(keysOf(*calc, 1), (std::vector<int>{32, 41, 99, 2, 23, 33, 22}));
  function("0 T");
  EXPECT_EQ(keysOf(*calc, 1), (std::vector<int>{32, 41, 99, 33, 22}));
}

// After T the digit keys are grey; a digit by the keyboard is refused as
// after any value that stands.
TEST_F(EngineTest, ADigitAfterTIsRefused) {
  fkey("f(T)");
  fkey("T");
  EXPECT_FALSE(c("Number", 2).Enabled);
  type("2");
  ASSERT_FALSE(host.boxes.empty());
  EXPECT_EQ(host.boxes.back().text, " Need Operating Sign or . . . after Functions or Memories.");
  EXPECT_EQ(display(), "1");
}

TEST_F(EngineTest, AFunctionWithoutTIsNoFunction) {
  function("2 + 3");
  ASSERT_FALSE(host.boxes.empty());
  EXPECT_EQ(host.boxes.back().text, " Missed Variable T. Please start input again! ");
  EXPECT_EQ(host.boxes.back().flags, 48);
  EXPECT_EQ(host.boxes.back().title, " Vantor Calc");
  EXPECT_EQ(display(), "5");
  EXPECT_EQ(calc->CalcStage, 2);
  EXPECT_EQ(calc->EqnTable[1][29], 0);
  EXPECT_TRUE(c("cmdTform").Enabled);
  // The user starts again.
  function("T + 3");
  EXPECT_EQ(calc->EqnTable[1][29], 6);
}

TEST_F(EngineTest, TheThirtyThirdFunctionPushesOutTheOldest) {
  for (int i = 1; i <= 33; ++i) {
    std::string digits;
    for (char d : std::to_string(i)) digits += std::string(" ") + d;
    function("T +" + digits);
  }
  EXPECT_EQ(calc->EqnTable[1][26], 34);  // T + 33 at T = 1
  EXPECT_EQ(calc->EqnTable[32][26], 3);  // T + 2: T + 1 has fallen off
  EXPECT_EQ(calc->EqnTable[33][29], 0);
}

TEST_F(EngineTest, CalcPressesTheFunctionAtT) {
  function("1 2 X T");
  setT("3");
  fkey("Calc");
  EXPECT_EQ(display(), "36");
}

TEST_F(EngineTest, AMemoryIsReadAtEveryReplay) {
  calc->vMemory[5] = Value(10);
  function("T + M5");
  EXPECT_EQ(replayAt(1), 11);
  calc->vMemory[5] = Value(20);
  EXPECT_EQ(replayAt(1), 21);
}

TEST_F(EngineTest, Memory33IsReadAs32OnReplay) {
  calc->vMemory[32] = Value(7);
  calc->vMemory[33] = Value(100);
  function("T + M33");
  EXPECT_EQ(calc->EqnTable[1][30 + 5], 93);
  EXPECT_EQ(replayAt(1), 8);
}

TEST_F(EngineTest, AFailingReplayStillPressesEveryKey) {
  // 1/x of 0 fails at once; "+ T =" after it still runs.
  auto& col = calc->EqnTable[1];
  const int list[] = {32, 41, 99, 0, 51, 20, 33, 22};
  for (int i = 0; i < 8; ++i) col[30 + i] = list[i];
  col[29] = 7;
  calc->EqnIdx = 1;
  calc->CalcStage = 5;
  calc->KeyLog = false;
  calc->ErrFlag = false;
  calc->TNow = Value(4);
  calc->pubCOCAcola();
  EXPECT_TRUE(calc->ErrFlag);
  EXPECT_EQ(display(), "4");
}

TEST_F(EngineTest, ANewTAcrossASignChangeFindsTheRoot) {
  function("T - 3");
  setT("5");
  EXPECT_TRUE(holds(memoryAnswers(), 3));
  EXPECT_EQ(slotAnswers(), (std::vector<double>{3}));
}

TEST_F(EngineTest, CancelEntryStaysAfterEqual) {
  app.click(c("cmdTeqn"));
  keys("2 + 3 =");
  EXPECT_TRUE(c("CancelEntry").Enabled);
  keys("CE 4 =");
  EXPECT_EQ(display(), "4");
}

TEST_F(EngineTest, TheSlotBarWalksTheFunctions) {
  function("T + 1");
  function("T + 2");
  c("ScrForm").setValue(Value(2));
  EXPECT_EQ(calc->EqnIdx, 2);
  EXPECT_EQ(display(), "2");
  EXPECT_TRUE(c("cmdTsolve").Enabled);
  c("ScrForm").setValue(Value(5));
  EXPECT_FALSE(c("cmdTsolve").Enabled);
  EXPECT_FALSE(c("cmdTcalcu").Enabled);
}

// No key on the face is dead: the aids and the graph are live, the graph
// showing the gallery until a function is stored.
TEST_F(EngineTest, TheAidsAndTheGraphAreLive) {
  EXPECT_TRUE(c("cmdAssist").Enabled);
  EXPECT_TRUE(c("cmdGraph").Enabled);
  EXPECT_EQ(c("cmdGraph").Caption, "Demo Graph");
  function("T");
  EXPECT_TRUE(c("cmdGraph").Enabled);
  EXPECT_EQ(c("cmdGraph").Caption, "Graph");
}

// f(T) = T X 0.9999999999999999 makes a hair below 1000 and a hair below
// 10^15 from 1000 and 10^15; a product keeps the hair, where a sum's dust cut
// would take it off.
std::string JustBelowOne() {
  std::string words = "T X 0 .";
  for (int i = 0; i < 16; ++i) words += " 9";
  return words;
}

// Calc shows the replayed value grouped as the display groups any number:
// by the digits it shows, so 999.9999999999999 shows as 1000 and is grouped,
// and 999999999999999.9 shows as 10^15 and is not.
TEST_F(EngineTest, CalcGroupsTheValueByItsShownDigits) {
  function(JustBelowOne());
  setT("1 0 0 0");
  fkey("Calc");
  EXPECT_EQ(display(), "1,000.");
  setT("1 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0");
  fkey("Calc");
  EXPECT_EQ(display(), "1E+15");
  setT("9 9 8");
  fkey("Calc");
  EXPECT_EQ(display(), "998");
}

// Inside a silent replay the value waits to be shown, and the grouping is
// judged without its text: by the value itself where its shown digits cannot
// cross 1000 or 10^15, else by those digits. A grouped value is written at
// once; an ungrouped one still waits when the replay ends.
TEST_F(EngineTest, ASilentReplayGroupsByTheShownDigits) {
  function(JustBelowOne());
  calc->CalcStage = 5;
  calc->KeyLog = false;
  calc->evalAt(1000);
  EXPECT_EQ(c("Readout").Caption, "1,000.");
  calc->evalAt(1e15);
  EXPECT_EQ(display(), "1E+15");
  // 998.9999999999999 shows as 999 and is not grouped: it waits.
  calc->evalAt(999);
  EXPECT_NE(c("Readout").Caption, "999");
  EXPECT_EQ(display(), "999");
  calc->evalAt(5000);
  EXPECT_EQ(c("Readout").Caption, "5,000.");
}

}  // namespace tessaron::test

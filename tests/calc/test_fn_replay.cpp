#include "calc_fixture.h"

namespace tessaron::test {

// A prefix serves the one family key after it, in a silent replay too: the
// same list pressed twice gives the same answer, and no prefix is left lit
// for the keys that follow.
TEST_F(CalcTest, SilentReplayOfAPrefixedKeyRepeats) {
  const std::vector<int> list = {32, 41, 99, 3, 0, 43, 36};
  calc->CalcStage = 5;
  calc->KeyLog = false;
  for (int round = 0; round < 2; ++round) {
    for (int code : list) calc->pubCola(code);
    // sinH 30 = (e^30 - e^-30) / 2, in the display's comma groups.
    EXPECT_EQ(c("Readout").Caption, "5,343,237,290,762.23") << "round " << round;
    EXPECT_FALSE(calc->bHyp);
    EXPECT_FALSE(calc->bArc);
  }
  // A plain sine after the list is the sine.
  for (int code : {99, 3, 0, 36}) calc->pubCola(code);
  EXPECT_EQ(c("Readout").Caption, "0.5");
}

}  // namespace tessaron::test

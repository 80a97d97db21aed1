#include "engine_fixture.h"

namespace tessaron::test {

class PasteTest : public CalcTest {
 protected:
  void paste(const std::string& text) {
    host.clipboard = text;
    app.click(c("cmdPaste"));
  }
};

TEST_F(PasteTest, CopyPutsTheDisplayOnTheClipboard) {
  keys("1 2 3 4 . 5");
  app.click(c("cmdCopy"));
  EXPECT_EQ(host.clipboard, "1,234.5");
  EXPECT_EQ(c("txtCopy").Text, "1,234.5");
}

TEST_F(PasteTest, AGroupedNumberIsTaken) {
  paste("1,234.5");
  EXPECT_TRUE(host.boxes.empty());
  EXPECT_EQ(calc->displayValue(), 1234.5);
}

TEST_F(PasteTest, TextAndNothingAreRefused) {
  for (const char* t : {"abc", ""}) {
    host.boxes.clear();
    paste(t);
    ASSERT_EQ(host.boxes.size(), 1u) << t;
    EXPECT_EQ(host.boxes[0].text, " Not Numeric or None ! ");
  }
}

TEST_F(PasteTest, TheLimitsBothWays) {
  for (const char* t : {"1E+296", "1E-296"}) {
    host.boxes.clear();
    paste(t);
    ASSERT_EQ(host.boxes.size(), 1u) << t;
    EXPECT_EQ(host.boxes[0].text, " Beyond/Below Control   ! ");
  }
  host.boxes.clear();
  keys("7");
  paste("0");
  EXPECT_TRUE(host.boxes.empty());
  EXPECT_EQ(display(), "0");
  EXPECT_EQ(c("txtCopy").Text, "0");
}

TEST_F(PasteTest, PastedIntoAFunctionTheConstantHoldsASlot) {
  app.click(c("cmdTeqn"));
  app.click(c("cmdTform"));
  app.click(c("cmdT"));
  keys("+");
  paste("2.5");
  keys("X");
  paste("2.5");
  keys("=");
  const auto& col = calc->EqnTable[1];
  // T + 2.5 X 2.5: both constants are slot 0.
  EXPECT_EQ(col[30 + 5], 100);
  EXPECT_EQ(col[30 + 7], 100);
  EXPECT_EQ(calc->PasteList[0], 2.5);
  EXPECT_EQ(calc->PasteList[1], 1e296);
  calc->CalcStage = 5;
  calc->KeyLog = false;
  EXPECT_EQ(calc->evalAt(1), 7.25);
}

TEST_F(PasteTest, CtrlVAndCtrlCFromTheKeyboard) {
  host.clipboard = "42";
  type("\x16");
  EXPECT_EQ(display(), "42");
  keys("+ 1 =");
  type("\x03");
  EXPECT_EQ(host.clipboard, "43");
}

}  // namespace tessaron::test

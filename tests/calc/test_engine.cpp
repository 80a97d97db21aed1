#include <cmath>

#include "calc_fixture.h"

namespace tessaron::test {

constexpr long kGreen = 0x8000, kBlue = 0xFF0000;

TEST_F(CalcTest, PrecedenceWaitsForTheProduct) {
  keys("2 +");
  EXPECT_EQ(display(), "2");
  keys("3 X");
  EXPECT_EQ(display(), "3");
  keys("4");
  EXPECT_EQ(display(), "4");
  EXPECT_EQ(displayColour(), kBlue);
  keys("=");
  EXPECT_EQ(display(), "14");
  EXPECT_EQ(displayColour(), kGreen);
}

TEST_F(CalcTest, ProductFoldsBeforeTheSum) {
  keys("2 X 3 +");
  EXPECT_EQ(display(), "6");
  keys("4 =");
  EXPECT_EQ(display(), "10");
}

TEST_F(CalcTest, LeadingMinus) {
  keys("- 5");
  EXPECT_EQ(display(), "5");
  keys("+");
  EXPECT_EQ(display(), "-5");
}

TEST_F(CalcTest, MinusAfterAnOperatorStartsANegativeNumber) {
  keys("5 X -");
  EXPECT_EQ(display(), "-");
  keys("2");
  EXPECT_EQ(display(), "-2");
  keys("=");
  EXPECT_EQ(display(), "-10");
}

TEST_F(CalcTest, SecondEqualRepeatsNothing) {
  keys("2 + 3 =");
  EXPECT_EQ(display(), "5");
  keys("=");
  EXPECT_EQ(display(), "5");
  keys("=");
  EXPECT_EQ(display(), "5");
}

TEST_F(CalcTest, PowerBindsFirst) {
  keys("2 ^ 3 X");
  EXPECT_EQ(display(), "8");
  keys("4 =");
  EXPECT_EQ(display(), "32");
}

TEST_F(CalcTest, ParenthesesAndTheRefusedEqual) {
  keys("( 1 + 2");
  EXPECT_EQ(c("txtKwal").Text, "1");
  EXPECT_FALSE(c("Operator", 2).Enabled);
  EXPECT_TRUE(c("cmdCloseP").Enabled);
  calc->Operator(2);  // the keyboard reaches the routine even with the key grey
  ASSERT_EQ(boxTexts().size(), 1u);
  EXPECT_EQ(host.boxes[0].text, "   ' ( ' is still open !! ");
  EXPECT_EQ(host.boxes[0].flags, 48);
  EXPECT_EQ(host.boxes[0].title, " Vantor Calc");
  EXPECT_EQ(display(), "2");
  keys(")");
  EXPECT_EQ(display(), "3");
  EXPECT_EQ(displayColour(), kGreen);
  EXPECT_EQ(c("txtKwal").Text, "0");
  EXPECT_FALSE(c("cmdCloseP").Enabled);
  EXPECT_TRUE(c("Operator", 2).Enabled);
  keys("X 3 =");
  EXPECT_EQ(display(), "9");
}

TEST_F(CalcTest, ThirtyThreeLevelsAndNoMore) {
  for (int i = 0; i < 33; ++i) calc->cmdOpenP();
  EXPECT_EQ(c("txtKwal").Text, "33");
  EXPECT_TRUE(host.boxes.empty());
  calc->cmdOpenP();
  ASSERT_EQ(host.boxes.size(), 1u);
  EXPECT_EQ(host.boxes[0].text,
            "  ' ( ) ' is opend 33 times already. Sorry for Maximum 33 times only.");
  EXPECT_EQ(c("txtKwal").Text, "33");
  EXPECT_EQ(calc->nLevel, 33);
}

TEST_F(CalcTest, PointOnePlusPointTwo) {
  keys(". 1 + . 2 =");
  EXPECT_EQ(display(), "0.3");
}

TEST_F(CalcTest, HugeProductIsRefusedAndClearsTheChain) {
  keys("1 exp 3 0 8 X 1 exp 3 0 8 =");
  EXPECT_EQ(boxTexts(), std::vector<std::string>{"Sorry, Not Available !! "});
  EXPECT_EQ(display(), "0");
  EXPECT_TRUE(calc->ErrFlag);
}

TEST_F(CalcTest, HugeTimesSmallIsTaken) {
  keys("1 exp 3 0 8 X . 1 =");
  EXPECT_TRUE(host.boxes.empty());
  EXPECT_EQ(display(), "1E+307");
}

TEST_F(CalcTest, PercentAddsAShareAndNarrowsTheForm) {
  keys("2 0 0 + 1 0 %");
  EXPECT_EQ(display(), "20");
  EXPECT_EQ(calc->Width, 7515);
  EXPECT_FALSE(c("Percent").Enabled);
  keys("=");
  EXPECT_EQ(display(), "220");
  EXPECT_EQ(calc->Width, 7515);
  keys("CA");
  EXPECT_EQ(calc->Width, 11640);
  EXPECT_TRUE(c("Percent").Enabled);
}

TEST_F(CalcTest, DivisionByZero) {
  keys("5 / 0 =");
  EXPECT_EQ(boxTexts(), std::vector<std::string>{"Can't divide by zero"});
  EXPECT_EQ(display(), "0");
}

TEST_F(CalcTest, DivisionByZeroInsideParentheses) {
  keys("( 5 / 0 )");
  EXPECT_EQ(boxTexts(), std::vector<std::string>{"Can not divide by zero . "});
  EXPECT_EQ(display(), "0");
  EXPECT_EQ(calc->nLevel, 0);
}

TEST_F(CalcTest, TwoOperandFunctions) {
  keys("5 nCr 2 =");
  EXPECT_EQ(display(), "10");
  keys("5 nCr 5 =");
  EXPECT_EQ(display(), "1");
  keys("5 nPr 2 =");
  EXPECT_EQ(display(), "20");
  keys("0 ^ 0 =");
  EXPECT_EQ(display(), "1");
  keys("8 +/- root 3 =");
  EXPECT_EQ(display(), "-2");
  keys("8 LogxY 2 =");
  EXPECT_EQ(display(), "0.333333333333333");
  keys("5 to 1 2 =");
  EXPECT_EQ(display(), "13");
  keys("5 from 3 =");
  EXPECT_EQ(display(), "4");
  keys("3 from 5 =");
  EXPECT_EQ(display(), "4");
  EXPECT_TRUE(host.boxes.empty());
}

TEST_F(CalcTest, TwoOperandRefusals) {
  keys("5 nCr 6 =");
  keys("2 . 5 nCr");
  keys("2 ^ 1 0 2 4 =");
  keys("8 +/- root 2 =");
  EXPECT_EQ(boxTexts(),
            (std::vector<std::string>{" Not Available !!! ", " Not Available !!! ",
                                      "Sorry, Not Available !! ",
                                      " Not Available, Non-integer power of negative(minus) "
                                      "number !! "}));
}

TEST_F(CalcTest, LogBaseOneIsTakenBack) {
  keys("1");
  calc->Operator(8);
  EXPECT_EQ(boxTexts(), std::vector<std::string>{" x>0,  x<>1   Sorry, Not Available !! "});
  EXPECT_EQ(display(), "1");
  EXPECT_TRUE(calc->ErrFlag);
  keys("+ 2 =");
  EXPECT_EQ(display(), "3");
}

TEST_F(CalcTest, TranscriptAndHistory) {
  keys("2 + 3 X 4 =");
  // Each operator writes blank, caption, blank and each number a blank
  // before it, so the numbers after the first stand two blanks off.
  EXPECT_EQ(calc->FormulaText, " 2 +  3 X  4 = ");
  EXPECT_EQ(c("lblFormula").Caption, " 2 +  3 X  4 = ");
  EXPECT_EQ(calc->HistText[1], " 2 +  3 X  4 = ");
  EXPECT_EQ(calc->HistValue[1], Value(14));
}

TEST_F(CalcTest, BareResultIsNotSaved) {
  keys("5 =");
  EXPECT_EQ(calc->HistText[1], "");
}

TEST_F(CalcTest, ColourRowsStepAfterTheFirstCalculation) {
  EXPECT_EQ(calc->nColor, 3);
  keys("2 + 3 =");
  EXPECT_EQ(calc->nColor, 3);
  keys("4");
  EXPECT_EQ(calc->nColor, 4);
  EXPECT_EQ(c("Readout").BackColor, 0xBBFFBB);
  EXPECT_EQ(calc->BackColor, 0x88FF88);
  for (int i = 0; i < 3; ++i) keys("CA");
  EXPECT_EQ(calc->nColor, 7);
  keys("CA");
  EXPECT_EQ(calc->nColor, 1);
}

TEST_F(CalcTest, KeyboardTyping) {
  type("2+3x4=");
  EXPECT_EQ(display(), "14");
  EXPECT_EQ(displayColour(), kGreen);
  EXPECT_EQ(app.focused(), &c("Operator", 0));
}

TEST_F(CalcTest, KeyboardLettersRouteAsTheMapSays) {
  type("12");
  type("d");  // D is Back, not Del
  EXPECT_EQ(display(), "1");
  type("s");
  EXPECT_EQ(display(), "-1");
  type("n");
  EXPECT_EQ(display(), "0");
  type("p");
  EXPECT_EQ(display(), "3.14159265358979");
}

}  // namespace tessaron::test

#include <vector>

#include "calc_fixture.h"

namespace tessaron::test {

TEST_F(CalcTest, StartState) {
  EXPECT_EQ(display(), "0");
  EXPECT_EQ(calc->Width, 11640);
  EXPECT_EQ(calc->Height, 6060);
  EXPECT_EQ(calc->Top, 1920);
  EXPECT_EQ(c("cmdTvalue").Caption, " T=1");
  EXPECT_FALSE(calc->ErrFlag);
  EXPECT_EQ(calc->KeyCount, 3);
  EXPECT_TRUE(calc->KeyLog);
  EXPECT_EQ(c("Readout").BackColor, 0x99FFFF);
  EXPECT_FALSE(c("cmdBack").Enabled);
  EXPECT_FALSE(c("cmdCloseP").Enabled);
  EXPECT_EQ(c("Cancel").ToolTipText, " Clear All, except Memories / Previous Works ");
}

TEST_F(CalcTest, LeadingZerosAndSignedZero) {
  keys("0 0 5");
  EXPECT_EQ(display(), "5");
  keys("CA +/-");
  EXPECT_EQ(display(), "-0");
  keys("7");
  EXPECT_EQ(display(), "-7");
}

TEST_F(CalcTest, CommasWhileTyping) {
  keys("1 2 3 4");
  EXPECT_EQ(display(), "1,234");
  keys("5");
  EXPECT_EQ(display(), "12,345");
  keys(". 5");
  EXPECT_EQ(display(), "12,345.5");
  // The groups typed before the point stay; none are added after it.
  keys("CA 1 2 3 4 . 5 6 7 8");
  EXPECT_EQ(display(), "1,234.5678");
  keys("+ 1 0 0 0 . 5");
  EXPECT_EQ(display(), "1,000.5");
  keys("=");
  EXPECT_EQ(display(), "2,235.0678");
}

TEST_F(CalcTest, DigitAfterResultOrParenthesisIsRefused) {
  keys("Pi 5");
  EXPECT_EQ(boxTexts(),
            std::vector<std::string>{" Need Operating Sign or . . . after Functions or Memories."});
  EXPECT_EQ(display(), "3.14159265358979");
  host.boxes.clear();
  keys("CA ( 2 ) 5");
  EXPECT_EQ(boxTexts(), std::vector<std::string>{" Need Operating Sign or . . . after (  )."});
  EXPECT_EQ(display(), "2");
  keys("CA 2 + 3 = 7");
  EXPECT_EQ(display(), "7");
}

TEST_F(CalcTest, ExponentLimit) {
  keys("1 . 5 exp");
  EXPECT_EQ(display(), "1.5E+0");
  EXPECT_FALSE(c("cmdExp").Enabled);
  EXPECT_FALSE(c("cmdDeci").Enabled);
  keys("3 0 8");
  EXPECT_EQ(display(), "1.5E+308");
  EXPECT_TRUE(host.boxes.empty());
  keys("1");
  EXPECT_EQ(boxTexts(), std::vector<std::string>{" Sorry, Over Limit of this Calculator. "});
  EXPECT_EQ(display(), "1.5E+308");
}

TEST_F(CalcTest, ExpOnZeroResets) {
  keys("2 + exp");
  EXPECT_EQ(display(), "2");
  keys("CA exp");
  EXPECT_EQ(display(), "0");
  EXPECT_FALSE(calc->bExp);
}

TEST_F(CalcTest, SignTwiceWhileRecording) {
  keys("5 +/-");
  EXPECT_EQ(display(), "-5");
  const int count = calc->KeyCount;
  keys("+/-");
  EXPECT_EQ(display(), "-5");
  EXPECT_EQ(calc->KeyCount, count);
  EXPECT_EQ(calc->KeyOrder[count - 1], 12);
}

TEST_F(CalcTest, BackWithOneKey) {
  keys("7");
  EXPECT_TRUE(c("cmdBack").Enabled);
  keys("Back");
  EXPECT_EQ(display(), "0");
  EXPECT_FALSE(c("cmdBack").Enabled);
}

TEST_F(CalcTest, BackReplaysTheChain) {
  keys("2 + 3 X 4");
  keys("Back");
  EXPECT_EQ(display(), "3");
  keys("5 =");
  EXPECT_EQ(display(), "17");
}

// The kept keys record themselves again as Back presses them, so the record
// after Back is the record before the undone key, and a Sign that followed a
// digit still acts.
TEST_F(CalcTest, BackRebuildsTheRecord) {
  keys("5 +/- 3");
  EXPECT_EQ(display(), "-53");
  const std::vector<int> before(calc->KeyOrder.begin(), calc->KeyOrder.begin() + calc->KeyCount);
  keys("Back");
  EXPECT_EQ(display(), "-5");
  ASSERT_EQ(calc->KeyCount, static_cast<int>(before.size()) - 1);
  for (int i = 0; i < calc->KeyCount; ++i) EXPECT_EQ(calc->KeyOrder[i], before[i]) << i;
  keys("Back");
  EXPECT_EQ(display(), "5");
  keys("Back");
  EXPECT_EQ(display(), "0");
  EXPECT_FALSE(c("cmdBack").Enabled);
  // "2 (" is kept as 2, X, ( and comes back the same.
  keys("CA 2 ( 3 + 1 Back");
  EXPECT_EQ(display(), "3");
  EXPECT_EQ(c("txtKwal").Text, "1");
  keys("2 ) =");
  EXPECT_EQ(display(), "10");
}

TEST_F(CalcTest, DeleteDigits) {
  // Only the last character goes; the commas stay where typing put them,
  // and the value reads past them.
  keys("1 2 3 4 5 Del");
  EXPECT_EQ(display(), "12,34");
  keys("Del");
  EXPECT_EQ(display(), "12,3");
  keys("4");
  EXPECT_EQ(display(), "1,234");
  keys("Del + 1 =");
  EXPECT_EQ(display(), "124");
  keys("CA 5 +/- Del");
  EXPECT_EQ(display(), "0");
  keys("CA 2 . Del");
  EXPECT_EQ(display(), "2");
  EXPECT_TRUE(c("cmdDeci").Enabled);
}

TEST_F(CalcTest, ClearEntryKeepsTheChain) {
  keys("2 + 9 CE");
  EXPECT_EQ(display(), "0");
  EXPECT_FALSE(c("CancelEntry").Enabled);
  keys("3 =");
  EXPECT_EQ(display(), "5");
}

TEST_F(CalcTest, FractionSwapsTheNumberViews) {
  keys("1 . 5");
  EXPECT_TRUE(c("cmdFract").Enabled);
  EXPECT_FALSE(c("cmdOctal").Visible);
  EXPECT_FALSE(c("nFac").Enabled);
  keys("CA 7");
  EXPECT_TRUE(c("cmdOctal").Visible);
  EXPECT_TRUE(c("cmdOctal").Enabled);
  EXPECT_TRUE(c("nFac").Enabled);
  EXPECT_FALSE(c("cmdFract").Enabled);
}

TEST_F(CalcTest, PubShowBoundaries) {
  auto& r = c("Readout");
  calc->PubShow(r, Value(999999999999999.0));
  EXPECT_EQ(r.Caption, "999999999999999");
  calc->PubReadComma();
  // The point of the mask shows even with no digit after it.
  EXPECT_EQ(r.Caption, "999,999,999,999,999.");
  calc->PubShow(r, Value(1234567890123456.0));
  EXPECT_EQ(r.Caption, "1.23456789012346E+15");
  calc->PubReadComma();
  EXPECT_EQ(r.Caption, "1.23456789012346E+15");
  calc->PubShow(r, Value(1e15));
  EXPECT_EQ(r.Caption, "1E+15");
  calc->PubShow(r, Value(0.0001));
  EXPECT_EQ(r.Caption, "0.0001");
  calc->PubShow(r, Value(0.00009));
  EXPECT_EQ(r.Caption, "9E-05");
  calc->PubShow(r, Value("1.5E+300"));
  EXPECT_EQ(r.Caption, "1.5E+300");
  calc->PubShow(r, Value(-0.5));
  EXPECT_EQ(r.Caption, "-0.5");
  calc->PubShow(r, Value(""));
  EXPECT_EQ(r.Caption, "0");
}

TEST_F(CalcTest, PubOpxRounding) {
  // 0.30000000000000004 cut at the 16th place rounds half up to
  // 0.3000000000000001, which reads 0.3 in fifteen digits.
  EXPECT_EQ(CStr(calc->PubOPX('+', Value(0.1), Value(0.2))), "0.3");
  EXPECT_EQ(calc->PubOPX('+', Value(0.1), Value(0.2)).number(), 0.3000000000000001);
  // 1.1 - 1 is 0.10000000000000009 in binary; cut at the 15th place.
  EXPECT_EQ(calc->PubOPX('-', Value(1.1), Value(1)).number(), 0.1);
  EXPECT_EQ(calc->PubOPX('-', Value(0.3), Value(0.1)).number(), 0.2);
  // Negative sums round half up on the value: -0.1 - 0.2 is -0.3.
  EXPECT_EQ(calc->PubOPX('-', Value(-0.1), Value(0.2)).number(), -0.3);
  EXPECT_EQ(calc->PubOPX('+', Value(-5), Value(2)).number(), -3);
  EXPECT_EQ(calc->PubOPX('=', Value(1), Value()).number(), 0);
  EXPECT_EQ(calc->PubOPX('X', Value(0), Value(1e300)).number(), 0);
  EXPECT_EQ(calc->PubOPX('%', Value(200), Value(0.1)).number(), 20);
}

TEST_F(CalcTest, RefusalsAtTheLimit) {
  // 1E+154 X 1E+154 is 10^308: below 308.2, taken.
  EXPECT_EQ(calc->PubOPX('X', Value(1e154), Value(1e154)).number(), 1e308);
  EXPECT_TRUE(host.boxes.empty());
  // 10^308.3 as a product of two magnitudes above 1: refused.
  EXPECT_EQ(calc->PubOPX('X', Value(2e154), Value(1e154)).kind(), Kind::Empty);
  EXPECT_EQ(boxTexts(), std::vector<std::string>{"Sorry, Not Available !! "});
  host.boxes.clear();
  EXPECT_EQ(calc->PubOPX('/', Value(1e300), Value(1e-9)).kind(), Kind::Empty);
  EXPECT_EQ(boxTexts(), std::vector<std::string>{"Sorry, Not Available !! "});
  host.boxes.clear();
  EXPECT_EQ(calc->PubOPX('/', Value(1e300), Value(1e-8)).number(), 1e308);
  EXPECT_EQ(calc->PubOPX('/', Value(1e-300), Value(1e300)).number(), 0.0);
  EXPECT_TRUE(host.boxes.empty());
}

// Words on the display (an infinity) are no value: the keys of whole numbers
// fall to the first row of the rule, the views to their plain places.
TEST_F(CalcTest, WordsOnTheDisplayTakeTheFirstRow) {
  keys("5");
  ASSERT_TRUE(c("nFac").Enabled);
  c("Readout").Caption = " + - infinity ";
  calc->pubEnableD();
  EXPECT_FALSE(c("nFac").Enabled);
  EXPECT_FALSE(c("Operator", 5).Enabled);
  EXPECT_FALSE(c("Operator", 6).Enabled);
  EXPECT_FALSE(c("cmdFract").Enabled);
  EXPECT_TRUE(c("cmdOctal").Visible);
  calc->pubEnableA();
  EXPECT_TRUE(c("nFac").Enabled);
  EXPECT_FALSE(c("cmdExp").Enabled);
}

TEST_F(CalcTest, TheHelpPageIsCarriedOnTheForm) {
  EXPECT_EQ(c("oleHelp").kind(), ControlKind::OlePackage);
  EXPECT_EQ(c("oleHelp").design().picture, ":/help/Help.html");
  EXPECT_TRUE(c("oleHelp").shown());
}
}  // namespace tessaron::test

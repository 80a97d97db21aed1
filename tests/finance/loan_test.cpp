// The loan form as a user works it: the rate, the term, the two directions,
// the interest-only view and the refusals.
#include "tests/finance/loan_fixture.h"

namespace tessaron::test {
namespace {

using Loan = LoanFixture;

TEST_F(Loan, LoadsBelowTheMenuWithTenPercentOverThreeYears) {
  EXPECT_EQ(loan().Top, app.form("frmMain").Height + 360);
  EXPECT_EQ(loan().Caption,
            "  Loan                                                                      대 출 ");
  EXPECT_EQ(text("txtRate"), " 10.00");
  EXPECT_EQ(bar("scrRate"), 2000);
  EXPECT_EQ(caption("lblYears"), "3");
  EXPECT_EQ(caption("lblMonth"), "0");
  EXPECT_EQ(loan().Months, Value(36));
  EXPECT_EQ(caption("lblAAA"), "Base");
  EXPECT_EQ(caption("lblPPP"), "Base");
  EXPECT_EQ(loan().Mask.str(), "###,###,###,###,##0.##");
  // Load's term routine writes the caption with its own spacing.
  EXPECT_EQ(caption("cmdAmor"), "  Go to   No   Amor.");
  EXPECT_EQ(c("cmdPrintF").ToolTipText, " Clear inputted data ");
  EXPECT_EQ(c("lblPPP").ToolTipText, " To calculate based on Monthly payment ");
  EXPECT_EQ(caption("lblAmor"),
            "    Interest Only,                                  No Amortizing ");
}

TEST_F(Loan, TotalIsBuiltFromTheCentRoundedPayment) {
  type("txtRate", "7");
  scroll("scrYear", 30);
  ASSERT_EQ(loan().Months, Value(360));
  amount("100000");
  EXPECT_EQ(caption("lblAAA"), "Base");
  EXPECT_EQ(caption("lblPPP"), "");
  // 665.3024951...: 360 payments of 665.30 make 239,508.
  EXPECT_EQ(text("txtPay"), "665.3");
  EXPECT_EQ(caption("lblSum"), "239,508.");
  EXPECT_EQ(text("txtAmount"), "100,000.");
}

TEST_F(Loan, DueDateRecalculatesAtOnce) {
  type("txtRate", "7");
  scroll("scrYear", 30);
  amount("100000");
  click("optFirst");
  // Paid a month earlier: 665.30249... / (1 + 0.07 / 12) = 661.44407...
  EXPECT_EQ(text("txtPay"), "661.44");
  EXPECT_EQ(caption("lblSum"), "238,118.4");
  click("optEnd");
  EXPECT_EQ(text("txtPay"), "665.3");
}

TEST_F(Loan, RateZeroBothWays) {
  type("txtRate", "0");
  click("cmdCalculate");
  EXPECT_EQ(text("txtRate"), "0.00");
  EXPECT_EQ(bar("scrRate"), 10);  // the bar stops at 10, the rate stays 0
  scroll("scrYear", 1);
  amount("1200");
  EXPECT_EQ(text("txtPay"), "100.");
  EXPECT_EQ(caption("lblSum"), "1,200.");
  scroll("scrYear", 3);
  payment("100");
  EXPECT_EQ(text("txtAmount"), "3,600.");
  EXPECT_EQ(caption("lblSum"), "3,600.");
}

TEST_F(Loan, InterestOnlyFromTheAmount) {
  click("cmdAmor");
  EXPECT_TRUE(c("frameAmor").Visible);
  EXPECT_EQ(caption("cmdAmor"), "Return to  Amor.");
  EXPECT_EQ(c("cmdAmor").ToolTipText, " Return to Amortizing ");
  EXPECT_FALSE(c("cmdDetails").Enabled);
  EXPECT_FALSE(c("lblSum").Visible);
  EXPECT_TRUE(c("txtSome").Visible);
  amount("120000");
  // 120000 * 0.1 / 12, and 31/30 of it.
  EXPECT_EQ(text("txtPay"), "1,000.");
  EXPECT_EQ(text("txtSome"), "1,033.33");
  EXPECT_EQ(caption("lblSum"), "  ");
  click("optFirst");
  // 1000 / (1 + 0.1 / 12) = 120000 / 121; 31/30 of it is 124000 / 121.
  EXPECT_EQ(text("txtPay"), "991.74");
  EXPECT_EQ(text("txtSome"), "1,024.79");
}

TEST_F(Loan, InterestOnlyFromThePayment) {
  click("cmdAmor");
  payment("1000");
  EXPECT_EQ(text("txtAmount"), "120,000.");
  EXPECT_EQ(text("txtSome"), "1,033.33");
  click("optFirst");
  // 1000 * (1 + 0.1 / 12) / 0.1 * 12.
  EXPECT_EQ(text("txtAmount"), "121,000.");
}

TEST_F(Loan, InterestOnlyAtRateZeroIsNotApplied) {
  type("txtRate", "0");
  click("cmdAmor");
  payment("500");
  EXPECT_EQ(text("txtAmount"), " not applied ");
  EXPECT_EQ(caption("lblSum"), " not applied ");
  EXPECT_EQ(loan().Amount, Value(0));
  EXPECT_EQ(loan().TotalPaid, Value(0));
}

TEST_F(Loan, AnyTermChangeLeavesTheInterestOnlyView) {
  click("cmdAmor");
  scroll("scrYear", 5);
  EXPECT_FALSE(c("frameAmor").Visible);
  EXPECT_TRUE(c("cmdDetails").Enabled);
  EXPECT_EQ(caption("cmdAmor"), "  Go to   No   Amor.");
  EXPECT_EQ(c("cmdAmor").ToolTipText, " Calculate without Amortizing ");
  click("cmdAmor");
  scroll("scrMonth", 7);
  EXPECT_FALSE(c("frameAmor").Visible);
  click("cmdAmor");
  click("cmdAmor");
  EXPECT_EQ(caption("cmdAmor"), "  Go to  No  Amor.");
}

TEST_F(Loan, StepDownFromFourYearsSevenMonthsKeepsFourYears) {
  scroll("scrMonth", 55);
  EXPECT_EQ(caption("lblYears"), "4");
  EXPECT_EQ(caption("lblMonth"), "7");
  EXPECT_EQ(bar("scrYear"), 4);
  scroll("scrYear", 3);
  EXPECT_EQ(caption("lblYears"), "4");
  EXPECT_EQ(caption("lblMonth"), "0");
  EXPECT_EQ(bar("scrYear"), 4);
  EXPECT_EQ(bar("scrMonth"), 48);
  EXPECT_EQ(loan().Months, Value(48));
  // From whole years the same step takes a year off.
  scroll("scrYear", 3);
  EXPECT_EQ(loan().Months, Value(36));
  EXPECT_EQ(caption("lblYears"), "3");
}

TEST_F(Loan, TermBarsTurnTheirExtraStepsBack) {
  scroll("scrYear", -1);
  EXPECT_EQ(bar("scrYear"), 0);
  EXPECT_EQ(loan().Months, Value(1));
  EXPECT_EQ(caption("lblYears"), "0");
  EXPECT_EQ(caption("lblMonth"), "1");
  EXPECT_EQ(bar("scrMonth"), 1);
  scroll("scrYear", 51);
  EXPECT_EQ(bar("scrYear"), 50);
  EXPECT_EQ(loan().Months, Value(600));
  scroll("scrMonth", 0);
  EXPECT_EQ(bar("scrMonth"), 1);
  EXPECT_EQ(loan().Months, Value(1));
  scroll("scrMonth", 601);
  EXPECT_EQ(bar("scrMonth"), 600);
  EXPECT_EQ(caption("lblYears"), "50");
  EXPECT_EQ(caption("lblMonth"), "0");
}

TEST_F(Loan, FortyNineYearsElevenMonthsAtTheTop) {
  scroll("scrMonth", 599);
  EXPECT_EQ(bar("scrYear"), 49);
  EXPECT_EQ(caption("lblYears"), "49");
  EXPECT_EQ(caption("lblMonth"), "11");
  scroll("scrYear", 50);
  EXPECT_EQ(loan().Months, Value(600));
  scroll("scrMonth", 599);
  // Down from 49 years 11 months: the rest months go first.
  scroll("scrYear", 48);
  EXPECT_EQ(bar("scrYear"), 49);
  EXPECT_EQ(loan().Months, Value(588));
}

TEST_F(Loan, RateOneHundredFiftyIsTheLimit) {
  type("txtRate", "150");
  click("cmdCalculate");
  EXPECT_EQ(text("txtRate"), "150.00");
  EXPECT_EQ(bar("scrRate"), 5999);
  EXPECT_EQ(loan().AnnualRate, Value(1.5));
  EXPECT_TRUE(host.boxes.empty());
  type("txtRate", "150.001");
  click("cmdCalculate");
  ASSERT_EQ(host.boxes.size(), 1u);
  EXPECT_EQ(host.boxes[0].text, " 0  -  150 %  here !  ");
  EXPECT_EQ(host.boxes[0].flags, 48);
  EXPECT_EQ(host.boxes[0].title, "Tessaron");
  EXPECT_EQ(app.focused(), &c("txtRate"));
  // The guard of the calculation that follows takes the rate from the bar.
  EXPECT_EQ(text("txtRate"), " 29.995");
  EXPECT_EQ(loan().AnnualRate, Value(0.29995));
}

TEST_F(Loan, RateBarBelowTenIsZero) {
  scroll("scrRate", 9);
  EXPECT_EQ(text("txtRate"), " 0.00");
  EXPECT_EQ(loan().AnnualRate, Value(0));
  scroll("scrRate", 10);
  EXPECT_EQ(text("txtRate"), " 0.05");
  scroll("scrRate", 5999);
  EXPECT_EQ(text("txtRate"), " 29.995");
}

TEST_F(Loan, EmptyRateComesBackFromTheBar) {
  type("txtRate", "");
  click("cmdCalculate");
  EXPECT_EQ(text("txtRate"), " 10.00");
  EXPECT_TRUE(host.boxes.empty());
}

TEST_F(Loan, NonNumericRateIsRefused) {
  type("txtRate", "abc");
  click("cmdCalculate");
  ASSERT_EQ(host.boxes.size(), 1u);
  EXPECT_EQ(host.boxes[0].text, "Must be Numeric Value");
  EXPECT_EQ(host.boxes[0].title, "Tessaron");
  EXPECT_EQ(text("txtRate"), "");
  EXPECT_EQ(app.focused(), &c("txtRate"));
  EXPECT_EQ(loan().AnnualRate, Value(0.1));
}

TEST_F(Loan, AmountBoxRefusesTextAndNegatives) {
  type("txtAmount", "12a");
  click("cmdCalculate");
  ASSERT_EQ(host.boxes.size(), 1u);
  EXPECT_EQ(host.boxes[0].text, " Please Enter Numbers Only ! ");
  EXPECT_EQ(host.boxes[0].flags, 48);
  EXPECT_EQ(host.boxes[0].title, "Tessaron");
  EXPECT_EQ(text("txtAmount"), "");
  EXPECT_EQ(app.focused(), &c("txtAmount"));
  type("txtAmount", "-5");
  click("cmdCalculate");
  ASSERT_EQ(host.boxes.size(), 2u);
  EXPECT_EQ(host.boxes[1].text, " Please Enter Positive Number ! ");
  EXPECT_EQ(text("txtAmount"), "");
  EXPECT_EQ(loan().Amount, Value(0));
  EXPECT_EQ(text("txtPay"), "");
}

TEST_F(Loan, AmountBoxTakesGroupedTextAndBlank) {
  type("txtAmount", "1,234.5");
  EXPECT_EQ(c("txtAmount").ForeColor, 0xFF0000);
  click("cmdCalculate");
  EXPECT_EQ(text("txtAmount"), "1,234.5");
  EXPECT_EQ(c("txtAmount").ForeColor, 0);
  type("txtAmount", "");
  click("cmdCalculate");
  EXPECT_EQ(text("txtAmount"), "0.");
  EXPECT_EQ(text("txtPay"), "");
}

TEST_F(Loan, EnteringABoxClearsBothAmounts) {
  amount("1000");
  ASSERT_NE(text("txtPay"), "");
  app.focus(c("txtPay"));
  EXPECT_EQ(text("txtAmount"), "");
  EXPECT_EQ(text("txtPay"), "");
  EXPECT_EQ(loan().Amount, Value(0));
  EXPECT_EQ(caption("lblAAA"), "");
  EXPECT_EQ(caption("lblPPP"), "Base");
}

TEST_F(Loan, LabelsGiveTheirBoxTheFocus) {
  click("lblAmount");
  EXPECT_EQ(app.focused(), &c("txtAmount"));
  click("lblPPP");
  EXPECT_EQ(app.focused(), &c("txtPay"));
  click("lblRate");
  EXPECT_EQ(app.focused(), &c("txtRate"));
  click("lblAAA");
  EXPECT_EQ(app.focused(), &c("txtAmount"));
  click("lblPayment");
  EXPECT_EQ(app.focused(), &c("txtPay"));
}

TEST_F(Loan, EnterWalksToCalculate) {
  type("txtRate", "12");
  enter("txtRate");
  EXPECT_EQ(app.focused(), &c("scrYear"));
  EXPECT_EQ(text("txtRate"), "12.00");
  type("txtAmount", "1000");
  enter("txtAmount");
  EXPECT_EQ(app.focused(), &c("cmdCalculate"));
  // 1000 at 1 % a month over 36 months.
  EXPECT_EQ(text("txtPay"), "33.21");
  type("txtPay", "33.21");
  enter("txtPay");
  EXPECT_EQ(app.focused(), &c("cmdCalculate"));
  // 33.21 * (1 - 1.01^-36) / 0.01 = 999.87...
  EXPECT_EQ(text("txtAmount"), "999.87");
}

TEST_F(Loan, RateFocusEmptiesTheSum) {
  amount("1000");
  ASSERT_NE(caption("lblSum"), "");
  app.focus(c("txtRate"));
  EXPECT_EQ(text("txtRate"), "");
  EXPECT_EQ(caption("lblSum"), "");
}

TEST_F(Loan, ClearKeepsRateAndTerm) {
  type("txtRate", "5");
  scroll("scrYear", 10);
  amount("5000");
  click("cmdClear");
  EXPECT_EQ(text("txtAmount"), "");
  EXPECT_EQ(text("txtPay"), "");
  EXPECT_EQ(caption("lblAAA"), "Base");
  EXPECT_EQ(caption("lblPPP"), "Base");
  EXPECT_EQ(text("txtRate"), "5.00");
  EXPECT_EQ(loan().Months, Value(120));
}

TEST_F(Loan, ExitUnloadsAndTheNextUseStartsAfresh) {
  type("txtRate", "5");
  amount("5000");
  click("cmdExit");
  EXPECT_EQ(app.loaded("frmLoan"), nullptr);
  app.show(app.form("frmLoan"));
  EXPECT_EQ(text("txtRate"), " 10.00");
  EXPECT_EQ(text("txtAmount"), "");
}

}  // namespace
}  // namespace tessaron::test

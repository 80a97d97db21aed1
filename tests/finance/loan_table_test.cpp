// The amortization table: the grid, its column widths and the two printouts.
#include "tests/finance/loan_fixture.h"

namespace tessaron::test {
namespace {

using LoanTable = LoanFixture;

std::vector<int> Widths(const Grid& g) {
  std::vector<int> w;
  for (int c = 0; c < g.Cols(); ++c) w.push_back(g.ColWidth(c));
  return w;
}

TEST_F(LoanTable, OneMonthIsTwoRows) {
  type("txtRate", "0");
  scroll("scrYear", -1);
  ASSERT_EQ(loan().Months, Value(1));
  amount("1200");
  click("cmdDetails");
  EXPECT_TRUE(c("frameDet").Visible);
  EXPECT_FALSE(c("Frame1").Visible);
  EXPECT_FALSE(c("Frame2").Visible);
  EXPECT_FALSE(c("Frame3").Visible);
  EXPECT_EQ(app.focused(), &c("cmdReturn"));
  const Grid& g = c("Table").grid();
  EXPECT_EQ(g.Rows(), 2);
  EXPECT_EQ(g.RowHeight(0), 400);
  const char* header[] = {"Period",          "Principal",      "Interest",
                          "Sum of Interest", "Principal Paid", "Balance"};
  for (int col = 0; col < 6; ++col) EXPECT_EQ(cell(0, col), header[col]);
  const char* row[] = {"1", "1,200.00", ".00", ".00", "1,200.00", ".00"};
  for (int col = 0; col < 6; ++col) EXPECT_EQ(cell(1, col), row[col]);
  click("cmdReturn");
  EXPECT_FALSE(c("frameDet").Visible);
  EXPECT_TRUE(c("Frame1").Visible);
}

TEST_F(LoanTable, TwoMonthsAtTwelvePercentPaidAtTheEnd) {
  type("txtRate", "12");
  scroll("scrMonth", 2);
  amount("1200");
  // r = 0.01: payment 1200 * 1.0201 * 0.01 / 0.0201 = 609.0149...; the first
  // month's interest is 12, the second's 1 % of the balance 602.985...
  EXPECT_EQ(text("txtPay"), "609.01");
  click("cmdDetails");
  const char* rows[2][6] = {{"1", "597.01", "12.00", "12.00", "597.01", "602.99"},
                            {"2", "602.99", "6.03", "18.03", "1,200.00", ".00"}};
  for (int i = 0; i < 2; ++i)
    for (int col = 0; col < 6; ++col) EXPECT_EQ(cell(i + 1, col), rows[i][col]);
}

TEST_F(LoanTable, TwoMonthsAtTwelvePercentPaidAtTheFirst) {
  type("txtRate", "12");
  scroll("scrMonth", 2);
  click("optFirst");
  amount("1200");
  // The payment is 609.0149... / 1.01 = 602.985...; the first payment
  // carries a month's interest on itself: principal 609.0149 - 12.
  EXPECT_EQ(text("txtPay"), "602.99");
  click("cmdDetails");
  const char* rows[2][6] = {{"1", "597.01", "5.97", "5.97", "597.01", "602.99"},
                            {"2", "602.99", ".00", "5.97", "1,200.00", ".00"}};
  for (int i = 0; i < 2; ++i)
    for (int col = 0; col < 6; ++col) EXPECT_EQ(cell(i + 1, col), rows[i][col]);
}

TEST_F(LoanTable, ColumnsWidenAboveAMillion) {
  const std::pair<const char*, std::vector<int>> cases[] = {
      {"1000000", {700, 1000, 1000, 1250, 1250, 1250}},
      {"1000000.01", {700, 1400, 1400, 1650, 1650, 1650}},
      {"10000000000", {700, 1400, 1400, 1650, 1650, 1650}},
      {"10000000000.01", {700, 1700, 1700, 1950, 1950, 1950}},
      {"1000000000000", {700, 1700, 1700, 1950, 1950, 1950}},
      {"1000000000000.01", {700, 1800, 1800, 2050, 2050, 2050}},
  };
  for (const auto& [amt, widths] : cases) {
    SCOPED_TRACE(amt);
    amount(amt);
    click("cmdDetails");
    EXPECT_EQ(Widths(c("Table").grid()), widths);
    click("cmdReturn");
  }
}

TEST_F(LoanTable, GridFollowsTheTermEachTime) {
  amount("1000");
  click("cmdDetails");
  EXPECT_EQ(c("Table").grid().Rows(), 37);
  click("cmdReturn");
  scroll("scrMonth", 5);
  click("cmdDetails");
  EXPECT_EQ(c("Table").grid().Rows(), 6);
}

TEST_F(LoanTable, DetailsAreOffInTheInterestOnlyView) {
  click("cmdAmor");
  EXPECT_FALSE(c("cmdDetails").usable());
}

TEST_F(LoanTable, PaymentBaseLeavesABalanceOfZeroToRealPrecision) {
  type("txtRate", "10");
  scroll("scrYear", 30);
  payment("665.3");
  click("cmdDetails");
  const Grid& g = c("Table").grid();
  EXPECT_EQ(g.TextMatrix(360, 5), ".00");
  EXPECT_EQ(g.TextMatrix(360, 4), "75,811.48");
  EXPECT_LT(Abs(loan().Balance), Value(1e-6));
}

TEST_F(LoanTable, NoPrintoutWithoutAnAmount) {
  click("cmdPrintF");
  EXPECT_TRUE(host.boxes.empty());
  EXPECT_TRUE(host.jobs.empty());
}

TEST_F(LoanTable, AnsweringNoPrintsNothing) {
  amount("1000");
  host.answers.push_back(7);
  click("cmdPrintF");
  ASSERT_EQ(host.boxes.size(), 1u);
  EXPECT_EQ(host.boxes[0].text, " Print out ??? ");
  EXPECT_EQ(host.boxes[0].flags, 4);
  EXPECT_EQ(host.boxes[0].title, " Tessaron");
  EXPECT_TRUE(host.jobs.empty());
  EXPECT_EQ(text("txtPay"), "32.27");
}

// The front page of a 40-month loan: 24 rows, a blank line, the last row,
// and the pointer to the full table.
TEST_F(LoanTable, FrontSummaryShowsTwoYearsAndTheLastRow) {
  type("txtRate", "0");
  scroll("scrMonth", 40);
  amount("4000");
  click("cmdPrintF");
  ASSERT_EQ(host.jobs.size(), 1u);
  ASSERT_EQ(host.jobs[0].pages.size(), 1u);
  const std::vector<std::string>& lines = host.jobs[0].pages[0].lines;
  // Name, title, blank, amount, blank, rate, terms, due (two lines), blank,
  // payment, total, blank, header, blank, 24 rows, blank, row 40, blank, note.
  ASSERT_EQ(lines.size(), 43u);
  EXPECT_EQ(lines[0], "Tessaron");
  EXPECT_EQ(lines[1], Space(19) + "-  Loan  /  Mortgage  -   ");
  EXPECT_EQ(lines[3], Space(39) + "Loan Amount : 4,000.");
  EXPECT_EQ(lines[5], Space(9) + "Annual Rate :  0. %");
  EXPECT_EQ(lines[6], Space(9) + "Terms :  40 Months.  Amortizing");
  EXPECT_EQ(lines[7], Space(9) + "Payment due :  End of Month ");
  EXPECT_EQ(lines[8], Space(11) + " = 1st of Month with skip 1st Month = (Common)");
  EXPECT_EQ(lines[10], Space(39) + "Monthly Payment : 100.");
  EXPECT_EQ(lines[11], Space(39) + "Total  Payment : 4,000.");
  // ColWidth is Len("4,000.00") / 2 + 22 = 26; a row pads each figure to it
  // at two blanks a digit; the period is a number item, blank on each side.
  auto row = [](int i, const std::string& paid, const std::string& balance) {
    const std::string n = std::to_string(i);
    return Space(15 - 2 * static_cast<int>(n.size())) + " " + n + " " + Space(14) + "100.00" +
           Space(18) + "0.00" + Space(18) + "0.00" + Space(26 - 2 * static_cast<int>(paid.size())) +
           paid + Space(26 - 2 * static_cast<int>(balance.size())) + balance;
  };
  EXPECT_EQ(lines[13], Space(4) +
                           "Period  /         Principal     /     Interest     /    Sum of "
                           "Int.  /   Princpl Paid    /    Balance");
  EXPECT_EQ(lines[15], row(1, "100.00", "3,900.00"));
  EXPECT_EQ(lines[38], row(24, "2,400.00", "1,600.00"));
  EXPECT_EQ(lines[39], "");
  EXPECT_EQ(lines[40], row(40, "4,000.00", "0.00"));
  EXPECT_EQ(lines[41], "");
  EXPECT_EQ(lines[42], Space(10) + " * Full details: go to Detail Status");
}

}  // namespace
}  // namespace tessaron::test

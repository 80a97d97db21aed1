// The printed list's type size follows the loan: 12 points, 10 from a hundred
// billion up, under a title in 14 and the program's name in 8.
#include "tests/finance/loan_fixture.h"

namespace tessaron::test {
namespace {

using LoanPrint = LoanFixture;

// The size of the first text drawn that contains the words.
double SizeOf(const PrintJob& job, const std::string& words) {
  for (const PrintedPage& page : job.pages)
    for (const DrawOp& op : page.ops)
      if (op.kind == DrawOp::Kind::Text && op.text.find(words) != std::string::npos) return op.size;
  ADD_FAILURE() << "no text with " << words;
  return 0;
}

TEST_F(LoanPrint, FrontListTypeShrinksFromAHundredBillion) {
  type("txtRate", "0");
  scroll("scrYear", 1);
  amount("99999999999.99");
  click("cmdPrintF");
  amount("100000000000");
  click("cmdPrintF");
  ASSERT_EQ(host.jobs.size(), 2u);
  EXPECT_EQ(SizeOf(host.jobs[0], "Tessaron"), 8);
  EXPECT_EQ(SizeOf(host.jobs[0], "Loan  /  Mortgage"), 14);
  EXPECT_EQ(SizeOf(host.jobs[0], "Total  Payment"), 14);
  EXPECT_EQ(SizeOf(host.jobs[0], "Princpl Paid"), 12);
  EXPECT_EQ(SizeOf(host.jobs[1], "Loan  /  Mortgage"), 14);
  EXPECT_EQ(SizeOf(host.jobs[1], "Princpl Paid"), 10);
}

TEST_F(LoanPrint, FullListTypeShrinksFromAHundredBillion) {
  type("txtRate", "0");
  scroll("scrYear", -1);
  amount("99999999999.99");
  click("cmdDetails");
  click("cmdPrint");
  click("cmdReturn");
  amount("100000000000");
  click("cmdDetails");
  click("cmdPrint");
  ASSERT_EQ(host.jobs.size(), 2u);
  EXPECT_EQ(SizeOf(host.jobs[0], "Tessaron"), 8);
  EXPECT_EQ(SizeOf(host.jobs[0], "Princpl Paid"), 12);
  EXPECT_EQ(SizeOf(host.jobs[1], "Princpl Paid"), 10);
}

// From ten million up the list shows whole units; just below, the cents.
TEST_F(LoanPrint, CentsStopAtTenMillion) {
  type("txtRate", "0");
  scroll("scrYear", -1);
  amount("9999999.99");
  click("cmdDetails");
  click("cmdPrint");
  click("cmdReturn");
  amount("10000000");
  click("cmdDetails");
  click("cmdPrint");
  ASSERT_EQ(host.jobs.size(), 2u);
  // ColWidth is Len("9,999,999.99") / 2 + 22 = 28, then Len("10,000,000") / 2 + 22 = 27.
  const std::string below = host.jobs[0].pages[0].lines.back();
  EXPECT_EQ(below, Space(8) + " 1 " + Space(4) + "9,999,999.99" + Space(20) + "0.00" + Space(20) +
                       "0.00" + Space(4) + "9,999,999.99" + Space(20) + "0.00");
  const std::string at = host.jobs[1].pages[0].lines.back();
  EXPECT_EQ(at, Space(8) + " 1 " + Space(7) + "10,000,000" + Space(25) + "0" + Space(25) + "0" +
                    Space(7) + "10,000,000" + Space(25) + "0");
}

}  // namespace
}  // namespace tessaron::test

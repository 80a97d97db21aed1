// What the scripts can't show of the present value, savings and bond, and
// mutual financing forms: where the printouts put the name and the mark, the
// routes no box can reach, and the blank test of the mutual financing boxes.
#include <cmath>

#include "finance/bond.h"
#include "finance/gye.h"
#include "finance/present.h"
#include "tests/finance/form_fixture.h"

namespace tessaron::test {
namespace {

// The place of the small "Tessaron" on a page, and whether the mark's
// outline is drawn around (left, top).
struct Head {
  bool found = false;
  double x = 0, y = 0, size = 0;
};

Head NameOn(const PrintedPage& page) {
  for (const DrawOp& op : page.ops)
    if (op.kind == DrawOp::Kind::Text && op.text == "Tessaron")
      return {true, op.x1, op.y1, op.size};
  return {};
}

bool MarkAround(const PrintedPage& page, double left, double top) {
  int dots = 0;
  for (const DrawOp& op : page.ops)
    if (op.kind == DrawOp::Kind::Circle && op.x1 >= left - 1 && op.x1 <= left + 321 &&
        op.y1 >= top - 280 && op.y1 <= top + 280)
      ++dots;
  return dots > 100;
}

class PresentForm : public FormFixture<frmPresent> {
 protected:
  PresentForm() : FormFixture("frmPresent") {}
};

TEST_F(PresentForm, PrintsTheNameAndTheMarkAtTheHead) {
  type("txtPay", "1000");
  click("cmdCalculate");
  click("cmdPrint");
  ASSERT_EQ(host.jobs.size(), 1u);
  const PrintedPage& page = host.jobs[0].pages.at(0);
  const Head head = NameOn(page);
  ASSERT_TRUE(head.found);
  EXPECT_EQ(head.x, 9000);
  EXPECT_EQ(head.y, 2000);
  EXPECT_EQ(head.size, 8);
  EXPECT_TRUE(MarkAround(page, 9800, 1900));
  EXPECT_FALSE(MarkAround(page, 9800, 12900));
}

// A rate of 0 can't pass the rate box; should one reach the permanent
// calculation, the form says so, takes 10 % and finishes the pass with the
// monthly rate it had.
TEST_F(PresentForm, PermanentPaymentsRefuseARateOfZero) {
  type("txtPay", "1000");
  click("cmdCalculate");
  click("optPerm");
  EXPECT_EQ(text("txtAmount"), "121,000.");
  app.run([&] {
    form().AnnualRate = Value(0);
    form().PubCalc();
  });
  ASSERT_FALSE(host.boxes.empty());
  EXPECT_EQ(host.boxes.back().text, " Rate must not be Zero !  ");
  EXPECT_EQ(host.boxes.back().title, "Tessaron");
  EXPECT_EQ(host.boxes.back().flags, 48);
  EXPECT_EQ(form().AnnualRate, Value(0.1));
  EXPECT_EQ(text("txtAmount"), "121,000.");
  EXPECT_EQ(app.focused(), &c("txtRate"));
}

// Enter in an amount box with a rate below 0.01 % goes back to the rate box.
TEST_F(PresentForm, EnterBelowTheRateFloorGoesToTheRate) {
  type("txtAmount", "500");
  form().AnnualRate = Value(0.00009);
  enter("txtAmount");
  EXPECT_EQ(app.focused(), &c("txtRate"));
  type("txtAmount", "500");
  form().AnnualRate = Value(0.0001);
  enter("txtAmount");
  EXPECT_EQ(app.focused(), &c("cmdCalculate"));
}

class BondForm : public FormFixture<frmBond> {
 protected:
  BondForm() : FormFixture("frmBond") {}
};

TEST_F(BondForm, PrintsTheNameAndTheMarkAtTheHead) {
  type("txtAmount", "1000");
  click("cmdCalculate");
  click("cmdPrint");
  ASSERT_EQ(host.jobs.size(), 1u);
  const Head head = NameOn(host.jobs[0].pages.at(0));
  ASSERT_TRUE(head.found);
  EXPECT_EQ(head.x, 9000);
  EXPECT_EQ(head.y, 2000);
  EXPECT_TRUE(MarkAround(host.jobs[0].pages[0], 9800, 1900));
}

// At 50 years with rest months the yearly choice compounds 49 whole years
// and the months left over by simple interest.
TEST_F(BondForm, FiftyYearsWithRestMonthsCountFortyNine) {
  click("optYear");
  type("txtRate", "1");
  type("txtAmount", "100");
  click("cmdCalculate");
  scroll("scrMonth", 597);
  scroll("scrYear", 50);
  EXPECT_EQ(form().Years, Value(49));
  EXPECT_EQ(form().Months, Value(597));
  EXPECT_EQ(caption("lblYears"), "49");
  EXPECT_EQ(bar("scrYear"), 50);
  const double want = 100 * std::pow(1.01, 49) * (1 + 0.01 / 12 * 9);
  EXPECT_NEAR(form().FutureAmount.number(), want, want * 1e-12);
}

class GyeForm : public FormFixture<frmGye> {
 protected:
  GyeForm() : FormFixture("frmGye") {}
  void inputs(const char* a, const char* n, const char* r) {
    type("txtBBB", a, 1);
    type("txtBBB", n, 2);
    type("txtBBB", r, 3);
    click("cmdCalc");
  }
};

TEST_F(GyeForm, BlanksCountAsEmptyFromOneToSix) {
  EXPECT_FALSE(frmGye::PubCheckSpace(""));
  for (int n = 1; n <= 6; ++n) EXPECT_TRUE(frmGye::PubCheckSpace(std::string(n, ' '))) << n;
  EXPECT_FALSE(frmGye::PubCheckSpace(std::string(7, ' ')));
  EXPECT_FALSE(frmGye::PubCheckSpace(" 1 "));
  EXPECT_FALSE(frmGye::PubCheckSpace("\t"));
}

TEST_F(GyeForm, PrintsTheNameAndTheMarkAtTheFoot) {
  inputs("1000000", "6", "12");
  click("cmdPrint");
  ASSERT_EQ(host.jobs.size(), 1u);
  ASSERT_EQ(host.jobs[0].pages.size(), 1u);
  const PrintedPage& page = host.jobs[0].pages[0];
  const Head foot = NameOn(page);
  ASSERT_TRUE(foot.found);
  EXPECT_EQ(foot.x, 9000);
  EXPECT_EQ(foot.y, 13000);
  EXPECT_EQ(foot.size, 8);
  EXPECT_TRUE(MarkAround(page, 9800, 12900));
  EXPECT_FALSE(MarkAround(page, 9800, 1900));
}

// Every line of the list stays above the name and the mark; a long list
// goes on over the next page and the mark stands at the foot of the last.
TEST_F(GyeForm, TheListNeverRunsIntoTheFoot) {
  for (const char* n : {"2", "11", "12", "17", "24"}) {
    SCOPED_TRACE(n);
    host.jobs.clear();
    inputs("999999999", n, "100");
    click("cmdPrint");
    ASSERT_EQ(host.jobs.size(), 1u);
    const auto& pages = host.jobs[0].pages;
    for (const PrintedPage& page : pages)
      for (const DrawOp& op : page.ops)
        if (op.kind == DrawOp::Kind::Text && op.text != "Tessaron")
          EXPECT_LE(op.y1 + Canvas::lineHeight(op.size), 12600) << op.text;
    EXPECT_TRUE(NameOn(pages.back()).found);
    for (size_t p = 0; p + 1 < pages.size(); ++p) EXPECT_FALSE(NameOn(pages[p]).found);
    EXPECT_EQ(pages.size(), std::stoi(n) >= 12 ? 2u : 1u);
  }
}

// When the whole units already make up the amount no unit is added.
TEST_F(GyeForm, FloorsThatMakeUpTheAmountGetNothingMore) {
  // At 100 % a month's growth is 13/12, so 300 splits into 156 and 144.
  inputs("300", "2", "100");
  EXPECT_EQ(caption("lblAAA", 1), "156.");
  EXPECT_EQ(caption("lblAAA", 2), "144.");
  EXPECT_EQ(caption("lblAAA", 0), "300.");
}

TEST_F(GyeForm, TheFirstPaysTheLastTimesTheGrowthOfTheMonthsBetween) {
  inputs("1000000000", "24", "100");
  const double first = form().Ans[1].number(), last = form().Ans[24].number();
  EXPECT_NEAR(first / last, std::pow(13.0 / 12.0, 23), 1e-6);
  EXPECT_EQ(form().Ans[0], Value(1e9));
}

}  // namespace
}  // namespace tessaron::test

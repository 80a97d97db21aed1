// The lease's term and actual rate, beyond what the golden scripts show.
#include <cmath>

#include "finance/auto.h"
#include "tests/finance/form_fixture.h"

namespace tessaron::test {
namespace {

class LeaseTerm : public FormFixture<frmAuto> {
 protected:
  LeaseTerm() : FormFixture("frmAuto") {}
  int bar(const char* name) { return CInt(c(name).value()).AsInt16(); }
};

// A page step of the year bar from 47 years 7 months lands on its end: the
// term counts 49 years and keeps its 7 months, and the payment is for that
// term, as the captions show it.
TEST_F(LeaseTerm, PageToTheLastYearKeepsTheRestMonths) {
  scroll("scrMonth", 571);
  ASSERT_EQ(caption("lblYears"), "47");
  ASSERT_EQ(caption("lblMonth"), "7");
  type("txtAmountAA", "100000");
  focus("cmdCalculate");
  scroll("scrYear", 50);
  EXPECT_EQ(form().Years, Value(49));
  EXPECT_EQ(form().RestMonths, Value(7));
  EXPECT_EQ(form().Months, Value(595));
  EXPECT_EQ(bar("scrMonth"), 595);
  EXPECT_EQ(caption("lblYears"), "49");
  EXPECT_EQ(caption("lblMonth"), "7");
  const double r = 0.05 / 12;
  const double want = 100000 * r / (1 - std::pow(1 + r, -595));
  EXPECT_NEAR(form().Payment.number(), want, want * 1e-12);
}

// Stepping down from 4 years 7 months drops the rest months first.
TEST_F(LeaseTerm, StepDownDropsTheRestMonthsFirst) {
  scroll("scrMonth", 55);
  scroll("scrYear", 3);
  EXPECT_EQ(bar("scrYear"), 4);
  EXPECT_EQ(form().Months, Value(48));
  EXPECT_EQ(caption("lblMonth"), "0");
}

// The actual rate is held in single precision: the value is a float's, and
// the caption is that float times 100, also in single precision.
TEST_F(LeaseTerm, ActualRateIsHeldInSinglePrecision) {
  type("txtAmountAA", "20000");
  type("txtExtra", "1000");
  focus("cmdCalculate");
  const double actual = form().ActualRate.number();
  EXPECT_EQ(actual, static_cast<double>(static_cast<float>(actual)));
  const double exact = 0.05 + 1000 / std::pow(1 + 0.05 / 12, 36) / 20000;
  EXPECT_NEAR(actual, exact, 1e-8);
  EXPECT_NE(actual, exact);
  EXPECT_EQ(caption("lblAct2"), "9.3049");
}

}  // namespace
}  // namespace tessaron::test

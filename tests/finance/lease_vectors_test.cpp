// The lease form against figures computed outside the product
// (make_lease_vectors.py): cash cost, lease amount, payment, total and the
// actual rate, in both forms and both due dates.
#include <cmath>

#include "finance/auto.h"
#include "tests/finance/form_fixture.h"

namespace tessaron::test {
namespace {

class LeaseVectors : public FormFixture<frmAuto> {
 protected:
  LeaseVectors() : FormFixture("frmAuto") {}
};

constexpr const char* kBoxes[] = {"txtAmountAA", "txtPrice",    "txtCost",    "txtDown",
                                  "txtRebate",   "txtResidual", "txtTaxRate", "txtExtra"};

TEST_F(LeaseVectors, AgreeWithTheIndependentComputation) {
  const auto rows = ReadRows(LEASE_VECTORS);
  ASSERT_EQ(rows.size(), 400u);
  int payments = 0, actualRates = 0;
  for (const auto& k : rows) {
    ASSERT_EQ(k.size(), 18u);
    SCOPED_TRACE(k[0] + k[1] + " at " + k[2] + " % for " + k[3] + ": " + k[4] + " " + k[5] + " " +
                 k[6] + " " + k[7] + " " + k[8] + " " + k[9] + " tax " + k[10] + " extra " + k[11]);
    reopen();
    type("txtRate", k[2]);
    focus("cmdCalculate");
    const int months = std::stoi(k[3]);
    scroll("scrMonth", months);
    ASSERT_EQ(form().Months, Value(months));
    if (k[1] == "F") click("optFirst");
    if (k[0] == "D") click("optDetail");
    for (int i = 0; i < 8; ++i)
      if (k[4 + i] != "-") type(kBoxes[i], k[4 + i]);
    focus("cmdCalculate");
    if (k[0] == "D") {
      EXPECT_EQ(caption("lblCash"), k[12]);
      EXPECT_EQ(caption("lblAmountPP"), k[13]);
    }
    EXPECT_EQ(caption("lblPay"), k[14]);
    const double want = std::stod(k[15]);
    EXPECT_NEAR(form().Payment.number(), want, std::fabs(want) * 1e-13);
    EXPECT_EQ(caption("lblSum"), k[16]);
    EXPECT_EQ(caption("lblAct2"), k[17]);
    EXPECT_EQ(c("frmExtra").Visible, k[17] != "");
    payments += k[14] != "";
    actualRates += k[17] != "";
  }
  // The data reach every branch: payments and none, actual rates and none.
  EXPECT_GT(payments, 300);
  EXPECT_GT(actualRates, 100);
  EXPECT_TRUE(host.fatals.empty());
}

}  // namespace
}  // namespace tessaron::test

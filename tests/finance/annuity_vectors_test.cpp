// The annuity form against figures computed outside the product
// (make_annuity_vectors.py): the result, its text and the sum of payments.
#include <cmath>

#include "finance/annuity.h"
#include "tests/finance/form_fixture.h"

namespace tessaron::test {
namespace {

class AnnuityVectors : public FormFixture<frmAnnuity> {
 protected:
  AnnuityVectors() : FormFixture("frmAnnuity") {}
};

TEST_F(AnnuityVectors, AgreeWithTheIndependentComputation) {
  const auto rows = ReadRows(ANNUITY_VECTORS);
  ASSERT_EQ(rows.size(), 400u);
  for (const auto& k : rows) {
    ASSERT_EQ(k.size(), 7u);
    const std::string &base = k[0], &input = k[1], &rate = k[2];
    SCOPED_TRACE(base + " " + input + " at " + rate + " % for " + k[3]);
    reopen();
    type("txtRate", rate);
    click("cmdCalculate");
    const int months = std::stoi(k[3]);
    scroll("scrMonth", months);
    ASSERT_EQ(form().Months, Value(months));
    const double want = std::stod(k[4]);
    if (base == "P") {
      type("txtPay", input);
      click("cmdCalculate");
      EXPECT_EQ(text("txtAmount"), k[5]);
      EXPECT_NEAR(form().Amount.number(), want, std::fabs(want) * 1e-13);
    } else {
      type("txtAmount", input);
      click("cmdCalculate");
      EXPECT_EQ(text("txtPay"), k[5]);
      EXPECT_NEAR(form().Payment.number(), want, std::fabs(want) * 1e-13);
    }
    EXPECT_EQ(caption("lblSum"), k[6]);
  }
  EXPECT_TRUE(host.fatals.empty());
  EXPECT_TRUE(host.boxes.empty());
}

}  // namespace
}  // namespace tessaron::test

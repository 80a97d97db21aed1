// The present value, savings and bond, and mutual financing forms against
// figures computed outside the product (make_savings_vectors.py): every case
// is keyed in as a user keys it and the figures on the screen are compared.
#include <cmath>
#include <map>

#include "finance/bond.h"
#include "finance/gye.h"
#include "finance/present.h"
#include "tests/finance/form_fixture.h"

namespace tessaron::test {
namespace {

class PresentVectors : public FormFixture<frmPresent> {
 protected:
  PresentVectors() : FormFixture("frmPresent") {}
};

TEST_F(PresentVectors, AgreeWithTheIndependentComputation) {
  const auto rows = ReadRows(PRESENT_VECTORS);
  ASSERT_EQ(rows.size(), 400u);
  for (const auto& k : rows) {
    ASSERT_EQ(k.size(), 9u);
    const std::string &kind = k[0], &term = k[1], &start = k[2], &input = k[3], &rate = k[4];
    SCOPED_TRACE(kind + term + start + " " + input + " at " + rate + " % for " + k[5]);
    reopen();
    type("txtRate", rate);
    const int months = std::stoi(k[5]);
    scroll("scrMonth", months);
    ASSERT_EQ(form().Months, Value(months));
    if (start == "L") click("optLater");
    if (term == "P") click("optPerm");
    type(kind == "A" ? "txtAmount" : "txtPay", input);
    click("cmdCalculate");
    const Value& got = kind == "A" ? form().Payment : form().Amount;
    const double want = std::stod(k[6]);
    EXPECT_NEAR(got.number(), want, std::fabs(want) * 1e-10);
    EXPECT_EQ(text(kind == "A" ? "txtPay" : "txtAmount"), k[7]);
    if (term == "L") {
      EXPECT_EQ(caption("lblSum2"), k[8]);
      EXPECT_TRUE(c("lblSum2").Visible);
    } else {
      EXPECT_FALSE(c("lblSum2").Visible);
    }
    EXPECT_TRUE(host.boxes.empty()) << lastBox();
  }
}

class BondVectors : public FormFixture<frmBond> {
 protected:
  BondVectors() : FormFixture("frmBond") {}
};

TEST_F(BondVectors, AgreeWithTheIndependentComputation) {
  const auto rows = ReadRows(BOND_VECTORS);
  ASSERT_EQ(rows.size(), 400u);
  const std::map<std::string, const char*> options = {
      {"Y", "optYear"}, {"S", "optSix"}, {"T", "optThree"}, {"D", "optDay"}, {"O", "optOne"}};
  for (const auto& k : rows) {
    ASSERT_EQ(k.size(), 8u);
    const std::string &kind = k[0], &option = k[1], &input = k[2], &rate = k[3];
    SCOPED_TRACE(kind + option + " " + input + " at " + rate + " % for " + k[4]);
    reopen();
    type("txtRate", rate);
    const int months = std::stoi(k[4]);
    scroll("scrMonth", months);
    ASSERT_EQ(form().Months, Value(months));
    click(options.at(option));
    type(kind == "A" ? "txtAmount" : "txtTom", input);
    click("cmdCalculate");
    const Value& got = kind == "A" ? form().FutureAmount : form().Amount;
    const double want = std::stod(k[5]);
    EXPECT_NEAR(got.number(), want, std::fabs(want) * 1e-10);
    EXPECT_EQ(text(kind == "A" ? "txtTom" : "txtAmount"), k[6]);
    EXPECT_EQ(caption("lblAPY2"), k[7]);
    EXPECT_TRUE(host.boxes.empty()) << lastBox();
  }
}

class GyeVectors : public FormFixture<frmGye> {
 protected:
  GyeVectors() : FormFixture("frmGye") {}
};

TEST_F(GyeVectors, AgreeWithTheIndependentComputation) {
  const auto rows = ReadRows(GYE_VECTORS);
  ASSERT_EQ(rows.size(), 400u);
  for (const auto& k : rows) {
    ASSERT_EQ(k.size(), 5u);
    SCOPED_TRACE(k[0] + " among " + k[1] + " at " + k[2] + " %");
    reopen();
    for (int i = 1; i <= 3; ++i) {
      type("txtBBB", k[i - 1], i);
      enter("txtBBB", i);
    }
    click("cmdCalc");
    std::vector<std::string> paid;
    std::istringstream list(k[3]);
    for (std::string p; std::getline(list, p, '|');) paid.push_back(p);
    const int n = std::stoi(k[1]);
    ASSERT_EQ(static_cast<int>(paid.size()), n);
    for (int i = 1; i <= 24; ++i) {
      EXPECT_EQ(caption("lblAAA", i), i <= n ? paid[i - 1] : "") << "number " << i;
      EXPECT_EQ(c("txtMonth", i).Visible, i <= n) << "number " << i;
    }
    EXPECT_EQ(caption("lblAAA", 0), k[4]);
    EXPECT_EQ(form().Ans[0], form().Cond[1]);
    EXPECT_TRUE(host.boxes.empty()) << lastBox();
  }
}

}  // namespace
}  // namespace tessaron::test

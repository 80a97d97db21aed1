// The loan form against figures computed outside the product
// (make_loan_vectors.py): the payment or amount, its text, the total and every
// row of the amortization table.
#include <cmath>
#include <fstream>
#include <sstream>
#include <vector>

#include "tests/finance/loan_fixture.h"

namespace tessaron::test {
namespace {

struct Case {
  std::string kind, input, rate, months, due, value, shown, total, digest, samples;
};

std::vector<Case> ReadCases() {
  std::ifstream in(LOAN_VECTORS);
  std::vector<Case> cases;
  std::string line;
  while (std::getline(in, line)) {
    if (line.empty() || line[0] == '#') continue;
    std::istringstream fields(line);
    Case k;
    for (std::string* f : {&k.kind, &k.input, &k.rate, &k.months, &k.due, &k.value, &k.shown,
                           &k.total, &k.digest, &k.samples})
      std::getline(fields, *f, '\t');
    cases.push_back(k);
  }
  return cases;
}

std::string Fnv(const std::string& s) {
  unsigned long long h = 0xCBF29CE484222325ull;
  for (unsigned char b : s) h = (h ^ b) * 0x100000001B3ull;
  char out[17];
  std::snprintf(out, sizeof out, "%016llx", h);
  return out;
}

class LoanVectors : public LoanFixture {};

TEST_F(LoanVectors, AgreeWithTheIndependentComputation) {
  const std::vector<Case> cases = ReadCases();
  ASSERT_EQ(cases.size(), 600u);
  for (const Case& k : cases) {
    SCOPED_TRACE(k.kind + " " + k.input + " at " + k.rate + " % for " + k.months + " " + k.due);
    app.close(loan());
    app.show(app.form("frmLoan"));
    type("txtRate", k.rate);
    const int months = std::stoi(k.months);
    scroll("scrMonth", months);
    ASSERT_EQ(loan().Months, Value(months));
    if (k.due == "F") click("optFirst");
    const bool amountBase = k.kind == "A";
    if (amountBase) {
      amount(k.input);
      EXPECT_EQ(text("txtPay"), k.shown);
      const double want = std::stod(k.value);
      EXPECT_NEAR(loan().Payment.number(), want, std::fabs(want) * 1e-13);
    } else {
      payment(k.input);
      EXPECT_EQ(text("txtAmount"), k.shown);
      const double want = std::stod(k.value);
      EXPECT_NEAR(loan().Amount.number(), want, std::fabs(want) * 1e-13);
    }
    EXPECT_EQ(caption("lblSum"), k.total);

    click("cmdDetails");
    const Grid& g = c("Table").grid();
    ASSERT_EQ(g.Rows(), months + 1);
    std::string all;
    for (int i = 1; i <= months; ++i) {
      if (i > 1) all += '\n';
      for (int col = 1; col <= 5; ++col) {
        if (col > 1) all += '\t';
        all += g.TextMatrix(i, col);
      }
    }
    EXPECT_EQ(Fnv(all), k.digest);
    std::istringstream samples(k.samples);
    std::string sample;
    while (std::getline(samples, sample, ';')) {
      const size_t a = sample.find('|'), b = sample.rfind('|');
      const int i = std::stoi(sample.substr(0, a));
      EXPECT_EQ(g.TextMatrix(i, 0), std::to_string(i));
      EXPECT_EQ(g.TextMatrix(i, 2), sample.substr(a + 1, b - a - 1)) << "interest of row " << i;
      EXPECT_EQ(g.TextMatrix(i, 5), sample.substr(b + 1)) << "balance of row " << i;
    }
  }
  EXPECT_TRUE(host.fatals.empty());
}

}  // namespace
}  // namespace tessaron::test

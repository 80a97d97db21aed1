// The chart against figures computed outside the product
// (make_chart_vectors.py, Python's decimal module): column sums, the total or
// balance, every row's relation of AAA and BBB, and the captions that show
// them, for charts of up to seventeen digits with mixed decimals, negative
// amounts and blanks.
#include <fstream>
#include <memory>
#include <sstream>
#include <vector>

#include "tests/chart/chart_fixture.h"

namespace tessaron::test {
namespace {

struct Case {
  int mode = 0;
  std::string decimals, balance;
  std::vector<std::string> cells;
  std::string sumA, sumB, sumC, sumAll, sumThird;
  std::vector<std::string> totals, relations, captions;
};

std::vector<std::string> Split(const std::string& s, char sep) {
  std::vector<std::string> out;
  std::string part;
  std::istringstream in(s);
  while (std::getline(in, part, sep)) out.push_back(part);
  if (!s.empty() && s.back() == sep) out.push_back("");
  return out;
}

std::vector<Case> ReadCases() {
  std::ifstream in(CHART_VECTORS);
  std::vector<Case> cases;
  std::string line;
  while (std::getline(in, line)) {
    if (line.empty() || line[0] == '#') continue;
    const std::vector<std::string> f = Split(line, '\t');
    EXPECT_EQ(f.size(), 12u) << line;
    if (f.size() != 12) continue;
    Case k;
    k.mode = std::stoi(f[0]);
    k.decimals = f[1];
    k.balance = f[2];
    k.cells = Split(f[3], '|');
    k.sumA = f[4];
    k.sumB = f[5];
    k.sumC = f[6];
    k.sumAll = f[7];
    k.sumThird = f[8];
    k.totals = Split(f[9], '|');
    k.relations = Split(f[10], '|');
    k.captions = Split(f[11], '|');
    cases.push_back(k);
  }
  return cases;
}

std::string RightTrimmed(std::string s) {
  while (!s.empty() && s.back() == ' ') s.pop_back();
  return s;
}

TEST(ChartVectors, AgreeWithPythonDecimal) {
  const std::vector<Case> cases = ReadCases();
  ASSERT_EQ(cases.size(), 600u);
  int n = 0;
  for (const Case& k : cases) {
    SCOPED_TRACE("chart " + std::to_string(++n) + " mode " + std::to_string(k.mode) + " " +
                 k.decimals + " " + k.balance);
    ASSERT_EQ(k.cells.size(), 36u);
    ASSERT_EQ(k.totals.size(), 5u);
    ASSERT_EQ(k.relations.size(), 12u);
    ASSERT_EQ(k.captions.size(), 12u);
    RecordingHost host;
    Application app(host);
    registerSuite(app);
    OviSum& form = app.form<OviSum>("OviSum");
    app.show(form);
    if (k.decimals != "Auto") app.click(form.control(("opt" + k.decimals).c_str()));
    if (k.balance == "B") app.click(form.control("optBal"));
    if (k.mode != 0) app.click(form.control("optSign", k.mode));
    for (int i = 1; i <= 36; ++i) {
      if (k.cells[i - 1].empty()) continue;
      app.type(form.control("txtAAA", i), k.cells[i - 1]);
      app.focus(form.control("cmdCalc"));
    }
    EXPECT_TRUE(host.boxes.empty()) << host.boxes.front().text;
    ASSERT_EQ(form.chart.SignMode, k.mode);

    const ChartState& c = form.chart;
    EXPECT_EQ(c.SumAAA, CDec(Value(k.sumA))) << CStr(c.SumAAA) << " wanted " << k.sumA;
    EXPECT_EQ(c.SumBBB, CDec(Value(k.sumB))) << CStr(c.SumBBB) << " wanted " << k.sumB;
    EXPECT_EQ(c.SumCCC, CDec(Value(k.sumC))) << CStr(c.SumCCC) << " wanted " << k.sumC;
    EXPECT_EQ(c.SumAll, CDec(Value(k.sumAll))) << CStr(c.SumAll) << " wanted " << k.sumAll;
    EXPECT_EQ(c.SumAll.kind(), Kind::Dec);
    for (int t = 0; t <= 2; ++t)
      EXPECT_EQ(form.control("lblAmt", t).Caption, k.totals[t]) << "lblAmt(" << t << ")";
    if (k.mode == 6) EXPECT_EQ(form.control("lblAmt", 3).Caption, k.totals[3]);
    if (k.balance == "B")
      EXPECT_EQ(form.control("lblAmt", 0).ForeColor, c.SumAAA < c.SumBBB ? 255 : 0xFF0000);
    if (k.mode < 1 || k.mode > 5) continue;
    EXPECT_EQ(c.SumThird, CDec(Value(k.sumThird))) << CStr(c.SumThird) << " wanted " << k.sumThird;
    EXPECT_EQ(form.control("lblAmt", 4).Caption, k.totals[4]);
    if (!k.totals[3].empty()) EXPECT_EQ(form.control("lblAmt", 3).Caption, k.totals[3]);
    for (int r = 1; r <= 12; ++r) {
      SCOPED_TRACE("row " + std::to_string(r));
      const Value shown = c.CellShown(40 + r);
      if (k.relations[r - 1].empty()) {
        EXPECT_EQ(shown, Value(0));
      } else {
        EXPECT_EQ(shown, CDec(Value(k.relations[r - 1])))
            << CStr(shown) << " wanted " << k.relations[r - 1];
        // A row blank in both columns holds the whole number 0, not an amount.
        if (!k.captions[r - 1].empty()) EXPECT_EQ(shown.kind(), Kind::Dec);
      }
      EXPECT_EQ(RightTrimmed(form.control("lblAns", r).Caption), k.captions[r - 1]);
    }
  }
}

}  // namespace
}  // namespace tessaron::test

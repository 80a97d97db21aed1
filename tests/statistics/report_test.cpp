// The distribution graph and the printed report.
#include "tests/statistics/statistics_fixture.h"

namespace tessaron::test {
namespace {

using Graph = StatisticsFixture;

const std::vector<std::string>& Lines(const PrintJob& job, int page) {
  return job.pages.at(page).lines;
}

bool Has(const std::vector<std::string>& lines, const std::string& text) {
  for (const std::string& l : lines)
    if (l == text) return true;
  return false;
}

TEST_F(Graph, OneDatumHasNoGraphAndNoReport) {
  entries({"4"});
  click("cmdGraph");
  click("cmdPrint");
  EXPECT_EQ(messages(),
            (std::vector<std::string>{" Graph is not available. ", " Thanks for using Tessaron. ",
                                      " Print out ??? ", " Graph is not available. ",
                                      " Thanks for using Tessaron. "}));
  EXPECT_FALSE(c("picGraph").Visible);
  EXPECT_TRUE(host.jobs.empty());
}

TEST_F(Graph, EqualDataHaveNoGraph) {
  entries({"4", "4"});
  click("cmdGraph");
  EXPECT_EQ(messages(), std::vector<std::string>{" Graph is not available. "});
  EXPECT_FALSE(c("picGraph").Visible);
}

TEST_F(Graph, FarLimitsArePulledToTheFrame) {
  entries({"9", "11"});
  type("txtAim", 2, "0");
  type("txtAim", 3, "30");
  click("cmdGraph");
  ASSERT_TRUE(c("picGraph").Visible);
  EXPECT_EQ(sheet().LimitLowX, 400);
  EXPECT_EQ(sheet().LimitHighX, 5600);
  EXPECT_EQ(c("lineNlimit").X1, 400);
  EXPECT_EQ(c("lblMin", 1).Left, 100);
  EXPECT_EQ(c("lblMin", 1).Caption, "0.%");
  EXPECT_EQ(c("lblMin", 2).Caption, "0.");
  EXPECT_EQ(c("lblMax", 1).Caption, "100.%");
  EXPECT_EQ(c("lblPass").Caption, "Pass = 100.%");
  EXPECT_TRUE(c("lblPass").Visible);
  EXPECT_EQ(app.focused(), &c("cmdReturn"));
  click("cmdReturn");
  EXPECT_FALSE(c("picGraph").Visible);
  EXPECT_FALSE(c("lblPass").Visible);
  EXPECT_FALSE(c("lineNlimit").Visible);
}

TEST_F(Graph, OneLimitHasNoPass) {
  entries({"1", "2", "3"});
  type("txtAim", 3, "2.5");
  click("cmdGraph");
  EXPECT_TRUE(c("linePlimit").Visible);
  EXPECT_FALSE(c("lineNlimit").Visible);
  EXPECT_FALSE(c("lblPass").Visible);
}

// Limits in the wrong order are taken as typed; their shares then add up
// to more than the whole, and no pass is shown.
TEST_F(Graph, LimitsInTheWrongOrderHaveNoPass) {
  entries({"1", "2", "3"});
  type("txtAim", 2, "2.5");
  type("txtAim", 3, "1.5");
  click("cmdGraph");
  EXPECT_TRUE(messages().empty());
  EXPECT_GT(sheet().StatLow + sheet().StatHigh, 1);
  EXPECT_FALSE(c("lblPass").Visible);
}

TEST_F(Graph, CurvesKeepTheirShape) {
  entries({"1", "2", "3"});
  click("cmdGraph");
  const std::vector<DrawOp>& ops = c("picGraph").picture().ops();
  ASSERT_GT(ops.size(), 700u);
  EXPECT_EQ(ops.front().x1, 990);
  EXPECT_EQ(ops.front().y1, 5000);
  EXPECT_NEAR(ops.front().x2, 690, 1e-9);
  EXPECT_EQ(ops.front().colour, 0x008000);
  // The cumulative curve ends near 3.65 deviations, a whisker below 100 %.
  const DrawOp& up = ops[ops.size() - 2];
  EXPECT_NEAR(up.x2, 3000 + 700 * 3.65, 1e-6);
  EXPECT_NEAR(up.y2, 1000, 5);
  EXPECT_EQ(up.colour, 0x0000FF);
}

TEST_F(Graph, ReportFromTheGraphClosesIt) {
  entries({"1", "", "2", "3", "3"});
  type("txtAim", 2, "1.5");
  click("cmdGraph");
  click("cmdPrint2");
  ASSERT_EQ(host.jobs.size(), 1u);
  EXPECT_FALSE(c("picGraph").Visible);
  const PrintJob& job = host.jobs[0];
  // The figures with a limit and blanks pass the foot of the first page; the
  // list starts on a page of its own.
  ASSERT_EQ(job.pages.size(), 3u);
  EXPECT_EQ(Lines(job, 1).at(0).find("Statistically Over Limit : "), 14u);
  const auto& first = Lines(job, 0);
  EXPECT_TRUE(Has(first, std::string(57, ' ') + "INCLUDE BLANK "));
  EXPECT_TRUE(Has(first, std::string(19, ' ') + "Count : " + std::string(12, ' ') + "4" +
                             std::string(25, ' ') + " 5 "));
  EXPECT_TRUE(Has(first, std::string(19, ' ') + "(not include blank data)"));
  const auto& second = Lines(job, 2);
  EXPECT_TRUE(Has(second, std::string(24, ' ') + "1" + std::string(12, ' ') + "Blank"));
  EXPECT_TRUE(Has(second, std::string(24, ' ') + "2" + std::string(14, ' ') + "3."));
}

TEST_F(Graph, AnsweringNoPrintsNothing) {
  entries({"1", "2", "3"});
  click("cmdGraph");
  host.answers.push_back(7);
  click("cmdPrint2");
  EXPECT_TRUE(host.jobs.empty());
  EXPECT_TRUE(c("picGraph").Visible);
}

TEST_F(Graph, LongListRunsOnToMorePages) {
  std::vector<std::string> texts;
  for (int i = 1; i <= 200; ++i) texts.push_back(std::to_string(i));
  entries(texts);
  host.answers.push_back(6);
  click("cmdPrint");
  ASSERT_EQ(host.jobs.size(), 1u);
  const PrintJob& job = host.jobs[0];
  ASSERT_GE(job.pages.size(), 3u);
  int rows = 0;
  for (std::size_t p = 1; p < job.pages.size(); ++p)
    for (const DrawOp& op : job.pages[p].ops) {
      if (op.kind == DrawOp::Kind::Text) {
        EXPECT_LE(op.y1 + Canvas::lineHeight(op.size), 15120);
        if (op.text.find("1") == 0 || op.text.find_first_of("0123456789") == 0) ++rows;
      }
    }
  EXPECT_GE(rows, 200);
}

}  // namespace
}  // namespace tessaron::test

// The measures: population deviation, the stored table's straight-line
// interpolation, and the shares beyond each limit at their edges.
#include <cmath>

#include "tests/statistics/statistics_fixture.h"

namespace tessaron::test {
namespace {

using Measures = StatisticsFixture;

TEST(NormalTable, RowsGiveTheirOwnTail) {
  EXPECT_DOUBLE_EQ(UpperTail(0), 0.5);
  EXPECT_NEAR(UpperTail(1.0), 1 - 0.84134, 1e-15);
  EXPECT_NEAR(UpperTail(3.291), 1 - 0.9995, 1e-15);
  EXPECT_NEAR(UpperTail(5.0), 1 - 0.9999997, 1e-15);
  EXPECT_EQ(UpperTail(5.0000001), 0);
  // Halfway between 0.04 and 0.1: halfway between their tails.
  EXPECT_NEAR(UpperTail(0.07), ((1 - 0.51595) + (1 - 0.53982)) / 2, 1e-15);
}

TEST(NormalTable, BellCurveKeepsItsConstant) {
  EXPECT_DOUBLE_EQ(YYY(0), 1 / std::sqrt(6.285185307178));
  EXPECT_DOUBLE_EQ(YYY(1), std::exp(-0.5) / std::sqrt(6.285185307178));
}

TEST_F(Measures, DeviationDividesByTheCount) {
  entries({"1", "2", "3"});
  click("cmdCalc");
  EXPECT_DOUBLE_EQ(sheet().DataDev, std::sqrt(2.0 / 3));
  EXPECT_EQ(figure(3), "0.816497");
  EXPECT_EQ(app.focused(), &c("cmdGraph"));
}

TEST_F(Measures, LimitAtTheAverageIsHalf) {
  entries({"1", "2", "3"});
  type("txtAim", 2, "2");
  type("txtAim", 3, "2");
  click("cmdCalc");
  EXPECT_EQ(figure(8), "50. %");
  EXPECT_EQ(figure(9), "50. %");
  EXPECT_EQ(figure(4), "1");
  EXPECT_EQ(figure(6), "33.33 %");
}

TEST_F(Measures, AllDataEqual) {
  entries({"5", "5", "5"});
  type("txtAim", 2, "6");
  type("txtAim", 3, "4");
  click("cmdCalc");
  EXPECT_EQ(sheet().DataDev, 0);
  EXPECT_EQ(figure(8), "100. %");
  EXPECT_EQ(figure(9), "0. %");
  type("txtAim", 2, "4");
  type("txtAim", 3, "6");
  click("cmdCalc");
  EXPECT_EQ(figure(8), "0. %");
  EXPECT_EQ(figure(9), "100. %");
}

// The sum is kept in decimal: equal data with decimals average to
// themselves, so that their deviation is exactly 0, as for whole numbers.
TEST_F(Measures, EqualDecimalsHaveNoDeviation) {
  entries({"0.1", "0.1", "0.1", "0.1", "0.1", "0.1", "0.1"});
  type("txtAim", 3, "0.05");
  click("cmdCalc");
  EXPECT_EQ(sheet().DataAvg, 0.1);
  EXPECT_EQ(sheet().DataDev, 0);
  EXPECT_EQ(figure(9), "0. %");
  click("cmdGraph");
  EXPECT_EQ(messages(), std::vector<std::string>{" Graph is not available. "});
}

TEST_F(Measures, BeyondFiveDeviations) {
  entries({"9", "11"});
  type("txtAim", 2, "3");
  type("txtAim", 3, "4");
  click("cmdCalc");
  EXPECT_EQ(figure(8), "0. %");
  EXPECT_EQ(figure(9), "100. %");
  EXPECT_EQ(figure(5), "2");
  EXPECT_EQ(figure(7), "100. %");
}

TEST_F(Measures, ZeroIsALimit) {
  entries({"-1", "1", "2"});
  type("txtAim", 2, "0");
  click("cmdCalc");
  EXPECT_EQ(figure(4), "1");
  EXPECT_NE(figure(8), "");
  EXPECT_EQ(figure(9), "");
}

TEST_F(Measures, BlanksStayOutOfTheMeasures) {
  entries({"2", "", "", "4", "0"});
  click("cmdCalc");
  EXPECT_EQ(sheet().DataCount, 3);
  EXPECT_DOUBLE_EQ(sheet().DataAvg, 2);
  EXPECT_DOUBLE_EQ(sheet().DataDev, std::sqrt(8.0 / 3));
  EXPECT_DOUBLE_EQ(sheet().AvgAll, 6.0 / 5);
}

// An edit drops the figures at once.
TEST_F(Measures, AnEditClearsTheFigures) {
  entries({"1", "2", "3"});
  type("txtAim", 2, "1");
  click("cmdCalc");
  ASSERT_NE(figure(8), "");
  type("txtBBB", 1, "5");
  click("cmdCalc");
  EXPECT_EQ(figure(4), "0");
  type("txtAim", 2, "2");
  app.focus(c("txtAim", 3));
  EXPECT_EQ(figure(3), "");
  EXPECT_EQ(figure(8), "");
  EXPECT_FALSE(sheet().IsCalced);
}

}  // namespace
}  // namespace tessaron::test

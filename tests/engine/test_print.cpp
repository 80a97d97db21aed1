#include "engine_fixture.h"

namespace tessaron::test {

TEST_F(EngineTest, ThePrintoutListsFunctionsWithAnswersAndCalculations) {
  function("T x2 - 4");
  fkey("Solve");
  function("T + 1");
  app.click(c("cmdTeqn"));
  keys("2 + 3 =");
  host.answers.push_back(6);
  app.click(c("cmdPrint"));
  ASSERT_EQ(host.boxes.back().text, " Print out Equations/Calculations ??? ");
  EXPECT_EQ(host.boxes.back().title, " Vantor Calc ");
  ASSERT_EQ(host.jobs.size(), 1u);
  std::vector<std::string> lines = host.jobs[0].pages[0].lines;
  auto has = [&](const std::string& l) {
    for (const auto& x : lines)
      if (x == l) return true;
    return false;
  };
  std::string all;
  for (const auto& l : lines) all += l + "\n";
  EXPECT_TRUE(has(std::string(19, ' ') + "EQUATIONS")) << all;
  EXPECT_TRUE(has(std::string(19, ' ') + "CALCULATIONS")) << all;
  EXPECT_TRUE(has("  : No Answer Calculated ")) << all;
  // The blanks after the number are narrow on the page: the formula at
  // column 13 stays on the number's line.
  EXPECT_TRUE(has("Eqn # 2       T ^2  -  4 = ")) << all;
  // Equal residuals: the later answer goes first.
  EXPECT_TRUE(has("    : Ans# 1= -2 ")) << all;
  EXPECT_TRUE(has("    : Ans# 2 =  2 ")) << all;
  EXPECT_TRUE(has("             5 ")) << all;
}

TEST_F(EngineTest, NoToThePrintQuestionPrintsNothing) {
  host.answers.push_back(7);
  app.click(c("cmdPrint"));
  EXPECT_TRUE(host.jobs.empty());
}

}  // namespace tessaron::test

// The data sheet: entry with blanks and zeros, refusals, paging, insert and
// delete, and a sheet that outlives the form's controls.
#include "tests/statistics/statistics_fixture.h"

namespace tessaron::test {
namespace {

using Sheet = StatisticsFixture;

TEST_F(Sheet, ZeroCountsAsDataABlankDoesNot) {
  entries({"0", "", "5"});
  EXPECT_EQ(sheet().DataCount, 2);
  EXPECT_EQ(sheet().DataText[1], "0.");
  EXPECT_EQ(sheet().DataText[2], "");
  EXPECT_EQ(sheet().Aim[1], 3);
  EXPECT_EQ(figure(0), "2");
  EXPECT_EQ(figure(2), "2.5");
  EXPECT_EQ(c("txtAim", 1).Text, "3");
}

// The test of six decimals is on the number as typed: figures whose
// binary value times a million is not whole are still taken.
TEST_F(Sheet, SixDecimalsCountedOnTheTypedNumber) {
  entries({"4.35", "2.01", "0.000001", "-524.231"});
  EXPECT_TRUE(messages().empty());
  EXPECT_EQ(sheet().DataCount, 4);
  EXPECT_EQ(sheet().DataText[1], "4.35");
  EXPECT_EQ(sheet().DataText[3], "0.000001");
  type("txtBBB", 5, "0.0000001");
  enter("txtBBB", 5);
  ASSERT_EQ(messages().size(), 1u);
  EXPECT_EQ(messages()[0], " Sorry! Upto  0.000 001,  No Lower Numer. ");
  EXPECT_EQ(cell(5), "");
  EXPECT_EQ(app.focused(), &c("txtBBB", 5));
  EXPECT_EQ(sheet().DataCount, 4);
  // Beyond the decimal type at both ends: refused, never a failure.
  type("txtBBB", 5, "1e-300");
  enter("txtBBB", 5);
  type("txtBBB", 5, "1e300");
  enter("txtBBB", 5);
  EXPECT_EQ(messages(), (std::vector<std::string>{" Sorry! Upto  0.000 001,  No Lower Numer. ",
                                                  " Sorry! Upto  0.000 001,  No Lower Numer. ",
                                                  " Sorry!  Too  Long / Big  ... "}));
  EXPECT_FALSE(app.failed());
  EXPECT_EQ(sheet().DataCount, 4);
}

TEST_F(Sheet, RefusalsKeepTheSheet) {
  entries({"7", "8"});
  type("txtBBB", 1, "abc");
  click("cmdCalc");
  type("txtBBB", 2, "1234.5678");
  enter("txtBBB", 2);
  type("txtBBB", 2, "1000000");
  enter("txtBBB", 2);
  EXPECT_EQ(messages(), (std::vector<std::string>{" Please Enter Number Only ! ",
                                                  " Sorry!  Too  Long / Big  ... ",
                                                  " Sorry!  Too  Long / Big  ... "}));
  EXPECT_EQ(cell(1), "7.");
  EXPECT_EQ(sheet().DataText[2], "8.");
  EXPECT_EQ(sheet().DataCount, 2);
  EXPECT_EQ(sheet().DataSum, 15);
}

TEST_F(Sheet, BlanksOfSpacesAreBlank) {
  entries({"3", std::string(23, ' '), "4"});
  EXPECT_EQ(sheet().DataCount, 2);
  EXPECT_EQ(sheet().DataText[2], "");
  type("txtBBB", 2, std::string(24, ' '));
  enter("txtBBB", 2);
  EXPECT_EQ(messages(), std::vector<std::string>{" Please Enter Number Only ! "});
}

TEST_F(Sheet, PagesByFiveAndStopsAtTwelveHundred) {
  std::vector<std::string> texts;
  for (int i = 1; i <= 1200; ++i) texts.push_back(std::to_string(i % 97));
  entries(texts);
  EXPECT_EQ(messages(), std::vector<std::string>{" Sorry!  Too Many Data ... "});
  EXPECT_EQ(app.focused(), &c("cmdCalc"));
  EXPECT_EQ(sheet().DataCount, 1200);
  EXPECT_EQ(sheet().Aim[1], 1200);
  EXPECT_EQ(c("txtAim", 1).Text, "1,200");
  EXPECT_EQ(sheet().PageBase, 1185);
  EXPECT_EQ(place(15), "1,200");
  EXPECT_EQ(cell(15), Format(Value(1200 % 97), kMaskData));
  EXPECT_EQ(place(16), "1,201");
  EXPECT_EQ(sheet().DataText[1201], "");
  EXPECT_EQ(sheet().DataCount, 1200);
}

TEST_F(Sheet, InsertOpensABlankPlace) {
  entries({"1", "2", "3"});
  // First place.
  app.focus(c("txtBBB", 1));
  click("cmdInsert");
  EXPECT_EQ(cell(1), "");
  EXPECT_EQ(cell(2), "1.");
  EXPECT_EQ(cell(4), "3.");
  EXPECT_EQ(sheet().Aim[1], 4);
  EXPECT_EQ(sheet().DataCount, 3);
  EXPECT_EQ(app.focused(), &c("txtBBB", 1));
  // A middle place.
  app.focus(c("txtBBB", 3));
  click("cmdInsert");
  EXPECT_EQ(cell(3), "");
  EXPECT_EQ(cell(4), "2.");
  EXPECT_EQ(cell(5), "3.");
  EXPECT_EQ(sheet().Aim[1], 5);
  // The last place: the datum moves on, and Last with it.
  app.focus(c("txtBBB", 5));
  click("cmdInsert");
  EXPECT_EQ(cell(5), "");
  EXPECT_EQ(cell(6), "3.");
  EXPECT_EQ(sheet().Aim[1], 6);
  EXPECT_EQ(c("txtAim", 1).Text, "6");
  EXPECT_EQ(sheet().DataCount, 3);
  EXPECT_EQ(sheet().DataSum, 6);
}

TEST_F(Sheet, DeleteClosesThePlace) {
  entries({"1", "2", "3", "4", "5"});
  app.focus(c("txtBBB", 5));
  click("cmdOne");
  EXPECT_EQ(cell(5), "");
  EXPECT_EQ(sheet().DataCount, 4);
  EXPECT_EQ(sheet().Aim[1], 4);
  app.focus(c("txtBBB", 2));
  click("cmdOne");
  EXPECT_EQ(cell(2), "3.");
  EXPECT_EQ(cell(3), "4.");
  EXPECT_EQ(cell(4), "");
  app.focus(c("txtBBB", 1));
  click("cmdOne");
  EXPECT_EQ(cell(1), "3.");
  EXPECT_EQ(cell(2), "4.");
  EXPECT_EQ(sheet().DataCount, 2);
  EXPECT_EQ(sheet().Aim[1], 2);
  EXPECT_EQ(c("txtAim", 1).Text, "2");
}

// The sum is taken before the place closes up: it holds the deleted amount
// until the next edit.
TEST_F(Sheet, DeleteLeavesTheSumUntilTheNextEdit) {
  entries({"10", "20", "30"});
  app.focus(c("txtBBB", 2));
  click("cmdOne");
  EXPECT_EQ(sheet().DataSum, 60);
  EXPECT_EQ(figure(2), "30");
  type("txtBBB", 3, "1");
  click("cmdCalc");
  EXPECT_EQ(sheet().DataSum, 41);
}

TEST_F(Sheet, DeletingTheLastDatumEmptiesTheSheet) {
  entries({"9"});
  app.focus(c("txtBBB", 1));
  click("cmdOne");
  EXPECT_EQ(sheet().DataCount, 0);
  EXPECT_EQ(sheet().Aim[1], 0);
  EXPECT_EQ(c("txtAim", 1).Text, "");
  EXPECT_EQ(app.focused(), &c("txtBBB", 1));
  EXPECT_EQ(app.failed(), false);
}

TEST_F(Sheet, InsertAndDeleteWithNoCellChosenDoNothing) {
  click("cmdInsert");
  click("cmdOne");
  EXPECT_FALSE(app.failed());
  EXPECT_EQ(sheet().DataCount, 0);
}

TEST_F(Sheet, OutlivesTheFormsControls) {
  entries({"2", "", "4", "0"});
  type("txtAim", 2, "1");
  type("txtAim", 3, "0");
  click("cmdExit");
  EXPECT_EQ(app.loaded("frmStatistics"), nullptr);
  app.show(app.form("frmStatistics"));
  EXPECT_EQ(sheet().DataCount, 3);
  EXPECT_EQ(c("fmData").Caption, "Sorted");
  EXPECT_EQ(place(1), "1");
  EXPECT_EQ(cell(1), "");
  EXPECT_EQ(cell(2), "0.");
  EXPECT_EQ(cell(3), "2.");
  EXPECT_EQ(c("txtAim", 1).Text, "4");
  EXPECT_EQ(c("txtAim", 2).Text, "1.");
  // A limit of 0 is not written back into its box, though it still counts.
  EXPECT_EQ(c("txtAim", 3).Text, "");
  EXPECT_EQ(figure(3), "1.632993");
  // The box decides whether the data above the limit are counted, its kept
  // text whether the share is predicted.
  EXPECT_EQ(figure(5), "0");
  EXPECT_EQ(figure(9), "88.96 %");
  // Editing returns to place order, on the first page.
  app.focus(c("txtBBB", 3));
  EXPECT_EQ(c("fmData").Caption, "Data");
  EXPECT_EQ(sheet().DataPlace, 3);
}

TEST_F(Sheet, LastIsGuarded) {
  entries({"1", "2", "3"});
  type("txtAim", 1, "2");
  click("cmdCalc");
  type("txtAim", 1, "2.5");
  click("cmdCalc");
  type("txtAim", 1, "1201");
  click("cmdCalc");
  EXPECT_EQ(messages(),
            (std::vector<std::string>{" Must be Integer >= Count, 0-1200 ", " Must be Integer ",
                                      " Must be Integer >= Count, 0-1200 "}));
  type("txtAim", 1, "40");
  click("cmdCalc");
  EXPECT_EQ(sheet().Aim[1], 40);
  EXPECT_EQ(c("scrFive").Max(), 4);
  // Blanks among the places: the average over all places.
  EXPECT_DOUBLE_EQ(sheet().AvgAll, 6.0 / 40);
}

}  // namespace
// Last may be set just past the pages (21 shows pages 1-20), and a datum
// can stand there. Delete 1 and Insert move the places over it as well:
// Delete leaves no copy of it behind, Insert writes nothing over it, and the
// count stays the number of data.
TEST_F(Sheet, DataPastThePagesMoveWithThePlaces) {
  auto held = [this] {
    int n = 0;
    for (int i = 1; i < StatisticsSheet::kPlaces; ++i) n += sheet().DataText[i].empty() ? 0 : 1;
    return n;
  };
  entries({"1", "2", "3"});
  StatisticsSheet& S = sheet();
  S.DataText[21] = "5";
  S.Data[21] = 5;
  S.DataCount += 1;
  // Last typed as 21 as the user leaves for Delete 1: the pages shrink to
  // 1-20 just before the click.
  app.focus(c("txtBBB", 2));
  app.focus(c("txtAim", 1));
  type("txtAim", 1, "21");
  click("cmdOne");
  EXPECT_EQ(c("scrFive").Max(), 0);
  EXPECT_EQ(held(), S.DataCount);
  EXPECT_EQ(S.DataText[20], "5");
  EXPECT_EQ(S.DataText[21], "");
  S.DataText[20] = "";
  S.DataText[21] = "5";
  app.focus(c("txtBBB", 1));
  app.focus(c("txtAim", 1));
  type("txtAim", 1, "21");
  click("cmdInsert");
  EXPECT_EQ(held(), S.DataCount);
  EXPECT_EQ(S.DataText[22], "5");
}

}  // namespace tessaron::test

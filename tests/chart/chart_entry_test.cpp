// The chart's model and entry, driven through the suite as a user would.
#include <random>

#include "tests/chart/chart_fixture.h"

namespace tessaron::test {
namespace {

using ChartEntry = ChartFixture;

TEST_F(ChartEntry, DigitWidthsCountHalfDigitsWithTheirCommas) {
  const int want[19] = {3, 5, 7, 10, 12, 14, 17, 19, 21, 24, 26, 28, 31, 33, 35, 38, 40, 42, 45};
  for (int I = 1; I <= 19; ++I) EXPECT_EQ(chart().DigitWidth(I), Value(want[I - 1])) << I;
  EXPECT_THROW(chart().DigitWidth(20), Failure);
}

TEST_F(ChartEntry, CellArraysRunFromZeroToSixty) {
  EXPECT_NO_THROW(chart().CellVal(60));
  EXPECT_NO_THROW(chart().CellPad(0));
  try {
    chart().CellShown(61);
    FAIL() << "index 61 was taken";
  } catch (const Failure& f) {
    EXPECT_STREQ(f.what(), "Subscript out of range");
  }
}

TEST_F(ChartEntry, UpToTwentyThreeBlanksAreABlank) {
  sum().PubCheckSpace(std::string(23, ' '));
  EXPECT_TRUE(chart().SpaceFlag);
  sum().PubCheckSpace(" ");
  EXPECT_TRUE(chart().SpaceFlag);
  sum().PubCheckSpace(std::string(24, ' '));
  EXPECT_FALSE(chart().SpaceFlag);
  sum().PubCheckSpace("");
  EXPECT_FALSE(chart().SpaceFlag);
  sum().PubCheckSpace(" 1");
  EXPECT_FALSE(chart().SpaceFlag);
}

TEST_F(ChartEntry, ZeroIsStoredAsADecThatReadsAsBlank) {
  enter(1, "0");
  EXPECT_EQ(chart().CellVal(1).kind(), Kind::Dec);
  EXPECT_EQ(chart().CellVal(1), Value(0));
  EXPECT_EQ(text(1), "");
  EXPECT_FALSE(c("cmdPrint").Enabled);
}

TEST_F(ChartEntry, AmountsStayDecFromTheBoxToTheTotal) {
  enter(1, "0.1");
  enter(2, "0.2");
  enter(13, "-0.3");
  EXPECT_EQ(chart().CellVal(1).kind(), Kind::Dec);
  EXPECT_EQ(chart().SumAAA.kind(), Kind::Dec);
  EXPECT_EQ(chart().SumAll, Value(0));
  EXPECT_EQ(chart().SumAll.kind(), Kind::Dec);
  // Options give the focus back to the working cell; a blank one here, since a
  // cell left again takes the rounded figure it shows.
  app.focus(cell(5));
  click("optZero");
  EXPECT_EQ(chart().CellShown(1).kind(), Kind::Dec);
  click("optTwo");
  EXPECT_EQ(chart().CellShown(13).kind(), Kind::Dec);
  EXPECT_EQ(chart().CellShown(13), CDec(Value("-0.3")));
  // The guard's floor stays a Real while no amount is larger.
  EXPECT_EQ(chart().MaxMag.kind(), Kind::Real);
}

TEST_F(ChartEntry, ACellLeftAgainTakesTheRoundedFigureItShows) {
  enter(13, "-0.3");
  click("optZero");
  EXPECT_EQ(app.focused(), &cell(13));
  EXPECT_EQ(text(13), "0.");
  EXPECT_EQ(chart().CellVal(13), CDec(Value("-0.3")));
  app.focus(c("cmdCalc"));
  EXPECT_EQ(chart().CellVal(13), Value(0));
  EXPECT_EQ(text(13), "");
  EXPECT_EQ(amt(2), "0.");
}

TEST_F(ChartEntry, TabIntoTheSentinelLeavesNoWorkingCell) {
  enter(24, "7");
  app.focus(cell(24));
  app.focus(cell(37));
  EXPECT_EQ(app.focused(), &c("cmdCalc"));
  EXPECT_EQ(chart().CurCell, Value(0));
  // Back-tab before the first cell does the same.
  app.focus(cell(1));
  app.focus(cell(0));
  EXPECT_EQ(app.focused(), &c("cmdCalc"));
  EXPECT_EQ(chart().CurCell, Value(0));
}

TEST_F(ChartEntry, EnterInTheLastCellStaysOnCalc) {
  app.type(cell(24), "3");
  app.press(cell(24), 13);
  EXPECT_EQ(app.focused(), &c("cmdCalc"));
  EXPECT_EQ(amt(2), "3.");
}

TEST_F(ChartEntry, EnterWalksToTheNextBlankCell) {
  enter(3, "1");
  app.type(cell(2), "5");
  app.press(cell(2), 13);
  EXPECT_EQ(app.focused(), &cell(4));
}

TEST_F(ChartEntry, EnterInABlankFirstCellDoesNotDitto) {
  app.focus(cell(1));
  app.press(cell(1), 13);
  EXPECT_EQ(chart().CellVal(1), Value(0));
  EXPECT_EQ(app.focused(), &cell(2));
}

TEST_F(ChartEntry, ClearOneWithoutACellInTheColumnsTakesTheLastCell) {
  click("optSign", 6);
  enter(24, "4");
  enter(30, "9");
  app.focus(cell(30));
  click("optSign", 0);
  EXPECT_EQ(app.focused(), &c("cmdCalc"));
  ASSERT_TRUE(c("cmdCcc").Enabled);
  click("cmdCcc");
  EXPECT_EQ(text(24), "");
  EXPECT_EQ(chart().CellVal(24), Value(0));
  EXPECT_EQ(chart().CellVal(30), CDec(Value("9")));
  EXPECT_EQ(app.focused(), &cell(24));
}

TEST_F(ChartEntry, TheThirdColumnKeepsItsAmountsInTwoColumnMode) {
  click("optSign", 6);
  enter(25, "12.5");
  click("optSign", 0);
  EXPECT_EQ(chart().CellVal(25), CDec(Value("12.5")));
  EXPECT_EQ(chart().LastCell, Value(24));
  // PubJari still sees it: the chart shows two decimals.
  enter(1, "1");
  EXPECT_EQ(text(1), "1.00");
}

TEST_F(ChartEntry, ReopeningRepaintsTheChartFromItsKeptAmounts) {
  click("optSign", 6);
  enter(1, "2");
  enter(30, "3.5");
  reopen();
  EXPECT_EQ(chart().LastCell, Value(36));
  EXPECT_TRUE(cell(30).Visible);
  EXPECT_EQ(text(30), "3.50");
  EXPECT_EQ(amt(0), "5.50");
  EXPECT_TRUE(c("cmdPrint").Enabled);
}

// Load looks for a kept chart in AAA and BBB only: amounts left in the third
// data column alone show again with the next entry.
TEST_F(ChartEntry, AThirdColumnAloneShowsAgainWithTheNextEntry) {
  click("optSign", 6);
  enter(30, "3.5");
  reopen();
  EXPECT_EQ(text(30), "");
  EXPECT_EQ(chart().CellVal(30), CDec(Value("3.5")));
  enter(1, "2");
  EXPECT_EQ(text(30), "3.50");
  EXPECT_EQ(amt(0), "5.50");
}

TEST_F(ChartEntry, AProductAtNineteenDigitsPasses) {
  click("optSign", 3);
  enter(1, "99999999999");
  enter(13, "100000000");
  EXPECT_TRUE(host.boxes.empty());
  EXPECT_EQ(chart().SignMode, 3);
  EXPECT_EQ(chart().CellShown(41), CDec(Value("9999999999900000000")));
  EXPECT_EQ(ans(1), "9,999,999,999,900,000,000.");
}

TEST_F(ChartEntry, TwoDecimalsPadLikeTwoPlacesWithoutDecimalsEntered) {
  enter(1, "5");
  EXPECT_EQ(chart().CellPad(1), 51 - 3);
  click("optTwo");
  EXPECT_EQ(chart().MaxDec, Value(2));
  EXPECT_EQ(chart().CellPad(1), 51 - 3 - 4);
}

TEST_F(ChartEntry, PadsCountDigitsThroughTheLogarithm) {
  enter(1, "999");
  enter(2, "1234");
  enter(3, "-10");
  EXPECT_EQ(chart().CellPad(1), 51 - 7);
  EXPECT_EQ(chart().CellPad(2), 51 - 10);
  EXPECT_EQ(chart().CellPad(3), 51 - 5 - 1);
  // Log(1000) / Log(10) falls just short of 3 in binary floating point, so
  // 1,000 is padded as a three-digit figure.
  enter(4, "1000");
  EXPECT_EQ(chart().CellPad(4), 51 - 7);
}

TEST_F(ChartEntry, BalanceIsBlueWhenAAALeadsAndRedWhenBBBDoes) {
  click("optBal");
  enter(1, "5");
  enter(13, "3");
  EXPECT_EQ(c("lblAmt", 0).ForeColor, 0xFF0000);
  enter(14, "3");
  EXPECT_EQ(c("lblAmt", 0).ForeColor, 255);
  EXPECT_EQ(amt(0), "-1.");
}

std::vector<const DrawOp*> TextOps(const PrintJob& job) {
  std::vector<const DrawOp*> out;
  for (const DrawOp& op : job.pages.at(0).ops)
    if (op.kind == DrawOp::Kind::Text) out.push_back(&op);
  return out;
}

TEST_F(ChartEntry, ThePrintedBalanceTakesItsColour) {
  click("optBal");
  enter(1, "5");
  enter(13, "8");
  host.answers.push_back(6);
  click("cmdPrint");
  ASSERT_EQ(host.jobs.size(), 1u);
  const auto ops = TextOps(host.jobs.back());
  bool seen = false;
  for (size_t k = 0; k < ops.size(); ++k)
    if (ops[k]->text == "    Balance  :") {
      seen = true;
      EXPECT_EQ(ops[k]->colour, 255);
      ASSERT_LT(k + 1, ops.size());
      EXPECT_EQ(ops[k + 1]->colour, 255);
      EXPECT_NE(ops[k + 1]->text.find("-3."), std::string::npos);
    }
  EXPECT_TRUE(seen);
  // The name at the foot goes back to black, in small type.
  EXPECT_EQ(ops.back()->text, "Tessaron");
  EXPECT_EQ(ops.back()->colour, 0);
  EXPECT_EQ(ops.back()->size, 8);
  EXPECT_EQ(ops.back()->y1, 13000);
}

TEST_F(ChartEntry, PrintingChangesNoChartVariable) {
  enter(1, "1.5");
  enter(13, "2");
  const Value before = chart().SumAll;
  const int pad = chart().CellPad(1);
  host.answers.push_back(6);
  click("cmdPrint");
  EXPECT_EQ(chart().SumAll, before);
  EXPECT_EQ(chart().CellPad(1), pad);
  EXPECT_EQ(text(1), "1.50");
}

// Whatever is typed, pasted or deleted, once the focus has left the cells
// each column's total is the sum of the figures its cells show.
TEST_F(ChartEntry, TotalsAlwaysAgreeWithTheCellsShown) {
  std::mt19937 rng(13);
  const char* const texts[] = {"5",
                               "-2.25",
                               "1,234.5",
                               "0.125",
                               "abc",
                               "",
                               "   ",
                               "0",
                               "99999999999999999",
                               "-0.5",
                               "12.3456789",
                               "7e2",
                               "1e25",
                               "100000000000",
                               "0.000001"};
  const char* const options[] = {"optAuto", "optTwo", "optFull", "optZero", "optTtl", "optBal"};
  auto shownSum = [&](int from, int to) {
    Value s = Value(0);
    for (int i = from; i <= to; ++i) {
      std::string t;
      for (char ch : text(i))
        if (ch != ',' && ch != ' ') t += ch;
      if (!t.empty()) s = s + CDec(Value(t));
    }
    return s;
  };
  for (int step = 0; step < 400; ++step) {
    const int what = static_cast<int>(rng() % 10);
    const int i = 1 + static_cast<int>(rng() % 24);
    if (what < 6) {
      app.type(cell(i), texts[rng() % std::size(texts)]);
    } else if (what == 6) {
      app.focus(cell(i));
      if (c("cmdCcc").Enabled) click("cmdCcc");
    } else if (what == 7) {
      app.focus(cell(i));
      app.press(cell(i), 13);
    } else if (what == 8) {
      app.focus(cell(i));
      if (c("cmdDitto").Enabled) click("cmdDitto");
    } else {
      click(options[rng() % std::size(options)]);
    }
    app.focus(c("cmdCalc"));
    SCOPED_TRACE("step " + std::to_string(step));
    ASSERT_EQ(chart().SumAAA, shownSum(1, 12));
    ASSERT_EQ(chart().SumBBB, shownSum(13, 24));
    ASSERT_EQ(amt(1), Format(chart().SumAAA, chart().CellMask));
  }
}

}  // namespace
}  // namespace tessaron::test

// The converter's table, its choice of unit and its two boxes.
#include <set>
#include <vector>

#include "tests/units/conver_fixture.h"

namespace tessaron::test {
namespace {

class Conver : public ConverFixture {};

TEST_F(Conver, HeadingsNameTheTenColumns) {
  const char* headings[] = {"DISTANCE",    "AREA",   "VOLUME",    "WEIGHT,MASS", "WATER",
                            "ENERGY,WORK", "POWER ", "PRESSURE ", "TEMPERATURE", "OTHERS"};
  for (int col = 1; col <= 10; ++col) EXPECT_EQ(cell(0, col), headings[col - 1]) << col;
  EXPECT_EQ(cell(0, 0), "");
}

TEST_F(Conver, KoreaShowsItsRowsAndMostCountriesEmptyThem) {
  const Grid& grid = c("Table").grid();
  auto textAt = [](int row, int col) -> std::string {
    for (const UnitCell& u : UnitCells())
      if (u.row == row && u.col == col) return u.text;
    return "";
  };
  auto korean = [](int row, int col) {
    for (const UnitCell& u : UnitCells())
      if (u.row == row && u.col == col) return u.korea;
    return false;
  };
  EXPECT_EQ(c("optCoun", frmConver::kMostUsa).value(), Value(true));
  for (int pass = 0; pass < 3; ++pass) {
    const bool korea = pass == 1;
    if (pass > 0) click("optCoun", korea ? frmConver::kKorea : frmConver::kMostUsa);
    for (int row = 1; row < grid.Rows(); ++row)
      for (int col = 0; col < grid.Cols(); ++col) {
        const std::string want = korean(row, col) && !korea ? "" : textAt(row, col);
        EXPECT_EQ(cell(row, col), want) << row << "," << col << (korea ? " Korea" : "");
      }
  }
}

TEST_F(Conver, TheKoreanRowsAreTheUnitsOfKorea) {
  std::set<int> ks;
  std::vector<std::string> facts;
  for (const UnitCell& u : UnitCells())
    if (u.korea) (u.k ? ks.insert(u.k), void() : facts.push_back(u.text));
  EXPECT_EQ(ks, (std::set<int>{7, 8, 15, 16, 17, 18, 29}));
  EXPECT_EQ(facts, (std::vector<std::string>{" =abt 70yd X 70yd", "     = 6 ja X 6 ja",
                                             "mal=10 doe=100 hob", "gwan=3.75 kg(or 1kg)",
                                             "don=3.75 g", "gun=600 g (or 100g)"}));
}

TEST_F(Conver, EveryConversionCellChoosesItsUnitsAndShowsOneUnitA) {
  click("optCoun", frmConver::kKorea);
  int cells = 0;
  for (const UnitCell& u : UnitCells()) {
    if (u.k == 0) continue;
    SCOPED_TRACE(u.text);
    ++cells;
    clickCell(u.row, u.col);
    const int k = u.k;
    EXPECT_EQ(conver().CurrentUnit, k);
    EXPECT_EQ(caption("lblAA"), conver().UnitA[k]);
    EXPECT_EQ(caption("lblBB"), conver().UnitB[k]);
    EXPECT_NE(conver().UnitA[k], "");
    EXPECT_NE(conver().UnitB[k], "");
    EXPECT_EQ(conver().FromValue, Value(1));
    EXPECT_EQ(c("txtAA").ForeColor, 0);
    if (k == 22) continue;
    EXPECT_EQ(text("txtAA"), "1");
    EXPECT_NE(text("txtBB"), "");
  }
  // Two cells choose the pound in kilograms and three the Fahrenheit scale.
  EXPECT_EQ(cells, 66);
}

TEST_F(Conver, UnitsWithoutACellAreNotFilled) {
  std::set<int> withCell;
  for (const UnitCell& u : UnitCells()) withCell.insert(u.k);
  for (int k = 0; k < 100; ++k) {
    if (withCell.contains(k) && k != 0) {
      EXPECT_TRUE(conver().UnitFactor[k] != Value(0)) << k;
      continue;
    }
    EXPECT_EQ(conver().UnitA[k], "") << k;
    EXPECT_EQ(conver().UnitFactor[k].kind(), Kind::Empty) << k;
  }
}

TEST_F(Conver, FactorsDerivedFromOthersFollowThem) {
  const frmConver& f = conver();
  EXPECT_EQ(f.UnitFactor[5], f.UnitFactor[4] * f.UnitFactor[3] / Value(1000));
  EXPECT_EQ(f.UnitFactor[25], f.UnitFactor[24] / Value(4));
  EXPECT_EQ(f.UnitFactor[34], Value(1000) / f.UnitFactor[32]);
  EXPECT_EQ(f.UnitFactor[83], f.UnitFactor[5]);
  EXPECT_EQ(f.UnitFactor[21].kind(), Kind::Real);
  EXPECT_EQ(f.UnitFactor[4].kind(), Kind::Int16);
  EXPECT_EQ(f.UnitFactor[14].kind(), Kind::Int32);
}

TEST_F(Conver, ACellThatChoosesNothingLeavesNoUnit) {
  clickCell(5, 1);
  ASSERT_EQ(conver().CurrentUnit, 4);
  clickCell(1, 1);  // "ft=12 in ,   yd=3 ft"
  EXPECT_EQ(conver().CurrentUnit, 0);
  clickCell(5, 1);
  clickCell(10, 1);  // the ja, empty under most countries
  EXPECT_EQ(conver().CurrentUnit, 0);
  clickCell(3, 9);  // an empty cell of the temperatures
  EXPECT_EQ(conver().CurrentUnit, 0);
}

TEST_F(Conver, TheThirdFahrenheitCellSetsNoValueOfItsOwn) {
  clickCell(4, 9);  // "97.7F= 36.5C"
  EXPECT_EQ(conver().CurrentUnit, 71);
  EXPECT_EQ(text("txtAA"), "1");
  EXPECT_EQ(text("txtBB"), "-17.2222");
}

TEST_F(Conver, TheCubicMetreCellShowsTheWholeMetre) {
  clickCell(2, 3);
  EXPECT_EQ(text("txtAA"), "61,024.");
  EXPECT_EQ(text("txtBB"), "1");
  // The values behind the boxes stay those of one cubic inch.
  EXPECT_EQ(conver().FromValue, Value(1));
  EXPECT_DOUBLE_EQ(conver().ToValue.number(), 0.0254 * 0.0254 * 0.0254);
  enter("txtAA", "61024");
  EXPECT_EQ(text("txtBB"), "1.000004");
}

TEST_F(Conver, TypingBeforeAUnitIsChosenSendsTheFocusToTheTable) {
  app.type(c("txtAA"), "12");
  EXPECT_EQ(app.focused(), &c("Table"));
  EXPECT_EQ(text("txtAA"), "click table ");
  app.type(c("txtBB"), "12");
  EXPECT_EQ(app.focused(), &c("Table"));
  EXPECT_EQ(text("txtBB"), "& type-in");
  EXPECT_TRUE(host.boxes.empty());
}

TEST_F(Conver, FocusInABoxClearsBothAndMarksItBlue) {
  clickCell(2, 1);
  app.focus(c("txtBB"));
  EXPECT_EQ(text("txtAA"), "");
  EXPECT_EQ(text("txtBB"), "");
  EXPECT_EQ(c("txtBB").ForeColor, 0xFF0000);
  enter("txtBB", "100");
  EXPECT_EQ(c("txtBB").ForeColor, 0);
  EXPECT_EQ(text("txtAA"), "39.3701");
  EXPECT_EQ(app.focused(), &c("Table"));
}

TEST_F(Conver, NotANumberIsRefusedAndBothBoxesEmptied) {
  for (const char* bad : {"abc", "", "   ", "1.2.3", "12abc", "-", "."}) {
    SCOPED_TRACE(bad);
    clickCell(2, 1);
    host.boxes.clear();
    app.type(c("txtAA"), bad);
    app.press(c("txtAA"), 13);
    ASSERT_EQ(host.boxes.size(), 1u);
    EXPECT_EQ(host.boxes[0].text, " Please Enter Numbers Only ! ");
    EXPECT_EQ(host.boxes[0].flags, 48);
    EXPECT_EQ(host.boxes[0].title, "Tessaron");
    EXPECT_EQ(app.focused(), &c("txtAA"));
    EXPECT_EQ(text("txtAA"), "");
    EXPECT_EQ(text("txtBB"), "");
    EXPECT_EQ(c("txtAA").ForeColor, 0xFF0000);
  }
}

TEST_F(Conver, ValReadsWhatIsNumericUpToItsFirstComma) {
  clickCell(5, 1);
  enter("txtAA", "1,234");
  EXPECT_EQ(conver().FromValue, Value(1.0));
  EXPECT_EQ(text("txtBB"), "1,760.");
}

TEST_F(Conver, TheFootBecomesFeetAboveOne) {
  clickCell(3, 1);
  EXPECT_EQ(caption("lblAA"), " foot ");
  enter("txtAA", "2");
  EXPECT_EQ(caption("lblAA"), " feet ");
  enter("txtAA", "1");
  EXPECT_EQ(caption("lblAA"), " foot ");
  enter("txtBB", "100");
  EXPECT_EQ(caption("lblAA"), " feet ");
  EXPECT_EQ(text("txtAA"), "3.28084");
  enter("txtBB", "30.48");
  EXPECT_EQ(caption("lblAA"), " foot ");
}

TEST_F(Conver, MasksFollowTheSizeOfTheFigure) {
  clickCell(3, 1);  // 30.48 cm a foot
  enter("txtBB", "10");
  EXPECT_EQ(text("txtAA"), "0.328084");
  enter("txtAA", "0.25");
  EXPECT_EQ(text("txtBB"), "7.62");
  enter("txtAA", "33");  // 1005.84: two decimals above 1000
  EXPECT_EQ(text("txtBB"), "1,005.84");
  enter("txtAA", "33.3333333");  // 1015.999998984
  EXPECT_EQ(text("txtBB"), "1,016.");
  enter("txtAA", "3333.33333");  // 101,599.9998984: none above 10^5
  EXPECT_EQ(text("txtBB"), "101,600.");
  enter("txtAA", "-4000");  // -121,920 is above 10^5 in size
  EXPECT_EQ(text("txtBB"), "-121,920.");
}

TEST_F(Conver, ExitClosesTheForm) {
  click("cmdExit");
  EXPECT_EQ(app.loaded("frmConver"), nullptr);
}

}  // namespace
}  // namespace tessaron::test

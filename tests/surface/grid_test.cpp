// The grid: fixed row and column counts, cells addressed by Row and Col.
#include <gtest/gtest.h>

#include "numeric/numeric.h"
#include "surface/grid.h"

namespace tessaron {
namespace {

TEST(GridTest, StartsOnTheFirstCellOutsideTheFixedOnes) {
  Grid g(5, 3, 1, 1);
  EXPECT_EQ(g.Rows(), 5);
  EXPECT_EQ(g.Cols(), 3);
  EXPECT_EQ(g.FixedRows(), 1);
  EXPECT_EQ(g.FixedCols(), 1);
  EXPECT_EQ(g.Row(), 1);
  EXPECT_EQ(g.Col(), 1);
}

TEST(GridTest, TextAndFormatsBelongToTheCellAtRowAndCol) {
  Grid g(5, 3, 1, 1);
  g.setRow(2);
  g.setCol(0);
  g.setText("Metre");
  g.setCellFontSize(10);
  g.setCellAlignment(1);
  g.setRow(3);
  EXPECT_EQ(g.Text(), "");
  g.setRow(2);
  EXPECT_EQ(g.Text(), "Metre");
  EXPECT_EQ(g.CellFontSize(), 10);
  EXPECT_EQ(g.CellAlignment(), 1);
  EXPECT_EQ(g.TextMatrix(2, 0), "Metre");
}

TEST(GridTest, FixedCellsCanBeWritten) {
  Grid g(3, 3, 1, 1);
  g.setRow(0);
  g.setCol(2);
  g.setText("Head");
  EXPECT_EQ(g.TextMatrix(0, 2), "Head");
}

TEST(GridTest, OutsideTheTableIsSubscriptOutOfRange) {
  Grid g(4, 3, 1, 1);
  try {
    g.setRow(4);
    FAIL() << "no failure";
  } catch (const Failure& e) {
    EXPECT_STREQ(e.what(), "Subscript out of range");
  }
  EXPECT_THROW(g.setCol(3), Failure);
  EXPECT_THROW(g.setRow(-1), Failure);
  EXPECT_THROW(g.setColWidth(3, 100), Failure);
  EXPECT_THROW(g.RowHeight(4), Failure);
  EXPECT_EQ(g.Row(), 1) << "a failed move leaves the cell where it was";
}

TEST(GridTest, ColumnWidthsAndRowHeightsAreTwips) {
  Grid g(4, 3, 1, 1);
  g.setColWidth(0, 2400);
  g.setRowHeight(3, 360);
  EXPECT_EQ(g.ColWidth(0), 2400);
  EXPECT_EQ(g.RowHeight(3), 360);
  EXPECT_GT(g.ColWidth(1), 0);
}

}  // namespace
}  // namespace tessaron

#include "surface/grid.h"

#include "numeric/numeric.h"

namespace tessaron {

namespace {
void check(int i, int count) {
  if (i < 0 || i >= count) throw Failure("Subscript out of range");
}
}  // namespace

Grid::Grid(int rows, int cols, int fixedRows, int fixedCols)
    : rows_(rows),
      cols_(cols),
      fixedRows_(fixedRows),
      fixedCols_(fixedCols),
      row_(fixedRows < rows ? fixedRows : 0),
      col_(fixedCols < cols ? fixedCols : 0),
      cells_(static_cast<size_t>(rows) * cols),
      colWidths_(cols, 960),
      rowHeights_(rows, 240) {}

void Grid::setRows(int rows) {
  if (rows < fixedRows_) throw Failure("Invalid procedure call or argument");
  cells_.resize(static_cast<size_t>(rows) * cols_);
  rowHeights_.resize(rows, 240);
  rows_ = rows;
  if (row_ >= rows_) row_ = rows_ - 1;
}

void Grid::setRow(int row) {
  check(row, rows_);
  row_ = row;
}

void Grid::setCol(int col) {
  check(col, cols_);
  col_ = col;
}

int Grid::ColWidth(int col) const {
  check(col, cols_);
  return colWidths_[col];
}

void Grid::setColWidth(int col, int twips) {
  check(col, cols_);
  colWidths_[col] = twips;
}

int Grid::RowHeight(int row) const {
  check(row, rows_);
  return rowHeights_[row];
}

void Grid::setRowHeight(int row, int twips) {
  check(row, rows_);
  rowHeights_[row] = twips;
}

const Grid::Cell& Grid::cell(int row, int col) const {
  check(row, rows_);
  check(col, cols_);
  return cells_[static_cast<size_t>(row) * cols_ + col];
}

Grid::Cell& Grid::cell(int row, int col) {
  check(row, rows_);
  check(col, cols_);
  return cells_[static_cast<size_t>(row) * cols_ + col];
}

}  // namespace tessaron

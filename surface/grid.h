#pragma once
// A table of text cells with row and column counts fixed at design time. The
// logic addresses a cell by Row and Col, then reads or writes it.
#include <string>
#include <vector>

#include "surface/design.h"

namespace tessaron {

class Grid {
 public:
  Grid(int rows, int cols, int fixedRows, int fixedCols);

  int Rows() const { return rows_; }
  // The logic may change the row count; cells that stay keep their text.
  void setRows(int rows);
  int Cols() const { return cols_; }
  int FixedRows() const { return fixedRows_; }
  int FixedCols() const { return fixedCols_; }

  int Row() const { return row_; }
  int Col() const { return col_; }
  void setRow(int row);  // outside the table: "Subscript out of range"
  void setCol(int col);

  const std::string& Text() const { return cell(row_, col_).text; }
  void setText(std::string text) { cell(row_, col_).text = std::move(text); }
  double CellFontSize() const { return cell(row_, col_).fontSize; }
  void setCellFontSize(double size) { cell(row_, col_).fontSize = size; }
  int CellAlignment() const { return cell(row_, col_).alignment; }
  void setCellAlignment(int alignment) { cell(row_, col_).alignment = alignment; }

  int ColWidth(int col) const;
  void setColWidth(int col, int twips);
  int RowHeight(int row) const;
  void setRowHeight(int row, int twips);

  const std::string& TextMatrix(int row, int col) const { return cell(row, col).text; }
  void setTextMatrix(int row, int col, std::string text) { cell(row, col).text = std::move(text); }

  struct Cell {
    std::string text;
    double fontSize = 0;  // 0: the grid's font
    int alignment = -1;   // -1: the grid's default (numbers right, text left)
  };
  const Cell& cell(int row, int col) const;
  Cell& cell(int row, int col);

 private:
  int rows_, cols_, fixedRows_, fixedCols_;
  int row_, col_;
  std::vector<Cell> cells_;
  std::vector<int> colWidths_, rowHeights_;
};

}  // namespace tessaron

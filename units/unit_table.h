#pragma once
// The cells of the conversion table: where each fact stands, its text, the
// conversion it chooses (0: a fact to read, none to choose) and whether it is
// a unit of Korea, shown only when that country is chosen.
#include <span>

namespace tessaron {

struct UnitCell {
  int col, row;
  const char* text;
  int k;
  bool korea;
};

// Every cell of the table below its headings.
std::span<const UnitCell> UnitCells();
// The headings of columns 1 to 10.
std::span<const char* const> UnitHeadings();
// The conversion the cell chooses, 0 for none.
int UnitAt(int col, int row);

}  // namespace tessaron

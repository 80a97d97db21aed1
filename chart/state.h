#pragma once
// The chart's variables. They live in the form's kept record, so closing the
// form destroys the cells on the screen but not the amounts behind them, and
// the next Load paints the same chart again.
#include <array>
#include <string>

#include "numeric/numeric.h"

namespace tessaron {

// An array declared 0 to Hi: any other index is "Subscript out of range".
template <class T, int Lo, int Hi>
class Slots {
 public:
  T& operator()(int i) {
    if (i < Lo || i > Hi) throw Failure("Subscript out of range");
    return a_[i - Lo];
  }
  const T& operator()(int i) const { return const_cast<Slots&>(*this)(i); }
  void fill(const T& v) { a_.fill(v); }

 private:
  std::array<T, Hi - Lo + 1> a_{};
};

// Which option of a group was chosen, kept with the chart so that it comes
// back with the figures it was shown in.
enum class DecimalChoice { Auto, Two, Full, Zero };

struct ChartState {
  // Sizes, set by Load.
  Value RowCount, RowNext, LastCell, EndCell, NarrowWidth;
  int WideWidth = 0;

  // Cells 1-12 column AAA, 13-24 BBB, 25-36 the third data column, 41-52 the
  // third column's results; CellPad 55-59 belong to the totals.
  Slots<Value, 0, 60> CellVal, CellShown, CellDec;
  Slots<int, 0, 60> CellPad;
  // Width in half-digit units of a number of I digits with its commas.
  Slots<Value, 1, 19> DigitWidth;

  Value CurCell, PrevCell;
  std::string SavedText;
  bool SpaceFlag = false;
  int FirstFocus = 0;
  int SignMode = 0;
  Value MaxMag, MaxDec;
  Value SumAAA, SumBBB, SumCCC, SumAll, SumThird;
  Value Work;

  std::string MaskFull, MaskZero, MaskTwo, CellMask;

  DecimalChoice Decimals = DecimalChoice::Auto;
  bool Balance = false;
};

}  // namespace tessaron

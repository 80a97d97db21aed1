#pragma once
// The calculation history: row 0 is the calculation in hand, rows 1 to 36 the
// saved ones, newest first, each with its transcript, value and colour row.
#include <array>
#include <string>

#include "numeric/numeric.h"

namespace tessaron::kernels {

inline constexpr int kHistoryRows = 37;

struct HistoryRefs {
  std::array<std::string, kHistoryRows>& text;
  std::array<Value, kHistoryRows>& value;
  std::array<int, kHistoryRows>& colour;
};

// Whether `=` keeps the calculation: the history view at row 0, a transcript
// of six characters or more that differs from the newest row, no refusal and
// no f(T) or T value being entered.
bool SaveAtEqual(const std::string& formula, const std::string& newest, int eqnIdx, bool errFlag,
                 bool entering);
// Whether CA keeps it: the panel closed and a transcript of six characters
// or more that does not already end in "=", so an open chain is kept too.
bool SaveAtCancel(const std::string& formula, bool eqnOpen);

// Row 0 takes the calculation, then every row moves down one; the 37th
// saved calculation drops the oldest.
void SaveCalculation(HistoryRefs rows, const std::string& formula, const Value& display,
                     int colour);

}  // namespace tessaron::kernels

#pragma once
// Rounding of an answer to a number of significant digits, cutting a run of
// zeros or nines that the fifteenth digit left behind.
namespace tessaron {

double RoundX(int digits, double value);

}  // namespace tessaron

// The measures of the sheet: deviation, the data beyond each limit, and the
// shares that a normal distribution of the same average and deviation
// predicts beyond them, read from a stored table rather than a formula.
#include <array>
#include <cmath>

#include "numeric/numeric.h"
#include "statistics/statistics.h"

namespace tessaron {

namespace {
struct NormalRow {
  double z, p;
};

// z with the cumulative probability below it, in the steps of a printed
// table: 0.04 and 0.06 in turn, wider in the far tail.
constexpr std::array<NormalRow, 76> kNormal = {{
    {0, 0.5},         {0.04, 0.51595}, {0.1, 0.53982},   {0.14, 0.55567}, {0.2, 0.57925},
    {0.24, 0.59483},  {0.3, 0.61791},  {0.34, 0.63307},  {0.4, 0.65542},  {0.44, 0.67003},
    {0.5, 0.69146},   {0.54, 0.7054},  {0.6, 0.72574},   {0.64, 0.73891}, {0.7, 0.75803},
    {0.74, 0.77035},  {0.8, 0.78814},  {0.84, 0.79955},  {0.9, 0.81593},  {0.94, 0.82639},
    {1.0, 0.84134},   {1.04, 0.85083}, {1.1, 0.86433},   {1.14, 0.87286}, {1.2, 0.88493},
    {1.24, 0.89251},  {1.3, 0.90319},  {1.34, 0.90988},  {1.4, 0.91924},  {1.44, 0.92507},
    {1.5, 0.93319},   {1.54, 0.93822}, {1.6, 0.9452},    {1.64, 0.9495},  {1.7, 0.95543},
    {1.74, 0.95907},  {1.8, 0.96406},  {1.84, 0.96712},  {1.9, 0.97128},  {1.94, 0.97381},
    {2.0, 0.97724},   {2.04, 0.97932}, {2.1, 0.98213},   {2.14, 0.98382}, {2.2, 0.98609},
    {2.24, 0.98745},  {2.3, 0.98927},  {2.34, 0.99036},  {2.4, 0.9918},   {2.44, 0.99266},
    {2.5, 0.99379},   {2.54, 0.99446}, {2.6, 0.99533},   {2.64, 0.99585}, {2.7, 0.99653},
    {2.74, 0.99693},  {2.8, 0.99744},  {2.84, 0.99774},  {2.9, 0.99813},  {2.94, 0.99836},
    {3.0, 0.99865},   {3.1, 0.999032}, {3.2, 0.999312},  {3.291, 0.9995}, {3.3, 0.999517},
    {3.4, 0.999663},  {3.5, 0.999767}, {3.6, 0.999841},  {3.7, 0.999892}, {3.8, 0.999927},
    {4.0, 0.999968},  {4.3, 0.999991}, {4.43, 0.999995}, {4.6, 0.999998}, {4.8, 0.9999992},
    {5.0, 0.9999997},
}};

}  // namespace

// The constant under the root is the curve's own, a little above twice Pi,
// and stays as it is.
double YYY(double x) { return Exp(-(x * x) / 2) / std::pow(6.285185307178, 0.5); }

double UpperTail(double z) {
  if (z > 5) return 0;
  for (std::size_t i = 1; i < kNormal.size(); ++i) {
    const NormalRow& hi = kNormal[i];
    const NormalRow& lo = kNormal[i - 1];
    if (z <= hi.z) return (1 - hi.p) + (hi.z - z) * (hi.p - lo.p) / (hi.z - lo.z);
  }
  return 0;
}

void frmStatistics::PubCalc() {
  PubEndData();
  LastGuard();
  PubSort();
  S.AvgAll = S.DataSum / S.Aim[1];
  S.OverHigh = S.OverLow = 0;

  // The blanks' row is left out of every sum.
  const int first = S.DataCount < S.Aim[1] ? 2 : 1;
  double squares = 0;
  for (int i = first; i <= S.SortCount; ++i) {
    const double d = S.SortVal[i].number() - S.DataAvg;
    squares += S.SortQty[i] * d * d;
  }
  if (!control("txtAim", 2).Text.empty())
    for (int i = first; i <= S.SortCount; ++i)
      if (S.SortVal[i].number() < S.Aim[2]) S.OverLow += S.SortQty[i];
  if (!control("txtAim", 3).Text.empty())
    for (int i = first; i <= S.SortCount; ++i)
      if (S.SortVal[i].number() > S.Aim[3]) S.OverHigh += S.SortQty[i];

  // The population deviation: the Count divides, not Count - 1.
  S.DataDev = Sqr(squares / S.DataCount);
  S.PctHigh = static_cast<double>(S.OverHigh) / S.DataCount;
  S.PctLow = static_cast<double>(S.OverLow) / S.DataCount;

  if (!S.AimText[2].empty()) {
    if (S.DataDev == 0) {
      S.StatLow = S.Aim[2] > S.DataAvg ? 1 : 0;
    } else {
      S.ZVal = std::fabs((S.DataAvg - S.Aim[2]) / S.DataDev);
      S.StatLow = UpperTail(S.ZVal);
      if (S.Aim[2] > S.DataAvg) S.StatLow = 1 - S.StatLow;
    }
  }
  if (!S.AimText[3].empty()) {
    if (S.DataDev == 0) {
      S.StatHigh = 1;
      if (S.Aim[3] < S.DataAvg) S.StatHigh = 0;
    } else {
      S.ZVal = std::fabs((S.DataAvg - S.Aim[3]) / S.DataDev);
      S.StatHigh = UpperTail(S.ZVal);
      if (S.Aim[3] < S.DataAvg) S.StatHigh = 1 - S.StatHigh;
    }
  }

  control("lblDDD", 3).Caption = Format(Value(S.DataDev), kMaskData);
  if (!S.AimText[2].empty()) {
    control("lblDDD", 4).Caption = Format(Value(S.OverLow), kMaskCount);
    control("lblDDD", 6).Caption = Format(Value(S.PctLow), kMaskPct);
    control("lblDDD", 8).Caption = Format(Value(S.StatLow), kMaskPct);
  }
  if (!S.AimText[3].empty()) {
    control("lblDDD", 5).Caption = Format(Value(S.OverHigh), kMaskCount);
    control("lblDDD", 7).Caption = Format(Value(S.PctHigh), kMaskPct);
    control("lblDDD", 9).Caption = Format(Value(S.StatHigh), kMaskPct);
  }
  S.IsCalced = true;
}

}  // namespace tessaron

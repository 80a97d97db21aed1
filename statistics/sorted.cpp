// The two views of the sheet: in place order, and sorted into distinct
// values with their quantities, the blanks in a row of their own.
#include <algorithm>

#include "numeric/numeric.h"
#include "statistics/statistics.h"

namespace tessaron {

void frmStatistics::PubOrder() {
  S.IsSorted = false;
  control("scrFive").setValue(Value(0));
  control("fmData").Caption = "Data";
  for (int i = 1; i <= 20; ++i) {
    control("lblCCC", i).Caption = Format(Value(i), kMaskCount);
    control("txtBBB", i).Text = Format(Value(S.DataText[i]), kMaskData);
  }
}

void frmStatistics::PubSort() {
  S.IsSorted = true;
  const int n = static_cast<int>(S.Aim[1]);
  // A blank enters the sort as 0.
  for (int i = 1; i <= n; ++i) S.SortWork[i] = S.Data[i];
  for (int i = 1; i <= n - 1; ++i)
    for (int j = i + 1; j <= n; ++j)
      if (S.SortWork[i] > S.SortWork[j]) std::swap(S.SortWork[i], S.SortWork[j]);
  for (int i = 1; i <= 20; ++i) {
    control("txtBBB", i).Text = "";
    control("lblCCC", i).Caption = "";
  }

  // Group equal values; Z is the row of the value 0.
  int k = 1, z = 0;
  S.SortVal[1] = Value(S.SortWork[1]);
  S.SortQty[1] = 1;
  if (S.SortWork[1] == 0) z = 1;
  for (int i = 2; i <= n; ++i) {
    if (S.SortWork[i] == S.SortVal[k].number()) {
      ++S.SortQty[k];
    } else {
      ++k;
      S.SortVal[k] = Value(S.SortWork[i]);
      S.SortQty[k] = 1;
      if (S.SortWork[i] == 0) z = k;
    }
  }
  S.SortCount = k;

  // The blanks sorted among the true zeros: they take a row of their own at
  // the head of the list, and the zeros' row goes when no true zero is left.
  if (S.DataCount < n) {
    ++S.SortCount;
    S.SortQty[0] = n - S.DataCount;
    S.SortQty[z] -= S.SortQty[0];
    for (int i = S.SortCount; i >= 1; --i) {
      S.SortVal[i] = S.SortVal[i - 1];
      S.SortQty[i] = S.SortQty[i - 1];
    }
    if (S.SortQty[z + 1] == 0) {
      --S.SortCount;
      for (int i = z + 1; i <= S.SortCount; ++i) {
        S.SortVal[i] = S.SortVal[i + 1];
        S.SortQty[i] = S.SortQty[i + 1];
      }
    }
    S.SortVal[1] = Value("");
  }

  control("scrFive").setValue(Value(0));
  control("fmData").Caption = "Sorted";
  for (int i = S.SortCount + 1; i < StatisticsSheet::kPlaces; ++i) {
    S.SortVal[i] = Value("");
    S.SortQty[i] = 0;
  }
  for (int i = 1; i <= 20; ++i) {
    control("txtBBB", i).Text = Format(S.SortVal[i], kMaskData);
    if (S.SortQty[i] != 0) control("lblCCC", i).Caption = CStr(Value(S.SortQty[i]));
  }
}

}  // namespace tessaron

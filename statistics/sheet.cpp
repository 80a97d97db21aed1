// Entry on the data sheet: the twenty cells that page by five, the three
// limit boxes, insert and delete in place order.
#include <algorithm>
#include <cmath>

#include "numeric/numeric.h"
#include "statistics/colours.h"
#include "statistics/statistics.h"

namespace tessaron {

namespace {
using namespace stats;
constexpr const char* kTitle = "Tessaron";
constexpr const char* kNumberOnly = " Please Enter Number Only ! ";
constexpr const char* kSixDecimals = " Sorry! Upto  0.000 001,  No Lower Numer. ";
constexpr const char* kTooLong = " Sorry!  Too  Long / Big  ... ";

// More than six decimals. The test is made on the number as typed, in
// decimal, so that a figure such as 4.35 is not refused for the binary
// rounding of 4.35 x 10^6. A number too large for the decimal type is whole;
// one too small for it has decimals far beyond the sixth.
bool BeyondSixDecimals(const std::string& text, double work) {
  if (std::fabs(work) >= 1e15) return false;
  const Value n = CDec(Value(text));
  if (work != 0 && n == Value(0)) return true;
  const Value scaled = n * CDec(Value(1000000));
  return Int(scaled) != scaled;
}
}  // namespace

void frmStatistics::Refuse(Control& box, const char* words, const std::string& text) {
  box.BackColor = kWhite;
  MsgBox(words, 48, kTitle);
  box.Text = text;
  box.SetFocus();
}

// A cell that already had the focus gets no GotFocus when a key gives it the
// focus again, so the text it is measured against on leaving is taken anew
// from the place the key has just changed under it.
void frmStatistics::KeepPlaceText() {
  if (ActiveControl() == &control("txtBBB", S.GridCell)) S.OldText = S.DataText[S.DataPlace];
}

void frmStatistics::txtBBBGotFocus(int index) {
  S.IsCalced = false;
  // Data are only edited in place order.
  if (S.IsSorted) PubOrder();
  S.DataPlace = S.PageBase + index;
  if (S.DataPlace > 1200) {
    // The cell is left again at once, with nothing in it to take.
    S.OldText = S.DataText[S.DataPlace];
    MsgBox(" Sorry!  Too Many Data ... ", 48, kTitle);
    control("cmdCalc").SetFocus();
    return;
  }
  Control& box = control("txtBBB", index);
  box.BackColor = kWhite;
  S.OldText = S.DataText[S.DataPlace];
  int cell = index;
  if (index == 1 && S.PageBase > 1) {
    // Moving up off the top scrolls the sheet back.
    S.SkipBack = true;
    Control& bar = control("scrFive");
    bar.setValue(bar.value() - Value(1));
    box.BackColor = kRest;
    control("txtBBB", 6).SetFocus();
    cell = 6;
  }
  if (index == 20) {
    // Cell 20 is never typed into: arriving there scrolls five places on.
    S.SkipFwd = true;
    Control& bar = control("scrFive");
    if (bar.value() == Value(bar.Max())) bar.setMax(bar.Max() + 1);
    bar.setValue(bar.value() + Value(1));
    box.BackColor = kRest;
    control("txtBBB", 15).SetFocus();
    cell = 15;
  }
  if (cell >= 1 && cell <= 20) S.GridCell = cell;
}

void frmStatistics::txtBBBLostFocus(int index) {
  S.GridCell = index;
  if (S.SkipBack || S.SkipFwd) {
    S.SkipBack = S.SkipFwd = false;
    return;
  }
  Control& box = control("txtBBB", index);
  box.BackColor = kRest;
  PubCheckSpace(box.Text);
  if (SpaceFlag) box.Text = "";
  if (box.Text.empty()) {
    S.Data[S.DataPlace] = 0;
    S.DataText[S.DataPlace] = "";
    PubSum();
    if (!S.OldText.empty()) --S.DataCount;
    if (S.DataCount > 0) S.DataAvg = Average();
  } else {
    if (!IsNumeric(Value(box.Text))) return Refuse(box, kNumberOnly, S.OldText);
    const double Work = CDbl(Value(box.Text)).number();
    if (BeyondSixDecimals(box.Text, Work)) return Refuse(box, kSixDecimals, "");
    if (Work >= 1e6 || Len(Value(box.Text)) > 8) return Refuse(box, kTooLong, "");
    S.Data[S.DataPlace] = Work;
    S.DataText[S.DataPlace] = Format(Value(Work), kMaskData);
    box.Text = S.DataText[S.DataPlace];
    Control& last = control("txtAim", 1);
    if (Val(last.Text) < S.DataPlace) {
      S.Aim[1] = S.DataPlace;
      last.Text = Format(Value(S.DataPlace), kMaskCount);
      S.AimText[1] = last.Text;
    }
    PubSum();
    if (S.OldText.empty()) ++S.DataCount;
    S.DataAvg = Average();
  }
  ShowRunning();
  PubEndData();
  LastGuard();
  PubCkFive();
  if (box.Text != S.OldText) {
    ClearMeasures();
    S.IsCalced = false;
  }
}

void frmStatistics::txtBBBKeyPress(EventArgs& args) {
  PubEndData();
  LastGuard();
  PubCkFive();
  if (args.KeyAscii == 13) {
    control("txtBBB", args.Index).BackColor = kRest;
    if (S.GridCell < 20) {
      ++S.GridCell;
      control("txtBBB", S.GridCell).SetFocus();
    }
  }
}

void frmStatistics::FormKeyDown(EventArgs& args) {
  if (args.KeyCode == 38 && S.GridCell > 1) {
    --S.GridCell;
    control("txtBBB", S.GridCell).SetFocus();
  } else if (args.KeyCode == 40 && S.GridCell < 20) {
    ++S.GridCell;
    control("txtBBB", S.GridCell).SetFocus();
  }
}

void frmStatistics::txtAimGotFocus(int index) {
  S.IsCalced = false;
  control("txtAim", index).BackColor = kWhite;
  S.OldAim = S.AimText[index];
}

void frmStatistics::txtAimLostFocus(int index) {
  Control& box = control("txtAim", index);
  box.BackColor = kLimit;
  PubCheckSpace(box.Text);
  if (SpaceFlag) box.Text = "";
  if (box.Text.empty()) {
    if (index != 1) {
      S.Aim[index] = 0;
      S.AimText[index] = "";
    } else {
      S.Aim[1] = S.DataCount;
      box.Text = control("lblDDD", 0).Caption;
      S.AimText[1] = box.Text;
    }
  } else {
    if (!IsNumeric(Value(box.Text))) return Refuse(box, kNumberOnly, "");
    const double Work = CDbl(Value(box.Text)).number();
    if (BeyondSixDecimals(box.Text, Work)) return Refuse(box, kSixDecimals, "");
    if (Len(Value(box.Text)) >= 9 || Work >= 1e6) return Refuse(box, kTooLong, "");
    S.Aim[index] = Work;
    S.AimText[index] = box.Text;
    if (index == 1) {
      if (Work != static_cast<double>(static_cast<long long>(Work)))
        return Refuse(box, " Must be Integer ", "");
      if (Work > 1200 || Work < S.DataCount)
        return Refuse(box, " Must be Integer >= Count, 0-1200 ", "");
      PubEndData();
      if (S.Aim[1] < S.EndData) return Refuse(box, " There are more data beyond this number. ", "");
      const int most = std::max(static_cast<int>((S.Aim[1] - 19) / 5), 0);
      Control& bar = control("scrFive");
      const int saved = CInt(bar.value()).AsInt16();
      bar.setValue(Value(0));
      bar.setMax(most);
      bar.setValue(Value(std::min(saved, most)));
    }
  }
  if (S.AimText[index] != S.OldAim) {
    ClearMeasures();
    S.IsCalced = false;
  }
}

void frmStatistics::txtAimKeyPress(int index, EventArgs& args) {
  if (args.KeyAscii != 13) return;
  control("txtAim", index).BackColor = kRest;
  if (index < 3)
    control("txtAim", index + 1).SetFocus();
  else
    control("cmdCalc").SetFocus();
}

void frmStatistics::scrFiveChange() {
  S.PageBase = CInt(control("scrFive").value()).AsInt16() * 5;
  for (int i = 1; i <= 20; ++i) {
    const int place = std::min(S.PageBase + i, StatisticsSheet::kPlaces - 1);
    if (S.IsSorted) {
      const int qty = S.SortQty[place];
      control("lblCCC", i).Caption = qty == 0 ? "" : Format(Value(qty), kMaskCount);
      control("txtBBB", i).Text = Format(S.SortVal[place], kMaskData);
    } else {
      control("lblCCC", i).Caption = Format(Value(S.PageBase + i), kMaskCount);
      control("txtBBB", i).Text = S.DataText[place];
    }
  }
}

void frmStatistics::RepaintCells(int from) {
  for (int i = std::max(from, 1); i <= 20; ++i)
    control("txtBBB", i).Text = S.DataText[S.PageBase + i];
}

int frmStatistics::lastHeld() const {
  for (int i = StatisticsSheet::kPlaces - 1; i >= 1; --i)
    if (!S.DataText[i].empty()) return i;
  return 0;
}

void frmStatistics::cmdInsertClick() {
  if (S.IsSorted) return PubOrder();
  // No cell has been chosen yet: there is no place to open.
  if (S.GridCell < 1) return;
  // The shift starts past the pages, or past a datum that Last left beyond
  // them, so that none is written over.
  const int top = std::max(control("scrFive").Max() * 5 + 21, lastHeld() + 1);
  for (int i = std::min(top, StatisticsSheet::kPlaces - 1); i >= S.DataPlace + 1; --i) {
    S.Data[i] = S.Data[i - 1];
    S.DataText[i] = S.DataText[i - 1];
  }
  RepaintCells(S.GridCell + 1);
  PubEndData();
  LastGuard();
  PubCkFive();
  S.Data[S.DataPlace] = 0;
  S.DataText[S.DataPlace] = "";
  control("txtBBB", S.GridCell).Text = "";
  S.IsCalced = false;
  control("txtBBB", S.GridCell).SetFocus();
  KeepPlaceText();
}

void frmStatistics::cmdOneClick() {
  S.IsCalced = false;
  if (S.IsSorted) return PubOrder();
  if (S.GridCell < 1) return;
  Control& last = control("txtAim", 1);
  if (!S.DataText[S.DataPlace].empty()) {
    --S.DataCount;
    // The sum is taken before the place closes up, so that it still holds
    // the deleted amount until the next edit.
    PubSum();
    S.Aim[1] -= 1;
    last.Text = Format(Value(S.Aim[1]), kMaskCount);
    S.AimText[1] = last.Text;
    if (S.DataCount > 0) S.DataAvg = Average();
    if (S.DataCount < 1) {
      // The last datum gone: the sheet starts afresh at its first cell.
      PubClear();
      ShowRunning();
      control("txtBBB", 1).SetFocus();
      return;
    }
    ShowRunning();
    ClearMeasures();
  } else if (S.Aim[1] > S.DataCount && S.DataPlace <= S.Aim[1]) {
    S.Aim[1] -= 1;
    last.Text = Format(Value(S.Aim[1]), kMaskCount);
    S.AimText[1] = last.Text;
  }
  // The places close up over the pages, and on over any datum that Last
  // left past them, so that none stays behind as a copy.
  const int pages = control("scrFive").Max() * 5 + 20;
  const int top = std::min(std::max(pages, lastHeld()), StatisticsSheet::kPlaces - 2);
  for (int i = S.DataPlace; i <= top; ++i) {
    S.Data[i] = S.Data[i + 1];
    S.DataText[i] = S.DataText[i + 1];
  }
  RepaintCells(S.GridCell);
  PubEndData();
  LastGuard();
  control("txtBBB", S.GridCell).SetFocus();
  KeepPlaceText();
}

}  // namespace tessaron

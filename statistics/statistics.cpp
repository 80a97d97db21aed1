#include "statistics/statistics.h"

#include <algorithm>
#include <cmath>

#include "statistics/statistics_design.h"
#include "surface/application.h"

namespace tessaron {

frmStatistics::frmStatistics(Application& app)
    : Form(app, "frmStatistics", StatisticsForm(), StatisticsDesign()), S(kept<StatisticsSheet>()) {
  wire();
}

void frmStatistics::wire() {
  on("txtBBB", Event::GotFocus, [this](EventArgs& a) { txtBBBGotFocus(a.Index); });
  on("txtBBB", Event::LostFocus, [this](EventArgs& a) { txtBBBLostFocus(a.Index); });
  on("txtBBB", Event::KeyPress, [this](EventArgs& a) { txtBBBKeyPress(a); });
  on("Form", Event::KeyDown, [this](EventArgs& a) { FormKeyDown(a); });
  on("txtAim", Event::GotFocus, [this](EventArgs& a) { txtAimGotFocus(a.Index); });
  on("txtAim", Event::LostFocus, [this](EventArgs& a) { txtAimLostFocus(a.Index); });
  on("txtAim", Event::KeyPress, [this](EventArgs& a) { txtAimKeyPress(a.Index, a); });
  on("scrFive", Event::Change, [this](EventArgs&) { scrFiveChange(); });
  on("scrFive", Event::GotFocus, [this](EventArgs&) {
    PubEndData();
    LastGuard();
    PubCkFive();
  });
  on("cmdInsert", Event::Click, [this](EventArgs&) { cmdInsertClick(); });
  on("cmdOne", Event::Click, [this](EventArgs&) { cmdOneClick(); });
  on("cmdSort", Event::Click, [this](EventArgs&) {
    if (S.DataCount > 0) PubSort();
    S.IsSorted = true;
  });
  on("cmdOrder", Event::Click, [this](EventArgs&) { PubOrder(); });
  on("cmdDel", Event::Click, [this](EventArgs&) { cmdDelClick(); });
  on("cmdCalc", Event::Click, [this](EventArgs&) {
    if (S.DataCount > 0) PubCalc();
    control("cmdGraph").SetFocus();
  });
  on("cmdGraph", Event::Click, [this](EventArgs&) { cmdGraphClick(); });
  on("cmdReturn", Event::Click, [this](EventArgs&) { cmdReturnClick(); });
  // The third button of the graph carries the same tip as Return, and does
  // what it says.
  on("cmdLogo", Event::Click, [this](EventArgs&) { cmdReturnClick(); });
  on("cmdPrint", Event::Click, [this](EventArgs&) { PrintReport(false); });
  on("cmdPrint2", Event::Click, [this](EventArgs&) { PrintReport(true); });
  on("cmdExit", Event::Click, [this](EventArgs&) { Unload(); });
}

void frmStatistics::Load() {
  Top = app().form("frmMain").Height + 360;
  // The scroll bar starts at its first page; the kept page base follows it.
  S.PageBase = 0;
  S.SkipBack = S.SkipFwd = false;
  if (S.DataCount > 0) {
    ShowRunning();
    control("txtAim", 1).Text = Format(Value(S.Aim[1]), kMaskCount);
    for (int i = 2; i <= 3; ++i)
      if (S.Aim[i] != 0) control("txtAim", i).Text = Format(Value(S.Aim[i]), kMaskData);
    PubCalc();
  } else {
    PubClear();
  }
}

void frmStatistics::PubEndData() {
  S.EndData = 0;
  for (int i = 1210; i >= 1; --i) {
    if (!S.DataText[i].empty()) {
      S.EndData = i;
      return;
    }
  }
}

void frmStatistics::PubCheckSpace(const std::string& text) { SpaceFlag = IsBlankRun(text, 23); }

void frmStatistics::PubSum() {
  const int last = std::min(static_cast<int>(S.Aim[1]), StatisticsSheet::kPlaces - 1);
  double sum = 0;
  bool decimal = true;
  for (int i = 1; i <= last; ++i) {
    sum += S.Data[i];
    // A large negative figure passes the entry tests; the decimal sum
    // holds only what the sheet is meant for.
    if (std::fabs(S.Data[i]) >= 1e15) decimal = false;
  }
  if (decimal) {
    Value exact = CDec(Value(0));
    for (int i = 1; i <= last; ++i)
      if (S.Data[i] != 0) exact += CDec(Value(S.Data[i]));
    S.SumExact = exact;
    S.DataSum = exact.number();
  } else {
    S.SumExact = Value(sum);
    S.DataSum = sum;
  }
}

double frmStatistics::Average() const { return (S.SumExact / Value(S.DataCount)).number(); }

void frmStatistics::LastGuard() {
  if (S.Aim[1] < S.EndData) {
    S.Aim[1] = S.EndData;
    control("txtAim", 1).Text = Format(Value(S.EndData), kMaskCount);
    S.AimText[1] = control("txtAim", 1).Text;
  }
}

void frmStatistics::PubCkFive() {
  LastGuard();
  Control& bar = control("scrFive");
  const int top = static_cast<int>(S.Aim[1]) / 5 - 3;
  if (top > bar.Max()) bar.setMax(top < 0 ? 0 : top);
}

void frmStatistics::ShowRunning() {
  control("lblDDD", 0).Caption = CStr(Value(S.DataCount));
  control("lblDDD", 1).Caption = CStr(Value(S.DataSum));
  control("lblDDD", 2).Caption = CStr(Value(S.DataAvg));
}

void frmStatistics::ClearMeasures() {
  for (int i = 3; i <= 9; ++i) control("lblDDD", i).Caption = "";
}

void frmStatistics::PubClear() {
  S.IsSorted = S.IsCalced = S.SkipBack = S.SkipFwd = false;
  S.DataCount = S.GridCell = S.DataPlace = S.SortCount = S.PageBase = S.EndData = 0;
  S.DataSum = S.DataAvg = S.DataDev = S.AvgAll = 0;
  S.SumExact = Value(0);
  S.OverHigh = S.OverLow = 0;
  S.PctHigh = S.PctLow = S.StatHigh = S.StatLow = S.ZVal = 0;
  Control& bar = control("scrFive");
  bar.setValue(Value(0));
  bar.setMax(0);
  for (int i = 1; i <= 3; ++i) control("txtAim", i).Text = "";
  S.Aim.fill(0);
  S.AimText.fill("");
  for (int i = 0; i <= 9; ++i) control("lblDDD", i).Caption = "";
  for (int i = 1; i <= 20; ++i) {
    control("txtBBB", i).Text = "";
    control("lblCCC", i).Caption = Format(Value(i), kMaskCount);
  }
  // An emptied sheet is the sheet in place order.
  control("fmData").Caption = "Data";
  S.Data.fill(0);
  S.DataText.fill("");
  // A cell that keeps the focus through the clearing held a datum that is
  // gone now: leaving it empty must not count that datum off a second time.
  S.OldText.clear();
  S.SortWork.fill(0);
  S.SortVal.fill(Value(""));
  S.SortQty.fill(0);
}

void frmStatistics::cmdDelClick() {
  if (!S.IsCalced && S.DataCount > 0) PubCalc();
  if (S.DataCount > 0) {
    if (MsgBox(" Delete All Data ??? ", 4, " Tessaron") == 6) {
      PubClear();
      control("txtBBB", 1).SetFocus();
    } else {
      control("cmdCalc").SetFocus();
    }
  }
}

}  // namespace tessaron

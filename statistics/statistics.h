#pragma once
// The statistics sheet: up to 1200 numbers with blanks among them, shown as
// typed or sorted with quantities, their count, sum, average and deviation,
// the shares beyond two limits, both counted and as a normal distribution
// predicts them, a distribution graph and a printed report.
#include <array>
#include <string>

#include "numeric/bounded.h"
#include "surface/form.h"

namespace tessaron {

class Canvas;

// The sheet and its figures: they outlive the form's controls, so that the
// sheet reopens as it was left.
struct StatisticsSheet {
  static constexpr int kPlaces = 1235;  // places 0 to 1234
  Bounded<double, kPlaces> Data;
  Bounded<std::string, kPlaces> DataText;  // "" for a blank: tells a blank from a zero
  Bounded<double, kPlaces> SortWork;
  Bounded<Value, kPlaces> SortVal;  // distinct values ascending; "" for the blanks and below
  Bounded<int, kPlaces> SortQty;
  int SortCount = 0;
  Bounded<double, 6> Aim;  // 1 Last, 2 Low limit, 3 High limit
  Bounded<std::string, 6> AimText;
  int DataCount = 0;
  double DataSum = 0, DataAvg = 0;
  // The sum in decimal: the data are typed decimals of at most six places,
  // so it is exact, and equal data average to themselves.
  Value SumExact = Value(0);
  int GridCell = 0, PageBase = 0, DataPlace = 0;
  int EndData = 0;
  bool IsSorted = false, IsCalced = false;
  bool SkipBack = false, SkipFwd = false;
  std::string OldText, OldAim;
  // The measures.
  double DataDev = 0, AvgAll = 0;
  int OverHigh = 0, OverLow = 0;
  double PctHigh = 0, PctLow = 0, StatHigh = 0, StatLow = 0, ZVal = 0;
  // The x of the limit lines on the graph.
  double LimitLowX = 0, LimitHighX = 0;
};

inline constexpr const char* kMaskData = "###,###,##0.######";
inline constexpr const char* kMaskGraph = "#,##0.###";
inline constexpr const char* kMaskCount = "###,##0";
inline constexpr const char* kMaskPct = "##0.## %";

// The bell curve of the standard normal distribution.
double YYY(double x);
// The share of the standard normal distribution above z (z >= 0), by the
// stored table and straight-line interpolation; 0 beyond five deviations.
double UpperTail(double z);

class frmStatistics : public Form {
 public:
  explicit frmStatistics(Application& app);

  void Load() override;

  StatisticsSheet& sheet() { return S; }

  void PubEndData();
  void PubCheckSpace(const std::string& text);
  void PubSum();
  // DataSum / DataCount, taken on the exact sum.
  double Average() const;
  void PubCkFive();
  void LastGuard();
  void PubSort();
  void PubOrder();
  void PubClear();
  void PubCalc();
  void PubGraph();
  void PubPrintGraph();
  void PubPrintData();

  // The surface PubGraph and the print routines draw on.
  Canvas* DrawTarget = nullptr;

 private:
  void wire();
  // The data sheet.
  void txtBBBGotFocus(int index);
  void txtBBBLostFocus(int index);
  void txtBBBKeyPress(EventArgs& args);
  void FormKeyDown(EventArgs& args);
  void txtAimGotFocus(int index);
  void txtAimLostFocus(int index);
  void txtAimKeyPress(int index, EventArgs& args);
  void scrFiveChange();
  // The highest place that holds a datum, on the pages or past them.
  int lastHeld() const;
  void cmdInsertClick();
  void cmdOneClick();
  void cmdDelClick();
  void RepaintCells(int from);
  void ShowRunning();
  void ClearMeasures();
  // A refusal of a box: the box turns white, the message, then the text as
  // given and the focus back in the box.
  void Refuse(Control& box, const char* words, const std::string& text);
  void KeepPlaceText();
  // The graph and the report.
  bool GraphReady();
  void cmdGraphClick();
  void cmdReturnClick();
  void PrintReport(bool fromGraph);
  void DrawCurves(Canvas& target, double shift);

  StatisticsSheet& S;
  bool SpaceFlag = false;
};

}  // namespace tessaron

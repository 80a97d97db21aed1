// The statistics report: the distribution chart redrawn on the page, the
// figures, then the sorted list of the data with their quantities.
#include "numeric/numeric.h"
#include "shell/print_frame.h"
#include "statistics/colours.h"
#include "statistics/statistics.h"
#include "surface/printer.h"

namespace tessaron {

namespace {
using namespace stats;

void Text(PrinterDevice& p, double x, double y, const std::string& text) {
  p.CurrentX = x;
  p.CurrentY = y;
  p.Print({Value(text)});
}

}  // namespace

void frmStatistics::PrintReport(bool fromGraph) {
  if (!PubPrintAsk(*this)) return;
  if (!GraphReady()) return;
  PubPrintGraph();
  PubPrintData();
  Printer().EndDoc();
  if (fromGraph) cmdReturnClick();
}

void frmStatistics::PubPrintGraph() {
  DrawTarget = &control("picGraph").picture();
  PubGraph();
  PrinterDevice& p = Printer();
  DrawTarget = &p;
  control("picGraph2").Visible = false;

  p.DrawStyle = 1;
  p.DrawWidth = 6;
  p.Box(2000, 2000, 9500, 8500, kBlack, false);
  p.DrawWidth = 2;
  for (const double y : {3000.0, 3900.0, 7000.0, 8120.0}) p.Line(2000, y, 9500, y, kBlack);
  // Rulers along both sides of the frame.
  for (double y = 4080; y <= 6600; y += 500) p.Line(2000, y, 2350, y, kBlack);
  for (double y = 4300; y <= 5500; y += 500) p.Line(9500, y, 9100, y, kBlack);
  for (double y = 5960; y <= 6960; y += 200) p.Line(2000, y, 2100, y, kBlack);
  for (double y = 2950; y <= 7100; y += 200) p.Line(9400, y, 9500, y, kBlack);

  p.FontSize = 10;
  p.ForeColor = kBlack;
  Text(p, 3320, 2840, "100%");
  Text(p, 2120, 6800, "0%");
  Text(p, 2700, 8300, "Std. Normarl Distribution");
  Text(p, 2700, 8550, "Probability");
  Text(p, 4600, 3800, "Average");
  Text(p, 4800, 7100, control("lblAvg", 1).Caption);
  Text(p, 2700, 5450, "-3 Dev.");
  Text(p, 2700, 5650, "0.135%");
  Text(p, 2700, 7100, control("lblN3d", 2).Caption);
  Text(p, 6900, 2500, "+3 Dev.");
  Text(p, 6900, 2700, "99.865%");
  Text(p, 6900, 7100, control("lblP3d", 2).Caption);

  p.DrawStyle = 0;
  if (!S.AimText[2].empty()) {
    const double x = S.LimitLowX + 2000;
    for (double y = 3600; y <= 7200; y += 500) p.Line(x, y, x, y + 400, kOrange);
    p.Line(2200, 8900, 2600, 8900, kOrange);
    Text(p, 2700, 8800, "Min. Limit");
    Text(p, x - 300, 3400, control("lblMin", 1).Caption);
    Text(p, x - 100, 7440, control("lblMin", 2).Caption);
  }
  if (!S.AimText[3].empty()) {
    const double x = S.LimitHighX + 2000;
    for (double y = 2360; y <= 7500; y += 500) p.Line(x, y, x, y + 400, kBlue);
    p.Line(2200, 9150, 2600, 9150, kBlue);
    Text(p, 2700, 9050, "Max. Limit");
    Text(p, x - 300, 2160, control("lblMax", 1).Caption);
    Text(p, x - 100, 7440, control("lblMax", 2).Caption);
  }
  if (!S.AimText[2].empty() && !S.AimText[3].empty() && S.StatLow + S.StatHigh < 1)
    Text(p, 6900, 8300,
         "PASS = " + Format(Value(100 * (1 - S.StatHigh - S.StatLow)), kMaskGraph) + "%");

  p.DrawWidth = 1;
  DrawCurves(p, 2000);
}

void frmStatistics::PubPrintData() {
  PrinterDevice& p = Printer();
  PubPageHead(*this, kPlaceStatistics);
  p.FontSize = 12;
  p.ForeColor = kBlack;
  p.CurrentY = 10500;

  const bool blanks = S.DataCount < S.Aim[1];
  if (blanks) p.Print({Tab{58}, Value("INCLUDE BLANK ")});
  p.Print({Tab{20}, Value("Count : "), Tab{40}, Value(Format(Value(S.DataCount), kMaskCount))},
          false);
  if (blanks) p.Print({Tab{66}, Value(S.Aim[1])}, false);
  p.Print({});
  p.Print({Tab{20}, Value(" Sum  : "), Tab{40}, Value(Format(Value(S.DataSum), kMaskData))});
  p.Print({Tab{20}, Value("Average : "), Tab{40}, Value(Format(Value(S.DataAvg), kMaskData))},
          false);
  if (blanks) p.Print({Tab{66}, Value(Format(Value(S.AvgAll), kMaskData))}, false);
  p.Print({});
  p.Print({Tab{20}, Value("Deviation : "), Tab{40}, Value(Format(Value(S.DataDev), kMaskData))});
  p.Print({});
  p.Print({});
  if (blanks) p.Print({Tab{20}, Value("(not include blank data)")});

  if (!control("txtAim", 2).Text.empty() || !control("txtAim", 3).Text.empty()) {
    const bool low = !S.AimText[2].empty(), high = !S.AimText[3].empty();
    // One row of the limits' table: its title, the low figure, the high one.
    auto row = [&](int tab, const char* title, const Value& left, const Value& right,
                   bool spaced = true) {
      p.Print({Tab{tab}, Value(title)}, false);
      if (low) p.Print({Tab{45}, left}, false);
      if (high) p.Print({Tab{65}, right}, false);
      p.Print({});
      if (spaced) p.Print({});
    };
    p.Print({Tab{45}, Value("LOW"), Tab{65}, Value("HIGH")});
    row(25, "Limit", Value(S.Aim[2]), Value(S.Aim[3]));
    row(20, "Over Limit", Value(S.OverLow), Value(S.OverHigh));
    row(20, "Over Limit (%)", Value(Format(Value(S.PctLow), "##0.#### %")),
        Value(Format(Value(S.PctHigh), "##0.#### %")));
    p.Print({});
    row(15, "Statistically Over Limit : ", Value(Format(Value(S.StatLow), kMaskPct)),
        Value(Format(Value(S.StatHigh), kMaskPct)), false);
    p.Print({Tab{15}, Value("(as Standard Normal Distribution)")});
    for (int i = 0; i < 3; ++i) p.Print({});
  }

  // Below the foot of the page: the list starts on the next one.
  p.CurrentX = 100;
  p.CurrentY = 17000;
  for (int i = 0; i < 6; ++i) p.Print({});
  p.Print({Tab{20}, Value(" Quantity              Data ")});
  int first = 1;
  if (blanks) {
    p.Print({Tab{25}, Value(Format(Value(S.SortQty[1]), kMaskCount)), Tab{38}, Value("Blank")});
    first = 2;
  }
  for (int i = first; i <= S.SortCount; ++i) {
    p.Print({Tab{25}, Value(Format(Value(S.SortQty[i]), kMaskCount)), Tab{40},
             Value(Format(S.SortVal[i], kMaskData))});
  }
}

}  // namespace tessaron

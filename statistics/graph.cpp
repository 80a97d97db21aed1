// The distribution graph: a fixed chart of the standard normal distribution
// in deviations, so that its shape never changes; only the captions and the
// limit lines follow the data.
#include <algorithm>

#include "numeric/numeric.h"
#include "statistics/colours.h"
#include "statistics/statistics.h"

namespace tessaron {

namespace {
using namespace stats;
constexpr const char* kTitle = "Tessaron";
constexpr const char* kNotAvailable = " Graph is not available. ";

std::string Share(double fraction) { return Format(Value(100 * fraction), kMaskGraph) + "%"; }
}  // namespace

// The checks before a graph or a report: at least two data, the figures up
// to date, and some spread among the data.
bool frmStatistics::GraphReady() {
  if (S.DataCount <= 1) {
    MsgBox(kNotAvailable, 48, kTitle);
    MsgBox(" Thanks for using Tessaron. ", 48, kTitle);
    return false;
  }
  if (!S.IsCalced) PubCalc();
  if (S.DataDev > 0) return true;
  MsgBox(kNotAvailable, 48, kTitle);
  return false;
}

void frmStatistics::cmdGraphClick() {
  if (!GraphReady()) return;
  DrawTarget = &control("picGraph").picture();
  PubGraph();
  control("cmdReturn").SetFocus();
}

void frmStatistics::cmdReturnClick() {
  for (const char* name : {"linePlimit", "lineNlimit", "lblPass", "lineMin", "lineMax"})
    control(name).Visible = false;
  for (int i = 0; i <= 2; ++i) {
    control("lblMin", i).Visible = false;
    control("lblMax", i).Visible = false;
  }
  control("picGraph").Visible = false;
  // The focus goes back to the button that opened the graph.
  control("cmdGraph").SetFocus();
}

void frmStatistics::PubGraph() {
  Control& pic = control("picGraph");
  pic.Visible = true;
  pic.picture().Cls();
  const double avg = S.DataAvg, dev = S.DataDev;
  control("lblAvg", 1).Caption = Format(Value(avg), kMaskData);
  control("lblN3d", 2).Caption = Format(Value(avg - 3 * dev), kMaskData);
  control("lblP3d", 2).Caption = Format(Value(avg + 3 * dev), kMaskData);

  // A limit far outside the chart is pulled to its frame; the captions
  // still tell the true figures.
  Control& lowLine = control("lineNlimit");
  if (!S.AimText[2].empty()) {
    S.LimitLowX = std::clamp(3000 + 700 * (S.Aim[2] - avg) / dev, 400.0, 5400.0);
    lowLine.X1 = lowLine.X2 = S.LimitLowX;
    lowLine.Visible = true;
    control("lineMin").Visible = true;
    for (int i = 0; i <= 2; ++i) control("lblMin", i).Visible = true;
    control("lblMin", 1).Left = static_cast<int>(S.LimitLowX - 300);
    control("lblMin", 1).Caption = Share(S.StatLow);
    control("lblMin", 2).Left = static_cast<int>(S.LimitLowX - 100);
    control("lblMin", 2).Caption = Format(Value(S.Aim[2]), kMaskData);
  }
  Control& highLine = control("linePlimit");
  if (!S.AimText[3].empty()) {
    S.LimitHighX = std::clamp(3000 + 700 * (S.Aim[3] - avg) / dev, 600.0, 5600.0);
    highLine.X1 = highLine.X2 = S.LimitHighX;
    highLine.Visible = true;
    control("lineMax").Visible = true;
    for (int i = 0; i <= 2; ++i) control("lblMax", i).Visible = true;
    control("lblMax", 1).Left = static_cast<int>(S.LimitHighX - 300);
    // The high side shows the share below its limit.
    control("lblMax", 1).Caption = Share(1 - S.StatHigh);
    control("lblMax", 2).Left = static_cast<int>(S.LimitHighX - 100);
    control("lblMax", 2).Caption = Format(Value(S.Aim[3]), kMaskData);
  }
  Control& pass = control("lblPass");
  pass.Visible = lowLine.Visible && highLine.Visible && S.StatHigh + S.StatLow < 1;
  if (pass.Visible) pass.Caption = "Pass = " + Share(1 - S.StatHigh - S.StatLow);

  DrawCurves(*DrawTarget, 0);
}

// The bell curve in green and the cumulative curve in red, the average at
// x 3000 + shift and probability 0 at y 5000 + shift.
void frmStatistics::DrawCurves(Canvas& target, double shift) {
  // The first segment starts a little left of the curve's first point.
  double lastX = 990 + shift, lastY = 5000 + shift;
  for (double x = -3.3; x <= 3.3; x += 0.01) {
    const double X = 3000 + shift + 700 * x;
    const double Y = 5000 + shift - 4000 * YYY(x);
    target.Line(lastX, lastY, X, Y, kGreen);
    lastX = X;
    lastY = Y;
  }
  // The cumulative share by the trapezium rule, from the centre outward:
  // the two halves grow from the point that stands for 0.5.
  const double h = 0.01;
  const double mid = 3000 + shift;
  float c = 0;
  double x1 = 0.01;
  for (int i = 1; i <= 365; ++i) {
    const double x2 = h * i;
    const float c2 = static_cast<float>(c + (YYY(x1) + YYY(x2)) * h / 2);
    target.Line(mid + 700 * x1, mid - 4000.0 * c, mid + 700 * x2, mid - 4000.0 * c2, kRed);
    target.Line(mid - 700 * x1, mid + 4000.0 * c, mid - 700 * x2, mid + 4000.0 * c2, kRed);
    x1 = x2;
    c = c2;
  }
}

}  // namespace tessaron

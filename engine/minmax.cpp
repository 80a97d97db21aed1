// The smallest and the largest value of the curve between memory 1 and
// memory 2: a scan of 2000 steps, each inner extreme refined by halving
// steps and a parabola through its neighbours, then set in the middle of
// the flat bottom the fifteen digits leave around it.
#include <cmath>

#include "calc/ovicalc.h"
#include "engine/rounding.h"

namespace tessaron {

namespace {
constexpr int kScan = 2000;
}

void OviCalc::cmdMinMax() {
  PubAssistSetUp();
  if (!AssistOn) return;
  GesuNo = kGesuNone;
  FindGesu();
  if (GesuNo < 0) {
    MsgBox(" Not Working...!!!  ", 48, " Vantor Calc");
    return PubAssistNew();
  }
  auto ends = [this] {
    const bool fromLow = YFrom <= YTo;
    MinX = fromLow ? IntFrom : IntTo;
    MinY = fromLow ? YFrom : YTo;
    MaxX = fromLow ? IntTo : IntFrom;
    MaxY = fromLow ? YTo : YFrom;
  };
  ends();
  if (GesuNo == 1) {
    // A line has its extremes at the ends.
  } else if (GesuNo == kGesuCircle && std::fabs(IntFrom) <= 1 && std::fabs(IntTo) <= 1) {
    if (IntFrom * IntTo <= 0) {
      MaxX = 0;
      MaxY = GesuA;
    }
  } else {
    backKeyWaits(true);
    const double h = (IntTo - IntFrom) / kScan;
    for (int i = 1; i <= kScan - 1; ++i) {
      const double t = IntFrom + i * h;
      double f = 0;
      if (!aidEval(t, f)) {
        MsgBox(" Not Working...!!!  ", 48, " Vantor Calc");
        return PubAssistNew();
      }
      if (f > MaxY) {
        MaxX = t;
        MaxY = f;
      }
      if (f < MinY) {
        MinX = t;
        MinY = f;
      }
    }
    PubMxMnDetail(h);
    if (MinX > IntFrom && MinX < IntTo) ZMaxMin3();
    if (MaxX > IntFrom && MaxX < IntTo) ZMaxMin5();
  }
  if (EqnIdx == kDemoSlot && DemoSub > 1 && DemoNumber >= 36 && DemoNumber <= 38) {
    MaxY /= 5;
    MinY /= 5;
  }
  const double answers[] = {RoundX(10, MinX), RoundX(10, MinY), RoundX(10, MaxX), RoundX(10, MaxY)};
  CalcStage = 4;
  scrMem->setValue(Value(2));
  for (int i = 1; i <= 4; ++i) {
    PubReadout(Value(answers[i - 1]));
    MMMsubKey(i);
    MMMinKey(i);
  }
  lblFormula->Caption = EqnText[EqnIdx];
  MsgBox(" Min(X), Min(Y), Max(X), Max(Y)  at  Memory(3,4,5,6).   ", 48, " Vantor Calc");
  PubAssistNew();
}

// Each inner extreme is looked for again around its place with steps of
// h / 2^k; an extreme at an end of the range stays there.
void OviCalc::PubMxMnDetail(double h) {
  for (int side = 0; side < 2; ++side) {
    const bool low = side == 0;
    double& x = low ? MinX : MaxX;
    double& y = low ? MinY : MaxY;
    if (!(x > IntFrom && x < IntTo)) continue;
    auto better = [low](double f, double than) { return low ? f < than : f > than; };
    for (int k = 0; k <= 11; ++k) {
      const double d = h / std::pow(2.0, k);
      bool moved = false;
      double fL = NAN, fR = NAN, f = 0;
      if (aidEval(x - d, f)) {
        fL = f;
        if (better(fL, y)) {
          x -= d;
          y = fL;
          moved = true;
        }
      }
      if (aidEval(x + d, f)) {
        fR = f;
        if (better(fR, y)) {
          x += d;
          y = fR;
          moved = true;
        }
      }
      if (!moved) {
        // The vertex of the parabola through the three points.
        const double t = x + (d / 2) * (fR - fL) / (2 * y - fR - fL);
        if (std::isfinite(t) && aidEval(t, f) && better(f, y)) {
          x = t;
          y = f;
          moved = true;
        }
      }
      if (fR == y && !moved) break;
    }
  }
}

// The middle of the flat stretch around an extreme, where the display's
// fifteen digits no longer see the curve move.
double OviCalc::flatMiddle(double x, double y, bool low) {
  auto reach = [&](double dir) {
    for (int j = 1; j <= 2000; ++j) {
      double f = 0;
      if (!aidEval(x * (1 + dir * j * 1e-10), f)) return 0;
      if (low ? f > y : f < y) return j - 1;
    }
    return 2000;
  };
  const int up = reach(1), down = reach(-1);
  return x * (1 + ((up - down) / 2.0) * 1e-10);
}

void OviCalc::ZMaxMin3() { MinX = flatMiddle(MinX, MinY, true); }
void OviCalc::ZMaxMin5() { MaxX = flatMiddle(MaxX, MaxY, false); }

}  // namespace tessaron

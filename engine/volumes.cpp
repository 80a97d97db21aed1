// Volumes and surfaces of revolution of the curve between memory 1 and
// memory 2, about the X axis or the Y axis, with the answer in memory 3.
#include <cmath>

#include "calc/ovicalc.h"
#include "engine/assist_math.h"
#include "engine/rounding.h"

namespace tessaron {

namespace {
constexpr int kIntervals = 5000;
const char* const kNotWorking = " Not Working...!!!  ";
const char* const kSameSign = "  Memory(1, 2) both need to be same sign(+,-) or one is zero. ";

double round4(double x) { return std::nearbyint(x * 1e4) / 1e4; }
bool xVolumeDemo(int n) {
  return (n >= 1 && n <= 10) || (n >= 13 && n <= 18) || n == 20 || n == 21 || n == 29 || n == 37;
}
}  // namespace

void OviCalc::aidMessage(const char* text) {
  MsgBox(text, 48, " Vantor Calc");
  PubAssistNew();
}

// The value of an aid rounded as its way of reaching it deserves.
double OviCalc::aidRound(double value, bool closed) const {
  if (closed) return RoundX(13, value);
  return std::fabs(IntTo - IntFrom) > 200 ? round4(value) : RoundX(6, value);
}

void OviCalc::cmdXCyl() {
  PubAssistSetUp();
  if (!AssistOn) return;
  double value = 0;
  bool closed = false;
  Shape s;
  if (EqnIdx == kDemoSlot && xVolumeDemo(DemoNumber) && demoShape(s)) {
    closed = ShapeSquareIntegral(s, IntFrom, IntTo, value);
  } else if (EqnIdx != kDemoSlot || !xVolumeDemo(DemoNumber)) {
    GesuNo = kGesuNone;
    FindGesu();
    if (GesuNo < 0) return aidMessage(kNotWorking);
    if (GesuNo != kGesuNone) closed = ShapeSquareIntegral(gesuShape(), IntFrom, IntTo, value);
  }
  if (!closed) {
    // A scaled demo curve is divided by 5 on each sample, so its square by 25.
    bool same = true;
    const SumEnd end = simpsonSum(true, value, same);
    if (end == SumEnd::Error) return aidMessage(kNotWorking);
    if (end == SumEnd::TooBig) return aidMessage(" Too Big  ...!!! e ");
  }
  value = aidRound(std::fabs(value * vPi.number()), closed);
  if (!aidAnswer(value)) return;
  aidMessage(!closed && std::fabs(IntTo - IntFrom) > 200
                 ? " Too wide range (recomend <101). Answer  at Memory(3)  is rough. "
                 : " Volume rotating X-axis is at   Memory(3).   ");
}

void OviCalc::cmdYCol() {
  PubAssistSetUp();
  if (!AssistOn) return;
  if (vMemory[1].number() * vMemory[2].number() < 0) {
    MsgBox(kSameSign, 48, " Vantor Calc");
    PubAssistNew();
    scrMem->setValue(Value(0));
    MMMsubKey(3);
    return;
  }
  const char* const kOverlap = " Not Working.....!!!  Some Overlapping !!!  ";
  const double yLow = std::min(YFrom, YTo), yHigh = std::max(YFrom, YTo);
  GesuNo = kGesuNone;
  FindGesu();
  if (GesuNo < 0) return aidMessage(" Not Working.....!!!  ");
  double value = 0;
  bool closed = false;
  if (GesuNo == 1 && GesuB != 0) {
    // T = (y - c) / a along the line, squared and integrated over y.
    const double a = GesuB, c = GesuC;
    auto F = [&](double y) { return (y * y * y / 3 - c * y * y + c * c * y) / (a * a); };
    value = F(YTo) - F(YFrom);
    closed = true;
  } else {
    // Discs of radius T, each as thick as its step in y; the curve may not
    // leave the band between its end values.
    backKeyWaits(true);
    const double h = (IntTo - IntFrom) / kIntervals;
    double yPrev = YFrom, f = 0;
    for (int i = 1; i <= kIntervals; ++i) {
      const double t = IntFrom + i * h;
      if (!aidEval(t, f)) return aidMessage(" Not Working.....!!!  ");
      if (f < yLow || f > yHigh) return aidMessage(kOverlap);
      const double tPrev = t - h;
      const double disc = (t * t + tPrev * tPrev) / 2 * (f - yPrev);
      if (!std::isfinite(disc)) return aidMessage(" Not Working......!!!    ");
      value += disc;
      if (std::fabs(value) > 1e15) return aidMessage(" Too Big  ...!!! e ");
      yPrev = f;
    }
  }
  value = aidRound(std::fabs(value * vPi.number()), closed);
  if (!aidAnswer(value)) return;
  aidMessage(!closed && std::fabs(IntTo - IntFrom) > 200
                 ? " Too wide range. Answer at Memory(3)  is rough.   "
                 : " Volume rotating Y-axis is at   Memory(3).   ");
}

// The surface as a sum of frusta: each step's slant height times the mean
// circumference of its two rims.
void OviCalc::surfaceOfRevolution(bool aboutY) {
  PubAssistSetUp();
  if (!AssistOn) return;
  if (aboutY && vMemory[1].number() * vMemory[2].number() < 0) {
    MsgBox(kSameSign, 48, " Vantor Calc");
    PubAssistNew();
    scrMem->setValue(Value(0));
    MMMsubKey(3);
    return;
  }
  GesuNo = kGesuNone;
  FindGesu();
  if (GesuNo < 0) return aidMessage(kNotWorking);
  const double pi = vPi.number();
  double value = 0;
  if (GesuNo == 1) {
    const double L =
        std::sqrt((YTo - YFrom) * (YTo - YFrom) + (IntTo - IntFrom) * (IntTo - IntFrom));
    const double rims =
        aboutY ? std::fabs(IntFrom) + std::fabs(IntTo) : std::fabs(YFrom) + std::fabs(YTo);
    value = RoundX(14, pi * rims * L);
  } else {
    backKeyWaits(true);
    const double h = (IntTo - IntFrom) / kIntervals;
    double prev = 0, f = 0;
    for (int i = 0; i <= kIntervals; ++i) {
      const double t = IntFrom + i * h;
      if (!aidEval(t, f)) return aidMessage(kNotWorking);
      if (i > 0) {
        const double ds = std::sqrt((f - prev) * (f - prev) + h * h);
        const double rims =
            aboutY ? std::fabs(t) + std::fabs(t - h) : std::fabs(f) + std::fabs(prev);
        value += rims * ds * pi;
      }
      prev = f;
    }
  }
  if (!aidAnswer(value)) return;
  aidMessage(aboutY ? " Surface rotating Y-axis  is  at   Memory(3).   "
                    : " Surface rotating X-axis  is  at   Memory(3).   ");
}

void OviCalc::cmdXsurf() { surfaceOfRevolution(false); }
void OviCalc::cmdYsurf() { surfaceOfRevolution(true); }

}  // namespace tessaron

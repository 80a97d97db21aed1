// The integral and the length of the curve between memory 1 and memory 2: a
// closed form where the shape is known, Simpson's rule with 5000 intervals
// where it is not.
#include <cmath>

#include "calc/ovicalc.h"
#include "engine/assist_math.h"
#include "engine/rounding.h"

namespace tessaron {

namespace {
constexpr long kBusyColour = 16769248;
constexpr int kIntervals = 5000;
const char* const kNotWorking = " Not Working...!!!  ";

double round4(double x) { return std::nearbyint(x * 1e4) / 1e4; }
}  // namespace

// The running demo's own function at unit scale, where it has a closed form.
bool OviCalc::demoShape(Shape& s) const {
  if (EqnIdx != kDemoSlot) return false;
  const int n = DemoNumber;
  if (n < 1 || n > 39 || n == 38 || n == 11 || n == 12) return false;
  s = Shape{};
  s.no = n;
  s.a = 1;
  s.b = 1;
  if (n == 1) s.c = 0;
  if (n == 3 || n == 4) s.b = 0;
  return true;
}

// Simpson's rule as twice the midpoint sum and the trapezoid sum, over
// three; f or f^2. `same` stays true while no term turns against the sum.
OviCalc::SumEnd OviCalc::simpsonSum(bool square, double& value, bool& same) {
  backKeyWaits(true);
  const double h = (IntTo - IntFrom) / kIntervals;
  const bool scaled = EqnIdx == kDemoSlot && DemoSub > 1 && DemoNumber > 35;
  auto term = [&](double x, double& f) {
    if (!aidEval(x, f)) return false;
    if (square) {
      if (scaled) f /= 5;
      f *= f;
    }
    return true;
  };
  double sum = 0, f = 0;
  same = true;
  for (int i = 1; i <= kIntervals; ++i) {
    if (!term(IntFrom - h / 2 + i * h, f)) return SumEnd::Error;
    sum += f * h;
    if (f * h * sum < 0) same = false;
  }
  if (std::fabs(sum) > 1e15) return SumEnd::TooBig;
  sum *= 2;
  for (int i = 0; i <= kIntervals; ++i) {
    if (!term(IntFrom + i * h, f)) return SumEnd::Error;
    const double w = i == 0 || i == kIntervals ? 0.5 : 1;
    sum += w * f * h;
    if (f * h * sum < 0) same = false;
  }
  value = sum / 3;
  return SumEnd::Done;
}

void OviCalc::cmdIntegral() {
  PubAssistSetUp();
  if (!AssistOn) return;
  AssistBusy = true;
  control("cmdIntegral").BackColor = kBusyColour;
  double value = 0;
  bool closed = false, same = true;
  Shape s;
  if (demoShape(s)) {
    if (DemoNumber == 39) {
      value = std::exp(-IntFrom * IntFrom / 2) - std::exp(-IntTo * IntTo / 2);
      closed = true;
    } else {
      closed = ShapeIntegral(s, IntFrom, IntTo, value);
    }
  } else {
    GesuNo = kGesuNone;
    FindGesu();
    if (GesuNo < 0) {
      MsgBox(kNotWorking, 48, " Vantor Calc");
      AssistBusy = false;
      return PubAssistNew();
    }
    if (GesuNo != kGesuNone) closed = ShapeIntegral(gesuShape(), IntFrom, IntTo, value);
  }
  if (closed) {
    // The sign test lives in the sums' loops: a closed form names the area
    // by the integral's own sign.
    same = true;
  } else {
    const SumEnd end = simpsonSum(false, value, same);
    if (end != SumEnd::Done) {
      MsgBox(end == SumEnd::Error ? kNotWorking : " Too Big  ...!!! e ", 48, " Vantor Calc");
      AssistBusy = false;
      return PubAssistNew();
    }
    if (EqnIdx == kDemoSlot && DemoSub > 1 && DemoNumber > 35) value /= 5;
  }
  const bool wide = std::fabs(IntTo - IntFrom) > 200;
  if (closed)
    value = RoundX(13, value);
  else
    value = wide ? round4(value) : RoundX(6, value);
  if (!aidAnswer(value)) {
    AssistBusy = false;
    return;
  }
  const bool rough = !closed && wide;
  std::string text;
  if (!same)
    text = rough ? " Too wide range (recomend <101). Integral at Memory(3)  is rough. "
                 : " Integral is at   Memory(3).   ";
  else if (value >= 0)
    text = rough ? " Too wide range (recomend <101). Integral (= Area) at Mem(3)  is rough. "
                 : " Integral (= Area) is at   Memory(3).   ";
  else
    text = rough ? " Too wide range (recomend <101). Integral (= - Area) at Memory(3)  is rough. "
                 : " Integral (= - Area) is at   Memory(3).   ";
  MsgBox(text, 48, " Vantor Calc");
  AssistBusy = false;
  PubAssistNew();
}

void OviCalc::cmdLength() {
  PubAssistSetUp();
  if (!AssistOn) return;
  GesuNo = kGesuNone;
  FindGesu();
  if (GesuNo < 0) {
    MsgBox(kNotWorking, 48, " Vantor Calc");
    return PubAssistNew();
  }
  double length = 0;
  if (GesuNo == 1) {
    length = RoundX(
        14, std::sqrt((IntTo - IntFrom) * (IntTo - IntFrom) + (YTo - YFrom) * (YTo - YFrom)));
  } else if (GesuNo == kGesuCircle) {
    const double r = GesuA;
    const double degrees = (std::acos(IntFrom / r) - std::acos(IntTo / r)) * 45 / std::atan(1.0);
    length = RoundX(14, degrees * std::atan(1.0) / 45 * r);
  } else {
    const double h = (IntTo - IntFrom) / kIntervals;
    double prev = 0, f = 0;
    for (int i = 0; i <= kIntervals; ++i) {
      if (!aidEval(IntFrom + i * h, f)) {
        MsgBox(kNotWorking, 48, " Vantor Calc");
        return PubAssistNew();
      }
      if (i > 0) length += std::sqrt((f - prev) * (f - prev) + h * h);
      prev = f;
    }
  }
  if (!aidAnswer(length)) return;
  MsgBox(" Length  is  at   Memory(3).   ", 48, " Vantor Calc");
  PubAssistNew();
}

}  // namespace tessaron

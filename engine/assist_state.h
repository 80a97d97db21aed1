#pragma once
// The calculus aids' variables: the range between memory 1 and memory 2, the
// shape the sampler recognised with its coefficients, the extremes and the
// histogram's curve. They belong to the calculator's form, beside the
// engine's own.
#include <array>

namespace tessaron {

// The shape numbers of the recogniser: 1 to 35 follow the demos' shapes, 37
// is the circle; 55 means none was found.
inline constexpr int kGesuNone = 55;
inline constexpr int kGesuCircle = 37;
inline constexpr int kGesuHypotheses = 38;

struct AssistState {
  bool AssistOn = false, AssistBusy = false;
  double IntFrom = 0, IntTo = 0;
  double YFrom = 0, YTo = 0, YMid = 0;
  short GesuNo = kGesuNone;
  double GesuA = 0, GesuB = 0, GesuC = 0, GesuK = 0;
  double GesuZero = 0;
  double IntStep = 0;
  double MinX = 0, MinY = 0, MaxX = 0, MaxY = 0;
  // 2 at entry 0 while the histogram's curve is in force, then a4, a3, a2, a1.
  std::array<double, 5> ModeCoef{};
  double ModeX = 0, ModeMax = 0;
  // The scale ModeVask last gave the curve to fit the picture: a factor, and
  // whether the curve was divided by it.
  double ModeScale = 1;
  bool ModeScaleDown = false;
};

}  // namespace tessaron

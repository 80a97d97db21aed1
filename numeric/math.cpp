#include <cmath>

#include "numeric/numeric.h"

namespace tessaron {

double Sqr(double x) {
  if (x < 0) fail::Invalid();
  return std::sqrt(x);
}

double Exp(double x) { return Checked(std::exp(x)); }

double Log(double x) {
  if (x <= 0) fail::Invalid();
  return std::log(x);
}

double Sin(double x) { return Checked(std::sin(x)); }
double Cos(double x) { return Checked(std::cos(x)); }
double Tan(double x) { return Checked(std::tan(x)); }
double Atn(double x) { return Checked(std::atan(x)); }

double Pmt(double rate, double nper, double pv, double fv, int due) {
  if (nper == 0) fail::Invalid();
  if (rate == 0) return Checked(-(pv + fv) / nper);
  const double grow = Checked(std::pow(1 + rate, nper));
  const double den = Checked((1 + rate * (due ? 1 : 0)) * (grow - 1));
  if (den == 0) fail::DivisionByZero();
  return Checked(-(pv * grow + fv) * rate / den);
}

long Rgb(int r, int g, int b) {
  // Components above 255 are taken as 255; a negative one is refused.
  if (r < 0 || g < 0 || b < 0) fail::Invalid();
  auto clip = [](int c) { return static_cast<long>(c > 255 ? 255 : c); };
  return clip(r) + 256 * clip(g) + 65536 * clip(b);
}

long QBColor(int n) {
  // The sixteen classic colours, already as colour numbers (r + 256 g +
  // 65536 b): 1 is dark blue, 12 bright red.
  static const long kColour[16] = {0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080,
                                   0x008080, 0xC0C0C0, 0x808080, 0xFF0000, 0x00FF00, 0xFFFF00,
                                   0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF};
  if (n < 0 || n > 15) fail::Invalid();
  return kColour[n];
}

}  // namespace tessaron

// Fraction, binary, octal and hexadecimal views of the display value.
#include "calc/kernels/views.h"

#include <cmath>

#include "numeric/numeric.h"

namespace tessaron::kernels {

namespace {

constexpr double kClean = 1e14;
constexpr int kLargestDenominator = 200;

// The steps common to both views of cmdFract: nothing to show for a display
// of 0 (the key cancels) or a whole number.
bool Prelude(double v, double& f, View& out) {
  f = FractionPart(v);
  if (v == 0) {
    out.act = View::Act::Cancel;
    return false;
  }
  if (f == 0) {
    out.act = View::Act::Nothing;
    return false;
  }
  return true;
}

std::string Whole(double v) { return CStr(Value(v)); }

}  // namespace

double FractionPart(double v) {
  double f = v - std::floor(v);
  // A display value carries binary dust in its last digits; the fraction is
  // taken to fourteen decimals.
  const double raw = f * kClean;
  const double whole = Round(Value(raw)).number();
  if (std::fabs(whole - raw) < 1) f = whole / kClean;
  return f;
}

View FractionView(double v) {
  View out;
  double f = 0;
  if (!Prelude(v, f, out)) return out;
  const double inverse = std::fabs(1 / f);
  if (inverse > 1e15) {
    out.text = " 1 / " + Whole(std::floor(inverse)) + " ";
    return out;
  }
  // Denominators from near 1/f up, so that the lower one wins a tie.
  long first = f > 0.5 ? 2 : static_cast<long>(std::floor(1 / f));
  if (first < 2) first = 2;
  double best = 1e300;
  long bestN = 0, bestD = 0;
  for (long d = first; d <= kLargestDenominator; ++d) {
    const long n0 = static_cast<long>(std::floor(f * d));
    for (long n = n0; n <= n0 + 2; ++n) {
      const double diff = std::fabs(static_cast<double>(n) / d - f);
      if (diff < best) {
        best = diff;
        bestN = n;
        bestD = d;
      }
    }
  }
  if (bestD == 0) {
    // No denominator up to 200 comes near: the fraction is one over the
    // whole part of 1/f.
    out.text = " 1 / " + Whole(std::floor(inverse)) + " ";
    return out;
  }
  out.text = Whole(static_cast<double>(bestN)) + " /" + Whole(static_cast<double>(bestD)) + " ";
  if (best > 1e-15) out.text = " about " + out.text;
  return out;
}

View BinaryView(double v) {
  View out;
  double f = 0;
  if (!Prelude(v, f, out)) return out;
  std::string digits = "0.";
  for (int i = 0; i < 15 && f != 0; ++i) {
    f = f * 2;
    const double bit = std::floor(f);
    digits += bit == 0 ? '0' : '1';
    f -= bit;
  }
  out.text = " Bin: " + Format(Value(digits), "0.0###################");
  if (f != 0) out.text += " . . . ";
  return out;
}

namespace {

View Radix(double v, bool hex) {
  View out;
  if (v > std::pow(8.0, 10)) {
    out.act = View::Act::Refused;
    out.message = " Too Big Number. (octal) ";
    return out;
  }
  out.text = hex ? " Hex:  " + Hex(Value(v)) + " " : " Oct:  " + Oct(Value(v)) + " ";
  return out;
}

}  // namespace

View OctalView(double v) { return Radix(v, false); }
View HexView(double v) { return Radix(v, true); }

}  // namespace tessaron::kernels

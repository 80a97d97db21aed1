#pragma once

// Helpers shared by the library's own files; not part of its interface.

#include <string>
#include <string_view>

#include "numeric/value.h"

namespace tessaron::detail {

// A number read from text by the IsNumeric rule: significant digits and the
// place of the point within them (value = digits with the point after
// `point` of them), so CDec can take it exactly and CDbl through strtod.
struct NumText {
  bool neg = false;
  std::string digits;
  int point = 0;
};
bool ReadNumeric(std::string_view text, NumText& out);

// The CDbl rule on text; Type mismatch if it is no number.
double TextToReal(std::string_view text);
// The 15-significant-digit text of a Real (CStr).
std::string RealToText(double x);
// 15 significant digits of |x|, correctly rounded, and the decimal exponent of
// the first one: |x| = d.dddddddddddddd * 10^exp10.
void RealDigits(double x, char digits[15], int& exp10);
// The same digits the quick way, as a fifteen-digit whole number, with a
// fused multiply-add or without one: false where the quick way cannot be
// sure. The processor decides which of the two the conversions use; the
// fused one runs only where FusedMultiplyAdd() says so.
bool QuickDigitsFused(double a, unsigned long long& m, int& exp10);
bool QuickDigitsPlain(double a, unsigned long long& m, int& exp10);
bool FusedMultiplyAdd();

// Strings in arithmetic are read by the CDbl rule.
Value Numeric(const Value& v);

}  // namespace tessaron::detail

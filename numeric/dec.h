#pragma once

#include <compare>
#include <cstdint>
#include <string>
#include <string_view>

namespace tessaron {

// A scaled decimal: value = (-1)^neg * mantissa / 10^scale, with a 96-bit
// unsigned mantissa and a scale of 0 to 28. Amounts and rates entered in the
// finance and summation forms live in this type so that decimal fractions
// stay exact. Trivially copyable, so a Value holding one never allocates.
class Dec {
 public:
  static constexpr int kMaxScale = 28;

  constexpr Dec() = default;
  static Dec FromInt(long long v);
  // Exact reading of plain decimal text (digits, one point, optional sign and
  // exponent); more digits than fit are rounded, half to even. Throws
  // Overflow beyond the range; returns false on text that is not a number.
  static bool Parse(std::string_view text, Dec& out);
  // From decimal digits and the place of the point: the value is the digits
  // with the point after the first `point` of them (point may lie outside).
  static Dec FromDigits(bool neg, std::string_view digits, int point);
  // Through the 15-significant-digit text of the double, as the forms expect
  // (1.1 becomes exactly 1.1, not its binary neighbour).
  static Dec FromDouble(double x);

  double ToDouble() const;
  std::string ToString() const;  // all digits, no exponent, no trailing zeros
  // Significant digits of the mantissa with the scale, for the formatter.
  void Digits(std::string& digits, int& scale) const;

  bool IsZero() const { return lo_ == 0 && mid_ == 0 && hi_ == 0; }
  bool IsNegative() const { return neg_ && !IsZero(); }
  int Scale() const { return scale_; }

  Dec operator-() const {
    Dec r = *this;
    r.neg_ = !neg_;
    return r;
  }
  Dec Abs() const {
    Dec r = *this;
    r.neg_ = false;
    return r;
  }
  Dec Floor() const;      // largest whole number not above
  Dec RoundEven() const;  // nearest whole number, ties to even

  friend Dec operator+(const Dec& a, const Dec& b);
  friend Dec operator-(const Dec& a, const Dec& b);
  friend Dec operator*(const Dec& a, const Dec& b);
  friend Dec operator/(const Dec& a, const Dec& b);
  friend int Compare(const Dec& a, const Dec& b);
  friend bool operator==(const Dec& a, const Dec& b) { return Compare(a, b) == 0; }
  friend std::strong_ordering operator<=>(const Dec& a, const Dec& b) {
    return Compare(a, b) <=> 0;
  }

  // Raw access for the arithmetic and its tests.
  unsigned __int128 Mantissa() const {
    return (static_cast<unsigned __int128>(hi_) << 64) |
           (static_cast<unsigned __int128>(mid_) << 32) | lo_;
  }
  static Dec Make(unsigned __int128 mantissa, int scale, bool neg) {
    Dec d;
    d.lo_ = static_cast<uint32_t>(mantissa);
    d.mid_ = static_cast<uint32_t>(mantissa >> 32);
    d.hi_ = static_cast<uint32_t>(mantissa >> 64);
    d.scale_ = static_cast<uint8_t>(scale);
    d.neg_ = neg;
    return d;
  }

 private:
  uint32_t lo_ = 0, mid_ = 0, hi_ = 0;
  uint8_t scale_ = 0;
  bool neg_ = false;
};

}  // namespace tessaron

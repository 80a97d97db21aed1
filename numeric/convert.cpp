#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "numeric/detail.h"
#include "numeric/numeric.h"

namespace tessaron {
namespace detail {

namespace {

// Powers of ten a double holds exactly (5^22 < 2^53).
constexpr double kTen[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                           1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

// |x| x 10^k as a head and a tail whose sum is exact (product) or off by far
// less than a millionth (quotient). With a fused multiply-add the tail is
// one instruction; without one, Dekker's exact product makes it in plain
// arithmetic, with no library call.
template <bool kFused>
[[gnu::always_inline]] inline void Scaled(double a, int k, double& head, double& tail) {
  if (k >= 0) {
    head = a * kTen[k];
    if constexpr (kFused) {
      tail = __builtin_fma(a, kTen[k], -head);
    } else {
      auto split = [](double x, double& hi, double& lo) {
        const double c = 134217729.0 * x;  // 2^27 + 1
        hi = c - (c - x);
        lo = x - hi;
      };
      double ah, al, ph, pl;
      split(a, ah, al);
      split(kTen[k], ph, pl);
      tail = ((ah * ph - head) + ah * pl + al * ph) + al * pl;
    }
  } else {
    head = a / kTen[-k];
    tail = __builtin_fma(-head, kTen[-k], a) / kTen[-k];
  }
}

// The fifteen digits of |x| the quick way, for the magnitudes the exact
// powers reach: away from a half the rounding of the scaled value is certain.
// Near a half, or out of reach, it answers false and the exact conversion
// decides.
template <bool kFused>
[[gnu::always_inline]] inline bool Quick(double a, unsigned long long& m, int& exp10) {
  if (!(a >= 1e-8 && a < 1e36)) return false;
  // 2^b <= a < 2^(b+1): a first guess at the decimal exponent, one short at
  // most.
  std::uint64_t bits;
  std::memcpy(&bits, &a, sizeof a);
  const int binary = static_cast<int>((bits >> 52) & 0x7ff) - 1023;  // a is normal here
  // floor(binary x log10 2), in integers: exact over the whole double range.
  int e = (binary * 78913) >> 18;
  auto reach = [&e] { return 14 - e >= -22 && 14 - e <= 22; };
  if (!reach()) return false;
  double head, tail;
  Scaled<kFused>(a, 14 - e, head, tail);
  if (head >= 1e15) {
    ++e;
    if (!reach()) return false;
    Scaled<kFused>(a, 14 - e, head, tail);
  }
  if (head < 1e14 || head >= 1e15) return false;
  // head is positive: truncation is its floor, without a library call.
  double whole = static_cast<double>(static_cast<long long>(head));
  double part = (head - whole) + tail;
  if (part < 0) {
    whole -= 1;
    part += 1;
  }
  if (std::fabs(part - 0.5) < 1e-6 || part >= 1 || whole < 1e14) return false;
  m = static_cast<unsigned long long>(whole) + (part > 0.5 ? 1 : 0);
  if (m == 1000000000000000ULL) {
    m = 100000000000000ULL;
    ++e;
  }
  exp10 = e;
  return true;
}

// The processor is asked once whether it fuses.
bool QuickDigits(double a, unsigned long long& m, int& exp10) {
  static const auto quick = FusedMultiplyAdd() ? QuickDigitsFused : QuickDigitsPlain;
  return quick(a, m, exp10);
}

}  // namespace

[[gnu::target("fma")]] bool QuickDigitsFused(double a, unsigned long long& m, int& exp10) {
  return Quick<true>(a, m, exp10);
}
bool QuickDigitsPlain(double a, unsigned long long& m, int& exp10) {
  return Quick<false>(a, m, exp10);
}
bool FusedMultiplyAdd() { return __builtin_cpu_supports("fma"); }

void RealDigits(double x, char digits[15], int& exp10) {
  unsigned long long m;
  if (QuickDigits(std::fabs(x), m, exp10)) {
    for (int i = 14; i >= 0; --i, m /= 10) digits[i] = static_cast<char>('0' + m % 10);
    return;
  }
  char buf[40];
  auto res = std::to_chars(buf, buf + sizeof buf, std::fabs(x), std::chars_format::scientific, 14);
  // "d.dddddddddddddde+XX"
  digits[0] = buf[0];
  std::memcpy(digits + 1, buf + 2, 14);
  exp10 = 0;
  const char* e = buf + 17;
  std::from_chars(e + (*e == '+'), res.ptr, exp10);
}

std::string RealToText(double x) {
  if (x == 0) return "0";
  char d[15];
  int e;
  RealDigits(x, d, e);
  int n = 15;
  while (n > 1 && d[n - 1] == '0') --n;
  char out[40];
  char* p = out;
  if (x < 0) *p++ = '-';
  if (e >= 15 || e < -4) {
    // "1E+15", "1.5E-05": at least two exponent digits.
    *p++ = d[0];
    if (n > 1) {
      *p++ = '.';
      std::memcpy(p, d + 1, n - 1);
      p += n - 1;
    }
    *p++ = 'E';
    *p++ = e < 0 ? '-' : '+';
    int a = e < 0 ? -e : e;
    if (a >= 100) *p++ = static_cast<char>('0' + a / 100);
    *p++ = static_cast<char>('0' + a / 10 % 10);
    *p++ = static_cast<char>('0' + a % 10);
  } else if (e < 0) {
    *p++ = '0';
    *p++ = '.';
    for (int i = -1; i > e; --i) *p++ = '0';
    std::memcpy(p, d, n);
    p += n;
  } else {
    for (int i = 0; i <= e; ++i) *p++ = i < n ? d[i] : '0';
    if (n > e + 1) {
      *p++ = '.';
      std::memcpy(p, d + e + 1, n - e - 1);
      p += n - e - 1;
    }
  }
  return std::string(out, p);
}

namespace {
bool IsBlank(char c) { return c == ' ' || c == '\t'; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }
}  // namespace

// What validators accept: optional surrounding blanks, a sign in front or
// behind, parentheses for a negative, a leading currency sign, grouping
// commas among the whole digits, one point and an optional exponent.
bool ReadNumeric(std::string_view t, NumText& out) {
  size_t i = 0, n = t.size();
  auto skip = [&] {
    while (i < n && IsBlank(t[i])) ++i;
  };
  out = NumText();
  skip();
  bool paren = false, sign = false, neg = false;
  if (i < n && t[i] == '(') {
    paren = true;
    ++i;
    skip();
  }
  auto take_sign = [&] {
    if (!sign && i < n && (t[i] == '+' || t[i] == '-')) {
      sign = true;
      neg = t[i] == '-';
      ++i;
      skip();
    }
  };
  take_sign();
  if (i < n && t[i] == '$') {
    ++i;
    skip();
  }
  take_sign();
  std::string& d = out.digits;
  bool point = false, any = false;
  int whole = 0;
  for (; i < n; ++i) {
    char c = t[i];
    if (IsDigit(c)) {
      d += c;
      any = true;
      if (!point) ++whole;
    } else if (c == ',' && !point && any) {
      continue;
    } else if (c == '.' && !point) {
      point = true;
    } else {
      break;
    }
  }
  if (!any) return false;
  int exp = 0;
  if (i < n && (t[i] == 'e' || t[i] == 'E' || t[i] == 'd' || t[i] == 'D')) {
    size_t j = i + 1;
    bool eneg = false;
    if (j < n && (t[j] == '+' || t[j] == '-')) eneg = t[j++] == '-';
    if (j >= n || !IsDigit(t[j])) return false;
    for (; j < n && IsDigit(t[j]); ++j)
      if (exp < 100000) exp = exp * 10 + (t[j] - '0');
    if (eneg) exp = -exp;
    i = j;
  }
  skip();
  if (i < n && (t[i] == '+' || t[i] == '-') && !sign) {
    sign = true;
    neg = t[i] == '-';
    ++i;
    skip();
  }
  if (paren) {
    if (sign || i >= n || t[i] != ')') return false;
    ++i;
    neg = true;
    skip();
  }
  if (i != n) return false;
  out.neg = neg;
  out.point = whole + exp;
  return true;
}

namespace {
double DigitsToReal(const NumText& v) {
  std::string s = v.neg ? "-0." : "0.";
  s += v.digits;
  s += 'e';
  s += std::to_string(v.point);
  // strtod: too large gives an infinity (an Overflow), too small zero.
  return Checked(std::strtod(s.c_str(), nullptr));
}
}  // namespace

double TextToReal(std::string_view text) {
  NumText v;
  if (!ReadNumeric(text, v)) fail::TypeMismatch();
  return DigitsToReal(v);
}

}  // namespace detail

namespace {
// What x's fifteen-digit text reads back as, the quick way where it is sure.
template <bool kFused>
[[gnu::always_inline]] inline double ReadBack(double x) {
  if (x == 0 || !std::isfinite(x)) return x == 0 ? 0 : x;
  unsigned long long m;
  int e;
  if (detail::Quick<kFused>(std::fabs(x), m, e) && e - 14 >= -22 && e - 14 <= 22) {
    // Fifteen digits are exact in a double, and so is the power: one
    // rounding, the same as reading the text.
    const double v = e >= 14 ? static_cast<double>(m) * detail::kTen[e - 14]
                             : static_cast<double>(m) / detail::kTen[14 - e];
    return x < 0 ? -v : v;
  }
  return std::strtod(detail::RealToText(x).c_str(), nullptr);
}
[[gnu::target("fma")]] double ReadBackFused(double x) { return ReadBack<true>(x); }
double ReadBackPlain(double x) { return ReadBack<false>(x); }
}  // namespace

double CStrValue(double x) {
  static const auto readBack = detail::FusedMultiplyAdd() ? ReadBackFused : ReadBackPlain;
  return readBack(x);
}

std::string Value::str() const { return CStr(*this); }

std::string CStr(const Value& v) {
  switch (v.kind()) {
    case Kind::Empty:
      return std::string();
    case Kind::Bool:
      return v.AsBool() ? "True" : "False";
    case Kind::Int16:
      return std::to_string(v.AsInt16());
    case Kind::Int32:
      return std::to_string(v.AsInt32());
    case Kind::Real:
      return detail::RealToText(v.AsReal());
    case Kind::Dec:
      return v.AsDec().ToString();
    case Kind::String:
      return v.AsString();
  }
  return std::string();
}

std::string Str(const Value& v) {
  const Value n = v.kind() == Kind::String ? Value(v.number()) : v;
  if (n.kind() == Kind::Bool) return CStr(n);
  const std::string s = n.kind() == Kind::Empty ? std::string(1, '0') : CStr(n);
  if (s[0] == '-') return s;
  std::string out(1, ' ');
  out += s;
  return out;
}

double Val(std::string_view t) {
  // Blanks, tabs and line feeds are skipped wherever they stand; a carriage
  // return is none of these, so it ends the number like any other character.
  std::string s;
  size_t i = 0;
  auto next = [&]() -> char {
    while (i < t.size() && (t[i] == ' ' || t[i] == '\t' || t[i] == '\n')) ++i;
    return i < t.size() ? t[i] : '\0';
  };
  char c = next();
  if (c == '+' || c == '-') {
    if (c == '-') s += '-';
    ++i;
  }
  bool point = false, any = false;
  for (c = next(); c; c = next()) {
    if (c >= '0' && c <= '9') {
      s += c;
      any = true;
    } else if (c == '.' && !point) {
      s += '.';
      point = true;
    } else {
      break;
    }
    ++i;
  }
  if (!any) return 0;
  if (c == 'e' || c == 'E' || c == 'd' || c == 'D') {
    ++i;
    std::string e = "e";
    char d = next();
    if (d == '+' || d == '-') {
      e += d;
      ++i;
    }
    bool digits = false;
    for (d = next(); d >= '0' && d <= '9'; d = next()) {
      e += d;
      digits = true;
      ++i;
    }
    if (digits) s += e;
  }
  return Checked(std::strtod(s.c_str(), nullptr));
}

bool IsNumeric(const Value& v) {
  if (v.kind() != Kind::String) return true;
  detail::NumText n;
  if (!detail::ReadNumeric(v.AsString(), n)) return false;
  // Text for a number beyond the range of a Real cannot be read as a number,
  // so the forms refuse it like any other text rather than fail on it later.
  const std::string text = "0." + n.digits + "e" + std::to_string(n.point);
  return std::isfinite(std::strtod(text.c_str(), nullptr));
}

Value CDbl(const Value& v) { return Value(v.number()); }

Value CDec(const Value& v) {
  switch (v.kind()) {
    case Kind::Dec:
      return v;
    case Kind::Real:
      return Value(Dec::FromDouble(v.AsReal()));
    case Kind::String: {
      // Read exactly from the text, so "0.07" is exactly seven hundredths.
      detail::NumText n;
      if (!detail::ReadNumeric(v.AsString(), n)) fail::TypeMismatch();
      return Value(Dec::FromDigits(n.neg, n.digits, n.point));
    }
    case Kind::Bool:
      return Value(Dec::FromInt(v.AsBool() ? -1 : 0));
    case Kind::Int16:
      return Value(Dec::FromInt(v.AsInt16()));
    case Kind::Int32:
      return Value(Dec::FromInt(v.AsInt32()));
    case Kind::Empty:
      return Value(Dec());
  }
  return Value(Dec());
}

namespace {
// Nearest whole number, ties to even, within [lo, hi]; else Overflow.
long long WholeEven(const Value& v, long long lo, long long hi) {
  double r;
  if (v.kind() == Kind::Dec) {
    Dec d = v.AsDec().RoundEven();
    if (d < Dec::FromInt(lo) || d > Dec::FromInt(hi)) fail::Overflow();
    r = d.ToDouble();
  } else {
    r = std::nearbyint(v.number());
    if (!(r >= static_cast<double>(lo) && r <= static_cast<double>(hi))) fail::Overflow();
  }
  return static_cast<long long>(r);
}
}  // namespace

Value CInt(const Value& v) {
  return Value::Int16(static_cast<int16_t>(WholeEven(v, -32768, 32767)));
}
Value CLng(const Value& v) {
  return Value::Int32(static_cast<int32_t>(WholeEven(v, INT32_MIN, INT32_MAX)));
}
float CSng(const Value& v) {
  double d = v.number();
  if (std::fabs(d) > 3.4028234663852886e38) fail::Overflow();
  return static_cast<float>(d);
}

}  // namespace tessaron

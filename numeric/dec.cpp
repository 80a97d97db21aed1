#include "numeric/dec.h"

#include <charconv>
#include <cmath>
#include <cstring>

#include "numeric/failure.h"

namespace tessaron {
namespace {

using u128 = unsigned __int128;

// Wide enough for a 96-bit mantissa scaled up by 10^56, the most a quotient
// of two decimals at full scale needs.
struct Big {
  static constexpr int kLimbs = 10;
  uint32_t w[kLimbs] = {};

  static Big From(u128 v) {
    Big b;
    for (int i = 0; i < 4; ++i) b.w[i] = static_cast<uint32_t>(v >> (32 * i));
    return b;
  }
  bool IsZero() const {
    for (uint32_t x : w)
      if (x) return false;
    return true;
  }
  bool Fits96() const {
    for (int i = 3; i < kLimbs; ++i)
      if (w[i]) return false;
    return true;
  }
  bool Fits64() const {
    for (int i = 2; i < kLimbs; ++i)
      if (w[i]) return false;
    return true;
  }
  u128 Low128() const {
    return (u128(w[3]) << 96) | (u128(w[2]) << 64) | (u128(w[1]) << 32) | w[0];
  }
  void MulSmall(uint32_t m) {
    uint64_t carry = 0;
    for (uint32_t& x : w) {
      uint64_t t = uint64_t(x) * m + carry;
      x = static_cast<uint32_t>(t);
      carry = t >> 32;
    }
  }
  void MulPow10(int n) {
    for (; n >= 9; n -= 9) MulSmall(1000000000u);
    static const uint32_t kP[] = {1, 10, 100, 1000, 10000, 100000, 1000000, 10000000, 100000000};
    if (n > 0) MulSmall(kP[n]);
  }
  void AddSmall(uint32_t a) {
    uint64_t carry = a;
    for (int i = 0; i < kLimbs && carry; ++i) {
      uint64_t t = uint64_t(w[i]) + carry;
      w[i] = static_cast<uint32_t>(t);
      carry = t >> 32;
    }
  }
  void Add(const Big& o) {
    uint64_t carry = 0;
    for (int i = 0; i < kLimbs; ++i) {
      uint64_t t = uint64_t(w[i]) + o.w[i] + carry;
      w[i] = static_cast<uint32_t>(t);
      carry = t >> 32;
    }
  }
  void Sub(const Big& o) {  // requires *this >= o
    int64_t borrow = 0;
    for (int i = 0; i < kLimbs; ++i) {
      int64_t t = int64_t(w[i]) - o.w[i] - borrow;
      borrow = t < 0;
      w[i] = static_cast<uint32_t>(t);
    }
  }
  void Shl1() {
    for (int i = kLimbs - 1; i > 0; --i) w[i] = (w[i] << 1) | (w[i - 1] >> 31);
    w[0] <<= 1;
  }
  int BitLength() const {
    for (int i = kLimbs - 1; i >= 0; --i)
      if (w[i]) return 32 * i + 32 - __builtin_clz(w[i]);
    return 0;
  }
  bool Bit(int i) const { return (w[i / 32] >> (i % 32)) & 1; }
  friend int Cmp(const Big& a, const Big& b) {
    for (int i = kLimbs - 1; i >= 0; --i)
      if (a.w[i] != b.w[i]) return a.w[i] < b.w[i] ? -1 : 1;
    return 0;
  }
  static Big Mul(const Big& a, const Big& b) {
    Big r;
    for (int i = 0; i < kLimbs; ++i) {
      if (!a.w[i]) continue;
      uint64_t carry = 0;
      for (int j = 0; i + j < kLimbs; ++j) {
        uint64_t t = uint64_t(a.w[i]) * b.w[j] + r.w[i + j] + carry;
        r.w[i + j] = static_cast<uint32_t>(t);
        carry = t >> 32;
      }
    }
    return r;
  }
};

void DivMod(const Big& n, const Big& d, Big& q, Big& r) {
  q = Big();
  int top = Big::kLimbs - 1;
  while (top > 0 && !n.w[top]) --top;
  if (d.Fits64() && !d.w[1]) {
    // Divisors of one limb (months, 100, 12...) are the common case: one
    // native 64-by-32 division per limb.
    const uint64_t dv = d.w[0];
    uint64_t rem = 0;
    for (int i = top; i >= 0; --i) {
      const uint64_t cur = (rem << 32) | n.w[i];
      q.w[i] = static_cast<uint32_t>(cur / dv);
      rem = cur - q.w[i] * dv;
    }
    r = Big::From(rem);
    return;
  }
  if (d.Fits64()) {
    const uint64_t dv = uint64_t(d.w[0]) | (uint64_t(d.w[1]) << 32);
    u128 rem = 0;
    for (int i = top; i >= 0; --i) {
      const u128 cur = (rem << 32) | n.w[i];
      const uint64_t qi = static_cast<uint64_t>(cur / dv);  // < 2^32: rem < dv
      q.w[i] = static_cast<uint32_t>(qi);
      rem = cur - u128(qi) * dv;
    }
    r = Big::From(rem);
    return;
  }
  r = Big();
  for (int i = n.BitLength() - 1; i >= 0; --i) {
    r.Shl1();
    r.w[0] |= n.Bit(i);
    if (Cmp(r, d) >= 0) {
      r.Sub(d);
      q.w[i / 32] |= 1u << (i % 32);
    }
  }
}

// value = num / (den * 10^scale), rounded half to even at the largest scale
// up to 28 whose mantissa fits 96 bits. `exact_scale` is the scale an exact
// result is trimmed down to (trailing zeros beyond it carry no information).
Dec Settle(Big num, Big den, int scale, bool neg, int exact_scale) {
  while (scale > Dec::kMaxScale) {
    den.MulSmall(10);
    --scale;
  }
  for (;;) {
    Big q, r;
    DivMod(num, den, q, r);
    if (q.Fits96()) {
      bool exact = r.IsZero();
      if (!exact) {
        Big r2 = r;
        r2.Shl1();
        int c = Cmp(r2, den);
        if (c > 0 || (c == 0 && (q.w[0] & 1))) q.AddSmall(1);
      }
      if (q.Fits96()) {
        u128 m = q.Low128();
        if (exact)
          while (scale > exact_scale && m % 10 == 0) {
            m /= 10;
            --scale;
          }
        return Dec::Make(m, scale, neg && m != 0);
      }
    }
    if (scale == 0) fail::Overflow();
    den.MulSmall(10);
    --scale;
  }
}

constexpr u128 kMax96 = (u128(1) << 96) - 1;

u128 Pow10(int n) {
  u128 p = 1;
  while (n-- > 0) p *= 10;
  return p;
}

}  // namespace

Dec Dec::FromInt(long long v) {
  u128 m = v < 0 ? u128(-(v + 1)) + 1 : u128(v);
  return Make(m, 0, v < 0);
}

Dec Dec::FromDigits(bool neg, std::string_view digits, int point) {
  // Trailing zeros are kept: "1.50" has scale 2, as the text was entered.
  size_t first = 0;
  while (first < digits.size() && digits[first] == '0') ++first;
  if (first == digits.size()) {
    const int scale = static_cast<int>(digits.size()) - point;
    return Make(0, scale < 0 ? 0 : scale > kMaxScale ? kMaxScale : scale, false);
  }
  point -= static_cast<int>(first);
  digits.remove_prefix(first);
  // Beyond 29 significant digits only the rounding is affected; 60 keep the
  // arithmetic inside the wide integer while rounding correctly in practice.
  if (digits.size() > 60) digits = digits.substr(0, 60);
  const int n = static_cast<int>(digits.size());
  if (point > 29) fail::Overflow();
  int exponent = point - n;                         // value = int(digits) * 10^exponent
  if (-exponent > kMaxScale + n + 2) return Dec();  // rounds to zero
  Big num;
  for (char c : digits) {
    num.MulSmall(10);
    num.AddSmall(static_cast<uint32_t>(c - '0'));
  }
  if (exponent >= 0) {
    num.MulPow10(exponent);
    if (!num.Fits96()) fail::Overflow();
    return Make(num.Low128(), 0, neg);
  }
  return Settle(num, Big::From(1), -exponent, neg, kMaxScale);
}

bool Dec::Parse(std::string_view t, Dec& out) {
  size_t i = 0;
  bool neg = false;
  if (i < t.size() && (t[i] == '+' || t[i] == '-')) neg = t[i++] == '-';
  std::string digits;
  int point = -1;
  for (; i < t.size(); ++i) {
    char c = t[i];
    if (c >= '0' && c <= '9')
      digits += c;
    else if (c == '.' && point < 0)
      point = static_cast<int>(digits.size());
    else
      break;
  }
  if (digits.empty()) return false;
  if (point < 0) point = static_cast<int>(digits.size());
  if (i < t.size() && (t[i] == 'e' || t[i] == 'E')) {
    ++i;
    bool eneg = false;
    if (i < t.size() && (t[i] == '+' || t[i] == '-')) eneg = t[i++] == '-';
    if (i == t.size()) return false;
    long e = 0;
    for (; i < t.size() && t[i] >= '0' && t[i] <= '9'; ++i)
      if (e < 100000) e = e * 10 + (t[i] - '0');
    point += static_cast<int>(eneg ? -e : e);
  }
  if (i != t.size()) return false;
  out = FromDigits(neg, digits, point);
  return true;
}

Dec Dec::FromDouble(double x) {
  if (!std::isfinite(x)) fail::Overflow();
  if (x == 0) return Dec();
  char buf[40];
  auto res = std::to_chars(buf, buf + sizeof buf, x, std::chars_format::scientific, 14);
  std::string_view s(buf, res.ptr - buf);
  bool neg = s[0] == '-';
  if (neg) s.remove_prefix(1);
  char digits[16];
  digits[0] = s[0];
  std::memcpy(digits + 1, s.data() + 2, 14);
  int e = 0;
  std::from_chars(s.data() + 17 + (s[17] == '+'), s.data() + s.size(), e);
  // The text "1.1" has no trailing zeros, so neither has the Dec.
  int n = 15;
  while (n > 1 && digits[n - 1] == '0') --n;
  return FromDigits(neg, std::string_view(digits, n), e + 1);
}

void Dec::Digits(std::string& digits, int& scale) const {
  char buf[40];
  char* p = buf + sizeof buf;
  u128 m = Mantissa();
  do {
    *--p = static_cast<char>('0' + static_cast<int>(m % 10));
    m /= 10;
  } while (m);
  digits.assign(p, buf + sizeof buf);
  scale = scale_;
}

std::string Dec::ToString() const {
  if (IsZero()) return "0";
  std::string d;
  int scale;
  Digits(d, scale);
  while (scale > 0 && d.back() == '0') {
    d.pop_back();
    --scale;
  }
  if (scale > 0) {
    if (static_cast<int>(d.size()) <= scale) d.insert(0, scale - d.size() + 1, '0');
    d.insert(d.size() - scale, 1, '.');
  }
  if (IsNegative()) d.insert(0, 1, '-');
  return d;
}

double Dec::ToDouble() const {
  // The shortest correctly rounded route: the exact decimal text read back.
  std::string s = ToString();
  double x = 0;
  std::from_chars(s.data(), s.data() + s.size(), x);
  return x;
}

Dec Dec::Floor() const {
  if (scale_ == 0) return *this;
  u128 p = Pow10(scale_), m = Mantissa();
  u128 q = m / p;
  if (neg_ && m % p) ++q;
  return Make(q, 0, neg_ && q);
}

Dec Dec::RoundEven() const {
  if (scale_ == 0) return *this;
  u128 p = Pow10(scale_), m = Mantissa();
  u128 q = m / p, r = m % p;
  if (r * 2 > p || (r * 2 == p && (q & 1))) ++q;
  return Make(q, 0, neg_ && q);
}

namespace {

Dec AddSigned(const Dec& a, bool aneg, const Dec& b, bool bneg) {
  const int sa = a.Scale(), sb = b.Scale();
  if (sa == sb) {
    u128 x = a.Mantissa(), y = b.Mantissa();
    if (aneg == bneg) {
      u128 s = x + y;
      if (s <= kMax96) return Dec::Make(s, sa, aneg && s);
    } else {
      if (x >= y) return Dec::Make(x - y, sa, aneg && x != y);
      return Dec::Make(y - x, sa, bneg);
    }
  }
  const int s = sa > sb ? sa : sb;
  Big x = Big::From(a.Mantissa()), y = Big::From(b.Mantissa());
  x.MulPow10(s - sa);
  y.MulPow10(s - sb);
  bool neg;
  if (aneg == bneg) {
    x.Add(y);
    neg = aneg;
  } else if (Cmp(x, y) >= 0) {
    x.Sub(y);
    neg = aneg;
  } else {
    y.Sub(x);
    x = y;
    neg = bneg;
  }
  return Settle(x, Big::From(1), s, neg, Dec::kMaxScale);
}

}  // namespace

Dec operator+(const Dec& a, const Dec& b) { return AddSigned(a, a.neg_, b, b.neg_); }
Dec operator-(const Dec& a, const Dec& b) { return AddSigned(a, a.neg_, b, !b.neg_); }

Dec operator*(const Dec& a, const Dec& b) {
  const bool neg = a.neg_ != b.neg_;
  const int s = a.scale_ + b.scale_;
  u128 x = a.Mantissa(), y = b.Mantissa();
  if (!(x >> 64) && !(y >> 64) && s <= Dec::kMaxScale) {
    u128 p = x * y;
    if (p <= kMax96) return Dec::Make(p, s, neg && p);
  }
  return Settle(Big::Mul(Big::From(x), Big::From(y)), Big::From(1), s, neg, Dec::kMaxScale);
}

Dec operator/(const Dec& a, const Dec& b) {
  if (b.IsZero()) fail::DivisionByZero();
  if (a.IsZero()) return Dec();
  // q * 10^28 = ma * 10^(sb + 28) / (mb * 10^sa); Settle gives up scale only
  // as far as the quotient needs to fit.
  Big num = Big::From(a.Mantissa());
  num.MulPow10(b.scale_ + Dec::kMaxScale);
  Big den = Big::From(b.Mantissa());
  den.MulPow10(a.scale_);
  int ideal = a.scale_ - b.scale_;
  return Settle(num, den, Dec::kMaxScale, a.neg_ != b.neg_, ideal > 0 ? ideal : 0);
}

int Compare(const Dec& a, const Dec& b) {
  const bool an = a.IsNegative(), bn = b.IsNegative();
  if (an != bn) return an ? -1 : 1;
  int mag;
  if (a.scale_ == b.scale_) {
    u128 x = a.Mantissa(), y = b.Mantissa();
    mag = x < y ? -1 : x > y;
  } else {
    const int s = a.scale_ > b.scale_ ? a.scale_ : b.scale_;
    Big x = Big::From(a.Mantissa()), y = Big::From(b.Mantissa());
    x.MulPow10(s - a.scale_);
    y.MulPow10(s - b.scale_);
    mag = Cmp(x, y);
  }
  return an ? -mag : mag;
}

}  // namespace tessaron

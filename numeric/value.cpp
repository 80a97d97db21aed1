#include "numeric/value.h"

#include <cmath>
#include <cstring>

#include "numeric/detail.h"

namespace tessaron {
namespace {

// Arithmetic rank of a numeric kind; Empty and Bool count as Int16.
int Rank(Kind k) {
  switch (k) {
    case Kind::Int32:
      return 1;
    case Kind::Real:
      return 2;
    case Kind::Dec:
      return 3;
    default:
      return 0;
  }
}

long long WholeOf(const Value& v) {
  switch (v.kind()) {
    case Kind::Bool:
      return v.AsBool() ? -1 : 0;
    case Kind::Int16:
      return v.AsInt16();
    case Kind::Int32:
      return v.AsInt32();
    default:
      return 0;
  }
}

double RealOf(const Value& v) {
  switch (v.kind()) {
    case Kind::Real:
      return v.AsReal();
    case Kind::Dec:
      return v.AsDec().ToDouble();
    default:
      return static_cast<double>(WholeOf(v));
  }
}

Dec DecOf(const Value& v) {
  switch (v.kind()) {
    case Kind::Dec:
      return v.AsDec();
    case Kind::Real:
      return Dec::FromDouble(v.AsReal());
    default:
      return Dec::FromInt(WholeOf(v));
  }
}

// A whole result in the smallest whole kind that holds it; beyond Int32 it
// leaves the whole kinds for Real.
Value Whole(long long r, int rank) {
  if (rank == 0 && r >= -32768 && r <= 32767) return Value::Int16(static_cast<int16_t>(r));
  if (r >= INT32_MIN && r <= INT32_MAX) return Value::Int32(static_cast<int32_t>(r));
  return Value(static_cast<double>(r));
}

enum class Op { Add, Sub, Mul };

Value Arith(const Value& x, const Value& y, Op op) {
  const Value a = detail::Numeric(x), b = detail::Numeric(y);
  const int rank = std::max(Rank(a.kind()), Rank(b.kind()));
  switch (rank) {
    case 0:
    case 1: {
      long long p = WholeOf(a), q = WholeOf(b);
      return Whole(op == Op::Add ? p + q : op == Op::Sub ? p - q : p * q, rank);
    }
    case 2: {
      double p = RealOf(a), q = RealOf(b);
      return Value(op == Op::Add ? p + q : op == Op::Sub ? p - q : p * q);
    }
    default: {
      Dec p = DecOf(a), q = DecOf(b);
      return Value(op == Op::Add ? p + q : op == Op::Sub ? p - q : p * q);
    }
  }
}

}  // namespace

const std::string& Value::AsString() const noexcept {
  static const std::string kEmpty;
  return s_ ? *s_ : kEmpty;
}

double Value::number() const {
  if (kind_ == Kind::String) return detail::TextToReal(*s_);
  return RealOf(*this);
}

Value detail::Numeric(const Value& v) {
  if (v.kind() == Kind::String) return Value(TextToReal(v.AsString()));
  return v;
}

Value Add(const Value& a, const Value& b) {
  // Two texts join; a text with Empty joins too, Empty counting as "".
  if (a.kind() == Kind::String && (b.kind() == Kind::String || b.kind() == Kind::Empty))
    return Value(a.AsString() + b.AsString());
  if (b.kind() == Kind::String && a.kind() == Kind::Empty) return b;
  return Arith(a, b, Op::Add);
}
Value Sub(const Value& a, const Value& b) { return Arith(a, b, Op::Sub); }
Value Mul(const Value& a, const Value& b) { return Arith(a, b, Op::Mul); }

Value Div(const Value& x, const Value& y) {
  const Value a = detail::Numeric(x), b = detail::Numeric(y);
  if (a.kind() == Kind::Dec || b.kind() == Kind::Dec) return Value(DecOf(a) / DecOf(b));
  const double p = RealOf(a), q = RealOf(b);
  if (q == 0) {
    // 0/0 is reported as an overflow, as the platform words it.
    if (p == 0) fail::Overflow();
    fail::DivisionByZero();
  }
  return Value(p / q);
}

Value operator-(const Value& x) {
  const Value a = detail::Numeric(x);
  switch (a.kind()) {
    case Kind::Real:
      return Value(-a.AsReal());
    case Kind::Dec:
      return Value(-a.AsDec());
    default:
      return Whole(-WholeOf(a), Rank(a.kind()));
  }
}

Value Abs(const Value& x) {
  const Value a = detail::Numeric(x);
  switch (a.kind()) {
    case Kind::Real:
      return Value(std::fabs(a.AsReal()));
    case Kind::Dec:
      return Value(a.AsDec().Abs());
    default:
      return Whole(std::llabs(WholeOf(a)), Rank(a.kind()));
  }
}

Value Int(const Value& x) {
  const Value a = detail::Numeric(x);
  switch (a.kind()) {
    case Kind::Real:
      return Value(std::floor(a.AsReal()));
    case Kind::Dec:
      return Value(a.AsDec().Floor());
    default:
      return Whole(WholeOf(a), Rank(a.kind()));
  }
}

Value Round(const Value& x) {
  const Value a = detail::Numeric(x);
  switch (a.kind()) {
    case Kind::Real:
      return Value(std::nearbyint(a.AsReal()));  // ties to even
    case Kind::Dec:
      return Value(a.AsDec().RoundEven());
    default:
      return Whole(WholeOf(a), Rank(a.kind()));
  }
}

Value Pow(const Value& x, const Value& y) {
  // Both sides leave exact arithmetic here: compound interest on a Dec rate
  // is computed in Real.
  const double b = RealOf(detail::Numeric(x)), e = RealOf(detail::Numeric(y));
  if (b == 0 && e < 0) fail::Invalid();
  if (b < 0 && e != std::floor(e)) fail::Invalid();
  return Value(std::pow(b, e));
}

Value Concat(const Value& a, const Value& b) { return Value(a.str() + b.str()); }

namespace {

// Binary comparison by UTF-16 code units of two UTF-8 texts. Byte order is
// code point order, which differs from code unit order only where a
// supplementary character (a surrogate pair, 0xD800..) meets U+E000..U+FFFF.
int CompareText(const std::string& a, const std::string& b) {
  const size_t n = std::min(a.size(), b.size());
  size_t i = 0;
  while (i < n && a[i] == b[i]) ++i;
  if (i == n) return a.size() < b.size() ? -1 : a.size() > b.size();
  auto key = [](const std::string& s, size_t i) {
    while (i > 0 && (static_cast<unsigned char>(s[i]) & 0xC0) == 0x80) --i;
    unsigned char c = static_cast<unsigned char>(s[i]);
    if (c >= 0xF0) return 0xD800;  // a surrogate pair starts here
    if (c == 0xEE || c == 0xEF) return 0xE000 + c;
    return -1;
  };
  int ka = key(a, i), kb = key(b, i);
  if (ka >= 0 && kb >= 0 && (ka == 0xD800) != (kb == 0xD800)) return ka < kb ? -1 : 1;
  return static_cast<unsigned char>(a[i]) < static_cast<unsigned char>(b[i]) ? -1 : 1;
}

}  // namespace

int CompareAny(const Value& a, const Value& b) {
  const bool as = a.kind() == Kind::String, bs = b.kind() == Kind::String;
  if (as || bs) {
    if (as && bs) return CompareText(a.AsString(), b.AsString());
    if (a.kind() == Kind::Empty) return b.AsString().empty() ? 0 : -1;
    if (b.kind() == Kind::Empty) return a.AsString().empty() ? 0 : 1;
    // A number is always less than a text; the text is not read.
    return as ? 1 : -1;
  }
  const int rank = std::max(Rank(a.kind()), Rank(b.kind()));
  if (rank <= 1) {
    long long p = WholeOf(a), q = WholeOf(b);
    return p < q ? -1 : p > q;
  }
  if (rank == 2) {
    double p = RealOf(a), q = RealOf(b);
    return p < q ? -1 : p > q;
  }
  // Against a Dec, a Real is first taken through its 15-digit text. One too
  // large for any Dec is simply the larger (or smaller) by its sign.
  for (const Value* v : {&a, &b})
    if (v->kind() == Kind::Real && std::fabs(v->AsReal()) >= 7.9228162514264338e28) {
      double p = v == &a ? a.AsReal() : RealOf(a), q = v == &b ? b.AsReal() : RealOf(b);
      return p < q ? -1 : p > q;
    }
  return Compare(DecOf(a), DecOf(b));
}

}  // namespace tessaron

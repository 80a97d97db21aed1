#pragma once

#include <bit>
#include <cstdint>
#include <memory>
#include <string>

#include "numeric/dec.h"
#include "numeric/failure.h"

namespace tessaron {

static_assert(std::endian::native == std::endian::little,
              "a Value keeps its small kinds in the low bytes of a word");

// In rising arithmetic rank (String aside).
enum class Kind { Empty, Bool, Int16, Int32, Real, Dec, String };

// The tagged value behind every form-level variable. Numbers sit in a union
// inside the object; only a String owns heap memory (shared, immutable text),
// so arithmetic in the solvers' inner loops never allocates.
class Value {
 public:
  Value() noexcept : kind_(Kind::Empty) { setWord(0); }
  Value(bool b) noexcept : kind_(Kind::Bool) { setWord(b); }
  Value(int v) noexcept {
    if (v >= -32768 && v <= 32767) {
      kind_ = Kind::Int16;
      setWord(static_cast<uint16_t>(v));
    } else {
      kind_ = Kind::Int32;
      setWord(static_cast<uint32_t>(v));
    }
  }
  // Whole numbers beyond 32 bits become Real, as an Int32 result would.
  Value(long v) : Value(static_cast<long long>(v)) {}
  Value(long long v) {
    if (v >= INT32_MIN && v <= INT32_MAX)
      *this = Value(static_cast<int>(v));
    else
      *this = Value(static_cast<double>(v));
  }
  Value(double r) : kind_(Kind::Real) { u_.r = Checked(r); }
  Value(const Dec& d) noexcept : kind_(Kind::Dec) { u_.d = d; }
  Value(const char* s) : Value(std::string(s)) {}
  Value(std::string s)
      : kind_(Kind::String), s_(std::make_shared<const std::string>(std::move(s))) {
    setWord(0);
  }

  // A number is copied by the width its kind fills: a value made a moment ago
  // is read back as it was written, which the processor forwards at once.
  Value(const Value& o) noexcept : kind_(o.kind_), s_(o.s_) { copyNumber(o); }
  Value(Value&& o) noexcept : kind_(o.kind_), s_(std::move(o.s_)) { copyNumber(o); }
  Value& operator=(const Value& o) noexcept {
    kind_ = o.kind_;
    s_ = o.s_;
    copyNumber(o);
    return *this;
  }
  Value& operator=(Value&& o) noexcept {
    kind_ = o.kind_;
    s_ = std::move(o.s_);
    copyNumber(o);
    return *this;
  }
  ~Value() = default;

  static Value Int16(int16_t v) noexcept {
    Value x;
    x.kind_ = Kind::Int16;
    x.setWord(static_cast<uint16_t>(v));
    return x;
  }
  static Value Int32(int32_t v) noexcept {
    Value x;
    x.kind_ = Kind::Int32;
    x.setWord(static_cast<uint32_t>(v));
    return x;
  }

  Kind kind() const noexcept { return kind_; }
  bool IsNumber() const noexcept { return kind_ != Kind::String; }

  // Raw contents; each is meaningful only for its own kind.
  bool AsBool() const noexcept { return u_.b; }
  int16_t AsInt16() const noexcept { return u_.i16; }
  int32_t AsInt32() const noexcept { return u_.i32; }
  double AsReal() const noexcept { return u_.r; }
  const Dec& AsDec() const noexcept { return u_.d; }
  const std::string& AsString() const noexcept;

  // The value as a Real by the CDbl rule (text that is no number: Type mismatch).
  double number() const;
  // The value as text by the CStr rule.
  std::string str() const;

 private:
  friend Value operator+(const Value&, const Value&);
  friend Value operator-(const Value&, const Value&);
  friend Value operator*(const Value&, const Value&);
  friend Value operator/(const Value&, const Value&);

  // The small kinds sit in the low bytes of one eight-byte word, written
  // whole.
  void setWord(uint64_t w) noexcept { u_.word = w; }
  void copyNumber(const Value& o) noexcept {
    if (kind_ == Kind::Dec)
      u_.d = o.u_.d;
    else
      u_.word = o.u_.word;
  }

  Kind kind_;
  union U {
    bool b;
    int16_t i16;
    int32_t i32;
    double r;
    uint64_t word;
    Dec d;
    U() {}
  } u_;
  std::shared_ptr<const std::string> s_;
};

// Slow paths for everything but Real with Real.
Value Add(const Value&, const Value&);
Value Sub(const Value&, const Value&);
Value Mul(const Value&, const Value&);
Value Div(const Value&, const Value&);

// Real with Real is the solvers' case: kept inline so it costs one add and one
// finiteness test.
inline Value operator+(const Value& a, const Value& b) {
  if (a.kind_ == Kind::Real && b.kind_ == Kind::Real) return Value(a.u_.r + b.u_.r);
  return Add(a, b);
}
inline Value operator-(const Value& a, const Value& b) {
  if (a.kind_ == Kind::Real && b.kind_ == Kind::Real) return Value(a.u_.r - b.u_.r);
  return Sub(a, b);
}
inline Value operator*(const Value& a, const Value& b) {
  if (a.kind_ == Kind::Real && b.kind_ == Kind::Real) return Value(a.u_.r * b.u_.r);
  return Mul(a, b);
}
inline Value operator/(const Value& a, const Value& b) {
  if (a.kind_ == Kind::Real && b.kind_ == Kind::Real && b.u_.r != 0) return Value(a.u_.r / b.u_.r);
  return Div(a, b);
}
Value operator-(const Value&);
inline Value& operator+=(Value& a, const Value& b) { return a = a + b; }
inline Value& operator-=(Value& a, const Value& b) { return a = a - b; }
inline Value& operator*=(Value& a, const Value& b) { return a = a * b; }
inline Value& operator/=(Value& a, const Value& b) { return a = a / b; }

Value Pow(const Value&, const Value&);     // the ^ operator: always Real
Value Concat(const Value&, const Value&);  // the & operator: always String

// -1, 0 or 1 by the comparison rules of the forms.
int CompareAny(const Value&, const Value&);
// Whole numbers and Reals compare as their Real values: the keys' own case,
// kept inline.
inline int Compare(const Value& a, const Value& b) {
  auto plain = [](const Value& v) { return v.kind() >= Kind::Int16 && v.kind() <= Kind::Real; };
  auto real = [](const Value& v) -> double {
    if (v.kind() == Kind::Real) return v.AsReal();
    return v.kind() == Kind::Int16 ? v.AsInt16() : v.AsInt32();
  };
  if (!plain(a) || !plain(b)) return CompareAny(a, b);
  const double p = real(a), q = real(b);
  return p < q ? -1 : p > q;
}
inline bool operator==(const Value& a, const Value& b) { return Compare(a, b) == 0; }
inline bool operator!=(const Value& a, const Value& b) { return Compare(a, b) != 0; }
inline bool operator<(const Value& a, const Value& b) { return Compare(a, b) < 0; }
inline bool operator<=(const Value& a, const Value& b) { return Compare(a, b) <= 0; }
inline bool operator>(const Value& a, const Value& b) { return Compare(a, b) > 0; }
inline bool operator>=(const Value& a, const Value& b) { return Compare(a, b) >= 0; }

// Both sides are already evaluated by the caller, as the forms require.
inline Value And(bool a, bool b) { return Value(a && b); }
inline Value Or(bool a, bool b) { return Value(a || b); }

Value Abs(const Value&);
Value Int(const Value&);
Value Round(const Value&);

}  // namespace tessaron

// Kinds, rank, promotion, overflow and comparison of Value.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <string>

#include "numeric/numeric.h"
#include "tests/numeric/helpers.h"

namespace tessaron {
namespace {

struct ArithRow {
  const char* name;
  Value a, b;
  char op;
  Kind kind;
  const char* text;
};

Value Apply(const Value& a, char op, const Value& b) {
  switch (op) {
    case '+':
      return a + b;
    case '-':
      return a - b;
    case '*':
      return a * b;
    case '/':
      return a / b;
    case '^':
      return Pow(a, b);
    default:
      return Concat(a, b);
  }
}

TEST(Value, ArithmeticTable) {
  const ArithRow rows[] = {
      {"int16 sum stays", Value(2), Value(3), '+', Kind::Int16, "5"},
      {"int16 leaves upward", Value(32767), Value(1), '+', Kind::Int32, "32768"},
      {"int16 leaves downward", Value(-32768), Value(1), '-', Kind::Int32, "-32769"},
      {"int16 product leaves", Value(300), Value(300), '*', Kind::Int32, "90000"},
      {"int32 leaves to real", Value(2147483647), Value(1), '+', Kind::Real, "2147483648"},
      {"int32 leaves downward", Value(-2147483647 - 1), Value(1), '-', Kind::Real, "-2147483649"},
      {"int32 product to real", Value(100000), Value(100000), '*', Kind::Real, "10000000000"},
      {"int32 sum stays", Value(40000), Value(1), '+', Kind::Int32, "40001"},
      {"empty counts as zero", Value(), Value(5), '+', Kind::Int16, "5"},
      {"bool counts as -1", Value(true), Value(5), '+', Kind::Int16, "4"},
      {"two bools", Value(true), Value(true), '+', Kind::Int16, "-2"},
      {"int with real", Value(1), Value(0.5), '+', Kind::Real, "1.5"},
      {"real with dec is dec", Value(1.1), D("3"), '*', Kind::Dec, "3.3"},
      {"dec with int", D("0.1"), Value(2), '*', Kind::Dec, "0.2"},
      {"division never whole", Value(6), Value(3), '/', Kind::Real, "2"},
      {"dec division", D("0.07"), Value(12), '/', Kind::Dec, "0.0058333333333333333333333333"},
      {"dec divided by real", Value(1), Value(CDec(Value(4))), '/', Kind::Dec, "0.25"},
      {"power always real", Value(2), Value(10), '^', Kind::Real, "1024"},
      {"power of dec is real", D("1.5"), Value(2), '^', Kind::Real, "2.25"},
      {"strings join with +", Value("ab"), Value("cd"), '+', Kind::String, "abcd"},
      {"string with number is numeric", Value("3"), Value(4), '+', Kind::Real, "7"},
      {"empty with string joins", Value(), Value("x"), '+', Kind::String, "x"},
      {"ampersand joins numbers", Value(1.5), Value(2), '&', Kind::String, "1.52"},
      {"ampersand of empty", Value(), Value(true), '&', Kind::String, "True"},
      {"real sum", Value(0.1), Value(0.2), '+', Kind::Real, "0.3"},
  };
  for (const ArithRow& r : rows) {
    SCOPED_TRACE(r.name);
    Value v = Apply(r.a, r.op, r.b);
    EXPECT_EQ(v.kind(), r.kind);
    EXPECT_EQ(CStr(v), r.text);
  }
}

TEST(Value, DecRateLeavesExactArithmeticAtPower) {
  Value monthly = D("0.07") / Value(12);
  EXPECT_EQ(monthly.kind(), Kind::Dec);
  EXPECT_EQ(monthly.AsDec().Scale(), 28);
  Value grown = Pow(Value(1) + monthly, Value(360));
  EXPECT_EQ(grown.kind(), Kind::Real);
  EXPECT_NEAR(grown.AsReal(), 8.11649746, 1e-7);
}

TEST(Value, UnaryMinusAndAbsKeepKindAndPromoteSmallest) {
  EXPECT_EQ((-Value(5)).kind(), Kind::Int16);
  EXPECT_EQ((-Value(-32768)).kind(), Kind::Int32);
  EXPECT_EQ(CStr(-Value(-32768)), "32768");
  EXPECT_EQ(Abs(Value(-32768)).kind(), Kind::Int32);
  EXPECT_EQ((-Value(-2147483647 - 1)).kind(), Kind::Real);
  EXPECT_EQ(CStr(Abs(Value(-2147483647 - 1))), "2147483648");
  EXPECT_EQ(Abs(D("-2.50")).kind(), Kind::Dec);
  EXPECT_EQ(CStr(Abs(D("-2.50"))), "2.5");
  EXPECT_EQ(Abs(Value(-1.5)).kind(), Kind::Real);
  EXPECT_EQ(CStr(-D("1.25")), "-1.25");
}

TEST(Value, IntIsFloorInSameKind) {
  EXPECT_EQ(CStr(Int(Value(-2.5))), "-3");
  EXPECT_EQ(Int(Value(-2.5)).kind(), Kind::Real);
  EXPECT_EQ(CStr(Int(Value(2.5))), "2");
  EXPECT_EQ(CStr(Int(D("-0.5"))), "-1");
  EXPECT_EQ(Int(D("-0.5")).kind(), Kind::Dec);
  EXPECT_EQ(CStr(Int(D("1234.999"))), "1234");
  EXPECT_EQ(Int(Value(7)).kind(), Kind::Int16);
  // Cents the way the forms write it: half up on the value.
  Value cents = Int(D("2.345") * Value(100) + Value(0.5)) / Value(100);
  EXPECT_EQ(CStr(cents), "2.35");
}

TEST(Value, RoundTiesToEvenInSameKind) {
  EXPECT_EQ(CStr(Round(Value(2.5))), "2");
  EXPECT_EQ(CStr(Round(Value(3.5))), "4");
  EXPECT_EQ(CStr(Round(Value(-2.5))), "-2");
  EXPECT_EQ(Round(Value(2.5)).kind(), Kind::Real);
  EXPECT_EQ(CStr(Round(D("2.5"))), "2");
  EXPECT_EQ(CStr(Round(D("2.51"))), "3");
  EXPECT_EQ(Round(D("2.5")).kind(), Kind::Dec);
  // Not to be confused with Format or Int(x + 0.5).
  EXPECT_EQ(Format(Value(2.5), "0"), "3");
  EXPECT_EQ(CStr(Int(Value(2.5) + Value(0.5))), "3");
}

struct CmpRow {
  const char* name;
  Value a, b;
  int want;
};

TEST(Value, ComparisonTable) {
  const CmpRow rows[] = {
      {"empty equals zero", Value(), Value(0), 0},
      {"empty equals empty text", Value(), Value(""), 0},
      {"empty below text", Value(), Value("a"), -1},
      {"number below empty text", Value(5), Value(""), -1},
      {"number below any text", Value(1e300), Value("0"), -1},
      {"text above number", Value("1"), Value(99), 1},
      {"int16 with real", Value(2), Value(2.0), 0},
      {"int32 with int16", Value(40000), Value(2), 1},
      {"real against dec as dec", Value(0.1), D("0.1"), 0},
      {"dec above real", D("0.30000000000000001"), Value(0.3), 1},
      {"bool is -1", Value(true), Value(-1), 0},
      {"false is 0", Value(false), Value(0), 0},
      {"text binary", Value("B"), Value("a"), -1},
      {"text prefix", Value("ab"), Value("abc"), -1},
      {"huge real above any dec", Value(1e300), D("1"), 1},
      {"negative dec", D("-1.5"), Value(-1), -1},
  };
  for (const CmpRow& r : rows) {
    SCOPED_TRACE(r.name);
    EXPECT_EQ(Compare(r.a, r.b), r.want);
    EXPECT_EQ(r.a == r.b, r.want == 0);
    EXPECT_EQ(r.a < r.b, r.want < 0);
    EXPECT_EQ(r.a > r.b, r.want > 0);
    EXPECT_EQ(r.a <= r.b, r.want <= 0);
    EXPECT_EQ(r.a >= r.b, r.want >= 0);
    EXPECT_EQ(r.a != r.b, r.want != 0);
  }
}

TEST(Value, TextComparesByUtf16CodeUnits) {
  // U+FF21 (one unit, 0xFF21) sorts after U+1F600 (units 0xD83D 0xDE00) in
  // code units, though before it in code points.
  EXPECT_LT(Value("\xF0\x9F\x98\x80"), Value("\xEF\xBC\xA1"));
  EXPECT_LT(Value("\xEA\xB0\x80"), Value("\xEA\xB0\x81"));
}

TEST(Value, AndOrOnBools) {
  int calls = 0;
  auto side = [&](bool r) {
    ++calls;
    return r;
  };
  Value v = And(side(false), side(true));
  EXPECT_EQ(calls, 2);
  EXPECT_EQ(v.kind(), Kind::Bool);
  EXPECT_EQ(CStr(v), "False");
  EXPECT_EQ(CStr(Or(side(true), side(false))), "True");
  EXPECT_EQ(calls, 4);
}

struct FailRow {
  const char* name;
  std::function<void()> f;
  const char* words;
};

TEST(Value, Failures) {
  const FailRow rows[] = {
      {"real overflow by product", [] { (void)(Value(1e308) * Value(10)); }, "Overflow"},
      {"real overflow by sum", [] { (void)(Value(1.7e308) + Value(1.7e308)); }, "Overflow"},
      {"real overflow by quotient", [] { (void)(Value(1e308) / Value(1e-10)); }, "Overflow"},
      {"real overflow by power", [] { (void)Pow(Value(10), Value(400)); }, "Overflow"},
      {"real divided by zero", [] { (void)(Value(1.5) / Value(0)); }, "Division by zero"},
      {"int divided by zero", [] { (void)(Value(1) / Value(0)); }, "Division by zero"},
      {"zero by zero on real", [] { (void)(Value(0) / Value(0.0)); }, "Overflow"},
      {"dec by zero", [] { (void)(D("1") / Value(0)); }, "Division by zero"},
      {"dec zero by zero", [] { (void)(D("0") / Value(0)); }, "Division by zero"},
      {"dec overflow", [] { (void)(D("79228162514264337593543950335") + Value(1)); }, "Overflow"},
      {"dec product overflow", [] { (void)(D("1E20") * D("1E10")); }, "Overflow"},
      {"dec from huge real", [] { (void)(D("1") * Value(1e30)); }, "Overflow"},
      {"zero to negative power", [] { (void)Pow(Value(0), Value(-1)); },
       "Invalid procedure call or argument"},
      {"negative to fraction", [] { (void)Pow(Value(-8), Value(1.0 / 3)); },
       "Invalid procedure call or argument"},
      {"text in arithmetic", [] { (void)(Value("abc") + Value(1)); }, "Type mismatch"},
      {"blank text in arithmetic", [] { (void)(Value(" ") * Value(1)); }, "Type mismatch"},
      {"infinite real refused", [] { (void)Value(HUGE_VAL); }, "Overflow"},
      {"not a number refused", [] { (void)Value(std::nan("")); }, "Overflow"},
  };
  for (const FailRow& r : rows) {
    SCOPED_TRACE(r.name);
    EXPECT_EQ(Words(r.f), r.words);
  }
}

TEST(Value, NegativeBaseWholeExponentIsFine) {
  EXPECT_EQ(CStr(Pow(Value(-2), Value(3))), "-8");
  EXPECT_EQ(CStr(Pow(Value(0), Value(0))), "1");
}

TEST(Value, CopiesAreIndependent) {
  Value a("text");
  Value b = a;
  a = Value(3);
  EXPECT_EQ(CStr(b), "text");
  EXPECT_EQ(a.kind(), Kind::Int16);
}

}  // namespace
}  // namespace tessaron

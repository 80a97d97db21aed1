// Written against the published interface only: the umbrella header and the
// names other programs may rely on. If this stops compiling, a caller breaks.
#include "numeric/numeric.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

namespace {

using tessaron::Kind;
using tessaron::Value;

TEST(Contract, ValueConstructorsAndKinds) {
  EXPECT_EQ(Value().kind(), Kind::Empty);
  EXPECT_EQ(Value(true).kind(), Kind::Bool);
  EXPECT_EQ(Value(12).kind(), Kind::Int16);
  EXPECT_EQ(Value(40000).kind(), Kind::Int32);
  EXPECT_EQ(Value(1.5).kind(), Kind::Real);
  EXPECT_EQ(Value(tessaron::Dec()).kind(), Kind::Dec);
  EXPECT_EQ(Value("abc").kind(), Kind::String);
  EXPECT_EQ(Value(std::string("abc")).kind(), Kind::String);
}

TEST(Contract, Operators) {
  Value a(7), b(2);
  EXPECT_EQ(tessaron::CStr(a + b), "9");
  EXPECT_EQ(tessaron::CStr(a - b), "5");
  EXPECT_EQ(tessaron::CStr(a * b), "14");
  EXPECT_EQ(tessaron::CStr(a / b), "3.5");
  EXPECT_EQ(tessaron::CStr(-a), "-7");
  EXPECT_EQ(tessaron::Pow(a, b).kind(), Kind::Real);
  EXPECT_EQ(tessaron::Concat(a, b).kind(), Kind::String);
  bool r[] = {a == b, a != b, a<b, a <= b, a> b, a >= b};
  EXPECT_FALSE(r[0]);
  EXPECT_TRUE(r[1]);
  EXPECT_FALSE(r[2]);
  EXPECT_FALSE(r[3]);
  EXPECT_TRUE(r[4]);
  EXPECT_TRUE(r[5]);
}

TEST(Contract, Functions) {
  Value x(2.5);
  EXPECT_EQ(tessaron::Abs(Value(-2)).kind(), Kind::Int16);
  EXPECT_EQ(tessaron::CStr(tessaron::Int(x)), "2");
  EXPECT_EQ(tessaron::CStr(tessaron::Round(x)), "2");
  EXPECT_EQ(tessaron::CDec(x).kind(), Kind::Dec);
  EXPECT_EQ(tessaron::CDbl(Value(1)).kind(), Kind::Real);
  EXPECT_EQ(tessaron::CInt(x).kind(), Kind::Int16);
  EXPECT_EQ(tessaron::CLng(x).kind(), Kind::Int32);
  EXPECT_EQ(tessaron::Str(Value(5)), " 5");
  EXPECT_EQ(tessaron::Val("12abc"), 12.0);
  EXPECT_TRUE(tessaron::IsNumeric(Value("1,234.5")));
  EXPECT_EQ(tessaron::Format(Value(1234.5), "###,###,###.00"), "1,234.50");
  EXPECT_EQ(tessaron::FormatNumber(Value(1234.5), 2), "1,234.50");
  EXPECT_NEAR(tessaron::Pmt(0.01, 12, -1000, 0, 0), 88.8487886783417, 1e-9);
  EXPECT_EQ(tessaron::Hex(Value(255)), "FF");
  EXPECT_EQ(tessaron::Oct(Value(8)), "10");
  EXPECT_EQ(tessaron::Len(Value("abc")), 3);
  EXPECT_EQ(tessaron::Left(Value("abc"), 2), "ab");
  EXPECT_EQ(tessaron::Right(Value("abc"), 2), "bc");
  EXPECT_EQ(tessaron::Mid(Value("abc"), 2, 1), "b");
  EXPECT_EQ(tessaron::Space(2), "  ");
  long c = tessaron::Rgb(1, 2, 3);
  EXPECT_EQ(c, 1 + 2 * 256 + 3 * 65536);
  EXPECT_EQ(tessaron::QBColor(0), 0);
  double f[] = {tessaron::Sqr(4), tessaron::Exp(0), tessaron::Log(1), tessaron::Sin(0),
                tessaron::Cos(0), tessaron::Tan(0), tessaron::Atn(0)};
  EXPECT_EQ(f[0], 2);
  EXPECT_EQ(f[1], 1);
  EXPECT_EQ(f[4], 1);
}

TEST(Contract, FailureIsARuntimeError) {
  static_assert(std::is_base_of_v<std::runtime_error, tessaron::Failure>);
  try {
    (void)(Value(1) / Value(0));
    FAIL();
  } catch (const tessaron::Failure& e) {
    EXPECT_STREQ(e.what(), "Division by zero");
  }
}

}  // namespace

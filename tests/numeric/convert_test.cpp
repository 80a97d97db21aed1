// Text of numbers and numbers from text.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <functional>
#include <string>

#include "numeric/numeric.h"
#include "tests/numeric/helpers.h"

namespace tessaron {
namespace {

struct TextRow {
  Value v;
  const char* text;
};

TEST(CStr, Table) {
  const TextRow rows[] = {
      {Value(), ""},
      {Value(true), "True"},
      {Value(false), "False"},
      {Value(12), "12"},
      {Value(-32768), "-32768"},
      {Value(2147483647), "2147483647"},
      {Value(0.5), "0.5"},
      {Value(-0.5), "-0.5"},
      {Value(100.0), "100"},
      {Value(1.0 / 3), "0.333333333333333"},
      {Value(2.0 / 3), "0.666666666666667"},
      {Value(123456789012345.0), "123456789012345"},
      {Value(999999999999999.0), "999999999999999"},
      {Value(1e15), "1E+15"},
      {Value(1.5e15), "1.5E+15"},
      {Value(9999999999999999.0), "1E+16"},
      {Value(0.0001), "0.0001"},
      {Value(0.00015), "0.00015"},
      {Value(0.00001), "1E-05"},
      {Value(1.5e-5), "1.5E-05"},
      {Value(-2.5e-7), "-2.5E-07"},
      {Value(1e100), "1E+100"},
      {Value(1.797e308), "1.797E+308"},
      {Value(-0.0), "0"},
      {Value(3.14159265358979), "3.14159265358979"},
      {CDec(Value("1.50")), "1.5"},
      {CDec(Value("-0.0700")), "-0.07"},
      {CDec(Value("79228162514264337593543950335")), "79228162514264337593543950335"},
      {CDec(Value("0.0000000000000000000000000001")), "0.0000000000000000000000000001"},
      {Value("as is"), "as is"},
  };
  for (const TextRow& r : rows) {
    SCOPED_TRACE(r.text);
    EXPECT_EQ(CStr(r.v), r.text);
    EXPECT_EQ(r.v.str(), r.text);
  }
}

// The Real text rule is the C library's "%.15G": 15 significant digits, no
// trailing zeros, exponent form from 1E+15 up and below 1E-04. Checked on
// both sides of each threshold and on a spread of magnitudes.
TEST(CStr, MatchesPrintf15G) {
  const double samples[] = {1e15,
                            999999999999999.0,
                            999999999999999.4,
                            999999999999999.5,
                            1e15 - 1,
                            1e15 + 2,
                            1e-4,
                            9.99999999999999e-5,
                            0.000099999999999999995,
                            1.00000000000001e-4,
                            0.000123,
                            1e-5,
                            123.456,
                            -1e15,
                            -1e-5,
                            0.1,
                            1.0 / 7,
                            1e22,
                            5e-324,
                            1.7976931348623157e308,
                            2.5,
                            -98765.4321};
  for (double x : samples) {
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.15G", x);
    SCOPED_TRACE(buf);
    EXPECT_EQ(CStr(Value(x)), buf);
  }
  for (int e = -30; e <= 30; ++e)
    for (double m : {1.0, 1.23456789012345, 9.99999999999999, 5.5}) {
      const double x = m * std::pow(10.0, e);
      char buf[64];
      std::snprintf(buf, sizeof buf, "%.15G", x);
      EXPECT_EQ(CStr(Value(x)), buf) << x;
    }
}

TEST(Str, LeadingBlankForNonNegative) {
  EXPECT_EQ(Str(Value(5)), " 5");
  EXPECT_EQ(Str(Value(-5)), "-5");
  EXPECT_EQ(Str(Value(0)), " 0");
  EXPECT_EQ(Str(Value(0.25)), " 0.25");
  EXPECT_EQ(Str(Value(1e15)), " 1E+15");
  EXPECT_EQ(Str(CDec(Value("-1.5"))), "-1.5");
}

TEST(Val, Table) {
  const struct {
    const char* text;
    double want;
  } rows[] = {
      {"12abc", 12},   {"1,234", 1}, {"", 0},        {"  -3.5", -3.5}, {"1 2 3", 123},
      {"1.5E3", 1500}, {"2D2", 200}, {"\t4\n2", 42}, {".5", 0.5},      {"1.2.3", 1.2},
      {"abc", 0},      {"-", 0},     {"1e", 1},      {"+7", 7},        {"3e-2x", 0.03},
  };
  for (const auto& r : rows) {
    SCOPED_TRACE(r.text);
    EXPECT_DOUBLE_EQ(Val(r.text), r.want);
  }
}

TEST(IsNumeric, Table) {
  const struct {
    Value v;
    bool want;
  } rows[] = {
      {Value("1,234.5"), true}, {Value("1e3"), true},    {Value("1,234"), true},
      {Value(" 12 "), true},    {Value("-5"), true},     {Value("5-"), true},
      {Value("(5)"), true},     {Value("$12.50"), true}, {Value("+.5"), true},
      {Value(""), false},       {Value("   "), false},   {Value("."), false},
      {Value("-"), false},      {Value("12abc"), false}, {Value("1.2.3"), false},
      {Value("(-5)"), false},   {Value("--5"), false},   {Value("1e"), false},
      {Value(3), true},         {Value(2.5), true},      {Value(true), true},
  };
  for (const auto& r : rows) {
    SCOPED_TRACE(CStr(r.v));
    EXPECT_EQ(IsNumeric(r.v), r.want);
  }
}

TEST(Conversions, CDecReadsValidatorText) {
  EXPECT_EQ(CStr(CDec(Value("1,234.50"))), "1234.5");
  EXPECT_EQ(CStr(CDec(Value("1,234"))), "1234");
  EXPECT_EQ(CStr(CDec(Value("(2.5)"))), "-2.5");
  EXPECT_EQ(CStr(CDec(Value("1e3"))), "1000");
  EXPECT_EQ(CStr(CDec(Value(1.1))), "1.1");
  EXPECT_EQ(CStr(CDec(Value(0.1) + Value(0.2))), "0.3");
  EXPECT_EQ(CDec(Value(7)).kind(), Kind::Dec);
  EXPECT_EQ(Words([] { CDec(Value("")); }), "Type mismatch");
  EXPECT_EQ(Words([] { CDec(Value("  ")); }), "Type mismatch");
  EXPECT_EQ(Words([] { CDec(Value("x1")); }), "Type mismatch");
  EXPECT_EQ(Words([] { CDec(Value("1E29")); }), "Overflow");
}

TEST(Conversions, CDbl) {
  EXPECT_EQ(CDbl(Value("1,234.5")).AsReal(), 1234.5);
  EXPECT_EQ(CDbl(CDec(Value("0.07"))).AsReal(), 0.07);
  EXPECT_EQ(CDbl(Value(3)).kind(), Kind::Real);
  EXPECT_EQ(Words([] { CDbl(Value("abc")); }), "Type mismatch");
  EXPECT_EQ(Words([] { CDbl(Value("1e999")); }), "Overflow");
}

TEST(Conversions, CIntAndCLngTiesToEven) {
  const struct {
    Value v;
    const char* want;
  } rows[] = {
      {Value(2.5), "2"},   {Value(3.5), "4"},         {Value(-2.5), "-2"},
      {Value(-3.5), "-4"}, {Value(2.4999), "2"},      {CDec(Value("2.5")), "2"},
      {Value("7.5"), "8"}, {Value(32767.4), "32767"}, {Value(true), "-1"},
  };
  for (const auto& r : rows) {
    EXPECT_EQ(CStr(CInt(r.v)), r.want);
    EXPECT_EQ(CInt(r.v).kind(), Kind::Int16);
    EXPECT_EQ(CStr(CLng(r.v)), r.want);
    EXPECT_EQ(CLng(r.v).kind(), Kind::Int32);
  }
  EXPECT_EQ(Words([] { CInt(Value(32767.5)); }), "Overflow");
  EXPECT_EQ(Words([] { CInt(Value(-32769)); }), "Overflow");
  EXPECT_EQ(Words([] { CLng(Value(2147483647.5)); }), "Overflow");
  EXPECT_EQ(Words([] { CLng(CDec(Value("1E20"))); }), "Overflow");
  EXPECT_EQ(CStr(CLng(Value(-2147483648.0))), "-2147483648");
  EXPECT_EQ(CSng(Value(1.5)), 1.5f);
  EXPECT_EQ(Words([] { CSng(Value(1e300)); }), "Overflow");
}

}  // namespace
}  // namespace tessaron

// The rules of kinds, conversions, texts and failures that the first tables
// leave out: operands of every kind, boundaries of the whole kinds, the
// failures' exact words, and that no infinity or not-a-number gets through.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <stdexcept>
#include <string>

#include "numeric/bounded.h"
#include "numeric/numeric.h"
#include "tests/numeric/helpers.h"

namespace tessaron {
namespace {

const char* kInvalid = "Invalid procedure call or argument";

struct KindRow {
  const char* name;
  std::function<Value()> f;
  Kind kind;
  const char* text;
};

TEST(Rules, AnIndexOutsideAFormsArrayIsSubscriptOutOfRange) {
  Bounded<std::string, 3> a;
  a[2] = "last";
  EXPECT_EQ(a[2], "last");
  EXPECT_EQ(Words([&] { a[3] = "x"; }), "Subscript out of range");
  EXPECT_EQ(Words([&] { (void)a[static_cast<std::size_t>(-1)]; }), "Subscript out of range");
}

TEST(Rules, KindsOfResults) {
  const KindRow rows[] = {
      {"two texts subtract as numbers", [] { return Value("1") - Value("2"); }, Kind::Real, "-1"},
      {"text plus bool is numeric", [] { return Value("1") + Value(true); }, Kind::Real, "0"},
      {"text plus empty joins", [] { return Value("1") + Value(); }, Kind::String, "1"},
      {"two texts join", [] { return Value("1") + Value("2"); }, Kind::String, "12"},
      {"empty plus empty", [] { return Value() + Value(); }, Kind::Int16, "0"},
      {"empty times text number", [] { return Value() * Value("5"); }, Kind::Real, "0"},
      {"minus empty", [] { return -Value(); }, Kind::Int16, "0"},
      {"minus true", [] { return -Value(true); }, Kind::Int16, "1"},
      {"minus text", [] { return -Value("5"); }, Kind::Real, "-5"},
      {"abs of true", [] { return Abs(Value(true)); }, Kind::Int16, "1"},
      {"abs of text", [] { return Abs(Value("-5")); }, Kind::Real, "5"},
      {"abs of smallest int16", [] { return Abs(Value(-32768)); }, Kind::Int32, "32768"},
      {"minus smallest int32", [] { return -Value(-2147483647 - 1); }, Kind::Real, "2147483648"},
      {"int32 stays int32", [] { return Value(40000) - Value(39999); }, Kind::Int32, "1"},
      {"int16 sum to int32", [] { return Value(32767) + Value(32767); }, Kind::Int32, "65534"},
      {"int16 product sign", [] { return Value(-32768) * Value(-1); }, Kind::Int32, "32768"},
      {"empty plus dec", [] { return Value() + D("1.5"); }, Kind::Dec, "1.5"},
      {"bool plus dec", [] { return Value(true) + D("1.5"); }, Kind::Dec, "0.5"},
      {"real operand of dec through its text", [] { return D("3") * Value(1.0 / 3); }, Kind::Dec,
       "0.999999999999999"},
      {"real plus dec", [] { return Value(0.2) + D("0.1"); }, Kind::Dec, "0.3"},
      {"dec divided by real", [] { return D("1") / Value(3.0); }, Kind::Dec,
       "0.3333333333333333333333333333"},
      {"dec quotient rounded last digit", [] { return D("2") / D("3"); }, Kind::Dec,
       "0.6666666666666666666666666667"},
      {"dec quotient keeps what fits", [] { return D("10000000000000000000000000000") / D("3"); },
       Kind::Dec, "3333333333333333333333333333.3"},
      {"dec half ties to even", [] { return D("79228162514264337593543950335") * D("0.5"); },
       Kind::Dec, "39614081257132168796771975168"},
      {"whole quotient is real", [] { return Value(40000) / Value(2); }, Kind::Real, "20000"},
      {"power of texts", [] { return Pow(Value("2"), Value("3")); }, Kind::Real, "8"},
      {"power of decs", [] { return Pow(D("2.25"), D("0.5")); }, Kind::Real, "1.5"},
      {"power of empty", [] { return Pow(Value(), Value(2)); }, Kind::Real, "0"},
      {"int of text", [] { return Int(Value("-2.5")); }, Kind::Real, "-3"},
      {"int of smallest int32", [] { return Int(Value(-2147483647 - 1)); }, Kind::Int32,
       "-2147483648"},
      {"int of huge real", [] { return Int(Value(-1e20)); }, Kind::Real, "-1E+20"},
      {"int of dec stays dec", [] { return Int(D("-1234.001")); }, Kind::Dec, "-1235"},
      {"round of int32", [] { return Round(Value(40000)); }, Kind::Int32, "40000"},
      {"round of dec tie", [] { return Round(D("-0.5")); }, Kind::Dec, "0"},
      {"round of dec tie up", [] { return Round(D("-1.5")); }, Kind::Dec, "-2"},
      {"round of real below zero", [] { return Round(Value(-0.4)); }, Kind::Real, "0"},
      {"zero times negative", [] { return Value(0) * Value(-1.5); }, Kind::Real, "0"},
  };
  for (const KindRow& r : rows) {
    SCOPED_TRACE(r.name);
    const Value v = r.f();
    EXPECT_EQ(v.kind(), r.kind);
    EXPECT_EQ(CStr(v), r.text);
  }
}

TEST(Rules, Comparisons) {
  const struct {
    const char* name;
    Value a, b;
    int want;
  } rows[] = {
      {"empty above minus one", Value(), Value(-1), 1},
      {"empty equals empty", Value(), Value(), 0},
      {"empty text equals empty", Value(""), Value(), 0},
      {"bool below text", Value(true), Value(""), -1},
      {"dec below text", D("1E20"), Value("0"), -1},
      {"int with dec of scale", Value(3), D("3.000"), 0},
      {"real sum equals dec", Value(0.1) + Value(0.2), D("0.3"), 0},
      {"huge negative real below dec", Value(-1e300), D("1"), -1},
      {"real near the dec limit", Value(7.9e28), D("79228162514264337593543950335"), -1},
      {"int32 against real", Value(40000), Value(39999.5), 1},
      {"text case", Value("a"), Value("B"), 1},
  };
  for (const auto& r : rows) {
    SCOPED_TRACE(r.name);
    EXPECT_EQ(Compare(r.a, r.b), r.want);
    EXPECT_EQ(r.a == r.b, r.want == 0);
    EXPECT_EQ(r.a < r.b, r.want < 0);
  }
}

TEST(Rules, Texts) {
  EXPECT_EQ(CStr(Value(-1e15)), "-1E+15");
  EXPECT_EQ(CStr(Value(999999999999999.5)), "1E+15");
  EXPECT_EQ(CStr(Value(-1.5e-5)), "-1.5E-05");
  EXPECT_EQ(CStr(Value(1e-300)), "1E-300");
  EXPECT_EQ(CStr(Value(-0.25)), "-0.25");
  EXPECT_EQ(CStr(Value(-40000)), "-40000");
  EXPECT_EQ(CStr(D("-0.000")), "0");
  EXPECT_EQ(CStr(D("1.10")), "1.1");
  EXPECT_EQ(CStr(D("-1234567890.0123456789")), "-1234567890.0123456789");
  EXPECT_EQ(CStr(D("1E28")), "10000000000000000000000000000");
  EXPECT_EQ(Str(Value(-0.5)), "-0.5");
  EXPECT_EQ(Str(D("0.25")), " 0.25");
  EXPECT_EQ(Str(Value(true)), "True");
  EXPECT_EQ(Str(Value("12")), " 12");
  EXPECT_EQ(Str(Value()), " 0");
  EXPECT_EQ(Str(-Value(0.0)), " 0");
  EXPECT_EQ(Str(Value(1.5e-5)), " 1.5E-05");
  EXPECT_EQ(CStr(Concat(Value(-1.5e-5), D("2.50"))), "-1.5E-052.5");
}

TEST(Rules, Val) {
  EXPECT_EQ(Val("- 12"), -12);
  EXPECT_EQ(Val("1\n2"), 12);
  // A carriage return is not among the characters skipped: it ends the number.
  EXPECT_EQ(Val("1\r2"), 1);
  EXPECT_EQ(Val("12\r\n"), 12);
  EXPECT_EQ(Val("$5"), 0);
  EXPECT_EQ(Val("&H10"), 0);
  EXPECT_EQ(Val("1e5.5"), 100000);
  EXPECT_EQ(Val("1e+"), 1);
  EXPECT_EQ(Val("1 e 2"), 100);
  EXPECT_EQ(Val("1e-400"), 0);
  // Too large for a Real: no infinity is handed back, the reading fails.
  EXPECT_EQ(Words([] { Val("1e400"); }), "Overflow");
}

TEST(Rules, IsNumeric) {
  const struct {
    const char* text;
    bool want;
  } rows[] = {
      {"-$5", true},        {"$-5", true},   {"($5)", true},   {"$ 5", true},     {"1,2,3", true},
      {"1.5e-3", true},     {"1D3", true},   {"1E+3", true},   {"5.", true},      {"\t5", true},
      {" - 5 ", true},      {"5 -", true},   {"1e400", false}, {"1.7e308", true}, {"-1e999", false},
      {"(1,234.50)", true}, {"1.5,", false}, {"$", false},     {"5$", false},     {",5", false},
      {"-5-", false},       {"e3", false},   {"(5", false},    {"5)", false},     {"1 2", false},
      {"0x10", false},
  };
  for (const auto& r : rows) {
    SCOPED_TRACE(r.text);
    EXPECT_EQ(IsNumeric(Value(r.text)), r.want);
  }
  EXPECT_TRUE(IsNumeric(D("1")));
  EXPECT_TRUE(IsNumeric(Value(40000)));
}

TEST(Rules, Conversions) {
  EXPECT_EQ(CStr(CDec(Value("$1,234.50"))), "1234.5");
  EXPECT_EQ(CStr(CDec(Value(" 5- "))), "-5");
  EXPECT_EQ(CDec(Value()).kind(), Kind::Dec);
  EXPECT_EQ(CStr(CDec(Value(true))), "-1");
  EXPECT_EQ(CStr(CDec(Value(1.23456789012345e-20))), "0.0000000000000000000123456789");
  EXPECT_EQ(CStr(CDec(Value(7.92281625142643e28))), "79228162514264300000000000000");
  EXPECT_EQ(Words([] { CDec(Value(1e29)); }), "Overflow");
  EXPECT_EQ(Words([] { CDec(Value("$")); }), "Type mismatch");
  EXPECT_EQ(CStr(CDbl(Value("1e-400"))), "0");
  EXPECT_EQ(CDbl(D("0.1")).AsReal(), 0.1);
  EXPECT_EQ(CDbl(Value()).kind(), Kind::Real);

  const struct {
    Value v;
    const char* cint;  // nullptr: Overflow
    const char* clng;
  } rows[] = {
      {Value(-32768.5), "-32768", "-32768"},
      {Value(-32767.5), "-32768", "-32768"},
      {Value(32766.5), "32766", "32766"},
      {Value(-32769.5), nullptr, "-32770"},
      {Value(), "0", "0"},
      {Value("2.5"), "2", "2"},
      {D("-4.5"), "-4", "-4"},
      {D("5.5000000000000000000000001"), "6", "6"},
      {D("2147483646.5"), nullptr, "2147483646"},
      {D("-2147483648.5"), nullptr, "-2147483648"},
      {D("2147483647.5"), nullptr, nullptr},
      {Value(-2147483648.5), nullptr, "-2147483648"},
      {Value(-2147483649.5), nullptr, nullptr},
  };
  for (const auto& r : rows) {
    SCOPED_TRACE(CStr(r.v));
    if (r.cint) {
      EXPECT_EQ(CStr(CInt(r.v)), r.cint);
      EXPECT_EQ(CInt(r.v).kind(), Kind::Int16);
    } else {
      EXPECT_EQ(Words([&] { CInt(r.v); }), "Overflow");
    }
    if (r.clng) {
      EXPECT_EQ(CStr(CLng(r.v)), r.clng);
      EXPECT_EQ(CLng(r.v).kind(), Kind::Int32);
    } else {
      EXPECT_EQ(Words([&] { CLng(r.v); }), "Overflow");
    }
  }
  EXPECT_EQ(Words([] { CInt(Value("abc")); }), "Type mismatch");
}

TEST(Rules, TextFunctions) {
  EXPECT_EQ(Hex(Value(-1.5)), "FFFFFFFE");  // CLng(-1.5) is -2
  EXPECT_EQ(Hex(Value("255")), "FF");
  EXPECT_EQ(Hex(D("-2147483648")), "80000000");
  EXPECT_EQ(Oct(Value(-8)), "37777777770");
  EXPECT_EQ(Oct(Value(0)), "0");
  EXPECT_EQ(Words([] { Oct(Value("x")); }), "Type mismatch");
  EXPECT_EQ(Len(Value(1.5)), 3);
  EXPECT_EQ(Len(D("1.50")), 3);
  EXPECT_EQ(Len(Value(true)), 4);
  EXPECT_EQ(Len(Value(-40000)), 6);
  // Hangul syllables and a character outside the basic plane.
  const char* word = "\xEC\x95\x88\xEB\x85\x95\xF0\x9F\x8E\x89!";  // 2 syllables, U+1F389, "!"
  EXPECT_EQ(Len(Value(word)), 5);
  EXPECT_EQ(Left(Value(word), 2), "\xEC\x95\x88\xEB\x85\x95");
  EXPECT_EQ(Left(Value(word), 4), "\xEC\x95\x88\xEB\x85\x95\xF0\x9F\x8E\x89");
  EXPECT_EQ(Right(Value(word), 3), "\xF0\x9F\x8E\x89!");
  EXPECT_EQ(Right(Value(word), 9), word);
  EXPECT_EQ(Mid(Value(word), 2, 1), "\xEB\x85\x95");
  EXPECT_EQ(Mid(Value(word), 3, 2), "\xF0\x9F\x8E\x89");
  EXPECT_EQ(Mid(Value(word), 5), "!");
  EXPECT_EQ(Mid(Value(word), 6), "");
  EXPECT_EQ(Mid(Value(word), 6, 3), "");
  EXPECT_EQ(Len(Value(Space(Len(Value(word))))), 5);
  EXPECT_EQ(Words([] { Right(Value("a"), -1); }), kInvalid);
  EXPECT_EQ(Words([] { Mid(Value("a"), 1, -1); }), kInvalid);
}

TEST(Rules, ColoursAndFunctions) {
  EXPECT_EQ(Rgb(0, 0, 0), 0);
  EXPECT_EQ(Rgb(255, 255, 255), 16777215);
  EXPECT_EQ(Rgb(0, 128, 0), QBColor(2));
  EXPECT_EQ(Rgb(128, 128, 128), QBColor(8));
  EXPECT_EQ(Rgb(192, 192, 192), QBColor(7));
  EXPECT_EQ(Words([] { QBColor(-1); }), kInvalid);
  EXPECT_EQ(Exp(-1000), 0);
  EXPECT_EQ(Exp(0), 1);
  EXPECT_TRUE(std::isfinite(Tan(1.5707963267948966)));
  EXPECT_NEAR(Log(1e-320), -736.8272, 1e-4);
  EXPECT_EQ(Words([] { Exp(710); }), "Overflow");
  EXPECT_EQ(Words([] { Sqr(-1e-300); }), kInvalid);
  EXPECT_EQ(Words([] { Log(-0.0); }), kInvalid);
  // Payment at the start of each period: 100 over two periods at 10 %.
  EXPECT_NEAR(Pmt(0.1, 2, -100, 0, 1), 52.380952380952, 1e-9);
  EXPECT_NEAR(Pmt(0.1, 2, -100, 0, 0), 57.619047619048, 1e-9);
  EXPECT_DOUBLE_EQ(Pmt(0, 4, 100, 0, 1), -25);
  EXPECT_EQ(Words([] { Pmt(0.1, 0, -100, 0, 0); }), kInvalid);
}

TEST(Rules, NoInfinityOrNotANumber) {
  const struct {
    const char* name;
    std::function<void()> f;
    const char* words;
  } rows[] = {
      {"0 / 0", [] { (void)(Value(0.0) / Value(0.0)); }, "Overflow"},
      {"empty / empty", [] { (void)(Value() / Value()); }, "Overflow"},
      {"1E308 * 10", [] { (void)(Value(1e308) * Value(10)); }, "Overflow"},
      {"-1E308 - 1E308", [] { (void)(Value(-1e308) - Value(1e308)); }, "Overflow"},
      {"power overflow", [] { (void)Pow(Value(2), Value(1024)); }, "Overflow"},
      {"negative power overflow", [] { (void)Pow(Value(-1e308), Value(3)); }, "Overflow"},
      {"zero to a negative fraction", [] { (void)Pow(Value(0), Value(-0.5)); }, kInvalid},
      {"Exp(710)", [] { (void)Exp(710); }, "Overflow"},
      {"CDbl of 1e400", [] { (void)CDbl(Value("1e400")); }, "Overflow"},
      {"text 1e400 in arithmetic", [] { (void)(Value("1e400") + Value(1)); }, "Overflow"},
      {"real by dec zero", [] { (void)(Value(1.5) / D("0")); }, "Division by zero"},
      {"dec zero by real zero", [] { (void)(D("0") / Value(0.0)); }, "Division by zero"},
      {"dec beyond range by real", [] { (void)(D("1") + Value(1e29)); }, "Overflow"},
      {"dec quotient beyond range", [] { (void)(D("79228162514264337593543950335") / D("0.1")); },
       "Overflow"},
      {"text in a comparison is not read", [] { (void)(Value(1) < Value("x")); }, ""},
  };
  for (const auto& r : rows) {
    SCOPED_TRACE(r.name);
    EXPECT_EQ(Words(r.f), r.words);
  }
}

TEST(Rules, FailureIsARuntimeErrorWithTheWords) {
  try {
    (void)(Value("abc") * Value(2));
    FAIL() << "no failure";
  } catch (const std::runtime_error& e) {
    EXPECT_STREQ(e.what(), "Type mismatch");
    EXPECT_NE(dynamic_cast<const Failure*>(&e), nullptr);
  }
}

}  // namespace
}  // namespace tessaron

// Text functions count UTF-16 code units over UTF-8 strings; colours; the
// elementary functions and their failures.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <string>

#include "numeric/numeric.h"
#include "tests/numeric/helpers.h"

namespace tessaron {
namespace {

const char* kHangul = "\xED\x95\x9C\xEA\xB8\x80";  // two syllables
const char* kFace =
    "a\xF0\x9F\x98\x80"
    "b";  // a, U+1F600 (a pair), b

TEST(Text, Len) {
  EXPECT_EQ(Len(Value("abc")), 3);
  EXPECT_EQ(Len(Value("")), 0);
  EXPECT_EQ(Len(Value()), 0);
  EXPECT_EQ(Len(Value(kHangul)), 2);
  EXPECT_EQ(Len(Value(kFace)), 4);
  EXPECT_EQ(Len(Value(-12.5)), 5);  // of its text
  EXPECT_EQ(Len(Value(1e15)), 5);
}

TEST(Text, LeftRightMid) {
  EXPECT_EQ(Left(Value("abcdef"), 2), "ab");
  EXPECT_EQ(Left(Value("abc"), 10), "abc");
  EXPECT_EQ(Left(Value("abc"), 0), "");
  EXPECT_EQ(Right(Value("abcdef"), 2), "ef");
  EXPECT_EQ(Right(Value("abc"), 10), "abc");
  EXPECT_EQ(Mid(Value("abcdef"), 2, 3), "bcd");
  EXPECT_EQ(Mid(Value("abc"), 5, 2), "");
  EXPECT_EQ(Mid(Value("abc"), 2, 10), "bc");
  EXPECT_EQ(Mid(Value("abcdef"), 3), "cdef");
  EXPECT_EQ(Left(Value(12345), 2), "12");
  EXPECT_EQ(Right(Value(3.25), 2), "25");
  EXPECT_EQ(Left(Value(kHangul), 1), "\xED\x95\x9C");
  EXPECT_EQ(Right(Value(kHangul), 1), "\xEA\xB8\x80");
  EXPECT_EQ(Mid(Value(kFace), 2, 2), "\xF0\x9F\x98\x80");
  EXPECT_EQ(Mid(Value(kFace), 4, 1), "b");
  EXPECT_EQ(Words([] { Left(Value("a"), -1); }), "Invalid procedure call or argument");
  EXPECT_EQ(Words([] { Mid(Value("a"), 0, 1); }), "Invalid procedure call or argument");
}

TEST(Text, Space) {
  EXPECT_EQ(Space(3), "   ");
  EXPECT_EQ(Space(0), "");
  EXPECT_EQ(Words([] { Space(-1); }), "Invalid procedure call or argument");
}

TEST(Text, IsBlankRun) {
  EXPECT_TRUE(IsBlankRun(" ", 23));
  EXPECT_TRUE(IsBlankRun(std::string(23, ' '), 23));
  EXPECT_FALSE(IsBlankRun(std::string(24, ' '), 23)) << "a longer run is no blank";
  EXPECT_FALSE(IsBlankRun("", 23));
  EXPECT_FALSE(IsBlankRun(" 1 ", 23));
  EXPECT_TRUE(IsBlankRun("      ", 6));
  EXPECT_FALSE(IsBlankRun("       ", 6));
}

TEST(Text, HexOct) {
  EXPECT_EQ(Hex(Value(255)), "FF");
  EXPECT_EQ(Hex(Value(0)), "0");
  EXPECT_EQ(Hex(Value(-1)), "FFFFFFFF");
  EXPECT_EQ(Hex(Value(-32768)), "FFFF8000");
  EXPECT_EQ(Hex(Value(2.5)), "2");  // after CLng, ties to even
  EXPECT_EQ(Hex(Value(3.5)), "4");
  EXPECT_EQ(Oct(Value(8)), "10");
  EXPECT_EQ(Oct(Value(-1)), "37777777777");
  EXPECT_EQ(Hex(Value(2147483647)), "7FFFFFFF");
  EXPECT_EQ(Words([] { Hex(Value(1e10)); }), "Overflow");
}

TEST(Colour, RgbAndQBColor) {
  EXPECT_EQ(Rgb(255, 255, 204), 255 + 256 * 255 + 65536 * 204);
  EXPECT_EQ(Rgb(231, 231, 255), 16771047);
  EXPECT_EQ(Rgb(300, 0, 0), 255);
  const long want[16] = {0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080,
                         0x008080, 0xC0C0C0, 0x808080, 0xFF0000, 0x00FF00, 0xFFFF00,
                         0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF};
  for (int i = 0; i < 16; ++i) EXPECT_EQ(QBColor(i), want[i]) << i;
  EXPECT_EQ(QBColor(12), Rgb(255, 0, 0));
  EXPECT_EQ(Words([] { QBColor(16); }), "Invalid procedure call or argument");
}

TEST(Math, ElementaryFunctions) {
  EXPECT_EQ(Sqr(9), 3);
  EXPECT_NEAR(Exp(1), 2.718281828459045, 1e-15);
  EXPECT_NEAR(Log(10), 2.302585092994046, 1e-15);
  EXPECT_NEAR(Sin(1), std::sin(1.0), 0);
  EXPECT_NEAR(Cos(1), std::cos(1.0), 0);
  EXPECT_NEAR(Tan(1), std::tan(1.0), 0);
  EXPECT_NEAR(Atn(1) * 4, 3.141592653589793, 1e-15);
  EXPECT_NEAR(Exp(709.78), 1.7928227943945155e308, 1e295);
  const char* invalid = "Invalid procedure call or argument";
  EXPECT_EQ(Words([] { Sqr(-1); }), invalid);
  EXPECT_EQ(Words([] { Log(0); }), invalid);
  EXPECT_EQ(Words([] { Log(-1); }), invalid);
  EXPECT_EQ(Words([] { Exp(709.8); }), "Overflow");
  EXPECT_EQ(Sqr(0), 0);
}

TEST(Math, Pmt) {
  // 100,000 at 7 % a year over 30 years, paid monthly: the familiar 665.30.
  EXPECT_NEAR(Pmt(0.07 / 12, 360, -100000, 0, 0), 665.302495, 1e-6);
  // Paid at the start of each period: one period's interest less.
  EXPECT_NEAR(Pmt(0.07 / 12, 360, -100000, 0, 1), 665.302495 / (1 + 0.07 / 12), 1e-6);
  EXPECT_DOUBLE_EQ(Pmt(0, 12, -1200, 0, 0), 100);
  EXPECT_EQ(Format(Value(Pmt(0.07 / 12, 360, -100000, 0, 0)), "###,##0.00"), "665.30");
}

TEST(Failure, Words) {
  EXPECT_STREQ(Failure("Subscript out of range").what(), "Subscript out of range");
  EXPECT_EQ(Words([] { fail::Subscript(); }), "Subscript out of range");
  EXPECT_EQ(Words([] { fail::Overflow(); }), "Overflow");
  EXPECT_EQ(Words([] { fail::DivisionByZero(); }), "Division by zero");
  EXPECT_EQ(Words([] { fail::Invalid(); }), "Invalid procedure call or argument");
  EXPECT_EQ(Words([] { fail::TypeMismatch(); }), "Type mismatch");
}

}  // namespace
}  // namespace tessaron

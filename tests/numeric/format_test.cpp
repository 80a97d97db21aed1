// Format by mask: the worked rows, and every mask the forms use with values
// of each sign, including zero.
#include <gtest/gtest.h>

#include <string>

#include "numeric/numeric.h"
#include "tests/numeric/helpers.h"

namespace tessaron {
namespace {

TEST(Format, WorkedRows) {
  const Row rows[] = {
      {"###,###,###,###,##0.##", Value(1234567.5), "1,234,567.5"},
      {"###,###,###,###,##0.##", Value(1000), "1,000."},
      {"###,###,###,###,##0.##", Value(0), "0."},
      {"###,###,###.00", Value(1234.5), "1,234.50"},
      {"###,###,###.00", Value(0.25), ".25"},
      {"###,###,###.00", Value(0), ".00"},
      {" #0.00##", Value(7.5), " 7.50"},
      {" #0.00##", Value(6.12345), " 6.1235"},
      {"#0.00###", Value(6.125), "6.125"},
      {" ##0.###### %", Value(0.0725), " 7.25 %"},
      {" ##0 Months", Value(360), " 360 Months"},
      {" ##0 Months.  Amortizing", Value(60), " 60 Months.  Amortizing"},
      {"##", Value(0), ""},
      {"##", Value(25), "25"},
      {"#,##0.####", Value(1609.344), "1,609.344"},
      {"#,##0.", Value(12.6), "13."},
      {"#0 ounce = ", Value(16), "16 ounce = "},
      {"###.#0", Value(1.5), "1.50"},
      {"###,###,##0.### ### ### ### ", Value(3.14159265358979), "3.141 592 653 589 79  "},
      {"000000", Value(42), "000042"},
      {"0.###e+", Value(12345), "1.235e+4"},
      // A Dec of 17 whole digits: all of them, ungrouped (the point stands
      // because the mask has one).
      {"################0.######", D("12345678901234567"), "12345678901234567."},
  };
  Check(rows, std::size(rows));
}

TEST(Format, EdgeCases) {
  const Row rows[] = {
      // Rounding works on the 15-digit text, half away from zero.
      {"##0.00", Value(1.005), "1.01"},
      {"##0.00", Value(-1.005), "-1.01"},
      {"0", Value(2.5), "3"},
      {"0", Value(-2.5), "-3"},
      {"0", Value(3.5), "4"},
      // A value that rounds to zero keeps no sign.
      {"##0.0", Value(-0.04), "0.0"},
      {"#", Value(-0.4), ""},
      // A negative sign goes before the first character, literals included.
      {" #0", Value(-7), "- 7"},
      {" ##0.#### %", Value(-0.5), "- 50. %"},
      // Digits beyond the positions spill left, grouped.
      {"0000", Value(12345), "12345"},
      {"#,##0.", Value(1234567), "1,234,567."},
      {"###,##0", Value(999.5), "1,000"},
      // Dec values are taken with all their digits.
      {"##0.00", D("1.005"), "1.01"},
      {"###,##0.00", D("-1234.5"), "-1,234.50"},
      {"###,##0.####################", D("0.0058333333333333333333333333"),
       "0.00583333333333333333"},
      // Text that reads as a number is converted first.
      {"#,##0.00", Value("1234.5"), "1,234.50"},
      {"0.0", Value(true), "-1.0"},
      {"0.0", Value(), "0.0"},
  };
  Check(rows, std::size(rows));
}

TEST(Format, WholeNumbersAndAmounts) {
  const Row rows[] = {
      {"0", Value(1234), "1234"},
      {"0", Value(0), "0"},
      {"#", Value(7), "7"},
      {"#", Value(0), ""},
      {"#", Value(-4), "-4"},
      {"##", Value(-25), "-25"},
      {"#0", Value(0), "0"},
      {"#0", Value(5.5), "6"},
      {"#0", Value(-5.5), "-6"},
      {"##0", Value(360), "360"},
      {"##0", Value(-0.4), "0"},
      {"##0", Value(-12), "-12"},
      {"###0 ", Value(1234), "1234 "},
      {"###0 ", Value(0), "0 "},
      {"###0 ", Value(-3), "-3 "},
      {"#####0", Value(42), "42"},
      {"#####0", Value(-42), "-42"},
      {"#####0", Value(0), "0"},
      {"######0", Value(1234567), "1234567"},
      {"######0", Value(0), "0"},
      {"######0", Value(-7.5), "-8"},
      {" #0", Value(7), " 7"},
      {" #0", Value(0), " 0"},
      {"###,###", Value(1234567), "1,234,567"},
      {"###,###", Value(0), ""},
      {"###,###", Value(-1234), "-1,234"},
      {" ###,###,###", Value(1234567890.0), " 1,234,567,890"},
      {" ###,###,###", Value(0), " "},
      {" ###,###,###", Value(-1000), "- 1,000"},
      {"###,##0", Value(-1234), "-1,234"},
      {"###,##0", Value(0), "0"},
      {"###,##0.", Value(1234), "1,234."},
      {"###,##0.", Value(0), "0."},
      {"###,##0.", Value(-1234.5), "-1,235."},
      {"#,##0.", Value(0), "0."},
      {"#,##0.", Value(-12.4), "-12."},
      {"##0.", Value(0), "0."},
      {"##0.", Value(-5), "-5."},
      {" ##0.", Value(5), " 5."},
      {" ##0.", Value(0), " 0."},
      {" ##0.", Value(-5), "- 5."},
      {"000000", Value(-42), "-000042"},
      {"000000", Value(0), "000000"},
      {"0000", Value(7), "0007"},
      {"0000", Value(0), "0000"},
      {"0000", Value(-7), "-0007"},
  };
  Check(rows, std::size(rows));
}

TEST(Format, FixedOrOpenDecimals) {
  const Row rows[] = {
      {"0.#", Value(2.25), "2.3"},
      {"0.#", Value(2), "2."},
      {"0.#", Value(0), "0."},
      {"0.#", Value(-2.25), "-2.3"},
      {"0.###", Value(1.0005), "1.001"},
      {"0.###", Value(0), "0."},
      {"0.###", Value(-1.5), "-1.5"},
      {"0.####", Value(3.14159), "3.1416"},
      {"0.####", Value(-0.00004), "0."},
      {"0.#####", Value(2.718281828), "2.71828"},
      {"0.#####", Value(0), "0."},
      {"0.###########", Value(1.0 / 3), "0.33333333333"},
      {"0.###########", Value(-1.0 / 3), "-0.33333333333"},
      {"0.0###################", Value(2), "2.0"},
      {"0.0###################", Value(3.14159265358979), "3.14159265358979"},
      {"0.0###################", Value(0), "0.0"},
      {"0.0###################", Value(-0.1), "-0.1"},
      {"##0.0", Value(12.34), "12.3"},
      {"##0.0", Value(-0.05), "-0.1"},
      {"##0.0", Value(0), "0.0"},
      {" ##0.0", Value(9.96), " 10.0"},
      {" ##0.0", Value(0), " 0.0"},
      {"###0.0", Value(1234.56), "1234.6"},
      {"###0.0", Value(-1234.56), "-1234.6"},
      {"#####0.0", Value(0), "0.0"},
      {"#####0.0", Value(123456.78), "123456.8"},
      {"##0.00", Value(0), "0.00"},
      {"###0.00", Value(-12.345), "-12.35"},
      {"###0.00", Value(0), "0.00"},
      {"#.0 ", Value(0.5), ".5 "},
      {"#.0 ", Value(12), "12.0 "},
      {"#.0 ", Value(0), ".0 "},
      {"#.0 ", Value(-0.5), "-.5 "},
      {"###.#0", Value(0), ".00"},
      {"###.#0", Value(-1.5), "-1.50"},
      {"##0.###", Value(2.5), "2.5"},
      {"##0.###", Value(0), "0."},
      {"##0.### ", Value(2.2046), "2.205 "},
      {"##0.### ", Value(0), "0. "},
      {" ##0.### ", Value(0.3048), " 0.305 "},
      {" ##0.### ", Value(-0.3048), "- 0.305 "},
      {"##0.#####", Value(1.609344), "1.60934"},
      {"##0.#######", Value(0.45359237), "0.4535924"},
      {"####0.#####", Value(25.4), "25.4"},
      {"####0.#####", Value(-25.4), "-25.4"},
      {"##0.00##", Value(7.5), "7.50"},
      {"##0.00##", Value(6.12345), "6.1235"},
      {"##0.00##", Value(0), "0.00"},
      {" #0.00##", Value(0), " 0.00"},
      {" #0.00##", Value(-7.5), "- 7.50"},
      {"#0.00###", Value(0), "0.00"},
      {"#0.00###", Value(-6.125), "-6.125"},
  };
  Check(rows, std::size(rows));
}

TEST(Format, GroupedAmounts) {
  const Row rows[] = {
      {"###,###,###.00", Value(-1234.5), "-1,234.50"},
      {"###,###,###,###,##0.##", Value(-1234567.5), "-1,234,567.5"},
      {"###,##0.00", Value(1234567.891), "1,234,567.89"},
      {"###,##0.00", Value(0), "0.00"},
      {"###,##0.00", Value(-0.005), "-0.01"},
      {"###,##0.000", Value(1.0005), "1.001"},
      {"###,##0.000", Value(0), "0.000"},
      {"###,##0.###", Value(1234.5), "1,234.5"},
      {"###,##0.###", Value(-1234.5), "-1,234.5"},
      {"###,##0.######", Value(0.1234567), "0.123457"},
      {"###,##0.######", Value(0), "0."},
      {"###,##0.#######", Value(1234.56789), "1,234.56789"},
      {"###,##0.####################", Value(1.0 / 3), "0.333333333333333"},
      {"###,##0.####################", Value(-1234567.125), "-1,234,567.125"},
      {"###,##0.####################", Value(0), "0."},
      {"###,###,##0.######", Value(1234567.1234567), "1,234,567.123457"},
      {"###,###,##0.######", Value(0), "0."},
      {"###,###,##0.###########", Value(2.0 / 3), "0.66666666667"},
      {"###,###,##0.###########", Value(-1e6), "-1,000,000."},
      {"#,##0.##", Value(1234.567), "1,234.57"},
      {"#,##0.##", Value(0), "0."},
      {"#,##0.###", Value(1609.344), "1,609.344"},
      {"#,##0.###", Value(-1609.344), "-1,609.344"},
      {"#,##0.####", Value(0), "0."},
      {"#,##0.######", Value(1234.0000001), "1,234."},
      {"#,##0.######", Value(-0.5), "-0.5"},
      {"################0.######", Value(1e16), "10000000000000000."},
      {"################0.######", Value(-2.5), "-2.5"},
      {"################0.######", Value(0), "0."},
      {"#################0.###", D("123456789012345678"), "123456789012345678."},
      {"#################0.###", Value(0), "0."},
      {"#################0.###", Value(-0.0625), "-0.063"},
  };
  Check(rows, std::size(rows));
}

TEST(Format, Percent) {
  const Row rows[] = {
      {" ##0.###### %", Value(0), " 0. %"},
      {" ##0.###### %", Value(-0.0725), "- 7.25 %"},
      {" ##0.######  %", Value(0.125), " 12.5  %"},
      {" ##0.######  %", Value(0), " 0.  %"},
      {" ##0.#### %", Value(0.0725), " 7.25 %"},
      {" ##0.#### %", Value(-0.5), "- 50. %"},
      {"##0.## %", Value(0.12345), "12.35 %"},
      {"##0.## %", Value(0), "0. %"},
      {"##0.#### %", Value(1), "100. %"},
      {"##0.#### %", Value(-0.000012345), "-0.0012 %"},
      {"##0.#### %", D("0.07"), "7. %"},
  };
  Check(rows, std::size(rows));
}

TEST(Format, WithWords) {
  const Row rows[] = {
      {" ##0 Months", Value(0), " 0 Months"},
      {"    ##0 Months", Value(12), "    12 Months"},
      {" ###0 Months", Value(1200), " 1200 Months"},
      {" ###0 Months. ", Value(360), " 360 Months. "},
      {" ##0 Months.  Amortizing", Value(0), " 0 Months.  Amortizing"},
      {"#0 ft", Value(3), "3 ft"},
      {"#0 ft", Value(-3), "-3 ft"},
      {" #0.# in ", Value(12.34), " 12.3 in "},
      {" #0.# in ", Value(0), " 0. in "},
      {"#0.0 in. ", Value(2.56), "2.6 in. "},
      {"#0 ounce = ", Value(0), "0 ounce = "},
      {"0.### pound ", Value(2.20462262), "2.205 pound "},
      {"0.### pound ", Value(-2.20462262), "-2.205 pound "},
      {"##0 yards ", Value(1093.6133), "1094 yards "},
      {"###0.0 meter ", Value(0.9144), "0.9 meter "},
      {"###0.0 meter ", Value(0), "0.0 meter "},
  };
  Check(rows, std::size(rows));
}

TEST(Format, Scientific) {
  const Row rows[] = {
      {"0.###e+", Value(12345), "1.235e+4"},
      {"0.###e+", Value(-12345), "-1.235e+4"},
      {"0.###e+", Value(0.00012345), "1.235e-4"},
      {"0.###e+", Value(1), "1.e+0"},
      {"0.###e+", Value(99999), "1.e+5"},
      {"0.###e+", Value(0), "0.e+0"},
      {"0.###e+", Value(6.02214076e23), "6.022e+23"},
  };
  Check(rows, std::size(rows));
}

// Literals among the decimal positions: once the fraction is grouped by
// literals, each of its characters stands for a decimal place, the digits the
// positions cannot take follow the mask, and places beyond the digits the
// number carries (a Real: 15 significant digits) read as blanks there.
TEST(Format, FractionGroupedByLiterals) {
  const char* mask = "###,###,##0.### ### ### ### ";
  const Row rows[] = {
      {mask, Value(3.14159265358979), "3.141 592 653 589 79  "},
      {mask, Value(-3.14159265358979), "-3.141 592 653 589 79  "},
      {mask, Value(1234.5), "1,234.5        "},
      {mask, Value(0.0), "0.      "},
      {mask, Value(0), "0.        "},  // a whole number carries no places
      {mask, CDec(Value("2.50")), "2.5        "},
      {mask, Value(1.0 / 3), "0.333 333 333 333 333 "},
  };
  Check(rows, std::size(rows));
}

TEST(Format, FormatNumber) {
  EXPECT_EQ(FormatNumber(Value(1234.5), 2), "1,234.50");
  EXPECT_EQ(FormatNumber(Value(1234.5), 0), "1,235");
  EXPECT_EQ(FormatNumber(Value(0), 2), "0.00");
  EXPECT_EQ(FormatNumber(Value(-1234567), 0), "-1,234,567");
}

TEST(Format, NonNumericTextIsReturnedAsIs) { EXPECT_EQ(Format(Value("abc"), "0.00"), "abc"); }

}  // namespace
}  // namespace tessaron

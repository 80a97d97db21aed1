// Fraction, binary, octal and hexadecimal views of the display value.
#include <gtest/gtest.h>

#include <cmath>

#include "calc/kernels/views.h"

namespace tessaron::kernels {
namespace {

std::string Shown(const View& v) {
  EXPECT_EQ(v.act, View::Act::Show);
  return v.text;
}

TEST(FractionView, BestFractionUpTo200) {
  EXPECT_EQ(Shown(FractionView(0.75)), "3 /4 ");
  EXPECT_EQ(Shown(FractionView(0.5)), "1 /2 ");
  EXPECT_EQ(Shown(FractionView(0.3)), "3 /10 ");
  EXPECT_EQ(Shown(FractionView(0.125)), "1 /8 ");
  EXPECT_EQ(Shown(FractionView(2.75)), "3 /4 ");
  EXPECT_EQ(Shown(FractionView(0.005)), "1 /200 ");
  // The whole part is split off by Int, so a negative value shows the
  // distance up to the next whole number below it: -0.25 is -1 + 0.75.
  EXPECT_EQ(Shown(FractionView(-0.25)), "3 /4 ");
}

TEST(FractionView, ApproximateFractionsSayAbout) {
  // The display's fifteen digits of a third are cleaned to fourteen
  // decimals, 3.3E-15 from 1/3: more than the 10^-15 of an exact fraction.
  EXPECT_EQ(Shown(FractionView(0.333333333333333)), " about 1 /3 ");
  EXPECT_EQ(Shown(FractionView(1.0 / 3)), " about 1 /3 ");
  // Pi's fraction part: 16/113 is the best with a denominator to 200.
  EXPECT_EQ(Shown(FractionView(3.14159265358979)), " about 16 /113 ");
  // 0.0123: the denominators run from Int(1 / 0.0123) = 81 to 200; the best
  // is found here by a direct search of them all.
  double best = 1;
  long bn = 0, bd = 0;
  for (long d = 81; d <= 200; ++d)
    for (long n = 0; n <= 3; ++n)
      if (std::fabs(static_cast<double>(n) / d - 0.0123) < best) {
        best = std::fabs(static_cast<double>(n) / d - 0.0123);
        bn = n;
        bd = d;
      }
  EXPECT_EQ(Shown(FractionView(0.0123)),
            " about " + std::to_string(bn) + " /" + std::to_string(bd) + " ");
}

// When no denominator up to 200 is tried (1/f beyond 200) the view is one
// over the whole part of 1/f, with its blanks: the example of 0.001 reads
// " 1 / 1000 ", the same text as for a fraction part below 10^-15.
TEST(FractionView, OneOverWhenNoDenominatorFits) {
  EXPECT_EQ(Shown(FractionView(0.001)), " 1 / 1000 ");
  EXPECT_EQ(Shown(FractionView(0.004)), " 1 / 250 ");
  EXPECT_EQ(Shown(FractionView(5.0003)), " 1 / 3333 ");
}

TEST(FractionView, ZeroCancelsAndWholeShowsNothing) {
  EXPECT_EQ(FractionView(0).act, View::Act::Cancel);
  EXPECT_EQ(FractionView(7).act, View::Act::Nothing);
  EXPECT_EQ(FractionView(-3).act, View::Act::Nothing);
  EXPECT_EQ(BinaryView(0).act, View::Act::Cancel);
  EXPECT_EQ(BinaryView(12).act, View::Act::Nothing);
}

TEST(FractionView, DustIsCleanedToFourteenDecimals) {
  EXPECT_EQ(FractionPart(2.75), 0.75);
  EXPECT_EQ(FractionPart(0.1 + 0.2), 0.3);
  EXPECT_EQ(FractionPart(5), 0);
}

TEST(BinaryView, DigitsOfTheFractionPart) {
  EXPECT_EQ(Shown(BinaryView(0.75)), " Bin: 0.11");
  EXPECT_EQ(Shown(BinaryView(0.5)), " Bin: 0.1");
  EXPECT_EQ(Shown(BinaryView(3.625)), " Bin: 0.101");
  // 2^-14 ends at the fourteenth digit.
  EXPECT_EQ(Shown(BinaryView(std::ldexp(1.0, -14))), " Bin: 0.00000000000001");
  // 0.1 never ends in binary: fifteen digits 000110011001100, the mask drops
  // the trailing zeros, then the dots.
  EXPECT_EQ(Shown(BinaryView(0.1)), " Bin: 0.0001100110011 . . . ");
  // A third: 010101010101010.
  EXPECT_EQ(Shown(BinaryView(1.0 / 3)), " Bin: 0.01010101010101 . . . ");
}

TEST(RadixView, OctalAndHex) {
  EXPECT_EQ(Shown(OctalView(8)), " Oct:  10 ");
  EXPECT_EQ(Shown(HexView(8)), " Hex:  8 ");
  EXPECT_EQ(Shown(HexView(255)), " Hex:  FF ");
  EXPECT_EQ(Shown(OctalView(0)), " Oct:  0 ");
  // 8^10 itself is taken; one more is refused.
  const double edge = std::pow(8.0, 10);
  EXPECT_EQ(Shown(OctalView(edge)), " Oct:  10000000000 ");
  EXPECT_EQ(Shown(HexView(edge)), " Hex:  40000000 ");
  const View big = OctalView(edge + 1);
  EXPECT_EQ(big.act, View::Act::Refused);
  EXPECT_EQ(big.message, " Too Big Number. (octal) ");
  EXPECT_EQ(HexView(edge + 1).act, View::Act::Refused);
}

}  // namespace
}  // namespace tessaron::kernels

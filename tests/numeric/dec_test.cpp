// Dec arithmetic against vectors worked out by Python's decimal module (see
// make_dec_vectors.py, which wrote dec_vectors.txt once; both are checked in).
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>

#include "numeric/numeric.h"

namespace tessaron {
namespace {

Dec Parse(const std::string& s) {
  Dec d;
  EXPECT_TRUE(Dec::Parse(s, d)) << s;
  return d;
}

TEST(Dec, OracleVectors) {
  std::ifstream in(DEC_VECTORS);
  ASSERT_TRUE(in) << DEC_VECTORS;
  std::string line;
  int count = 0;
  while (std::getline(in, line)) {
    if (line.empty()) continue;
    std::istringstream f(line);
    std::string op, a, b, want;
    f >> op >> a >> b >> want;
    for (char& c : want)
      if (c == '_') c = ' ';
    std::string got;
    try {
      const Dec x = Parse(a), y = Parse(b);
      const Dec r = op == "+" ? x + y : op == "-" ? x - y : op == "*" ? x * y : x / y;
      got = r.ToString();
    } catch (const Failure& e) {
      got = e.what();
    }
    EXPECT_EQ(got, want) << line;
    ++count;
  }
  EXPECT_GT(count, 1000);
}

TEST(Dec, Range) {
  const Dec max = Parse("79228162514264337593543950335");
  EXPECT_EQ(max.ToString(), "79228162514264337593543950335");
  EXPECT_EQ((-max).ToString(), "-79228162514264337593543950335");
  Dec d;
  EXPECT_THROW(Dec::Parse("79228162514264337593543950336", d), Failure);
  EXPECT_EQ(Parse("0.00000000000000000000000000004").ToString(), "0");
  EXPECT_EQ(Parse("0.00000000000000000000000000006").ToString(), "0.0000000000000000000000000001");
}

TEST(Dec, ScaleIsKeptFromText) {
  EXPECT_EQ(Parse("1.50").Scale(), 2);
  EXPECT_EQ(Parse("1.50").ToString(), "1.5");
  EXPECT_EQ(Parse("0.00").Scale(), 2);
  EXPECT_EQ((Parse("1.25") + Parse("1.75")).ToString(), "3");
}

TEST(Dec, FromDoubleGoesThroughFifteenDigits) {
  EXPECT_EQ(Dec::FromDouble(1.1).ToString(), "1.1");
  EXPECT_EQ(Dec::FromDouble(0.1 + 0.2).ToString(), "0.3");
  EXPECT_EQ(Dec::FromDouble(1.0 / 3).ToString(), "0.333333333333333");
  EXPECT_EQ(Dec::FromDouble(-2.5e-20).ToString(), "-0.000000000000000000025");
  EXPECT_EQ(Dec::FromDouble(1e20).ToString(), "100000000000000000000");
  EXPECT_THROW(Dec::FromDouble(1e29), Failure);
}

TEST(Dec, ToDouble) {
  EXPECT_EQ(Parse("0.07").ToDouble(), 0.07);
  EXPECT_EQ(Parse("-1234.5").ToDouble(), -1234.5);
  EXPECT_EQ(Parse("79228162514264337593543950335").ToDouble(), 79228162514264337593543950335.0);
}

TEST(Dec, FloorAndRound) {
  EXPECT_EQ(Parse("-0.5").Floor().ToString(), "-1");
  EXPECT_EQ(Parse("0.5").Floor().ToString(), "0");
  EXPECT_EQ(Parse("-3").Floor().ToString(), "-3");
  EXPECT_EQ(Parse("2.5").RoundEven().ToString(), "2");
  EXPECT_EQ(Parse("3.5").RoundEven().ToString(), "4");
  EXPECT_EQ(Parse("-2.5").RoundEven().ToString(), "-2");
  EXPECT_EQ(Parse("-0.4").RoundEven().ToString(), "0");
}

TEST(Dec, Compare) {
  EXPECT_EQ(Parse("1.0"), Parse("1"));
  EXPECT_LT(Parse("-2"), Parse("1"));
  EXPECT_LT(Parse("0.0000000000000000000000000001"), Parse("0.000000000000000000000000001"));
  EXPECT_GT(Parse("79228162514264337593543950335"), Parse("7922816251426433759354395033.5"));
  EXPECT_EQ(Parse("-0"), Parse("0"));
}

}  // namespace
}  // namespace tessaron

#include "engine_fixture.h"

namespace tessaron::test {

namespace {
constexpr double kFar = 1e33;
}

class DomainTest : public EngineTest {
 protected:
  void scan(const std::string& f, const char* t = "5") {
    setT(t);
    function(f);
    calc->PubDomainCk();
  }
  // A list written straight into slot 1, for one no T would let the user key.
  void scanList(const std::vector<int>& keys) {
    auto& col = calc->EqnTable[1];
    for (size_t i = 0; i < keys.size(); ++i) col[30 + i] = keys[i];
    col[29] = static_cast<double>(keys.size() - 1);
    calc->EqnIdx = 1;
    calc->PubDomainCk();
  }
  double low(int k) { return calc->DomainTab[100 + k]; }
  double high(int k) { return calc->DomainTab[200 + k]; }
  double point(int k) { return calc->DomainTab[300 + k]; }
  bool used(int k) { return calc->DomainTab[k] == 2; }
};

TEST_F(DomainTest, SquareRootBandFromThree) {
  scan("( T - 3 ) sqrt");
  ASSERT_TRUE(used(20));
  EXPECT_EQ(low(20), 3);
  EXPECT_EQ(high(20), 1e13);
  EXPECT_EQ(low(0), 3);
  EXPECT_EQ(high(0), 1e13);
}

// From T = 1 the walk steps onto the band's edge, where the root is.
TEST_F(DomainTest, SquareRootSolvedFromOutsideItsBand) {
  setT("5");
  function("( T - 3 ) sqrt");
  setT("1");
  fkey("Solve");
  EXPECT_EQ(memory(4), 3);
}

TEST_F(DomainTest, ReciprocalOfTwoTMinusFour) {
  scan("1 / ( 2 T - 4 )");
  ASSERT_TRUE(used(10));
  EXPECT_DOUBLE_EQ(point(10), 2);
  EXPECT_DOUBLE_EQ(high(10), 1e13 / 2);
}

TEST_F(DomainTest, LogarithmToTheBaseT) {
  scan("T LogxY 8");
  ASSERT_TRUE(used(25));
  EXPECT_EQ(low(25), 1e-11);
  EXPECT_EQ(point(25), 1);
}

TEST_F(DomainTest, SineOfOneOverTLimitsOnlyTheReciprocal) {
  scan("T 1/x sin");
  EXPECT_TRUE(used(15));
  EXPECT_EQ(point(15), 0);
  for (int k = 80; k <= 96; ++k) EXPECT_FALSE(used(k)) << k;
}

TEST_F(DomainTest, TangentInDegrees) {
  scan("T tan");
  std::vector<double> points;
  for (int k = 80; k <= 96; ++k)
    if (used(k) && point(k) != kFar) points.push_back(point(k));
  EXPECT_EQ(points, (std::vector<double>{90, -90, 270, -270, 450}));
  EXPECT_EQ(high(80), 1e4);
}

TEST_F(DomainTest, NoLimitingKeyLeavesNoDomain) {
  scan("T x2 - 2");
  EXPECT_FALSE(used(0));
}

TEST_F(DomainTest, AParenthesisWithoutTLeavesNoLimit) {
  scan("T + 1 / ( 3 - 2 )");
  EXPECT_FALSE(used(10));
}

TEST_F(DomainTest, NoDomainWorks) {
  // Above 3 by the root, below -3 by the second: nothing is left.
  // ( T - 3 ) sqrt + ( 3 - T ) ln =
  scanList({32, 41, 99, 18, 33, 21, 3, 19, 58, 20, 18, 3, 21, 33, 19, 56, 22});
  EXPECT_EQ(host.boxes.back().text, "  No Domain Works !  ");
}

// T behind a power key, in its exponent: T X^y T has a base that goes below
// zero, so T is held to its exponent's band, 0 to 100; 2 X^y T has a base
// that stays positive and no limit. The same for the root key X^(1/y).
TEST_F(DomainTest, PowerWithTInTheExponent) {
  scanList({32, 41, 99, 33, 27, 33, 22});
  ASSERT_TRUE(used(60));
  EXPECT_EQ(low(60), 0);
  EXPECT_EQ(high(60), 100);
  EXPECT_EQ(low(0), 0);
  EXPECT_EQ(high(0), 100);
  scanList({32, 41, 99, 2, 27, 18, 33, 21, 4, 19, 22});
  EXPECT_FALSE(used(60));
  scanList({32, 41, 99, 18, 33, 20, 3, 19, 31, 18, 2, 23, 33, 19, 22});
  ASSERT_TRUE(used(65));
  EXPECT_DOUBLE_EQ(low(65), 0);
  EXPECT_DOUBLE_EQ(high(65), 50);
}

}  // namespace tessaron::test

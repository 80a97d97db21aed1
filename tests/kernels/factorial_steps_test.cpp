// A large factorial carries on from the long run's kept state nearest below
// it: the text must be the one the whole run from the row's start gives.
#include <gtest/gtest.h>

#include <chrono>

#include "calc/kernels/elementary.h"

namespace tessaron::kernels {
namespace {

TEST(FactorialSteps, CarryingOnFromAKeptStateGivesTheWholeRunsDigits) {
  int count = 0;
  const FactorialCheckpoint* rows = FactorialCheckpoints(count);
  for (int r = 0; r < count; ++r) {
    const FactorialCheckpoint& row = rows[r];
    // Past the first and the second kept states of the row, and at one.
    for (long x : {row.first + 1000001, row.first + 2000000, row.first + 2000123}) {
      if (x >= row.below) continue;
      const std::string whole = PubFactorial(row.first, row.power, row.mantissa, x);
      EXPECT_EQ(NFac(Value(static_cast<double>(x))).text, whole) << "x = " << x;
    }
  }
}

TEST(FactorialSteps, TheLargestAnswersAtOnce) {
  for (double x : {99999998.0, 49999999.0, 123456789.0}) {
    const auto t0 = std::chrono::steady_clock::now();
    const Outcome o = NFac(Value(x));
    const auto ms =
        std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - t0)
            .count();
    EXPECT_FALSE(o.text.empty());
    // A million steps at most; the whole run took fifty million.
    EXPECT_LT(ms, 2500) << "x = " << x;
  }
}

}  // namespace
}  // namespace tessaron::kernels

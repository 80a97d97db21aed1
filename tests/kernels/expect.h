#pragma once
// Shared checks of a kernel's outcome.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "calc/kernels/outcome.h"

namespace tessaron::kernels::testing {

// Agreement to fifteen significant digits: within half a unit of the
// fifteenth digit of a mantissa of 1, as a relative difference.
inline ::testing::AssertionResult Agree15(double got, double expected) {
  const double scale = std::fabs(expected);
  if (got == expected || std::fabs(got - expected) <= 5e-15 * scale)
    return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure()
         << "got " << got << " expected " << expected << " (relative difference "
         << std::fabs(got - expected) / scale << ")";
}

// A shown number, exactly.
inline void ExpectShown(const Outcome& o, double expected, const std::string& transcript) {
  ASSERT_TRUE(o.ok()) << "refused: [" << o.message << "]";
  EXPECT_EQ(o.value.kind(), Kind::Real);
  EXPECT_EQ(o.value.number(), expected);
  EXPECT_EQ(o.transcript, transcript);
}

// The forced zero, written as the text "0".
inline void ExpectZeroText(const Outcome& o, const std::string& transcript) {
  ASSERT_TRUE(o.ok()) << "refused: [" << o.message << "]";
  ASSERT_EQ(o.value.kind(), Kind::String);
  EXPECT_EQ(o.value.AsString(), "0");
  EXPECT_EQ(o.transcript, transcript);
}

inline void ExpectRefused(const Outcome& o, Act act, const std::string& message,
                          const std::string& formula = "") {
  EXPECT_EQ(o.act, act);
  EXPECT_EQ(o.message, message);
  EXPECT_EQ(o.formula, formula);
}

}  // namespace tessaron::kernels::testing

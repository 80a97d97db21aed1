#pragma once
// Small helpers the numeric tests share.
#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <string>

#include "numeric/numeric.h"

namespace tessaron {

inline Value D(const char* text) { return CDec(Value(text)); }

// Runs f and returns the failure's words, or "" if it did not fail.
inline std::string Words(const std::function<void()>& f) {
  try {
    f();
  } catch (const Failure& e) {
    return e.what();
  }
  return "";
}

// A mask, a value and the text Format must give.
struct Row {
  const char* mask;
  Value v;
  const char* text;
};

inline void Check(const Row* rows, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) {
    const Row& r = rows[i];
    EXPECT_EQ(Format(r.v, r.mask), r.text) << "mask \"" << r.mask << "\" value " << CStr(r.v);
  }
}

}  // namespace tessaron

// Value arithmetic on numbers must not touch the heap: the solvers run it in
// their inner loops. Every allocation of this program is counted.
#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <new>

#include "numeric/numeric.h"

namespace {
std::atomic<long> g_allocations{0};
}

void* operator new(std::size_t n) {
  g_allocations.fetch_add(1, std::memory_order_relaxed);
  if (void* p = std::malloc(n ? n : 1)) return p;
  throw std::bad_alloc();
}
void* operator new[](std::size_t n) { return operator new(n); }
void operator delete(void* p) noexcept { std::free(p); }
void operator delete[](void* p) noexcept { std::free(p); }
void operator delete(void* p, std::size_t) noexcept { std::free(p); }
void operator delete[](void* p, std::size_t) noexcept { std::free(p); }

namespace tessaron {
namespace {

TEST(NoAllocation, ArithmeticOnEveryNumericKind) {
  const Value values[] = {Value(),       Value(true),         Value(12),
                          Value(-7),     Value(40000),        Value(2.5),
                          Value(-0.125), CDec(Value("1.05")), CDec(Value("-0.0725"))};
  Value sum;
  int compared = 0;
  const long before = g_allocations.load();
  for (int round = 0; round < 50; ++round) {
    for (const Value& a : values) {
      for (const Value& b : values) {
        sum = sum + a - b * Value(0.5);
        Value p = a * b;
        Value d = b.kind() == Kind::Empty || Compare(b, Value(0)) == 0 ? a : a / b;
        Value n = -a;
        compared += (a < b) + (p == d) + (n >= a);
        sum = Abs(sum) + Int(p) + Round(d);
        if (Compare(Abs(sum), Value(1e6)) > 0) sum = Value(0);
      }
    }
    Value r = Pow(Value(1.01), Value(12));
    sum = sum + r + CInt(Value(2.5)) + CLng(Value(3.5)) + CDbl(Value(1)) + CDec(Value(1.5));
  }
  const long after = g_allocations.load();
  EXPECT_EQ(after - before, 0);
  EXPECT_GT(compared, 0);
  EXPECT_NE(sum.kind(), Kind::String);
}

TEST(NoAllocation, CounterSeesStrings) {
  const long before = g_allocations.load();
  Value s("a text long enough to leave the small-string buffer");
  EXPECT_GT(g_allocations.load() - before, 0);
}

}  // namespace
}  // namespace tessaron

#pragma once
// A form-level array with its declared bounds 0 to N - 1: an index outside
// them is the "Subscript out of range" failure, never a read past the end.
#include <array>
#include <cstddef>

#include "numeric/failure.h"

namespace tessaron {

template <class T, std::size_t N>
class Bounded {
 public:
  T& operator[](std::size_t i) {
    if (i >= N) fail::Subscript();
    return a_[i];
  }
  const T& operator[](std::size_t i) const {
    if (i >= N) fail::Subscript();
    return a_[i];
  }
  void fill(const T& v) { a_.fill(v); }
  static constexpr std::size_t size() { return N; }
  auto begin() const { return a_.begin(); }
  auto end() const { return a_.end(); }

 private:
  std::array<T, N> a_{};
};

}  // namespace tessaron

#pragma once

#include <stdexcept>
#include <string>

namespace tessaron {

// A run-time failure of the arithmetic. The forms never trap one: the surface
// shows what() in one box and the program ends, so the words must be exact.
class Failure : public std::runtime_error {
 public:
  explicit Failure(const std::string& words) : std::runtime_error(words) {}
};

namespace fail {
[[noreturn]] void Overflow();
[[noreturn]] void DivisionByZero();
[[noreturn]] void Invalid();
[[noreturn]] void TypeMismatch();
[[noreturn]] void Subscript();
}  // namespace fail

// A floating result is tested the moment it is made, so no infinity or
// not-a-number ever reaches a Value or a display.
inline double Checked(double x) {
  if (!(x - x == 0.0)) fail::Overflow();
  return x;
}

}  // namespace tessaron

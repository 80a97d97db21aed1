#include "numeric/failure.h"

namespace tessaron::fail {

void Overflow() { throw Failure("Overflow"); }
void DivisionByZero() { throw Failure("Division by zero"); }
void Invalid() { throw Failure("Invalid procedure call or argument"); }
void TypeMismatch() { throw Failure("Type mismatch"); }
void Subscript() { throw Failure("Subscript out of range"); }

}  // namespace tessaron::fail

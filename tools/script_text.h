#pragma once
// How the driver writes what the user sees: quoted text with the script's own
// escapes, numbers as plain decimals, booleans as True and False, and the
// drawing operations of a picture box or a printed page.
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "numeric/numeric.h"
#include "surface/canvas.h"

namespace tessaron::script {

// Text in double quotes, with \" \\ \n and \r escaped.
std::string quoted(std::string_view text);
// A value as `get` prints it.
std::string printed(const Value& value);
// A number written as a plain decimal: no exponent, no leading zeros, no
// trailing zeros after the point, no sign on zero ("+2.50E1" reads "25");
// nullopt when the text is not a number.
std::optional<std::string> plainDecimal(std::string_view number);
// A coordinate: up to four decimals, trailing zeros dropped.
std::string coordinate(double x);
// One drawing operation a line, in the order they were drawn.
void dumpOps(std::ostream& out, const std::vector<DrawOp>& ops);

}  // namespace tessaron::script

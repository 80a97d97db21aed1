#pragma once
// The rows of the graph's picture and keys in the calculator's design table.
#include <vector>

#include "surface/design.h"

namespace tessaron {

void graphDesign(std::vector<Design>& t);

}  // namespace tessaron

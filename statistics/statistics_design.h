#pragma once
// The statistics sheet's design: one row a control.
#include <vector>

#include "surface/design.h"

namespace tessaron {

FormDesign StatisticsForm();
std::vector<Design> StatisticsDesign();

}  // namespace tessaron

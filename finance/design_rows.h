#pragma once
// The rows the loan and its kin share: the amounts panel on the left, the
// rate-and-term panel on the right and the keys' panel below keep one
// geometry on every one of these forms, so they are made in one place.
#include <string>

#include "surface/design.h"

namespace tessaron {

// The amounts panel, Frame1.
Design AmountsFrame();
// A caption to the left of a box, on either panel.
Design FieldLabel(std::string name, std::string caption, int top, std::string container);
Design AmountBox(std::string name, int top);
// The "Base" mark beside an amount that a calculation may start from.
Design BaseLabel(std::string name, std::string tip, int top);
Design SumLabel(std::string name);

// The rate-and-term panel, Frame2.
Design RateFrame();
Design RateLabel(std::string caption);
Design RateBox();
Design PercentLabel();
Design RateBar(int min);
Design TermLabel(std::string name, std::string caption);
Design YearsLabel(std::string name, std::string caption);
Design YearsUnitLabel();
Design MonthsLabel();
Design MonthsUnitLabel();
Design YearBar(int min, int max, int largeChange, int value);
Design MonthBar(int min, int max, int value);

// The keys' panel, Frame3, its frames of choices and its row of keys.
Design KeysFrame(int height);
Design ChoiceFrame(std::string name, std::string caption, int left, int width);
Design Choice(std::string name, std::string caption, int left, int width, std::string container);
// The choice a form starts with, which says so in its tip.
Design DefaultChoice(std::string name, std::string caption, int left, int width,
                     std::string container);
Design PanelKey(std::string name, std::string caption, std::string tip, int left);

}  // namespace tessaron

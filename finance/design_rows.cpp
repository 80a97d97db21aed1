#include "finance/design_rows.h"

#include <utility>

#include "surface/design_rows.h"

namespace tessaron {

namespace {
using K = ControlKind;

// A one-line label on the rate-and-term panel.
Design PanelLabel(std::string name, std::string caption, int left, int top, int width,
                  Align alignment) {
  return {.kind = K::Label,
          .name = std::move(name),
          .caption = std::move(caption),
          .left = left,
          .top = top,
          .width = width,
          .height = 285,
          .container = "Frame2",
          .alignment = alignment};
}

Design Bar(const char* name, int left, int top, int width, int min, int max, int largeChange,
           int value) {
  return ScrollRow(K::HScrollBar, name, left, top, width, 255, "Frame2", min, max, largeChange,
                   value);
}
}  // namespace

Design AmountsFrame() {
  return {
      .kind = K::Frame, .name = "Frame1", .left = 120, .top = 60, .width = 4575, .height = 1935};
}

Design FieldLabel(std::string name, std::string caption, int top, std::string container) {
  return {.kind = K::Label,
          .name = std::move(name),
          .caption = std::move(caption),
          .left = 120,
          .top = top,
          .width = 1455,
          .height = 285,
          .container = std::move(container)};
}

Design AmountBox(std::string name, int top) {
  return {.kind = K::TextBox,
          .name = std::move(name),
          .left = 1620,
          .top = top,
          .width = 2055,
          .height = 375,
          .container = "Frame1",
          .fontSize = 12,
          .alignment = Align::Right};
}

Design BaseLabel(std::string name, std::string tip, int top) {
  return {.kind = K::Label,
          .name = std::move(name),
          .caption = "Base",
          .tip = std::move(tip),
          .left = 3720,
          .top = top,
          .width = 735,
          .height = 285,
          .container = "Frame1"};
}

Design SumLabel(std::string name) {
  return {.kind = K::Label,
          .name = std::move(name),
          .left = 1620,
          .top = 1380,
          .width = 2055,
          .height = 285,
          .container = "Frame1",
          .alignment = Align::Right};
}

Design RateFrame() {
  return {
      .kind = K::Frame, .name = "Frame2", .left = 4815, .top = 60, .width = 4440, .height = 1935};
}

Design RateLabel(std::string caption) {
  return FieldLabel("lblRate", std::move(caption), 300, "Frame2");
}

Design RateBox() {
  return {.kind = K::TextBox,
          .name = "txtRate",
          .tip = " Type in or Scroll Bar ",
          .left = 1620,
          .top = 240,
          .width = 1215,
          .height = 375,
          .container = "Frame2",
          .fontSize = 12,
          .alignment = Align::Right};
}

Design PercentLabel() { return PanelLabel("lblPct", "  %", 2880, 300, 495, Align::Left); }

// The bar holds the rate in hundredths of a percent.
Design RateBar(int min) { return Bar("scrRate", 120, 720, 4200, min, 6000, 20, 2000); }

Design TermLabel(std::string name, std::string caption) {
  return PanelLabel(std::move(name), std::move(caption), 120, 1140, 855, Align::Left);
}

Design YearsLabel(std::string name, std::string caption) {
  return PanelLabel(std::move(name), std::move(caption), 1020, 1140, 495, Align::Right);
}

Design YearsUnitLabel() { return PanelLabel("lblYr", "Years", 1560, 1140, 615, Align::Left); }

Design MonthsLabel() { return PanelLabel("lblMonth", "0", 2280, 1140, 495, Align::Right); }

Design MonthsUnitLabel() { return PanelLabel("lblMn", "Months", 2820, 1140, 735, Align::Left); }

Design YearBar(int min, int max, int largeChange, int value) {
  return Bar("scrYear", 120, 1500, 2040, min, max, largeChange, value);
}

// A year a step.
Design MonthBar(int min, int max, int value) {
  return Bar("scrMonth", 2280, 1500, 2040, min, max, 12, value);
}

Design KeysFrame(int height) {
  return {.kind = K::Frame,
          .name = "Frame3",
          .left = 120,
          .top = 2055,
          .width = 9135,
          .height = height};
}

Design ChoiceFrame(std::string name, std::string caption, int left, int width) {
  return {.kind = K::Frame,
          .name = std::move(name),
          .caption = std::move(caption),
          .left = left,
          .top = 180,
          .width = width,
          .height = 615,
          .container = "Frame3"};
}

Design Choice(std::string name, std::string caption, int left, int width, std::string container) {
  return {.kind = K::OptionButton,
          .name = std::move(name),
          .caption = std::move(caption),
          .left = left,
          .top = 240,
          .width = width,
          .height = 255,
          .container = std::move(container)};
}

Design DefaultChoice(std::string name, std::string caption, int left, int width,
                     std::string container) {
  Design d = Choice(std::move(name), std::move(caption), left, width, std::move(container));
  d.tip = " default ";
  d.checked = true;
  return d;
}

Design PanelKey(std::string name, std::string caption, std::string tip, int left) {
  return {.kind = K::CommandButton,
          .name = std::move(name),
          .caption = std::move(caption),
          .tip = std::move(tip),
          .left = left,
          .top = 960,
          .width = 1395,
          .height = 735,
          .container = "Frame3"};
}

}  // namespace tessaron

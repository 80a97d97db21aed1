#include "finance/design_rows.h"

#include <utility>

namespace tessaron {

namespace {
using K = ControlKind;
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

Design PercentLabel() {
  return {.kind = K::Label,
          .name = "lblPct",
          .caption = "  %",
          .left = 2880,
          .top = 300,
          .width = 495,
          .height = 285,
          .container = "Frame2"};
}

// The bar holds the rate in hundredths of a percent.
Design RateBar(int min) {
  return {.kind = K::HScrollBar,
          .name = "scrRate",
          .left = 120,
          .top = 720,
          .width = 4200,
          .height = 255,
          .container = "Frame2",
          .min = min,
          .max = 6000,
          .smallChange = 1,
          .largeChange = 20,
          .value = 2000};
}

Design TermLabel(std::string name, std::string caption) {
  return {.kind = K::Label,
          .name = std::move(name),
          .caption = std::move(caption),
          .left = 120,
          .top = 1140,
          .width = 855,
          .height = 285,
          .container = "Frame2"};
}

Design YearsLabel(std::string name, std::string caption) {
  return {.kind = K::Label,
          .name = std::move(name),
          .caption = std::move(caption),
          .left = 1020,
          .top = 1140,
          .width = 495,
          .height = 285,
          .container = "Frame2",
          .alignment = Align::Right};
}

Design YearsUnitLabel() {
  return {.kind = K::Label,
          .name = "lblYr",
          .caption = "Years",
          .left = 1560,
          .top = 1140,
          .width = 615,
          .height = 285,
          .container = "Frame2"};
}

Design MonthsLabel() {
  return {.kind = K::Label,
          .name = "lblMonth",
          .caption = "0",
          .left = 2280,
          .top = 1140,
          .width = 495,
          .height = 285,
          .container = "Frame2",
          .alignment = Align::Right};
}

Design MonthsUnitLabel() {
  return {.kind = K::Label,
          .name = "lblMn",
          .caption = "Months",
          .left = 2820,
          .top = 1140,
          .width = 735,
          .height = 285,
          .container = "Frame2"};
}

Design YearBar(int min, int max, int largeChange, int value) {
  return {.kind = K::HScrollBar,
          .name = "scrYear",
          .left = 120,
          .top = 1500,
          .width = 2040,
          .height = 255,
          .container = "Frame2",
          .min = min,
          .max = max,
          .smallChange = 1,
          .largeChange = largeChange,
          .value = value};
}

// A year a step.
Design MonthBar(int min, int max, int value) {
  return {.kind = K::HScrollBar,
          .name = "scrMonth",
          .left = 2280,
          .top = 1500,
          .width = 2040,
          .height = 255,
          .container = "Frame2",
          .min = min,
          .max = max,
          .smallChange = 1,
          .largeChange = 12,
          .value = value};
}

Design KeysFrame(int height) {
  return {.kind = K::Frame,
          .name = "Frame3",
          .left = 120,
          .top = 2055,
          .width = 9135,
          .height = height};
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

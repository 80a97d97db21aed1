// The equation form's controls: the choice of equation on the left, the
// coefficient boxes in rows of four, the answers, the keys, and the graph
// that opens over all of them.
#include "equations/eqtns.h"

namespace tessaron {

namespace {
using K = ControlKind;

constexpr int kBoxWidth = 1140, kBoxStep = 1740, kRowStep = 600, kRowTop = 480;
constexpr long kWhite = 0xFFFFFF;

Design option(int index, const char* caption, const char* tip, bool twin, bool visible) {
  const int row = (index - 1) % 4;
  return {.kind = K::OptionButton,
          .name = "optEqn",
          .index = index,
          .caption = caption,
          .tip = tip,
          .left = 120,
          .top = 420 + row * 1320,
          .width = 2760,
          .height = 1080,
          .container = "fmSelect",
          .visible = visible,
          .fontSize = 10,
          .fontBold = twin,
          .checked = twin && visible};
}

Design box(int index) {
  const int col = (index - 1) % 4, row = (index - 1) / 4;
  return {.kind = K::TextBox,
          .name = "txtBBB",
          .index = index,
          .left = 120 + col * kBoxStep,
          .top = kRowTop + row * kRowStep,
          .width = kBoxWidth,
          .height = 420,
          .container = "fmData",
          .visible = index <= 3,
          .fontSize = 10,
          .alignment = Align::Right};
}

Design word(int index) {
  const int col = (index - 1) % 4, row = (index - 1) / 4;
  return {.kind = K::Label,
          .name = "lblCCC",
          .index = index,
          .left = 120 + col * kBoxStep + kBoxWidth + 20,
          .top = kRowTop + row * kRowStep + 90,
          .width = kBoxStep - kBoxWidth - 30,
          .height = 300,
          .container = "fmData",
          .visible = index <= 3,
          .fontSize = 9};
}

// The exponents stand raised just after the X of the first and second words.
Design exponent(int index, int col) {
  return {.kind = K::Label,
          .name = "lblCCC",
          .index = index,
          .left = 120 + col * kBoxStep + kBoxWidth + 150,
          .top = kRowTop - 40,
          .width = 150,
          .height = 240,
          .container = "fmData",
          .visible = index == 13,
          .fontSize = 8};
}

Design answerRow(int index) {
  return {.kind = K::Label,
          .name = "lblAns",
          .index = index,
          .left = 900,
          .top = 420 + index * 720,
          .width = 6180,
          .height = 480,
          .container = "fmAns",
          .backColor = kWhite,
          .fontSize = 12};
}

Design answerWord(int index) {
  return {.kind = K::Label,
          .name = "lblABS",
          .index = index,
          .left = 120,
          .top = 480 + index * 720,
          .width = 740,
          .height = 360,
          .container = "fmAns",
          .fontSize = 11};
}

Design key(const char* name, const char* caption, const char* tip, int left) {
  return {.kind = K::CommandButton,
          .name = name,
          .caption = caption,
          .tip = tip,
          .left = left,
          .top = 6180,
          .width = 1620,
          .height = 660,
          .fontSize = 10};
}

Design graphKey(const char* name, int index, const char* caption, int left, int top, int width,
                int height) {
  return {.kind = K::CommandButton,
          .name = name,
          .index = index,
          .caption = caption,
          .tip = " Return to front ",
          .left = left,
          .top = top,
          .width = width,
          .height = height,
          .container = "picGraph",
          .fontSize = 10};
}

Design graphText(int index) {
  return {.kind = K::Label,
          .name = "lblFx",
          .index = index,
          .left = 6840,
          .top = 120 + index * 540,
          .width = 3480,
          .height = 480,
          .container = "picGraph",
          .visible = false};
}

Design line(const char* name, double x1, double y1, double x2, double y2, bool visible) {
  return {.kind = K::Line,
          .name = name,
          .container = "picGraph",
          .visible = visible,
          .foreColor = 0,
          .x1 = x1,
          .y1 = y1,
          .x2 = x2,
          .y2 = y2};
}

Design graphLabel(const char* name, const char* caption, int left, int top, int width,
                  bool visible) {
  return {.kind = K::Label,
          .name = name,
          .caption = caption,
          .left = left,
          .top = top,
          .width = width,
          .height = 240,
          .container = "picGraph",
          .visible = visible};
}
}  // namespace

std::vector<Design> frmEqtns::designTable() {
  std::vector<Design> t = {
      {.kind = K::Frame,
       .name = "fmSelect",
       .caption = " Select  Equation ",
       .left = 120,
       .top = 120,
       .width = 3000,
       .height = 5880},
      option(1, "aX\u00b2 + bX + c = 0", " including  aX + b = 0 ", false, false),
      option(2, "aX\u00b3 + bX\u00b2 + cX + d = 0", "", false, true),
      option(3, "aX + bY = c", "", false, true),
      option(4, "aX + bY + cZ = d", "", false, true),
      option(5, "aX\u00b2 + bX + c = 0", " including  aX + b = 0 ", true, true),
      option(6, "aX\u00b3 + bX\u00b2 + cX + d = 0", "", true, false),
      option(7, "aX + bY = c", "", true, false),
      option(8, "aX + bY + cZ = d", "", true, false),
      {.kind = K::TextBox,
       .name = "txtCompex",
       .caption = "More complex equations : see the Vantor Calc",
       .left = 120,
       .top = 6120,
       .width = 3000,
       .height = 720,
       .fontSize = 9,
       .multiLine = true,
       .locked = true,
       .tabStop = false},
      {.kind = K::Frame,
       .name = "fmData",
       .caption = " Input  Coefficient / Constant  ",
       .left = 3240,
       .top = 120,
       .width = 7200,
       .height = 2280},
  };
  for (int i = 1; i <= 12; ++i) t.push_back(box(i));
  for (int i = 1; i <= 12; ++i) t.push_back(word(i));
  t.push_back(exponent(13, 0));
  t.push_back(exponent(14, 1));
  t.push_back({.kind = K::Frame,
               .name = "fmAns",
               .caption = " Answer  ",
               .left = 3240,
               .top = 2520,
               .width = 7200,
               .height = 3480});
  for (int i = 0; i <= 3; ++i) t.push_back(answerWord(i));
  for (int i = 0; i <= 3; ++i) t.push_back(answerRow(i));
  t.push_back(key("cmdCalc", "Solve", " Solve equation ", 3240));
  t.push_back(key("cmdDel", "Delete", " Delete inputted coefficient data ", 5100));
  t.push_back(key("cmdGraph", "Graph", " Show Graph ", 6960));
  t.push_back(key("cmdExit", "Exit", " Close Equations ", 8820));

  // The graph: picture units 0 to 6700 both ways, y downward; its texts and
  // keys stand in the strip on the right.
  t.push_back({.kind = K::PictureBox,
               .name = "picGraph",
               .left = 0,
               .top = 0,
               .width = 10560,
               .height = 7050,
               .visible = false,
               .backColor = kWhite});
  t.push_back(line("lineXX", 0, 3400, 6700, 3400, true));
  t.push_back(line("lineYY", 3400, 0, 3400, 6700, true));
  t.push_back(line("lineY1", 3400, 0, 3400, 6700, false));
  t.push_back(line("lineX1", 0, 3400, 6700, 3400, false));
  t.push_back(graphLabel("lblX", "x", 6560, 3280, 150, true));
  t.push_back(graphLabel("lblY", "y", 3280, 0, 150, true));
  t.push_back(graphLabel("lblY1", "", 3300, 6740, 1500, false));
  t.push_back(graphLabel("lblX1", "", 40, 3200, 1500, false));
  t.push_back(graphLabel("lblZZ", "", 6840, 2340, 3480, false));
  for (int i = 0; i <= 3; ++i) t.push_back(graphText(i));
  t.push_back(graphKey("cmdZoom", 0, "Zoom +", 7080, 3000, 1500, 480));
  t.push_back(graphKey("cmdZoom", 1, "Zoom -", 8760, 3000, 1500, 480));
  t.push_back(graphKey("cmdZoom", 2, "\u2191", 8340, 3660, 600, 420));
  t.push_back(graphKey("cmdZoom", 3, "\u2192", 8940, 4140, 600, 420));
  t.push_back(graphKey("cmdZoom", 4, "\u2193", 8340, 4620, 600, 420));
  t.push_back(graphKey("cmdZoom", 5, "\u2190", 7740, 4140, 600, 420));
  t.push_back(graphKey("cmdPrint", -1, "Print", 7080, 5640, 1500, 540));
  t.push_back(graphKey("cmdReturn", -1, "Return", 8760, 5640, 1500, 540));
  return t;
}

}  // namespace tessaron

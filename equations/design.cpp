// The equation form's controls: the choice of equation on the left, the
// coefficient boxes in rows of four, the answers, the keys, and the graph
// that opens over all of them.
#include "equations/eqtns.h"
#include "surface/design_rows.h"

namespace tessaron {

namespace {
using K = ControlKind;

constexpr int kBoxWidth = 1140, kBoxStep = 1740, kRowStep = 600, kRowTop = 480;
constexpr long kWhite = 0xFFFFFF;

// Font size 0 is the form's own; what is hidden waits for an equation or the
// graph to show it.
Design styled(Design d, double font, bool visible = true) {
  d.fontSize = font;
  d.visible = visible;
  return d;
}

Design option(int index, const char* caption, const char* tip, bool twin, bool visible) {
  const int row = (index - 1) % 4;
  Design d = styled(Row(K::OptionButton, "optEqn", index, caption, tip, 120, 420 + row * 1320, 2760,
                        1080, "fmSelect"),
                    10, visible);
  d.fontBold = twin;
  d.checked = twin && visible;
  return d;
}

// Only the first row of coefficients shows until an equation asks for more.
Design box(int index) {
  const int col = (index - 1) % 4, row = (index - 1) / 4;
  Design d = Row(K::TextBox, "txtBBB", index, "", "", 120 + col * kBoxStep,
                 kRowTop + row * kRowStep, kBoxWidth, 420, "fmData");
  d.alignment = Align::Right;
  return styled(d, 10, index <= 3);
}

Design word(int index) {
  const int col = (index - 1) % 4, row = (index - 1) / 4;
  return styled(Row(K::Label, "lblCCC", index, "", "", 120 + col * kBoxStep + kBoxWidth + 20,
                    kRowTop + row * kRowStep + 90, kBoxStep - kBoxWidth - 30, 300, "fmData"),
                9, index <= 3);
}

// The exponents stand raised just after the X of the first and second words.
Design exponent(int index, int col) {
  return styled(Row(K::Label, "lblCCC", index, "", "", 120 + col * kBoxStep + kBoxWidth + 150,
                    kRowTop - 40, 150, 240, "fmData"),
                8, index == 13);
}

Design answer(int index) {
  Design d = Row(K::Label, "lblAns", index, "", "", 900, 420 + index * 720, 6180, 480, "fmAns");
  d.backColor = kWhite;
  return styled(d, 12);
}

Design answerWord(int index) {
  return styled(Row(K::Label, "lblABS", index, "", "", 120, 480 + index * 720, 740, 360, "fmAns"),
                11);
}

// The equations' own words, read but not typed over.
Design notice(const char* caption, int left, int top, int width, int height) {
  Design d = styled(Row(K::TextBox, "txtCompex", -1, caption, "", left, top, width, height), 9);
  d.multiLine = d.locked = true;
  d.tabStop = false;
  return d;
}

Design key(const char* name, const char* caption, const char* tip, int left) {
  return styled(Row(K::CommandButton, name, -1, caption, tip, left, 6180, 1620, 660), 10);
}

Design graph(int left, int top, int width, int height) {
  Design d = Row(K::PictureBox, "picGraph", -1, "", "", left, top, width, height);
  d.backColor = kWhite;
  return styled(d, 0, false);
}

Design graphKey(const char* name, int index, const char* caption, int left, int top, int width,
                int height) {
  return styled(Row(K::CommandButton, name, index, caption, " Return to front ", left, top, width,
                    height, "picGraph"),
                10);
}

Design graphText(int index) {
  return styled(
      Row(K::Label, "lblFx", index, "", "", 6840, 120 + index * 540, 3480, 480, "picGraph"), 0,
      false);
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
  return styled(Row(K::Label, name, -1, caption, "", left, top, width, 240, "picGraph"), 0,
                visible);
}
}  // namespace

std::vector<Design> frmEqtns::designTable() {
  std::vector<Design> t;
  t.push_back(Row(K::Frame, "fmSelect", -1, " Select  Equation ", "", 120, 120, 3000, 5880));
  t.push_back(option(1, "aX\u00b2 + bX + c = 0", " including  aX + b = 0 ", false, false));
  t.push_back(option(2, "aX\u00b3 + bX\u00b2 + cX + d = 0", "", false, true));
  t.push_back(option(3, "aX + bY = c", "", false, true));
  t.push_back(option(4, "aX + bY + cZ = d", "", false, true));
  t.push_back(option(5, "aX\u00b2 + bX + c = 0", " including  aX + b = 0 ", true, true));
  t.push_back(option(6, "aX\u00b3 + bX\u00b2 + cX + d = 0", "", true, false));
  t.push_back(option(7, "aX + bY = c", "", true, false));
  t.push_back(option(8, "aX + bY + cZ = d", "", true, false));
  t.push_back(notice("More complex equations : see the Vantor Calc", 120, 6120, 3000, 720));

  t.push_back(
      Row(K::Frame, "fmData", -1, " Input  Coefficient / Constant  ", "", 3240, 120, 7200, 2280));
  for (int i = 1; i <= 12; ++i) t.push_back(box(i));
  for (int i = 1; i <= 12; ++i) t.push_back(word(i));
  t.push_back(exponent(13, 0));
  t.push_back(exponent(14, 1));

  t.push_back(Row(K::Frame, "fmAns", -1, " Answer  ", "", 3240, 2520, 7200, 3480));
  for (int i = 0; i <= 3; ++i) t.push_back(answerWord(i));
  for (int i = 0; i <= 3; ++i) t.push_back(answer(i));
  t.push_back(key("cmdCalc", "Solve", " Solve equation ", 3240));
  t.push_back(key("cmdDel", "Delete", " Delete inputted coefficient data ", 5100));
  t.push_back(key("cmdGraph", "Graph", " Show Graph ", 6960));
  t.push_back(key("cmdExit", "Exit", " Close Equations ", 8820));

  // The graph: picture units 0 to 6700 both ways, y downward; its texts and
  // keys stand in the strip on the right.
  t.push_back(graph(0, 0, 10560, 7050));
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

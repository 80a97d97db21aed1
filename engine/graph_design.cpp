// The graph's picture and its keys. The picture takes the whole face of the
// calculator; its units are twips, so the curve's numbers (x 200 to 10000,
// y 0 to 5130) are the picture's own, and its keys stand in a strip on its
// right, beyond the reach of the curve.
#include "engine/graph_design.h"

#include "surface/design_rows.h"

namespace tessaron {

namespace {
using K = ControlKind;
constexpr const char* kPic = "picGraph";
constexpr long kOrange = 0x007FFF;  // Rgb(255, 127, 0)
constexpr int kStripX = 10200, kStripW = 1140, kKeyH = 420, kPitch = 470;

Design strip(const char* name, const char* caption, const char* tip, int row, double font = 10) {
  Design d = Row(K::CommandButton, name, -1, caption, tip, kStripX, 420 + row * kPitch, kStripW,
                 kKeyH, kPic);
  d.fontSize = font;
  return d;
}

Design mark(const char* name, double x1, double y1, double x2, double y2, long colour,
            bool visible = false) {
  return {.kind = K::Line,
          .name = name,
          .container = kPic,
          .visible = visible,
          .foreColor = colour,
          .x1 = x1,
          .y1 = y1,
          .x2 = x2,
          .y2 = y2};
}

Design label(const char* name, const char* caption, int left, int top, int width, int height,
             double font = 10, bool visible = true) {
  Design d = Row(K::Label, name, -1, caption, "", left, top, width, height, kPic);
  d.fontSize = font;
  // Clear of the picture, so that no part of the curve hides behind a label.
  d.visible = visible;
  return d;
}
}  // namespace

void graphDesign(std::vector<Design>& t) {
  t.push_back({.kind = K::PictureBox,
               .name = "picGraph",
               .left = 60,
               .top = 60,
               .width = 11400,
               .height = 5400,
               .visible = false,
               .backColor = 0xFFFFFF});
  // The axes: the T axis at y 3000 always, the Y axis moved to the origin.
  t.push_back(mark("lineXX", 0, 3000, 10100, 3000, 0, true));
  t.push_back(mark("lineYY", 5000, 0, 5000, 5400, 0, true));
  // The square of one (or ten) units round the origin, or the demos' box.
  t.push_back(mark("line11", 0, 0, 0, 0, kOrange));
  t.push_back(mark("line12", 0, 0, 0, 0, kOrange));
  t.push_back(mark("line13", 0, 0, 0, 0, kOrange));
  t.push_back(mark("line14", 0, 0, 0, 0, kOrange));
  // The edge between the drawing and the key strip, as the printout frames it.
  t.push_back(mark("linePrint", 10140, 0, 10140, 5400, 0xC0C0C0, true));
  t.push_back(label("lblEqX", "", 120, 40, 9900, 330, 12));
  t.push_back(label("lblModeMax", "", 120, 400, 4000, 300, 11, false));
  t.push_back(label("lblX", "T", 9900, 3040, 200, 270, 10));
  t.push_back(label("lblY", "Y", 5060, 420, 200, 270, 10));
  t.push_back(label("lblSq", "1,1", 5960, 1740, 700, 270, 9, false));
  t.push_back(label("lblPi2", "Pi/2", 600, 1400, 500, 270, 9, false));
  t.back().foreColor = kOrange;
  t.push_back(label("lblDemoNbr", "", kStripX, 60, kStripW, 300, 9));
  t.push_back(strip("cmdYaxLeft", "<", " Move Graph Left ", 0, 12));
  t.back().width = kStripW / 2 - 30;
  t.push_back(strip("cmdYaxRite", ">", " Move Graph Right ", 0, 12));
  t.back().left = kStripX + kStripW / 2 + 30;
  t.back().width = kStripW / 2 - 30;
  t.push_back(strip("cmdZoomPlus", "Zoom +", " Zoom In ", 1));
  t.push_back(strip("cmdZoomMinus", "Zoom -", " Zoom Out ", 2));
  t.push_back(strip("cmdGraPrint", "Print", " Print Graph ", 3));
  t.push_back(strip("cmdExitGraph", "Exit Graph", " Exit Graph and Return to Calculator ", 4, 9));
  // The gallery's keys, shown while a demo is up.
  Design head = Row(K::TextBox, "txtAAA", -1, "Demos", "", kStripX, 420 + 5 * kPitch + 120, kStripW,
                    330, kPic);
  head.locked = true;
  head.tabStop = false;
  head.visible = false;
  head.fontSize = 9;
  head.alignment = Align::Center;
  t.push_back(head);
  t.push_back(strip("cmdGoNext", "Next", " Go to Next Demo ", 6, 10));
  t.back().top += 110;
  t.back().visible = false;
  t.push_back(strip("cmdPrior", "Prior", " Go to Prior Demo ", 7, 10));
  t.back().top += 110;
  t.back().visible = false;
  t.push_back(strip("cmdGoDemo", "Go Demo", " Go to Demo of Graph ", 8, 8));
  t.back().top += 110;
  t.back().visible = false;
}

}  // namespace tessaron

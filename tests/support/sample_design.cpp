#include "tests/support/sample_form.h"

namespace tessaron {

namespace {
using K = ControlKind;

Design button(std::string name, int index, std::string caption, int left, int top) {
  return {.kind = K::CommandButton,
          .name = std::move(name),
          .index = index,
          .caption = std::move(caption),
          .left = left,
          .top = top,
          .width = 1095,
          .height = 375};
}
}  // namespace

std::vector<Design> frmSample::table() {
  std::vector<Design> t = {
      {.kind = K::Label, .name = "lblLog", .left = 120, .top = 120, .width = 8655, .height = 255},
      {.kind = K::Label,
       .name = "lblAnswer",
       .tip = "The last answer",
       .left = 120,
       .top = 420,
       .width = 4000,
       .height = 255},
      {.kind = K::TextBox,
       .name = "txtA",
       .caption = "abc",
       .tip = "Letters become capitals",
       .left = 120,
       .top = 720,
       .width = 1935,
       .height = 315},
      {.kind = K::TextBox, .name = "txtB", .left = 2160, .top = 720, .width = 1935, .height = 315},
  };
  t.push_back(button("cmdGo", -1, "Go", 120, 1140));
  t.back().tip = "Counts the clicks";
  t.push_back(button("cmdMsg", 0, "Warn", 1320, 1140));
  t.push_back(button("cmdMsg", 1, "Info", 2520, 1140));
  t.push_back(button("cmdMsg", 2, "Ask", 3720, 1140));
  t.push_back(button("cmdInput", -1, "Input", 4920, 1140));
  t.push_back(button("cmdBeep", -1, "Beep", 6120, 1140));
  t.push_back(button("cmdPrint", -1, "Print", 7320, 1140));
  t.push_back(button("cmdCopy", -1, "Copy", 120, 1620));
  t.push_back(button("cmdPaste", -1, "Paste", 1320, 1620));
  t.push_back(button("cmdHidden", -1, "Hidden", 2520, 1620));
  t.back().visible = false;
  t.push_back(button("cmdOff", -1, "Off", 3720, 1620));
  t.back().enabled = false;
  t.push_back(button("cmdFocusHidden", -1, "Hide focus", 4920, 1620));
  t.push_back(button("cmdFocusB", -1, "Focus B", 6120, 1620));
  t.push_back(button("cmdGridBad", -1, "Bad cell", 7320, 1620));
  t.push_back(button("cmdOverflow", -1, "Overflow", 120, 2100));
  t.push_back(button("cmdSetRate", -1, "Rate 50", 1320, 2100));
  t.push_back(button("cmdSetOpt", -1, "Choose 1", 2520, 2100));
  t.push_back(button("cmdDraw", -1, "Draw", 3720, 2100));
  t.push_back(button("cmdCode", -1, "Code", 4920, 2100));
  t.push_back(button("cmdToggle", -1, "Toggle", 6120, 2100));
  t.push_back(button("cmdExit", -1, "Exit", 7320, 2100));
  t.push_back(button("cmdFar", -1, "Far", 6480, 4680));
  t.push_back(button("cmdPages", -1, "Pages", 6480, 5160));
  t.push_back({.kind = K::Frame,
               .name = "fraChoice",
               .caption = "Choice",
               .left = 120,
               .top = 2580,
               .width = 2055,
               .height = 1215});
  const char* choices[] = {"One", "Two", "Three"};
  for (int i = 0; i < 3; ++i)
    t.push_back({.kind = K::OptionButton,
                 .name = "optA",
                 .index = i,
                 .caption = choices[i],
                 .left = 120,
                 .top = 240 + 300 * i,
                 .width = 1800,
                 .height = 255,
                 .container = "fraChoice",
                 .checked = i == 0});
  for (int i = 0; i < 2; ++i)
    t.push_back({.kind = K::OptionButton,
                 .name = "optB",
                 .index = i,
                 .caption = i == 0 ? "Left" : "Right",
                 .left = 2280,
                 .top = 2640 + 300 * i,
                 .width = 1200,
                 .height = 255});
  t.push_back({.kind = K::CheckBox,
               .name = "chkFlag",
               .caption = "Flag",
               .left = 2280,
               .top = 3240,
               .width = 1200,
               .height = 255});
  t.push_back({.kind = K::HScrollBar,
               .name = "hsbRate",
               .left = 3600,
               .top = 2640,
               .width = 2400,
               .height = 255,
               .min = 0,
               .max = 100,
               .smallChange = 1,
               .largeChange = 10,
               .value = 20});
  t.push_back({.kind = K::VScrollBar,
               .name = "vsbLevel",
               .left = 6120,
               .top = 2640,
               .width = 255,
               .height = 1215,
               .min = 0,
               .max = 10});
  t.push_back({.kind = K::Image,
               .name = "imgLogo",
               .tip = "The logo",
               .left = 6480,
               .top = 2640,
               .width = 960,
               .height = 960});
  t.push_back({.kind = K::Timer, .name = "tmrTick", .interval = 1000});
  t.push_back({.kind = K::Line,
               .name = "linRule",
               .foreColor = 0x808080,
               .x1 = 120,
               .y1 = 3960,
               .x2 = 8760,
               .y2 = 3960});
  t.push_back({.kind = K::PictureBox,
               .name = "picDraw",
               .left = 120,
               .top = 4080,
               .width = 3000,
               .height = 1800,
               .backColor = 0xFFFFFF});
  t.push_back({.kind = K::FlexGrid,
               .name = "grdTable",
               .left = 3240,
               .top = 4080,
               .width = 3000,
               .height = 1200,
               .rows = 4,
               .cols = 3,
               .fixedRows = 1,
               .fixedCols = 1});
  t.push_back({.kind = K::OlePackage,
               .name = "olePage",
               .left = 6480,
               .top = 4080,
               .width = 1200,
               .height = 480});
  return t;
}

frmSample::frmSample(Application& app)
    : Form(app, "frmSample", {.caption = "Sample", .width = 9000, .height = 6600}, table()) {
  keyRoutes();
  buttonRoutes();
  choiceRoutes();
}

void registerSample(Application& app) {
  app.registerForm("frmSample", [](Application& a) { return std::make_unique<frmSample>(a); });
}

}  // namespace tessaron

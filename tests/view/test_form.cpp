#include "tests/view/test_form.h"

namespace tessaron::viewtest {

namespace {
std::vector<Design> table() {
  using K = ControlKind;
  return {
      {.kind = K::Label,
       .name = "lblTitle",
       .caption = "Hello 안녕하세요",
       .tip = " A label ",
       .left = 120,
       .top = 120,
       .width = 3000,
       .height = 300},
      {.kind = K::TextBox,
       .name = "txtName",
       .caption = "start",
       .left = 120,
       .top = 480,
       .width = 2400,
       .height = 315},
      {.kind = K::CommandButton,
       .name = "cmdOK",
       .caption = "OK",
       .tip = " Press it ",
       .left = 2700,
       .top = 480,
       .width = 975,
       .height = 375},
      {.kind = K::Frame,
       .name = "fraChoice",
       .caption = "Choice",
       .left = 120,
       .top = 960,
       .width = 2400,
       .height = 1080},
      {.kind = K::OptionButton,
       .name = "optA",
       .caption = "First",
       .left = 150,
       .top = 300,
       .width = 1500,
       .height = 255,
       .container = "fraChoice",
       .checked = true},
      {.kind = K::OptionButton,
       .name = "optB",
       .caption = "Second",
       .left = 150,
       .top = 630,
       .width = 1500,
       .height = 255,
       .container = "fraChoice"},
      {.kind = K::CheckBox,
       .name = "chkOn",
       .caption = "On",
       .left = 2700,
       .top = 960,
       .width = 1200,
       .height = 255},
      {.kind = K::HScrollBar,
       .name = "hsbValue",
       .left = 120,
       .top = 2160,
       .width = 2400,
       .height = 255,
       .min = 0,
       .max = 100,
       .smallChange = 1,
       .largeChange = 10},
      {.kind = K::VScrollBar,
       .name = "vsbValue",
       .left = 6600,
       .top = 120,
       .width = 255,
       .height = 1800,
       .min = 10,
       .max = 0,
       .value = 5},
      {.kind = K::Image,
       .name = "imgLogo",
       .left = 4200,
       .top = 120,
       .width = 600,
       .height = 600,
       .picture = "no-such-picture"},
      {.kind = K::Timer, .name = "tmrTick", .interval = 1000},
      {.kind = K::Line,
       .name = "linRule",
       .foreColor = 0x0000FF,
       .x1 = 120,
       .y1 = 2520,
       .x2 = 6800,
       .y2 = 2520,
       .borderWidth = 2},
      {.kind = K::PictureBox,
       .name = "picGraph",
       .left = 3900,
       .top = 2640,
       .width = 3000,
       .height = 1800},
      {.kind = K::FlexGrid,
       .name = "grdTable",
       .left = 120,
       .top = 2640,
       .width = 3600,
       .height = 1200,
       .rows = 4,
       .cols = 3},
      {.kind = K::OlePackage,
       .name = "oleHelp",
       .left = 4200,
       .top = 960,
       .width = 480,
       .height = 480,
       .picture = ":/help/CalcHelp.html"},
  };
}
}  // namespace

TestForm::TestForm(Application& app)
    : Form(app, "frmTest", {.caption = "View test", .width = kFormWidth, .height = kFormHeight},
           table()) {
  on("cmdOK", Event::Click, [this](EventArgs&) {
    ++clicks;
    control("lblTitle").Caption = "Clicked " + std::to_string(clicks);
    events.push_back("cmdOK.Click");
  });
  on("hsbValue", Event::Change, [this](EventArgs&) {
    ++changes;
    events.push_back("hsbValue.Change");
  });
  on("txtName", Event::KeyPress, [this](EventArgs& a) {
    // Lower case letters are typed as capitals; digits are dropped.
    if (a.KeyAscii >= 'a' && a.KeyAscii <= 'z') a.KeyAscii -= 32;
    if (a.KeyAscii >= '0' && a.KeyAscii <= '9') a.KeyAscii = 0;
  });
  on("txtName", Event::GotFocus, [this](EventArgs&) { events.push_back("txtName.GotFocus"); });
  on("txtName", Event::LostFocus, [this](EventArgs&) { events.push_back("txtName.LostFocus"); });
  on("tmrTick", Event::Timer, [this](EventArgs&) {
    ++ticks;
    events.push_back("tmrTick.Timer");
  });
  on("grdTable", Event::Click, [this](EventArgs&) {
    const Grid& g = control("grdTable").grid();
    events.push_back("grdTable.Click " + std::to_string(g.Row()) + "," + std::to_string(g.Col()));
  });
  on("imgLogo", Event::Click, [this](EventArgs&) { events.push_back("imgLogo.Click"); });
  on("Form", Event::KeyDown,
     [this](EventArgs& a) { events.push_back("Form.KeyDown " + std::to_string(a.KeyCode)); });
}

void TestForm::Load() {
  Canvas& pic = control("picGraph").picture();
  pic.Scale(0, 100, 100, 0);
  pic.DrawWidth = 2;
  pic.Line(0, 0, 100, 100, 0x0000FF);
  pic.Circle(50, 50, 20, 0xFF0000);
  pic.Box(10, 90, 30, 70, 0x00A000, true);
  Grid& g = control("grdTable").grid();
  g.setTextMatrix(0, 1, "Name");
  g.setTextMatrix(0, 2, "Value");
  g.setTextMatrix(1, 1, "Rate");
  g.setTextMatrix(1, 2, "7.25");
  g.setColWidth(0, 300);
}

}  // namespace tessaron::viewtest

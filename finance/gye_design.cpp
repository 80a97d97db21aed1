#include "finance/gye.h"

namespace tessaron {

namespace {

using K = ControlKind;

// The numbers stand in two columns of twelve, each with what it pays.
int RowLeft(int i) { return i <= 12 ? 4680 : 7020; }
int RowTop(int i) { return 1080 + ((i - 1) % 12) * 345; }

// The three conditions stand one under another in the input frame, each a
// caption and its box.
int InputTop(int i) { return 360 + (i - 1) * 540; }
Design InputLabel(int i, const char* caption) {
  return {.kind = K::Label,
          .name = "lblBBB",
          .index = i,
          .caption = caption,
          .left = 120,
          .top = InputTop(i) + 60,
          .width = 1455,
          .height = 285,
          .container = "fraData"};
}
Design InputBox(int i) {
  return {.kind = K::TextBox,
          .name = "txtBBB",
          .index = i,
          .left = 1620,
          .top = InputTop(i),
          .width = 2055,
          .height = 375,
          .container = "fraData",
          .fontSize = 12,
          .alignment = Align::Right};
}

}  // namespace

std::vector<Design> GyeDesign() {
  std::vector<Design> d = {
      // The inputs.
      {.kind = K::Frame,
       .name = "fraData",
       .caption = "Input Condition  ",
       .left = 120,
       .top = 60,
       .width = 4335,
       .height = 2175},
      InputLabel(1, "Amount  "),
      InputBox(1),
      InputLabel(2, "Total Number"),
      InputBox(2),
      InputLabel(3, "Annual P. Rate "),
      InputBox(3),
      {.kind = K::Label,
       .name = "Label1",
       .caption = "% ",
       .left = 3720,
       .top = 1500,
       .width = 495,
       .height = 285,
       .container = "fraData"},
      // Only a stop on the way from the rate to the key.
      {.kind = K::TextBox,
       .name = "txtBBB",
       .index = 4,
       .left = 3720,
       .top = 1860,
       .width = 15,
       .height = 15,
       .container = "fraData"},
      // The three conditions.
      {.kind = K::Frame,
       .name = "fraCondi",
       .caption = " Note ",
       .left = 120,
       .top = 2355,
       .width = 4335,
       .height = 1455},
      {.kind = K::Label,
       .name = "lblCondi",
       .index = 1,
       .left = 120,
       .top = 300,
       .width = 4095,
       .height = 285,
       .container = "fraCondi"},
      {.kind = K::Label,
       .name = "lblCondi",
       .index = 2,
       .left = 120,
       .top = 660,
       .width = 4095,
       .height = 285,
       .container = "fraCondi"},
      {.kind = K::Label,
       .name = "lblCondi",
       .index = 3,
       .left = 120,
       .top = 1020,
       .width = 4095,
       .height = 285,
       .container = "fraCondi"},
      // The keys.
      {.kind = K::CommandButton,
       .name = "cmdCalc",
       .caption = "Calculate ",
       .left = 120,
       .top = 3960,
       .width = 2115,
       .height = 615},
      {.kind = K::CommandButton,
       .name = "cmdDelete",
       .caption = "Clear",
       .left = 2340,
       .top = 3960,
       .width = 2115,
       .height = 615},
      {.kind = K::CommandButton,
       .name = "cmdPrint",
       .caption = "Print",
       .left = 120,
       .top = 4680,
       .width = 2115,
       .height = 615},
      {.kind = K::CommandButton,
       .name = "cmdExit",
       .caption = "Exit",
       .left = 2340,
       .top = 4680,
       .width = 2115,
       .height = 615},
      // The results.
      {.kind = K::Label,
       .name = "lblBBB",
       .index = 4,
       .caption = "Total Payment",
       .left = 4680,
       .top = 180,
       .width = 1935,
       .height = 285},
      {.kind = K::TextBox,
       .name = "txtMonth",
       .index = 0,
       .left = 4680,
       .top = 120,
       .width = 15,
       .height = 15,
       .visible = false,
       .locked = true,
       .tabStop = false},
      {.kind = K::Label,
       .name = "lblAAA",
       .index = 0,
       .left = 6660,
       .top = 120,
       .width = 2175,
       .height = 345,
       .fontSize = 12,
       .alignment = Align::Right},
      {.kind = K::Label,
       .name = "lblBBB",
       .index = 5,
       .caption = "Each Proportinal Payment",
       .left = 4680,
       .top = 660,
       .width = 4215,
       .height = 285},
  };
  for (int i = 1; i <= 24; ++i) {
    std::string number = std::to_string(i);
    if (i < 10) number.insert(number.begin(), ' ');
    d.push_back({.kind = K::TextBox,
                 .name = "txtMonth",
                 .index = i,
                 .caption = number,
                 .left = RowLeft(i),
                 .top = RowTop(i),
                 .width = 495,
                 .height = 315,
                 .visible = false,
                 .alignment = Align::Right,
                 .locked = true,
                 .tabStop = false});
    d.push_back({.kind = K::Label,
                 .name = "lblAAA",
                 .index = i,
                 .left = RowLeft(i) + 540,
                 .top = RowTop(i) + 30,
                 .width = 1395,
                 .height = 285,
                 .alignment = Align::Right});
  }
  return d;
}

}  // namespace tessaron

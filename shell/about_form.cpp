#include "shell/about_form.h"

#include "surface/application.h"

namespace tessaron {

namespace {
using K = ControlKind;

std::vector<Design> designTable() {
  return {
      {.kind = K::Image,
       .name = "imgMe",
       .left = 240,
       .top = 240,
       .width = 1200,
       .height = 1200,
       .picture = "me"},
      {.kind = K::Label,
       .name = "Label1",
       .left = 1680,
       .top = 240,
       .width = 4680,
       .height = 840,
       .fontSize = 9},
      {.kind = K::Label, .name = "Label2", .left = 1680, .top = 1200, .width = 4680, .height = 600},
      {.kind = K::Label, .name = "Label3", .left = 240, .top = 1980, .width = 6120, .height = 600},
      {.kind = K::CommandButton,
       .name = "cmdOK",
       .caption = "OK",
       .left = 5280,
       .top = 2760,
       .width = 1080,
       .height = 420},
  };
}
}  // namespace

frmAbout::frmAbout(Application& app)
    : Form(app, "frmAbout",
           {.caption = "  About  Tessaron", .width = 6600, .height = 3720, .escapeCloses = true},
           designTable()) {
  // Stands in line with the normal menu, below it.
  Left = 5910;
  on("cmdOK", Event::Click, [this](EventArgs&) { Unload(); });
}

void frmAbout::Load() {
  Top = app().form("frmMain").Height + 1080;
  control("Label1").Caption =
      "Tessaron  V 7.3\r\nCalculators, charts, equations, statistics, units and finance in "
      "one small suite.";
  control("Label2").Caption = "Developed for Any Person with Happy Smiles. \r\n1999. 10.";
  control("Label3").Caption =
      "This program is given as it is, without warranty of any kind.\r\n"
      "Check every figure that matters before you rely on it.";
}

}  // namespace tessaron

// The graph's keys on the calculator's face.
#include "calc/ovicalc.h"

namespace tessaron {

void OviCalc::graphRoutes() {
  auto click = [this](std::string_view name, void (OviCalc::*routine)()) {
    on(name, Event::Click, [this, routine](EventArgs&) { (this->*routine)(); });
  };
  click("cmdGraph", &OviCalc::cmdGraphClick);
  click("cmdExitGraph", &OviCalc::cmdExitGraph);
  click("cmdYaxLeft", &OviCalc::cmdYaxLeft);
  click("cmdYaxRite", &OviCalc::cmdYaxRite);
  click("cmdZoomPlus", &OviCalc::cmdZoomPlus);
  click("cmdZoomMinus", &OviCalc::cmdZoomMinus);
  click("cmdGraPrint", &OviCalc::cmdGraPrint);
  click("cmdGoNext", &OviCalc::cmdGoNext);
  click("cmdPrior", &OviCalc::cmdPrior);
  click("cmdGoDemo", &OviCalc::cmdGoDemo);
  cmdGraph->ToolTipText = " Graph of f(T) or Demonstrate Functions ";
}

}  // namespace tessaron

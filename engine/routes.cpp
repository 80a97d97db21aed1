// The function engine's keys on the calculator's face.
#include "calc/ovicalc.h"

namespace tessaron {

void OviCalc::engineRoutes() {
  auto click = [this](std::string_view name, void (OviCalc::*routine)()) {
    on(name, Event::Click, [this, routine](EventArgs&) { (this->*routine)(); });
  };
  click("cmdT", &OviCalc::cmdT);
  click("cmdTeqn", &OviCalc::cmdTeqn);
  click("cmdTform", &OviCalc::cmdTform);
  click("cmdTvalue", &OviCalc::cmdTvalue);
  click("cmdTsolve", &OviCalc::cmdTsolve);
  click("cmdTcalcu", &OviCalc::cmdTcalcu);
  click("cmdGoCalc", &OviCalc::cmdGoCalc);
  click("cmdCopy", &OviCalc::cmdCopy);
  click("cmdPaste", &OviCalc::cmdPaste);
  click("cmdPasteX", &OviCalc::cmdPasteX);
  click("cmdPrint", &OviCalc::cmdPrint);
  cmdTsolveC = &control("cmdTsolve");
  cmdTcalcuC = &control("cmdTcalcu");
  cmdTeqnC = &control("cmdTeqn");
  cmdAssist = &control("cmdAssist");
  cmdPrintC = &control("cmdPrint");
  cmdCopyC = &control("cmdCopy");
  cmdPasteXC = &control("cmdPasteX");
  cmdGoCalcC = &control("cmdGoCalc");
  txtCopy = &control("txtCopy");
  graphRoutes();
  assistRoutes();
}

}  // namespace tessaron

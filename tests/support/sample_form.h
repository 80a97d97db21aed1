#pragma once
// frmSample: a form with one control of every kind, whose routines lean on
// each rule of the form surface. The driver's own scripts and the model's
// tests play against it; no product form uses it.
#include <string>
#include <vector>

#include "surface/application.h"
#include "surface/form.h"

namespace tessaron {

class frmSample : public Form {
 public:
  explicit frmSample(Application& app);
  void Load() override;

  static std::vector<Design> table();

 private:
  void log(const std::string& what);
  void keyRoutes();
  void buttonRoutes();
  void choiceRoutes();
  void PubPrint();
  void PubDraw();
  void PubCode();
  void PubFar();
  void PubPages();

  Control& lblLog = control("lblLog");
  Control& lblAnswer = control("lblAnswer");
  Control& txtA = control("txtA");
  Control& txtB = control("txtB");
  Control& cmdGo = control("cmdGo");
  Control& cmdHidden = control("cmdHidden");
  Control& cmdOff = control("cmdOff");
  Control& fraChoice = control("fraChoice");
  Control& hsbRate = control("hsbRate");
  Control& vsbLevel = control("vsbLevel");
  Control& imgLogo = control("imgLogo");
  Control& tmrTick = control("tmrTick");
  Control& linRule = control("linRule");
  Control& picDraw = control("picDraw");
  Control& grdTable = control("grdTable");
  Control& olePage = control("olePage");
  ControlArray optA = array("optA");

  // Form-level values: Empty again after an Unload.
  Value clicks_;
  Value ticks_;
};

// Registers frmSample under its name.
void registerSample(Application& app);

}  // namespace tessaron

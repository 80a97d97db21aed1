#include "suite/suite.h"

#include "calc/ovicalc.h"
#include "equations/eqtns.h"
#include "finance/loan.h"
#include "shell/about_form.h"
#include "shell/main_form.h"
#include "surface/application.h"

namespace tessaron {

void registerSuite(Application& app) {
  app.registerForm("frmMain", [](Application& a) { return std::make_unique<frmMain>(a); });
  app.registerForm("frmLoan", [](Application& a) { return std::make_unique<frmLoan>(a); });
  app.registerForm("frmAbout", [](Application& a) { return std::make_unique<frmAbout>(a); });
  app.registerForm("OviCalc", [](Application& a) { return std::make_unique<OviCalc>(a); });
  app.registerForm("frmEqtns", [](Application& a) { return std::make_unique<frmEqtns>(a); });
}

}  // namespace tessaron

#include "suite/suite.h"

#include "calc/ovicalc.h"
#include "chart/ovisum.h"
#include "equations/eqtns.h"
#include "finance/annuity.h"
#include "finance/auto.h"
#include "finance/bond.h"
#include "finance/gye.h"
#include "finance/loan.h"
#include "finance/present.h"
#include "shell/about_form.h"
#include "shell/main_form.h"
#include "statistics/statistics.h"
#include "surface/application.h"
#include "units/conver.h"

namespace tessaron {

void registerSuite(Application& app) {
  app.registerForm("frmMain", [](Application& a) { return std::make_unique<frmMain>(a); });
  app.registerForm("frmLoan", [](Application& a) { return std::make_unique<frmLoan>(a); });
  app.registerForm("frmPresent", [](Application& a) { return std::make_unique<frmPresent>(a); });
  app.registerForm("frmBond", [](Application& a) { return std::make_unique<frmBond>(a); });
  app.registerForm("frmGye", [](Application& a) { return std::make_unique<frmGye>(a); });
  app.registerForm("frmAuto", [](Application& a) { return std::make_unique<frmAuto>(a); });
  app.registerForm("frmAnnuity", [](Application& a) { return std::make_unique<frmAnnuity>(a); });
  app.registerForm("frmAbout", [](Application& a) { return std::make_unique<frmAbout>(a); });
  app.registerForm("OviCalc", [](Application& a) { return std::make_unique<OviCalc>(a); });
  app.registerForm("OviSum", [](Application& a) { return std::make_unique<OviSum>(a); });
  app.registerForm("frmConver", [](Application& a) { return std::make_unique<frmConver>(a); });
  app.registerForm("frmStatistics",
                   [](Application& a) { return std::make_unique<frmStatistics>(a); });
  app.registerForm("frmEqtns", [](Application& a) { return std::make_unique<frmEqtns>(a); });
}

}  // namespace tessaron

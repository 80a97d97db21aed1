#include "shell/main_form.h"

#include "surface/application.h"

namespace tessaron {

frmMain::frmMain(Application& app)
    : Form(app, "frmMain", {.caption = "  Tessaron    V 7.3 ", .width = 6570, .height = 3300},
           designTable()) {
  on("cmdMYCalc", Event::Click, [this](EventArgs&) { showForm("OviCalc"); });
  on("cmdSumm", Event::Click, [this](EventArgs&) { showForm("OviSum"); });
  on("cmdEquation", Event::Click, [this](EventArgs&) { showForm("frmEqtns"); });
  on("cmdStatis", Event::Click, [this](EventArgs&) { showForm("frmStatistics"); });
  on("cmdUnit1", Event::Click, [this](EventArgs&) { showForm("frmConver"); });
  on("cmdAbout", Event::Click, [this](EventArgs&) { showForm("frmAbout"); });
  on("cmdFinances", Event::Click, [this](EventArgs&) { cmdFinances_Click(); });
  on("cmdOrd", Event::Click, [this](EventArgs&) { cmdOrd_Click(); });
  on("cmdLease", Event::Click, [this](EventArgs&) { showForm("frmAuto"); });
  on("cmdInstall", Event::Click, [this](EventArgs&) { showForm("frmAnnuity"); });
  on("cmdPresent", Event::Click, [this](EventArgs&) { showForm("frmPresent"); });
  on("cmdBond", Event::Click, [this](EventArgs&) { showForm("frmBond"); });
  on("cmdGye", Event::Click, [this](EventArgs&) { showForm("frmGye"); });
  on("imgCalc", Event::Click, [this](EventArgs&) {
    showForm("OviCalc");
    imgExit_Click();
  });
  on("imgSum", Event::Click, [this](EventArgs&) {
    showForm("OviSum");
    imgExit_Click();
  });
  on("imgLeas", Event::Click, [this](EventArgs&) { imgLeas_Click(); });
  on("imgLoan", Event::Click, [this](EventArgs&) { imgLoan_Click(); });
  on("imgExit", Event::Click, [this](EventArgs&) { imgExit_Click(); });
  on("tmrTimer", Event::Timer, [this](EventArgs&) { tmrTimer_Timer(); });
}

const std::vector<frmMain::Opener>& frmMain::openers() {
  static const std::vector<Opener> table = {
      {"cmdMYCalc", "OviCalc"},       {"cmdSumm", "OviSum"},     {"cmdEquation", "frmEqtns"},
      {"cmdStatis", "frmStatistics"}, {"cmdUnit1", "frmConver"}, {"cmdAbout", "frmAbout"},
      {"cmdOrd", "frmLoan"},          {"cmdLease", "frmAuto"},   {"cmdInstall", "frmAnnuity"},
      {"cmdPresent", "frmPresent"},   {"cmdBond", "frmBond"},    {"cmdGye", "frmGye"},
  };
  return table;
}

// A calculator that is not part of this build yet opens nothing: the routines
// that also move or resize the menu still do the rest of their steps.
void frmMain::showForm(std::string_view name) {
  if (app().knows(name)) app().form(name).Show();
}

void frmMain::Load() {
  SmallLeft = Value(7605);
  BigLeft = Value(5910);
  SmallWidth = Value(1880);
  BigWidth = Value(6570);
  FinanceWidth = 8505;
  Top = 180;
  Left = static_cast<int>(BigLeft.number());
  Width = static_cast<int>(BigWidth.number());
  // A button whose calculator is not part of this build stays grey, its
  // tooltip still telling what it will open.
  for (const Opener& o : openers())
    if (!app().knows(o.form)) control(o.control).Enabled = false;
}

void frmMain::cmdFinances_Click() {
  Width = FinanceWidth;
  Control& finances = control("cmdFinances");
  finances.Enabled = false;
  finances.Visible = false;
}

void frmMain::cmdOrd_Click() {
  showForm("frmLoan");
  // Five twips short of the finance width, and kept that way.
  Width = 8500;
  Control& finances = control("cmdFinances");
  finances.Enabled = false;
  finances.Visible = false;
}

void frmMain::imgExit_Click() {
  ControlArray slides = array("imgDan");
  if (Width >= 5000) {
    Width = static_cast<int>(SmallWidth.number());
    Left = static_cast<int>(SmallLeft.number());
    control("cmdAbout").Visible = false;
    control("cmdUnit1").Visible = false;
    control("cmdSumm").Visible = false;
    Control& leas = control("imgLeas");
    leas.Left = 1200;
    leas.Top = 100;
    Control& loan = control("imgLoan");
    loan.Left = 1170;
    loan.Top = 550;
    control("imgExit").Left = 2400;
    for (int k = 0; k <= 10; ++k) slides(k).Left = 2400;
  } else {
    Left = static_cast<int>(BigLeft.number());
    Width = static_cast<int>(BigWidth.number());
    Control& finances = control("cmdFinances");
    finances.Enabled = true;
    finances.Visible = true;
    control("cmdAbout").Visible = true;
    control("cmdUnit1").Visible = true;
    control("cmdSumm").Visible = true;
    Control& leas = control("imgLeas");
    leas.Left = 8379;
    leas.Top = 330;
    Control& loan = control("imgLoan");
    loan.Left = 8379;
    loan.Top = 660;
    control("imgExit").Left = 12634;
    for (int k = 0; k <= 10; ++k) slides(k).Left = 12634;
  }
  IdleTicks = Value(100);
}

// From the strip these bring the menu back with the finance column open; from
// the normal menu they reduce it first, so the finance width then stands at
// the strip's place with the strip's positions. Both outcomes are intended.
void frmMain::imgLeas_Click() {
  showForm("frmAuto");
  imgExit_Click();
  cmdFinances_Click();
}

void frmMain::imgLoan_Click() {
  showForm("frmLoan");
  imgExit_Click();
  cmdFinances_Click();
}

void frmMain::tmrTimer_Timer() {
  ControlArray slides = array("imgDan");
  if (SlideIndex < Value(1) || SlideIndex > Value(10)) {
    SlideIndex = Value(0);
    slides(0).Visible = true;
    slides(10).Visible = false;
  } else {
    const int k = static_cast<int>(SlideIndex.number());
    slides(k).Visible = true;
    slides(k - 1).Visible = false;
  }
  SlideIndex = SlideIndex + Value(1);
  IdleTicks = IdleTicks + Value(1);
  // A menu left at full width reduces itself; a reduced one is never enlarged.
  if (IdleTicks > Value(200)) {
    IdleTicks = Value(0);
    if (Width > 3000) imgExit_Click();
  }
}

}  // namespace tessaron

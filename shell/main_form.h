#pragma once
// The launcher menu: one button per calculator, a slide show and four small
// images that stay reachable when the menu is reduced to a strip. Its width
// is its only state: reduced, normal, or with the finance column.
#include <string_view>
#include <vector>

#include "surface/form.h"

namespace tessaron {

class frmMain : public Form {
 public:
  explicit frmMain(Application& app);
  void Load() override;

  // The form a button or image opens.
  struct Opener {
    std::string_view control;
    std::string_view form;
  };
  static const std::vector<Opener>& openers();

 private:
  static std::vector<Design> designTable();
  void showForm(std::string_view name);
  void cmdFinances_Click();
  void cmdOrd_Click();
  void imgExit_Click();
  void imgLeas_Click();
  void imgLoan_Click();
  void tmrTimer_Timer();

  Value SmallLeft, BigLeft, SmallWidth, BigWidth;
  int FinanceWidth = 0;
  Value SlideIndex;  // the picture the next tick shows
  Value IdleTicks;   // ticks since the last automatic reduction test
};

}  // namespace tessaron

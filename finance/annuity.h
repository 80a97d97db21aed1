#pragma once
// The annuity calculator: a monthly saving into the amount it reaches, or a
// wanted amount into the monthly saving, paid at the start of each month.
#include <vector>

#include "finance/conventions.h"

namespace tessaron {

std::vector<Design> AnnuityDesign();

class frmAnnuity : public FinanceForm {
 public:
  explicit frmAnnuity(Application& app);

  void Load() override;
  void PubCalc() override;

  Value Factor;

 private:
  void cmdPrintClick();
};

}  // namespace tessaron

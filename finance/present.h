#pragma once
// The present value calculator: a present amount into a monthly payment or
// back, for a limited number of payments (a prize paid out over years) or
// for payments without end. Every formula divides by the rate, so the rate
// can't be zero here.
#include "finance/conventions.h"

namespace tessaron {

std::vector<Design> PresentDesign();

class frmPresent : public FinanceForm {
 public:
  explicit frmPresent(Application& app);

  void Load() override;
  void PubCalc() override;
  void PubClear() override;

 private:
  bool Permanent() const;
  bool PaidNow() const;
  // The term's labels and bars, and the sum under them, for a limited term.
  void TermShown(bool shown);
  void cmdPrintClick();
};

}  // namespace tessaron

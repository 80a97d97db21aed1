#pragma once
// The savings and bond calculator: one sum taken from the present to a
// future date and back, under five compounding periods, with the annual
// yield that goes with the choice. Whole periods grow by compound interest,
// the months left over by simple interest.
#include "finance/conventions.h"

namespace tessaron {

std::vector<Design> BondDesign();

class frmBond : public FinanceForm {
 public:
  explicit frmBond(Application& app);

  void Load() override;
  void PubCalc() override;

  // The second amount of this form is a future sum, not a payment.
  Value& FutureAmount = Payment;
  Value RestPeriod, HalfYears, Quarters;
  Value Yield;

 protected:
  void RateFocusClears() override;

 private:
  bool Chosen(const char* option) const;
  void cmdPrintClick();
};

}  // namespace tessaron

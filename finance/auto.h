#pragma once
// The lease calculator: the monthly payment of a lease, from the lease amount
// as it stands (simple) or built from price, costs, down payment, rebate and
// residual value (detailed), with sales tax, an extra cost at the end and the
// actual rate that cost amounts to. The payment is always the result.
#include <vector>

#include "finance/conventions.h"

namespace tessaron {

std::vector<Design> AutoDesign();

class frmAuto : public FinanceForm {
 public:
  explicit frmAuto(Application& app);

  void Load() override;
  void PubCalc() override;
  void PubClear() override;

  Value SimpleAmount, Price, OtherCosts, DownPayment, Rebate, Residual;
  Value TaxRate, SalesTax, CashCost, DetailAmount, LeaseAmount, ExtraCost;
  // Held in single precision, as the rate shown beside it.
  Value ActualRate;

 protected:
  void RateFocusClears() override;
  void CalculateClick() override;

 private:
  struct Box;
  static const std::vector<Box>& Boxes();
  void wireBoxes();
  void BoxGotFocus(const Box& box);
  void BoxLostFocus(const Box& box);
  void BoxEnter(const Box& box);
  void optSimpleClick();
  void optDetailClick();
  void cmdPrintClick();
  bool PaidAtEnd() const;
  // The term in whole months, as the lease's own Int16 copy.
  Value TermMonths() const { return CInt(Months); }
};

}  // namespace tessaron

#pragma once
// The loan calculator: a loan amount into a monthly payment or back, for an
// amortizing or an interest-only loan, with its amortization table.
#include "finance/conventions.h"

namespace tessaron {

class PrinterDevice;

class frmLoan : public FinanceForm {
 public:
  explicit frmLoan(Application& app);

  void Load() override;
  void PubCalc() override;
  // Any change of the term also leaves the interest-only view.
  void PubYears() override;
  void PubMonths() override;
  void PubDetails();

  // Running values of the amortization schedule.
  Value RowPrincipal, RowInterest, SumInterest, SumPrincipal, Balance;
  Value GridColumns;
  int InYearScroll = 0;

 protected:
  void RateFocusClears() override;

 private:
  void LeaveNoAmor();
  void TermCaptions();
  void cmdAmorClick();
  void SetColWidth();
  void cmdPrintFClick();
  void cmdPrintClick();
  // The schedule, one payment at a time.
  void ScheduleStart();
  void ScheduleRow();
  bool PaidAtEnd() const;
  // The printed list's sizes and its rows.
  void ListFont(PrinterDevice& printer, Value& colWidth, int& decimals) const;
  void ListRow(PrinterDevice& printer, int lead, int i, const Value& colWidth, int decimals);
};

}  // namespace tessaron

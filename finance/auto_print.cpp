// The lease printout: the figures of the form under their captions, in the
// common page frame.
#include "finance/auto.h"
#include "shell/print_frame.h"

namespace tessaron {

void frmAuto::cmdPrintClick() {
  PubCalc();
  if (!(DetailAmount > Value(0)) && !(SimpleAmount > Value(0))) return;
  if (!PubPrintBegin(*this, kPlaceTop)) return;
  PrinterDevice& printer = Printer();
  const std::string mask = Mask.str();
  const Value zero(0);
  auto money = [&](const Value& v) { return Value(Format(v, mask)); };
  printer.FontSize = 14;
  printer.Print({});
  printer.Print({Tab{20}, Value("-  Lease  -   ")});
  printer.Print({});
  if (control("optDetail").value() == Value(true)) {
    printer.Print({Tab{15}, Value("P R I C E :    "), money(Price)});
    if (OtherCosts != zero) printer.Print({Tab{15}, Value("Other Costs :    "), money(OtherCosts)});
    printer.Print({Tab{15}, Value("Cash Buying :    "), money(CashCost)});
    if (TaxRate > zero && Price > zero)
      printer.Print({Tab{15}, Value("Salex Tax (not included) :    "), money(SalesTax)});
    if (DownPayment != zero)
      printer.Print({Tab{15}, Value("Down Payment :    "), money(DownPayment)});
    if (Rebate != zero) printer.Print({Tab{15}, Value("Rebate+Trade in :    "), money(Rebate)});
    if (Residual != zero)
      printer.Print({Tab{15}, Value("Residual Value (end-buying price) :    "), money(Residual)});
    printer.Print({});
  }
  printer.Print({Tab{40}, Value("Lease Amount :    "), money(LeaseAmount)});
  printer.Print({});
  printer.Print({Tab{15}, Value("Annual P. Rate : "), Value(Format(AnnualRate, " ##0.######  %"))});
  printer.Print({Tab{15}, Value("Period : "), Value(Format(TermMonths(), "    ##0 Months"))});
  if (PaidAtEnd())
    printer.Print({Tab{15}, Value("Payment Due by :  End of Month = 1st of Month with skip 1st "
                                  "Month")});
  else
    printer.Print({Tab{15}, Value("Payment Due by :  First of Month")});
  if (TaxRate > zero)
    printer.Print(
        {Tab{15}, Value("Sales Tax Rate : "), Value(Format(TaxRate, " ##0.### ")), Value("%")});
  printer.Print({});
  printer.Print({Tab{40}, Value("Monthly Payment :    "), money(Payment)});
  if (TaxRate > zero)
    printer.Print({Tab{40}, Value("(with Sales Tax " + Format(TaxRate, "##0.### ") + "%)")});
  if (ExtraCost > zero)
    printer.Print({Tab{40}, Value("Extra Cost  at End :    "), money(ExtraCost)});
  printer.Print({Tab{40}, Value("Total Payment :    "), money(TotalPaid)});
  if (ExtraCost > zero && LeaseAmount > zero) {
    printer.Print({});
    printer.Print({Tab{15}, Value("Actual  paying Annual P. Rate : "),
                   Value(Format(ActualRate, " ##0.#### %"))});
  }
  printer.Print({});
  printer.EndDoc();
}

}  // namespace tessaron

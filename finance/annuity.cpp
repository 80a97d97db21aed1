#include "finance/annuity.h"

#include "shell/print_frame.h"
#include "surface/application.h"

namespace tessaron {

namespace {

FinanceTable AnnuityTable() {
  return {.labelFocus = {{"lblAmount", "txtAmount"},
                         {"lblAAA", "txtAmount"},
                         {"lblPay", "txtPay"},
                         {"lblPPP", "txtPay"},
                         {"lblRate", "txtRate"}},
          .rateFocusEmpties = {"lblSum"},
          .rateFocusEmptiesResult = true,
          .clearBaseCaption = " Base ",
          .clearDropsRestMonths = true};
}

}  // namespace

frmAnnuity::frmAnnuity(Application& app)
    : FinanceForm(app, "frmAnnuity",
                  {.caption = "  Annuity /  Installment Savings                          연금/적금",
                   .width = 9495,
                   .height = 3660},
                  AnnuityDesign(), AnnuityTable()) {
  on("cmdPrint", Event::Click, [this](EventArgs&) { cmdPrintClick(); });
}

void frmAnnuity::Load() {
  PlaceBelowMenu();
  PubClear();
  PubRate();
  PubMonths();
  Mask = Value(kAmountMask);
}

// Each payment falls at the start of its month, so it earns one month more
// than an ordinary end-of-month saving: hence the leading factor f.
void frmAnnuity::PubCalc() {
  RateGuard();
  const Value& f = MonthlyFactor;
  const Value& n = Months;
  const std::string mask = Mask.str();
  // Both labels standing (after Clear) count as the payment being the base.
  if (control("lblPPP").Caption != "") {
    if (AnnualRate == Value(0))
      Amount = Payment * n;
    else
      Amount = Payment * f * (Pow(f, n) - Value(1)) / AnnualRate * Value(12);
    control("txtAmount").Text = Format(Amount, mask);
  } else {
    if (AnnualRate == Value(0)) {
      Payment = Amount / n;
    } else {
      Factor = f * (Pow(f, n) - Value(1)) / AnnualRate * Value(12);
      Payment = Amount / Factor;
    }
    control("txtPay").Text = Format(Payment, mask);
  }
  // The sum is paid in whole cents: the payment rounded half up.
  TotalPaid = n * Int(Payment * Value(100) + Value(0.5)) / Value(100);
  control("lblSum").Caption = Format(TotalPaid, mask);
}

void frmAnnuity::cmdPrintClick() {
  PubCalc();
  if (!(Amount > Value(0))) return;
  if (!PubPrintBegin(*this, kPlaceTop)) return;
  PrinterDevice& printer = Printer();
  const std::string mask = Mask.str();
  const Value payment = Value(Format(Payment, mask));
  const Value amount = Value(Format(Amount, mask));
  const bool paymentBase = control("lblPPP").Caption != "";
  printer.FontSize = 14;
  printer.Print({});
  printer.Print({Tab{20}, Value("-  Annuity  /  Installment Savings  -   ")});
  printer.Print({});
  printer.Print({});
  if (paymentBase)
    printer.Print({Tab{40}, Value("Monthly Payment :    "), payment});
  else
    printer.Print({Tab{40}, Value("Future Amount :    "), amount});
  printer.Print({});
  printer.Print({Tab{15}, Value("Annual P. Rate : "), Value(Format(AnnualRate, " ##0.###### %"))});
  printer.Print({Tab{15}, Value("Period : "), Value(Format(Months, " ##0 Months"))});
  printer.Print({});
  if (paymentBase)
    printer.Print({Tab{40}, Value("Future Amount :    "), amount});
  else
    printer.Print({Tab{40}, Value("Monthly Payment :    "), payment});
  printer.Print({});
  printer.Print({Tab{40}, Value("Sum of Payments :    "), Value(Format(TotalPaid, mask))});
  printer.Print({});
  printer.EndDoc();
}

}  // namespace tessaron

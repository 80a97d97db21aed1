#include "finance/present.h"

#include "shell/print_frame.h"
#include "surface/application.h"

namespace tessaron {

namespace {

FinanceTable PresentTable() {
  return {.secondBox = "txtPay",
          .labelFocus = {{"lblPresent", "txtAmount"},
                         {"lblAAA", "txtAmount"},
                         {"lblPay", "txtPay"},
                         {"lblPPP", "txtPay"},
                         {"lblRate", "txtRate"}},
          .calcOptions = {"optNow", "optLater"},
          .zeroBelowTen = false,
          .refusesZero = true,
          .rateLimitWords = " 0 < Rate <= 150% Max. here !  ",
          .enterRateFloor = 0.0001,
          .yearMax = 100,
          .rateEnterToTerm = false,
          .yearsLabel = "lblYear"};
}

constexpr const char* kTermControls[] = {"lblTerms", "lblYear", "lblYr", "lblMonth", "lblMn"};

}  // namespace

frmPresent::frmPresent(Application& app)
    : FinanceForm(app, "frmPresent",
                  {.caption = "  Present Amount                           현 재 가  ",
                   .width = 9495,
                   .height = 4515},
                  PresentDesign(), PresentTable()) {
  on("optLmtd", Event::Click, [this](EventArgs&) {
    TermShown(true);
    PubCalc();
  });
  on("optPerm", Event::Click, [this](EventArgs&) {
    TermShown(false);
    control("lblYear").Caption = Format(Years, "##");
    PubMonths();
    PubCalc();
  });
  on("cmdPrint", Event::Click, [this](EventArgs&) { cmdPrintClick(); });
}

void frmPresent::Load() {
  PlaceBelowMenu();
  PubRate();
  PubMonths();
  Mask = Value(kAmountMask);
}

void frmPresent::PubClear() {
  FinanceForm::PubClear();
  PubMonths();
}

bool frmPresent::Permanent() const { return control("optPerm").value() == Value(true); }

bool frmPresent::PaidNow() const { return control("optNow").value() == Value(true); }

void frmPresent::TermShown(bool shown) {
  for (const char* name : kTermControls) control(name).Visible = shown;
  control("lblSum1").Visible = shown;
  control("lblSum2").Visible = shown;
  control("scrYear").Enabled = shown;
  control("scrMonth").Enabled = shown;
}

void frmPresent::PubCalc() {
  RateGuard();
  const Value r = MonthlyRate, f = MonthlyFactor, n = Months;
  const std::string mask = Mask.str();
  const bool paymentBase = control("lblPPP").Caption != "";
  if (Permanent()) {
    TermShown(false);
    if (AnnualRate == Value(0)) {
      // The monthly rate of this pass stays as it was.
      MsgBox(" Rate must not be Zero !  ", 48, kFinanceTitle);
      AnnualRate = Value(0.1);
      control("txtRate").SetFocus();
    }
    if (paymentBase) {
      Amount = Payment / r;
      if (PaidNow()) Amount = Amount * f;
      control("txtAmount").Text = Format(Amount, mask);
    } else {
      Payment = Amount * r;
      if (PaidNow()) Payment = Payment / f;
      control("txtPay").Text = Format(Payment, mask);
    }
    return;
  }
  for (const char* name : kTermControls) control(name).Visible = true;
  control("scrYear").Enabled = true;
  control("scrMonth").Enabled = true;
  control("lblYear").Caption = Format(Years, "##");
  if (paymentBase) {
    Amount = Payment * (Value(1) - Value(1) / Pow(Value(1) + r, n)) / r;
    if (PaidNow()) Amount = Amount * f;
    control("txtAmount").Text = Format(Amount, mask);
  } else {
    Payment = Value(Pmt(r.number(), n.number(), (-Amount).number(), 0, 0));
    if (PaidNow()) Payment = Payment / f;
    control("txtPay").Text = Format(Payment, mask);
  }
  // The sum of the payments as they stand, not of cent-rounded ones.
  TotalPaid = Payment * n;
  Control& sum = control("lblSum2");
  control("lblSum1").Visible = true;
  sum.Visible = true;
  sum.Caption = Format(TotalPaid, mask);
  sum.FontSize = TotalPaid >= Value(1e12) ? 10 : 12;
}

void frmPresent::cmdPrintClick() {
  PubCalc();
  if (!(Amount > Value(0))) return;
  if (!PubPrintBegin(*this, kPlaceTop)) return;
  PrinterDevice& printer = Printer();
  const std::string mask = Mask.str();
  const bool paymentBase = control("lblPPP").Caption != "";
  const char* start =
      PaidNow() ? "1st payment starts from Now." : "1st payment starts from one month later.";
  printer.FontSize = 14;
  printer.Print({Tab{20}, Value("-  Present Amount <> Monthly Payment  -   ")});
  printer.Print({});
  printer.Print({});
  if (!Permanent())
    printer.Print({Tab{15}, Value("Limited Terms : "), Value(Format(Months, " ###0 Months"))});
  else
    printer.Print(
        {Tab{15}, Value(PaidNow() ? "Permenent Monthly Pay," : "Permenent Monthly Pay.")});
  printer.Print({Tab{25}, Value(start)});
  printer.Print({});
  if (paymentBase)
    printer.Print({Tab{15}, Value("Monthly Payment :    "), Value(Format(Payment, mask))});
  else
    printer.Print({Tab{15}, Value("Present Amount :    "), Value(Format(Amount, mask))});
  printer.Print({});
  printer.Print({Tab{15}, Value("Annual P. Rate : "), Value(Format(AnnualRate, " ##0.###### %"))});
  printer.Print({});
  printer.Print({});
  if (paymentBase)
    printer.Print({Tab{20}, Value("Present Amount :    "), Value(Format(Amount, mask))});
  else
    printer.Print({Tab{20}, Value("Monthly Payment :    "), Value(Format(Payment, mask))});
  printer.Print({});
  if (!Permanent())
    printer.Print({Tab{20}, Value("Total Payments :    "), Value(Format(TotalPaid, mask))});
  printer.EndDoc();
}

}  // namespace tessaron

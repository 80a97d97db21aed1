#include "finance/loan.h"

#include "finance/design_rows.h"
#include "surface/application.h"

namespace tessaron {

namespace {

using K = ControlKind;

std::vector<Design> LoanDesign() {
  return {
      // The amounts.
      AmountsFrame(),
      FieldLabel("lblAmount", " Loan  Amount", 300, "Frame1"),
      AmountBox("txtAmount", 240),
      BaseLabel("lblAAA", " To calculate based on Loan Amount ", 300),
      FieldLabel("lblPayment", "Monthly  Payment", 840, "Frame1"),
      AmountBox("txtPay", 780),
      BaseLabel("lblPPP", " To calculate based on Monthly payment ", 840),
      FieldLabel("lblSm", "Sum of Payments", 1380, "Frame1"),
      SumLabel("lblSum"),
      {.kind = K::Label,
       .name = "lblSome",
       .caption = "Some ask more at 31-day Months : ",
       .left = 120,
       .top = 1320,
       .width = 2775,
       .height = 285,
       .container = "Frame1",
       .visible = false},
      {.kind = K::TextBox,
       .name = "txtSome",
       .left = 2940,
       .top = 1320,
       .width = 1335,
       .height = 345,
       .container = "Frame1",
       .visible = false,
       .alignment = Align::Right},
      // The rate and the term.
      RateFrame(),
      RateLabel("Annual  Rate"),
      RateBox(),
      PercentLabel(),
      RateBar(9),
      TermLabel("lblTerm", "Terms"),
      YearsLabel("lblYears", "3"),
      YearsUnitLabel(),
      MonthsLabel(),
      MonthsUnitLabel(),
      YearBar(-1, 51, 6, 3),
      MonthBar(601, 0, 36),
      // The due date and the keys.
      KeysFrame(1935),
      ChoiceFrame("Frame4", "Payment Due by ...", 120, 8895),
      DefaultChoice("optEnd", "End of Month    =     1st of Month with skip   1st Month", 120, 5895,
                    "Frame4"),
      Choice("optFirst", "First of Month", 6240, 2535, "Frame4"),
      PanelKey("cmdAmor", "   Go to   No   Amor.", " Calculate without Amortizing ", 120),
      PanelKey("cmdDetails", "Detail Status", " List of Principal, Interest and Balance ", 1590),
      PanelKey("cmdCalculate", "Calculate", " Calculate ", 3060),
      PanelKey("cmdClear", "Clear", " Clear inputted data ", 4530),
      PanelKey("cmdPrintF", "Print", " Clear inputted data ", 6000),
      PanelKey("cmdExit", "Exit", " Close Loan ", 7470),
      // The interest-only view.
      {.kind = K::Frame,
       .name = "frameAmor",
       .left = 120,
       .top = 4050,
       .width = 9135,
       .height = 615,
       .visible = false},
      {.kind = K::Label,
       .name = "lblAmor",
       .caption = "    Interest Only,                                  No Amortizing ",
       .left = 120,
       .top = 240,
       .width = 8895,
       .height = 285,
       .container = "frameAmor"},
      // The amortization table.
      {.kind = K::Frame,
       .name = "frameDet",
       .left = 120,
       .top = 60,
       .width = 9135,
       .height = 4605,
       .visible = false},
      {.kind = K::FlexGrid,
       .name = "Table",
       .left = 120,
       .top = 240,
       .width = 8895,
       .height = 3615,
       .container = "frameDet",
       .rows = 2,
       .cols = 6,
       .fixedRows = 1,
       .fixedCols = 1},
      {.kind = K::CommandButton,
       .name = "cmdReturn",
       .caption = "Return",
       .tip = " Return to Front ",
       .left = 5520,
       .top = 3960,
       .width = 1575,
       .height = 495,
       .container = "frameDet"},
      {.kind = K::CommandButton,
       .name = "cmdPrint",
       .caption = "Print",
       .tip = " Print out ",
       .left = 7320,
       .top = 3960,
       .width = 1575,
       .height = 495,
       .container = "frameDet"},
  };
}

FinanceTable LoanTable() {
  return {.secondBox = "txtPay",
          .labelFocus = {{"lblAmount", "txtAmount"},
                         {"lblAAA", "txtAmount"},
                         {"lblPayment", "txtPay"},
                         {"lblPPP", "txtPay"},
                         {"lblRate", "txtRate"}},
          .calcOptions = {"optEnd", "optFirst"},
          .enterCalculatesSecond = true};
}

}  // namespace

frmLoan::frmLoan(Application& app)
    : FinanceForm(
          app, "frmLoan",
          {.caption =
               "  Loan                                                                      대 출 ",
           .width = 9495,
           .height = 5385},
          LoanDesign(), LoanTable()) {
  on("cmdAmor", Event::Click, [this](EventArgs&) { cmdAmorClick(); });
  on("cmdDetails", Event::Click, [this](EventArgs&) {
    control("frameDet").Visible = true;
    control("Frame1").Visible = false;
    control("Frame2").Visible = false;
    control("Frame3").Visible = false;
    PubDetails();
  });
  on("cmdReturn", Event::Click, [this](EventArgs&) {
    control("frameDet").Visible = false;
    control("Frame1").Visible = true;
    control("Frame2").Visible = true;
    control("Frame3").Visible = true;
  });
  on("cmdPrintF", Event::Click, [this](EventArgs&) { cmdPrintFClick(); });
  on("cmdPrint", Event::Click, [this](EventArgs&) { cmdPrintClick(); });
}

void frmLoan::Load() {
  PlaceBelowMenu();
  PubClear();
  PubRate();
  PubYears();
  Mask = Value(kAmountMask);
}

void frmLoan::RateFocusClears() { control("lblSum").Caption = ""; }

bool frmLoan::PaidAtEnd() const { return control("optEnd").value() == Value(true); }

void frmLoan::cmdAmorClick() {
  Control& amor = control("cmdAmor");
  if (!control("frameAmor").Visible) {
    control("frameAmor").Visible = true;
    amor.Caption = "Return to  Amor.";
    amor.ToolTipText = " Return to Amortizing ";
    control("cmdDetails").Enabled = false;
  } else {
    control("frameAmor").Visible = false;
    amor.Caption = "  Go to  No  Amor.";
    amor.ToolTipText = " Calculate without Amortizing ";
    control("cmdDetails").Enabled = true;
  }
  PubCalc();
}

void frmLoan::LeaveNoAmor() {
  control("frameAmor").Visible = false;
  control("cmdDetails").Enabled = true;
  control("cmdAmor").Caption = "  Go to   No   Amor.";
  control("cmdAmor").ToolTipText = " Calculate without Amortizing ";
}

void frmLoan::TermCaptions() {
  control("lblYears").Caption = CStr(Years);
  control("lblMonth").Caption = CStr(RestMonths);
}

// The two term routines guard each other: while one moves the other's bar,
// the other only leaves the interest-only view and clears its own flag.
void frmLoan::PubYears() {
  InYearScroll = 1;
  LeaveNoAmor();
  if (!InMonthScroll) {
    Control& year = control("scrYear");
    // The bar is one step wider than the term at each end, so that its
    // arrows answer at the limits; those steps are turned back here.
    if (year.value() == Value(-1)) year.setValue(Value(0));
    if (year.value() == Value(51)) year.setValue(Value(50));
    // A step down from a term with rest months lands on the whole years.
    const Value down = year.value() * Value(12);
    if (down > Months - Value(24) && down < Months - Value(12))
      year.setValue(year.value() + Value(1));
    Years = year.value();
    Months = Years * Value(12);
    RestMonths = Value(0);
    // A term of zero years is one month.
    if (Months < Value(12)) {
      Months = Value(1);
      RestMonths = Value(1);
    }
    if (!InMonthScroll) control("scrMonth").setValue(Months);
    TermCaptions();
  }
  InYearScroll = 0;
}

void frmLoan::PubMonths() {
  InMonthScroll = true;
  LeaveNoAmor();
  if (InYearScroll == 0) {
    Control& month = control("scrMonth");
    if (month.value() == Value(0)) month.setValue(Value(1));
    if (month.value() == Value(601)) month.setValue(Value(600));
    Months = month.value();
    Years = Int(Months / Value(12));
    RestMonths = Months - Value(12) * Years;
    if (InYearScroll == 0) control("scrYear").setValue(Years);
    TermCaptions();
  }
  InMonthScroll = false;
}

void frmLoan::PubCalc() {
  const bool noAmor = control("frameAmor").Visible;
  control("lblSm").Visible = !noAmor;
  control("lblSum").Visible = !noAmor;
  control("lblSome").Visible = noAmor;
  control("txtSome").Visible = noAmor;
  RateGuard();
  MonthlyFactor = AnnualRate / Value(12) + Value(1);
  const Value zero(0);
  const bool amountBase = control("lblPPP").Caption == "";
  const bool paymentBase = control("lblAAA").Caption == "";
  Control& txtAmount = control("txtAmount");
  Control& txtPay = control("txtPay");
  Control& lblSum = control("lblSum");
  const std::string mask = Mask.str();
  const Value monthly = Value(1) + AnnualRate / Value(12);

  if (!noAmor) {
    if (!(Amount > zero || Payment > zero)) return;
    if (Amount > zero && amountBase) {
      const Value rate = AnnualRate / Value(12);
      Payment =
          Value(Pmt(rate.number(), Months.number(), (-Amount).number(), 0, PaidAtEnd() ? 0 : 1));
      txtPay.Text = Format(Payment, mask);
      // The total is paid in whole cents: the payment rounded half up.
      TotalPaid = Months * Int(Payment * Value(100) + Value(0.5)) / Value(100);
      lblSum.Caption = Format(TotalPaid, mask);
    }
    if (Payment > zero && paymentBase) {
      if (AnnualRate == zero) {
        Amount = Payment * Months;
      } else {
        const Value f = Value(1) / Pow(monthly, Months);
        Amount = Payment * (Value(1) - f) / AnnualRate * Value(12);
        if (!PaidAtEnd()) Amount = Amount * monthly;
      }
      txtAmount.Text = Format(Amount, mask);
      TotalPaid = Months * Int(Payment * Value(100) + Value(0.5)) / Value(100);
      lblSum.Caption = Format(TotalPaid, mask);
    }
    return;
  }

  Control& txtSome = control("txtSome");
  if (Amount > zero && amountBase) {
    Payment = Amount * AnnualRate / Value(12);
    if (!PaidAtEnd()) Payment = Payment / monthly;
    txtPay.Text = Format(Payment, mask);
    txtSome.Text = Format(Payment * Value(31) / Value(30), mask);
  }
  if (Payment > zero && paymentBase) {
    if (AnnualRate == zero) {
      // No interest to live on: no amount answers the payment.
      Amount = zero;
      txtAmount.Text = " not applied ";
      TotalPaid = zero;
      lblSum.Caption = " not applied ";
      return;
    }
    Amount = Payment * Value(12) / AnnualRate;
    if (control("optFirst").value() == Value(true))
      Amount = Payment * monthly / AnnualRate * Value(12);
    txtAmount.Text = Format(Amount, mask);
    txtSome.Text = Format(Payment * Value(31) / Value(30), mask);
  }
  TotalPaid = zero;
  lblSum.Caption = "  ";
}

}  // namespace tessaron

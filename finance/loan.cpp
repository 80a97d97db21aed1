#include "finance/loan.h"

#include "surface/application.h"

namespace tessaron {

namespace {

using K = ControlKind;

std::vector<Design> LoanDesign() {
  return {
      // The amounts.
      {.kind = K::Frame, .name = "Frame1", .left = 120, .top = 60, .width = 4575, .height = 1935},
      {.kind = K::Label,
       .name = "lblAmount",
       .caption = " Loan  Amount",
       .left = 120,
       .top = 300,
       .width = 1455,
       .height = 285,
       .container = "Frame1"},
      {.kind = K::TextBox,
       .name = "txtAmount",
       .left = 1620,
       .top = 240,
       .width = 2055,
       .height = 375,
       .container = "Frame1",
       .fontSize = 12,
       .alignment = Align::Right},
      {.kind = K::Label,
       .name = "lblAAA",
       .caption = "Base",
       .tip = " To calculate based on Loan Amount ",
       .left = 3720,
       .top = 300,
       .width = 735,
       .height = 285,
       .container = "Frame1"},
      {.kind = K::Label,
       .name = "lblPayment",
       .caption = "Monthly  Payment",
       .left = 120,
       .top = 840,
       .width = 1455,
       .height = 285,
       .container = "Frame1"},
      {.kind = K::TextBox,
       .name = "txtPay",
       .left = 1620,
       .top = 780,
       .width = 2055,
       .height = 375,
       .container = "Frame1",
       .fontSize = 12,
       .alignment = Align::Right},
      {.kind = K::Label,
       .name = "lblPPP",
       .caption = "Base",
       .tip = " To calculate based on Monthly payment ",
       .left = 3720,
       .top = 840,
       .width = 735,
       .height = 285,
       .container = "Frame1"},
      {.kind = K::Label,
       .name = "lblSm",
       .caption = "Sum of Payments",
       .left = 120,
       .top = 1380,
       .width = 1455,
       .height = 285,
       .container = "Frame1"},
      {.kind = K::Label,
       .name = "lblSum",
       .left = 1620,
       .top = 1380,
       .width = 2055,
       .height = 285,
       .container = "Frame1",
       .alignment = Align::Right},
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
      {.kind = K::Frame, .name = "Frame2", .left = 4815, .top = 60, .width = 4440, .height = 1935},
      {.kind = K::Label,
       .name = "lblRate",
       .caption = "Annual  Rate",
       .left = 120,
       .top = 300,
       .width = 1455,
       .height = 285,
       .container = "Frame2"},
      {.kind = K::TextBox,
       .name = "txtRate",
       .tip = " Type in or Scroll Bar ",
       .left = 1620,
       .top = 240,
       .width = 1215,
       .height = 375,
       .container = "Frame2",
       .fontSize = 12,
       .alignment = Align::Right},
      {.kind = K::Label,
       .name = "lblPct",
       .caption = "  %",
       .left = 2880,
       .top = 300,
       .width = 495,
       .height = 285,
       .container = "Frame2"},
      {.kind = K::HScrollBar,
       .name = "scrRate",
       .left = 120,
       .top = 720,
       .width = 4200,
       .height = 255,
       .container = "Frame2",
       .min = 9,
       .max = 6000,
       .smallChange = 1,
       .largeChange = 20,
       .value = 2000},
      {.kind = K::Label,
       .name = "lblTerm",
       .caption = "Terms",
       .left = 120,
       .top = 1140,
       .width = 855,
       .height = 285,
       .container = "Frame2"},
      {.kind = K::Label,
       .name = "lblYears",
       .caption = "3",
       .left = 1020,
       .top = 1140,
       .width = 495,
       .height = 285,
       .container = "Frame2",
       .alignment = Align::Right},
      {.kind = K::Label,
       .name = "lblYr",
       .caption = "Years",
       .left = 1560,
       .top = 1140,
       .width = 615,
       .height = 285,
       .container = "Frame2"},
      {.kind = K::Label,
       .name = "lblMonth",
       .caption = "0",
       .left = 2280,
       .top = 1140,
       .width = 495,
       .height = 285,
       .container = "Frame2",
       .alignment = Align::Right},
      {.kind = K::Label,
       .name = "lblMn",
       .caption = "Months",
       .left = 2820,
       .top = 1140,
       .width = 735,
       .height = 285,
       .container = "Frame2"},
      {.kind = K::HScrollBar,
       .name = "scrYear",
       .left = 120,
       .top = 1500,
       .width = 2040,
       .height = 255,
       .container = "Frame2",
       .min = -1,
       .max = 51,
       .smallChange = 1,
       .largeChange = 6,
       .value = 3},
      {.kind = K::HScrollBar,
       .name = "scrMonth",
       .left = 2280,
       .top = 1500,
       .width = 2040,
       .height = 255,
       .container = "Frame2",
       .min = 601,
       .max = 0,
       .smallChange = 1,
       .largeChange = 12,
       .value = 36},
      // The due date and the keys.
      {.kind = K::Frame, .name = "Frame3", .left = 120, .top = 2055, .width = 9135, .height = 1935},
      {.kind = K::Frame,
       .name = "Frame4",
       .caption = "Payment Due by ...",
       .left = 120,
       .top = 180,
       .width = 8895,
       .height = 615,
       .container = "Frame3"},
      {.kind = K::OptionButton,
       .name = "optEnd",
       .caption = "End of Month    =     1st of Month with skip   1st Month",
       .tip = " default ",
       .left = 120,
       .top = 240,
       .width = 5895,
       .height = 255,
       .container = "Frame4",
       .checked = true},
      {.kind = K::OptionButton,
       .name = "optFirst",
       .caption = "First of Month",
       .left = 6240,
       .top = 240,
       .width = 2535,
       .height = 255,
       .container = "Frame4"},
      {.kind = K::CommandButton,
       .name = "cmdAmor",
       .caption = "   Go to   No   Amor.",
       .tip = " Calculate without Amortizing ",
       .left = 120,
       .top = 960,
       .width = 1395,
       .height = 735,
       .container = "Frame3"},
      {.kind = K::CommandButton,
       .name = "cmdDetails",
       .caption = "Detail Status",
       .tip = " List of Principal, Interest and Balance ",
       .left = 1590,
       .top = 960,
       .width = 1395,
       .height = 735,
       .container = "Frame3"},
      {.kind = K::CommandButton,
       .name = "cmdCalculate",
       .caption = "Calculate",
       .tip = " Calculate ",
       .left = 3060,
       .top = 960,
       .width = 1395,
       .height = 735,
       .container = "Frame3"},
      {.kind = K::CommandButton,
       .name = "cmdClear",
       .caption = "Clear",
       .tip = " Clear inputted data ",
       .left = 4530,
       .top = 960,
       .width = 1395,
       .height = 735,
       .container = "Frame3"},
      {.kind = K::CommandButton,
       .name = "cmdPrintF",
       .caption = "Print",
       .tip = " Clear inputted data ",
       .left = 6000,
       .top = 960,
       .width = 1395,
       .height = 735,
       .container = "Frame3"},
      {.kind = K::CommandButton,
       .name = "cmdExit",
       .caption = "Exit",
       .tip = " Close Loan ",
       .left = 7470,
       .top = 960,
       .width = 1395,
       .height = 735,
       .container = "Frame3"},
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

#include "finance/auto.h"

#include "surface/application.h"

namespace tessaron {

namespace {

FinanceTable AutoTable() {
  return {.calcOptions = {"optEnd", "optFirst"},
          .rateEnterToTerm = false,
          .rateFocusEmpties = {"lblPay", "lblSum"}};
}

// Where a panel stands in one of the two layouts.
struct Place {
  const char* panel;
  int top, left;  // left -1: stays where it is
};

constexpr Place kSimpleLayout[] = {{"frmTermsRate", 2490, 150},
                                   {"frmTaxMonth", 180, 4680},
                                   {"frmTotal", 1710, -1},
                                   {"frmExtra", 2805, -1},
                                   {"frmExit", 3660, -1}};
constexpr Place kDetailLayout[] = {{"frmTermsRate", 120, 4680},
                                   {"frmTaxMonth", 2130, 4680},
                                   {"frmTotal", 3480, 4680},
                                   {"frmExtra", 4650, -1},
                                   {"frmExit", 5340, -1}};

}  // namespace

frmAuto::frmAuto(Application& app)
    : FinanceForm(
          app, "frmAuto",
          {.caption =
               "  Lease                                                             임 대 차 ",
           .width = 12750,
           .height = 5010},
          AutoDesign(), AutoTable()) {
  wireBoxes();
  on("optSimple", Event::Click, [this](EventArgs&) { optSimpleClick(); });
  on("optDetail", Event::Click, [this](EventArgs&) { optDetailClick(); });
  on("cmdPrint", Event::Click, [this](EventArgs&) { cmdPrintClick(); });
}

void frmAuto::Load() {
  PlaceBelowMenu();
  Mask = Value(kAmountMask);
  PubClear();
  PubRate();
  PubYears();
  optSimpleClick();
}

bool frmAuto::PaidAtEnd() const { return control("optEnd").value() == Value(true); }

void frmAuto::RateFocusClears() {
  FinanceForm::RateFocusClears();
  Payment = Value(0);
}

// Calc. takes the rate and the term again before it calculates; the term is
// taken from the year bar, so a term with rest months falls to whole years.
void frmAuto::CalculateClick() {
  PubRate();
  PubYears();
  PubCalc();
}

void frmAuto::optSimpleClick() {
  control("frmSimple").Visible = true;
  control("frmDetail").Visible = false;
  for (const Place& p : kSimpleLayout) {
    control(p.panel).Top = p.top;
    if (p.left >= 0) control(p.panel).Left = p.left;
  }
  Height = 5010;
  PubCalc();
}

void frmAuto::optDetailClick() {
  control("frmSimple").Visible = false;
  control("frmDetail").Visible = true;
  for (const Place& p : kDetailLayout) {
    control(p.panel).Top = p.top;
    if (p.left >= 0) control(p.panel).Left = p.left;
  }
  Height = 6735;
  if (Price > Value(0)) control("txtPrice").Text = Format(Price, Mask.str());
  PubCalc();
}

void frmAuto::PubCalc() {
  RateGuard();
  const Value zero(0);
  const std::string mask = Mask.str();
  control("lblPay").Caption = "";
  Payment = zero;
  control("lblSum").Caption = "";
  TotalPaid = zero;
  const Value monthly = Value(1) + AnnualRate / Value(12);
  const Value n = TermMonths();

  if (control("optDetail").value() == Value(true)) {
    if (Price > zero) {
      if (TaxRate > zero) {
        SalesTax = Price * TaxRate / Value(100);
        control("lblTax2").Caption = Format(SalesTax, mask);
        control("frmTax").Visible = true;
      } else {
        control("lblTax2").Caption = "";
        control("frmTax").Visible = false;
      }
      CashCost = Price + OtherCosts;
      control("lblCash").Caption = Format(CashCost, mask);
      DetailAmount = CashCost - DownPayment - Rebate;
    }
    if (Residual > zero) {
      // The residual is discounted over one month less when payments fall
      // at the end of the month; kept as the lease has always computed it.
      const Value e = PaidAtEnd() ? n - Value(1) : n;
      DetailAmount = CashCost - DownPayment - Rebate - Residual / Pow(monthly, e);
    }
    control("lblAmountPP").Caption = Format(DetailAmount, mask);
    LeaseAmount = DetailAmount;
  } else {
    LeaseAmount = SimpleAmount;
  }

  if (LeaseAmount > zero) {
    const double rate = (AnnualRate / Value(12)).number();
    Payment = Value(Pmt(rate, n.number(), (-LeaseAmount).number(), 0, PaidAtEnd() ? 0 : 1));
    // The tax falls on every payment, interest included.
    Payment = Payment * (Value(1) + TaxRate / Value(100));
    control("lblPay").Caption = Format(Payment, mask);
    TotalPaid = n * Int(Payment * Value(100) + Value(0.5)) / Value(100) + ExtraCost;
    control("lblSum").Caption = Format(TotalPaid, mask);
    if (ExtraCost > zero) {
      // The extra cost brought to the present, spread over the lease amount:
      // a closed form, not a solved rate.
      const Value p = ExtraCost / Pow(monthly, n);
      const float actual = static_cast<float>((AnnualRate + p / LeaseAmount).number());
      ActualRate = Value(static_cast<double>(actual));
      control("lblAct2").Caption = Format(Value(static_cast<double>(actual * 100.0f)), "##0.00##");
      control("frmExtra").Visible = true;
    } else {
      control("lblAct2").Caption = "";
      control("frmExtra").Visible = false;
    }
    if (ExtraCost > LeaseAmount)
      MsgBox("Extra Money is more than Lease Amount ! ", 48, kFinanceTitle);
  }
  // The caption's second line, "(with Sales Tax)", shows only with a tax.
  control("lblPay2").Height = TaxRate > zero ? 540 : 270;
}

void frmAuto::PubClear() {
  for (const char* box : {"txtPrice", "txtCost", "txtDown", "txtResidual", "txtRebate",
                          "txtAmountAA", "txtTaxRate", "txtExtra"})
    control(box).Text = "";
  for (const char* label : {"lblAmountPP", "lblPay", "lblSum"}) control(label).Caption = "";
  for (Value* v : {&Price, &OtherCosts, &DownPayment, &Residual, &Rebate, &DetailAmount,
                   &SimpleAmount, &TaxRate, &SalesTax, &Payment, &ExtraCost, &TotalPaid})
    *v = Value(0);
}

}  // namespace tessaron

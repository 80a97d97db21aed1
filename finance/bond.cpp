#include "finance/bond.h"

#include "shell/print_frame.h"
#include "surface/application.h"

namespace tessaron {

namespace {

FinanceTable BondTable() {
  return {.secondBox = "txtTom",
          .labelFocus = {{"lblPresent", "txtAmount"},
                         {"lblAAA", "txtAmount"},
                         {"lblPay", "txtTom"},
                         {"lblPPP", "txtTom"},
                         {"lblRate", "txtRate"}},
          .calcOptions = {"optDay", "optOne", "optThree", "optSix", "optYear"}};
}

}  // namespace

frmBond::frmBond(Application& app)
    : FinanceForm(app, "frmBond",
                  {.caption = "  Savings/Bond/Draft/Note        예금/채권/어음",
                   .width = 9495,
                   .height = 4515},
                  BondDesign(), BondTable()) {
  on("cmdPrint", Event::Click, [this](EventArgs&) { cmdPrintClick(); });
}

void frmBond::Load() {
  PlaceBelowMenu();
  PubClear();
  PubRate();
  // The term starts in whole years.
  RestMonths = Value(0);
  PubYears();
  Mask = Value(kAmountMask);
}

void frmBond::RateFocusClears() {
  if (control("lblPPP").Caption == "") control("txtTom").Text = "";
  if (control("lblAAA").Caption == "") control("txtAmount").Text = "";
  control("lblAPY2").Caption = "";
}

bool frmBond::Chosen(const char* option) const { return control(option).value() == Value(true); }

void frmBond::PubCalc() {
  RateGuard();
  const Value R = AnnualRate, one(1), twelve(12);
  Value G, S = one;
  if (Chosen("optYear")) {
    RestPeriod = CInt(Months - twelve * Years);
    G = Pow(one + R, Years);
    S = one + R / twelve * RestPeriod;
    Yield = R;
  } else if (Chosen("optSix")) {
    HalfYears = Int(Months / Value(6));
    RestPeriod = CInt(Months - Value(6) * HalfYears);
    G = Pow(one + R / Value(2), HalfYears);
    S = one + R / twelve * RestPeriod;
    Yield = Pow(one + R / Value(2), Value(2)) - one;
  } else if (Chosen("optThree")) {
    Quarters = Int(Months / Value(3));
    RestPeriod = CInt(Months - Value(3) * Quarters);
    G = Pow(one + R / Value(4), Quarters);
    S = one + R / twelve * RestPeriod;
    Yield = Pow(one + R / Value(4), Value(4)) - one;
  } else if (Chosen("optDay")) {
    // Daily compounding grows the sum by one year's factor, whatever the term.
    G = Pow(one + R / Value(365), Value(365));
    Yield = G - one;
  } else {
    G = Pow(one + R / twelve, Months);
    Yield = Pow(one + R / twelve, twelve) - one;
  }
  const std::string mask = Mask.str();
  if (control("lblPPP").Caption != "") {
    Amount = FutureAmount / G / S;
    control("txtAmount").Text = Format(Amount, mask);
  } else {
    FutureAmount = Amount * G * S;
    control("txtTom").Text = Format(FutureAmount, mask);
  }
  control("lblAPY2").Caption = Format(Yield * Value(100), "##0.#####");
}

void frmBond::cmdPrintClick() {
  PubCalc();
  if (!(Amount > Value(0))) return;
  if (!PubPrintBegin(*this, kPlaceTop)) return;
  PrinterDevice& printer = Printer();
  const std::string mask = Mask.str();
  const bool amountBase = control("lblAAA").Caption != "";
  // The monthly choice prints the daily line, as the printout always has.
  const char* compound = Chosen("optDay")     ? "Compound by Daily."
                         : Chosen("optOne")   ? "Compound by Daily."
                         : Chosen("optThree") ? "Compound by 3 Months."
                         : Chosen("optSix")   ? "Compound by 6 Months."
                                              : "Compound by Yearly.";
  printer.FontSize = 14;
  printer.Print({Tab{20}, Value("-  Savings / CD / Bond / Draft / Note  -   ")});
  printer.Print({});
  printer.Print({});
  if (amountBase)
    printer.Print({Tab{15}, Value("Present Amount :    "), Value(Format(Amount, mask))});
  else
    printer.Print({Tab{15}, Value("Future Amount :    "), Value(Format(FutureAmount, mask))});
  printer.Print({});
  printer.Print({Tab{15}, Value("Annual P. Rate : "), Value(Format(AnnualRate, " ##0.###### %")),
                 Value(Space(10)), Value(compound)});
  printer.Print({});
  printer.Print({Tab{15}, Value("Period : "), Value(Format(Months, " ###0 Months. "))});
  printer.Print({});
  printer.Print({});
  if (amountBase)
    printer.Print({Tab{20}, Value("Future Amount :    "), Value(Format(FutureAmount, mask))});
  else
    printer.Print({Tab{20}, Value("Present Amount :    "), Value(Format(Amount, mask))});
  printer.Print({});
  printer.Print({Tab{20}, Value("Annual P. Yield :    "), Value(Format(Yield, " ##0.###### %"))});
  printer.Print({});
  printer.EndDoc();
}

}  // namespace tessaron

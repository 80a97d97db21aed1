#include "finance/conventions.h"

#include "surface/application.h"

namespace tessaron {

FinanceForm::FinanceForm(Application& app, std::string name, FormDesign design,
                         std::vector<Design> controls, FinanceTable table)
    : Form(app, std::move(name), std::move(design), std::move(controls)), table_(std::move(table)) {
  wire();
}

void FinanceForm::wire() {
  on("scrRate", Event::Change, [this](EventArgs&) {
    if (InRateUpdate != 0) return;
    Control& bar = control("scrRate");
    AnnualRate = bar.value() / Value(20000);
    if (table_.zeroBelowTen && bar.value() < Value(10)) AnnualRate = Value(0);
    control("txtRate").Text = Format(AnnualRate * Value(100), " #0.00##");
    MonthlyRate = AnnualRate / Value(12);
    MonthlyFactor = Value(1) + MonthlyRate;
    PubCalc();
  });
  on("scrYear", Event::Change, [this](EventArgs&) {
    PubYears();
    PubCalc();
  });
  on("scrMonth", Event::Change, [this](EventArgs&) {
    PubMonths();
    PubCalc();
  });

  amountBox("txtAmount", &FinanceForm::Amount, "lblAAA", "lblPPP");
  amountBox(table_.secondBox, &FinanceForm::Payment, "lblPPP", "lblAAA");

  on("txtRate", Event::GotFocus, [this](EventArgs&) {
    control("txtRate").Text = "";
    RateFocusClears();
  });
  on("txtRate", Event::KeyPress, [this](EventArgs& e) {
    if (e.KeyAscii != 13) return;
    if (table_.rateEnterToTerm) {
      control("scrYear").SetFocus();
    } else {
      PubRate();
      control("cmdCalculate").SetFocus();
    }
  });
  on("txtRate", Event::LostFocus, [this](EventArgs&) {
    PubRate();
    PubCalc();
  });

  for (const auto& [label, box] : table_.labelFocus)
    on(label, Event::Click, [this, box = box](EventArgs&) { control(box).SetFocus(); });

  on("cmdCalculate", Event::Click, [this](EventArgs&) { CalculateClick(); });
  on("cmdClear", Event::Click, [this](EventArgs&) { PubClear(); });
  on("cmdExit", Event::Click, [this](EventArgs&) { Unload(); });
  for (const std::string& opt : table_.calcOptions)
    on(opt, Event::Click, [this](EventArgs&) { PubCalc(); });
}

void FinanceForm::amountBox(const std::string& name, Value FinanceForm::*target,
                            const std::string& ownLabel, const std::string& otherLabel) {
  const bool second = name == table_.secondBox;
  on(name, Event::GotFocus, [this, name, ownLabel, otherLabel](EventArgs&) {
    if (table_.focusClears) PubClear();
    control(name).ForeColor = kEditColour;
    control(ownLabel).Caption = "Base";
    control(otherLabel).Caption = "";
  });
  on(name, Event::KeyPress, [this, second](EventArgs& e) {
    if (e.KeyAscii != 13) return;
    if (AnnualRate < Value(table_.enterRateFloor) || AnnualRate > Value(1.5)) {
      control("txtRate").SetFocus();
      return;
    }
    if (second && table_.enterCalculatesSecond) PubCalc();
    control("cmdCalculate").SetFocus();
  });
  on(name, Event::LostFocus, [this, name, target](EventArgs&) {
    if (TakeAmount(control(name), this->*target, Mask.str())) PubCalc();
  });
}

bool FinanceForm::TakeAmount(Control& box, Value& target, std::string_view mask,
                             bool refuseNegative) {
  if (box.Text != "" && !IsNumeric(Value(box.Text))) {
    Refuse(box, kNumbersOnly);
    return false;
  }
  if (refuseNegative && Val(box.Text) < 0) {
    Refuse(box, kPositiveOnly);
    return false;
  }
  if (box.Text == "") box.Text = "0";
  target = CDec(Value(box.Text));
  box.ForeColor = 0;
  box.Text = Format(target, mask);
  return true;
}

void FinanceForm::Refuse(Control& box, const std::string& words) {
  MsgBox(words, 48, kFinanceTitle);
  box.Text = "";
  box.SetFocus();
}

void FinanceForm::PlaceBelowMenu() { Top = app().form("frmMain").Height + 360; }

bool FinanceForm::RateOutside() const { return AnnualRate < Value(0) || AnnualRate > Value(1.5); }

void FinanceForm::RateGuard() {
  if (RateOutside()) PubRate();
}

void FinanceForm::PubRate() {
  Control& box = control("txtRate");
  Control& bar = control("scrRate");
  if (box.Text == "") {
    AnnualRate = bar.value() / Value(20000);
    if (table_.zeroBelowTen && bar.value() < Value(10)) AnnualRate = Value(0);
    box.Text = Format(AnnualRate * Value(100), " #0.00##");
    ScrollRate = AnnualRate * Value(20000);
    MonthlyRate = AnnualRate / Value(12);
    MonthlyFactor = Value(1) + MonthlyRate;
    return;
  }
  if (!IsNumeric(Value(box.Text))) {
    Refuse(box, kMustBeNumeric);
    return;
  }
  AnnualRate = CDec(Value(box.Text)) / Value(100);
  box.Text = Format(AnnualRate * Value(100), "#0.00###");
  const bool refused =
      table_.refusesZero ? AnnualRate > Value(1.5) || AnnualRate <= Value(0) : RateOutside();
  if (refused) {
    Refuse(box, table_.rateLimitWords);
    return;
  }
  InRateUpdate = 1;
  // The rate now has the five decimals the box shows, as a Real.
  AnnualRate = Value(Val(box.Text)) / Value(100);
  ScrollRate = AnnualRate * Value(20000);
  MonthlyRate = AnnualRate / Value(12);
  MonthlyFactor = Value(1) + MonthlyRate;
  // The box holds up to 150 %, the bar only up to 29.995 %. A bar that
  // starts higher than 10 (the present value's, at 98) stops at its own end.
  Value position = ScrollRate;
  if (position < Value(10)) position = Value(10);
  if (position < Value(bar.Min())) position = Value(bar.Min());
  if (position > Value(5999)) position = Value(5999);
  bar.setValue(position);
  InRateUpdate = 0;
}

void FinanceForm::PubClear() {
  Amount = Value(0);
  Payment = Value(0);
  control("txtAmount").Text = "";
  control(table_.secondBox).Text = "";
  control("lblAAA").Caption = table_.clearBaseCaption;
  control("lblPPP").Caption = table_.clearBaseCaption;
  if (table_.clearDropsRestMonths) RestMonths = Value(0);
}

void FinanceForm::RateFocusClears() {
  for (const std::string& label : table_.rateFocusEmpties) control(label).Caption = "";
  if (!table_.rateFocusEmptiesResult) return;
  if (control("lblPPP").Caption == "") control(table_.secondBox).Text = "";
  if (control("lblAAA").Caption == "") control("txtAmount").Text = "";
}

void FinanceForm::PubYears() {
  Control& year = control("scrYear");
  Control& month = control("scrMonth");
  // A step down from a term with rest months first drops the rest months.
  const Value v = year.value();
  if (RestMonths > Value(0) && Years == v + Value(1)) {
    year.setValue(Years);
    RestMonths = Value(0);
  }
  Years = year.value();
  if (Years == Value(table_.yearMax) && RestMonths > Value(0)) {
    // The bar's last year with rest months would run past the longest term:
    // the term keeps its months and counts one year less, while the bar
    // stays at its end. Reached by a jump of the bar, the term is that year
    // and the rest months, as the captions show it.
    Years = Value(table_.yearMax - 1);
    Months = Years * Value(12) + RestMonths;
  } else if (!InMonthScroll) {
    Months = Years * Value(12);
  }
  InMonthScroll = false;
  if (Months < Value(1)) Months = Value(1);
  month.setValue(Months);
  control(table_.yearsLabel).Caption = CStr(Years);
  control("lblMonth").Caption = CStr(RestMonths);
}

void FinanceForm::PubMonths() {
  Months = control("scrMonth").value();
  Years = Int(Months / Value(12));
  RestMonths = Months - Value(12) * Years;
  control("lblMonth").Caption = CStr(RestMonths);
  InMonthScroll = true;
  Control& year = control("scrYear");
  if (Years < Value(year.Min())) {
    // A term shorter than the year bar's first step (the present value's bar
    // starts at 1): the bar rests at its end and the term keeps its months.
    year.setValue(Value(year.Min()));
    Years = Int(Months / Value(12));
    RestMonths = Months - Value(12) * Years;
  } else {
    year.setValue(Years);
  }
  InMonthScroll = false;
  control(table_.yearsLabel).Caption = CStr(Years);
}

}  // namespace tessaron

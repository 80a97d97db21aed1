// The lease form's figure boxes: what entering one clears, how leaving one
// takes its figure and checks it against the others, and where Enter walks
// the detailed form. One row of the table a box.
#include "finance/auto.h"

namespace tessaron {

namespace {

// A comparison whose message is shown when it holds; the calculation goes on.
struct Check {
  Value frmAuto::*left;
  bool below;  // left below right; otherwise left above right
  Value frmAuto::*right;
  const char* words;
};

// A shown figure that depends on a box, with the variable behind it.
struct Shown {
  const char* label;
  Value frmAuto::*value;
};

}  // namespace

struct frmAuto::Box {
  const char* name;
  Value frmAuto::*value;
  const char* mask = nullptr;  // nullptr: the amount mask
  bool refuseNegative = true;
  // Entering the box recalculates with its figure at 0 before editing.
  bool calcOnFocus = false;
  std::vector<Shown> clears;
  // The first check that holds shows its message; the others are skipped.
  std::vector<Check> checks;
  // The simple amount is also the price, for the checks and the detailed form.
  bool setsPrice = false;
  // Enter: a rate out of range sends the user to the rate first; a figure
  // still at 0 further down the detailed form is the next stop.
  bool enterRateTest = false;
  bool enterStaysIfNegative = false;
  const char* enterNext = nullptr;
  Value frmAuto::*enterNextWhenZero = nullptr;
};

const std::vector<frmAuto::Box>& frmAuto::Boxes() {
  const Shown pay{"lblPay", &frmAuto::Payment}, sum{"lblSum", &frmAuto::TotalPaid};
  static const std::vector<Box> boxes = {
      {.name = "txtAmountAA",
       .value = &frmAuto::SimpleAmount,
       .clears = {pay, sum},
       .checks = {{&frmAuto::SimpleAmount, true, &frmAuto::OtherCosts,
                   "Amount is less than OTHER COSTS ! "},
                  {&frmAuto::SimpleAmount, true, &frmAuto::DownPayment,
                   "Amount is less than DOWN PAYMENT ! "}},
       .setsPrice = true},
      {.name = "txtPrice",
       .value = &frmAuto::Price,
       .clears =
           {{"lblCash", &frmAuto::CashCost}, {"lblAmountPP", &frmAuto::DetailAmount}, pay, sum},
       .checks = {{&frmAuto::Price, true, &frmAuto::OtherCosts,
                   "PRICE is less than OTHER COSTS ! "},
                  {&frmAuto::Price, true, &frmAuto::DownPayment,
                   "PRICE is less than DOWN PAYMENT ! "}},
       .enterRateTest = true,
       .enterNext = "txtCost",
       .enterNextWhenZero = &frmAuto::OtherCosts},
      {.name = "txtCost",
       .value = &frmAuto::OtherCosts,
       .calcOnFocus = true,
       .checks = {{&frmAuto::OtherCosts, false, &frmAuto::Price,
                   "LEASE COST is mores than PRICE ! "}},
       .enterStaysIfNegative = true,
       .enterNext = "txtResidual",
       .enterNextWhenZero = &frmAuto::Residual},
      {.name = "txtResidual",
       .value = &frmAuto::Residual,
       .calcOnFocus = true,
       .checks = {{&frmAuto::Residual, false, &frmAuto::Price,
                   "Residual Value is more than PRICE ! "}},
       .enterRateTest = true,
       .enterNext = "txtDown",
       .enterNextWhenZero = &frmAuto::DownPayment},
      {.name = "txtDown",
       .value = &frmAuto::DownPayment,
       .calcOnFocus = true,
       .checks = {{&frmAuto::DownPayment, false, &frmAuto::Price,
                   "LEASE DOWN PAYMENT is more than PRICE ! "}},
       .enterRateTest = true,
       .enterNext = "txtRebate",
       .enterNextWhenZero = &frmAuto::Rebate},
      {.name = "txtRebate",
       .value = &frmAuto::Rebate,
       .refuseNegative = false,  // other charges may outweigh the rebate
       .calcOnFocus = true,
       .checks = {{&frmAuto::Rebate, false, &frmAuto::Price, "REBATE is more than PRICE ! "}}},
      {.name = "txtTaxRate", .value = &frmAuto::TaxRate, .mask = "##0.###", .calcOnFocus = true},
      {.name = "txtExtra", .value = &frmAuto::ExtraCost, .clears = {sum}},
  };
  return boxes;
}

void frmAuto::wireBoxes() {
  for (const Box& box : Boxes()) {
    on(box.name, Event::GotFocus, [this, &box](EventArgs&) { BoxGotFocus(box); });
    on(box.name, Event::LostFocus, [this, &box](EventArgs&) { BoxLostFocus(box); });
    on(box.name, Event::KeyPress, [this, &box](EventArgs& e) {
      if (e.KeyAscii == 13) BoxEnter(box);
    });
  }
}

void frmAuto::BoxGotFocus(const Box& box) {
  Control& c = control(box.name);
  c.Text = "";
  this->*box.value = Value(0);
  if (box.calcOnFocus) PubCalc();
  c.ForeColor = kEditColour;
  for (const Shown& s : box.clears) {
    control(s.label).Caption = "";
    this->*s.value = Value(0);
  }
}

void frmAuto::BoxLostFocus(const Box& box) {
  const std::string mask = box.mask ? box.mask : Mask.str();
  if (!TakeAmount(control(box.name), this->*box.value, mask, box.refuseNegative)) return;
  if (box.setsPrice) Price = SimpleAmount;
  for (const Check& k : box.checks) {
    const Value& a = this->*k.left;
    const Value& b = this->*k.right;
    if (k.below ? a < b : a > b) {
      MsgBox(k.words, 48, kFinanceTitle);
      break;
    }
  }
  PubCalc();
}

void frmAuto::BoxEnter(const Box& box) {
  if (box.enterStaysIfNegative && this->*box.value < Value(0)) return;
  if (box.enterRateTest && RateOutside()) {
    control("txtRate").SetFocus();
    return;
  }
  if (box.enterNext && this->*box.enterNextWhenZero == Value(0)) {
    control(box.enterNext).SetFocus();
    return;
  }
  PubCalc();
  control("cmdCalculate").SetFocus();
}

}  // namespace tessaron

// The annuity form's face: the two amounts on the left, rate and term on the
// right, the keys below.
#include "finance/annuity.h"
#include "finance/design_rows.h"

namespace tessaron {

namespace {
using K = ControlKind;

Design key(std::string name, std::string caption, std::string tip, int left) {
  return {.kind = K::CommandButton,
          .name = std::move(name),
          .caption = std::move(caption),
          .tip = std::move(tip),
          .left = left,
          .top = 240,
          .width = 1935,
          .height = 555,
          .container = "Frame3"};
}
}  // namespace

std::vector<Design> AnnuityDesign() {
  return {
      AmountsFrame(),
      FieldLabel("lblAmount", "Future Amount", 300, "Frame1"),
      AmountBox("txtAmount", 240),
      BaseLabel("lblAAA", " To calculate based on Future Amount  ", 300),
      FieldLabel("lblPay", "Monthly  Payment", 840, "Frame1"),
      AmountBox("txtPay", 780),
      BaseLabel("lblPPP", " To calculate based on Monthly payment ", 840),
      FieldLabel("lblSm", "Sum of Payments", 1380, "Frame1"),
      SumLabel("lblSum"),
      RateFrame(),
      RateLabel("Annual P. Rate"),
      RateBox(),
      PercentLabel(),
      RateBar(9),
      TermLabel("lblTerm", "Period"),
      YearsLabel("lblYears", "3"),
      YearsUnitLabel(),
      MonthsLabel(),
      MonthsUnitLabel(),
      YearBar(0, 50, 6, 3),
      MonthBar(600, 1, 36),
      KeysFrame(975),
      key("cmdCalculate", "Calculate", " Calculate ", 360),
      key("cmdClear", "Clear", " Clear inputted data ", 2520),
      key("cmdPrint", "Print", " Calculate ", 4680),
      key("cmdExit", "Exit", " Close Annuity ", 6840),
  };
}

}  // namespace tessaron

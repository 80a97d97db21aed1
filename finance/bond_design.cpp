#include "finance/bond.h"
#include "finance/design_rows.h"

namespace tessaron {

namespace {
using K = ControlKind;
}  // namespace

std::vector<Design> BondDesign() {
  return {
      // The two sums and the yield.
      AmountsFrame(),
      FieldLabel("lblPresent", "Present Amount", 300, "Frame1"),
      AmountBox("txtAmount", 240),
      BaseLabel("lblAAA", " To calculate based on Present Amount ", 300),
      FieldLabel("lblPay", "Future Amount", 840, "Frame1"),
      AmountBox("txtTom", 780),
      BaseLabel("lblPPP", " To calculate based on Future Amount ", 840),
      {.kind = K::Label,
       .name = "lblAPY1",
       .caption = "(Annual P. Yield =                     %)",
       .left = 120,
       .top = 1380,
       .width = 4335,
       .height = 285,
       .container = "Frame1"},
      {.kind = K::Label,
       .name = "lblAPY2",
       .left = 1500,
       .top = 1380,
       .width = 810,
       .height = 285,
       .container = "Frame1",
       .alignment = Align::Center},
      // The rate and the term.
      RateFrame(),
      RateLabel("Annual P. Rate"),
      RateBox(),
      PercentLabel(),
      RateBar(9),
      TermLabel("lblTerms", "Terms"),
      YearsLabel("lblYears", "3"),
      YearsUnitLabel(),
      MonthsLabel(),
      MonthsUnitLabel(),
      YearBar(0, 50, 6, 3),
      MonthBar(600, 1, 36),
      // The compounding period and the keys.
      KeysFrame(1935),
      ChoiceFrame("Frame4", "Compound Interest", 120, 8895),
      Choice("optDay", "Daily", 240, 1335, "Frame4"),
      Choice("optOne", "Monthly", 1980, 1335, "Frame4"),
      DefaultChoice("optThree", "3 Months", 3720, 1335, "Frame4"),
      Choice("optSix", "6 Months", 5460, 1335, "Frame4"),
      Choice("optYear", "Yearly", 7200, 1335, "Frame4"),
      PanelKey("cmdCalculate", "Calculate", " Calculate ", 2400),
      PanelKey("cmdClear", "Clear", " Clear inputted data ", 3870),
      PanelKey("cmdPrint", "Print", " Print out ", 5340),
  };
}

}  // namespace tessaron

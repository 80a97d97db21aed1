#include "finance/design_rows.h"
#include "finance/present.h"

namespace tessaron {

namespace {
using K = ControlKind;
}  // namespace

std::vector<Design> PresentDesign() {
  return {
      // The amounts and the sum of the payments.
      AmountsFrame(),
      FieldLabel("lblPresent", "Present Amount ", 300, "Frame1"),
      AmountBox("txtAmount", 240),
      BaseLabel("lblAAA", " To calculate based on Present Amount ", 300),
      FieldLabel("lblPay", "Monthly  Payment", 840, "Frame1"),
      AmountBox("txtPay", 780),
      BaseLabel("lblPPP", " To calculate based on Monthly payment ", 840),
      FieldLabel("lblSum1", "Total Payment", 1380, "Frame1"),
      {.kind = K::Label,
       .name = "lblSum2",
       .left = 1620,
       .top = 1350,
       .width = 2055,
       .height = 345,
       .container = "Frame1",
       .fontSize = 12,
       .alignment = Align::Right},
      // The rate and the term.
      RateFrame(),
      RateLabel("Annual P. Rate"),
      RateBox(),
      PercentLabel(),
      RateBar(98),
      TermLabel("lblTerms", "Terms"),
      YearsLabel("lblYear", "10"),
      YearsUnitLabel(),
      MonthsLabel(),
      MonthsUnitLabel(),
      YearBar(1, 100, 1, 10),
      MonthBar(1200, 1, 120),
      // The kind of term, the first payment and the keys.
      KeysFrame(1935),
      ChoiceFrame("Lottery", "", 120, 4680),
      {.kind = K::OptionButton,
       .name = "optLmtd",
       .caption = "Limited Pay.  ( Lottery...)",
       .left = 120,
       .top = 240,
       .width = 2220,
       .height = 255,
       .container = "Lottery",
       .checked = true},
      Choice("optPerm", "Permanent Monthly Pay", 2340, 2280, "Lottery"),
      ChoiceFrame("Frame4", "1st Pay. starts : ", 4920, 4095),
      DefaultChoice("optNow", "at Beginning ", 120, 1935, "Frame4"),
      Choice("optLater", "1 Month Later", 2340, 1695, "Frame4"),
      PanelKey("cmdCalculate", "Calculate", " Calculate ", 2400),
      PanelKey("cmdClear", "Clear", " Clear inputted data ", 3870),
      PanelKey("cmdPrint", "Print", " Calculate ", 5340),
  };
}

}  // namespace tessaron

// The lease form's face. The left column holds the choice of form and either
// the simple lease amount or the detailed figures; the right column the rate
// and term, the tax and payment, the totals, the actual rate and the keys;
// the cautions and the due date stand on the far right. The panels of the
// right column move between the two layouts (see optSimple and optDetail).
#include "finance/auto.h"
#include "surface/design_rows.h"

namespace tessaron {

namespace {
using K = ControlKind;

constexpr int kColumn = 4395;  // width of a column's panels
constexpr int kCaptionW = 1695, kFigureX = 1860, kFigureW = 2355;

// Amounts are read larger than their captions and stand to the right.
Design amount(Design d, double font) {
  d.fontSize = font;
  d.alignment = Align::Right;
  return d;
}

Design frame(const char* name, const char* caption, int left, int top, int width, int height,
             const char* container = "", bool visible = true) {
  Design d = Row(K::Frame, name, -1, caption, "", left, top, width, height, container);
  d.visible = visible;
  return d;
}

Design label(const char* name, const char* caption, int left, int top, int width,
             const char* container, int height = 285, Align alignment = Align::Left) {
  Design d = Row(K::Label, name, -1, caption, "", left, top, width, height, container);
  d.alignment = alignment;
  return d;
}

// A caption at the head of a panel's row, left of its figure.
Design heading(const char* name, const char* caption, int top, const char* container,
               int height = 285) {
  return label(name, caption, 120, top, kCaptionW, container, height);
}

// A worked-out amount: the tip says what it holds.
Design figure(const char* name, const char* tip, int left, int top, int width,
              const char* container, double font = 11, int height = 315) {
  return amount(Row(K::Label, name, -1, "", tip, left, top, width, height, container), font);
}

Design box(const char* name, const char* tip, int left, int top, int width, const char* container,
           double font = 11) {
  return amount(Row(K::TextBox, name, -1, "", tip, left, top, width, 375, container), font);
}

Design option(const char* name, const char* caption, const char* tip, int left, int top, int width,
              int height, const char* container, bool checked = false) {
  Design d = Row(K::OptionButton, name, -1, caption, tip, left, top, width, height, container);
  d.checked = checked;
  return d;
}

Design bar(const char* name, int left, int top, int width, int min, int max, int largeChange,
           int value) {
  return ScrollRow(K::HScrollBar, name, left, top, width, 255, "frmTermsRate", min, max,
                   largeChange, value);
}

Design key(const char* name, const char* caption, const char* tip, int left) {
  return Row(K::CommandButton, name, -1, caption, tip, left, 210, 1275, 495, "frmExit");
}

// Each caution is as tall as the lines its words wrap to.
Design caution(int index, const char* words, int top, int lines) {
  Design d = label("lblCtn", words, 120, top, 3015, "frnCautions", lines * 210);
  d.index = index;
  return d;
}
}  // namespace

std::vector<Design> AutoDesign() {
  return {
      frame("frmChoice", "Calc. Choice", 150, 120, kColumn, 615),
      option("optSimple", "Simple ", "", 360, 240, 1455, 285, "frmChoice", true),
      option("optDetail", "Detail ", "", 2160, 240, 1455, 285, "frmChoice"),

      frame("frmSimple", "", 150, 840, kColumn, 1515),
      heading("lblAmtAA", "Lease Amount", 600, "frmSimple"),
      box("txtAmountAA", " Actual Lease Amount ", kFigureX, 540, kFigureW, "frmSimple"),

      frame("frmDetail", "", 150, 840, kColumn, 5400),
      heading("lblPrice", "P R I C E", 300, "frmDetail"),
      box("txtPrice", " Negotiated Price ", kFigureX, 240, kFigureW, "frmDetail"),
      heading("lblCost", "Other Costs", 750, "frmDetail"),
      box("txtCost", " Other costs for buying or leasing ", kFigureX, 690, kFigureW, "frmDetail"),
      heading("lblCash2", "Cash Buying", 1200, "frmDetail"),
      figure("lblCash", " Cost of Cash Buying  ", kFigureX, 1170, kFigureW, "frmDetail"),
      frame("frmTax", "", 120, 1530, 4155, 690, "frmDetail", false),
      label("lblTax", "Salex Tax                                       not included", 120, 150,
            1455, "frmTax", 450),
      figure("lblTax2", " Cost of Cash Buying  ", 1740, 180, kFigureW, "frmTax"),
      heading("lblDown", "Down Payment", 2400, "frmDetail"),
      box("txtDown", " Down Payment ", kFigureX, 2340, kFigureW, "frmDetail"),
      heading("lblRebate", "Rebate+Trade in", 2850, "frmDetail"),
      box("txtRebate", " Rebate + Trade in + Other Deduct - Other Charges ", kFigureX, 2790,
          kFigureW, "frmDetail"),
      heading("lblResidual", "Residual Value", 3300, "frmDetail"),
      box("txtResidual", " Residual Value at end of Lease  ", kFigureX, 3240, kFigureW,
          "frmDetail"),
      heading("lblResidual2", "(end-buying price)", 3555, "frmDetail"),
      heading("lblAmtPP", "Lease Amount", 3990, "frmDetail"),
      heading("lblAmtPPP", "(calculated from above)", 4245, "frmDetail", 450),
      figure("lblAmountPP", " Acutal Lease Amount calculated from above data ", kFigureX, 3990,
             kFigureW, "frmDetail"),

      frame("frmTermsRate", "", 4680, 120, kColumn, 1950),
      heading("lblRate", "Annual P. Rate", 300, "frmTermsRate"),
      box("txtRate", " Type in or Scroll Bar ", kFigureX, 240, 1335, "frmTermsRate", 12),
      label("lblPct", "  %", 3240, 300, 495, "frmTermsRate"),
      bar("scrRate", 120, 720, 4155, 9, 6000, 20, 1000),
      label("lblTerm", "Period", 120, 1110, 855, "frmTermsRate"),
      label("lblYears", "3", 1020, 1110, 495, "frmTermsRate", 285, Align::Right),
      label("lblYr", "Years", 1560, 1110, 615, "frmTermsRate"),
      label("lblMonth", "0", 2280, 1110, 495, "frmTermsRate", 285, Align::Right),
      label("lblMn", "Months", 2820, 1110, 735, "frmTermsRate"),
      bar("scrYear", 120, 1470, 2040, 0, 50, 6, 3),
      bar("scrMonth", 2235, 1470, 2040, 600, 1, 12, 36),

      frame("frmTaxMonth", "", 4680, 180, kColumn, 1290),
      heading("lblSalesTax", "Sales Tax Rate", 300, "frmTaxMonth"),
      box("txtTaxRate", "Type in Sales Tax Rate ", kFigureX, 240, 1335, "frmTaxMonth"),
      label("lblPay2", "Monthly Payment (with Sales Tax)", 120, 750, 1455, "frmTaxMonth", 270),
      figure("lblPay", " Each Monthly Payment of Lease ", kFigureX, 690, kFigureW, "frmTaxMonth",
             12, 375),

      frame("frmTotal", "", 4680, 1710, kColumn, 1035),
      heading("lblExtra", "Extra Cost  at End", 270, "frmTotal"),
      box("txtExtra", " Extra Cost + Buying Price(when Residual Value=0) at end of  Lease ",
          kFigureX, 210, kFigureW, "frmTotal"),
      heading("lblTtl", "Total Payment ", 690, "frmTotal"),
      figure("lblSum", " Total Monthly Payment + Extra Cost of End ", kFigureX, 660, kFigureW,
             "frmTotal"),

      frame("frmExtra", "", 4680, 2805, kColumn, 630, "", false),
      label("lblActual", "Actual  paying Annual P. Rate  ", 120, 240, 2535, "frmExtra"),
      figure("lblAct2", " Actual A.P.Rate for including other cost or buying  ", 2640, 210, 1155,
             "frmExtra"),
      label("lblAct3", "  %", 3840, 240, 450, "frmExtra"),

      frame("frmExit", "", 4680, 3660, kColumn, 855),
      key("cmdCalculate", "Calc.", " Calculate ", 180),
      key("cmdClear", "Clear", " Clear inputted data ", 1575),
      key("cmdPrint", "Print", " Clear inputted data ", 2970),

      frame("frnCautions", "  Lease ???  ", 9225, 120, 3255, 2895),
      caution(0, "1. Sales tax is added on interest portion.", 240, 2),
      caution(
          1,
          "wrong. Residual value: It's an extra income of Lessor, it means extra loss to Lessee.",
          705, 3),
      caution(2, "3. Higher insurance coverage is required. ", 1380, 2),
      caution(3, "x. Higher cost to keep the item.", 1845, 1),
      caution(4, "5. Subject to extra loss when traded.", 2100, 1),
      caution(5, "6. better delete. Tax deductible? No-lose-no-deduct better.", 2355, 2),
      frame("Frame5", " Payment Due by  ", 9225, 3135, 3255, 1380),
      option("optEnd",
             "End of Month    =                                1st of Month with skip 1st Month",
             " default ", 120, 300, 3015, 495, "Frame5", true),
      option("optFirst", "First of Month", "", 120, 900, 3015, 285, "Frame5"),
  };
}

}  // namespace tessaron

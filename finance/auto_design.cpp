// The lease form's face. The left column holds the choice of form and either
// the simple lease amount or the detailed figures; the right column the rate
// and term, the tax and payment, the totals, the actual rate and the keys;
// the cautions and the due date stand on the far right. The panels of the
// right column move between the two layouts (see optSimple and optDetail).
#include "finance/auto.h"

namespace tessaron {

namespace {
using K = ControlKind;

Design label(std::string name, std::string caption, int left, int top, int width,
             std::string container, int height = 285) {
  return {.kind = K::Label,
          .name = std::move(name),
          .caption = std::move(caption),
          .left = left,
          .top = top,
          .width = width,
          .height = height,
          .container = std::move(container)};
}

Design figure(std::string name, std::string tip, int left, int top, int width,
              std::string container) {
  return {.kind = K::Label,
          .name = std::move(name),
          .tip = std::move(tip),
          .left = left,
          .top = top,
          .width = width,
          .height = 315,
          .container = std::move(container),
          .fontSize = 11,
          .alignment = Align::Right};
}

Design box(std::string name, std::string tip, int left, int top, int width, std::string container) {
  return {.kind = K::TextBox,
          .name = std::move(name),
          .tip = std::move(tip),
          .left = left,
          .top = top,
          .width = width,
          .height = 375,
          .container = std::move(container),
          .fontSize = 11,
          .alignment = Align::Right};
}

Design frame(std::string name, std::string caption, int left, int top, int width, int height,
             std::string container = "") {
  return {.kind = K::Frame,
          .name = std::move(name),
          .caption = std::move(caption),
          .left = left,
          .top = top,
          .width = width,
          .height = height,
          .container = std::move(container)};
}

constexpr int kColumn = 4395;  // width of a column's panels
constexpr int kCaptionW = 1695, kFigureX = 1860, kFigureW = 2355;

// One row of the detailed form: a caption and its box.
void row(std::vector<Design>& t, std::string caption, std::string name, std::string tip, int top,
         std::string captionName) {
  t.push_back(
      label(std::move(captionName), std::move(caption), 120, top + 60, kCaptionW, "frmDetail"));
  t.push_back(box(std::move(name), std::move(tip), kFigureX, top, kFigureW, "frmDetail"));
}

const char* const kCautions[] = {
    "1. Sales tax is added on interest portion.",
    "wrong. Residual value: It's an extra income of Lessor, it means extra loss to Lessee.",
    "3. Higher insurance coverage is required. ",
    "x. Higher cost to keep the item.",
    "5. Subject to extra loss when traded.",
    "6. better delete. Tax deductible? No-lose-no-deduct better.",
};
}  // namespace

std::vector<Design> AutoDesign() {
  std::vector<Design> t;
  t.push_back(frame("frmChoice", "Calc. Choice", 150, 120, kColumn, 615));
  t.push_back({.kind = K::OptionButton,
               .name = "optSimple",
               .caption = "Simple ",
               .left = 360,
               .top = 240,
               .width = 1455,
               .height = 285,
               .container = "frmChoice",
               .checked = true});
  t.push_back({.kind = K::OptionButton,
               .name = "optDetail",
               .caption = "Detail ",
               .left = 2160,
               .top = 240,
               .width = 1455,
               .height = 285,
               .container = "frmChoice"});

  t.push_back(frame("frmSimple", "", 150, 840, kColumn, 1515));
  t.push_back(label("lblAmtAA", "Lease Amount", 120, 600, kCaptionW, "frmSimple"));
  t.push_back(box("txtAmountAA", " Actual Lease Amount ", kFigureX, 540, kFigureW, "frmSimple"));

  t.push_back(frame("frmDetail", "", 150, 840, kColumn, 5400));
  row(t, "P R I C E", "txtPrice", " Negotiated Price ", 240, "lblPrice");
  row(t, "Other Costs", "txtCost", " Other costs for buying or leasing ", 690, "lblCost");
  t.push_back(label("lblCash2", "Cash Buying", 120, 1200, kCaptionW, "frmDetail"));
  t.push_back(figure("lblCash", " Cost of Cash Buying  ", kFigureX, 1170, kFigureW, "frmDetail"));
  Design tax = frame("frmTax", "", 120, 1530, 4155, 690, "frmDetail");
  tax.visible = false;
  t.push_back(tax);
  t.push_back(label("lblTax", "Salex Tax                                       not included", 120,
                    150, 1455, "frmTax", 450));
  t.push_back(figure("lblTax2", " Cost of Cash Buying  ", 1740, 180, kFigureW, "frmTax"));
  row(t, "Down Payment", "txtDown", " Down Payment ", 2340, "lblDown");
  row(t, "Rebate+Trade in", "txtRebate", " Rebate + Trade in + Other Deduct - Other Charges ", 2790,
      "lblRebate");
  row(t, "Residual Value", "txtResidual", " Residual Value at end of Lease  ", 3240, "lblResidual");
  t.push_back(label("lblResidual2", "(end-buying price)", 120, 3555, kCaptionW, "frmDetail"));
  t.push_back(label("lblAmtPP", "Lease Amount", 120, 3990, kCaptionW, "frmDetail"));
  t.push_back(
      label("lblAmtPPP", "(calculated from above)", 120, 4245, kCaptionW, "frmDetail", 450));
  t.push_back(figure("lblAmountPP", " Acutal Lease Amount calculated from above data ", kFigureX,
                     3990, kFigureW, "frmDetail"));

  t.push_back(frame("frmTermsRate", "", 4680, 120, kColumn, 1950));
  t.push_back(label("lblRate", "Annual P. Rate", 120, 300, kCaptionW, "frmTermsRate"));
  Design rate = box("txtRate", " Type in or Scroll Bar ", kFigureX, 240, 1335, "frmTermsRate");
  rate.fontSize = 12;
  t.push_back(rate);
  t.push_back(label("lblPct", "  %", 3240, 300, 495, "frmTermsRate"));
  t.push_back({.kind = K::HScrollBar,
               .name = "scrRate",
               .left = 120,
               .top = 720,
               .width = 4155,
               .height = 255,
               .container = "frmTermsRate",
               .min = 9,
               .max = 6000,
               .smallChange = 1,
               .largeChange = 20,
               .value = 1000});
  t.push_back(label("lblTerm", "Period", 120, 1110, 855, "frmTermsRate"));
  Design years = label("lblYears", "3", 1020, 1110, 495, "frmTermsRate");
  years.alignment = Align::Right;
  t.push_back(years);
  t.push_back(label("lblYr", "Years", 1560, 1110, 615, "frmTermsRate"));
  Design months = label("lblMonth", "0", 2280, 1110, 495, "frmTermsRate");
  months.alignment = Align::Right;
  t.push_back(months);
  t.push_back(label("lblMn", "Months", 2820, 1110, 735, "frmTermsRate"));
  t.push_back({.kind = K::HScrollBar,
               .name = "scrYear",
               .left = 120,
               .top = 1470,
               .width = 2040,
               .height = 255,
               .container = "frmTermsRate",
               .min = 0,
               .max = 50,
               .smallChange = 1,
               .largeChange = 6,
               .value = 3});
  t.push_back({.kind = K::HScrollBar,
               .name = "scrMonth",
               .left = 2235,
               .top = 1470,
               .width = 2040,
               .height = 255,
               .container = "frmTermsRate",
               .min = 600,
               .max = 1,
               .smallChange = 1,
               .largeChange = 12,
               .value = 36});

  t.push_back(frame("frmTaxMonth", "", 4680, 180, kColumn, 1290));
  t.push_back(label("lblSalesTax", "Sales Tax Rate", 120, 300, kCaptionW, "frmTaxMonth"));
  t.push_back(box("txtTaxRate", "Type in Sales Tax Rate ", kFigureX, 240, 1335, "frmTaxMonth"));
  t.push_back(
      label("lblPay2", "Monthly Payment (with Sales Tax)", 120, 750, 1455, "frmTaxMonth", 270));
  Design pay =
      figure("lblPay", " Each Monthly Payment of Lease ", kFigureX, 690, kFigureW, "frmTaxMonth");
  pay.fontSize = 12;
  pay.height = 375;
  t.push_back(pay);

  t.push_back(frame("frmTotal", "", 4680, 1710, kColumn, 1035));
  t.push_back(label("lblExtra", "Extra Cost  at End", 120, 270, kCaptionW, "frmTotal"));
  t.push_back(box("txtExtra", " Extra Cost + Buying Price(when Residual Value=0) at end of  Lease ",
                  kFigureX, 210, kFigureW, "frmTotal"));
  t.push_back(label("lblTtl", "Total Payment ", 120, 690, kCaptionW, "frmTotal"));
  t.push_back(figure("lblSum", " Total Monthly Payment + Extra Cost of End ", kFigureX, 660,
                     kFigureW, "frmTotal"));

  Design extra = frame("frmExtra", "", 4680, 2805, kColumn, 630);
  extra.visible = false;
  t.push_back(extra);
  t.push_back(label("lblActual", "Actual  paying Annual P. Rate  ", 120, 240, 2535, "frmExtra"));
  t.push_back(figure("lblAct2", " Actual A.P.Rate for including other cost or buying  ", 2640, 210,
                     1155, "frmExtra"));
  t.push_back(label("lblAct3", "  %", 3840, 240, 450, "frmExtra"));

  t.push_back(frame("frmExit", "", 4680, 3660, kColumn, 855));
  const char* keys[][3] = {{"cmdCalculate", "Calc.", " Calculate "},
                           {"cmdClear", "Clear", " Clear inputted data "},
                           {"cmdPrint", "Print", " Clear inputted data "}};
  for (int i = 0; i < 3; ++i)
    t.push_back({.kind = K::CommandButton,
                 .name = keys[i][0],
                 .caption = keys[i][1],
                 .tip = keys[i][2],
                 .left = 180 + i * 1395,
                 .top = 210,
                 .width = 1275,
                 .height = 495,
                 .container = "frmExit"});

  // Each caution gets the lines its words wrap to.
  t.push_back(frame("frnCautions", "  Lease ???  ", 9225, 120, 3255, 2895));
  const int lines[] = {2, 3, 2, 1, 1, 2};
  for (int i = 0, top = 240; i < 6; top += lines[i] * 210 + 45, ++i) {
    Design line = label("lblCtn", kCautions[i], 120, top, 3015, "frnCautions", lines[i] * 210);
    line.index = i;
    t.push_back(line);
  }
  t.push_back(frame("Frame5", " Payment Due by  ", 9225, 3135, 3255, 1380));
  t.push_back({.kind = K::OptionButton,
               .name = "optEnd",
               .caption = "End of Month    =                                1st of Month with skip "
                          "1st Month",
               .tip = " default ",
               .left = 120,
               .top = 300,
               .width = 3015,
               .height = 495,
               .container = "Frame5",
               .checked = true});
  t.push_back({.kind = K::OptionButton,
               .name = "optFirst",
               .caption = "First of Month",
               .left = 120,
               .top = 900,
               .width = 3015,
               .height = 285,
               .container = "Frame5"});
  return t;
}

}  // namespace tessaron

// The chart's face. The cells stand in three columns of twelve rows; the
// narrow layout shows AAA and BBB with the relation options stacked on the
// right, the wide one opens the third column there and lays the options out
// in a row along the foot.
#include "chart/layout.h"
#include "chart/ovisum.h"
#include "surface/design_rows.h"

namespace tessaron {

namespace {
using K = ControlKind;
using namespace chart_layout;

Design cellBox(int index, int left, int top) {
  return {.kind = K::TextBox,
          .name = "txtAAA",
          .index = index,
          .left = left,
          .top = top,
          .width = kCellW,
          .height = kCellH,
          .fontSize = 12,
          .alignment = Align::Right};
}

Design button(const char* name, const char* caption, const char* tip, int slot) {
  return Row(K::CommandButton, name, -1, caption, tip, 120 + slot * kButtonPitch, kButtonTop,
             kButtonW, 420);
}

Design option(const char* name, int index, const char* caption, const char* tip, int left, int top,
              int width, const char* frame, bool checked = false) {
  Design d = Row(K::OptionButton, name, index, caption, tip, left, top, width, 285, frame);
  d.checked = checked;
  return d;
}

Design label(const char* name, int index, std::string caption, int left, int top, int width,
             Align align = Align::Right, double font = 0) {
  return {.kind = K::Label,
          .name = name,
          .index = index,
          .caption = std::move(caption),
          .left = left,
          .top = top,
          .width = width,
          .height = kCellH - 60,
          .fontSize = font,
          .alignment = align};
}
}  // namespace

std::vector<Design> OviSum::designTable() {
  std::vector<Design> t;
  // The third column's results, beneath the third data column's cells,
  // which cover them when both are shown.
  for (int r = 1; r <= 12; ++r) {
    Design d = label("lblAns", r, "", ColumnLeft(2), RowTop(r), kCellW, Align::Right, 12);
    d.height = kCellH;
    d.visible = false;
    t.push_back(d);
  }

  // The sentinel before the first cell turns a back-tab to Calc.
  t.push_back({.kind = K::TextBox, .name = "txtAAA", .index = 0, .width = 15, .height = 15});
  for (int i = 1; i <= 36; ++i) {
    Design d = cellBox(i, ColumnLeft((i - 1) / 12), RowTop((i - 1) % 12 + 1));
    d.visible = i <= 24;
    t.push_back(d);
  }
  // The sentinel after the last cell turns a tab to Calc.
  t.push_back({.kind = K::TextBox, .name = "txtAAA", .index = 37, .width = 15, .height = 15});

  // Heads of the columns.
  t.push_back(label("lblDebit", 0, " AAA  ", ColumnLeft(0), kHeadTop, kCellW, Align::Center, 10));
  t.push_back(label("lblDebit", 1, " BBB ", ColumnLeft(1), kHeadTop, kCellW, Align::Center, 10));
  t.push_back(label("lblThird", -1, "", ColumnLeft(2), kHeadTop, kCellW, Align::Center, 10));

  // Row numbers: one a row in the two-column modes, one a cell with three.
  t.push_back(label("Label1", 0, "T", kNumberLeft, TotalTop(), kNumberW, Align::Right, 10));
  for (int r = 1; r <= 12; ++r)
    t.push_back(label("Label1", r, std::to_string(r), kNumberLeft, RowTop(r) + 60, kNumberW,
                      Align::Right, 10));
  for (int i = 1; i <= 36; ++i) {
    Design d = {.kind = K::TextBox,
                .name = "txtMonth",
                .index = i,
                .caption = std::to_string(i),
                .left = ColumnLeft((i - 1) / 12) - kNumberW - 30,
                .top = RowTop((i - 1) % 12 + 1),
                .width = kNumberW,
                .height = kCellH,
                .visible = false,
                .alignment = Align::Right,
                .locked = true,
                .tabStop = false};
    t.push_back(d);
  }

  // Rulings above the column sums, and above and below the grand figure.
  auto ruling = [&](int index, int column, int y) {
    t.push_back({.kind = K::Line,
                 .name = "lineSai",
                 .index = index,
                 .x1 = static_cast<double>(ColumnLeft(column)),
                 .y1 = static_cast<double>(y),
                 .x2 = static_cast<double>(ColumnLeft(column) + kCellW),
                 .y2 = static_cast<double>(y)});
  };
  ruling(1, 0, TotalTop() - 45);
  ruling(2, 1, TotalTop() - 45);
  ruling(3, 1, GrandTop() - 45);
  ruling(4, 1, GrandTop() + kCellH + 30);

  // The totals: 0 total or balance, 1 AAA, 2 BBB, 3 third data column, 4
  // third-column results.
  auto amount = [&](int index, int left, int top, bool visible) {
    Design d = label("lblAmt", index, "", left, top, kCellW, Align::Right, 12);
    d.height = kCellH;
    d.visible = visible;
    t.push_back(d);
  };
  amount(0, ColumnLeft(1), GrandTop(), true);
  amount(1, ColumnLeft(0), TotalTop(), true);
  amount(2, ColumnLeft(1), TotalTop(), true);
  amount(3, ColumnLeft(2), TotalTop(), false);
  amount(4, ColumnLeft(2), TotalTop(), false);

  // The decimals.
  t.push_back({.kind = K::Frame,
               .name = "Frame2",
               .caption = " Decimal Point  ",
               .left = 120,
               .top = kOptionTop,
               .width = 3700,
               .height = 600});
  t.push_back(option("optAuto", -1, "Auto", " Automatically show 0, 2 or max. digits of decimals ",
                     150, 240, 900, "Frame2", true));
  t.push_back(option("optTwo", -1, "2", " Show 2 digits of decimals w/roundings ", 1110, 240, 800,
                     "Frame2"));
  t.push_back(option("optFull", -1, "Full", " Show full decimals ", 1970, 240, 900, "Frame2"));
  t.push_back(
      option("optZero", -1, "0", " Delete decimals w/roundings ", 2930, 240, 800, "Frame2"));
  // Total or balance.
  t.push_back(
      option("optTtl", -1, "Total", " Sum of all data ", 3960, kOptionTop + 240, 900, "", true));
  t.push_back(option("optBal", -1, "Balance", " Difference of DDD & CCC ", 4860, kOptionTop + 240,
                     1100, ""));

  // The relations of AAA and BBB; PubSizeAA and PubSizeBB place them.
  t.push_back({.kind = K::Frame,
               .name = "frmExtra",
               .caption = "Relations of ",
               .left = kPanelLeft - 60,
               .top = kHeadTop,
               .width = kPanelW + 120,
               .height = 7 * kStackPitch + 840});
  t.push_back({.kind = K::Frame,
               .name = "Frame3",
               .caption = " AAA ? BBB ",
               .left = kPanelLeft,
               .top = kHeadTop + 360,
               .width = kPanelW,
               .height = 7 * kStackPitch + 300});
  static const char* const kSigns[7][2] = {
      {"No", " Use only 2 columns "},          {"+", " Show sum of each row "},
      {" -", " Show difference of each row "}, {"  X  ", " Show multiple of each row "},
      {"A / B", " Show DDD/CCC of each row "}, {"B / A", " Show CCC/DDD of each row "},
      {"ABC full", " Use sum of 3 columns "},
  };
  for (int i = 0; i <= 6; ++i) {
    const Place p = SignStacked(i);
    t.push_back(
        option("optSign", i, kSigns[i][0], kSigns[i][1], p.left, p.top, p.width, "Frame3", i == 0));
  }

  t.push_back(button("cmdCalc", "Calc.", " Calculate ", 0));
  t.push_back(button("cmdDitto", "Ditto", " Ditto from above Cell ", 1));
  t.push_back(button("cmdCcc", "Clear 1", " Delete 1 data ", 2));
  t.push_back(button("cmdClear", "Clear All", " Delete all data ", 3));
  t.push_back(button("cmdCopyD", "Copy", " Copy Bal/Total ", 4));
  t.push_back(button("cmdPrint", "Print", " Print out ", 5));
  t.push_back(button("cmdExit", "Exit", " Close Ovi Sum ", 6));

  t.push_back(
      {.kind = K::TextBox, .name = "txtCopyD", .width = 15, .height = 15, .visible = false});
  return t;
}

}  // namespace tessaron

// The table and the two boxes: a click on a conversion cell chooses the pair
// of units, and a number typed in either box is converted into the other.
#include "units/conver.h"

#include "surface/application.h"
#include "units/unit_table.h"

namespace tessaron {

namespace {
constexpr const char* kTitle = "Tessaron";
constexpr const char* kNumbersOnly = " Please Enter Numbers Only ! ";
constexpr long kEditColour = 0xFF0000;  // blue text of a box under edit
// Width of each column, so that the widest fact of the column fits; the
// first, fixed column holds nothing and takes no room.
constexpr int kColWidths[] = {0, 2050, 1700, 2000, 1850, 2450, 1550, 1650, 1800, 1650, 2250};
constexpr int kHeadingHeight = 300, kRowHeight = 285;
}  // namespace

frmConver::frmConver(Application& app)
    : Form(app, "frmConver", {.caption = "  Unit   Conversion  ", .width = 19380, .height = 5200},
           designTable()) {
  on("Table", Event::Click, [this](EventArgs&) { TableClick(); });
  on("txtAA", Event::GotFocus, [this](EventArgs&) { BoxGotFocus(control("txtAA")); });
  on("txtBB", Event::GotFocus, [this](EventArgs&) { BoxGotFocus(control("txtBB")); });
  for (const char* box : {"txtAA", "txtBB"})
    on(box, Event::KeyPress, [this](EventArgs& e) {
      if (e.KeyAscii == 13) control("Table").SetFocus();
    });
  on("txtAA", Event::LostFocus, [this](EventArgs&) { txtAALostFocus(); });
  on("txtBB", Event::LostFocus, [this](EventArgs&) { txtBBLostFocus(); });
  on("optCoun", Event::Click, [this](EventArgs& e) { optCounClick(e.Index); });
  on("optChoice", Event::Click, [this](EventArgs& e) { optChoiceClick(e.Index); });
  on("HscrAll", Event::Change, [this](EventArgs&) { HscrAllChange(); });
  on("cmdExit", Event::Click, [this](EventArgs&) { Unload(); });
}

void frmConver::Load() {
  Top = app().form("frmMain").Height + 360;
  MaskBig = "#,##0.";
  MaskMid = "#,##0.##";
  MaskSmall = "#,##0.####";
  MaskTiny = "#,##0.######";
  PubUnits();
  FillTable();
}

void frmConver::FillTable() {
  Grid& grid = control("Table").grid();
  const auto headings = UnitHeadings();
  for (int c = 1; c <= 10; ++c) grid.setTextMatrix(0, c, headings[c - 1]);
  for (const UnitCell& cell : UnitCells())
    if (!cell.korea) grid.setTextMatrix(cell.row, cell.col, cell.text);
  for (int c = 0; c < grid.Cols(); ++c) grid.setColWidth(c, kColWidths[c]);
  grid.setRowHeight(0, kHeadingHeight);
  for (int r = 1; r < grid.Rows(); ++r) grid.setRowHeight(r, kRowHeight);
  // The rows of Korea stand empty until that country is chosen.
  optCounClick(control("optCoun", kKorea).value() == Value(true) ? kKorea : kMostUsa);
}

void frmConver::optCounClick(int index) {
  Grid& grid = control("Table").grid();
  for (const UnitCell& cell : UnitCells())
    if (cell.korea) grid.setTextMatrix(cell.row, cell.col, index == kKorea ? cell.text : "");
}

// A cell that chooses nothing, or a unit of a country not shown, leaves the
// converter without a unit.
void frmConver::TableClick() {
  CurrentUnit = 0;
  const Grid& grid = control("Table").grid();
  const int k = UnitAt(grid.Col(), grid.Row());
  if (k == 0 || grid.Text() == "") return;
  CurrentUnit = k;
  PubChange(k);
}

void frmConver::PubChange(int k) {
  Control& txtAA = control("txtAA");
  Control& txtBB = control("txtBB");
  txtAA.Text = "";
  txtBB.Text = "";
  control("lblAA").Caption = UnitA[k];
  control("lblBB").Caption = UnitB[k];
  // Every conversion, the temperatures included, starts from one unit A.
  txtAA.ForeColor = 0;
  FromValue = Value(1);
  txtAA.Text = "1";
  ConvertForward();
  // One cubic inch is too small a part of a cubic metre to read: this cell
  // shows the whole metre instead.
  if (k == 22) {
    txtAA.Text = "61,024.";
    txtBB.Text = "1";
  }
}

void frmConver::ConvertForward() {
  const int k = CurrentUnit;
  ToValue = FromValue * UnitFactor[k];
  if (k == 71) ToValue = (FromValue - Value(32)) / Value(1.8);
  if (k == 72 || k == 73) ToValue = FromValue - UnitFactor[k];
  control("txtBB").Text = Shown(ToValue);
}

void frmConver::ConvertBack() {
  const int k = CurrentUnit;
  FromValue = ToValue / UnitFactor[k];
  if (k == 71) FromValue = ToValue * Value(1.8) + Value(32);
  if (k == 72 || k == 73) FromValue = ToValue + UnitFactor[k];
  FootOrFeet();
  control("txtAA").Text = Shown(FromValue);
}

// The more whole digits a figure has, the fewer decimals it shows.
std::string frmConver::Shown(const Value& v) const {
  const Value size = Abs(v);
  std::string mask = MaskTiny;
  if (size > Value(10)) mask = MaskSmall;
  if (size > Value(1000)) mask = MaskMid;
  if (size > Value(100000)) mask = MaskBig;
  return Format(v, mask);
}

void frmConver::FootOrFeet() {
  if (CurrentUnit == 2) control("lblAA").Caption = FromValue > Value(1) ? " feet " : " foot ";
}

// Until a cell is chosen there is nothing to convert: the focus goes back to
// the table. Once one is, the box is cleared for a new number.
void frmConver::BoxGotFocus(Control& box) {
  if (CurrentUnit == 0) {
    control("Table").SetFocus();
    return;
  }
  control("txtAA").Text = "";
  control("txtBB").Text = "";
  box.ForeColor = kEditColour;
}

bool frmConver::Refused(Control& box) {
  if (IsNumeric(Value(box.Text))) return false;
  MsgBox(kNumbersOnly, 48, kTitle);
  box.SetFocus();
  return true;
}

void frmConver::txtAALostFocus() {
  if (CurrentUnit == 0) {
    control("Table").SetFocus();
    return;
  }
  Control& box = control("txtAA");
  if (Refused(box)) return;
  box.ForeColor = 0;
  FromValue = Value(Val(box.Text));
  ConvertForward();
  FootOrFeet();
}

void frmConver::txtBBLostFocus() {
  if (CurrentUnit == 0) {
    control("Table").SetFocus();
    return;
  }
  Control& box = control("txtBB");
  if (Refused(box)) return;
  box.ForeColor = 0;
  ToValue = Value(Val(box.Text));
  ConvertBack();
}

}  // namespace tessaron

// Entry into the chart: loading, the cells' focus and validation, the
// keyboard moves, ditto, clearing, copying and the options. Every path that
// takes an amount ends in PubCalc, which repaints the cells from the model.
#include <cmath>
#include <string>

#include "chart/layout.h"
#include "chart/ovisum.h"
#include "surface/application.h"

namespace tessaron {

namespace {
constexpr long kWhite = 0xFFFFFF;
const long kRested = Rgb(255, 255, 204);

constexpr const char* kNumberOnly = " Please Enter Number Only ! ";
constexpr const char* kTooBig = " Too Big, Out of Range ! ";
constexpr const char* kTooSmall = " Sorry! Upto  0.000 001,  No Lower Numer. ";
constexpr const char* kTooLong = " Sorry!  Too  Long  ... ";
}  // namespace

OviSum::OviSum(Application& app)
    : Form(app, "OviSum",
           {.caption = "  Ovi   Sum                     ( 17  digits )  ",
            .width = 9380,
            .height = chart_layout::kFormHeight,
            .keyPreview = true},
           designTable()),
      chart(kept<ChartState>()) {
  wire();
}

void OviSum::wire() {
  on("txtAAA", Event::GotFocus, [this](EventArgs& e) { txtAAA_GotFocus(e.Index); });
  on("txtAAA", Event::LostFocus, [this](EventArgs& e) { txtAAA_LostFocus(e.Index); });
  on("txtAAA", Event::KeyPress, [this](EventArgs& e) { txtAAA_KeyPress(e.Index, e.KeyAscii); });
  on("Form", Event::KeyDown, [this](EventArgs& e) { Form_KeyDown(e.KeyCode); });
  on("cmdCalc", Event::Click, [this](EventArgs&) { cmdCalc_Click(); });
  on("cmdCalc", Event::GotFocus, [this](EventArgs&) { cmdCalc_GotFocus(); });
  on("cmdDitto", Event::Click, [this](EventArgs&) { cmdDitto_Click(); });
  on("cmdCcc", Event::Click, [this](EventArgs&) { cmdCcc_Click(); });
  on("cmdClear", Event::Click, [this](EventArgs&) { cmdClear_Click(); });
  on("cmdExit", Event::Click, [this](EventArgs&) { cmdExit_Click(); });
  on("cmdCopyD", Event::Click, [this](EventArgs&) { cmdCopyD_Click(); });
  on("cmdPrint", Event::Click, [this](EventArgs&) { cmdPrint_Click(); });
  on("optAuto", Event::Click, [this](EventArgs&) { optDecimal_Click(DecimalChoice::Auto); });
  on("optTwo", Event::Click, [this](EventArgs&) { optDecimal_Click(DecimalChoice::Two); });
  on("optFull", Event::Click, [this](EventArgs&) { optDecimal_Click(DecimalChoice::Full); });
  on("optZero", Event::Click, [this](EventArgs&) { optDecimal_Click(DecimalChoice::Zero); });
  on("optTtl", Event::Click, [this](EventArgs&) {
    if (Restoring) return;
    chart.Balance = false;
    PubBal();
    RestoreFocus();
  });
  on("optBal", Event::Click, [this](EventArgs&) {
    if (Restoring) return;
    chart.Balance = true;
    PubBal();
    RestoreFocus();
  });
  on("optSign", Event::Click, [this](EventArgs& e) { optSign_Click(e.Index); });
}

Control& OviSum::cell(int index) const { return control("txtAAA", index); }

bool OviSum::chosen(const char* option, int index) const {
  return control(option, index).value() == Value(true);
}

void OviSum::Load() {
  ChartState& c = chart;
  c.RowCount = Value(12);
  c.RowNext = Value(13);
  c.LastCell = Value(c.SignMode == 6 ? 36 : 24);
  c.EndCell = c.LastCell + Value(1);
  c.NarrowWidth = Value(9380);
  c.WideWidth = 11475;
  c.DigitWidth(1) = Value(3);
  for (int I = 2; I <= 19; ++I) {
    c.DigitWidth(I) = c.DigitWidth(I - 1) + Value(2);
    if ((I - 1) % 3 == 0) c.DigitWidth(I) = c.DigitWidth(I) + Value(1);
  }
  c.MaskFull = "###,##0.#######";
  c.MaskZero = "###,##0.";
  c.MaskTwo = "###,##0.00";
  if (c.CellMask.empty()) c.CellMask = c.MaskZero;
  for (int I = 1; I <= 36; ++I) cell(I).FontSize = 12;
  Top = app().form("frmMain").Height + 360;

  RestoreOptions();

  // A chart left behind when the form was closed comes back.
  for (int I = 1; I <= 24; ++I)
    if (c.CellVal(I) != Value(0)) {
      PubCalc();
      break;
    }

  c.FirstFocus = -1;
  control("cmdPrint").Enabled = true;
  control("cmdClear").Enabled = true;
}

// The options come back as they were chosen, without their Click routines:
// the form is not shown yet, so nothing may take the focus.
void OviSum::RestoreOptions() {
  Restoring = true;
  static const char* const kDecimals[] = {"optAuto", "optTwo", "optFull", "optZero"};
  control(kDecimals[static_cast<int>(chart.Decimals)]).setValue(Value(true));
  control(chart.Balance ? "optBal" : "optTtl").setValue(Value(true));
  control("optSign", chart.SignMode).setValue(Value(true));
  Restoring = false;
  ApplySignLayout(chart.SignMode);
}

void OviSum::PubClear() {
  for (int I = 0; I <= 37; ++I) cell(I).Text = "";
  for (int I = 0; I <= 60; ++I) {
    chart.CellVal(I) = Value(0);
    chart.CellShown(I) = Value(0);
    chart.CellDec(I) = Value(0);
    chart.CellPad(I) = 0;
  }
  for (int I = 0; I <= 4; ++I) control("lblAmt", I).Caption = "";
  for (int R = 1; R <= 12; ++R) control("lblAns", R).Caption = "";
}

void OviSum::PubCheckSpace(const std::string& text) { chart.SpaceFlag = IsBlankRun(text, 23); }

void OviSum::PubSizeAA() {
  using namespace chart_layout;
  Width = static_cast<int>(chart.NarrowWidth.number());
  Control& frame = control("Frame3");
  frame.Left = kPanelLeft;
  frame.Top = kHeadTop + 360;
  frame.Width = kPanelW;
  frame.Height = 7 * kStackPitch + 300;
  for (int i = 0; i <= 6; ++i) {
    const Place p = SignStacked(i);
    Control& o = control("optSign", i);
    o.Left = p.left;
    o.Top = p.top;
    o.Width = p.width;
  }
  for (int R = 1; R <= 12; ++R) control("lblAns", R).Visible = false;
  control("frmExtra").Visible = true;
}

void OviSum::PubSizeBB() {
  using namespace chart_layout;
  Width = chart.WideWidth;
  Control& frame = control("Frame3");
  frame.Left = kRowFrameLeft;
  frame.Top = kOptionTop;
  frame.Width = kRowFrameW;
  frame.Height = 600;
  for (int i = 0; i <= 6; ++i) {
    const Place p = SignInRow(i);
    Control& o = control("optSign", i);
    o.Left = p.left;
    o.Top = p.top;
    o.Width = p.width;
  }
  control("frmExtra").Visible = false;
}

void OviSum::FindNextBlank(int from) {
  const int last = CInt(chart.LastCell).AsInt16();
  for (int I = from; I <= last; ++I) {
    if (chart.CellVal(I) == Value(0)) {
      cell(I).SetFocus();
      return;
    }
    if (I == last && chart.CellVal(I) != Value(0)) {
      control("cmdCalc").SetFocus();
      return;
    }
  }
}

void OviSum::RestoreFocus() {
  if (chart.CurCell > Value(0) && chart.CurCell < chart.EndCell) {
    cell(CInt(chart.CurCell).AsInt16()).SetFocus();
  } else {
    chart.CurCell = Value(0);
    control("cmdCalc").SetFocus();
  }
}

void OviSum::txtAAA_GotFocus(int Index) {
  ChartState& c = chart;
  if (Value(Index) > c.LastCell || Index < 1) {
    c.CurCell = Value(0);
    control("cmdCalc").SetFocus();
  } else {
    c.CurCell = Value(Index);
    cell(Index).BackColor = kWhite;
    c.SavedText = cell(Index).Text;
  }
  const int cur = CInt(c.CurCell).AsInt16();
  Control& ditto = control("cmdDitto");
  ditto.Enabled = false;
  if (cur > 1 && Value(cur) < c.EndCell && c.CellVal(cur) == Value(0) &&
      c.CellVal(cur - 1) != Value(0))
    ditto.Enabled = true;
  control("cmdCcc").Enabled = c.CellVal(cur) != Value(0);
  // The first cell to take the focus turns both buttons on, whatever it holds.
  if (c.FirstFocus == -1) {
    control("cmdCcc").Enabled = true;
    ditto.Enabled = true;
    c.FirstFocus = 0;
  }
}

void OviSum::Refuse(int Index, const std::string& words) {
  cell(Index).BackColor = kWhite;
  MsgBox(words, 48, kTitle);
}

void OviSum::txtAAA_LostFocus(int Index) {
  // The sentinels hold no data: they only turn the Tab key back to Calc.
  if (Index == 0 || Index == 37) return;
  ChartState& c = chart;
  Control& box = cell(Index);
  c.CurCell = Value(Index);
  c.PrevCell = Value(Index);
  box.BackColor = kRested;
  PubCheckSpace(box.Text);
  if (c.SpaceFlag) box.Text = "";
  if (box.Text == "") {
    c.CellVal(Index) = Value(0);
    c.CellDec(Index) = Value(0);
    PubCalc();
    return;
  }
  if (!IsNumeric(Value(box.Text))) {
    Refuse(Index, kNumberOnly);
    box.Text = c.SavedText;
    box.SetFocus();
    PubCalc();
    return;
  }
  // Val stops at the first comma, so a text already formatted passes here.
  if (std::abs(Val(box.Text)) > 1e19) {
    Refuse(Index, kTooBig);
    box.Text = c.SavedText;
    box.SetFocus();
    return;
  }
  c.Work = CDec(Value(box.Text));
  c.CellDec(Index) = Value(DecimalsOf(CStr(c.Work)));
  if (c.CellDec(Index) > Value(6)) {
    Refuse(Index, kTooSmall);
    box.Text = "";
    box.SetFocus();
    PubCalc();
    return;
  }
  // On the signed amount: a negative one of that size goes on to the
  // seventeen-digit test of the whole chart.
  if (c.Work >= Pow(Value(10), Value(17) - c.CellDec(Index))) {
    Refuse(Index, kTooLong);
    box.Text = "";
    box.SetFocus();
    PubCalc();
    return;
  }
  c.CellVal(Index) = CDec(Value(box.Text));
  PubJari();
  box.Text = Format(c.CellVal(Index), c.CellMask);
  if (c.MaxMag * Pow(Value(10), c.MaxDec) > Pow(Value(10), Value(17))) {
    Refuse(Index, " Calculation is over 17 digits. \r\n or Screen is limited...... ");
    c.CellVal(Index) = Value(0);
    c.CellDec(Index) = Value(0);
    box.Text = "";
    box.SetFocus();
  }
  PubCalc();
}

void OviSum::txtAAA_KeyPress(int Index, int KeyAscii) {
  if (KeyAscii != 13) return;
  ChartState& c = chart;
  const int cur = CInt(c.CurCell).AsInt16();
  Control& box = cell(cur);
  PubCheckSpace(box.Text);
  if (c.SpaceFlag) box.Text = "";
  // Enter in a blank cell below a filled one repeats that amount.
  if (box.Text == "" && cur > 1 && Value(cur) < c.EndCell && c.CellVal(cur) == Value(0) &&
      c.CellVal(cur - 1) != Value(0))
    box.Text = cell(cur - 1).Text;
  if (box.Text != "" && !IsNumeric(Value(box.Text))) {
    MsgBox(kNumberOnly, 48, kTitle);
    box.Text = c.SavedText;
    return;
  }
  cell(Index).BackColor = kRested;
  control("cmdCalc").SetFocus();
  if (Index >= 1 && Value(Index) < c.EndCell) FindNextBlank(Index + 1);
}

void OviSum::Form_KeyDown(int KeyCode) {
  ChartState& c = chart;
  const int cur = CInt(c.CurCell).AsInt16();
  if ((KeyCode == 38 || KeyCode == 40) && cur > 0 && Value(cur) < c.EndCell) {
    Control& box = cell(cur);
    PubCheckSpace(box.Text);
    if (c.SpaceFlag) box.Text = "";
    if (box.Text != "" && !IsNumeric(Value(box.Text))) {
      MsgBox(kNumberOnly, 48, kTitle);
      box.Text = c.SavedText;
    } else if (KeyCode == 38) {
      if (cur > 1) cell(cur - 1).SetFocus();
    } else if (Value(cur) == c.LastCell) {
      control("cmdCalc").SetFocus();
    } else {
      cell(cur + 1).SetFocus();
    }
  }
  if (KeyCode == 37 && cur > 12) cell(cur - 12).SetFocus();
  if (KeyCode == 39) {
    // One column to the right; with three data columns BBB leads on to the third.
    if (cur < 13)
      cell(cur + 12).SetFocus();
    else if (cur < 25 && chosen("optSign", 6))
      cell(cur + 12).SetFocus();
  }
}

void OviSum::cmdCalc_Click() {
  PubCalc();
  if (chart.CurCell > Value(0) && chart.CurCell < chart.EndCell)
    cell(CInt(chart.CurCell).AsInt16()).SetFocus();
  else
    control("cmdCalc").SetFocus();
}

void OviSum::cmdCalc_GotFocus() {
  PubCalc();
  control("cmdDitto").Enabled = false;
}

void OviSum::cmdDitto_Click() {
  ChartState& c = chart;
  if (c.PrevCell == Value(1)) cell(1).SetFocus();
  if (c.PrevCell > Value(1) && c.PrevCell < c.EndCell) {
    const int p = CInt(c.PrevCell).AsInt16();
    if (c.CellVal(p) == Value(0) && c.CellVal(p - 1) != Value(0)) {
      cell(p).Text = cell(p - 1).Text;
      c.CellVal(p) = c.CellVal(p - 1);
      c.CellDec(p) = c.CellDec(p - 1);
      PubCalc();
      if (c.PrevCell == c.LastCell)
        control("cmdCalc").SetFocus();
      else
        FindNextBlank(p + 1);
    } else {
      cell(p).SetFocus();
    }
  }
}

void OviSum::cmdCcc_Click() {
  ChartState& c = chart;
  if (c.PrevCell < Value(1) || c.PrevCell > c.LastCell - Value(1)) c.PrevCell = c.LastCell;
  const int p = CInt(c.PrevCell).AsInt16();
  cell(p).Text = "";
  c.CellVal(p) = Value(0);
  c.CellDec(p) = Value(0);
  PubCalc();
  cell(p).SetFocus();
}

void OviSum::cmdClear_Click() {
  if (MsgBox(" Clear all data ??? ", 4, kTitle) == 6) {
    PubClear();
    cell(1).SetFocus();
    control("cmdClear").Enabled = false;
    control("cmdPrint").Enabled = false;
  }
  FindNextBlank(1);
}

void OviSum::cmdExit_Click() {
  if (MsgBox(" Exit program  Ovi Sum ??? ", 4, kTitle) == 6)
    Unload();
  else
    FindNextBlank(1);
}

void OviSum::cmdCopyD_Click() {
  Control& scratch = control("txtCopyD");
  scratch.Text = control("lblAmt", 0).Caption;
  ClipboardClear();
  ClipboardSetText(scratch.Text);
}

void OviSum::optDecimal_Click(DecimalChoice choice) {
  if (Restoring) return;
  ChartState& c = chart;
  c.Decimals = choice;
  switch (choice) {
    case DecimalChoice::Auto: {
      PubJari();
      const int last = CInt(c.LastCell).AsInt16();
      for (int I = 1; I <= last; ++I)
        if (c.CellVal(I) != Value(0)) cell(I).Text = Format(c.CellVal(I), c.CellMask);
      break;
    }
    case DecimalChoice::Two:
      c.CellMask = c.MaskTwo;
      break;
    case DecimalChoice::Full:
      c.CellMask = c.MaskFull;
      break;
    case DecimalChoice::Zero:
      c.CellMask = c.MaskZero;
      break;
  }
  PubCalc();
  RestoreFocus();
}

}  // namespace tessaron

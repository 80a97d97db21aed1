#include "tests/support/sample_form.h"

namespace tessaron {

namespace {
constexpr long kWhite = 0xFFFFFF;
constexpr long kBlueText = 0xFF0000;
}  // namespace

void frmSample::log(const std::string& what) { lblLog.Caption += what + ";"; }

void frmSample::Load() {
  log("Load");
  clicks_ = Value(0);
  ticks_ = Value(0);
  // A number given to a caption reads as its CStr text.
  lblAnswer.Caption = CStr(hsbRate.value());
  Grid& g = grdTable.grid();
  const char* heads[] = {"", "A", "B"};
  for (int c = 0; c < g.Cols(); ++c) g.setTextMatrix(0, c, heads[c]);
  for (int r = 1; r < g.Rows(); ++r) g.setTextMatrix(r, 0, CStr(Value(r)));
}

void frmSample::keyRoutes() {
  on("Form", Event::KeyPress,
     [this](EventArgs& e) { log("Form.KeyPress " + CStr(Value(e.KeyAscii))); });
  on("Form", Event::KeyDown, [this](EventArgs& e) {
    log("Form.KeyDown " + CStr(Value(e.KeyCode)) + " " + CStr(Value(e.Shift)));
  });
  on("Form", Event::Resize,
     [this](EventArgs&) { log("Form.Resize " + CStr(Value(Width)) + " " + CStr(Value(Height))); });
  for (const char* box : {"txtA", "txtB"}) {
    const std::string name = box;
    on(name, Event::GotFocus, [this, name](EventArgs&) {
      log(name + ".GotFocus");
      Control& c = control(name);
      c.BackColor = kWhite;
      c.ForeColor = kBlueText;
    });
    on(name, Event::LostFocus, [this, name](EventArgs&) {
      log(name + ".LostFocus");
      Control& c = control(name);
      c.BackColor = Rgb(255, 255, 204);
      c.ForeColor = 0;
    });
  }
  // Letters become capitals, '#' is dropped, Enter walks on to the next box.
  on("txtA", Event::KeyPress, [this](EventArgs& e) {
    if (e.KeyAscii >= 'a' && e.KeyAscii <= 'z') e.KeyAscii -= 32;
    if (e.KeyAscii == '#') e.KeyAscii = 0;
    if (e.KeyAscii == 13) {
      e.KeyAscii = 0;
      txtB.SetFocus();
    }
  });
  on("txtB", Event::KeyDown, [this](EventArgs& e) {
    log("txtB.KeyDown " + CStr(Value(e.KeyCode)) + " " + CStr(Value(e.Shift)));
  });
}

void frmSample::buttonRoutes() {
  on("cmdGo", Event::Click, [this](EventArgs&) {
    clicks_ = clicks_ + Value(1);
    cmdGo.Caption = "Go " + CStr(clicks_);
    log("cmdGo.Click");
  });
  on("cmdGo", Event::GotFocus, [this](EventArgs&) { log("cmdGo.GotFocus"); });
  on("cmdMsg", Event::Click, [this](EventArgs& e) {
    static const int flags[] = {48, 64, 4};
    const std::string texts[] = {"Enter a number", "Done", "Print now?\r\nYes or No"};
    const int answer =
        MsgBox(texts[e.Index], flags[e.Index], e.Index == 2 ? " Tessaron" : "Tessaron");
    lblAnswer.Caption = CStr(Value(answer));
    if (answer == 6) log("Yes");
  });
  on("cmdInput", Event::Click, [this](EventArgs&) {
    const std::string x = InputBox("Value of X");
    lblAnswer.Caption = x;
    if (x.empty()) log("Cancel");
  });
  on("cmdBeep", Event::Click, [this](EventArgs&) { Beep(); });
  on("cmdPrint", Event::Click, [this](EventArgs&) { PubPrint(); });
  on("cmdCopy", Event::Click, [this](EventArgs&) {
    ClipboardClear();
    ClipboardSetText(txtA.Text);
  });
  on("cmdPaste", Event::Click, [this](EventArgs&) { txtB.Text = ClipboardGetText(); });
  on("cmdHidden", Event::Click, [this](EventArgs&) { log("cmdHidden.Click"); });
  on("cmdOff", Event::Click, [this](EventArgs&) { log("cmdOff.Click"); });
  // The logic must test Visible first: a hidden control cannot take the focus.
  on("cmdFocusHidden", Event::Click, [this](EventArgs&) { cmdHidden.SetFocus(); });
  on("cmdFocusB", Event::Click, [this](EventArgs&) {
    if (txtB.Visible && txtB.Enabled) txtB.SetFocus();
  });
  on("cmdGridBad", Event::Click, [this](EventArgs&) {
    Grid& g = grdTable.grid();
    g.setRow(g.Rows());
    g.setText("never");
  });
  on("cmdOverflow", Event::Click,
     [this](EventArgs&) { lblAnswer.Caption = CStr(CInt(Value(40000))); });
  on("cmdDraw", Event::Click, [this](EventArgs&) { PubDraw(); });
  on("cmdCode", Event::Click, [this](EventArgs&) { PubCode(); });
  on("cmdFar", Event::Click, [this](EventArgs&) { PubFar(); });
  on("cmdPages", Event::Click, [this](EventArgs&) { PubPages(); });
  on("cmdToggle", Event::Click, [this](EventArgs&) {
    fraChoice.Visible = !fraChoice.Visible;
    cmdOff.Enabled = !cmdOff.Enabled;
  });
  on("cmdExit", Event::Click, [this](EventArgs&) { Unload(); });
  on("lblAnswer", Event::Click, [this](EventArgs&) { log("lblAnswer.Click"); });
  on("imgLogo", Event::Click, [this](EventArgs&) {
    imgLogo.Left += 100;
    log("imgLogo.Click");
  });
  on("tmrTick", Event::Timer, [this](EventArgs&) {
    ticks_ = ticks_ + Value(1);
    log("tmrTick " + CStr(ticks_));
    if (ticks_ >= Value(3)) tmrTick.Enabled = false;
  });
}

void frmSample::choiceRoutes() {
  on("optA", Event::Click,
     [this](EventArgs& e) { log("optA(" + CStr(Value(e.Index)) + ").Click"); });
  on("optB", Event::Click,
     [this](EventArgs& e) { log("optB(" + CStr(Value(e.Index)) + ").Click"); });
  on("chkFlag", Event::Click,
     [this](EventArgs&) { log("chkFlag.Click " + CStr(control("chkFlag").value())); });
  on("cmdSetOpt", Event::Click, [this](EventArgs&) {
    optA(1).setValue(Value(true));
    log("set");
  });
  // Change runs inside the assignment, before the next statement.
  on("cmdSetRate", Event::Click, [this](EventArgs&) {
    hsbRate.setValue(Value(50));
    log("set");
  });
  on("hsbRate", Event::Change, [this](EventArgs&) {
    lblAnswer.Caption = CStr(hsbRate.value());
    log("hsbRate.Change " + CStr(hsbRate.value()));
    vsbLevel.setValue(CInt(Value(hsbRate.value().number() / 10)));
  });
  on("vsbLevel", Event::Change,
     [this](EventArgs&) { log("vsbLevel.Change " + CStr(vsbLevel.value())); });
  on("grdTable", Event::Click, [this](EventArgs&) {
    const Grid& g = grdTable.grid();
    lblAnswer.Caption = CStr(Value(g.Row())) + "," + CStr(Value(g.Col())) + " " + g.Text();
  });
}

void frmSample::PubPrint() {
  if (MsgBox("Print now?", 4, " Tessaron") != 6) return;
  PrinterDevice& p = Printer();
  p.FontSize = 10;
  p.Print({Value("Sample printout")});
  p.Print({});
  p.Print({Tab(5), Value("Rate"), Tab(20), Value(12.5)});
  p.Print({Value("Sum"), Value(-3), Value("x")});
  p.Print({Value("kept on "), Value("the line")}, false);
  p.Print({Value(" and ended")});
  p.Print({Tab(12), Value("far"), Tab(3), Value("near")});
  p.Print({Value(Format(Value(7), "0.00") + "   ")});
  p.Line(0, 2880, 11520, 2880);
  p.CurrentX = 1440;
  p.CurrentY = 3600;
  p.Print({Value("placed")});
  p.NewPage();
  p.Print({Value("Page two")});
  p.Box(100, 200, 1540, 920, 0, false);
  p.PaintPicture(picDraw.picture(), 720, 1440, 3000, 1800);
  p.EndDoc();
}

void frmSample::PubDraw() {
  Canvas& c = picDraw.picture();
  c.Cls();
  c.Scale(0, 100, 200, 0);
  c.DrawWidth = 2;
  c.Line(0, 0, 200, 100, Rgb(255, 0, 0));
  c.Box(10, 10, 60, 40.5, 0, false);
  c.Box(70, 10, 90, 20, Rgb(0, 0, 255), true);
  c.Circle(100, 50, 100.0 / 3, 0);
  c.ForeColor = 0x008000;
  c.FontSize = 12;
  c.CurrentX = 20;
  c.CurrentY = 90;
  c.Print({Value("f(T)"), Value(2.5)});
  c.DrawStyle = 2;
}

void frmSample::PubCode() {
  // Values set from code fire no focus events; numbers read as their CStr.
  txtA.Text = CStr(Value(123.5));
  txtB.Text = CStr(Value(1e20));
  cmdGo.ToolTipText = "Changed tip";
  cmdGo.BackColor = Rgb(231, 231, 255);
  cmdGo.FontBold = true;
  imgLogo.Top = 3000;
  linRule.X2 = 4000.5;
  linRule.BorderColor = Rgb(0, 0, 255);
  linRule.BorderWidth = 3;
  olePage.Height = 720;
  Grid& g = grdTable.grid();
  g.setRow(2);
  g.setCol(1);
  g.setText("cell");
  g.setCellFontSize(10);
  g.setCellAlignment(1);
  g.setColWidth(1, 1500);
  g.setRowHeight(2, 300);
  Caption = "Sample " + CStr(Value(2));
  hsbRate.setMax(40);
}

// Numbers far from 1, whose CStr text takes an exponent.
void frmSample::PubFar() {
  linRule.X1 = 1e20;
  linRule.Y1 = -1.5e-7;
  linRule.X2 = 123456789012345678.0;
  Canvas& c = picDraw.picture();
  c.CurrentX = 0.00001;
}

// A printout whose last page ends with NewPage, and the column rules of the
// printed text: a Tab to the column the pen is at, items after text placed
// by CurrentX and CurrentY, numbers of every kind.
void frmSample::PubPages() {
  PrinterDevice& p = Printer();
  p.FontSize = 10;
  p.Print({Value("One"), Tab(4), Value("four"), Tab(8), Value("eight")});
  p.Print({Value("open")}, false);
  p.CurrentX = 2000;
  p.CurrentY = 2000;
  p.Print({Value("placed"), Value(" then")}, false);
  p.Print({Value(" more")});
  p.Print({Value("after")});
  p.Print({Value(true), Value(CDec(Value("2.50"))), Value(-0.25), Value(1e20), Value(0)});
  p.CurrentX = 0;
  p.CurrentY = 4000;
  p.Print({Tab(6), Value("tab")});
  p.NewPage();
  p.Print({Value("Two")});
  p.NewPage();
  p.EndDoc();
}

}  // namespace tessaron

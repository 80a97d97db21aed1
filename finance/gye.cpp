#include "finance/gye.h"

#include "shell/print_frame.h"
#include "surface/application.h"

namespace tessaron {

namespace {

constexpr long kWhite = 0xFFFFFF;
constexpr const char* kNumberOnly = " Please Enter Number Only ! ";
// The foot of the page belongs to the name and the mark; a list that would
// reach it goes on over the next page.
constexpr double kListFoot = 12600;

void KeepAboveFoot(PrinterDevice& printer, int lines) {
  if (printer.CurrentY + lines * Canvas::lineHeight(printer.FontSize) > kListFoot)
    printer.NewPage();
}

}  // namespace

frmGye::frmGye(Application& app)
    : Form(app, "frmGye",
           {.caption = "  Mutual Financing  (Gye) , Proportional Distribution                     "
                       "     계 ",
            .width = 9495,
            .height = 6135},
           GyeDesign()) {
  on("txtBBB", Event::GotFocus, [this](EventArgs& e) { GotFocus(e.Index); });
  on("txtBBB", Event::LostFocus, [this](EventArgs& e) { LostFocus(e.Index); });
  on("txtBBB", Event::KeyPress, [this](EventArgs& e) { KeyPress(e.Index, e); });
  on("cmdCalc", Event::Click, [this](EventArgs&) {
    if (Cond[1] * Cond[2] * Cond[3] > Value(0)) PubCalc();
  });
  on("cmdDelete", Event::Click, [this](EventArgs&) {
    PubDelete();
    control("txtBBB", 1).SetFocus();
  });
  on("cmdPrint", Event::Click, [this](EventArgs&) { cmdPrintClick(); });
  on("cmdExit", Event::Click, [this](EventArgs&) { Unload(); });
}

void frmGye::Load() {
  Top = app().form("frmMain").Height + 360;
  control("lblCondi", 1).Caption = "1. Every Number receives same Amount.";
  control("lblCondi", 2).Caption = "2. Every Number pays constant Payment.";
  control("lblCondi", 3).Caption = "3. Receivers pay also when receiving. ";
  MaskWhole = Value("###,##0");
  MaskRate = Value("###,##0.######");
  MaskPay = Value("###,##0.");
  PubDelete();
}

void frmGye::PubDelete() {
  for (int i = 1; i <= 3; ++i) {
    Cond[i] = Value(0);
    control("txtBBB", i).Text = "";
  }
  PubClear();
}

void frmGye::PubClear() {
  for (int i = 0; i <= 24; ++i) {
    control("lblAAA", i).Caption = "";
    Ans[i] = Value(0);
    Frac[i] = 0;
    control("txtMonth", i).Visible = false;
  }
}

bool frmGye::PubCheckSpace(const std::string& text) { return IsBlankRun(text, 6); }

void frmGye::GotFocus(int i) {
  if (i == 4) {
    // Not an input: the focus passes on to the key.
    control("cmdCalc").SetFocus();
    return;
  }
  Control& box = control("txtBBB", i);
  box.BackColor = kWhite;
  OldText = box.Text;
  PubClear();
}

void frmGye::Refuse(Control& box, const char* words) {
  // The emptied box holds no value, so a Calculate that follows can't use
  // the one it held before.
  Cond[box.index()] = Value(0);
  box.BackColor = kWhite;
  MsgBox(words, 48, "  Tessaron  ");
  box.Text = "";
  box.SetFocus();
}

void frmGye::LostFocus(int i) {
  if (i == 4) return;
  Control& box = control("txtBBB", i);
  box.BackColor = Rgb(255, 255, 204);
  if (PubCheckSpace(box.Text)) box.Text = "";
  if (box.Text == "") {
    // A box emptied while it kept the focus may stand beside a list made
    // from its old value: the list goes with the value.
    Cond[i] = Value(0);
    PubClear();
    return;
  }
  if (!IsNumeric(Value(box.Text))) {
    box.BackColor = kWhite;
    MsgBox(kNumberOnly, 48, "   Tessaron  ");
    box.Text = OldText;
    box.SetFocus();
    return;
  }
  // Read as the validators read numbers, so "1,000" is a thousand.
  const Value x = CDbl(Value(box.Text));
  const bool whole = x == Int(x);
  switch (i) {
    case 1:
      if (!whole || x < Value(1)) return Refuse(box, " Sorry!  No Decimal Fraction. ");
      if (x > Value(1e9)) return Refuse(box, " Sorry!  Too  Long/Big  ... ");
      Cond[1] = x;
      box.Text = Format(x, MaskPay.str());
      return;
    case 2:
      if (!whole || x < Value(2) || x > Value(24)) return Refuse(box, " Sorry!  2 - 24 ");
      Cond[2] = x;
      box.Text = Format(x, MaskWhole.str());
      return;
    default:
      if (x < Value(1) || x > Value(100)) return Refuse(box, " Sorry!  ( Rate = 1 - 100 % ) ");
      Cond[3] = x;
      box.Text = Format(x, MaskRate.str());
  }
}

void frmGye::KeyPress(int i, EventArgs& e) {
  if (e.KeyAscii != 13 || i == 4) return;
  Control& box = control("txtBBB", i);
  if (PubCheckSpace(box.Text)) box.Text = "";
  // An empty number or rate takes the one above it.
  if ((i == 2 || i == 3) && Cond[i] == Value(0) && box.Text == "" && Cond[i - 1] > Value(0))
    box.Text = control("txtBBB", i - 1).Text;
  if (box.Text != "" && !IsNumeric(Value(box.Text))) {
    MsgBox(kNumberOnly, 48, " Tessaron ");
    box.Text = OldText;
    return;
  }
  if (i < 3)
    control("txtBBB", i + 1).SetFocus();
  else
    control("cmdCalc").SetFocus();
}

void frmGye::PubCalc() {
  const Value A = Cond[1], n = Cond[2], r = Cond[3];
  const int members = CInt(n).AsInt16();
  for (int i = 0; i <= 24; ++i) {
    control("lblAAA", i).Caption = "";
    Ans[i] = Value(0);
  }
  for (int i = 1; i <= 24; ++i) control("txtMonth", i).Visible = i <= members;
  const Value month = Value(1) + r / Value(1200);
  // The level payment that repays A over n months.
  GyePay = A * Pow(month, n) * r / Value(1200) / (Pow(month, n) - Value(1));
  for (int i = 1; i <= members; ++i) {
    GyePay = GyePay / month;
    Ans[i] = Int(GyePay);
    Frac[i] = (GyePay - Ans[i]).number();
    Ordr[i] = Value(i);
    Ans[0] = Ans[0] + Ans[i];
  }
  if (Ans[0] < A) {
    // The units short of A go to the largest cut-off fractions; an exchange
    // sort, so that of equal fractions the lower number comes first.
    for (int i = 1; i <= members - 1; ++i)
      for (int j = i + 1; j <= members; ++j)
        if (Frac[i] < Frac[j]) {
          std::swap(Frac[i], Frac[j]);
          std::swap(Ordr[i], Ordr[j]);
        }
    for (int i = 1; i <= members; ++i) {
      const int k = CInt(Ordr[i]).AsInt16();
      Ans[k] = Ans[k] + Value(1);
      Ans[0] = Ans[0] + Value(1);
      if (Ans[0] == A) break;
    }
  }
  for (int i = 0; i <= members; ++i) control("lblAAA", i).Caption = Format(Ans[i], MaskPay.str());
}

void frmGye::cmdPrintClick() {
  if (!(Cond[1] * Cond[2] * Cond[3] > Value(0))) return;
  PubCalc();
  if (!PubPrintAsk(*this)) return;
  control("cmdCalc").SetFocus();
  PubPrint();
}

void frmGye::PubPrint() {
  PrinterDevice& printer = Printer();
  const Value A = Cond[1], n = Cond[2], r = Cond[3];
  printer.FontSize = 14;
  printer.ForeColor = 0;
  for (int k = 0; k < 6; ++k) printer.Print({});
  printer.Print({Tab{30}, Value("Amount  : "), Tab{50}, Value(Format(A, MaskPay.str()))});
  printer.Print({});
  printer.Print({Tab{30}, Value("Number  : "), Tab{52}, Value(Format(n, MaskWhole.str()))});
  printer.Print({});
  printer.Print(
      {Tab{30}, Value("APRate  : "), Tab{52}, Value(Format(r, MaskRate.str())), Value(" % ")});
  printer.Print({});
  printer.Print({});
  const int members = CInt(n).AsInt16();
  for (int i = 1; i <= members; ++i) {
    KeepAboveFoot(printer, 2);
    printer.Print({Tab{i >= 10 ? 41 : 42}, Value(Format(Value(i), MaskWhole.str())), Tab{52},
                   Value(Format(Ans[i], MaskPay.str()))});
    printer.Print({});
  }
  KeepAboveFoot(printer, 2);
  printer.Print({});
  printer.Print({Tab{36}, Value("Total  :  "), Tab{50}, Value(Format(Ans[0], MaskPay.str()))});
  // The name and the mark stand at the foot of this page.
  PubPageHead(*this, kPlaceFoot);
  printer.EndDoc();
}

}  // namespace tessaron

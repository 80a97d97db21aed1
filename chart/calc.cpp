// The chart's arithmetic. Amounts are Dec from the box to the total: every
// sum, difference, product and quotient of cells is Value arithmetic on Decs,
// and Real appears only in the guards and in counting digits for the pads.
#include "chart/ovisum.h"
#include "surface/application.h"

namespace tessaron {

namespace {
constexpr const char* kSumMask = "################0.######";
constexpr const char* kRelationMask = "#################0.###";
constexpr const char* kRelationShown = "###,##0.###";
const char* const kHeads[7] = {"",          "AAA + BBB", "AAA - BBB", "AAA x BBB",
                               "AAA / BBB", "BBB / AAA", " 25 ~~ 36"};

bool Huge(const Value& v) { return Abs(v) >= Value(1e17); }
}  // namespace

int OviSum::DecimalsOf(const std::string& text) {
  const std::size_t point = text.rfind('.');
  if (point == std::string::npos) return 0;
  return Len(Value(text)) - static_cast<int>(point) - 1;
}

int OviSum::PadFor(int base, const Value& magnitude) const {
  const int twiceDec = 2 * CInt(chart.MaxDec).AsInt16();
  int digits = 1;
  if (magnitude >= Value(10))
    digits = static_cast<int>(Int(Value(Log(magnitude.number()) / Log(10.0))).number()) + 1;
  return base - CInt(chart.DigitWidth(digits)).AsInt16() - twiceDec;
}

void OviSum::PubJari() {
  ChartState& c = chart;
  c.MaxMag = Value(1e8);
  c.MaxDec = Value(0);
  if (chosen("optTwo")) c.MaxDec = Value(2);
  for (int I = 1; I <= 36; ++I) {
    if (c.CellVal(I) == Value(0)) continue;
    if (Abs(c.CellVal(I)) > c.MaxMag) c.MaxMag = Abs(c.CellVal(I));
    if (c.CellDec(I) > c.MaxDec) c.MaxDec = c.CellDec(I);
  }
  if (chosen("optAuto")) {
    c.CellMask = c.MaskZero;
    if (c.MaxDec > Value(0)) c.CellMask = c.MaskTwo;
    if (c.MaxDec > Value(2)) c.CellMask = c.MaskFull;
  }
}

void OviSum::PubCalc() {
  ChartState& c = chart;
  PubJari();
  c.SumAAA = Value(0);
  c.SumBBB = Value(0);
  c.SumCCC = Value(0);
  control("cmdClear").Enabled = false;
  control("cmdPrint").Enabled = false;
  const bool zero = chosen("optZero"), two = chosen("optTwo");
  const bool spaced = chosen("optFull") || (chosen("optAuto") && c.MaxDec > Value(2));
  for (int I = 1; I <= 36; ++I) {
    c.CellPad(I) = PadFor(51, Value(0));
    if (c.CellVal(I) == Value(0)) {
      c.CellShown(I) = Value(0);
      cell(I).Text = "";
      continue;
    }
    c.CellShown(I) = c.CellVal(I);
    control("cmdClear").Enabled = true;
    control("cmdPrint").Enabled = true;
    // Int rounds down, so halves of negative amounts go up, towards zero.
    if (zero) c.CellShown(I) = Int(c.CellVal(I) + Value(0.5));
    if (two) c.CellShown(I) = Int(Value(100) * c.CellVal(I) + Value(0.5)) / Value(100);
    // A digit is as wide as two spaces: trailing spaces line up the points
    // in the right-aligned box.
    int P = 0;
    if (spaced) P = 2 * CInt(c.MaxDec - c.CellDec(I)).AsInt16();
    cell(I).Text = Format(c.CellShown(I), c.CellMask) + Space(P);
    c.Work = Abs(c.CellShown(I));
    c.CellPad(I) = PadFor(51, c.Work);
    if (c.CellShown(I) < Value(0)) c.CellPad(I) -= 1;
    if (I <= 12)
      c.SumAAA = c.SumAAA + c.CellShown(I);
    else if (I <= 24)
      c.SumBBB = c.SumBBB + c.CellShown(I);
    else
      c.SumCCC = c.SumCCC + c.CellShown(I);
  }

  const Value* sums[3] = {&c.SumAAA, &c.SumBBB, &c.SumCCC};
  for (int k = 0; k < 3; ++k) {
    const Value& sum = *sums[k];
    control("lblAmt", k + 1).Caption = Format(sum, c.CellMask);
    // Beyond the screen's seventeen digits the decimals go; the third data
    // column's figure lands in lblAmt(1), as the chart has always done.
    if (Huge(sum)) control("lblAmt", k == 2 ? 1 : k + 1).Caption = Format(sum, c.MaskZero);
    int& pad = c.CellPad(55 + k);
    pad = PadFor(51, Abs(sum));
    if (sum < Value(0)) pad -= 1;
  }

  PubBal();
  if (c.SignMode > 0 && c.SignMode < 6) PubThird();
}

void OviSum::PubBal() {
  ChartState& c = chart;
  Control& total = control("lblAmt", 0);
  if (chosen("optTtl")) {
    total.ForeColor = 0;
    c.SumAll = c.SumAAA + c.SumBBB;
    if (chosen("optSign", 6)) c.SumAll = c.SumAll + c.SumCCC;
    total.Caption = Format(c.SumAll, c.CellMask);
  }
  if (chosen("optBal")) {
    total.ForeColor = c.SumAAA < c.SumBBB ? 255 : 0xFF0000;
    c.SumAll = c.SumAAA - c.SumBBB;
    total.Caption = Format(c.SumAll, c.CellMask);
    if (chosen("optSign", 6)) total.Caption = "";
  }
  // No grand figure beside a column of products or ratios.
  if (chosen("optSign", 3) || chosen("optSign", 4) || chosen("optSign", 5)) total.Caption = "";
  c.CellPad(59) = PadFor(51, Abs(c.SumAll));
  if (c.SumAll < Value(0)) c.CellPad(59) -= 1;
}

void OviSum::PubThird() {
  ChartState& c = chart;
  const int mode = c.SignMode;
  if (mode < 1 || mode > 5) return;
  c.SumThird = Value(0);
  const bool spaced = c.MaxDec > Value(2) && (chosen("optFull") || chosen("optAuto"));
  for (int I = 41; I <= 52; ++I) {
    const int R = I - 40;
    Control& ans = control("lblAns", R);
    const Value a = c.CellShown(I - 40), b = c.CellShown(I - 28);
    c.CellPad(I) = PadFor(52, Value(0));

    if (mode <= 2) {
      c.CellVal(I) = mode == 1 ? a + b : a - b;
      c.CellShown(I) = c.CellVal(I);
      c.SumThird = c.SumThird + c.CellShown(I);
      if (a == Value(0) && b == Value(0)) {
        ans.Caption = "";
      } else {
        ans.Caption = Format(c.CellVal(I), c.CellMask);
        if (spaced) {
          c.Work = Value(Format(c.CellVal(I), kSumMask));
          c.CellDec(I) = Value(DecimalsOf(c.Work.str()));
          ans.Caption =
              Format(c.CellVal(I), c.CellMask) + Space(2 * CInt(c.MaxDec - c.CellDec(I)).AsInt16());
        }
      }
      c.CellPad(I) = PadFor(52, Abs(c.CellVal(I)));
      if (c.CellVal(I) < Value(0)) c.CellPad(I) -= 1;
      continue;
    }

    // A blank or zero cell never reaches the product or the division.
    if (a == Value(0) || b == Value(0)) {
      c.CellVal(I) = Value(0);
      c.CellShown(I) = Value(0);
      ans.Caption = "";
      continue;
    }
    if (mode == 3) {
      const double L = (Log(Abs(b).number()) + Log(Abs(a).number())) / Log(10.0);
      if (L > 19) {
        ans.BackColor = 255;
        MsgBox("Sorry, Too long or too big here...", 48, kTitle);
        ans.BackColor = 0xFFFFFF;
        control("optSign", 0).setValue(Value(true));
        c.CellVal(I) = Value(0);
        c.CellShown(I) = Value(0);
        ans.Caption = "";
        break;
      }
      c.CellVal(I) = a * b;
    } else {
      c.CellVal(I) = mode == 4 ? a / b : b / a;
    }
    // Three decimals, rounded by the mask; that figure is what goes on.
    c.Work = Value(Format(c.CellVal(I), kRelationMask));
    c.CellShown(I) = CDec(c.Work);
    c.SumThird = c.SumThird + c.CellShown(I);
    if (mode == 3) {
      if (Abs(c.CellShown(I)) < Value(1e15)) {
        c.CellDec(I) = Value(DecimalsOf(c.Work.str()));
        ans.Caption =
            Format(c.CellShown(I), kRelationShown) + Space(2 * (3 - CInt(c.CellDec(I)).AsInt16()));
      } else {
        ans.Caption = Format(c.CellShown(I), kRelationShown);
      }
      if (c.MaxDec < Value(1)) ans.Caption = Format(c.CellShown(I), kRelationShown);
      c.CellPad(I) = PadFor(52, Abs(c.CellShown(I)));
    } else {
      c.CellDec(I) = Value(DecimalsOf(c.Work.str()));
      ans.Caption =
          Format(c.CellShown(I), kRelationShown) + Space(2 * (3 - CInt(c.CellDec(I)).AsInt16()));
      c.CellPad(I) = PadFor(52, Abs(c.CellVal(I)));
    }
    if (c.CellShown(I) < Value(0)) c.CellPad(I) -= 1;
  }

  PubThirdSum(mode <= 2 ? c.MaskFull.c_str() : kRelationShown);
}

// The third column's total into lblAmt(4); beyond seventeen digits its
// neighbour lblAmt(3) takes it without decimals.
void OviSum::PubThirdSum(const char* mask) {
  ChartState& c = chart;
  control("lblAmt", 4).Caption = Format(c.SumThird, mask);
  if (Huge(c.SumThird)) control("lblAmt", 3).Caption = Format(c.SumThird, c.MaskZero);
  c.CellPad(58) = PadFor(52, Abs(c.SumThird));
  if (c.SumThird < Value(0)) c.CellPad(58) -= 1;
}

void OviSum::ApplySignLayout(int index) {
  ChartState& c = chart;
  const bool three = index == 6;
  if (index == 0)
    PubSizeAA();
  else
    PubSizeBB();
  c.LastCell = Value(three ? 36 : 24);
  c.EndCell = Value(three ? 37 : 25);
  control("lblThird").Caption = kHeads[index];
  for (int I = 1; I <= 36; ++I) control("txtMonth", I).Visible = three;
  for (int I = 25; I <= 36; ++I) cell(I).Visible = three;
  for (int R = 1; R <= 11; ++R) control("Label1", R).Visible = !three;
  for (int k = 1; k <= 4; ++k) control("lineSai", k).Visible = !three;
  if (index == 0)
    for (int R = 1; R <= 12; ++R) control("lblAns", R).Caption = "";
  else if (!three)
    for (int R = 1; R <= 12; ++R) control("lblAns", R).Visible = true;
  control("lblAmt", 3).Visible = three;
  control("lblAmt", 4).Visible = index > 0 && !three;
}

void OviSum::optSign_Click(int Index) {
  if (Restoring) return;
  chart.SignMode = Index;
  ApplySignLayout(Index);
  // A balance of three columns has no meaning here.
  if (Index == 6) control("optTtl").setValue(Value(true));
  PubBal();
  PubThird();
  RestoreFocus();
}

}  // namespace tessaron

// The demo gallery: 41 stored functions of the standard kind, each a key
// list behind T with its text, its T and its roots; and the keys that walk
// it. A demo is shown by copying it into slot 33 and drawing that slot.
#include <vector>

#include "calc/ovicalc.h"

namespace tessaron {

namespace {
constexpr int kEqual = 22, kT = 33, kTimes = 23, kHyp = 97, kArc = 98;

struct Demo {
  std::vector<int> keys;  // behind T, before "="
  const char* text;
};

// Demo n is entry n - 1. Their texts stand as the gallery has always shown
// them, blanks included.
const std::vector<Demo>& gallery() {
  static const std::vector<Demo> demos = {
      {{}, "  T  ="},
      {{51}, " 1 / T  ="},
      {{52}, " T^2  ="},
      {{53}, " T^3  ="},
      {{54}, " 10 ^ T  ="},
      {{55}, " e ^ T  ="},
      {{56}, " Ln (T)  ="},
      {{57}, " Log (T)  ="},
      {{58}, " SqRt (T)  ="},
      {{59}, " CuRt (T)  ="},
      {{27, kT}, " X ^ X ="},
      {{31, kT}, " X ^ (1/X) ="},
      {{34}, " Tan (T rad)  ="},
      {{35}, " Cos (T rad)  ="},
      {{36}, " Sin (T rad)  ="},
      {{37}, " Cot (T rad)  ="},
      {{38}, " Sec (T rad)  ="},
      {{39}, " Csc (T rad)  = "},
      {{kArc, 34}, " Atan (T rad)  ="},
      {{kArc, 35}, " Acos (T rad)  ="},
      {{kArc, 36}, " Asin (T rad)  ="},
      {{kArc, 37}, " Acot (T rad)  ="},
      {{kArc, 38}, " Asec (T rad)  ="},
      {{kArc, 39}, " Acsc (T rad)  ="},
      {{kHyp, 34}, " tanH (T)  = "},
      {{kHyp, 35}, " cosH (T)  ="},
      {{kHyp, 36}, " sinH (T)  ="},
      {{kHyp, 37}, " cotH (T)  ="},
      {{kHyp, 38}, " secH (T)  = "},
      {{kHyp, 39}, " cscH (T)  ="},
      {{kHyp, kArc, 34}, " AtanH (T)  ="},
      {{kHyp, kArc, 35}, " AcosH (T)  ="},
      {{kHyp, kArc, 36}, " AsinH (T)  = "},
      {{kHyp, kArc, 37}, " AcotH (T)  ="},
      {{kHyp, kArc, 38}, " AsecH (T)  ="},
      {{kHyp, kArc, 39}, " AcscH (T)  ="},
      {{137}, " SqRt(1 - T^2) ,    Graph: r^2 = T^2 + Y^2 , r=1   "},
      {{141, kTimes, 0, 5},
       " Exp(-T^2/2) / SqRt(2*Pi)   *5 (Y scale) : Norm. Distrib. : Dev. s=1    "},
      {{140, kTimes, 0, 5}, " T * e ^ (-T^2 / 2)   *5 (Y scale) :  Rayleigh Distribution   "},
      {{139, kTimes, 0, 5}, " T * e ^ (-T^2 )   *5 (Y scale) :  Dr. Vask's   "},
      {{145}, ""},
  };
  return demos;
}
}  // namespace

void OviCalc::PubDemo() {
  Cancel();
  ScrForm->setValue(Value(kDemoSlot));
  KeyLog = false;
  const double pi = vPi.number();
  for (int n = 1; n <= 41; ++n) {
    const Demo& d = gallery()[n - 1];
    // T, the demo's own keys and "=", behind the three header keys.
    int row = 1;
    DemoKeys[row++][n] = kT;
    for (int key : d.keys) DemoKeys[row++][n] = key;
    DemoKeys[row][n] = kEqual;
    DemoKeys[0][n] = row + 2;
    DemoText[n] = d.text;
    DemoData[2][n] = n == 23 ? 1 : (n == 24 || n == 32 || n == 34) ? 1.1 : 0.1;
    DemoData[3][n] = 0;
  }
  DemoText[41] = modeCurveText();
  auto answers = [this](int n, std::vector<double> roots) {
    DemoData[3][n] = static_cast<double>(roots.size());
    for (size_t i = 0; i < roots.size(); ++i) DemoData[4 + i][n] = roots[i];
  };
  answers(1, {0});
  answers(3, {0});
  // Demo 4 counts one answer, but its write lands in demo 3's place again:
  // its own answer row keeps what it held.
  DemoData[3][4] = 1;
  DemoData[4][3] = 0;
  answers(7, {1});
  answers(8, {1});
  answers(9, {0});
  answers(10, {0});
  const std::vector<double> wholes = {0, pi, 2 * pi, 3 * pi, -pi, -2 * pi, -3 * pi};
  const std::vector<double> odds = {pi / 2,  3 * pi / 2,  5 * pi / 2,
                                    -pi / 2, -3 * pi / 2, -5 * pi / 2};
  answers(13, wholes);
  answers(14, odds);
  answers(15, wholes);
  answers(16, odds);
  for (int n : {19, 21, 25, 27, 31, 33}) answers(n, {0});
  for (int n : {20, 23, 32}) answers(n, {1});
  answers(35, {1});
}

void OviCalc::PubDemo3() {
  for (const char* k : {"line11", "line12", "line13", "line14", "lblSq"})
    control(k).Visible = false;
  ScrForm->setValue(Value(kDemoSlot));
  disp() = "0";
  cmdRad();
  DemoNumber += DemoDir;
  // A step out of the gallery (back from demo 1 when Go Demo reopens it)
  // comes round the walk as the keys do.
  if (DemoNumber < 1) DemoNumber = DemoLast;
  if (DemoNumber > 41) DemoNumber = 1;
  PubIniOrder();
  auto& col = EqnTable[kDemoSlot];
  for (int i = 0; i < 3; ++i) col[30 + i] = KeyOrder[i];
  const int count = static_cast<int>(DemoData[3][DemoNumber]);
  col[0] = count;
  for (int i = 1; i <= count; ++i) {
    col[2 * i - 1] = DemoData[3 + i][DemoNumber];
    col[2 * i] = 0;
  }
  const int last = DemoKeys[0][DemoNumber];
  col[29] = last;
  for (int pos = 3; pos <= last; ++pos) col[30 + pos] = DemoKeys[pos - 2][DemoNumber];
  EqnText[kDemoSlot] = DemoText[DemoNumber];
  EqnFirst[kDemoSlot] = Value(0);
  col[25] = DemoData[2][DemoNumber];
  cmdTvalueC->Enabled = true;
  PubDomainCk();
  PubGraph();
}

void OviCalc::cmdGoNext() {
  GraScale = 900;
  GraX0 = 5000;
  if (DemoNumber >= DemoLast) DemoNumber = 0;
  DemoDir = 1;
  PubDemo3();
  for (const char* k : {"cmdYaxLeft", "cmdYaxRite", "cmdZoomPlus", "cmdZoomMinus"})
    control(k).Enabled = true;
  Width = 11640;
}

void OviCalc::cmdPrior() {
  GraScale = 900;
  GraX0 = 5000;
  if (DemoNumber <= 1 || DemoNumber > DemoLast) DemoNumber = DemoLast + 1;
  DemoDir = -1;
  PubDemo3();
  for (const char* k : {"cmdYaxLeft", "cmdYaxRite", "cmdZoomPlus", "cmdZoomMinus"})
    control(k).Enabled = true;
  Width = 11640;
}

void OviCalc::cmdGoDemo() {
  Control& key = control("cmdGoDemo");
  if (key.Caption == "Go Demo") {
    GraSlot = EqnIdx;
    key.Caption = "Go Eqn Graph";
    ScrForm->setValue(Value(kDemoSlot));
    DemoSub = 2;
    // Back from the histogram's curve the gallery starts again at demo 1.
    if (DemoNumber == 41) DemoNumber = 1 - DemoDir;
    for (const char* k : {"txtAAA", "cmdPrior", "cmdGoNext"}) control(k).Visible = true;
    PubDemo();
    PubDemo3();
    return;
  }
  DemoSub = 0;
  for (const char* k : {"txtAAA", "cmdPrior", "cmdGoNext"}) control(k).Visible = false;
  ScrForm->setValue(Value(GraSlot));
  key.Caption = "Go Demo";
  PubDomainCk();
  PubGraph();
}

}  // namespace tessaron

// The equation form's entry: the choice of equation, the coefficient boxes
// with their checks, the Enter and arrow walk through the boxes.
#include "equations/eqtns.h"

#include "surface/application.h"

namespace tessaron {

namespace {
constexpr const char* kTitle = "Tessaron";
constexpr long kAtRest = 0xC8FFFF;  // Rgb(255, 255, 200): a box left behind
constexpr long kWhite = 0xFFFFFF;

// What each equation type shows: the answer note on selection, the boxes,
// the words after boxes 1 to 12, the two exponents and the answer names.
struct Layout {
  const char* title;
  int lastBox;
  bool skipsFour;                     // box 4 stays hidden between the two rows
  std::array<const char*, 13> words;  // index 1..12
  const char* exp13;
  const char* exp14;
  std::array<const char*, 4> names;
};

const Layout kLayouts[5] = {
    {},
    {" Quadratic  Equation ",
     3,
     false,
     {"", " X   +", "  X  +", "  =  0"},
     "2",
     "",
     {" X1", " X2", "Note", "Note"}},
    {" 3rd-degree Polynomial (Cubic) Equation ",
     4,
     false,
     {"", " X   +", " X   +", "X +", "=0"},
     "3",
     "2",
     {" X1", " X2", " X3", "Note"}},
    {"2-unknown 1st-degree Simultaneous Eq.",
     7,
     true,
     {"", " X  +", "Y =", "", "", " X  +", "Y ="},
     "",
     "",
     {" X", " Y", "Note", "Note"}},
    {"3-unknown 1st-degree Simultaneous Eq.",
     12,
     false,
     {"", " X  +", " Y  +", " Z  = ", "", " X  +", " Y  +", " Z  = ", "", " X  +", " Y  +",
      " Z  = ", ""},
     "",
     "",
     {" X", " Y", " Z", "Note"}},
};
}  // namespace

frmEqtns::frmEqtns(Application& app)
    : Form(app, "frmEqtns",
           {.caption = "  Ovi   Equation ", .width = 10680, .height = 7500, .keyPreview = true},
           designTable()) {
  routes();
}

void frmEqtns::routes() {
  on("optEqn", Event::Click, [this](EventArgs& e) { optEqnClick(e.Index); });
  on("txtBBB", Event::GotFocus, [this](EventArgs& e) { txtBBBGotFocus(e.Index); });
  on("txtBBB", Event::LostFocus, [this](EventArgs& e) { txtBBBLostFocus(e.Index); });
  on("txtBBB", Event::KeyPress, [this](EventArgs& e) { txtBBBKeyPress(e.Index, e.KeyAscii); });
  on("Form", Event::KeyDown, [this](EventArgs& e) { FormKeyDown(e.KeyCode); });
  on("cmdCalc", Event::Click, [this](EventArgs&) { cmdCalcClick(); });
  on("cmdDel", Event::Click, [this](EventArgs&) { PubClear(); });
  on("cmdGraph", Event::Click, [this](EventArgs&) { cmdGraphClick(); });
  on("cmdReturn", Event::Click, [this](EventArgs&) { cmdReturnClick(); });
  on("cmdZoom", Event::Click, [this](EventArgs& e) { cmdZoomClick(e.Index); });
  on("cmdPrint", Event::Click, [this](EventArgs&) { cmdPrintClick(); });
  on("cmdExit", Event::Click, [this](EventArgs&) { Unload(); });
}

Value& frmEqtns::Coef(int index) {
  if (index < 0 || index >= static_cast<int>(coef_.size())) fail::Subscript();
  return coef_[index];
}

const Value& frmEqtns::Coef(int index) const {
  if (index < 0 || index >= static_cast<int>(coef_.size())) fail::Subscript();
  return coef_[index];
}

void frmEqtns::Load() {
  Top = app().form("frmMain").Height + 360;
  control("picGraph").Visible = false;
  EqnType = Value(1);
  ApplyLayout();
  for (int i = 4; i <= 12; ++i) {
    control("txtBBB", i).Visible = false;
    control("lblCCC", i).Visible = false;
  }
  for (int i = 1; i <= 12; ++i) {
    Coef(i) = Value(0);
    control("txtBBB", i).Text = "";
  }
  MaskAns = Value("###,###,##0.###########");
  MaskBig = Value("#####0.0");
  MaskPt = Value("####0.#####");
}

// The words, boxes and names of the current type.
void frmEqtns::ApplyLayout() {
  const int type = CInt(EqnType).AsInt16();
  const Layout& l = kLayouts[type];
  control("lblAns", 3).Caption = l.title;
  for (int i = 1; i <= 12; ++i) {
    const bool shown = i <= l.lastBox && !(l.skipsFour && i == 4);
    control("txtBBB", i).Visible = shown;
    Control& w = control("lblCCC", i);
    w.Caption = l.words[i] ? l.words[i] : "";
    w.Visible = shown && !w.Caption.empty();
  }
  control("lblCCC", 13).Caption = l.exp13;
  control("lblCCC", 13).Visible = *l.exp13 != '\0';
  control("lblCCC", 14).Caption = l.exp14;
  control("lblCCC", 14).Visible = *l.exp14 != '\0';
  for (int i = 0; i <= 3; ++i) control("lblABS", i).Caption = l.names[i];
}

void frmEqtns::optEqnClick(int Index) {
  if (Index >= 5) return;
  ClearAnswers();
  for (int i = 1; i <= 12; ++i) {
    Coef(i) = Value(0);
    control("txtBBB", i).Text = "";
  }
  control("lblZZ").Visible = false;
  const int old = CInt(EqnType).AsInt16();
  control("optEqn", old).Visible = true;
  control("optEqn", old + 4).Visible = false;
  control("optEqn", Index).Visible = false;
  Control& twin = control("optEqn", Index + 4);
  twin.Visible = true;
  twin.setValue(Value(true));
  EqnType = Value(Index);
  ApplyLayout();
  control("txtBBB", 1).SetFocus();
}

void frmEqtns::ClearAnswers() {
  for (int i = 0; i <= 3; ++i) control("lblAns", i).Caption = "";
}

void frmEqtns::PubClear() {
  for (int i = 1; i <= 12; ++i) {
    control("txtBBB", i).Text = "";
    Coef(i) = Value(0);
  }
  ClearAnswers();
  control("txtBBB", 1).SetFocus();
}

void frmEqtns::txtBBBGotFocus(int Index) {
  CurCoef = Value(Index);
  SavedCoef = Coef(Index);
  control("txtBBB", Index).BackColor = kWhite;
}

void frmEqtns::RefuseBox(Control& box, const char* words) {
  box.BackColor = kWhite;
  MsgBox(words, 48, kTitle);
  box.Text = "";
  Coef(box.index()) = Value(0);
  box.SetFocus();
}

void frmEqtns::txtBBBLostFocus(int Index) {
  Control& box = control("txtBBB", Index);
  box.BackColor = kAtRest;
  if (box.Text == "") {
    Coef(Index) = Value(0);
    box.Text = "0";
    if (SavedCoef != Value(0)) ClearAnswers();
    return;
  }
  if (!IsNumeric(Value(box.Text))) {
    RefuseBox(box, " Please Enter Number Only ! ");
    return;
  }
  const Value N = CDec(Value(box.Text));
  const Value scaled = N * Pow(Value(10), Value(7));
  if (Int(scaled) != scaled) {
    RefuseBox(box, " Sorry! Upto  0.000 000 1 ,  No Lower Numer. ");
    return;
  }
  // A signed test: a negative amount passes as far as the length allows.
  if (N >= Pow(Value(10), Value(8)) || Len(Value(box.Text)) > 9) {
    RefuseBox(box, " Sorry!  Too  Long / Big  ... ");
    return;
  }
  const Value x = CDbl(Value(box.Text));
  Coef(Index) = x;
  box.Text = Int(x) == x ? Format(x, "##0") : Format(x, "##0.#######");
  if (Coef(Index) != SavedCoef) ClearAnswers();
}

bool frmEqtns::BoxShown(int index) const {
  return index >= 1 && index <= 12 && control("txtBBB", index).Visible;
}

void frmEqtns::txtBBBKeyPress(int Index, int KeyAscii) {
  if (KeyAscii != 13) return;
  control("txtBBB", Index).BackColor = kAtRest;
  const int cur = CInt(CurCoef).AsInt16();
  if (cur > 0 && cur < 12 && BoxShown(cur + 1)) {
    CurCoef = Value(cur + 1);
    control("txtBBB", cur + 1).SetFocus();
  } else if (EqnType == Value(3) && cur == 3) {
    // The second row of two unknowns starts at box 5, past box 4.
    CurCoef = Value(5);
    control("txtBBB", 5).SetFocus();
  } else {
    control("cmdCalc").SetFocus();
  }
}

void frmEqtns::FormKeyDown(int KeyCode) {
  constexpr int kUp = 38, kDown = 40;
  if (CurCoef.kind() == Kind::Empty) return;
  const int cur = CInt(CurCoef).AsInt16();
  if (KeyCode == kUp && cur > 1 && cur < 13) {
    if (BoxShown(cur - 1))
      control("txtBBB", cur - 1).SetFocus();
    else if (EqnType == Value(3) && cur == 5)
      control("txtBBB", 3).SetFocus();
    else
      control("txtBBB", 1).SetFocus();
  } else if (KeyCode == kDown && cur > 0 && cur < 12) {
    if (BoxShown(cur + 1))
      control("txtBBB", cur + 1).SetFocus();
    else if (EqnType == Value(3) && cur == 3)
      control("txtBBB", 5).SetFocus();
    else
      control("cmdCalc").SetFocus();
  }
}

}  // namespace tessaron

// The calculator's face. The basic keys (display, digits, the four operations,
// memories) stand left of the line at 7515 twips and the scientific keys right
// of it, so that narrowing the form to 7515 leaves a plain adding machine.
#include <vector>

#include "calc/ovicalc.h"
#include "engine/graph_design.h"
#include "surface/application.h"

namespace tessaron {

namespace {
using K = ControlKind;

constexpr int kKeyW = 840, kKeyH = 510;
// The basic block: five key columns from the left edge.
constexpr int kLeftX = 120, kLeftPitchX = 900, kRowTop = 1380, kPitchY = 570;
// The scientific block: four columns beyond 7515.
constexpr int kSciX = 7560, kSciPitchX = 960, kSciW = 900, kSciTop = 120;

int leftX(int col) { return kLeftX + col * kLeftPitchX; }
int rowY(int row) { return kRowTop + row * kPitchY; }
int sciX(int col) { return kSciX + col * kSciPitchX; }
int sciY(int row) { return kSciTop + row * kPitchY; }

Design key(std::string name, int index, std::string caption, std::string tip, int left, int top,
           int width = kKeyW, double font = 11) {
  return {.kind = K::CommandButton,
          .name = std::move(name),
          .index = index,
          .caption = std::move(caption),
          .tip = std::move(tip),
          .left = left,
          .top = top,
          .width = width,
          .height = kKeyH,
          .fontSize = font};
}
Design basic(std::string name, int index, std::string caption, std::string tip, int col, int row,
             double font = 12) {
  return key(std::move(name), index, std::move(caption), std::move(tip), leftX(col), rowY(row),
             kKeyW, font);
}
Design sci(std::string name, int index, std::string caption, std::string tip, int col, int row) {
  return key(std::move(name), index, std::move(caption), std::move(tip), sciX(col), sciY(row),
             kSciW, 10);
}

std::vector<Design> table() {
  std::vector<Design> t;
  // Display, transcript and the history bar on its left.
  t.push_back({.kind = K::VScrollBar,
               .name = "ScrForm",
               .left = 60,
               .top = 60,
               .width = 255,
               .height = 1260,
               .min = 0,
               .max = 36});
  t.push_back({.kind = K::Label,
               .name = "lblFormula",
               .left = 360,
               .top = 60,
               .width = 6960,
               .height = 330,
               .backColor = 0x99FFFF,
               .fontSize = 9});
  t.push_back({.kind = K::Label,
               .name = "Readout",
               .caption = "0",
               .tip = " Display Window ",
               .left = 360,
               .top = 420,
               .width = 6960,
               .height = 600,
               .backColor = 0x99FFFF,
               .foreColor = 0xFF0000,
               .fontSize = 18,
               .fontBold = true,
               .alignment = Align::Right});
  t.push_back({.kind = K::Frame,
               .name = "frameSlide",
               .tip = " Former Calculations with left Scroll Bar ",
               .left = 360,
               .top = 1050,
               .width = 3600,
               .height = 285});
  // The hint's pictures start where each run of tmrTimer2 ends.
  const struct {
    const char* name;
    int left;
    const char* picture;
  } images[] = {
      {"imgSlide", -7590, "hintslide"}, {"imgSbody", 0, "hintbody"}, {"imgLine", 1446, "hintline"}};
  for (const auto& img : images)
    t.push_back({.kind = K::Image,
                 .name = img.name,
                 .left = img.left,
                 .top = 30,
                 .width = 1200,
                 .height = 225,
                 .container = "frameSlide",
                 .picture = img.picture});
  t.push_back({.kind = K::Label,
               .name = "lblRead2",
               .left = 4020,
               .top = 1050,
               .width = 3300,
               .height = 285,
               .visible = false,
               .fontSize = 10});
  t.push_back({.kind = K::Timer, .name = "tmrTimer2", .interval = 100});
  t.push_back({.kind = K::TextBox, .name = "txtCopy", .visible = false});

  // The basic block.
  t.push_back(basic("cmdBack", -1, "Back", " Delete last typing/input ", 0, 0, 11));
  t.push_back(basic("cmdDelete", -1, "Del", " Delete One Digit ", 1, 0, 11));
  t.push_back(basic("CancelEntry", -1, "CE", " Clear Entry (Clear Display only) ", 2, 0));
  t.push_back(basic("Cancel", -1, "CA", " Clear All, except Memories / Previous Works ", 3, 0));
  t.push_back(basic("Percent", -1, "%", " Percent, 1/100 ", 4, 0));
  static const char* const kDigitTips[] = {
      " Zero ",    " One, I ",  " Two, II ",    " Three, III ",  " Four, IV ",
      " Five, V ", " Six, VI ", " Seven, VII ", " Eight, VIII ", " Nine, IX "};
  for (int d = 0; d <= 9; ++d) {
    const int col = d == 0 ? 0 : (d - 1) % 3;
    const int row = d == 0 ? 4 : 3 - (d - 1) / 3;
    t.push_back(basic("Number", d, std::to_string(d), kDigitTips[d], col, row, 14));
  }
  t.push_back(basic("Operator", 4, "/", " Divide ", 3, 1, 14));
  t.push_back(basic("Operator", 3, "X", " Multiply ", 3, 2, 14));
  t.push_back(basic("Operator", 1, "-", " Minus, Subtract ", 3, 3, 14));
  t.push_back(basic("Operator", 0, "+", " Plus, Add ", 3, 4, 14));
  t.push_back(basic("cmdOpenP", -1, "(", "", 4, 1, 14));
  t.push_back(basic("cmdCloseP", -1, ")", "", 4, 2, 14));
  t.push_back({.kind = K::TextBox,
               .name = "txtKwal",
               .caption = "0",
               .tip = " Open ( ",
               .left = leftX(4) + 210,
               .top = rowY(3) + 60,
               .width = 420,
               .height = 390,
               .fontSize = 11,
               .alignment = Align::Center});
  t.push_back(basic("Pipi", -1, "3.14", " Pi = 3.14159265358979 ", 4, 4, 11));
  t.push_back(basic("cmdDeci", -1, ".", " Decimal Point ", 1, 4, 14));
  t.push_back(basic("Sign", -1, "+/-", " Change Sign of Display ", 2, 4));
  t.push_back(basic("cmdExp", -1, "exp", " Input Scientific Notation, like 1.234E+56  ", 0, 5));
  t.push_back(key("Operator", 2, "=", " Equal, Finish and Save Calculations ", leftX(1), rowY(5),
                  2 * kLeftPitchX + kKeyW, 14));
  t.push_back(basic("cmdPaste", -1, "Paste", " Paste data to Display Window ", 4, 5, 10));
  t.push_back(basic("cmdTeqn", -1, "Eqn", "", 0, 6, 14));
  t.push_back(basic("cmdAssist", -1, "Assist", "", 1, 6, 10));
  t.push_back(
      basic("cmdPrint", -1, "Print", " Print out Calculations, Equations, and Graphs  ", 2, 6, 10));
  t.push_back(basic("cmdCopy", -1, "Copy", " Copy Data of Display Window ", 3, 6, 10));
  t.push_back(basic("cmdExit", -1, "Exit", "", 4, 6, 10));

  // The memory strip, still in the basic block.
  const int mx = leftX(5);
  t.push_back({.kind = K::Label,
               .name = "lblMMplus",
               .caption = "M+",
               .left = mx,
               .top = rowY(0),
               .width = 540,
               .height = 255,
               .alignment = Align::Center});
  t.push_back({.kind = K::Label,
               .name = "lblMMrecall",
               .caption = "Recall",
               .left = mx + 600,
               .top = rowY(0),
               .width = 1500,
               .height = 255,
               .alignment = Align::Center});
  t.push_back({.kind = K::Label,
               .name = "lblMMminus",
               .caption = "Mc",
               .left = mx + 2160,
               .top = rowY(0),
               .width = 300,
               .height = 255,
               .alignment = Align::Center});
  for (int i = 1; i <= 4; ++i) {
    const int top = rowY(0) + 300 + (i - 1) * kPitchY;
    t.push_back(
        key("MMMin", i, std::to_string(i), " Store/add Display to  Memory ", mx, top, 540, 12));
    t.push_back(key("MMMout", i, "0", " Recall Memory to Display ", mx + 600, top, 1500, 12));
    t.push_back(key("MMMsub", i, "c", " Clear Memory ", mx + 2160, top, 300, 10));
  }
  t.push_back({.kind = K::VScrollBar,
               .name = "scrMem",
               .left = mx + 2490,
               .top = rowY(0) + 300,
               .width = 255,
               .height = 4 * kPitchY - 60,
               .min = 0,
               .max = 29});
  t.push_back(key("MMMclear", -1, "Clear all", " Clear all Memories ", mx,
                  rowY(0) + 300 + 4 * kPitchY, 2745, 10));

  // The equation panel, hidden until the function tool opens.
  t.push_back({.kind = K::Frame,
               .name = "frmEquation",
               .left = mx,
               .top = rowY(5) + 60,
               .width = 2745,
               .height = 1020,
               .visible = false});
  const char* const eqn[][2] = {{"cmdTform", "f(T)"},  {"cmdTvalue", "T= 0.1"},
                                {"cmdT", "T"},         {"cmdTsolve", "Solve"},
                                {"cmdTcalcu", "Calc"}, {"cmdGraph", "Demo Graph"}};
  for (int i = 0; i < 6; ++i) {
    Design d = key(eqn[i][0], -1, eqn[i][1], "", 60 + (i % 3) * 890, 180 + (i / 3) * 400, 850, 9);
    d.height = 360;
    d.container = "frmEquation";
    t.push_back(d);
  }
  t.push_back(key("cmdGoCalc", -1, "open Tessaron", "", leftX(0), rowY(6), 1740, 10));
  t.back().visible = false;

  // The scientific block.
  t.push_back(sci("Operator", 5, "nCr", " Combination, n! / (n-r)! / r!  ", 0, 0));
  t.push_back(sci("Operator", 6, "nPr", " Permutation, n! / (n-r)!  ", 1, 0));
  t.push_back(sci("Operator", 7, "X^y", " y power of X ", 2, 0));
  t.push_back(sci("Operator", 11, "X^(1/y)", " 1/y power of X ", 3, 0));
  t.push_back(sci("Operator", 8, "LogxY", " Log(x)Y, Logarithm to the base x of Y ", 0, 1));
  t.push_back(sci("Operator", 9, "√|X²-Y²|", " Pythagorean Theorem, from hypotenuse ", 1, 1));
  t.push_back(sci("Operator", 10, "√(X²+Y²)", " Pythagorean Theorem, to hypotenuse ", 2, 1));
  t.push_back(sci("cmdPythaOne", -1, "√|1-X²|", " Pythagorean Theorem ' ", 3, 1));
  t.push_back(sci("Rever", -1, "1/x", " Reciprocal, Multiplicative Inverse  ", 0, 2));
  t.push_back(sci("Squar", -1, "x²", " Square ", 1, 2));
  t.push_back(sci("Cubi", -1, "x³", " Cube ", 2, 2));
  t.push_back(sci("nFac", -1, "n!", " Factorial, 1 x 2 x 3 x ... x n  ", 3, 2));
  t.push_back(sci("SqRt", -1, "√x", " Square root, x ^ 1/2 ", 0, 3));
  t.push_back(sci("CuR", -1, "³√x", " Cube root , x ^ 1/3 ", 1, 3));
  t.push_back(sci("exp10", -1, "10^x", " x power of 10 ", 2, 3));
  t.push_back(sci("Expo", -1, "e^x", " x power of e (2.718281828) ", 3, 3));
  t.push_back(sci("Loga", -1, "log", " Log(10)X, Common Logarithm  ", 0, 4));
  t.push_back(sci("NatLog", -1, "ln", " Log(e)X, Natural Logarithm  ", 1, 4));
  t.push_back(sci("cmdArea", -1, "πD²/4", " Circular Area from Diameter ", 2, 4));
  t.push_back(sci("cmdPythaPlus", -1, "√(1+Y²)", " Pythagorean Theorem ", 3, 4));
  t.push_back(sci("SSin", -1, "      sin ", " Sine ", 0, 5));
  t.push_back(sci("Ccos", -1, "      cos", " Cosine ", 1, 5));
  t.push_back(sci("Ttan", -1, "      tan ", " Tangent ", 2, 5));
  t.push_back(sci("cmdPasteX", -1, "pasteX", "", 3, 5));
  t.push_back(sci("Secant", -1, "sec", " Secant = 1 / Cosine ", 0, 6));
  t.push_back(sci("Cosec", -1, "csc", " Cosecant = 1 / Sine ", 1, 6));
  t.push_back(sci("Cotan", -1, "ctn", " Cotangent = 1 / Tangent ", 2, 6));
  // The two number views share one place: a fraction shows one, a whole
  // number the other.
  t.push_back(sci("cmdFract", -1, " Frac, Binary",
                  " Show Fraction and Binary number of decimal fraction part ", 3, 6));
  t.push_back(sci("cmdOctal", -1, " Octal Hex", " Show Octal and Hexadecimal Number  ", 3, 6));
  // Their two-word captions need a smaller face than the other keys.
  t[t.size() - 2].fontSize = 8;
  t.back().fontSize = 8;
  t.push_back(sci("cmdHyp", -1, "Hyp", " Hyperbolic ", 0, 7));
  t.push_back(sci("cmdArc", -1, "Arc", " Inverse Function  for Trig/Hyp ", 1, 7));
  t.push_back(sci("cmdHyp2", -1, "Hyp2", " Hyperbolic ", 2, 7));
  t.push_back(sci("cmdArc2", -1, "Arc2", " Inverse Function  for Trig/Hyp ", 3, 7));
  t.push_back({.kind = K::Frame,
               .name = "frameRD",
               .left = sciX(0),
               .top = sciY(8),
               .width = 3 * kSciPitchX,
               .height = kKeyH + 60});
  const char* const rd[][3] = {{"cmdRaDeg", "D<>R", " Convert Degree <> Radian "},
                               {"cmdDeg", "Deg", " Degree "},
                               {"cmdRad", "Rad", " Radian "}};
  for (int i = 0; i < 3; ++i) {
    Design d = key(rd[i][0], -1, rd[i][1], rd[i][2], i * kSciPitchX, 30, kSciW, 10);
    d.container = "frameRD";
    t.push_back(d);
  }
  t.back().backColor = 0xC0C0C0;
  t[t.size() - 2].backColor = 0xC0FFC0;
  // The help page, opened by a double click as on the menu.
  t.push_back({.kind = K::OlePackage,
               .name = "oleHelp",
               .left = sciX(3) + (kSciW - 480) / 2,
               .top = sciY(8) + 60,
               .width = 480,
               .height = 480,
               .picture = ":/help/Help.html"});

  // The function tool's aids open beyond the right edge (the form widens).
  t.push_back({.kind = K::Frame,
               .name = "frameAssist",
               .left = 11640,
               .top = 120,
               .width = 960,
               .height = 5160,
               .visible = false});
  const char* const aids[][3] = {
      {"cmdSlope", "Slope", " Slope at X = ?, of the graph "},
      {"cmdIntegral", "Integral", " Integral between X = M(1) ~ M(2) "},
      {"cmdLength", "Length", " Length of curve between X = M(1) ~ M(2) "},
      {"cmdXCyl", "X-Vol", " Volume between X = M(1) ~ M(2), Rotating X-axis "},
      {"cmdYCol", "Y-Vol", " Volume between X = M(1) ~ M(2), Rotating Y-axis "},
      {"cmdXsurf", "X-Surf", " Surface between X = M(1) ~ M(2), Rotating Y-axis "},
      {"cmdYsurf", "Y-Surf", " Surface between X = M(1) ~ M(2), Rotating Y-axis "},
      {"cmdMinMax", "   Max  /  Min ", " Min/Max between X = M(1) ~ M(2) "},
      {"cmdVaskMode", " Vask's  Mode ",
       " Calculate better mode: Put Y1~Y5 to M(1)~M(5), Y(3)=Highest "},
      {"cmdVaskMode2", " Vask's Mode2",
       " Calculate better mode: Put Y1,Y2(Hi),Y3, Interval at Mem.(1,2,3,4). "},
      {"cmdExitAssist", "Close", " Close Assist "}};
  for (int i = 0; i < 11; ++i) {
    Design d = key(aids[i][0], -1, aids[i][1], aids[i][2], 30, 60 + i * 460, 900, 8);
    d.height = 420;
    d.container = "frameAssist";
    t.push_back(d);
  }
  // The graph's picture and keys cover the face while a graph is up.
  graphDesign(t);
  return t;
}
}  // namespace

OviCalc::OviCalc(Application& app)
    : Form(app, "OviCalc",
           FormDesign{
               .caption = "  Vantor Calc                                           (15 digits) ",
               .width = 11640,
               .height = 6060,
               .fontSize = 10,
               .keyPreview = true},
           table()) {
  bindControls();
  routes();
  engineRoutes();
}

void OviCalc::bindControls() {
  auto c = [this](std::string_view n, int i = -1) { return &control(n, i); };
  Readout = c("Readout");
  lblFormula = c("lblFormula");
  lblRead2 = c("lblRead2");
  txtKwal = c("txtKwal");
  cmdDeciC = c("cmdDeci");
  SignC = c("Sign");
  cmdExpC = c("cmdExp");
  cmdDeleteC = c("cmdDelete");
  cmdBackC = c("cmdBack");
  CancelEntryC = c("CancelEntry");
  CancelC = c("Cancel");
  cmdOpenPC = c("cmdOpenP");
  cmdClosePC = c("cmdCloseP");
  PercentC = c("Percent");
  PipiC = c("Pipi");
  cmdFract = c("cmdFract");
  cmdOctal = c("cmdOctal");
  nFac = c("nFac");
  cmdPasteC = c("cmdPaste");
  cmdTC = c("cmdT");
  cmdTformC = c("cmdTform");
  cmdTvalueC = c("cmdTvalue");
  cmdArc = c("cmdArc");
  cmdHyp = c("cmdHyp");
  cmdDegC = c("cmdDeg");
  cmdRadC = c("cmdRad");
  frameRD = c("frameRD");
  frameSlide = c("frameSlide");
  frameAssist = c("frameAssist");
  frmEquation = c("frmEquation");
  cmdRaDeg = c("cmdRaDeg");
  cmdGraph = c("cmdGraph");
  ScrForm = c("ScrForm");
  picGraph = c("picGraph");
  scrMem = c("scrMem");
  imgSlide = c("imgSlide");
  imgLine = c("imgLine");
  for (int i = 0; i <= 9; ++i) NumberC[i] = c("Number", i);
  for (int i = 0; i <= 11; ++i) OperatorC[i] = c("Operator", i);
  for (int i = 1; i <= 4; ++i) {
    MMMin[i] = c("MMMin", i);
    MMMout[i] = c("MMMout", i);
    MMMsub[i] = c("MMMsub", i);
  }
}

void OviCalc::routes() {
  auto click = [this](std::string_view name, void (OviCalc::*routine)()) {
    on(name, Event::Click, [this, routine](EventArgs&) { (this->*routine)(); });
  };
  on("Number", Event::Click, [this](EventArgs& a) { Number(a.Index); });
  on("Operator", Event::Click, [this](EventArgs& a) { Operator(a.Index); });
  click("cmdDeci", &OviCalc::cmdDeci);
  click("Sign", &OviCalc::Sign);
  click("cmdExp", &OviCalc::cmdExp);
  click("cmdDelete", &OviCalc::cmdDelete);
  click("cmdBack", &OviCalc::cmdBack);
  click("CancelEntry", &OviCalc::CancelEntry);
  click("Cancel", &OviCalc::Cancel);
  click("cmdOpenP", &OviCalc::cmdOpenP);
  click("cmdCloseP", &OviCalc::cmdCloseP);
  click("Percent", &OviCalc::Percent);
  click("Pipi", &OviCalc::Pipi);
  click("cmdPythaOne", &OviCalc::cmdPythaOne);
  click("cmdPythaPlus", &OviCalc::cmdPythaPlus);
  click("cmdDeg", &OviCalc::cmdDeg);
  click("cmdRad", &OviCalc::cmdRad);
  click("txtKwal", &OviCalc::txtKwalClick);
  click("Rever", &OviCalc::Rever);
  click("Squar", &OviCalc::Squar);
  click("Cubi", &OviCalc::Cubi);
  click("SqRt", &OviCalc::SqRt);
  click("CuR", &OviCalc::CuR);
  click("exp10", &OviCalc::exp10);
  click("Expo", &OviCalc::Expo);
  click("Loga", &OviCalc::Loga);
  click("NatLog", &OviCalc::NatLog);
  click("cmdArea", &OviCalc::cmdArea);
  click("nFac", &OviCalc::nFacKey);
  click("SSin", &OviCalc::SSin);
  click("Ccos", &OviCalc::Ccos);
  click("Ttan", &OviCalc::Ttan);
  click("Secant", &OviCalc::Secant);
  click("Cosec", &OviCalc::Cosec);
  click("Cotan", &OviCalc::Cotan);
  // The twins of the prefixes run the same routines.
  click("cmdHyp", &OviCalc::cmdHypKey);
  click("cmdHyp2", &OviCalc::cmdHypKey);
  click("cmdArc", &OviCalc::cmdArcKey);
  click("cmdArc2", &OviCalc::cmdArcKey);
  click("cmdRaDeg", &OviCalc::cmdRaDegKey);
  click("cmdFract", &OviCalc::cmdFractKey);
  click("cmdOctal", &OviCalc::cmdOctalKey);
  on("lblRead2", Event::DblClick, [this](EventArgs&) { lblRead2->Visible = false; });
  on("MMMin", Event::Click, [this](EventArgs& a) { MMMinKey(a.Index); });
  on("MMMout", Event::Click, [this](EventArgs& a) { MMMoutKey(a.Index); });
  on("MMMsub", Event::Click, [this](EventArgs& a) { MMMsubKey(a.Index); });
  click("MMMclear", &OviCalc::MMMclear);
  on("scrMem", Event::Change, [this](EventArgs&) { scrMemChange(); });
  on("ScrForm", Event::Change, [this](EventArgs&) { ScrFormChange(); });
  on("tmrTimer2", Event::Timer, [this](EventArgs&) { tmrTimer2(); });
  on("Form", Event::KeyPress, [this](EventArgs& a) { Form_KeyPress(a.KeyAscii); });
  on("cmdExit", Event::Click, [this](EventArgs&) { Unload(); });
}

void OviCalc::Load() {
  Top = 1920;
  Width = 11640;
  Height = 6060;
  picGraph->Left = 60;
  picGraph->Top = 60;
  picGraph->Visible = false;

  vPi = Value(4 * Atn(1));
  vPiLow = Value(3.141592653588);
  vPiHigh = Value(3.141592653591);
  Tiny = Value(1 / 1e13);
  Huge = Value(1e13);
  Margin = Value(1 / 1e11);
  nColor = 3;
  vColorRead = {0xCCCCCC, 0x9999FF, 0x88BBFF, 0x99FFFF, 0xBBFFBB, 0xFFFFAA, 0xFFBBBB, 0xDDBBDD};
  const long form[] = {0xCCCCCC, 0x8888FF, 0x77AAFF, 0x88FFFF,
                       0x88FF88, 0xFFFF11, 0xFF9999, 0xDD99DD};
  for (int i = 0; i < 8; ++i) sColorForm[i] = std::to_string(form[i]);
  BackColor = std::stol(sColorForm[nColor]);
  Readout->BackColor = vColorRead[nColor];
  // The memories need the colour rows for their keys.
  loadMemories();

  for (Control* k : {cmdDeleteC, CancelEntryC, cmdExpC, cmdOctal, nFac, OperatorC[5], OperatorC[6]})
    k->Enabled = true;
  TValue = Value(1);
  cmdTvalueC->Caption = " T=" + CStr(TValue);
  cmdTC->Visible = false;
  frmEquation->Visible = false;

  engineLoad();
  Cancel();
  ErrFlag = false;
  nMemLast = 0;
  // Nothing is saved yet, so there is no list to hint at.
  frameSlide->Visible = false;
}

}  // namespace tessaron

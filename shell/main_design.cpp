#include "shell/main_form.h"

namespace tessaron {

namespace {
using K = ControlKind;

// The menu is laid out in three bands. The left band (0 to 1760) is all that
// the reduced strip shows: the calculator and summation images, with room on
// their right for the lease and loan images when they move in. The middle
// band holds the main buttons up to the normal width; the finance column
// starts at 6480 and only shows at the finance width.
constexpr int kBandMid = 1860, kBandB = 4140, kBandC = 5940, kBandFinance = 6480;
constexpr int kRow = 520, kButtonHigh = 480;

Design button(const char* name, const char* caption, const char* tip, int left, int top,
              int width) {
  return {.kind = K::CommandButton,
          .name = name,
          .caption = caption,
          .tip = tip,
          .left = left,
          .top = top,
          .width = width,
          .height = kButtonHigh};
}

Design image(const char* name, const char* tip, const char* picture, int left, int top, int size) {
  return {.kind = K::Image,
          .name = name,
          .tip = tip,
          .left = left,
          .top = top,
          .width = size,
          .height = size,
          .picture = picture};
}

Design financeButton(const char* name, const char* caption, const char* tip, int row) {
  Design d = button(name, caption, tip, kBandFinance, 100 + row * 440, 1800);
  d.height = 400;
  return d;
}
}  // namespace

std::vector<Design> frmMain::designTable() {
  std::vector<Design> t = {
      {.kind = K::CommandButton,
       .name = "cmdMYCalc",
       .tip = " Scientific calculator ",
       .left = kBandMid,
       .top = 100,
       .width = 2160,
       .height = 3 * kRow + kButtonHigh,
       .picture = "mycalc"},
      button("cmdSumm", "Ovi Sum", " Universal summation chart ", kBandB, 100, 1680),
      button("cmdEquation", "Equations", " Solve equations with graph ", kBandB, 100 + kRow, 1680),
      button("cmdStatis", "Statistics", " Statistics with graph ", kBandB, 100 + 2 * kRow, 1680),
      button("cmdUnit1", "Unit Conver.", " Conversion table and converter  ", kBandB,
             100 + 3 * kRow, 1680),
      button("cmdFinances", "Finance", " Show other Finance Menu ", kBandMid, 100 + 4 * kRow + 80,
             2160),
      {.kind = K::CommandButton,
       .name = "cmdAbout",
       .left = kBandB,
       .top = 100 + 4 * kRow + 80,
       .width = 1680,
       .height = kButtonHigh,
       .picture = "about"},
      financeButton("cmdOrd", "Loan", " Loan, Present Amount <> Monthly Payment ", 0),
      financeButton("cmdLease", "Lease", " Lease, Monthly payment, plus ", 1),
      financeButton("cmdInstall", "Annuity",
                    " Annuity, Installment Savings, Monthly Payment <> Future Amount ", 2),
      financeButton("cmdPresent", "Present Amt.", " Present Amount <> Monthly Payment ", 3),
      financeButton("cmdBond", "Savings / CD",
                    " Savings, CD, Draft, Note, Present Amount <> Future Amount ", 4),
      financeButton("cmdGye", "Mutual Fin.", " Mutual Financing  (Gye)  ", 5),
      image("imgCalc", " Calculator ", "calc", 600, 100, 420),
      image("imgSum", " Summation chart ", "sum", 600, 550, 420),
      // Where the restored menu keeps them: beyond its right edge.
      image("imgLeas", " Lease ", "lease", 8379, 330, 420),
      image("imgLoan", " Loan ", "loan", 8379, 660, 420),
      image("imgExit", " Resize this Menu ", "resize", kBandC, 100, 390),
      image("imgHelp", "If no Help, open C:/Program Files/Tessaron/CalcHelp ", "help", kBandC,
            100 + kRow, 390),
      {.kind = K::OlePackage,
       .name = "oleHelp",
       .left = kBandC,
       .top = 100 + 2 * kRow,
       .width = 390,
       .height = 480,
       .picture = ":/help/CalcHelp.html"},
      {.kind = K::Timer, .name = "tmrTimer", .interval = 2000},
  };
  // The slide show: all eleven pictures on one spot below the small images;
  // the clock shows one at a time, starting from the first.
  static const char* const kSlides[] = {"dan0", "dan1", "dan2", "dan3", "dan4", "dan5",
                                        "dan6", "dan7", "dan8", "dan9", "dan10"};
  for (int k = 0; k <= 10; ++k)
    t.push_back({.kind = K::Image,
                 .name = "imgDan",
                 .index = k,
                 .left = 120,
                 .top = 1100,
                 .width = 1560,
                 .height = 1560,
                 .visible = k == 0,
                 .picture = kSlides[k]});
  return t;
}

}  // namespace tessaron

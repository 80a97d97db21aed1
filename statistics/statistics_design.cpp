#include "statistics/statistics_design.h"

#include "statistics/colours.h"
#include "surface/design_rows.h"

namespace tessaron {

namespace {
using namespace stats;
using K = ControlKind;

// The sheet: twenty rows of place number and cell, a scroll bar beside them.
constexpr int kRowTop = 300, kRowPitch = 300;
// The figures: a title column and two value columns (low and high).
constexpr int kTitleX = 3480, kLowX = 4680, kHighX = 6840, kValueW = 2040;

Design label(const char* name, int index, const char* caption, const char* tip, int left, int top,
             int width, const char* container = "") {
  return Row(K::Label, name, index, caption, tip, left, top, width, 255, container);
}

Design title(int index, const char* caption, int left, int top, int width = 1140) {
  return label("lblTitle", index, caption, "", left, top, width);
}

Design figure(int index, const char* tip, int left, int top) {
  Design d = label("lblDDD", index, "", tip, left, top, kValueW);
  d.height = 300;
  d.backColor = kWhite;
  d.alignment = Align::Right;
  return d;
}

Design aim(int index, const char* tip, int left, int top) {
  return {.kind = K::TextBox,
          .name = "txtAim",
          .index = index,
          .tip = tip,
          .left = left,
          .top = top,
          .width = kValueW,
          .height = 330,
          .backColor = kLimit,
          .alignment = Align::Right};
}

Design button(const char* name, const char* caption, const char* tip, int left, int top,
              const char* container = "") {
  return Row(K::CommandButton, name, -1, caption, tip, left, top, 1080, 420, container);
}

Design line(const char* name, double x1, double y1, double x2, double y2, long colour, int width,
            bool visible = true) {
  return {.kind = K::Line,
          .name = name,
          .container = "picGraph",
          .visible = visible,
          .foreColor = colour,
          .x1 = x1,
          .y1 = y1,
          .x2 = x2,
          .y2 = y2,
          .borderWidth = width};
}

Design caption(const char* name, int index, const char* text, int left, int top, int width,
               bool visible = true, long colour = kDefaultColour) {
  Design d = label(name, index, text, "", left, top, width, "picGraph");
  d.visible = visible;
  d.foreColor = colour;
  return d;
}

void AddSheet(std::vector<Design>& t) {
  t.push_back({.kind = K::Frame,
               .name = "fmData",
               .caption = " Data  ",
               .left = 120,
               .top = 60,
               .width = 3180,
               .height = 6420});
  for (int i = 1; i <= 20; ++i) {
    const int top = kRowTop + (i - 1) * kRowPitch;
    Design place = label("lblCCC", i, "", " Data Number or Quantity of data when sorted ", 60,
                         top + 30, 720, "fmData");
    place.alignment = Align::Right;
    t.push_back(place);
    t.push_back({.kind = K::TextBox,
                 .name = "txtBBB",
                 .index = i,
                 .left = 840,
                 .top = top,
                 .width = 1980,
                 .height = kRowPitch,
                 .container = "fmData",
                 .backColor = kRest,
                 .alignment = Align::Right});
  }
  t.push_back({.kind = K::VScrollBar,
               .name = "scrFive",
               .left = 2850,
               .top = kRowTop,
               .width = 255,
               .height = 20 * kRowPitch,
               .container = "fmData",
               .min = 0,
               .max = 0,
               .smallChange = 1,
               .largeChange = 4,
               .value = 0});
}

void AddFigures(std::vector<Design>& t) {
  t.push_back(title(0, "Count", kTitleX, 300));
  Design count = figure(0, " Number of actual data ", kLowX, 270);
  count.width = 1380;
  t.push_back(count);
  t.push_back(title(1, "Last", kHighX - 600, 300, 540));
  t.push_back(aim(1, " Number of total data including blank, can be typed in ", kHighX, 240));
  t.push_back(title(2, "Sum", kTitleX, 720));
  t.push_back(figure(1, " Sum of data ", kLowX, 690));
  t.push_back(title(3, "Average", kTitleX, 1140));
  t.push_back(figure(2, " Average = Sum / Count (excluding blank data) ", kLowX, 1110));
  t.push_back(title(4, "Deviation", kTitleX, 1560));
  t.push_back(figure(3, " Standard Deviation ", kLowX, 1530));
  t.push_back(title(6, "Low", kLowX + 60, 2040));
  t.push_back(title(7, "High", kHighX + 60, 2040));
  t.push_back(title(5, "Limit", kTitleX, 2370));
  t.push_back(aim(2, " Low Limit of Pass ", kLowX, 2310));
  t.push_back(aim(3, " High Limit of Pass ", kHighX, 2310));
  t.push_back(title(8, "Over limit", kTitleX, 2790));
  t.push_back(figure(4, " Actual data over Low Limit ", kLowX, 2760));
  t.push_back(figure(5, " Actual data over High Limit ", kHighX, 2760));
  t.push_back(title(9, "(%)", kTitleX, 3180));
  t.push_back(figure(6, " Atcual % over Low Limit ", kLowX, 3150));
  t.push_back(figure(7, " Actual % over High Limit ", kHighX, 3150));
  t.push_back(title(10, "Statistically over limit(%)", kTitleX, 3570, 3000));
  t.push_back(title(11, "(at Normal Distribu.)", kTitleX, 3810, 3000));
  t.push_back(figure(8, " Statistical % over Low Limit ", kLowX, 4110));
  t.push_back(figure(9, " Statistical % over High Limit ", kHighX, 4110));
}

void AddButtons(std::vector<Design>& t) {
  constexpr int kRow1 = 4860, kRow2 = 5460, kX = 3420, kPitch = 1140;
  t.push_back(button("cmdInsert", "Insert", " Insert a cell (blank data) ", kX, kRow1));
  t.push_back(button("cmdOne", "Delete 1", " Delete a cell/data ", kX + kPitch, kRow1));
  t.push_back(button("cmdSort", "Sort", " Show Data Sorted ", kX + 2 * kPitch, kRow1));
  t.push_back(button("cmdOrder", "Data", " Show Original Data ", kX + 3 * kPitch, kRow1));
  t.push_back(button("cmdDel", "Delete All", " Delete all data ", kX + 4 * kPitch, kRow1));
  t.push_back(button("cmdCalc", "Calculate", " Calculate Statistics ", kX, kRow2));
  t.push_back(button("cmdGraph", "Graph", "", kX + kPitch, kRow2));
  t.push_back(button("cmdPrint", "Print", " Print Out ", kX + 2 * kPitch, kRow2));
  t.push_back(button("cmdExit", "Exit", " Close Statistics ", kX + 4 * kPitch, kRow2));
  Design temp = button("cmdTemp", "tempReturn", "", kX + 3 * kPitch, kRow2);
  temp.visible = false;
  t.push_back(temp);
}

// The graph's frame: the average at x 3000, 700 to a deviation, probability
// 0 at y 5000 and 4000 to the unit; the cumulative curve's 100 % at y 1000.
void AddGraph(std::vector<Design>& t) {
  t.push_back({.kind = K::PictureBox,
               .name = "picGraph",
               .left = 60,
               .top = 60,
               .width = 9240,
               .height = 6420,
               .visible = false,
               .backColor = kWhite});
  constexpr long kGrey = 0xC0C0C0;
  t.push_back(line("lineBase", 300, 5000, 5700, 5000, 0, 1));
  t.push_back(line("lineTop", 300, 1000, 5700, 1000, kGrey, 1));
  t.push_back(line("lineMid", 300, 3000, 5700, 3000, kGrey, 1));
  t.push_back(line("lineAvg", 3000, 700, 3000, 5000, kGrey, 1));
  t.push_back(line("lineN3", 900, 4900, 900, 5100, 0, 1));
  t.push_back(line("lineP3", 5100, 4900, 5100, 5100, 0, 1));
  t.push_back(line("lineNlimit", 3000, 600, 3000, 5000, kOrange, 2, false));
  t.push_back(line("linePlimit", 3000, 600, 3000, 5000, kBlue, 2, false));
  t.push_back(line("lineMin", 6300, 1620, 6800, 1620, kOrange, 2, false));
  t.push_back(line("lineMax", 6300, 1980, 6800, 1980, kBlue, 2, false));

  t.push_back(caption("lblNorm", -1, "Normarl Distribution", 6300, 300, 2400, true, kGreen));
  t.push_back(caption("lblOrenBural", -1, "Probability", 6300, 660, 2400, true, kRed));
  t.push_back(caption("lbl100", -1, "100%", 3060, 780, 600));
  t.push_back(caption("lblBase", -1, "0%", 3060, 4740, 600));
  t.push_back(caption("lblN3d", 0, "-3Dev", 660, 5100, 900));
  t.push_back(caption("lblN3d", 1, "0.135%", 420, 4500, 900));
  t.push_back(caption("lblN3d", 2, "-3 Dev.", 300, 5400, 1500));
  t.push_back(caption("lblAvg", 0, "Average", 2640, 5100, 900));
  t.push_back(caption("lblAvg", 1, "", 2250, 5400, 1500));
  t.push_back(caption("lblP3d", 0, "+3Dev", 4860, 5100, 900));
  t.push_back(caption("lblP3d", 1, "99.865%", 5160, 1080, 900));
  t.push_back(caption("lblP3d", 2, "+3 Dev.", 4350, 5400, 1500));
  t.push_back(caption("lblMin", 0, "Min.Limit", 6900, 1500, 1500, false, kOrange));
  t.push_back(caption("lblMin", 1, "Min.%", 2700, 300, 1200, false, kOrange));
  t.push_back(caption("lblMin", 2, "Min.Val", 2900, 5700, 1500, false, kOrange));
  t.push_back(caption("lblMax", 0, "Max.Limit", 6900, 1860, 1500, false, kBlue));
  t.push_back(caption("lblMax", 1, "Max.%", 2700, 60, 1200, false, kBlue));
  t.push_back(caption("lblMax", 2, "Max.Val", 2900, 5970, 1500, false, kBlue));
  t.push_back(caption("lblPass", -1, "PASS=", 6300, 2400, 2700, false));

  t.push_back(button("cmdReturn", "Return", " Return to front page ", 6600, 4260, "picGraph"));
  t.push_back(button("cmdPrint2", "Print", " Return to front page ", 6600, 4860, "picGraph"));
  t.push_back(button("cmdLogo", "Logo", " Return to front page ", 6600, 5460, "picGraph"));
  t.push_back({.kind = K::PictureBox,
               .name = "picGraph2",
               .left = 0,
               .top = 0,
               .width = 600,
               .height = 600,
               .visible = false});
}
}  // namespace

FormDesign StatisticsForm() {
  return {.caption = "  Statistics in Normal Distribution    ",
          .width = 9540,
          .height = 7020,
          .keyPreview = true};
}

std::vector<Design> StatisticsDesign() {
  std::vector<Design> t;
  AddSheet(t);
  AddFigures(t);
  AddButtons(t);
  AddGraph(t);
  return t;
}

}  // namespace tessaron

// The converter's face: the table across the top; below it the two boxes,
// the choice of country, the quick bar and Exit.
#include "surface/design_rows.h"
#include "units/conver.h"

namespace tessaron {

namespace {
using K = ControlKind;

// The band below the table.
constexpr int kBand = 3700;

Design table(int left, int top, int width, int height, int rows, int cols, long colour) {
  Design d = Row(K::FlexGrid, "Table", -1, "", "", left, top, width, height);
  d.backColor = colour;
  d.rows = rows;
  d.cols = cols;
  return d;
}

// The units' names stand centred over their boxes.
Design head(const char* name, const char* caption, const char* tip, int left, int top, int width,
            int height = 255, double font = 0) {
  Design d = Row(K::Label, name, -1, caption, tip, left, top, width, height);
  d.fontSize = font;
  d.alignment = Align::Center;
  return d;
}

Design amount(const char* name, const char* caption, const char* tip, int left, int top) {
  Design d = Row(K::TextBox, name, -1, caption, tip, left, top, 2400, 405);
  d.fontSize = 11;
  d.alignment = Align::Right;
  return d;
}

Design option(const char* name, int index, const char* caption, const char* tip, int left, int top,
              int width, const char* frame, bool checked = false) {
  Design d = Row(K::OptionButton, name, index, caption, tip, left, top, width, 255, frame);
  d.checked = checked;
  return d;
}

// The quick bar steps through the chosen pair of units.
Design quickBar(int left, int top, int width, int min, int max, int largeChange, int value) {
  return ScrollRow(K::HScrollBar, "HscrAll", left, top, width, 255, "frameA", min, max, largeChange,
                   value);
}
}  // namespace

std::vector<Design> frmConver::designTable() {
  return {
      table(120, 120, 19010, 3500, 12, 11, 0xFFFFC0),
      head("lblAA", " unit A ", "", 240, kBand + 80, 2400),
      amount("txtAA", "click table ", "", 240, kBand + 360),
      head("lblEql", "=", "", 2700, kBand + 390, 300, 345, 12),
      head("lblBB", " unit B ", " Click the cell of above table to select unit ", 3060, kBand + 80,
           2400),
      amount("txtBB", "& type-in", " Click the cell of above table and type in here ", 3060,
             kBand + 360),
      Row(K::Frame, "frameCoun", -1, "Countries  ", "", 5760, kBand, 2040, 900),
      option("optCoun", kMostUsa, "Most+USA", " Units of most countries ", 120, 270, 1800,
             "frameCoun", true),
      option("optCoun", kKorea, "Korea", " Show units of Korea ", 120, 560, 1800, "frameCoun"),
      Row(K::Frame, "frameA", -1, "", "", 8040, kBand, 7080, 900),
      option("optChoice", kYard, "yard", " Yard <> Meter ", 120, 240, 1050, "frameA"),
      option("optChoice", kPound, "pound", " Pound <> Kg ", 1170, 240, 1050, "frameA"),
      option("optChoice", kFeetInch, "ft-inch", " Feet-Inch <> cm ", 2220, 240, 1050, "frameA",
             true),
      option("optChoice", kTemperature, "temp.", " Degree F <> Degree C ", 3270, 240, 1050,
             "frameA"),
      quickBar(120, 560, 4200, 1, 240, 10, 130),
      Row(K::Label, "lblFP", -1, "feet-inch", "", 4560, 240, 2400, 255, "frameA"),
      Row(K::Label, "lblKM", -1, "cm", "", 4560, 560, 2400, 255, "frameA"),
      Row(K::CommandButton, "cmdExit", -1, "Exit", " Close Unit Conversion ", 17640, kBand + 120,
          1320, 600),
  };
}

}  // namespace tessaron

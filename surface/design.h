#pragma once
// A form is described by a design table: one row a control, as a person would
// lay it out in a form designer. The model builds its controls from the table
// and the Qt view draws from the very same rows.
#include <string>
#include <vector>

namespace tessaron {

enum class ControlKind {
  Label,
  TextBox,
  CommandButton,
  Frame,
  OptionButton,
  CheckBox,
  HScrollBar,
  VScrollBar,
  Image,
  Timer,
  Line,
  PictureBox,
  FlexGrid,
  OlePackage,
};

// Default colours are the system's own; -1 means "as the platform draws it".
inline constexpr long kDefaultColour = -1;

enum class Align { Left, Right, Center };

// One row of a design table. Designated initializers keep the rows readable:
//   {.kind = ControlKind::CommandButton, .name = "cmdOK", .caption = "OK",
//    .left = 120, .top = 120, .width = 975, .height = 375}
// Positions and sizes are twips, relative to the container.
struct Design {
  ControlKind kind = ControlKind::Label;
  std::string name;
  int index = -1;       // member of a control array when 0 or above
  std::string caption;  // Caption, or the Text of a TextBox
  std::string tip;      // ToolTipText
  int left = 0, top = 0, width = 0, height = 0;
  std::string container;  // the Frame or PictureBox it stands in; "" for the form
  bool visible = true;
  bool enabled = true;
  long backColor = kDefaultColour;
  long foreColor = kDefaultColour;
  double fontSize = 0;  // 0: the form's font
  bool fontBold = false;
  Align alignment = Align::Left;
  std::string picture;  // artwork resource of an Image, PictureBox or button
  // Scroll bars.
  int min = 0, max = 32767, smallChange = 1, largeChange = 1, value = 0;
  // Option buttons and check boxes: the starting choice.
  bool checked = false;
  // Timers.
  int interval = 0;
  // Line shapes.
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  int borderWidth = 1;
  // Grids.
  int rows = 2, cols = 2, fixedRows = 1, fixedCols = 1;
  bool multiLine = false;
  bool locked = false;
  bool tabStop = true;
};

// The form's own row.
struct FormDesign {
  std::string caption;
  int width = 4800, height = 3600;  // outer size, twips
  long backColor = kDefaultColour;
  double fontSize = 8;
  bool keyPreview = false;  // the form's KeyPress and KeyDown see keys first
  bool fixedSize = true;
  bool escapeCloses = false;  // Esc closes it, as a notice box that only informs
};

}  // namespace tessaron

#pragma once
// The drawing surface shared by picture boxes and the printer page: a pen,
// a font size, a colour, and a display list of what was drawn. The model keeps
// the list; the view paints it, and the printer hands it to the device.
#include <initializer_list>
#include <string>
#include <variant>
#include <vector>

#include "numeric/numeric.h"

namespace tessaron {

struct DrawOp {
  enum class Kind { Line, Box, FilledBox, Circle, Text, Scale, Picture, NewPage };
  Kind kind = Kind::Line;
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;  // Circle: x1, y1 centre, x2 radius
  long colour = 0;
  int width = 1;    // DrawWidth, device pixels
  int style = 0;    // DrawStyle: 0 solid, 1 dash, 2 dot
  double size = 0;  // FontSize of a Text
  std::string text;
  int picture = -1;  // index into the owner's pictures for a Picture op
};

// `Print Tab(n); ...` moves to character column n before the next item.
struct Tab {
  int column;
};
using PrintItem = std::variant<Tab, Value>;

class Canvas {
 public:
  virtual ~Canvas() = default;

  double CurrentX = 0, CurrentY = 0;
  long ForeColor = 0;
  double FontSize = 8.25;
  int DrawWidth = 1;
  int DrawStyle = 0;

  // `Print a; b; ...`: items side by side; with lineEnd the pen goes to the
  // left margin of the next line, without it (a trailing `;`) it stays.
  void Print(std::initializer_list<PrintItem> items, bool lineEnd = true);
  void Line(double x1, double y1, double x2, double y2, long colour);
  void Line(double x1, double y1, double x2, double y2) { Line(x1, y1, x2, y2, ForeColor); }
  void Box(double x1, double y1, double x2, double y2, long colour, bool filled);
  void Circle(double x, double y, double radius, long colour);
  void Circle(double x, double y, double radius) { Circle(x, y, radius, ForeColor); }
  void Scale(double x1, double y1, double x2, double y2);
  virtual void Cls();

  const std::vector<DrawOp>& ops() const { return ops_; }
  // The drawing area in twips, so that text after a Scale advances the pen
  // in the user's units.
  double extentWidth() const { return extentW_; }
  double extentHeight() const { return extentH_; }
  void setExtent(double width, double height) {
    extentW_ = width;
    extentH_ = height;
  }
  // Width of one character column and height of one line at a font size,
  // in twips: the column grid that `Tab(n)` counts in. A column is the
  // face's average character, half an em, as the printouts' columns were
  // laid out for.
  static double columnWidth(double fontSize);
  static double lineHeight(double fontSize);
  // The text a number item is printed as: a blank before a non-negative
  // number and a blank after any number.
  static std::string itemText(const Value& v);

 protected:
  // Called with each piece of text written at its character column; the
  // printer keeps its line text.
  virtual void wrote(const std::string& text, int column) {}
  // Text placed from code starts a line of its own.
  virtual void freshLine() {}
  virtual void endedLine() {}
  // Called before text goes on a new line at CurrentY.
  virtual void beforeLine() {}
  std::vector<DrawOp> ops_;

 private:
  void add(DrawOp op);
  void stroke(DrawOp::Kind kind, double x1, double y1, double x2, double y2, long colour, double x,
              double y);
  double twipsX() const;  // the user's units per twip, across and down
  double twipsY() const;
  double penX_ = 0, penY_ = 0;  // where the last Print left the pen
  double extentW_ = 0, extentH_ = 0;
  double scaleX1_ = 0, scaleY1_ = 0, scaleX2_ = 0, scaleY2_ = 0;
  bool scaled_ = false;
  // Where the pen stands on its line in columns of the font. The page is set
  // in proportional type, where a blank is half as wide as a digit, so a run
  // of blanks that aligns figures moves the pen half a column a blank.
  double column_ = 1;
  int textColumn_ = 1;    // the character column of the printed line
  bool runFrom_ = false;  // the last op is text the next item continues
};

}  // namespace tessaron

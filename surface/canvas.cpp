#include "surface/canvas.h"

#include <cmath>

namespace tessaron {

double Canvas::columnWidth(double fontSize) { return fontSize * 10; }
double Canvas::lineHeight(double fontSize) { return fontSize * 24; }

std::string Canvas::itemText(const Value& v) {
  switch (v.kind()) {
    case Kind::String:
    case Kind::Empty:
    case Kind::Bool:
      return CStr(v);
    default:
      return (v >= Value(0) ? " " : "") + CStr(v) + " ";
  }
}

double Canvas::twipsX() const {
  return scaled_ && extentW_ > 0 ? (scaleX2_ - scaleX1_) / extentW_ : 1;
}

double Canvas::twipsY() const {
  return scaled_ && extentH_ > 0 ? (scaleY2_ - scaleY1_) / extentH_ : 1;
}

void Canvas::add(DrawOp op) { ops_.push_back(std::move(op)); }

void Canvas::Print(std::initializer_list<PrintItem> items, bool lineEnd) {
  // Text whose place was set from code, not left there by the last Print,
  // starts a line of its own.
  const bool placed = CurrentX != penX_ || CurrentY != penY_;
  if (placed) {
    column_ = 1;
    textColumn_ = 1;
    runFrom_ = false;
    freshLine();
  }
  if (column_ == 1) beforeLine();
  const double cw = columnWidth(FontSize) * twipsX();
  const double lh = lineHeight(FontSize) * twipsY();
  const double left = scaled_ ? scaleX1_ : 0;
  for (const PrintItem& item : items) {
    if (const Tab* tab = std::get_if<Tab>(&item)) {
      const int n = tab->column < 1 ? 1 : tab->column;
      if (column_ > n) {
        endedLine();
        CurrentY += lh;
        beforeLine();
      }
      column_ = n;
      textColumn_ = n;
      CurrentX = left + (n - 1) * cw;
      runFrom_ = false;
      wrote("", textColumn_);
      continue;
    }
    const std::string text = itemText(std::get<Value>(item));
    // Items that follow one another flow as one run of text in the font's
    // own widths; only a Tab, a new line or a placement starts a new run.
    DrawOp* run = runFrom_ && !ops_.empty() ? &ops_.back() : nullptr;
    if (run && run->kind == DrawOp::Kind::Text && run->colour == ForeColor &&
        run->size == FontSize) {
      run->text += text;
    } else {
      add({.kind = DrawOp::Kind::Text,
           .x1 = CurrentX,
           .y1 = CurrentY,
           .colour = ForeColor,
           .size = FontSize,
           .text = text});
    }
    runFrom_ = true;
    wrote(text, textColumn_);
    textColumn_ += Len(Value(text));
    double width = 0;
    for (const char16_t unit : ToUtf16(text)) width += unit == u' ' ? 0.5 : 1;
    column_ += width;
    CurrentX += width * cw;
  }
  if (lineEnd) {
    endedLine();
    CurrentX = left;
    CurrentY += lh;
    column_ = 1;
    textColumn_ = 1;
    runFrom_ = false;
  }
  penX_ = CurrentX;
  penY_ = CurrentY;
}

// Every stroke draws with the pen of the moment and leaves the pen at (x, y):
// the far corner of a line or box, the centre of a circle.
void Canvas::stroke(DrawOp::Kind kind, double x1, double y1, double x2, double y2, long colour,
                    double x, double y) {
  add({.kind = kind,
       .x1 = x1,
       .y1 = y1,
       .x2 = x2,
       .y2 = y2,
       .colour = colour,
       .width = DrawWidth,
       .style = DrawStyle});
  CurrentX = x;
  CurrentY = y;
}

void Canvas::Line(double x1, double y1, double x2, double y2, long colour) {
  stroke(DrawOp::Kind::Line, x1, y1, x2, y2, colour, x2, y2);
}

void Canvas::Box(double x1, double y1, double x2, double y2, long colour, bool filled) {
  stroke(filled ? DrawOp::Kind::FilledBox : DrawOp::Kind::Box, x1, y1, x2, y2, colour, x2, y2);
}

void Canvas::Circle(double x, double y, double radius, long colour) {
  stroke(DrawOp::Kind::Circle, x, y, radius, 0, colour, x, y);
}

void Canvas::Scale(double x1, double y1, double x2, double y2) {
  add({.kind = DrawOp::Kind::Scale, .x1 = x1, .y1 = y1, .x2 = x2, .y2 = y2});
  scaled_ = true;
  scaleX1_ = x1;
  scaleY1_ = y1;
  scaleX2_ = x2;
  scaleY2_ = y2;
}

void Canvas::Cls() {
  ops_.clear();
  CurrentX = CurrentY = penX_ = penY_ = 0;
  column_ = 1;
  textColumn_ = 1;
  runFrom_ = false;
}

}  // namespace tessaron

#include "surface/printer.h"

namespace tessaron {

void PrinterDevice::freshLine() {
  if (lineOpen_) flushLine();
}

void PrinterDevice::wrote(const std::string& text, int column) {
  const int have = Len(Value(line_));
  if (column - 1 > have) line_ += Space(column - 1 - have);
  line_ += text;
  lineOpen_ = true;
}

void PrinterDevice::endedLine() { flushLine(); }

void PrinterDevice::beforeLine() {
  // A line that would pass the page's foot runs on to the next page, as the
  // platform printer does, at the same distance from the left.
  if (CurrentY + lineHeight(FontSize) <= kPageFoot) return;
  const double x = CurrentX;
  NewPage();
  CurrentX = x;
}

void PrinterDevice::flushLine() {
  lines_.push_back(line_);
  line_.clear();
  lineOpen_ = false;
}

void PrinterDevice::PaintPicture(const Canvas& picture, double x, double y, double width,
                                 double height) {
  pictures_.push_back({picture.ops(), picture.extentWidth(), picture.extentHeight()});
  ops_.push_back({.kind = DrawOp::Kind::Picture,
                  .x1 = x,
                  .y1 = y,
                  .x2 = width,
                  .y2 = height,
                  .picture = static_cast<int>(pictures_.size() - 1)});
}

void PrinterDevice::NewPage() {
  if (lineOpen_) flushLine();
  pages_.push_back({std::move(lines_), std::move(ops_)});
  lines_.clear();
  ops_.clear();
  Canvas::Cls();
}

void PrinterDevice::EndDoc() {
  // EndDoc straight after NewPage prints no blank page at the end.
  if (lineOpen_ || !ops_.empty() || !lines_.empty() || pages_.empty()) NewPage();
  last_ = {std::move(pages_), std::move(pictures_)};
  pages_.clear();
  pictures_.clear();
  if (onEndDoc) onEndDoc(last_);
}

// A printer page is never cleared by the logic; Cls here only drops an
// unfinished document (the application ending mid-print).
void PrinterDevice::Cls() {
  Canvas::Cls();
  pages_.clear();
  lines_.clear();
  pictures_.clear();
  line_.clear();
  lineOpen_ = false;
}

}  // namespace tessaron

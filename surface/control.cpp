#include "surface/control.h"

#include <algorithm>

#include "surface/application.h"
#include "surface/canvas.h"
#include "surface/form.h"
#include "surface/grid.h"

namespace tessaron {

namespace {
constexpr long kWindowColour = 0xFFFFFF;  // boxes, grids and pictures
constexpr long kFaceColour = 0xF0F0F0;    // everything else

bool isScrollBar(ControlKind k) {
  return k == ControlKind::HScrollBar || k == ControlKind::VScrollBar;
}
}  // namespace

Control::Control(Form& form, const Design& d)
    : Caption(d.kind == ControlKind::TextBox ? "" : d.caption),
      Text(d.kind == ControlKind::TextBox ? d.caption : ""),
      ToolTipText(d.tip),
      Left(d.left),
      Top(d.top),
      Width(d.width),
      Height(d.height),
      Visible(d.visible),
      Enabled(d.enabled),
      BackColor(d.backColor),
      ForeColor(d.foreColor),
      FontSize(d.fontSize > 0 ? d.fontSize : form.design().fontSize),
      FontBold(d.fontBold),
      X1(d.x1),
      Y1(d.y1),
      X2(d.x2),
      Y2(d.y2),
      BorderColor(d.foreColor == kDefaultColour ? 0 : d.foreColor),
      BorderWidth(d.borderWidth),
      Interval(d.interval),
      form_(form),
      design_(d),
      checked_(d.checked),
      scroll_(d.value),
      min_(d.min),
      max_(d.max) {
  if (d.kind == ControlKind::PictureBox) {
    // A picture box draws with its own pen: the design's colour and font
    // are where the pen starts.
    canvas_ = std::make_unique<Canvas>();
    canvas_->setExtent(d.width, d.height);
    if (d.foreColor != kDefaultColour) canvas_->ForeColor = d.foreColor;
    canvas_->FontSize = FontSize;
  }
  if (d.kind == ControlKind::FlexGrid)
    grid_ = std::make_unique<Grid>(d.rows, d.cols, d.fixedRows, d.fixedCols);
}

Control::~Control() = default;

std::string Control::path() const {
  return index() < 0 ? name() : name() + "(" + std::to_string(index()) + ")";
}

Value Control::value() const {
  switch (kind()) {
    case ControlKind::OptionButton:
      return Value(checked_);
    case ControlKind::CheckBox:
      return Value(checked_ ? 1 : 0);
    default:
      return Value(scroll_);
  }
}

void Control::setValue(const Value& v) {
  EventArgs args{.Index = index()};
  switch (kind()) {
    case ControlKind::OptionButton: {
      const bool on = v != Value(0) && v != Value(false);
      if (on == checked_) return;
      checked_ = on;
      if (!on) return;
      // Option buttons in one container are one group: choosing one clears
      // the others, without events of their own.
      for (const auto& other : form_.controls())
        if (other.get() != this && other->kind() == ControlKind::OptionButton &&
            other->container() == container_)
          other->checked_ = false;
      form_.fire(this, Event::Click, args);
      return;
    }
    case ControlKind::CheckBox: {
      const bool on = v != Value(0) && v != Value(false);
      if (on == checked_) return;
      checked_ = on;
      form_.fire(this, Event::Click, args);
      return;
    }
    default: {
      const int value = static_cast<int>(CInt(v).number());
      if (value < std::min(min_, max_) || value > std::max(min_, max_))
        throw Failure("Invalid procedure call or argument");
      if (value == scroll_) return;
      scroll_ = value;
      form_.fire(this, Event::Change, args);
    }
  }
}

void Control::setMax(int max) {
  max_ = max;
  const int lo = std::min(min_, max_), hi = std::max(min_, max_);
  if (scroll_ > hi) setValue(Value(hi));
  if (scroll_ < lo) setValue(Value(lo));
}

void Control::SetFocus() {
  if (!usable()) throw Failure("Invalid procedure call or argument");
  form_.app().moveFocus(this);
}

bool Control::shown() const { return Visible && (container_ == nullptr || container_->shown()); }

bool Control::usable() const {
  return form_.Visible() && !form_.unloading() && shown() && Enabled &&
         (container_ == nullptr || container_->usable());
}

bool Control::takesFocus() const {
  switch (kind()) {
    case ControlKind::TextBox:
    case ControlKind::CommandButton:
    case ControlKind::OptionButton:
    case ControlKind::CheckBox:
    case ControlKind::HScrollBar:
    case ControlKind::VScrollBar:
    case ControlKind::FlexGrid:
      return true;
    default:
      return false;
  }
}

Canvas& Control::picture() { return *canvas_; }
const Canvas& Control::picture() const { return *canvas_; }
Grid& Control::grid() { return *grid_; }
const Grid& Control::grid() const { return *grid_; }

std::optional<Value> Control::property(std::string_view p) const {
  const bool box = kind() == ControlKind::TextBox || kind() == ControlKind::FlexGrid ||
                   kind() == ControlKind::PictureBox;
  if (p == "Caption") return Value(Caption);
  if (p == "Text") return Value(grid_ ? grid_->Text() : Text);
  if (p == "ToolTipText") return Value(ToolTipText);
  if (p == "Left") return Value(Left);
  if (p == "Top") return Value(Top);
  if (p == "Width") return Value(Width);
  if (p == "Height") return Value(Height);
  if (p == "Visible") return Value(Visible);
  if (p == "Enabled") return Value(Enabled);
  if (p == "BackColor")
    return Value(static_cast<double>(BackColor != kDefaultColour ? BackColor
                                     : box                       ? kWindowColour
                                                                 : kFaceColour));
  if (canvas_) {
    if (p == "ForeColor") return Value(static_cast<double>(canvas_->ForeColor));
    if (p == "FontSize") return Value(canvas_->FontSize);
  }
  if (p == "ForeColor")
    return Value(static_cast<double>(ForeColor == kDefaultColour ? 0 : ForeColor));
  if (p == "FontSize") return Value(FontSize);
  if (p == "FontBold") return Value(FontBold);
  if (p == "Index") return Value(index());
  if (p == "Name") return Value(name());
  if (p == "SelStart") return Value(SelStart);
  if (p == "SelLength") return Value(SelLength);
  if (kind() == ControlKind::Line) {
    if (p == "X1") return Value(X1);
    if (p == "Y1") return Value(Y1);
    if (p == "X2") return Value(X2);
    if (p == "Y2") return Value(Y2);
    if (p == "BorderColor") return Value(static_cast<double>(BorderColor));
    if (p == "BorderWidth") return Value(BorderWidth);
  }
  if (p == "Value" && (kind() == ControlKind::OptionButton || kind() == ControlKind::CheckBox ||
                       isScrollBar(kind())))
    return value();
  if (isScrollBar(kind())) {
    if (p == "Min") return Value(min_);
    if (p == "Max") return Value(max_);
    if (p == "SmallChange") return Value(SmallChange());
    if (p == "LargeChange") return Value(LargeChange());
  }
  if (kind() == ControlKind::Timer && p == "Interval") return Value(Interval);
  if (canvas_) {
    if (p == "CurrentX") return Value(canvas_->CurrentX);
    if (p == "CurrentY") return Value(canvas_->CurrentY);
    if (p == "DrawWidth") return Value(canvas_->DrawWidth);
    if (p == "DrawStyle") return Value(canvas_->DrawStyle);
  }
  if (grid_) {
    if (p == "Row") return Value(grid_->Row());
    if (p == "Col") return Value(grid_->Col());
    if (p == "Rows") return Value(grid_->Rows());
    if (p == "Cols") return Value(grid_->Cols());
  }
  return std::nullopt;
}

ControlArray::ControlArray(Form& form, std::string_view name) {
  std::vector<Control*> found;
  for (const auto& c : form.controls())
    if (c->name() == name && c->index() >= 0) found.push_back(c.get());
  if (found.empty()) return;
  std::sort(found.begin(), found.end(),
            [](const Control* a, const Control* b) { return a->index() < b->index(); });
  first_ = found.front()->index();
  members_.assign(found.back()->index() - first_ + 1, nullptr);
  for (Control* c : found) members_[c->index() - first_] = c;
}

Control& ControlArray::operator()(int index) const {
  const int i = index - first_;
  if (i < 0 || i >= static_cast<int>(members_.size()) || members_[i] == nullptr)
    throw Failure("Subscript out of range");
  return *members_[i];
}

}  // namespace tessaron

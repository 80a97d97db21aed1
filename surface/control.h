#pragma once
// A control on a form: its properties, as the logic reads and writes them.
// Properties whose setting has consequences (a scroll bar's or option
// button's Value, a scroll bar's Max) are methods; the rest are plain fields
// that the view reads after every event.
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "numeric/numeric.h"
#include "surface/design.h"

namespace tessaron {

class Form;
class Canvas;
class Grid;

enum class Event { Click, DblClick, GotFocus, LostFocus, KeyPress, KeyDown, Change, Timer, Resize };

struct EventArgs {
  int Index = -1;    // the member of a control array
  int KeyAscii = 0;  // KeyPress: may be changed; 0 drops the key
  int KeyCode = 0;   // KeyDown
  int Shift = 0;     // KeyDown: 1 Shift, 2 Ctrl, 4 Alt
};
using Handler = std::function<void(EventArgs&)>;

class Control {
 public:
  Control(Form& form, const Design& design);
  ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  Form& form() const { return form_; }
  const Design& design() const { return design_; }
  ControlKind kind() const { return design_.kind; }
  const std::string& name() const { return design_.name; }
  int index() const { return design_.index; }
  // "Name" or "Name(3)", as scripts and messages write it.
  std::string path() const;

  std::string Caption;
  std::string Text;
  std::string ToolTipText;
  int Left, Top, Width, Height;
  bool Visible, Enabled;
  long BackColor, ForeColor;
  double FontSize;
  bool FontBold;
  int SelStart = 0, SelLength = 0;
  // Line shapes.
  double X1, Y1, X2, Y2;
  long BorderColor = 0;
  int BorderWidth;
  // Timers run while Enabled and Interval is above 0.
  int Interval;

  // OptionButton and CheckBox: a Bool (CheckBox: 0 or 1); scroll bar: Int16.
  Value value() const;
  // Fires the option button's Click or the scroll bar's Change at once,
  // inside this call, and only when the value changes.
  void setValue(const Value& v);
  int Min() const { return min_; }
  int Max() const { return max_; }
  void setMax(int max);
  int SmallChange() const { return design_.smallChange; }
  int LargeChange() const { return design_.largeChange; }

  // Moves the focus here (LostFocus of the old control, then GotFocus);
  // a hidden or disabled control is a failure, so the logic tests first.
  void SetFocus();

  // Visible, with every container visible: what a user can see.
  bool shown() const;
  // Shown and enabled, containers included: what a user can press.
  bool usable() const;
  // Whether a click or a tab gives this control the keyboard focus.
  bool takesFocus() const;
  Control* container() const { return container_; }
  void setContainer(Control* c) { container_ = c; }

  Canvas& picture();  // PictureBox
  const Canvas& picture() const;
  Grid& grid();  // FlexGrid
  const Grid& grid() const;

  // Any property by its name, for the script driver; nullopt when the
  // control has no such property.
  std::optional<Value> property(std::string_view name) const;

 private:
  Form& form_;
  const Design& design_;
  Control* container_ = nullptr;
  bool checked_;
  int scroll_;
  int min_, max_;
  std::unique_ptr<Canvas> canvas_;
  std::unique_ptr<Grid> grid_;
};

// The members of a control array, reached by index: `Number(3)`.
class ControlArray {
 public:
  ControlArray() = default;
  ControlArray(Form& form, std::string_view name);
  Control& operator()(int index) const;  // no such member: "Subscript out of range"
  int LBound() const { return first_; }
  int UBound() const { return first_ + static_cast<int>(members_.size()) - 1; }

 private:
  int first_ = 0;
  std::vector<Control*> members_;
};

}  // namespace tessaron

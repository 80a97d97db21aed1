#pragma once
// The chief header of the form surface. A form is its design table plus its
// event routines; form-level values are members of the derived class, so an
// Unload that discards the object returns the form to its starting values.
// Values a form must keep across Unload (a chart, a data sheet) live in a
// kept<S>() record instead, which the application holds for the whole run.
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "numeric/numeric.h"
#include "surface/canvas.h"
#include "surface/control.h"
#include "surface/design.h"
#include "surface/grid.h"
#include "surface/printer.h"

namespace tessaron {

class Application;

class Form {
 public:
  Form(Application& app, std::string name, FormDesign design, std::vector<Design> controls);
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  // Runs once, before the form is first shown.
  virtual void Load() {}
  // Puts onto the controls what a routine left waiting to be shown: after
  // every event, and before a box stops the user to be read.
  virtual void settle() {}

  const std::string& name() const { return name_; }
  const FormDesign& design() const { return design_; }
  Application& app() const { return app_; }

  std::string Caption;
  int Left = 0, Top = 0, Width, Height;
  long BackColor;
  bool Visible() const { return visible_; }

  // Shows the form and brings it to the front; no Load when it is loaded.
  void Show();
  // Closes the form; its controls and values are discarded after the event,
  // and the next use loads it afresh.
  void Unload();
  bool unloading() const { return unloading_; }

  Control& control(std::string_view name, int index = -1) const;
  Control* find(std::string_view name, int index = -1) const;
  ControlArray array(std::string_view name) { return ControlArray(*this, name); }
  const std::vector<std::unique_ptr<Control>>& controls() const { return controls_; }
  // The control that has the keyboard focus on this form, if any.
  Control* ActiveControl() const;

  // Event routines. The control name "Form" stands for the form itself.
  void on(std::string_view control, Event event, Handler handler);
  // Runs the routine for this event, if the form has one; true when it ran.
  bool fire(const Control* control, Event event, EventArgs& args);
  bool handles(const Control* control, Event event) const;

  // The services the logic calls, as the platform gives them to every form.
  int MsgBox(const std::string& text, int flags, const std::string& title);
  std::string InputBox(const std::string& prompt);
  void Beep();
  PrinterDevice& Printer();
  void ClipboardClear();
  void ClipboardSetText(const std::string& text);
  std::string ClipboardGetText();

  // Any form property by its name, for the script driver.
  std::optional<Value> property(std::string_view name) const;

  // The form's record of values that outlive Unload: made at first use, and
  // the same record for every later load of this form during the run.
  template <class S>
  S& kept() {
    std::shared_ptr<void>& slot = keptSlot();
    if (!slot) slot = std::make_shared<S>();
    return *static_cast<S*>(slot.get());
  }

 private:
  friend class Application;
  std::shared_ptr<void>& keptSlot();
  struct Route {
    std::string control;
    Event event;
    Handler handler;
  };
  Application& app_;
  std::string name_;
  FormDesign design_;
  std::vector<Design> table_;
  std::vector<std::unique_ptr<Control>> controls_;
  std::vector<Route> routes_;
  bool visible_ = false;
  bool unloading_ = false;
};

}  // namespace tessaron

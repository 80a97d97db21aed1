#include "surface/form.h"

#include <stdexcept>

#include "surface/application.h"

namespace tessaron {

Form::Form(Application& app, std::string name, FormDesign design, std::vector<Design> controls)
    : Caption(design.caption),
      Width(design.width),
      Height(design.height),
      BackColor(design.backColor),
      app_(app),
      name_(std::move(name)),
      design_(std::move(design)),
      table_(std::move(controls)) {
  controls_.reserve(table_.size());
  for (const Design& d : table_) controls_.push_back(std::make_unique<Control>(*this, d));
  for (const auto& c : controls_)
    if (!c->design().container.empty()) c->setContainer(&control(c->design().container));
}

Form::~Form() = default;

void Form::Show() {
  if (unloading_) return;
  visible_ = true;
  if (Observer* o = app_.observer()) o->formShown(*this);
}

void Form::Unload() { app_.unload(*this); }

std::shared_ptr<void>& Form::keptSlot() { return app_.kept_[name_]; }

Control* Form::find(std::string_view name, int index) const {
  for (const auto& c : controls_)
    if (c->name() == name && c->index() == index) return c.get();
  return nullptr;
}

Control& Form::control(std::string_view name, int index) const {
  if (Control* c = find(name, index)) return *c;
  throw std::logic_error(name_ + " has no control " + std::string(name));
}

Control* Form::ActiveControl() const {
  Control* f = app_.focused();
  return f && &f->form() == this ? f : nullptr;
}

void Form::on(std::string_view control, Event event, Handler handler) {
  routes_.push_back({std::string(control), event, std::move(handler)});
}

bool Form::handles(const Control* control, Event event) const {
  const std::string_view name = control ? std::string_view(control->name()) : "Form";
  for (const Route& r : routes_)
    if (r.event == event && r.control == name) return true;
  return false;
}

bool Form::fire(const Control* control, Event event, EventArgs& args) {
  const std::string_view name = control ? std::string_view(control->name()) : "Form";
  for (const Route& r : routes_)
    if (r.event == event && r.control == name) {
      args.Index = control ? control->index() : -1;
      r.handler(args);
      settle();
      return true;
    }
  return false;
}

int Form::MsgBox(const std::string& text, int flags, const std::string& title) {
  settle();
  return app_.host().messageBox(text, flags, title);
}

std::string Form::InputBox(const std::string& prompt) {
  settle();
  return app_.host().inputBox(prompt);
}
void Form::Beep() { app_.host().beep(); }
PrinterDevice& Form::Printer() { return app_.printer(); }
void Form::ClipboardClear() { app_.host().setClipboardText(""); }
void Form::ClipboardSetText(const std::string& text) { app_.host().setClipboardText(text); }
std::string Form::ClipboardGetText() { return app_.host().clipboardText(); }

std::optional<Value> Form::property(std::string_view p) const {
  if (p == "Caption") return Value(Caption);
  if (p == "Left") return Value(Left);
  if (p == "Top") return Value(Top);
  if (p == "Width") return Value(Width);
  if (p == "Height") return Value(Height);
  if (p == "BackColor")
    return Value(static_cast<double>(BackColor == kDefaultColour ? 0xF0F0F0 : BackColor));
  if (p == "Visible") return Value(visible_);
  if (p == "Loaded") return Value(!unloading_);
  return std::nullopt;
}

}  // namespace tessaron

#include "surface/application.h"

#include <algorithm>

namespace tessaron {

namespace {
void dropLastCharacter(std::string& s) {
  std::u16string units = ToUtf16(s);
  if (!units.empty()) units.pop_back();
  s = ToUtf8(units);
}
}  // namespace

Application::Application(Host& host) : host_(host) {
  printer_.onEndDoc = [this](const PrintJob& job) { host_.printed(job); };
}

Application::~Application() {
  focused_ = nullptr;
  unloaded_.clear();
  forms_.clear();
}

void Application::registerForm(std::string name, Factory factory) {
  factories_[std::move(name)] = std::move(factory);
}

bool Application::knows(std::string_view name) const { return factories_.contains(name); }

std::vector<std::string> Application::formNames() const {
  std::vector<std::string> names;
  for (const auto& [name, factory] : factories_) names.push_back(name);
  return names;
}

Form* Application::loaded(std::string_view name) const {
  for (const auto& f : forms_)
    if (f->name() == name) return f.get();
  return nullptr;
}

std::vector<Form*> Application::loadedForms() const {
  std::vector<Form*> out;
  for (const auto& f : forms_) out.push_back(f.get());
  return out;
}

Form& Application::form(std::string_view name) {
  if (Form* f = loaded(name)) return *f;
  const auto it = factories_.find(name);
  if (it == factories_.end()) throw std::logic_error("no form " + std::string(name));
  forms_.push_back(it->second(*this));
  Form& f = *forms_.back();
  everLoaded_ = true;
  ended_ = false;
  f.Load();
  return f;
}

void Application::unload(Form& form) {
  if (form.unloading_) return;
  form.unloading_ = true;
  form.visible_ = false;
  if (focused_ && &focused_->form() == &form) focused_ = nullptr;
  if (observer_) observer_->formUnloading(form);
  const auto it =
      std::find_if(forms_.begin(), forms_.end(), [&](const auto& f) { return f.get() == &form; });
  if (it != forms_.end()) {
    unloaded_.push_back(std::move(*it));
    forms_.erase(it);
  }
  if (depth_ == 0) settle();
}

void Application::settle() {
  unloaded_.clear();
  if (observer_) observer_->refresh();
  if (everLoaded_ && forms_.empty() && !ended_) {
    ended_ = true;
    host_.ended();
  }
}

void Application::run(const std::function<void()>& event) {
  if (depth_ > 0) {  // already inside the running event
    event();
    return;
  }
  depth_ = 1;
  try {
    event();
  } catch (const Failure& failure) {
    depth_ = 0;
    failed_ = true;
    ended_ = true;
    host_.fatal(failure.what());
    focused_ = nullptr;
    for (const auto& f : forms_) {
      f->unloading_ = true;
      f->visible_ = false;
      if (observer_) observer_->formUnloading(*f);
    }
    unloaded_.clear();
    forms_.clear();
    return;
  }
  depth_ = 0;
  settle();
}

void Application::moveFocus(Control* to) {
  if (to == focused_) return;
  Control* old = focused_;
  const bool oldHadFocus = !focusPending_;
  focused_ = to;
  focusPending_ = true;
  EventArgs args;
  if (old && oldHadFocus && !old->form().unloading()) old->form().fire(old, Event::LostFocus, args);
  // A LostFocus routine may send the focus elsewhere; its events have run.
  if (focused_ != to) return;
  focusPending_ = false;
  if (to) to->form().fire(to, Event::GotFocus, args);
}

void Application::show(Form& form) {
  run([&] { form.Show(); });
}

void Application::close(Form& form) {
  run([&] { form.Unload(); });
}

void Application::resize(Form& form, int width, int height) {
  run([&] {
    form.Width = width;
    if (height > 0) form.Height = height;
    EventArgs args;
    form.fire(nullptr, Event::Resize, args);
  });
}

void Application::click(Control& control) {
  run([&] {
    if (control.takesFocus()) moveFocus(&control);
    EventArgs args;
    switch (control.kind()) {
      case ControlKind::OptionButton:
        control.setValue(Value(true));
        break;
      case ControlKind::CheckBox:
        control.setValue(Value(control.value() == Value(0) ? 1 : 0));
        break;
      default:
        control.form().fire(&control, Event::Click, args);
    }
  });
}

void Application::dblclick(Control& control) {
  run([&] {
    click(control);
    EventArgs args;
    if (!control.form().unloading()) control.form().fire(&control, Event::DblClick, args);
  });
}

// A key that the form's own routine passed on reaches the focused control:
// its KeyPress, then what the control itself does with the key.
void Application::keyToControl(Control& control, EventArgs& args) {
  control.form().fire(&control, Event::KeyPress, args);
  const int key = args.KeyAscii;
  if (key == 0) return;
  if (control.kind() == ControlKind::TextBox && !control.design().locked) {
    if (key == 8) {
      dropLastCharacter(control.Text);
    } else if (key >= 32) {
      control.Text += ToUtf8(std::u16string(1, static_cast<char16_t>(key)));
    }
    control.SelStart = Len(Value(control.Text));
    control.SelLength = 0;
  } else if (control.kind() == ControlKind::CommandButton && (key == 13 || key == 32)) {
    EventArgs click;
    control.form().fire(&control, Event::Click, click);
  }
}

void Application::press(Form& form, int keyAscii) {
  run([&] {
    EventArgs args{.KeyAscii = keyAscii};
    form.fire(nullptr, Event::KeyPress, args);
    if (args.KeyAscii == 0) return;
    // Then the focused control, as in a real window: a box takes the
    // character, a button takes Enter or Space as a click.
    if (Control* c = form.ActiveControl()) keyToControl(*c, args);
  });
}

void Application::press(Control& control, int keyAscii) {
  run([&] {
    EventArgs args{.KeyAscii = keyAscii};
    if (control.form().design().keyPreview) control.form().fire(nullptr, Event::KeyPress, args);
    if (args.KeyAscii != 0) keyToControl(control, args);
  });
}

void Application::keydown(Form& form, int keyCode, int shift) {
  run([&] {
    EventArgs args{.KeyCode = keyCode, .Shift = shift};
    form.fire(nullptr, Event::KeyDown, args);
    escape(form, args.KeyCode);
  });
}

void Application::keydown(Control& control, int keyCode, int shift) {
  run([&] {
    EventArgs args{.KeyCode = keyCode, .Shift = shift};
    if (control.form().design().keyPreview) control.form().fire(nullptr, Event::KeyDown, args);
    if (args.KeyCode != 0) control.form().fire(&control, Event::KeyDown, args);
    escape(control.form(), args.KeyCode);
  });
}

void Application::escape(Form& form, int keyCode) {
  if (keyCode == 27 && form.design().escapeCloses && !form.unloading()) form.Unload();
}

void Application::focus(Control& control) {
  run([&] { moveFocus(&control); });
}

void Application::type(Control& control, std::string_view text) {
  run([&] {
    moveFocus(&control);
    if (focused_ != &control || control.form().unloading()) return;
    // A locked box cannot be edited, so its text cannot be deleted either.
    if (!control.design().locked) control.Text.clear();
    control.SelStart = control.SelLength = 0;
    for (const char16_t cp : ToUtf16(text)) {
      if (control.form().unloading()) return;
      EventArgs args{.KeyAscii = cp};
      if (control.form().design().keyPreview) control.form().fire(nullptr, Event::KeyPress, args);
      if (args.KeyAscii != 0) keyToControl(control, args);
    }
  });
}

void Application::scroll(Control& control, int value) {
  run([&] {
    moveFocus(&control);
    const int lo = std::min(control.Min(), control.Max());
    const int hi = std::max(control.Min(), control.Max());
    control.setValue(Value(std::clamp(value, lo, hi)));
  });
}

void Application::cell(Control& control, int row, int col) {
  run([&] {
    moveFocus(&control);
    control.grid().setRow(row);
    control.grid().setCol(col);
    EventArgs args;
    control.form().fire(&control, Event::Click, args);
  });
}

void Application::tick(Control& timer) {
  run([&] {
    if (!timer.Enabled || timer.Interval <= 0 || timer.form().unloading()) return;
    EventArgs args;
    timer.form().fire(&timer, Event::Timer, args);
  });
}

}  // namespace tessaron

#include "surface/application.h"

#include <algorithm>

#include "surface/printable.h"

namespace tessaron {

namespace {
void dropLastCharacter(std::string& s) {
  std::u16string units = ToUtf16(s);
  if (!units.empty()) units.pop_back();
  s = ToUtf8(units);
}

// A key that makes no character event at all: NUL stands for "no key", and
// the Delete character no key of a real keyboard types.
bool noCharacter(int key) { return key <= 0 || key == 127 || key > 0x10FFFF; }

// The character a key makes as it goes down, as a real window adds it: Enter,
// Backspace and Escape type their control characters, unless Ctrl is held.
int characterOfKey(int keyCode, int shift) {
  return (shift & 2) == 0 && Application::keyTypes(keyCode) ? keyCode : 0;
}

std::u16string unitsOf(char32_t c) {
  std::u16string u;
  if (c < 0x10000) {
    u.push_back(static_cast<char16_t>(c));
  } else {
    c -= 0x10000;
    u.push_back(static_cast<char16_t>(0xD800 + (c >> 10)));
    u.push_back(static_cast<char16_t>(0xDC00 + (c & 0x3FF)));
  }
  return u;
}

// The text as the keys that type it: one code point a key.
std::vector<char32_t> keysOf(std::string_view text) {
  const std::u16string u = ToUtf16(text);
  std::vector<char32_t> out;
  for (size_t i = 0; i < u.size(); ++i) {
    const char16_t hi = u[i];
    if (hi >= 0xD800 && hi < 0xDC00 && i + 1 < u.size() && u[i + 1] >= 0xDC00 && u[i + 1] < 0xE000)
      out.push_back(0x10000 + ((hi - 0xD800) << 10) + (u[++i] - 0xDC00));
    else
      out.push_back(hi);
  }
  return out;
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
  std::vector<std::string> out;
  for (const auto& [name, factory] : factories_) out.push_back(name);
  return out;
}

void Application::setScreen(int width, int height) {
  screenWidth_ = std::max(kMinWidth, width);
  screenHeight_ = std::max(kMinHeight, height);
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
  f.settle();
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

// A real window never leaves the keyboard focus on a control that the logic
// hid or disabled: it moves on to the next control in tab order, with the
// LostFocus and GotFocus that go with it, or to the form when none is left.
void Application::keepFocusReachable() {
  for (size_t guard = 0; focused_ && !focused_->usable() && guard < 64; ++guard) {
    Form& form = focused_->form();
    if (form.unloading()) {
      focused_ = nullptr;
      return;
    }
    const auto& all = form.controls();
    const auto at =
        std::find_if(all.begin(), all.end(), [&](const auto& c) { return c.get() == focused_; });
    Control* next = nullptr;
    for (size_t k = 1; at != all.end() && k < all.size() && !next; ++k) {
      Control* c = all[(static_cast<size_t>(at - all.begin()) + k) % all.size()].get();
      if (c->takesFocus() && c->design().tabStop && c->usable()) next = c;
    }
    moveFocus(next);
  }
}

// A window is no larger than the screen and no smaller than its frame, also
// when the logic set its size; Width and Height read back what applies.
void Application::fitWindows() {
  for (const auto& f : forms_) {
    f->Width = std::clamp(f->Width, kMinWidth, screenWidth_);
    f->Height = std::clamp(f->Height, kMinHeight, screenHeight_);
  }
}

void Application::settle() {
  unloaded_.clear();
  fitWindows();
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
    keepFocusReachable();
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
    form.Width = std::clamp(width, kMinWidth, screenWidth_);
    if (height > 0) form.Height = std::clamp(height, kMinHeight, screenHeight_);
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
    // The box shows printable characters only; controls and format
    // characters such as U+FEFF it drops, as the real box does.
    if (key == 8) {
      dropLastCharacter(control.Text);
    } else if (key > 0 && Printable(static_cast<char32_t>(key))) {
      control.Text += ToUtf8(unitsOf(static_cast<char32_t>(key)));
    }
    control.SelStart = Len(Value(control.Text));
    control.SelLength = 0;
  } else if (control.kind() == ControlKind::CommandButton && (key == 13 || key == 32)) {
    EventArgs click;
    control.form().fire(&control, Event::Click, click);
  }
}

void Application::pressForm(Form& form, int keyAscii) {
  if (noCharacter(keyAscii)) return;
  EventArgs args{.KeyAscii = keyAscii};
  form.fire(nullptr, Event::KeyPress, args);
  if (args.KeyAscii == 0 || form.unloading()) return;
  // Then the focused control, as in a real window: a box takes the
  // character, a button takes Enter or Space as a click.
  if (Control* c = form.ActiveControl()) keyToControl(*c, args);
}

void Application::pressControl(Control& control, int keyAscii) {
  if (noCharacter(keyAscii)) return;
  EventArgs args{.KeyAscii = keyAscii};
  if (control.form().design().keyPreview) control.form().fire(nullptr, Event::KeyPress, args);
  if (args.KeyAscii != 0 && !control.form().unloading()) keyToControl(control, args);
}

void Application::press(Form& form, int keyAscii) {
  run([&] { pressForm(form, keyAscii); });
}

void Application::press(Control& control, int keyAscii) {
  run([&] { pressControl(control, keyAscii); });
}

void Application::keydown(Form& form, int keyCode, int shift) {
  run([&] {
    EventArgs args{.KeyCode = keyCode, .Shift = shift};
    form.fire(nullptr, Event::KeyDown, args);
    if (const int ch = characterOfKey(keyCode, shift); ch != 0 && !form.unloading())
      pressForm(form, ch);
    escape(form, args.KeyCode);
  });
}

void Application::keydown(Control& control, int keyCode, int shift) {
  run([&] {
    EventArgs args{.KeyCode = keyCode, .Shift = shift};
    if (control.form().design().keyPreview) control.form().fire(nullptr, Event::KeyDown, args);
    if (args.KeyCode != 0 && !control.form().unloading())
      control.form().fire(&control, Event::KeyDown, args);
    // Enter on a focused button clicks it, through the character it makes.
    if (const int ch = characterOfKey(keyCode, shift); ch != 0 && !control.form().unloading())
      pressControl(control, ch);
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
    for (const char32_t key : keysOf(text)) {
      if (control.form().unloading()) return;
      pressControl(control, static_cast<int>(key));
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

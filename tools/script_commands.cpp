// The user's actions: each reaches the forms through the player, unless the
// user could not reach its target, in which case nothing changes.
#include "tools/script_runner.h"

namespace tessaron::script {

namespace {
bool isScrollBar(const Control& c) {
  return c.kind() == ControlKind::HScrollBar || c.kind() == ControlKind::VScrollBar;
}

void requireKind(bool ok, const Reference& ref, const char* what) {
  if (!ok) throw ScriptError(ref.text + " is not " + what);
}

const Control& designed(const Form& design, const std::string& name, int index) {
  return *design.find(name, index);
}
}  // namespace

void Runner::show(const Args& a) {
  const Reference ref = parseReference(a[0]);
  if (!ref.parts.empty()) throw ScriptError("form expected: " + ref.text);
  formOf(ref);
  if (!load(ref.form)) return;
  player_.show(*app_.loaded(ref.form));
}

void Runner::resize(const Args& a) {
  const Reference ref = parseReference(a[0]);
  if (!ref.parts.empty()) throw ScriptError("form expected: " + ref.text);
  const int width = parseInt(a[1], "width");
  const int height = a.size() > 2 ? parseInt(a[2], "height") : 0;
  Form* form = formOf(ref);
  if (reachable(form, ref)) player_.resize(*form, width, height);
}

void Runner::unload(const Args& a) {
  const Reference ref = parseReference(a[0]);
  if (!ref.parts.empty()) throw ScriptError("form expected: " + ref.text);
  Form* form = formOf(ref);
  if (reachable(form, ref)) player_.close(*form);
}

void Runner::click(const Args& a, bool twice) {
  const Reference ref = parseReference(a[0]);
  const Target t = control(ref, false);
  if (!reachable(t, ref)) return;
  if (twice)
    player_.dblclick(*t.control);
  else
    player_.click(*t.control);
}

void Runner::press(const Args& a) {
  const Reference ref = parseReference(a[0]);
  const int key = parseInt(a[1], "key code");
  if (ref.parts.empty()) {
    Form* form = formOf(ref);
    if (reachable(form, ref)) player_.press(*form, key);
    return;
  }
  const Target t = control(ref, false);
  if (reachable(t, ref)) player_.press(*t.control, key);
}

void Runner::keydown(const Args& a) {
  const Reference ref = parseReference(a[0]);
  const int code = parseInt(a[1], "key code");
  const int shift = a.size() > 2 ? parseInt(a[2], "shift") : 0;
  if (ref.parts.empty()) {
    Form* form = formOf(ref);
    if (reachable(form, ref)) player_.keydown(*form, code, shift);
    return;
  }
  const Target t = control(ref, false);
  if (reachable(t, ref)) player_.keydown(*t.control, code, shift);
}

void Runner::focus(const Args& a) {
  const Reference ref = parseReference(a[0]);
  const Target t = control(ref, false);
  // A label or a picture never takes the keyboard focus, so the window
  // would leave the focus where it is.
  if (t.control && !t.control->takesFocus()) {
    out_ << "ignored " << ref.text << '\n';
    return;
  }
  if (reachable(t, ref)) player_.focus(*t.control);
}

void Runner::type(const Args& a) {
  const Reference ref = parseReference(a[0]);
  if (!a[1].quoted) throw ScriptError("type: text in quotes expected");
  const Target t = control(ref, false);
  requireKind(designed(design(ref.form), t.name, t.index).kind() == ControlKind::TextBox, ref,
              "a text box");
  if (reachable(t, ref)) player_.type(*t.control, a[1].text);
}

void Runner::scroll(const Args& a) {
  const Reference ref = parseReference(a[0]);
  const int value = parseInt(a[1], "value");
  const Target t = control(ref, false);
  requireKind(isScrollBar(designed(design(ref.form), t.name, t.index)), ref, "a scroll bar");
  if (reachable(t, ref)) player_.scroll(*t.control, value);
}

void Runner::cell(const Args& a) {
  const Reference ref = parseReference(a[0]);
  const int row = parseInt(a[1], "row");
  const int col = parseInt(a[2], "column");
  const Target t = control(ref, false);
  const Control& d = designed(design(ref.form), t.name, t.index);
  requireKind(d.kind() == ControlKind::FlexGrid, ref, "a grid");
  if (row < 0 || row >= d.grid().Rows() || col < 0 || col >= d.grid().Cols())
    throw ScriptError("no cell " + std::to_string(row) + "," + std::to_string(col) + " in " +
                      ref.text);
  if (reachable(t, ref)) player_.cell(*t.control, row, col);
}

void Runner::tick(const Args& a) {
  const Reference ref = parseReference(a[0]);
  const int times = a.size() > 1 ? parseInt(a[1], "count") : 1;
  const Target t = control(ref, false);
  requireKind(designed(design(ref.form), t.name, t.index).kind() == ControlKind::Timer, ref,
              "a timer");
  // A timer runs on a loaded form, shown or not.
  if (!t.control || t.form->unloading()) {
    out_ << "ignored " << ref.text << '\n';
    return;
  }
  for (int i = 0; i < times; ++i) {
    Control* timer = t.form == app_.loaded(ref.form) ? t.form->find(t.name, t.index) : nullptr;
    if (!timer || host_.failed()) return;
    player_.tick(*timer);
  }
}

}  // namespace tessaron::script

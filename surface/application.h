#pragma once
// The running suite: the form singletons, the one thread of events, the
// keyboard focus, the printer and the clipboard. Every user action enters
// here as one event that runs to completion; a failure that escapes it is
// told once and ends the application.
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "surface/form.h"
#include "surface/host.h"

namespace tessaron {

class Application {
 public:
  using Factory = std::function<std::unique_ptr<Form>(Application&)>;

  explicit Application(Host& host);
  ~Application();

  void registerForm(std::string name, Factory factory);
  bool knows(std::string_view name) const;
  // Every registered form's name, in name order.
  std::vector<std::string> formNames() const;
  // The form's singleton, created and loaded at its first use.
  Form& form(std::string_view name);
  template <class F>
  F& form(std::string_view name) {
    return static_cast<F&>(form(name));
  }
  // The form if it is loaded, else nullptr; loads nothing.
  Form* loaded(std::string_view name) const;
  std::vector<Form*> loadedForms() const;

  Host& host() { return host_; }
  void setObserver(Observer* observer) { observer_ = observer; }
  Observer* observer() const { return observer_; }
  PrinterDevice& printer() { return printer_; }

  // User actions. Each is one event; the caller has checked that the user
  // can reach the control (usable()).
  void show(Form& form);
  void close(Form& form);  // the window's own close box
  void resize(Form& form, int width, int height);
  void click(Control& control);
  void dblclick(Control& control);
  void press(Form& form, int keyAscii);
  void press(Control& control, int keyAscii);
  void keydown(Form& form, int keyCode, int shift);
  void keydown(Control& control, int keyCode, int shift);
  void focus(Control& control);
  // Enter, Backspace and Escape: keydown types their character itself, as a
  // real window adds it to the key (none while Ctrl is held).
  static bool keyTypes(int keyCode) { return keyCode == 13 || keyCode == 8 || keyCode == 27; }
  void type(Control& control, std::string_view text);
  void scroll(Control& control, int value);
  void cell(Control& control, int row, int col);
  void tick(Control& timer);

  // Runs one event to completion: a failure escaping it is fatal, forms
  // unloaded during it are discarded after it, and the display refreshed.
  void run(const std::function<void()>& event);
  bool busy() const { return depth_ > 0; }
  bool ended() const { return ended_; }
  bool failed() const { return failed_; }

  // The screen a window is dragged on, in twips: no window grows beyond it.
  void setScreen(int width, int height);
  int screenWidth() const { return screenWidth_; }
  int screenHeight() const { return screenHeight_; }
  // The smallest outer size a window keeps: its frame and a sliver of client.
  static constexpr int kMinWidth = 1800, kMinHeight = 600;

  Control* focused() const { return focused_; }
  // LostFocus of the old control, then GotFocus of the new one.
  void moveFocus(Control* to);

 private:
  friend class Form;
  void unload(Form& form);
  void settle();
  void keepFocusReachable();
  void fitWindows();
  void pressForm(Form& form, int keyAscii);
  void pressControl(Control& control, int keyAscii);
  void keyToControl(Control& control, EventArgs& args);
  // Esc on a form that closes on it, once its own routines had the key.
  void escape(Form& form, int keyCode);

  Host& host_;
  Observer* observer_ = nullptr;
  std::map<std::string, Factory, std::less<>> factories_;
  // Form::kept records by form name; declared first, so they outlive the forms.
  std::map<std::string, std::shared_ptr<void>, std::less<>> kept_;
  std::vector<std::unique_ptr<Form>> forms_;     // loaded, in order of loading
  std::vector<std::unique_ptr<Form>> unloaded_;  // discarded once the event ends
  PrinterDevice printer_;
  Control* focused_ = nullptr;
  // A 1920 by 1080 pixel screen, at 15 twips a pixel.
  int screenWidth_ = 28800, screenHeight_ = 16200;
  int depth_ = 0;
  bool everLoaded_ = false;
  bool ended_ = false;
  bool failed_ = false;
  bool focusPending_ = false;  // the focused control has not had its GotFocus yet
};

}  // namespace tessaron

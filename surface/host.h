#pragma once
// What the forms need from the world outside the model: the modal boxes, the
// bell, the printer's spooler and the clipboard (Host), and a display that
// keeps windows in step with the forms (Observer). The application gives real
// dialogs and widgets; the script driver gives scripted answers.
#include <string>

namespace tessaron {

class Form;
class Control;
struct PrintJob;

class Host {
 public:
  virtual ~Host() = default;
  // Flags 48 (warning, OK), 64 (information, OK) or 4 (Yes/No); returns 1,
  // or 6 for Yes and 7 for No.
  virtual int messageBox(const std::string& text, int flags, const std::string& title) = 0;
  // Returns "" on Cancel.
  virtual std::string inputBox(const std::string& prompt) = 0;
  virtual void beep() = 0;
  virtual void printed(const PrintJob& job) = 0;
  virtual std::string clipboardText() = 0;
  virtual void setClipboardText(const std::string& text) = 0;
  // A run-time failure escaped an event: told once, then the application ends.
  virtual void fatal(const std::string& words) = 0;
  // The last form has gone.
  virtual void ended() = 0;
};

// Answers every box at once (Yes to a question) and tells nothing: for an
// application that runs without a user, such as a silent replay or a look at
// which controls a form has.
class QuietHost : public Host {
 public:
  int messageBox(const std::string&, int flags, const std::string&) override {
    return flags == 4 ? 6 : 1;
  }
  std::string inputBox(const std::string&) override { return ""; }
  void beep() override {}
  void printed(const PrintJob&) override {}
  std::string clipboardText() override { return ""; }
  void setClipboardText(const std::string&) override {}
  void fatal(const std::string&) override {}
  void ended() override {}
};

class Observer {
 public:
  virtual ~Observer() = default;
  virtual void formShown(Form& form) = 0;
  // Called before the form's controls are discarded.
  virtual void formUnloading(Form& form) = 0;
  // Once after every event: bring the display up to date with the model.
  virtual void refresh() = 0;
};

}  // namespace tessaron

#pragma once
// The world outside the forms, as a script plays it: message and input boxes
// answered from a queue of scripted answers, the bell, the printer's spooler
// and the clipboard, each reported on the output as the user would see it.
#include <deque>
#include <functional>
#include <ostream>
#include <string>

#include "surface/host.h"

namespace tessaron::script {

class ScriptHost : public Host {
 public:
  explicit ScriptHost(std::ostream& out) : out_(out) {}

  // Also hands each finished job to a real device (the --pdf option).
  std::function<void(const PrintJob&)> alsoPrint;

  void queueReply(int answer) { replies_.push_back(answer); }
  void queueInput(std::string text) { inputs_.push_back(std::move(text)); }
  const std::string& clipboard() const { return clipboard_; }
  bool failed() const { return failed_; }

  int messageBox(const std::string& text, int flags, const std::string& title) override;
  std::string inputBox(const std::string& prompt) override;
  void beep() override;
  void printed(const PrintJob& job) override;
  std::string clipboardText() override { return clipboard_; }
  void setClipboardText(const std::string& text) override { clipboard_ = text; }
  void fatal(const std::string& words) override;
  void ended() override;

 private:
  std::ostream& out_;
  std::deque<int> replies_;
  std::deque<std::string> inputs_;
  std::string clipboard_;
  bool failed_ = false;
};

}  // namespace tessaron::script

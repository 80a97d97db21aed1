#pragma once
// A host that answers boxes from queues and writes down everything the forms
// asked of the world outside, in order.
#include <deque>
#include <string>
#include <vector>

#include "surface/application.h"
#include "surface/printer.h"

namespace tessaron::test {

class RecordingHost : public Host {
 public:
  std::vector<std::string> calls;
  std::deque<int> replies;
  std::deque<std::string> inputs;
  std::vector<PrintJob> jobs;
  std::string clipboard;

  int messageBox(const std::string& text, int flags, const std::string& title) override {
    calls.push_back("msgbox " + std::to_string(flags) + " " + title + ": " + text);
    if (flags != 4) return 1;
    if (replies.empty()) return 6;
    const int r = replies.front();
    replies.pop_front();
    return r;
  }
  std::string inputBox(const std::string& prompt) override {
    calls.push_back("inputbox " + prompt);
    if (inputs.empty()) return "";
    std::string s = inputs.front();
    inputs.pop_front();
    return s;
  }
  void beep() override { calls.push_back("beep"); }
  void printed(const PrintJob& job) override {
    calls.push_back("printed");
    jobs.push_back(job);
  }
  std::string clipboardText() override { return clipboard; }
  void setClipboardText(const std::string& text) override { clipboard = text; }
  void fatal(const std::string& words) override { calls.push_back("fatal " + words); }
  void ended() override { calls.push_back("ended"); }
};

}  // namespace tessaron::test

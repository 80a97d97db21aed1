#pragma once
// A host for tests: it answers boxes from queues and writes down everything
// the forms asked of the world outside, in order.
#include <deque>
#include <string>
#include <vector>

#include "surface/host.h"
#include "surface/printer.h"

namespace tessaron::test {

struct Box {
  std::string text;
  int flags;
  std::string title;
};

class RecordingHost : public Host {
 public:
  std::vector<std::string> calls;  // "msgbox 48 title: text", "beep", "printed", ...
  std::vector<Box> boxes;
  std::deque<int> answers;         // Yes/No answers; 6 when none is queued
  std::deque<std::string> inputs;  // input box answers; "" (Cancel) when none is queued
  std::vector<PrintJob> jobs;
  std::vector<std::string> fatals;
  int endings = 0;
  std::string clipboard;

  int messageBox(const std::string& text, int flags, const std::string& title) override {
    calls.push_back("msgbox " + std::to_string(flags) + " " + title + ": " + text);
    boxes.push_back({text, flags, title});
    if (flags != 4) return 1;
    return next(answers, 6);
  }
  std::string inputBox(const std::string& prompt) override {
    calls.push_back("inputbox " + prompt);
    return next(inputs, std::string());
  }
  void beep() override { calls.push_back("beep"); }
  void printed(const PrintJob& job) override {
    calls.push_back("printed");
    jobs.push_back(job);
  }
  std::string clipboardText() override { return clipboard; }
  void setClipboardText(const std::string& text) override { clipboard = text; }
  void fatal(const std::string& words) override {
    calls.push_back("fatal " + words);
    fatals.push_back(words);
  }
  void ended() override {
    calls.push_back("ended");
    ++endings;
  }

 private:
  template <class T>
  static T next(std::deque<T>& queue, T otherwise) {
    if (queue.empty()) return otherwise;
    T v = queue.front();
    queue.pop_front();
    return v;
  }
};

}  // namespace tessaron::test

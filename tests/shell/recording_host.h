#pragma once
// A host that answers message boxes from a queue and keeps what it was told.
#include <deque>
#include <string>
#include <vector>

#include "surface/host.h"
#include "surface/printer.h"

namespace tessaron::testing {

struct Box {
  std::string text;
  int flags;
  std::string title;
};

class RecordingHost : public Host {
 public:
  std::deque<int> answers;  // Yes/No answers; 6 when empty
  std::vector<Box> boxes;
  std::vector<PrintJob> jobs;
  std::vector<std::string> fatals;
  int endings = 0;
  std::string clipboard;

  int messageBox(const std::string& text, int flags, const std::string& title) override {
    boxes.push_back({text, flags, title});
    if (flags != 4) return 1;
    if (answers.empty()) return 6;
    const int a = answers.front();
    answers.pop_front();
    return a;
  }
  std::string inputBox(const std::string&) override { return ""; }
  void beep() override {}
  void printed(const PrintJob& job) override { jobs.push_back(job); }
  std::string clipboardText() override { return clipboard; }
  void setClipboardText(const std::string& text) override { clipboard = text; }
  void fatal(const std::string& words) override { fatals.push_back(words); }
  void ended() override { ++endings; }
};

}  // namespace tessaron::testing

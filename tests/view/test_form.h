#pragma once
// A small form with one control of every kind, and a host that records what
// the forms asked of it, for the view's tests.
#include <string>
#include <vector>

#include "surface/application.h"
#include "surface/form.h"

namespace tessaron::viewtest {

class RecordingHost : public Host {
 public:
  std::vector<std::string> said;
  int messageBox(const std::string& text, int flags, const std::string&) override {
    said.push_back("msgbox " + text);
    return flags == 4 ? 6 : 1;
  }
  std::string inputBox(const std::string&) override { return ""; }
  void beep() override { said.push_back("beep"); }
  void printed(const PrintJob& job) override {
    this->job = job;
    said.push_back("printed");
  }
  std::string clipboardText() override { return clip; }
  void setClipboardText(const std::string& text) override { clip = text; }
  void fatal(const std::string& words) override { said.push_back("fatal " + words); }
  void ended() override { said.push_back("ended"); }
  PrintJob job;
  std::string clip;
};

class TestForm : public Form {
 public:
  explicit TestForm(Application& app);
  void Load() override;
  int clicks = 0;
  int changes = 0;
  int ticks = 0;
  std::vector<std::string> events;
};

inline constexpr int kFormWidth = 7200;
inline constexpr int kFormHeight = 5400;

}  // namespace tessaron::viewtest

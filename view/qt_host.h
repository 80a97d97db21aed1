#pragma once
// The real world for the forms: message boxes, the input box, the bell, the
// printer behind a print preview, and the system clipboard.
#include "surface/host.h"

namespace tessaron::view {

class QtHost : public Host {
 public:
  int messageBox(const std::string& text, int flags, const std::string& title) override;
  std::string inputBox(const std::string& prompt) override;
  void beep() override;
  // Opens the print preview, from which the user prints or saves a PDF.
  void printed(const PrintJob& job) override;
  std::string clipboardText() override;
  void setClipboardText(const std::string& text) override;
  void fatal(const std::string& words) override;
  void ended() override;
};

}  // namespace tessaron::view

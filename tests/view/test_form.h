#pragma once
// A small form with one control of every kind, and a host that records what
// the forms asked of it, for the view's tests.
#include <string>
#include <vector>

#include "surface/application.h"
#include "surface/form.h"
#include "tests/support/recording_host.h"

namespace tessaron::viewtest {

using RecordingHost = test::RecordingHost;

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

#pragma once
// The calculator with the Assist box open: a function keyed on the panel,
// the range in memories 1 and 2, and the aids' answers read from memory 3 on.
#include <string>

#include "engine/assist_math.h"
#include "tests/engine/engine_fixture.h"

namespace tessaron::test {

class AssistTest : public EngineTest {
 protected:
  void SetUp() override {
    EngineTest::SetUp();
    app.click(c("cmdAssist"));
  }
  // A memory set as the user sets it: the value on the display, then M+.
  void setMemory(int n, double v) {
    calc->vMemory[n] = Value(v);
    calc->scrMemChange();
  }
  void range(double from, double to) {
    setMemory(1, from);
    setMemory(2, to);
  }
  void aid(const char* name) {
    host.boxes.clear();
    app.click(c(name));
  }
  std::string lastBox() { return host.boxes.empty() ? "" : host.boxes.back().text; }
};

}  // namespace tessaron::test

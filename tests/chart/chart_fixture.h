#pragma once
// The chart in the whole suite, driven as a user drives it.
#include <gtest/gtest.h>

#include <string>

#include "chart/ovisum.h"
#include "suite/suite.h"
#include "surface/application.h"
#include "tests/support/recording_host.h"

namespace tessaron::test {

class ChartFixture : public ::testing::Test {
 protected:
  void SetUp() override {
    registerSuite(app);
    app.show(app.form("OviSum"));
  }
  OviSum& sum() { return app.form<OviSum>("OviSum"); }
  ChartState& chart() { return sum().chart; }
  Control& c(const char* name, int index = -1) { return sum().control(name, index); }
  Control& cell(int i) { return c("txtAAA", i); }
  std::string text(int i) { return cell(i).Text; }
  std::string amt(int i) { return c("lblAmt", i).Caption; }
  std::string ans(int r) { return c("lblAns", r).Caption; }
  void click(const char* name, int index = -1) { app.click(c(name, index)); }
  // Types into a cell and leaves it for Calc, as a click on Calc would.
  void enter(int i, const std::string& t) {
    app.type(cell(i), t);
    app.focus(c("cmdCalc"));
  }
  void key(int code) { app.keydown(*app.focused(), code, 0); }
  void reopen() {
    app.close(sum());
    app.show(app.form("OviSum"));
  }

  RecordingHost host;
  Application app{host};
};

}  // namespace tessaron::test

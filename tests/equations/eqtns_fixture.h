#pragma once
// The equation form in the whole suite, driven as a user drives it.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "equations/eqtns.h"
#include "suite/suite.h"
#include "surface/application.h"
#include "tests/support/recording_host.h"

namespace tessaron::test {

class EqtnsFixture : public ::testing::Test {
 protected:
  void SetUp() override {
    registerSuite(app);
    app.show(app.form("frmMain"));
    app.click(app.form("frmMain").control("cmdEquation"));
  }
  frmEqtns& eq() { return app.form<frmEqtns>("frmEqtns"); }
  Control& c(const char* name, int index = -1) { return eq().control(name, index); }
  std::string answer(int i) { return c("lblAns", i).Caption; }
  void click(const char* name, int index = -1) { app.click(c(name, index)); }
  void choose(int type) {
    if (eq().EqnType != Value(type)) click("optEqn", type);
  }
  // Types each figure into its box, in order, and solves.
  void solve(int type, const std::vector<std::pair<int, std::string>>& boxes) {
    choose(type);
    for (const auto& [box, text] : boxes) app.type(c("txtBBB", box), text);
    click("cmdCalc");
  }

  RecordingHost host;
  Application app{host};
};

}  // namespace tessaron::test

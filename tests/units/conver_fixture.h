#pragma once
// The unit converter in the whole suite, driven as a user drives it.
#include <gtest/gtest.h>

#include <string>

#include "suite/suite.h"
#include "surface/application.h"
#include "tests/support/recording_host.h"
#include "units/conver.h"
#include "units/unit_table.h"

namespace tessaron::test {

class ConverFixture : public ::testing::Test {
 protected:
  void SetUp() override {
    registerSuite(app);
    app.show(app.form("frmConver"));
  }
  frmConver& conver() { return app.form<frmConver>("frmConver"); }
  Control& c(const char* name, int index = -1) { return conver().control(name, index); }
  std::string text(const char* name) { return c(name).Text; }
  std::string caption(const char* name) { return c(name).Caption; }
  std::string cell(int row, int col) { return c("Table").grid().TextMatrix(row, col); }
  void click(const char* name, int index = -1) { app.click(c(name, index)); }
  void clickCell(int row, int col) { app.cell(c("Table"), row, col); }
  // Types into a box and leaves it with Enter, as a user converts.
  void enter(const char* box, const std::string& t) {
    app.type(c(box), t);
    app.press(c(box), 13);
  }
  // The first cell that chooses conversion k, with Korea shown.
  void choose(int k) {
    click("optCoun", frmConver::kKorea);
    for (const UnitCell& u : UnitCells())
      if (u.k == k) {
        clickCell(u.row, u.col);
        return;
      }
    FAIL() << "no cell chooses " << k;
  }

  RecordingHost host;
  Application app{host};
};

}  // namespace tessaron::test

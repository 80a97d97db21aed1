#pragma once
// The loan form in the whole suite, driven as a user drives it.
#include <gtest/gtest.h>

#include <string>

#include "finance/loan.h"
#include "suite/suite.h"
#include "surface/application.h"
#include "tests/support/recording_host.h"

namespace tessaron::test {

class LoanFixture : public ::testing::Test {
 protected:
  void SetUp() override {
    registerSuite(app);
    app.show(app.form("frmLoan"));
  }
  frmLoan& loan() { return app.form<frmLoan>("frmLoan"); }
  Control& c(const char* name) { return loan().control(name); }
  std::string text(const char* name) { return c(name).Text; }
  std::string caption(const char* name) { return c(name).Caption; }
  void type(const char* box, const std::string& t) { app.type(c(box), t); }
  void click(const char* name) { app.click(c(name)); }
  void scroll(const char* bar, int v) { app.scroll(c(bar), v); }
  void enter(const char* box) { app.press(c(box), 13); }
  int bar(const char* name) { return CInt(c(name).value()).AsInt16(); }
  // The amount as the base, left with Calculate.
  void amount(const std::string& t) {
    type("txtAmount", t);
    click("cmdCalculate");
  }
  void payment(const std::string& t) {
    type("txtPay", t);
    click("cmdCalculate");
  }
  std::string cell(int row, int col) { return c("Table").grid().TextMatrix(row, col); }

  RecordingHost host;
  Application app{host};
};

}  // namespace tessaron::test

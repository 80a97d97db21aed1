#pragma once
// One finance form in the whole suite, driven as a user drives it, and the
// reading of the reference files made outside the product.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "suite/suite.h"
#include "surface/application.h"
#include "tests/support/recording_host.h"

namespace tessaron::test {

template <class F>
class SavingsFixture : public ::testing::Test {
 protected:
  explicit SavingsFixture(const char* name) : name_(name) {}
  void SetUp() override {
    registerSuite(app);
    app.show(app.form(name_));
  }
  // Closes the form and opens it afresh, as a user does between two cases.
  void reopen() {
    app.close(form());
    app.show(app.form(name_));
  }
  F& form() { return app.form<F>(name_); }
  Control& c(const char* name, int index = -1) { return form().control(name, index); }
  std::string text(const char* name, int index = -1) { return c(name, index).Text; }
  std::string caption(const char* name, int index = -1) { return c(name, index).Caption; }
  void type(const char* box, const std::string& t, int index = -1) { app.type(c(box, index), t); }
  void click(const char* name) { app.click(c(name)); }
  void scroll(const char* bar, int v) { app.scroll(c(bar), v); }
  void enter(const char* box, int index = -1) { app.press(c(box, index), 13); }
  int bar(const char* name) { return CInt(c(name).value()).AsInt16(); }
  std::string lastBox() { return host.boxes.empty() ? "" : host.boxes.back().text; }

  RecordingHost host;
  Application app{host};

 private:
  const char* name_;
};

// The tab-separated rows of a reference file, comments left out.
inline std::vector<std::vector<std::string>> ReadRows(const char* path) {
  std::ifstream in(path);
  std::vector<std::vector<std::string>> rows;
  std::string line;
  while (std::getline(in, line)) {
    if (line.empty() || line[0] == '#') continue;
    std::istringstream fields(line);
    std::vector<std::string> row;
    for (std::string f; std::getline(fields, f, '\t');) row.push_back(f);
    rows.push_back(row);
  }
  return rows;
}

}  // namespace tessaron::test

#pragma once
// A finance form in the whole suite, driven as a user drives it.
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
class FormFixture : public ::testing::Test {
 protected:
  explicit FormFixture(const char* name) : name_(name) {}
  void SetUp() override {
    registerSuite(app);
    app.show(app.form(name_));
  }
  // Closes the form and opens it afresh, at its starting values.
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
  void focus(const char* name) { app.focus(c(name)); }
  void scroll(const char* bar, int v) { app.scroll(c(bar), v); }
  void enter(const char* box, int index = -1) { app.press(c(box, index), 13); }
  int bar(const char* name) { return CInt(c(name).value()).AsInt16(); }
  std::string lastBox() { return host.boxes.empty() ? "" : host.boxes.back().text; }
  // The message boxes shown so far, as "TEXT", and forgets them.
  std::vector<std::string> messages() {
    std::vector<std::string> out;
    for (const Box& b : host.boxes) out.push_back(b.text);
    host.boxes.clear();
    return out;
  }

  RecordingHost host;
  Application app{host};

 private:
  const char* name_;
};

// The tab-separated rows of a reference file, comment lines skipped.
inline std::vector<std::vector<std::string>> ReadRows(const char* path) {
  std::ifstream in(path);
  std::vector<std::vector<std::string>> rows;
  std::string line;
  while (std::getline(in, line)) {
    if (line.empty() || line[0] == '#') continue;
    std::istringstream fields(line);
    std::vector<std::string> row;
    for (std::string f; std::getline(fields, f, '\t');) row.push_back(f);
    if (line.back() == '\t') row.push_back("");  // an empty last field
    rows.push_back(row);
  }
  return rows;
}

}  // namespace tessaron::test

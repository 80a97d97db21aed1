#pragma once
// The statistics sheet in the whole suite, driven as a user drives it.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "statistics/statistics.h"
#include "suite/suite.h"
#include "surface/application.h"
#include "tests/support/recording_host.h"

namespace tessaron::test {

// One run of the suite with the statistics sheet open.
struct StatisticsSession {
  StatisticsSession() {
    registerSuite(app);
    app.show(app.form("frmStatistics"));
  }
  frmStatistics& form() { return app.form<frmStatistics>("frmStatistics"); }
  StatisticsSheet& sheet() { return form().sheet(); }
  Control& c(const char* name, int index = -1) { return form().control(name, index); }
  std::string cell(int i) { return c("txtBBB", i).Text; }
  std::string place(int i) { return c("lblCCC", i).Caption; }
  std::string figure(int i) { return c("lblDDD", i).Caption; }
  void click(const char* name) { app.click(c(name)); }
  void type(const char* name, int index, const std::string& text) {
    app.type(c(name, index), text);
  }
  void enter(const char* name, int index) { app.press(c(name, index), 13); }
  // Types each text into the cell that has the focus, then Enter: "" leaves
  // the place blank. The first goes into cell 1 of the page on view.
  void entries(const std::vector<std::string>& texts, bool enterAfterLast = true) {
    app.focus(c("txtBBB", 1));
    for (std::size_t i = 0; i < texts.size(); ++i) {
      Control* box = app.focused();
      ASSERT_NE(box, nullptr);
      ASSERT_EQ(box->name(), "txtBBB");
      app.type(*box, texts[i]);
      if (enterAfterLast || i + 1 < texts.size()) app.press(*box, 13);
    }
  }
  // The words of every message box so far.
  std::vector<std::string> messages() const {
    std::vector<std::string> words;
    for (const Box& b : host.boxes) words.push_back(b.text);
    return words;
  }

  RecordingHost host;
  Application app{host};
};

class StatisticsFixture : public ::testing::Test, public StatisticsSession {};

}  // namespace tessaron::test

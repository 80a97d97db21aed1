#pragma once
// The calculator on the plain form model, with a host that records every box.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "calc/ovicalc.h"
#include "surface/application.h"
#include "tests/support/recording_host.h"

namespace tessaron::test {

class CalcTest : public ::testing::Test {
 protected:
  RecordingHost host;
  Application app{host};
  OviCalc* calc = nullptr;

  void SetUp() override {
    app.registerForm("OviCalc", [](Application& a) { return std::make_unique<OviCalc>(a); });
    calc = &app.form<OviCalc>("OviCalc");
    app.show(*calc);
  }
  Control& c(const char* name, int index = -1) { return calc->control(name, index); }
  // What the display shows once the routine in hand is over, as the end of
  // an event leaves it: a routine called directly ends no event.
  std::string display() {
    calc->settle();
    return c("Readout").Caption;
  }
  long displayColour() { return c("Readout").ForeColor; }
  // Keys as the user presses them: a word a key, clicked on the form.
  void keys(const std::string& words) {
    size_t i = 0;
    while (i < words.size()) {
      while (i < words.size() && words[i] == ' ') ++i;
      size_t j = words.find(' ', i);
      if (j == std::string::npos) j = words.size();
      if (j > i) key(words.substr(i, j - i));
      i = j;
    }
  }
  void key(const std::string& k) {
    if (k.size() == 1 && k[0] >= '0' && k[0] <= '9') return app.click(c("Number", k[0] - '0'));
    static const char* const ops[] = {"+",   "-", "=",     "X",    "/",  "nCr",
                                      "nPr", "^", "LogxY", "from", "to", "root"};
    for (int i = 0; i < 12; ++i)
      if (k == ops[i]) return app.click(c("Operator", i));
    if (k == ".") return app.click(c("cmdDeci"));
    if (k == "+/-") return app.click(c("Sign"));
    if (k == "exp") return app.click(c("cmdExp"));
    if (k == "Del") return app.click(c("cmdDelete"));
    if (k == "Back") return app.click(c("cmdBack"));
    if (k == "CE") return app.click(c("CancelEntry"));
    if (k == "CA") return app.click(c("Cancel"));
    if (k == "(") return app.click(c("cmdOpenP"));
    if (k == ")") return app.click(c("cmdCloseP"));
    if (k == "%") return app.click(c("Percent"));
    if (k == "Pi") return app.click(c("Pipi"));
    FAIL() << "no key " << k;
  }
  // Typed on the keyboard: each character to the form.
  void type(const std::string& chars) {
    for (char ch : chars) app.press(*calc, static_cast<unsigned char>(ch));
  }
  std::vector<std::string> boxTexts() {
    std::vector<std::string> t;
    for (const auto& b : host.boxes) t.push_back(b.text);
    return t;
  }
};

}  // namespace tessaron::test

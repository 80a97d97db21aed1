// The conventions the finance forms share, on a small form that uses the
// common term routines (a term bar of 0 to 50 years, a month bar of 600 down
// to 1) and counts its calculations.
#include <gtest/gtest.h>

#include "finance/conventions.h"
#include "surface/application.h"
#include "tests/support/recording_host.h"

namespace tessaron::test {
namespace {

using K = ControlKind;

std::vector<Design> TermDesign() {
  return {
      {.kind = K::TextBox, .name = "txtRate"},
      {.kind = K::HScrollBar,
       .name = "scrRate",
       .min = 9,
       .max = 6000,
       .largeChange = 20,
       .value = 2000},
      {.kind = K::HScrollBar, .name = "scrYear", .min = 0, .max = 50, .largeChange = 6, .value = 3},
      {.kind = K::HScrollBar, .name = "scrMonth", .min = 600, .max = 1, .value = 36},
      {.kind = K::Label, .name = "lblYears"},
      {.kind = K::Label, .name = "lblMonth"},
      {.kind = K::TextBox, .name = "txtAmount"},
      {.kind = K::TextBox, .name = "txtPay"},
      {.kind = K::Label, .name = "lblAAA", .caption = "Base"},
      {.kind = K::Label, .name = "lblPPP", .caption = "Base"},
      {.kind = K::CommandButton, .name = "cmdCalculate"},
      {.kind = K::CommandButton, .name = "cmdClear"},
  };
}

class frmTerm : public FinanceForm {
 public:
  frmTerm(Application& app, FinanceTable table)
      : FinanceForm(app, "frmTerm", {.caption = "Term"}, TermDesign(), std::move(table)) {}
  void Load() override {
    PubClear();
    PubRate();
    PubMonths();
    Mask = Value(kAmountMask);
  }
  void PubCalc() override {
    RateGuard();
    ++calcs;
  }
  int calcs = 0;
};

class Conventions : public ::testing::Test {
 protected:
  frmTerm& open(FinanceTable table = {}) {
    app.registerForm("frmTerm",
                     [table](Application& a) { return std::make_unique<frmTerm>(a, table); });
    app.show(app.form("frmTerm"));
    return app.form<frmTerm>("frmTerm");
  }
  Control& c(const char* name) { return app.form("frmTerm").control(name); }
  int bar(const char* name) { return CInt(c(name).value()).AsInt16(); }

  RecordingHost host;
  Application app{host};
};

TEST_F(Conventions, StepDownFromARestKeepsTheYears) {
  frmTerm& f = open();
  app.scroll(c("scrMonth"), 55);
  EXPECT_EQ(c("lblYears").Caption, "4");
  EXPECT_EQ(c("lblMonth").Caption, "7");
  EXPECT_EQ(bar("scrYear"), 4);
  app.scroll(c("scrYear"), 3);
  EXPECT_EQ(bar("scrYear"), 4);
  EXPECT_EQ(bar("scrMonth"), 48);
  EXPECT_EQ(f.Months, Value(48));
  EXPECT_EQ(f.RestMonths, Value(0));
  EXPECT_EQ(c("lblYears").Caption, "4");
  EXPECT_EQ(c("lblMonth").Caption, "0");
  app.scroll(c("scrYear"), 3);
  EXPECT_EQ(f.Months, Value(36));
}

// Read literally, the last year's steps would recount the months as whole
// years, and the month bar's own routine would then pull the year bar back to
// 49. The term the bar cannot show keeps its rest months instead: the year bar
// stays at 50 while Years counts 49.
TEST_F(Conventions, LastYearWithRestMonthsCountsOneYearLess) {
  frmTerm& f = open();
  app.scroll(c("scrMonth"), 598);
  EXPECT_EQ(bar("scrYear"), 49);
  EXPECT_EQ(c("lblMonth").Caption, "10");
  app.scroll(c("scrYear"), 50);
  EXPECT_EQ(bar("scrYear"), 50);
  EXPECT_EQ(f.Years, Value(49));
  EXPECT_EQ(f.RestMonths, Value(10));
  EXPECT_EQ(f.Months, Value(598));
  EXPECT_EQ(bar("scrMonth"), 598);
  EXPECT_EQ(c("lblYears").Caption, "49");
  EXPECT_EQ(c("lblMonth").Caption, "10");
}

TEST_F(Conventions, EveryBarChangeCalculates) {
  frmTerm& f = open();
  const int before = f.calcs;
  app.scroll(c("scrRate"), 2100);
  EXPECT_EQ(f.calcs, before + 1);
  EXPECT_EQ(c("txtRate").Text, " 10.50");
  app.scroll(c("scrYear"), 5);
  EXPECT_GT(f.calcs, before + 1);
  EXPECT_EQ(f.Months, Value(60));
}

TEST_F(Conventions, ZeroRefusedWithItsOwnWordsWhereTheTableSaysSo) {
  open({.zeroBelowTen = false,
        .refusesZero = true,
        .rateLimitWords = " 0 < Rate <= 150% Max. here !  ",
        .enterRateFloor = 0.0001,
        .yearMax = 100});
  app.type(c("txtRate"), "0");
  app.click(c("cmdCalculate"));
  ASSERT_EQ(host.boxes.size(), 1u);
  EXPECT_EQ(host.boxes[0].text, " 0 < Rate <= 150% Max. here !  ");
  EXPECT_EQ(host.boxes[0].flags, 48);
  EXPECT_EQ(host.boxes[0].title, "Tessaron");
  EXPECT_EQ(app.focused(), &c("txtRate"));
}

TEST_F(Conventions, BarBelowTenIsARateWhereTheTableSaysSo) {
  frmTerm& f = open({.zeroBelowTen = false});
  app.scroll(c("scrRate"), 9);
  EXPECT_EQ(c("txtRate").Text, " 0.045");
  EXPECT_EQ(f.AnnualRate, Value(9.0 / 20000));
}

TEST_F(Conventions, EnterInTheRateTakesItWhereTheTableSaysSo) {
  frmTerm& f = open({.rateEnterToTerm = false});
  app.type(c("txtRate"), "6");
  app.press(c("txtRate"), 13);
  EXPECT_EQ(app.focused(), &c("cmdCalculate"));
  EXPECT_EQ(f.AnnualRate, Value(0.06));
  EXPECT_EQ(c("txtRate").Text, "6.00");
}

TEST_F(Conventions, AmountBoxesWithoutClearing) {
  frmTerm& f = open({.focusClears = false});
  app.type(c("txtAmount"), "100");
  app.type(c("txtPay"), "5");
  app.click(c("cmdCalculate"));
  EXPECT_EQ(f.Amount, Value(100));
  EXPECT_EQ(f.Payment, Value(5));
  EXPECT_EQ(c("txtAmount").Text, "100.");
  EXPECT_EQ(c("lblAAA").Caption, "");
  EXPECT_EQ(c("lblPPP").Caption, "Base");
}

}  // namespace
}  // namespace tessaron::test

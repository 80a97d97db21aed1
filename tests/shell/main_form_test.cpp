#include <gtest/gtest.h>

#include "shell/about_form.h"
#include "shell/main_form.h"
#include "surface/application.h"
#include "tests/support/recording_host.h"

namespace tessaron {
namespace {

// Stands in for a calculator form: counts how often it was loaded.
class Counted : public Form {
 public:
  Counted(Application& app, std::string name, int& loads)
      : Form(app, std::move(name), {.caption = "x"}, {}), loads_(loads) {}
  void Load() override { ++loads_; }

 private:
  int& loads_;
};

class MainForm : public ::testing::Test {
 protected:
  void registerCounted(const std::string& name) {
    app.registerForm(name, [this, name](Application& a) {
      return std::make_unique<Counted>(a, name, loads[name]);
    });
  }
  Form& menu() { return app.form("frmMain"); }
  Control& c(const char* name, int index = -1) { return menu().control(name, index); }
  void tick(int n = 1) {
    for (int i = 0; i < n; ++i) app.tick(c("tmrTimer"));
  }

  test::RecordingHost host;
  Application app{host};
  std::map<std::string, int> loads;
  // The menu and the about box alone: every other form is one this build
  // does not have, unless a test registers a stand-in.
  void SetUp() override {
    app.registerForm("frmMain", [](Application& a) { return std::make_unique<frmMain>(a); });
    app.registerForm("frmAbout", [](Application& a) { return std::make_unique<frmAbout>(a); });
  }
};

TEST_F(MainForm, LoadPlacesTheNormalMenu) {
  Form& m = menu();
  EXPECT_EQ(m.Caption, "  Tessaron    V 7.3 ");
  EXPECT_EQ(m.Top, 180);
  EXPECT_EQ(m.Left, 5910);
  EXPECT_EQ(m.Width, 6570);
  EXPECT_EQ(c("tmrTimer").Interval, 2000);
  EXPECT_EQ(c("cmdUnit1").ToolTipText, " Conversion table and converter  ");
  EXPECT_EQ(c("cmdGye").Caption, "Mutual Fin.");
  EXPECT_EQ(c("imgHelp").ToolTipText, "If no Help, open C:/Program Files/Tessaron/CalcHelp ");
  EXPECT_EQ(c("oleHelp").design().picture, ":/help/CalcHelp.html");
}

TEST_F(MainForm, ButtonsOfMissingFormsAreGreyWithTheirTooltips) {
  registerCounted("OviSum");
  EXPECT_TRUE(c("cmdSumm").Enabled);
  EXPECT_TRUE(c("cmdAbout").Enabled);
  EXPECT_FALSE(c("cmdMYCalc").Enabled);
  EXPECT_FALSE(c("cmdGye").Enabled);
  EXPECT_EQ(c("cmdMYCalc").ToolTipText, " Scientific calculator ");
  // The images keep their resizing role either way.
  EXPECT_TRUE(c("imgCalc").Enabled);
  EXPECT_TRUE(c("cmdFinances").Enabled);
}

TEST_F(MainForm, ASecondClickOnlyBringsTheFormToTheFront) {
  registerCounted("OviCalc");
  app.click(c("cmdMYCalc"));
  app.click(c("cmdMYCalc"));
  EXPECT_EQ(loads["OviCalc"], 1);
  EXPECT_TRUE(app.form("OviCalc").Visible());
}

TEST_F(MainForm, FirstTickShowsTheFirstPictureAndHidesTheLast) {
  c("imgDan", 10).Visible = true;
  tick();
  EXPECT_TRUE(c("imgDan", 0).Visible);
  EXPECT_FALSE(c("imgDan", 10).Visible);
  tick();
  EXPECT_TRUE(c("imgDan", 1).Visible);
  EXPECT_FALSE(c("imgDan", 0).Visible);
}

TEST_F(MainForm, SlideShowWrapsAfterTheEleventhPicture) {
  tick(11);
  EXPECT_TRUE(c("imgDan", 10).Visible);
  EXPECT_FALSE(c("imgDan", 9).Visible);
  tick();
  EXPECT_TRUE(c("imgDan", 0).Visible);
  EXPECT_FALSE(c("imgDan", 10).Visible);
  int shown = 0;
  for (int k = 0; k <= 10; ++k) shown += c("imgDan", k).Visible;
  EXPECT_EQ(shown, 1);
}

TEST_F(MainForm, IdleMenuReducesOnTheTwoHundredAndFirstTick) {
  tick(200);
  EXPECT_EQ(menu().Width, 6570);
  tick();
  EXPECT_EQ(menu().Width, 1880);
  EXPECT_EQ(menu().Left, 7605);
  // A reduced menu is never enlarged by the clock.
  tick(600);
  EXPECT_EQ(menu().Width, 1880);
}

TEST_F(MainForm, AfterAResizeTheNextIdleTestIsOneHundredAndOneTicksLater) {
  app.click(c("imgExit"));
  EXPECT_EQ(menu().Width, 1880);
  app.click(c("imgCalc"));  // no calculator here: only the restore
  EXPECT_EQ(menu().Width, 6570);
  tick(100);
  EXPECT_EQ(menu().Width, 6570);
  tick();
  EXPECT_EQ(menu().Width, 1880);
}

TEST_F(MainForm, WidthOfExactlyThreeThousandIsLeftAlone) {
  app.resize(menu(), 3000, 0);
  tick(201);
  EXPECT_EQ(menu().Width, 3000);
}

TEST_F(MainForm, WidthOfExactlyFiveThousandReduces) {
  app.resize(menu(), 5000, 0);
  app.click(c("imgExit"));
  EXPECT_EQ(menu().Width, 1880);
  EXPECT_FALSE(c("cmdSumm").Visible);
  EXPECT_EQ(c("imgExit").Left, 2400);
  EXPECT_EQ(c("imgDan", 7).Left, 2400);
  EXPECT_EQ(c("imgLoan").Left, 1170);
  EXPECT_EQ(c("imgLoan").Top, 550);
}

TEST_F(MainForm, RestoreShutsTheFinanceColumn) {
  app.click(c("cmdFinances"));
  EXPECT_EQ(menu().Width, 8505);
  EXPECT_FALSE(c("cmdFinances").Visible);
  EXPECT_FALSE(c("cmdFinances").Enabled);
  app.click(c("imgExit"));  // 8505 is 5000 or more: reduce
  app.click(c("imgExit"));
  EXPECT_EQ(menu().Width, 6570);
  EXPECT_TRUE(c("cmdFinances").Visible);
  EXPECT_TRUE(c("cmdFinances").Enabled);
  EXPECT_EQ(c("imgExit").Left, 12634);
  EXPECT_EQ(c("imgLeas").Left, 8379);
  EXPECT_EQ(c("imgLeas").Top, 330);
}

TEST_F(MainForm, LeaseImageFromTheStripOpensTheFinanceColumn) {
  registerCounted("frmAuto");
  app.click(c("imgExit"));
  app.click(c("imgLeas"));
  EXPECT_EQ(loads["frmAuto"], 1);
  EXPECT_EQ(menu().Width, 8505);
  EXPECT_EQ(menu().Left, 5910);
  EXPECT_FALSE(c("cmdFinances").Visible);
  EXPECT_EQ(c("imgLeas").Left, 8379);
}

TEST_F(MainForm, LoanImageFromTheNormalMenuLeavesAWideStrip) {
  app.click(c("imgLoan"));  // no loan form here: the rest still runs
  EXPECT_EQ(menu().Width, 8505);
  EXPECT_EQ(menu().Left, 7605);
  EXPECT_FALSE(c("cmdSumm").Visible);
  EXPECT_FALSE(c("cmdFinances").Visible);
  EXPECT_EQ(c("imgLoan").Left, 1170);
  EXPECT_EQ(c("imgLeas").Top, 100);
}

TEST_F(MainForm, LoanButtonWithoutItsFormIsGreyButItsRoutineStillWidens) {
  EXPECT_FALSE(c("cmdOrd").Enabled);
  EventArgs args;
  menu().fire(&c("cmdOrd"), Event::Click, args);
  EXPECT_EQ(menu().Width, 8500);
}

TEST_F(MainForm, LoanButtonKeepsItsFiveTwipsShortWidth) {
  registerCounted("frmLoan");
  app.click(c("cmdFinances"));
  app.click(c("cmdOrd"));
  EXPECT_EQ(loads["frmLoan"], 1);
  EXPECT_EQ(menu().Width, 8500);
  EXPECT_FALSE(c("cmdFinances").Visible);
}

}  // namespace
}  // namespace tessaron

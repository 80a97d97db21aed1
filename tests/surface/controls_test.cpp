// The rules the logic leans on: option groups, scroll bars, focus, captions
// and colours as numbers, control arrays.
#include "tests/surface/fixture.h"

namespace tessaron::test {
namespace {

using K = ControlKind;

class ControlsTest : public SurfaceTest {
 protected:
  Form* f = nullptr;
  void SetUp() override {
    std::vector<Design> t;
    Design frame = row(K::Frame, "fraA");
    t.push_back(frame);
    for (int i = 0; i < 3; ++i) {
      Design o = row(K::OptionButton, "optA", i);
      o.container = "fraA";
      o.checked = i == 0;
      t.push_back(o);
    }
    for (int i = 0; i < 2; ++i) {
      Design o = row(K::OptionButton, "optB", i);
      o.checked = i == 0;
      t.push_back(o);
    }
    Design bar = row(K::HScrollBar, "scrRate");
    bar.min = 1;
    bar.max = 50;
    bar.value = 5;
    t.push_back(bar);
    Design down = row(K::VScrollBar, "scrDown");
    down.min = 10;
    down.max = 0;
    down.value = 10;
    t.push_back(down);
    t.push_back(row(K::TextBox, "txtA"));
    t.push_back(row(K::TextBox, "txtB"));
    Design hidden = row(K::TextBox, "txtHidden");
    hidden.visible = false;
    t.push_back(hidden);
    Design off = row(K::CommandButton, "cmdOff");
    off.enabled = false;
    off.tip = "Explains itself";
    t.push_back(off);
    Design inFrame = row(K::TextBox, "txtInFrame");
    inFrame.container = "fraA";
    t.push_back(inFrame);
    t.push_back(row(K::Label, "lblA"));
    t.push_back(row(K::CheckBox, "chkA"));
    add("frmC", t, [this](TestForm& form) {
      form.on("optA", Event::Click, note("optA.Click"));
      form.on("optB", Event::Click, note("optB.Click"));
      form.on("chkA", Event::Click, note("chkA.Click"));
      form.on("scrRate", Event::Change, [this, &form](EventArgs&) {
        log.push_back("scrRate.Change " + CStr(form.control("scrRate").value()));
      });
      form.on("scrDown", Event::Change, note("scrDown.Change"));
      for (const char* box : {"txtA", "txtB"}) {
        const std::string name = box;
        form.on(name, Event::GotFocus, note(name + ".GotFocus"));
        form.on(name, Event::LostFocus, note(name + ".LostFocus"));
      }
    });
    f = &shown("frmC");
  }
  Control& c(const std::string& name, int index = -1) { return f->control(name, index); }
};

TEST_F(ControlsTest, ChoosingAnOptionClearsItsGroupAndFiresClick) {
  c("optA", 2).setValue(Value(true));
  EXPECT_EQ(c("optA", 0).value(), Value(false));
  EXPECT_EQ(c("optA", 2).value(), Value(true));
  EXPECT_EQ(c("optA", 2).value().kind(), Kind::Bool);
  EXPECT_EQ(log, (std::vector<std::string>{"optA.Click(2)"}));
}

TEST_F(ControlsTest, OptionGroupsAreTheirContainers) {
  c("optB", 1).setValue(Value(true));
  EXPECT_EQ(c("optA", 0).value(), Value(true)) << "the frame's group is untouched";
  EXPECT_EQ(c("optB", 0).value(), Value(false));
}

TEST_F(ControlsTest, ChoosingTheChosenOptionAgainFiresNoClick) {
  c("optA", 0).setValue(Value(true));
  app.click(c("optA", 0));
  EXPECT_TRUE(log.empty());
}

TEST_F(ControlsTest, ClickingAnOptionChoosesIt) {
  app.click(c("optA", 1));
  EXPECT_EQ(c("optA", 1).value(), Value(true));
  EXPECT_EQ(c("optA", 0).value(), Value(false));
  EXPECT_EQ(log, (std::vector<std::string>{"optA.Click(1)"}));
}

TEST_F(ControlsTest, CheckBoxValueIsZeroOrOneAndClickToggles) {
  EXPECT_EQ(c("chkA").value(), Value(0));
  app.click(c("chkA"));
  EXPECT_EQ(c("chkA").value(), Value(1));
  app.click(c("chkA"));
  EXPECT_EQ(c("chkA").value(), Value(0));
  EXPECT_EQ(log, (std::vector<std::string>{"chkA.Click", "chkA.Click"}));
}

TEST_F(ControlsTest, ScrollChangeRunsInsideTheAssignment) {
  app.run([&] {
    c("scrRate").setValue(Value(7));
    log.push_back("after");
  });
  EXPECT_EQ(log, (std::vector<std::string>{"scrRate.Change 7", "after"}));
  EXPECT_EQ(c("scrRate").value().kind(), Kind::Int16);
}

TEST_F(ControlsTest, ScrollSetToItsOwnValueFiresNoChange) {
  c("scrRate").setValue(Value(5));
  app.scroll(c("scrRate"), 5);
  EXPECT_TRUE(log.empty());
}

TEST_F(ControlsTest, ScrollValueOutsideMinAndMaxIsAFailure) {
  EXPECT_THROW(c("scrRate").setValue(Value(51)), Failure);
  EXPECT_THROW(c("scrRate").setValue(Value(0)), Failure);
  EXPECT_EQ(c("scrRate").value(), Value(5));
}

TEST_F(ControlsTest, ScrollValueFromARealIsRoundedAsCInt) {
  c("scrRate").setValue(Value(6.5));
  EXPECT_EQ(c("scrRate").value(), Value(6));
  c("scrRate").setValue(Value(7.5));
  EXPECT_EQ(c("scrRate").value(), Value(8));
}

TEST_F(ControlsTest, AReversedBarTakesValuesBetweenItsEnds) {
  c("scrDown").setValue(Value(3));
  EXPECT_EQ(c("scrDown").value(), Value(3));
  app.scroll(c("scrDown"), 99);
  EXPECT_EQ(c("scrDown").value(), Value(10));
}

TEST_F(ControlsTest, UserScrollStopsAtTheEnds) {
  app.scroll(c("scrRate"), 500);
  EXPECT_EQ(c("scrRate").value(), Value(50));
  EXPECT_EQ(log, (std::vector<std::string>{"scrRate.Change 50"}));
}

TEST_F(ControlsTest, LoweringMaxBelowTheValueMovesTheValue) {
  c("scrRate").setValue(Value(40));
  log.clear();
  c("scrRate").setMax(20);
  EXPECT_EQ(c("scrRate").Max(), 20);
  EXPECT_EQ(c("scrRate").value(), Value(20));
  EXPECT_EQ(log, (std::vector<std::string>{"scrRate.Change 20"}));
}

TEST_F(ControlsTest, TextSetFromCodeFiresNoFocusEvents) {
  c("txtA").Text = "12";
  c("txtB").Text = CStr(Value(2.5));
  EXPECT_TRUE(log.empty());
  EXPECT_EQ(app.focused(), nullptr);
}

TEST_F(ControlsTest, LostFocusRunsBeforeGotFocus) {
  app.focus(c("txtA"));
  app.focus(c("txtB"));
  EXPECT_EQ(log, (std::vector<std::string>{"txtA.GotFocus", "txtA.LostFocus", "txtB.GotFocus"}));
  EXPECT_EQ(app.focused(), &c("txtB"));
  EXPECT_EQ(f->ActiveControl(), &c("txtB"));
}

TEST_F(ControlsTest, FocusOnTheFocusedControlFiresNothing) {
  app.focus(c("txtA"));
  app.focus(c("txtA"));
  EXPECT_EQ(log, (std::vector<std::string>{"txtA.GotFocus"}));
}

TEST_F(ControlsTest, SetFocusOnAHiddenOrDisabledControlIsAFailure) {
  EXPECT_THROW(c("txtHidden").SetFocus(), Failure);
  EXPECT_THROW(c("cmdOff").SetFocus(), Failure);
  try {
    c("txtHidden").SetFocus();
  } catch (const Failure& e) {
    EXPECT_STREQ(e.what(), "Invalid procedure call or argument");
  }
  c("fraA").Visible = false;
  EXPECT_THROW(c("txtInFrame").SetFocus(), Failure) << "hidden with its frame";
  c("fraA").Visible = true;
  EXPECT_NO_THROW(c("txtInFrame").SetFocus());
}

TEST_F(ControlsTest, SetFocusOnAHiddenControlInAnEventEndsTheApplication) {
  app.run([&] { c("txtHidden").SetFocus(); });
  EXPECT_TRUE(app.failed());
  EXPECT_TRUE(app.ended());
  EXPECT_EQ(host.calls, (std::vector<std::string>{"fatal Invalid procedure call or argument"}));
  EXPECT_TRUE(app.loadedForms().empty());
}

TEST_F(ControlsTest, UsableMeansShownEnabledAndOnAShownForm) {
  EXPECT_TRUE(c("txtA").usable());
  EXPECT_FALSE(c("txtHidden").usable());
  EXPECT_FALSE(c("cmdOff").usable());
  EXPECT_TRUE(c("cmdOff").shown());
  c("fraA").Enabled = false;
  EXPECT_FALSE(c("txtInFrame").usable()) << "a disabled frame disables what is in it";
  EXPECT_TRUE(c("txtInFrame").shown());
}

TEST_F(ControlsTest, ColoursAreNumbers) {
  c("txtA").ForeColor = 0xFF0000;
  c("txtA").BackColor = Rgb(255, 255, 204);
  EXPECT_EQ(CStr(*c("txtA").property("ForeColor")), "16711680");
  EXPECT_EQ(CStr(*c("txtA").property("BackColor")), "13434879");
  EXPECT_EQ(CStr(*c("txtB").property("ForeColor")), "0") << "black by default";
}

TEST_F(ControlsTest, NumbersGivenToCaptionsReadAsCStr) {
  c("lblA").Caption = CStr(Value(0.1) + Value(0.2));
  EXPECT_EQ(c("lblA").Caption, "0.3");
  c("lblA").Caption = CStr(Value(1e20));
  EXPECT_EQ(c("lblA").Caption, "1E+20");
}

TEST_F(ControlsTest, TooltipsComeFromTheDesignAndCanBeChanged) {
  EXPECT_EQ(c("cmdOff").ToolTipText, "Explains itself");
  c("cmdOff").ToolTipText = "Now different";
  EXPECT_EQ(CStr(*c("cmdOff").property("ToolTipText")), "Now different");
}

TEST_F(ControlsTest, ControlArraysAreReachedByIndex) {
  ControlArray opts = f->array("optA");
  EXPECT_EQ(opts.LBound(), 0);
  EXPECT_EQ(opts.UBound(), 2);
  EXPECT_EQ(&opts(1), &c("optA", 1));
  EXPECT_EQ(opts(2).path(), "optA(2)");
  EXPECT_THROW(opts(3), Failure);
  EXPECT_EQ(f->find("optA", 5), nullptr);
}

TEST_F(ControlsTest, PropertiesByNameForTheDriver) {
  EXPECT_EQ(*c("scrRate").property("Value"), Value(5));
  EXPECT_EQ(*c("scrRate").property("Min"), Value(1));
  EXPECT_EQ(*c("scrRate").property("Max"), Value(50));
  EXPECT_EQ(*c("cmdOff").property("Enabled"), Value(false));
  EXPECT_FALSE(c("txtA").property("Value").has_value());
  EXPECT_FALSE(c("txtA").property("Nonsense").has_value());
}

}  // namespace
}  // namespace tessaron::test

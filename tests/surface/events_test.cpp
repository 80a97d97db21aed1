// Events reach the logic one at a time: clicks, keys, typing, timers, and a
// failure that escapes an event ending the application.
#include "tests/surface/fixture.h"

namespace tessaron::test {
namespace {

using K = ControlKind;

class EventsTest : public SurfaceTest {
 protected:
  Form* f = nullptr;
  void SetUp() override {
    Design timer = row(K::Timer, "tmrA");
    timer.interval = 2000;
    Design locked = row(K::TextBox, "txtLocked");
    locked.locked = true;
    std::vector<Design> t = {row(K::CommandButton, "cmdA"),
                             row(K::CommandButton, "Number", 0),
                             row(K::CommandButton, "Number", 1),
                             row(K::TextBox, "txtA"),
                             row(K::TextBox, "txtB"),
                             locked,
                             row(K::FlexGrid, "grdA"),
                             timer,
                             row(K::Label, "lblA"),
                             row(K::Image, "imgA")};
    add("frmE", t, [this](TestForm& form) {
      form.on("cmdA", Event::Click, note("cmdA.Click"));
      form.on("cmdA", Event::DblClick, note("cmdA.DblClick"));
      form.on("cmdA", Event::GotFocus, note("cmdA.GotFocus"));
      form.on("Number", Event::Click, note("Number.Click"));
      form.on("lblA", Event::Click, note("lblA.Click"));
      form.on("imgA", Event::Click, note("imgA.Click"));
      form.on("txtA", Event::GotFocus, note("txtA.GotFocus"));
      form.on("txtA", Event::LostFocus, note("txtA.LostFocus"));
      // Digits only; letters become capitals; Enter is taken.
      form.on("txtA", Event::KeyPress, [this](EventArgs& e) {
        log.push_back("txtA.KeyPress " + std::to_string(e.KeyAscii));
        if (e.KeyAscii >= 'a' && e.KeyAscii <= 'z') e.KeyAscii -= 32;
        if (e.KeyAscii == '!' || e.KeyAscii == 13) e.KeyAscii = 0;
      });
      form.on("txtB", Event::KeyDown, [this](EventArgs& e) {
        log.push_back("txtB.KeyDown " + std::to_string(e.KeyCode) + " " + std::to_string(e.Shift));
      });
      form.on("grdA", Event::Click, [this, &form](EventArgs&) {
        const Grid& g = form.control("grdA").grid();
        log.push_back("grdA.Click " + std::to_string(g.Row()) + "," + std::to_string(g.Col()));
      });
      form.on("tmrA", Event::Timer, note("tmrA.Timer"));
      form.on("Form", Event::KeyPress, [this](EventArgs& e) {
        log.push_back("Form.KeyPress " + std::to_string(e.KeyAscii));
      });
      form.on("Form", Event::KeyDown, [this](EventArgs& e) {
        log.push_back("Form.KeyDown " + std::to_string(e.KeyCode) + " " + std::to_string(e.Shift));
      });
    });
    f = &shown("frmE");
  }
  Control& c(const std::string& name, int index = -1) { return f->control(name, index); }
};

TEST_F(EventsTest, ClickingAButtonFocusesItThenClicks) {
  app.click(c("cmdA"));
  EXPECT_EQ(log, (std::vector<std::string>{"cmdA.GotFocus", "cmdA.Click"}));
  EXPECT_EQ(app.focused(), &c("cmdA"));
}

// What a routine leaves waiting to be shown reaches the controls when its
// event ends, and before a box it raises is read.
TEST_F(EventsTest, AFormSettlesAfterEachEventAndBeforeABox) {
  auto& form = static_cast<TestForm&>(*f);
  form.onSettle = [this] { log.push_back("settle"); };
  form.on("txtB", Event::Click, [this, &form](EventArgs&) {
    log.push_back("before");
    form.MsgBox("Look", 48, "Test");
    log.push_back("after");
  });
  app.click(c("txtB"));
  EXPECT_EQ(log, (std::vector<std::string>{"before", "settle", "after", "settle"}));
}

TEST_F(EventsTest, ClickingALabelOrImageLeavesTheFocus) {
  app.focus(c("txtA"));
  log.clear();
  app.click(c("lblA"));
  app.click(c("imgA"));
  EXPECT_EQ(log, (std::vector<std::string>{"lblA.Click", "imgA.Click"}));
  EXPECT_EQ(app.focused(), &c("txtA"));
}

TEST_F(EventsTest, ControlArrayEventsTellTheIndex) {
  app.click(c("Number", 1));
  app.click(c("Number", 0));
  EXPECT_EQ(log, (std::vector<std::string>{"Number.Click(1)", "Number.Click(0)"}));
}

TEST_F(EventsTest, DoubleClickIsAClickThenDblClick) {
  app.dblclick(c("cmdA"));
  EXPECT_EQ(log, (std::vector<std::string>{"cmdA.GotFocus", "cmdA.Click", "cmdA.DblClick"}));
}

TEST_F(EventsTest, TypingReplacesTheTextKeyByKeyThroughKeyPress) {
  c("txtA").Text = "old";
  app.type(c("txtA"), "a!b1");
  EXPECT_EQ(c("txtA").Text, "AB1");
  EXPECT_EQ(log, (std::vector<std::string>{"txtA.GotFocus", "txtA.KeyPress 97", "txtA.KeyPress 33",
                                           "txtA.KeyPress 98", "txtA.KeyPress 49"}));
  EXPECT_EQ(c("txtA").SelStart, 3);
}

TEST_F(EventsTest, TypingHangulCountsCharactersNotBytes) {
  app.type(c("txtB"), "\xEA\xB0\x80\xEB\x82\x98");  // two syllables
  EXPECT_EQ(c("txtB").Text, "\xEA\xB0\x80\xEB\x82\x98");
  EXPECT_EQ(c("txtB").SelStart, 2);
  app.press(c("txtB"), 8);
  EXPECT_EQ(c("txtB").Text, "\xEA\xB0\x80");
}

TEST_F(EventsTest, ALockedBoxKeepsItsText) {
  c("txtLocked").Text = "fixed";
  app.type(c("txtLocked"), "new");
  EXPECT_EQ(c("txtLocked").Text, "fixed");
  app.press(c("txtLocked"), 'x');
  EXPECT_EQ(c("txtLocked").Text, "fixed");
}

TEST_F(EventsTest, AKeyDroppedByKeyPressChangesNothing) {
  c("txtA").Text = "5";
  app.press(c("txtA"), 13);
  EXPECT_EQ(c("txtA").Text, "5");
}

TEST_F(EventsTest, FormKeysGoToTheFormsRoutines) {
  app.press(*f, 43);
  app.keydown(*f, 112, 1);
  EXPECT_EQ(log, (std::vector<std::string>{"Form.KeyPress 43", "Form.KeyDown 112 1"}));
}

TEST_F(EventsTest, ControlKeyDownReachesTheControlWithoutKeyPreview) {
  app.keydown(c("txtB"), 40, 2);
  EXPECT_EQ(log, (std::vector<std::string>{"txtB.KeyDown 40 2"}));
}

TEST_F(EventsTest, EnterOnAButtonClicksIt) {
  app.press(c("cmdA"), 13);
  EXPECT_EQ(log, (std::vector<std::string>{"cmdA.Click"}));
}

TEST_F(EventsTest, EnterGoingDownOnAButtonClicksItUnlessCtrlIsHeld) {
  app.keydown(c("cmdA"), 13, 0);
  app.keydown(c("cmdA"), 13, 2);
  app.keydown(c("cmdA"), 65, 0);
  EXPECT_EQ(log, (std::vector<std::string>{"cmdA.Click"}));
}

TEST_F(EventsTest, ABoxShowsOnlyPrintableCharacters) {
  app.type(c("txtB"),
           "1\t2\x7f"
           "3\xef\xbb\xbf"
           "4\xf0\x9f\x98\x80");
  EXPECT_EQ(c("txtB").Text, "1234\xf0\x9f\x98\x80");
  EXPECT_EQ(c("txtB").SelStart, 6);  // the last character is two code units
  log.clear();
  app.press(c("txtA"), 0);
  app.press(c("txtA"), 127);
  app.press(c("txtA"), 9);
  EXPECT_EQ(log, (std::vector<std::string>{"txtA.KeyPress 9"}));
  EXPECT_EQ(c("txtA").Text, "");
}

TEST_F(EventsTest, TheFocusMovesOnFromAControlTheLogicHides) {
  app.focus(c("txtA"));
  log.clear();
  app.run([&] { c("txtA").Visible = false; });
  EXPECT_EQ(app.focused(), &c("txtB"));
  EXPECT_EQ(log, (std::vector<std::string>{"txtA.LostFocus"}));
  app.run([&] {
    for (const char* n : {"cmdA", "txtB", "txtLocked", "grdA"}) c(n).Enabled = false;
    c("Number", 0).Enabled = c("Number", 1).Enabled = false;
  });
  EXPECT_EQ(app.focused(), nullptr);
}

TEST_F(EventsTest, AWindowStaysWithinTheScreen) {
  app.resize(*f, 2147483647, -1);
  EXPECT_EQ(f->Width, app.screenWidth());
  app.run([&] { f->Height = -40; });
  EXPECT_EQ(f->Height, Application::kMinHeight);
}

TEST_F(EventsTest, GridClickSetsRowAndColFirst) {
  app.cell(c("grdA"), 1, 0);
  EXPECT_EQ(log, (std::vector<std::string>{"grdA.Click 1,0"}));
}

TEST_F(EventsTest, TimerFiresOnlyWhileEnabled) {
  app.tick(c("tmrA"));
  c("tmrA").Enabled = false;
  app.tick(c("tmrA"));
  c("tmrA").Enabled = true;
  c("tmrA").Interval = 0;
  app.tick(c("tmrA"));
  EXPECT_EQ(log, (std::vector<std::string>{"tmrA.Timer"}));
}

TEST_F(EventsTest, EventsInsideAnEventRunAtOnceNotQueued) {
  app.run([&] {
    log.push_back("outer");
    app.click(c("cmdA"));
    log.push_back("back");
    EXPECT_TRUE(app.busy());
  });
  EXPECT_FALSE(app.busy());
  EXPECT_EQ(log, (std::vector<std::string>{"outer", "cmdA.GotFocus", "cmdA.Click", "back"}));
}

TEST_F(EventsTest, AFailureEscapingAnEventIsToldOnceAndEndsTheApplication) {
  app.run([&] { Value x = Value(1) / Value(0); });
  EXPECT_TRUE(app.failed());
  EXPECT_TRUE(app.ended());
  EXPECT_EQ(host.calls, (std::vector<std::string>{"fatal Division by zero"}));
  EXPECT_EQ(app.loaded("frmE"), nullptr);
}

TEST_F(EventsTest, AFailureStopsTheRoutineWhereItHappened) {
  f->on("lblA", Event::DblClick, [this](EventArgs&) {
    log.push_back("before");
    CInt(Value(40000));
    log.push_back("never");
  });
  app.dblclick(c("lblA"));
  EXPECT_EQ(log, (std::vector<std::string>{"lblA.Click", "before"}));
  EXPECT_EQ(host.calls, (std::vector<std::string>{"fatal Overflow"}));
}

TEST_F(EventsTest, ServicesGoThroughTheHost) {
  host.answers = {7};
  host.inputs = {"3.5"};
  EXPECT_EQ(f->MsgBox("Sure?", 4, " Tessaron"), 7);
  EXPECT_EQ(f->MsgBox("Again?", 4, "Tessaron"), 6) << "an unqueued Yes/No box answers Yes";
  EXPECT_EQ(f->MsgBox("Number, please", 48, "Tessaron"), 1);
  EXPECT_EQ(f->MsgBox("Done", 64, "Tessaron"), 1);
  EXPECT_EQ(f->InputBox("Value of X"), "3.5");
  EXPECT_EQ(f->InputBox("Value of X"), "");
  f->Beep();
  EXPECT_EQ(host.calls, (std::vector<std::string>{
                            "msgbox 4  Tessaron: Sure?", "msgbox 4 Tessaron: Again?",
                            "msgbox 48 Tessaron: Number, please", "msgbox 64 Tessaron: Done",
                            "inputbox Value of X", "inputbox Value of X", "beep"}));
}

TEST_F(EventsTest, ClipboardClearSetAndGet) {
  host.clipboard = "before";
  EXPECT_EQ(f->ClipboardGetText(), "before");
  f->ClipboardClear();
  EXPECT_EQ(f->ClipboardGetText(), "");
  f->ClipboardSetText("1,234.5");
  EXPECT_EQ(host.clipboard, "1,234.5");
}

}  // namespace
}  // namespace tessaron::test

// Forms as singletons: Load before the first show, Show without Load when
// loaded, Unload discarding everything, the end of the application.
#include "tests/surface/fixture.h"

namespace tessaron::test {
namespace {

using K = ControlKind;

class LifecycleTest : public SurfaceTest {
 protected:
  void SetUp() override {
    add(
        "frmA", {row(K::TextBox, "txtA"), row(K::CommandButton, "cmdClose")},
        [this](TestForm& f) { f.on("cmdClose", Event::Click, [&f](EventArgs&) { f.Unload(); }); },
        [this](TestForm& f) {
          log.push_back("Load frmA");
          f.control("txtA").Text = "loaded";
        });
    add("frmB", {row(K::Label, "lblB")}, {}, [this](TestForm&) { log.push_back("Load frmB"); });
  }
};

TEST_F(LifecycleTest, FormIsCreatedAndLoadedAtItsFirstUse) {
  EXPECT_EQ(app.loaded("frmA"), nullptr);
  Form& a = app.form("frmA");
  EXPECT_EQ(app.loaded("frmA"), &a);
  EXPECT_FALSE(a.Visible());
  EXPECT_EQ(log, (std::vector<std::string>{"Load frmA"}));
  EXPECT_EQ(&app.form("frmA"), &a) << "one instance per form";
  EXPECT_EQ(loads, 1);
}

TEST_F(LifecycleTest, ShowOfAShownFormRunsNoLoad) {
  Form& a = shown("frmA");
  EXPECT_TRUE(a.Visible());
  app.show(a);
  app.show(a);
  EXPECT_EQ(loads, 1);
  EXPECT_TRUE(a.Visible());
}

TEST_F(LifecycleTest, UnloadDiscardsValuesAndTheNextUseLoadsAfresh) {
  Form& a = shown("frmA");
  a.control("txtA").Text = "typed";
  shown("frmB");
  app.close(a);
  EXPECT_EQ(app.loaded("frmA"), nullptr);
  Form& again = shown("frmA");
  EXPECT_EQ(again.control("txtA").Text, "loaded");
  EXPECT_EQ(loads, 3);
}

struct Sheet {
  std::vector<int> cells;
};

TEST_F(LifecycleTest, KeptValuesOutliveUnloadAndBelongToTheirForm) {
  shown("frmB");
  Form& a = shown("frmA");
  a.kept<Sheet>().cells.push_back(7);
  app.close(a);
  Form& again = shown("frmA");
  EXPECT_EQ(again.control("txtA").Text, "loaded") << "controls still load afresh";
  EXPECT_EQ(again.kept<Sheet>().cells, std::vector<int>{7});
  EXPECT_TRUE(app.form("frmB").kept<Sheet>().cells.empty()) << "each form its own record";
}

TEST_F(LifecycleTest, ApplicationEndsWhenTheLastFormIsUnloaded) {
  Form& a = shown("frmA");
  Form& b = shown("frmB");
  app.close(b);
  EXPECT_FALSE(app.ended());
  EXPECT_TRUE(host.calls.empty());
  app.click(a.control("cmdClose"));
  EXPECT_TRUE(app.ended());
  EXPECT_EQ(host.calls, (std::vector<std::string>{"ended"}));
  EXPECT_TRUE(app.loadedForms().empty());
}

TEST_F(LifecycleTest, UnloadInsideAnEventKeepsTheFormUntilTheEventEnds) {
  Form& a = shown("frmA");
  shown("frmB");
  bool stillThere = false;
  app.run([&] {
    a.Unload();
    EXPECT_TRUE(a.unloading());
    EXPECT_FALSE(a.Visible());
    // The routine that unloaded its form still runs to its end.
    stillThere = a.control("txtA").Text == "loaded";
  });
  EXPECT_TRUE(stillThere);
  EXPECT_EQ(app.loaded("frmA"), nullptr);
}

TEST_F(LifecycleTest, AFormShownAgainAfterTheEndRevivesTheApplication) {
  Form& a = shown("frmA");
  app.close(a);
  EXPECT_TRUE(app.ended());
  shown("frmA");
  EXPECT_FALSE(app.ended());
}

TEST_F(LifecycleTest, KnowsOnlyRegisteredForms) {
  EXPECT_TRUE(app.knows("frmA"));
  EXPECT_FALSE(app.knows("frmZ"));
}

TEST_F(LifecycleTest, FormPropertiesForTheDriver) {
  Form& a = shown("frmA");
  EXPECT_EQ(CStr(*a.property("Caption")), "Test");
  EXPECT_EQ(*a.property("Visible"), Value(true));
  EXPECT_EQ(*a.property("Loaded"), Value(true));
  EXPECT_EQ(*a.property("Width"), Value(4800));
  EXPECT_FALSE(a.property("Colour").has_value());
}

}  // namespace
}  // namespace tessaron::test

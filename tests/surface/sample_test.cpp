// The sample form: one control of every kind, built from its design table.
#include "tests/support/sample_form.h"

#include <set>

#include "tests/surface/fixture.h"

namespace tessaron::test {
namespace {

TEST(SampleFormTest, HasOneControlOfEveryKind) {
  std::set<ControlKind> kinds;
  for (const Design& d : frmSample::table()) kinds.insert(d.kind);
  EXPECT_EQ(kinds.size(), static_cast<size_t>(ControlKind::OlePackage) + 1);
}

TEST_F(SurfaceTest, SampleFormBuildsItsControlsInTheirContainers) {
  registerSample(app);
  Form& f = shown("frmSample");
  EXPECT_EQ(f.control("optA", 1).container(), &f.control("fraChoice"));
  EXPECT_EQ(f.control("txtA").container(), nullptr);
  EXPECT_EQ(f.control("grdTable").grid().TextMatrix(0, 1), "A");
  EXPECT_EQ(f.control("lblLog").Caption, "Load;");
  f.control("fraChoice").Visible = false;
  EXPECT_FALSE(f.control("optA", 1).shown());
}

TEST_F(SurfaceTest, SampleFormPrintsAfterAYes) {
  registerSample(app);
  Form& f = shown("frmSample");
  host.answers = {7, 6};
  app.click(f.control("cmdPrint"));
  EXPECT_TRUE(host.jobs.empty());
  app.click(f.control("cmdPrint"));
  ASSERT_EQ(host.jobs.size(), 1u);
  EXPECT_EQ(host.jobs[0].pages.size(), 2u);
  EXPECT_EQ(host.jobs[0].pages[1].lines, (std::vector<std::string>{"Page two"}));
}

}  // namespace
}  // namespace tessaron::test
